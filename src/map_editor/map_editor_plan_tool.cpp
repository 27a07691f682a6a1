#include "map_editor/map_editor_plan_tool.h"

#include "display/geo_map_display.h"
#include "plan_view/geo_widget.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int BackdropDelayMs = 100;

// North-west and south-east of two opposite corners; nothing without two.
QList<GeoCoordinate> cornersOf(const QList<GeoCoordinate> &points)
{
    if (points.size() != 2) {
        return {};
    }
    const auto [south, north] = std::minmax(points[0].latitude(), points[1].latitude());
    const auto [west, east] = std::minmax(points[0].longitude(), points[1].longitude());
    return {GeoCoordinate(north, west), GeoCoordinate(south, east)};
}

} // namespace

MapEditorPlanTool::MapEditorPlanTool(
    MapEditorDocument *document, GeoWidget *widget, Projector *projector, QObject *parent)
    : QObject(parent), m_document(document), m_widget(widget), m_geometry(&document->store(), projector)
{
    m_backdropTimer.setSingleShot(true);
    m_backdropTimer.setInterval(BackdropDelayMs);
    connect(&m_backdropTimer, &QTimer::timeout, this, &MapEditorPlanTool::showBackdrop);
    connect(&m_geometry, &MapEditorGeometry::changed, this, &MapEditorPlanTool::follow);
}

MapEditorPlanTool::~MapEditorPlanTool()
{
    setActive(false);
}

MapEditorLayer *MapEditorPlanTool::layer() const
{
    return m_widget && m_widget->mapDisplay() ? m_widget->mapDisplay()->mapEditorLayer() : nullptr;
}

void MapEditorPlanTool::setActive(bool active)
{
    if (active == m_active) {
        return;
    }
    if (!active) {
        cancelDrawing();
    }
    m_active = active;
    m_dragging = false;
    if (layer()) {
        layer()->setVisible(active);
    }
    if (m_widget) {
        m_widget->setPointerTool(active ? this : nullptr);
    }
    if (!active) {
        return;
    }
    showElement();
    showBackdrop();
}

void MapEditorPlanTool::setElement(const MapElementRef &ref)
{
    if (ref == m_ref) {
        return;
    }
    cancelDrawing();
    m_ref = ref;
    m_currentPoint = -1;
    m_dragging = false;
    showElement();
    m_backdropTimer.start();
}

void MapEditorPlanTool::setCurrentPoint(qsizetype index)
{
    m_currentPoint = index;
    if (layer()) {
        layer()->setCurrentPoint(index);
    }
}

void MapEditorPlanTool::setShownElsewhere(bool shown)
{
    if (shown == m_shownElsewhere) {
        return;
    }
    m_shownElsewhere = shown;
    m_backdropTimer.start();
}

void MapEditorPlanTool::follow(const MapEditorChange &change)
{
    const MapElementRef before = m_ref;
    m_ref = afterChange(m_ref, change);
    const bool ofElement = change.what == MapEditorChange::Points && change.ref == m_ref;
    if (m_ref.group < 0 || (ofElement && change.pointsInserted != change.pointsRemoved)) {
        m_dragging = false;
        cancelDrawing();
    }
    if (ofElement || m_ref != before) {
        showElement();
    }
    // A change of the chosen element does not touch the others.
    if (!ofElement) {
        m_backdropTimer.start();
    }
}

void MapEditorPlanTool::showElement()
{
    if (!layer() || !m_active) {
        return;
    }
    layer()->setShape(m_geometry.shape(m_ref));
    layer()->setCurrentPoint(m_currentPoint);
}

void MapEditorPlanTool::showBackdrop()
{
    if (layer() && m_active) {
        layer()->setBackdrop(m_shownElsewhere ? MapEditorLayer::Backdrop() : m_geometry.backdrop(m_ref));
    }
}

void MapEditorPlanTool::center(qsizetype point)
{
    const QPolygonF points = m_geometry.shape(m_ref).points;
    QRectF extent;
    for (qsizetype i = 0; i < points.size(); ++i) {
        if ((point < 0 || i == point) && std::isfinite(points.at(i).x())) {
            extent |= QRectF(points.at(i), QSizeF(1.0, 1.0));
        }
    }
    if (m_widget && !extent.isNull()) {
        m_widget->jumpTo(extent.center().x(), extent.center().y());
    }
}

void MapEditorPlanTool::startDrawing(qsizetype before)
{
    cancelDrawing();
    if (!m_active || !m_document->store().contains(m_ref)) {
        return;
    }
    m_drawing = true;
    m_drawBefore = hasPointList(m_ref.kind) ? before : 0;
    setCursor(Qt::CrossCursor);
    Q_EMIT drawingChanged(true);
}

void MapEditorPlanTool::addDraftPoint(const QPointF &planePoint)
{
    const GeoCoordinate coordinate = m_geometry.unproject(planePoint);
    if (!coordinate.isValid()) {
        return;
    }
    m_draft.append(coordinate);
    if (!hasPointList(m_ref.kind) && m_draft.size() == m_document->store().pointCount(m_ref)) {
        finishDrawing();
    } else {
        showDraft();
    }
}

// The line of new points: it begins at the existing point before them and ends at the pointer.
void MapEditorPlanTool::showDraft()
{
    QPolygonF line;
    if (m_drawing && hasPointList(m_ref.kind) && m_drawBefore > 0) {
        line.append(m_geometry.shape(m_ref).points.at(m_drawBefore - 1));
    }
    for (const GeoCoordinate &point : std::as_const(m_draft)) {
        line.append(m_geometry.project(point));
    }
    if (!line.isEmpty() && m_pointer) {
        line.append(*m_pointer);
    }
    if (layer()) {
        layer()->setDraft(line);
    }
}

void MapEditorPlanTool::finishDrawing()
{
    if (!m_drawing) {
        return;
    }
    QList<GeoCoordinate> points = m_draft;
    endDrawing();
    if (hasPointList(m_ref.kind)) {
        m_document->insertPoints(m_ref, m_drawBefore, points);
        return;
    }
    if (m_ref.kind == MapElementKind::Image) {
        points = cornersOf(points);
    }
    if (points.isEmpty()) {
        return;
    }
    QUndoStack &undo = m_document->undoStack();
    undo.beginMacro(tr("Draw"));
    for (qsizetype i = 0; i < points.size(); ++i) {
        m_document->movePoint(m_ref, i, points.at(i));
    }
    undo.endMacro();
}

void MapEditorPlanTool::cancelDrawing()
{
    if (m_drawing) {
        endDrawing();
    }
}

void MapEditorPlanTool::endDrawing()
{
    m_drawing = false;
    m_draft.clear();
    m_pointer.reset();
    showDraft();
    setCursor(Qt::ArrowCursor);
    Q_EMIT drawingChanged(false);
}

bool MapEditorPlanTool::pressed(const QPointF &pixel, const QTransform &screenTransform)
{
    const QPointF planePoint = screenTransform.inverted().map(pixel);
    if (m_drawing) {
        addDraftPoint(planePoint);
        return true;
    }
    const qsizetype handle = layer() ? layer()->handleAt(pixel, screenTransform) : -1;
    if (handle < 0) {
        return false;
    }
    setCurrentPoint(handle);
    m_dragging = true;
    ++m_drag;
    m_dragStart = m_document->store().point(m_ref, handle);
    m_grip = layer()->shape().points.at(handle) - planePoint;
    Q_EMIT pointPicked(handle);
    return true;
}

bool MapEditorPlanTool::moved(const QPointF &pixel, const QTransform &screenTransform)
{
    const QPointF planePoint = screenTransform.inverted().map(pixel);
    if (m_drawing) {
        m_pointer = planePoint;
        showDraft();
        return true;
    }
    if (m_dragging) {
        dragTo(planePoint + m_grip);
        return true;
    }
    const bool overHandle = layer() && layer()->handleAt(pixel, screenTransform) >= 0;
    setCursor(overHandle ? Qt::SizeAllCursor : Qt::ArrowCursor);
    return overHandle;
}

void MapEditorPlanTool::dragTo(const QPointF &planePoint)
{
    const GeoCoordinate coordinate = m_geometry.unproject(planePoint);
    if (coordinate.isValid()) {
        m_document->movePoint(m_ref, m_currentPoint, coordinate, m_drag);
    }
}

bool MapEditorPlanTool::released(const QPointF &, const QTransform &)
{
    const bool taken = m_dragging || m_drawing;
    m_dragging = false;
    return taken;
}

bool MapEditorPlanTool::doubleClicked(const QPointF &pixel, const QTransform &screenTransform)
{
    if (m_drawing) {
        // The first press of the pair has set the last point already.
        finishDrawing();
        return true;
    }
    if (!layer()) {
        return false;
    }
    if (layer()->handleAt(pixel, screenTransform) >= 0) {
        return pressed(pixel, screenTransform);
    }
    const qsizetype segment = layer()->segmentAt(pixel, screenTransform);
    const GeoCoordinate coordinate = m_geometry.unproject(screenTransform.inverted().map(pixel));
    if (segment < 0 || !coordinate.isValid()) {
        return false;
    }
    m_document->insertPoints(m_ref, segment + 1, {coordinate});
    setCurrentPoint(segment + 1);
    Q_EMIT pointPicked(segment + 1);
    return true;
}

void MapEditorPlanTool::cancelDrag()
{
    m_dragging = false;
    m_document->movePoint(m_ref, m_currentPoint, m_dragStart, m_drag);
}

void MapEditorPlanTool::removeCurrentPoint()
{
    if (m_document->store().contains(m_ref) && m_currentPoint >= 0
        && m_currentPoint < m_document->store().pointCount(m_ref)) {
        m_document->removePoints(m_ref, {m_currentPoint});
    }
}

bool MapEditorPlanTool::keyPressed(const QKeyEvent &event)
{
    const int key = event.key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (m_drawing && (enter || key == Qt::Key_Escape)) {
        enter ? finishDrawing() : cancelDrawing();
        return true;
    }
    if (m_dragging && key == Qt::Key_Escape) {
        cancelDrag();
        return true;
    }
    if (m_drawing || m_dragging) {
        return false;
    }
    if (event.matches(QKeySequence::Undo)) {
        m_document->undoStack().undo();
        return true;
    }
    if (event.matches(QKeySequence::Redo)) {
        m_document->undoStack().redo();
        return true;
    }
    if (key == Qt::Key_Delete && m_currentPoint >= 0) {
        removeCurrentPoint();
        return true;
    }
    return false;
}

Qt::CursorShape MapEditorPlanTool::cursorShape() const
{
    return m_cursor;
}

void MapEditorPlanTool::setCursor(Qt::CursorShape shape)
{
    if (m_cursor == shape) {
        return;
    }
    m_cursor = shape;
    if (m_widget && m_active) {
        m_widget->setPointerTool(this); // makes the widget ask for the cursor again
    }
}
