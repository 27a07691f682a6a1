#pragma once

#include <QtGlobal>

class GeoView;
class QPainter;
class TileCells;

// Draws the cells of a view over what is there: each by itself, unsmoothed, within two pixels of its place. For a
// moment, as long as TileRowPainter takes.
void sketchTiles(QPainter &painter, const GeoView &view, const TileCells &cells, quint8 level);
