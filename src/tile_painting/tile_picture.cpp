#include "tile_painting/tile_picture.h"

#include "tile_painting/tile_plane.h"
#include "tile_painting/tile_sketch.h"

#include <QPainter>

#include <algorithm>
#include <tuple>
#include <utility>

namespace {

// More of the screen than this is drawn in one go.
constexpr double MostInParts = 0.6;
// Where less of the screen is left of the last view, drawing the rest takes too long for a frame.
constexpr double LeastKept = 0.8;

double areaOf(const QRect &rect)
{
    return static_cast<double>(rect.width()) * rect.height();
}

// The parts of the screen that cells take, which are given row by row: those beside each other are one part.
QList<QRect> onScreen(const std::vector<QPoint> &cells, quint8 level, const GeoView &view)
{
    QList<QRect> parts;
    QRect whole;
    double area = 0.0;
    for (auto first = cells.begin(); first != cells.end();) {
        auto last = first;
        while (last + 1 != cells.end() && *(last + 1) == *last + QPoint(1, 0)) {
            ++last;
        }
        const QRectF plane =
            TilePlane::planeRect(first->x(), first->y(), level) | TilePlane::planeRect(last->x(), last->y(), level);
        const QRect part =
            view.screenTransform().mapRect(plane).toAlignedRect().adjusted(-1, -1, 1, 1) & view.screenRect();
        if (!part.isEmpty()) {
            parts.append(part);
            whole |= part;
            area += areaOf(part);
        }
        first = last + 1;
    }
    const bool scattered = area < MostInParts * areaOf(whole);
    return scattered || parts.isEmpty() ? parts : QList{whole};
}

} // namespace

TilePicture::TilePicture(QObject *parent) : QObject(parent) { }

TilePicture::~TilePicture() = default;

void TilePicture::forget()
{
    clear();
    m_turned = false;
    m_picture.invalidate();
}

void TilePicture::clear()
{
    m_drawing.cancel();
    m_cells.clear();
    m_level = 0;
    m_bare.clear();
    m_changed.clear();
    m_drawAll = false;
}

bool TilePicture::turnTo(const GeoView &view)
{
    const bool same = m_turned && view.screenTransform() == m_view.screenTransform()
        && view.screenRect() == m_view.screenRect() && view.devicePixelRatio() == m_view.devicePixelRatio();
    m_view = view;
    m_turned = true;
    if (m_picture.share(view) < LeastKept) {
        m_picture.invalidate();
        return !same;
    }
    m_bare = m_picture.turnTo(view);
    return !m_bare.isEmpty();
}

void TilePicture::update(const TileRange &range, const Tiles &tiles, qint64 now)
{
    const std::vector<QPoint> different = m_cells.update(range, tiles.images, tiles.coarsest, tiles.deepest, now);
    m_changed.insert(m_changed.end(), different.begin(), different.end());
    m_drawAll = std::exchange(m_level, range.level) != range.level || m_drawAll;
    drawBare();
    startDrawing();
}

void TilePicture::drawBare()
{
    for (const QRect &part : std::exchange(m_bare, {})) {
        QPainter painter(&m_picture.image());
        painter.setClipRect(part);
        m_rows.paint(painter, m_view, part, m_cells, m_level, m_smooth);
    }
}

// One drawing at a time, of the newest view: while the view changes with every frame the worker is not left behind.
void TilePicture::startDrawing()
{
    if (m_drawing.running() || !m_cells.showAnything()) {
        return;
    }
    const QList<QRect> parts = takeParts();
    if (parts.isEmpty()) {
        return;
    }
    const auto draw = [view = m_view, parts, cells = m_cells.copy(), level = m_level, smooth = m_smooth](
                          const BackgroundPass::Token &) {
        return Drawn{view, parts, drawn(view, parts, *cells, level, smooth), cells};
    };
    m_drawing.start(draw, [this](const Drawn &result) { take(result); });
}

// What the worker has to draw now, logical pixels.
QList<QRect> TilePicture::takeParts()
{
    std::vector<QPoint> cells = std::exchange(m_changed, {});
    if (std::exchange(m_drawAll, false) || !m_picture.isValid()) {
        return {m_view.screenRect()};
    }
    const auto place = [](const QPoint &cell) { return std::tuple(cell.y(), cell.x()); };
    std::ranges::sort(cells, {}, place);
    cells.erase(std::unique(cells.begin(), cells.end()), cells.end());
    return onScreen(cells, m_level, m_view);
}

QImage TilePicture::drawn(
    const GeoView &view, const QList<QRect> &parts, const TileCells &cells, quint8 level, bool smooth)
{
    const double ratio = view.devicePixelRatio();
    QImage image((QSizeF(view.screenRect().size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    TileRowPainter rows;
    for (const QRect &part : parts) {
        QPainter painter(&image);
        painter.setClipRect(part);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(part, Qt::transparent);
        rows.paint(painter, view, part, cells, level, smooth);
    }
    return image;
}

// A drawing of a view that has been left is dropped: the one that shows the present view comes after it.
void TilePicture::take(const Drawn &drawn)
{
    m_cells.keepMixed(*drawn.cells);
    const bool whole = drawn.parts.contains(drawn.view.screenRect());
    const bool fits = whole ? takeWhole(drawn) : m_picture.put(drawn.image, drawn.parts, drawn.view);
    startDrawing();
    if (fits) {
        Q_EMIT changed();
    }
}

bool TilePicture::takeWhole(const Drawn &drawn)
{
    KeptPicture picture;
    picture.set(drawn.image, drawn.view);
    if (picture.share(m_view) < LeastKept) {
        return false;
    }
    m_picture.set(drawn.image, drawn.view);
    m_bare = m_picture.turnTo(m_view);
    drawBare();
    return true;
}

void TilePicture::paint(QPainter &painter) const
{
    if (m_picture.isValid()) {
        painter.drawImage(QPointF(0.0, 0.0), m_picture.image());
    } else {
        sketchTiles(painter, m_view, m_cells, m_level);
    }
}
