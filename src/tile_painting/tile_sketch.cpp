#include "tile_painting/tile_sketch.h"

#include "tile_painting/tile_cells.h"
#include "tile_painting/tile_plane.h"
#include "tile_painting/tile_row_painter.h"
#include "view/geo_view.h"

#include <QPainter>

namespace {

// Tiles reach into each other by half of it all round: rounding leaves no gaps between them.
constexpr double SketchOverlap = 1.0; // screen pixels

// What is there of the image comes first: how far it has faded in is for the drawing that follows.
void sketchCell(QPainter &painter, const QRectF &target, const TileCell &cell)
{
    if (!cell.image.isNull()) {
        painter.drawImage(target, cell.image, cell.image.rect());
        return;
    }
    if (!cell.ancestor.isNull()) {
        painter.drawImage(target, cell.ancestor, cell.ancestorPart);
    }
    for (int i = 0; i < 4; ++i) {
        const QImage &child = cell.children[static_cast<std::size_t>(i)];
        if (!child.isNull()) {
            const QSizeF half = target.size() / 2.0;
            const QPointF corner = target.topLeft() + QPointF(i % 2 * half.width(), i / 2 * half.height());
            painter.drawImage(QRectF(corner, half), child, child.rect());
        }
    }
}

} // namespace

void sketchTiles(QPainter &painter, const GeoView &view, const TileCells &cells, quint8 level)
{
    const TileRange range = TileRowPainter::needed(view, view.screenRect(), level);
    const double size = TileGeometry::TileSize;
    const double reach = SketchOverlap / 2.0 * view.metresPerPixel() * size / TilePlane::span(level);
    const QRectF target = QRectF(0.0, 0.0, size, size).adjusted(-reach, -reach, reach, reach);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    for (int row = range.top; row <= range.bottom; ++row) {
        for (int column = range.left; column <= range.right; ++column) {
            const QRectF plane = TilePlane::planeRect(column, row, level);
            QTransform toPlane = QTransform::fromTranslate(plane.left(), plane.bottom());
            toPlane.scale(plane.width() / size, -plane.height() / size);
            painter.setTransform(toPlane * view.screenTransform());
            sketchCell(painter, target, cells.at(column, row));
        }
    }
    painter.restore();
}
