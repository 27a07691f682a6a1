#include "display/geo_map_display.h"
#include "display/geo_track_display.h"
#include "orientation/geo_range_ring_map.h"
#include "plan_view/geo_widget.h"
#include "plan_view/gestures.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

namespace {

constexpr double WheelFactor = 0.8;
constexpr double FineWheelFactor = 0.9;

// With Alt held some window systems turn the wheel into a horizontal one.
int wheelDelta(const QWheelEvent &event)
{
    const QPoint delta = event.angleDelta();
    const bool turned = delta.y() == 0 && event.modifiers().testFlag(Qt::AltModifier);
    return turned ? delta.x() : delta.y();
}

} // namespace

void GeoWidget::setPointerTool(GeoPointerTool *tool)
{
    m_pointerTool = tool;
    if (!m_panning && !m_draggingLabel) {
        showIdleCursor();
    }
}

bool GeoWidget::toolTakes(
    const QMouseEvent &event, bool (GeoPointerTool::*handler)(const QPointF &, const QTransform &))
{
    GeoPointerTool *tool = toolAtWork();
    return tool && (tool->*handler)(event.position(), screenTransform());
}

void GeoWidget::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        startRightDrag(event->position());
    } else if (event->button() == Qt::LeftButton && !toolTakes(*event, &GeoPointerTool::pressed)) {
        selectTrackAt(event->position().toPoint());
    }
}

void GeoWidget::startRightDrag(const QPointF &position)
{
    const QPoint pixel = position.toPoint();
    if (m_trackDisplay) {
        m_draggedTrack = m_trackDisplay->findTrackByLabelPosition(screenTransform(), pixel.x(), pixel.y());
    }
    m_draggingLabel = m_draggedTrack != 0;
    m_panning = !m_draggingLabel;
    holdView(m_panning);
    m_lastMousePosition = position;
    m_rightPress = position;
    noteHover(0);
    setCursor(Qt::ClosedHandCursor);
}

void GeoWidget::selectTrackAt(const QPoint &pixel)
{
    Q_EMIT geoPointerClickEvent(screenTransform().inverted().map(QPointF(pixel)));
    if (!m_trackDisplay) {
        return;
    }
    const auto tracks = m_trackDisplay->findTracks(screenTransform(), pixel.x(), pixel.y());
    if (tracks.isEmpty()) {
        return;
    }
    // A click on the selected track goes on to the next one there.
    const qsizetype selected = tracks.indexOf(m_trackDisplay->selectedTrackId());
    const unsigned long long first = m_trackDisplay->findTrackBySymbolPosition(screenTransform(), pixel.x(), pixel.y());
    const bool startsAnew = selected < 0 && first != 0;
    m_trackDisplay->setSelected(startsAnew ? first : tracks[(selected + 1) % tracks.size()]);
    Q_EMIT trackSelected(m_trackDisplay->selectedTrackId());
}

void GeoWidget::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF position = event->position();
    // A dialog that came up meanwhile may have swallowed the release.
    if ((m_panning || m_draggingLabel) && !event->buttons().testFlag(Qt::RightButton)) {
        endRightDrag();
    }
    if (m_panning) {
        panTo(position);
    } else if (m_draggingLabel) {
        // Offsets are whole pixels: the fractions must not be lost from one move to the next.
        dragLabel(position.toPoint() - m_lastMousePosition.toPoint());
        m_lastMousePosition = position;
    } else {
        toolTakes(*event, &GeoPointerTool::moved);
        const QPoint pixel = position.toPoint();
        if (m_trackDisplay && event->buttons() == Qt::NoButton) {
            const auto tracks = m_trackDisplay->findTracks(screenTransform(), pixel.x(), pixel.y());
            noteHover(tracks.isEmpty() ? 0 : tracks.constFirst());
        }
        const QPointF planePoint = screenTransform().inverted().map(QPointF(pixel));
        Q_EMIT cursorMoved(planePoint, pixel);
        Q_EMIT geoPointerMoveEvent(planePoint);
    }
}

void GeoWidget::panTo(const QPointF &position)
{
    const QPointF delta = position - m_lastMousePosition;
    m_lastMousePosition = position;
    if ((position - m_rightPress).manhattanLength() >= QApplication::startDragDistance()) {
        setFollowSelectedTrack(false); // the operator wants to look elsewhere
    }
    translateView(delta.x(), delta.y());
    refresh();
}

void GeoWidget::noteHover(unsigned long long id)
{
    if (m_trackDisplay && id != m_trackDisplay->hoveredTrackId()) {
        m_trackDisplay->setHovered(id);
        Q_EMIT trackHovered(id);
    }
}

void GeoWidget::leaveEvent(QEvent *event)
{
    noteHover(0);
    QWidget::leaveEvent(event);
}

void GeoWidget::dragLabel(const QPoint &delta)
{
    if (!m_trackDisplay || !m_trackDisplay->hasTrack(m_draggedTrack)) {
        return;
    }
    const QPoint offset = m_trackDisplay->trackLabelOffset(m_draggedTrack);
    m_trackDisplay->setTrackLabelOffset(m_draggedTrack, offset.x() + delta.x(), offset.y() - delta.y());
}

void GeoWidget::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        endRightDrag();
        requestMenuAt(event->position(), event->globalPosition().toPoint());
    } else if (event->button() == Qt::LeftButton) {
        toolTakes(*event, &GeoPointerTool::released);
    }
}

void GeoWidget::requestMenuAt(const QPointF &position, const QPoint &globalPosition)
{
    const bool clicked = (position - m_rightPress).manhattanLength() < QApplication::startDragDistance();
    if (!clicked || !m_trackDisplay) {
        return;
    }
    const auto tracks = m_trackDisplay->findTracks(screenTransform(), qRound(position.x()), qRound(position.y()));
    if (!tracks.isEmpty()) {
        Q_EMIT trackMenuRequested(tracks.constFirst(), globalPosition);
    } else {
        Q_EMIT placeMenuRequested(screenTransform().inverted().map(position), globalPosition);
    }
}

void GeoWidget::endRightDrag()
{
    m_panning = false;
    m_draggingLabel = false;
    m_draggedTrack = 0;
    holdView(false);
    showIdleCursor();
    notifyViewRectChange();
}

void GeoWidget::holdView(bool held)
{
    if (m_trackDisplay) {
        m_trackDisplay->setViewHeld(held);
    }
}

void GeoWidget::placeRangeRings(const QPointF &planePoint)
{
    if (m_mapDisplay) {
        GeoRangeRingMap *rings = m_mapDisplay->rangeRingMap();
        rings->setRings(planePoint, rings->number(), rings->distance());
    }
    m_passingTool = nullptr;
    showIdleCursor();
    Q_EMIT rangeRingsCenterSet(planePoint);
}

void GeoWidget::showIdleCursor()
{
    const GeoPointerTool *tool = toolAtWork();
    setCursor(tool ? tool->cursorShape() : Qt::ArrowCursor);
}

void GeoWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::RightButton) {
        // Unless a tool knows better, the second press of a quick pair of clicks is a press like any other.
        if (event->button() != Qt::LeftButton || !toolTakes(*event, &GeoPointerTool::doubleClicked)) {
            mousePressEvent(event);
        }
        return;
    }
    const QPoint pixel = event->position().toPoint();
    setFollowSelectedTrack(false);
    moveTo(pixel.x(), pixel.y());
    QCursor::setPos(mapToGlobal(centerPixel()));
}

void GeoWidget::wheelEvent(QWheelEvent *event)
{
    const int delta = wheelDelta(*event);
    const bool fine = event->modifiers().testFlag(Qt::AltModifier);
    const double factor = fine ? FineWheelFactor : WheelFactor;
    const QPointF anchor = event->position() - QPointF(centerPixel());
    if (delta > 0 && currentZoom() >= MinimumZoom) {
        zoomBy(1.0 / factor, anchor);
    } else if (delta < 0 && currentZoom() <= MaximumZoom) {
        zoomBy(factor, anchor);
    }
    event->accept();
}

void GeoWidget::keyPressEvent(QKeyEvent *event)
{
    GeoPointerTool *tool = toolAtWork();
    if (tool && tool->keyPressed(*event)) {
        return;
    }
    const double turn = Gestures::rotationOf(*event);
    if (turn != 0.0) {
        rotate(turn);
    }
    QWidget::keyPressEvent(event);
}
