#include "tile_painting/tile_row_painter.h"

#include "tile_painting/tile_cells.h"
#include "tile_painting/tile_plane.h"
#include "view/geo_view.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int Rim = 1; // rows of pixels of the neighbours above and below: edges are smoothed across them
constexpr int WidestRow = 32000; // pixels; the painter counts pixels of a picture in 16 bits

constexpr qsizetype MostMixedKept = 256; // cells of a view, so that a wide one does not take half the memory

constexpr double Overlap = 0.1; // screen pixels
constexpr double NotEnlarged = 1.01; // screen pixels for a tile's pixel

// Metres of the plane per device pixel.
double deviceResolution(const GeoView &view)
{
    return view.metresPerPixel() / view.devicePixelRatio();
}

// What fades in is mixed with what stands in by their shares: one over the other would show the transparent parts of
// both, and a painter that adds them up cuts bright ones off. Both premultiplied, of one size.
void fadeIn(QImage &standIn, const QImage &image, double opacity)
{
    const auto share = static_cast<int>(std::lround(256.0 * opacity));
    for (int y = 0; y < standIn.height(); ++y) {
        uchar *const to = standIn.scanLine(y);
        const uchar *const from = image.constScanLine(y);
        for (int i = 0; i < 4 * standIn.width(); ++i) {
            to[i] = static_cast<uchar>((to[i] * (256 - share) + from[i] * share + 128) >> 8);
        }
    }
}

QImage fitted(const QImage &image, const QSize &size)
{
    const QImage scaled =
        image.size() == size ? image : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return scaled.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QRect quarter(const QRect &target, int i)
{
    const QSize half = target.size() / 2;
    return QRect(target.topLeft() + QPoint(i % 2 * half.width(), i / 2 * half.height()), half);
}

} // namespace

TileRange TileRowPainter::needed(const GeoView &view, const QRect &part, quint8 level)
{
    const double margin = std::max(view.metresPerPixel(), TilePlane::span(level) / TileGeometry::TileSize);
    const QRectF sight = view.planeTransform().mapRect(QRectF(part));
    return TilePlane::covering(sight.adjusted(-margin, -margin, margin, margin), level);
}

void TileRowPainter::paint(
    QPainter &painter, const GeoView &view, const QRect &part, const TileCells &cells, quint8 level, bool smooth)
{
    const TileRange range = needed(view, part, level);
    const double pixelsPerTile = TilePlane::span(level) / deviceResolution(view);
    // Images of high density are worth their memory only where there are pixels for them.
    const bool fine = cells.widest() > TileGeometry::TileSize && pixelsPerTile > TileGeometry::TileSize;
    m_cellSize = fine ? 2 * TileGeometry::TileSize : TileGeometry::TileSize;
    m_keepsMixed = cells.count() <= MostMixedKept;
    if (cells.isEmpty() || (range.right - range.left + 1) * m_cellSize > WidestRow) {
        return;
    }
    const bool enlarged = pixelsPerTile > NotEnlarged * m_cellSize;
    const QRectF sight = view.planeTransform().mapRect(QRectF(part.adjusted(-1, -1, 1, 1)));
    painter.setRenderHint(QPainter::SmoothPixmapTransform, smooth || !enlarged);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (int row = range.top; row <= range.bottom; ++row) {
        putTogether(range, row, cells);
        drawRow(painter, view, range, row, sight);
    }
}

void TileRowPainter::putTogether(const TileRange &range, int row, const TileCells &cells)
{
    const QSize size((range.right - range.left + 1) * m_cellSize, m_cellSize + 2 * Rim);
    if (m_row.size() != size) {
        m_row = QImage(size, QImage::Format_ARGB32_Premultiplied);
    }
    QPainter painter(&m_row);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int column = range.left; column <= range.right; ++column) {
        for (int step = -1; step <= 1; ++step) {
            const QPoint corner((column - range.left) * m_cellSize, Rim + step * m_cellSize);
            paintCell(painter, QRect(corner, QSize(m_cellSize, m_cellSize)), cells.at(column, row + step));
        }
    }
}

void TileRowPainter::paintCell(QPainter &painter, const QRect &target, const TileCell &cell) const
{
    if (!cell.image.isNull() && cell.opacity >= 1.0) {
        painter.drawImage(target, cell.image);
        return;
    }
    if (cell.isBlank()) {
        painter.fillRect(target, Qt::transparent);
        return;
    }
    const QImage image = cell.mixed.size() == target.size() ? cell.mixed : mixed(cell, target.size());
    painter.drawImage(target, image);
    cell.mixed = m_keepsMixed ? image : QImage();
}

QImage TileRowPainter::mixed(const TileCell &cell, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect target(QPoint(0, 0), size);
    if (!cell.ancestor.isNull()) {
        painter.drawImage(QRectF(target), cell.ancestor, cell.ancestorPart);
    }
    for (int i = 0; i < 4; ++i) {
        const QImage &child = cell.children[static_cast<std::size_t>(i)];
        if (!child.isNull()) {
            painter.drawImage(quarter(target, i), child);
        }
    }
    painter.end();
    if (!cell.image.isNull()) {
        fadeIn(image, fitted(cell.image, size), cell.opacity);
    }
    return image;
}

// Strips reach a little beyond their edges, where the next one has the same: rounding leaves no gap between them.
void TileRowPainter::drawRow(
    QPainter &painter, const GeoView &view, const TileRange &range, int row, const QRectF &sight) const
{
    const int strips = TilePlane::strips(range.level, deviceResolution(view));
    const double span = TilePlane::span(range.level);
    const QPointF northwest(range.left * span - TilePlane::HalfWorld, TilePlane::HalfWorld - row * span); // spherical
    const double pixels = static_cast<double>(m_cellSize) / strips;
    const double overlap = std::min<double>(Overlap * deviceResolution(view) * m_cellSize / span, Rim);
    const auto stripAt = [&](double planeY) {
        return std::clamp((northwest.y() - TilePlane::toSphericalY(planeY)) / span * strips, 0.0, strips - 1.0);
    };
    const auto last = static_cast<int>(stripAt(sight.top()));
    for (auto strip = static_cast<int>(stripAt(sight.bottom())); strip <= last; ++strip) {
        const double top = TilePlane::toPlaneY(northwest.y() - strip * span / strips);
        const double bottom = TilePlane::toPlaneY(northwest.y() - (strip + 1) * span / strips);
        const double firstPixel = Rim + strip * pixels;
        QTransform toPlane = QTransform::fromTranslate(northwest.x(), top);
        toPlane.scale(span / m_cellSize, (bottom - top) / pixels);
        toPlane.translate(0.0, -firstPixel);
        // Of what is far enlarged no more than is seen: the rest would be too far away to count pixels to.
        const QRectF seen = toPlane.inverted().mapRect(sight).adjusted(-Rim, -Rim, Rim, Rim);
        const QRectF whole(0.0, firstPixel - overlap, m_row.width(), pixels + 2.0 * overlap);
        const QRectF source = whole & seen;
        painter.setTransform(toPlane * view.screenTransform());
        painter.drawImage(source, m_row, source);
    }
}
