#pragma once

#include <QtGlobal>

class GeoView;
class QPainter;
class QRect;
class TileCells;

// Draws the cells that lie in a part of the view, logical pixels, over what is there: each by itself, unsmoothed,
// within two pixels of its place. For a moment, as long as TileRowPainter takes.
void sketchTiles(QPainter &painter, const GeoView &view, const QRect &part, const TileCells &cells, quint8 level);
