#pragma once

#include "tiles/tile_geometry.h"

#include <QImage>
#include <QRect>

class GeoView;
class QPainter;
class TileCells;
struct TileCell;

// Draws the cells of a view row by row: a row is put together in the tiles' own pixels, so that nothing shows where
// tiles meet, and is drawn in strips that bring it from the sphere to the plane.
class TileRowPainter {
public:
    // The tiles that are needed for a part of the view, logical pixels: also those whose edge is smoothed into it.
    static TileRange needed(const GeoView &view, const QRect &part, quint8 level);

    // Draws what of the tiles lies in a part of the view, logical pixels. Takes the place of what is there, transparent
    // pixels included. Pictures that are enlarged are smoothed when asked for, others always. The cells are
    // those that the part needs, or more.
    void paint(
        QPainter &painter, const GeoView &view, const QRect &part, const TileCells &cells, quint8 level, bool smooth);

private:
    void putTogether(const TileRange &range, int row, const TileCells &cells);
    void paintCell(QPainter &painter, const QRect &target, const TileCell &cell) const;
    static QImage mixed(const TileCell &cell, const QSize &size);
    void drawRow(QPainter &painter, const GeoView &view, const TileRange &range, int row, const QRectF &sight) const;

    int m_cellSize = 0; // pixels of the row for a tile
    bool m_keepsMixed = false; // what is not an image alone
    QImage m_row; // kept for its memory
};
