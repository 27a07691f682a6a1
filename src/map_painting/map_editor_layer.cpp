#include "map_painting/map_editor_layer.h"

#include "view/geo_view.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double Reach = 7.0; // pixels
constexpr double HandleSize = 7.0;
constexpr double MarkDistance = 5.0; // marks nearer to the one before are left out
constexpr qsizetype ManyMarks = 2000; // more would take long, and cover the map
constexpr qsizetype ManyPoints = 10000; // in the view: such lines are drawn thin
constexpr double Margin = 20.0; // pixels round the view in which lines go on
constexpr QColor ShapeColor(0xff, 0x4f, 0xd8);
constexpr QColor HaloColor(0, 0, 0, 110);
constexpr QColor BackdropColor(0xc8, 0x6a, 0xb6, 150);

bool hasPlace(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

bool isSeen(const QPointF &pixel, const GeoView &view)
{
    return hasPlace(pixel) && QRectF(view.screenRect()).adjusted(-Reach, -Reach, Reach, Reach).contains(pixel);
}

// Narrows [from, to] of a line that starts at a distance from an edge and nears it by so much over its whole length.
bool narrow(double distance, double approach, double &from, double &to)
{
    if (approach == 0.0) {
        return distance >= 0.0;
    }
    const double crossing = -distance / approach;
    if (approach > 0.0) {
        from = std::max(from, crossing);
    } else {
        to = std::min(to, crossing);
    }
    return from <= to;
}

bool clip(QLineF &line, const QRectF &rect)
{
    double from = 0.0;
    double to = 1.0;
    const bool inside = narrow(line.x1() - rect.left(), line.dx(), from, to)
        && narrow(rect.right() - line.x1(), -line.dx(), from, to) && narrow(line.y1() - rect.top(), line.dy(), from, to)
        && narrow(rect.bottom() - line.y1(), -line.dy(), from, to);
    if (inside) {
        line = QLineF(line.pointAt(from), line.pointAt(to));
    }
    return inside;
}

// Collects what of a line of points is seen: cut at the view's edges, without the points that fall on the same pixel.
class RunMaker {
public:
    RunMaker(const QRectF &rect, QList<QPolygonF> &runs) : m_rect(rect), m_runs(runs) { }

    void add(const QPointF &point)
    {
        if (!hasPlace(point)) {
            finish();
            return;
        }
        if (m_started && std::abs(point.x() - m_last.x()) < 1.0 && std::abs(point.y() - m_last.y()) < 1.0) {
            m_skipped = point;
            m_hasSkipped = true;
            return;
        }
        if (m_started) {
            addLine(QLineF(m_last, point));
        }
        m_last = point;
        m_started = true;
        m_hasSkipped = false;
    }

    void finish()
    {
        if (m_started && m_hasSkipped) {
            addLine(QLineF(m_last, m_skipped));
        }
        m_started = false;
        m_hasSkipped = false;
        m_open = false;
    }

private:
    void addLine(QLineF line)
    {
        const QPointF end = line.p2();
        if (!clip(line, m_rect)) {
            m_open = false;
            return;
        }
        if (!m_open) {
            m_runs.append(QPolygonF({line.p1()}));
        }
        m_runs.last().append(line.p2());
        m_open = line.p2() == end;
    }

    QRectF m_rect;
    QList<QPolygonF> &m_runs;
    QPointF m_last;
    QPointF m_skipped;
    bool m_started = false;
    bool m_hasSkipped = false;
    bool m_open = false; // the next line goes on where the last run ends
};

QPolygonF boxOutline(const QPolygonF &corners)
{
    if (corners.size() < 2) {
        return {};
    }
    const QPointF first = corners.at(0);
    const QPointF second = corners.at(1);
    return {first, QPointF(second.x(), first.y()), second, QPointF(first.x(), second.y())};
}

void addRuns(const MapEditorLayer::Shape &shape, const GeoView &view, QList<QPolygonF> &runs)
{
    using Join = MapEditorLayer::Join;
    if (shape.join == Join::None || shape.points.isEmpty()) {
        return;
    }
    const QPolygonF points = shape.join == Join::Box ? boxOutline(shape.points) : shape.points;
    RunMaker maker(QRectF(view.screenRect()).adjusted(-Margin, -Margin, Margin, Margin), runs);
    for (const QPointF &point : points) {
        maker.add(view.toScreen(point));
    }
    if (shape.join != Join::Line && !points.isEmpty()) {
        maker.add(view.toScreen(points.first()));
    }
    maker.finish();
}

// Where the points are seen, without those close to the one before.
QPolygonF seenPixels(const QPolygonF &points, const GeoView &view)
{
    QPolygonF pixels;
    for (const QPointF &point : points) {
        const QPointF pixel = view.toScreen(point);
        if (isSeen(pixel, view) && (pixels.isEmpty() || (pixel - pixels.last()).manhattanLength() >= MarkDistance)) {
            pixels.append(pixel);
        }
    }
    return pixels;
}

void drawLines(QPainter &painter, const QList<QPolygonF> &runs)
{
    qsizetype count = 0;
    for (const QPolygonF &run : runs) {
        count += run.size();
    }
    const bool many = count > ManyPoints;
    painter.setRenderHint(QPainter::Antialiasing, !many);
    const QList<QPen> pens = many ? QList{QPen(ShapeColor, 1)} : QList{QPen(HaloColor, 4), QPen(ShapeColor, 2)};
    for (const QPen &pen : pens) {
        painter.setPen(pen);
        for (const QPolygonF &run : runs) {
            painter.drawPolyline(run);
        }
    }
}

double distanceToSegment(const QPointF &pixel, const QLineF &segment)
{
    const QPointF along = segment.p2() - segment.p1();
    const double squared = QPointF::dotProduct(along, along);
    const double part = squared > 0.0 ? QPointF::dotProduct(pixel - segment.p1(), along) / squared : 0.0;
    return QLineF(pixel, segment.pointAt(std::clamp(part, 0.0, 1.0))).length();
}

} // namespace

MapEditorLayer::MapEditorLayer(QObject *parent) : GeoLayer(tr("Map editor"), parent)
{
    setVisible(false);
}

void MapEditorLayer::setShape(const Shape &shape)
{
    m_shape = shape;
    m_shapeLines = {};
    Q_EMIT polluted();
}

void MapEditorLayer::setCurrentPoint(qsizetype index)
{
    if (m_currentPoint == index) {
        return;
    }
    m_currentPoint = index;
    Q_EMIT polluted();
}

void MapEditorLayer::setDraft(const QPolygonF &points)
{
    m_draft = points;
    Q_EMIT polluted();
}

void MapEditorLayer::setBackdrop(const Backdrop &backdrop)
{
    m_backdrop = backdrop;
    m_backdropLines = {};
    Q_EMIT polluted();
}

qsizetype MapEditorLayer::handleAt(const QPointF &pixel, const QTransform &screenTransform) const
{
    // In the plane: the pointer moves more often than all points could be brought to the screen.
    const QPointF place = screenTransform.inverted().map(pixel);
    const double reach = Reach * GeoView::metresPerPixel(screenTransform);
    qsizetype nearest = -1;
    double least = reach * reach;
    for (qsizetype i = 0; i < m_shape.points.size(); ++i) {
        const QPointF away = m_shape.points.at(i) - place;
        const double squared = QPointF::dotProduct(away, away);
        // Not a number for a point without a place, and so never less. Of points in one place the current one moves.
        if (squared < least || (squared <= least && i == m_currentPoint)) {
            least = squared;
            nearest = i;
        }
    }
    return nearest;
}

qsizetype MapEditorLayer::segmentAt(const QPointF &pixel, const QTransform &screenTransform) const
{
    const qsizetype count = m_shape.points.size();
    if (count < 2 || (m_shape.join != Join::Line && m_shape.join != Join::Ring)) {
        return -1;
    }
    const qsizetype segments = m_shape.join == Join::Ring ? count : count - 1;
    qsizetype nearest = -1;
    double least = Reach;
    QPointF start = screenTransform.map(m_shape.points.first());
    for (qsizetype i = 0; i < segments; ++i) {
        const QPointF end = screenTransform.map(m_shape.points.at((i + 1) % count));
        const double distance = distanceToSegment(pixel, QLineF(start, end));
        if (distance < least) {
            least = distance;
            nearest = i;
        }
        start = end;
    }
    return nearest;
}

void MapEditorLayer::updateLines(Lines &lines, const QList<Shape> &shapes, const GeoView &view) const
{
    const QSize size = view.screenRect().size();
    if (lines.size == size && lines.transform == view.screenTransform()) {
        return;
    }
    lines = {view.screenTransform(), size, {}};
    for (const Shape &shape : shapes) {
        addRuns(shape, view, lines.runs);
    }
}

void MapEditorLayer::paint(QPainter &painter, const GeoView &view)
{
    painter.resetTransform();
    paintBackdrop(painter, view);
    painter.setRenderHint(QPainter::Antialiasing);
    updateLines(m_shapeLines, {m_shape}, view);
    QList<QPolygonF> draft;
    addRuns({m_draft, Join::Line}, view, draft);
    drawLines(painter, m_shapeLines.runs);
    drawLines(painter, draft);
    paintHandles(painter, view);
}

void MapEditorLayer::paintBackdrop(QPainter &painter, const GeoView &view)
{
    updateLines(m_backdropLines, m_backdrop.shapes, view);
    painter.setPen(QPen(BackdropColor, 1));
    for (const QPolygonF &run : std::as_const(m_backdropLines.runs)) {
        painter.drawPolyline(run);
    }
    const QPolygonF places = seenPixels(m_backdrop.places, view);
    if (places.size() > ManyMarks) {
        painter.drawPoints(places);
        return;
    }
    for (const QPointF &pixel : places) {
        painter.drawEllipse(pixel, 3.0, 3.0);
    }
}

void MapEditorLayer::paintHandles(QPainter &painter, const GeoView &view) const
{
    const auto drawHandle = [&painter](const QPointF &pixel, double size) {
        painter.drawRect(QRectF(pixel - QPointF(size, size) / 2.0, QSizeF(size, size)));
    };
    painter.setPen(QPen(ShapeColor.darker(180), 1));
    painter.setBrush(Qt::white);
    const QPolygonF handles = seenPixels(m_shape.points, view) + seenPixels(m_draft, view);
    if (handles.size() <= ManyMarks) {
        for (const QPointF &pixel : handles) {
            drawHandle(pixel, HandleSize);
        }
    }
    if (m_currentPoint < 0 || m_currentPoint >= m_shape.points.size()) {
        return;
    }
    const QPointF current = view.toScreen(m_shape.points.at(m_currentPoint));
    painter.setPen(QPen(Qt::white, 2));
    painter.setBrush(ShapeColor);
    if (isSeen(current, view)) {
        drawHandle(current, HandleSize + 3.0);
    }
}
