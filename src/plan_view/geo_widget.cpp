#include "plan_view/geo_widget.h"

#include "display/geo_map_display.h"
#include "display/geo_track_display.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr double ZoomInFactor = 1.25;
constexpr double ZoomOutFactor = 0.8;
constexpr double RotationStep = 10.0; // degrees
constexpr int MoveStep = 50; // pixels
constexpr double SmallestScale = 1e-10;
// Whole beats: three on, two off.
constexpr int BlinkPeriodMs = 5 * GeoWidget::RefreshIntervalMs;
constexpr int BlinkOnMs = 3 * GeoWidget::RefreshIntervalMs;
constexpr int DragFrameMs = 25; // while the view is dragged news wait so long for the next move to bring a frame

QTransform flipped()
{
    return QTransform::fromScale(1.0, -1.0);
}

double milliseconds(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

} // namespace

GeoWidget::GeoWidget(QWidget *parent)
    : QWidget(parent), m_repaintTimer(this),
      m_rangeRingTool([this](const QPointF &planePoint) { placeRangeRings(planePoint); })
{
    qRegisterMetaType<PaintStats>();
    setMouseTracking(true);
    setFocusPolicy(Qt::WheelFocus);
    m_clock.start();
    connect(&m_repaintTimer, &QTimer::timeout, this, &GeoWidget::beat);
    m_repaintTimer.start(RefreshIntervalMs);
    m_frameTimer.setSingleShot(true);
    connect(&m_frameTimer, &QTimer::timeout, this, [this] { update(); });
}

GeoMapDisplay *GeoWidget::mapDisplay() const
{
    return m_mapDisplay;
}

GeoTrackDisplay *GeoWidget::trackDisplay() const
{
    return m_trackDisplay;
}

void GeoWidget::setMapDisplay(GeoMapDisplay *display)
{
    if (!display || display == m_mapDisplay) {
        return;
    }
    if (m_mapDisplay) {
        m_mapDisplay->disconnect(this);
        disconnect(m_mapDisplay);
    }
    m_mapDisplay = display;
    setAttribute(Qt::WA_OpaquePaintEvent); // the map fills every pixel
    connect(display, &GeoMapDisplay::polluted, this, &GeoWidget::updateMap);
    connect(this, &GeoWidget::viewRectChanged, display, &GeoMapDisplay::requestTileMap);
}

void GeoWidget::setTrackDisplay(GeoTrackDisplay *display)
{
    if (!display || display == m_trackDisplay) {
        return;
    }
    if (m_trackDisplay) {
        m_trackDisplay->disconnect(this);
    }
    m_trackDisplay = display;
    connect(display, &GeoTrackDisplay::polluted, this, &GeoWidget::updateTrack);
}

QPoint GeoWidget::centerPixel() const
{
    return QPoint(width() / 2, height() / 2);
}

QTransform GeoWidget::screenTransform() const
{
    const QPoint center = centerPixel();
    return flipped() * m_viewTransform * QTransform::fromTranslate(center.x(), center.y());
}

double GeoWidget::currentZoom() const
{
    return GeoView::metresPerPixel(screenTransform());
}

double GeoWidget::currentRotation() const
{
    const double degrees = -qRadiansToDegrees(std::atan2(m_viewTransform.m21(), m_viewTransform.m11()));
    return GeoView::normalizedRotation(degrees);
}

void GeoWidget::zoomIn()
{
    if (currentZoom() >= MinimumZoom) {
        zoomBy(ZoomInFactor, QPointF(0, 0));
    }
}

void GeoWidget::zoomOut()
{
    if (currentZoom() <= MaximumZoom) {
        zoomBy(ZoomOutFactor, QPointF(0, 0));
    }
}

void GeoWidget::zoomBy(double factor, const QPointF &anchor)
{
    const QPointF shift = anchor * (1.0 - factor);
    m_viewTransform *= QTransform(factor, 0.0, 0.0, factor, shift.x(), shift.y());
    refresh();
    Q_EMIT zoomChanged(currentZoom());
    notifyViewRectChange();
}

void GeoWidget::rotate(const double &degrees)
{
    const double angle = -qDegreesToRadians(degrees);
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    m_viewTransform *= QTransform(cosine, -sine, sine, cosine, 0.0, 0.0);
    refresh();
    notifyViewRectChange();
    Q_EMIT rotationChanged(currentRotation());
}

void GeoWidget::rotateClockWise()
{
    rotate(RotationStep);
}

void GeoWidget::rotateCounterClockWise()
{
    rotate(-RotationStep);
}

void GeoWidget::rotateNorthUp()
{
    const double scale = std::sqrt(std::abs(m_viewTransform.determinant()));
    if (scale < SmallestScale) {
        return;
    }
    const QPointF center = screenTransform().inverted().map(QPointF(centerPixel()));
    m_viewTransform = QTransform(scale, 0.0, 0.0, scale, -scale * center.x(), scale * center.y());
    refresh();
    notifyViewRectChange();
    Q_EMIT rotationChanged(currentRotation());
}

void GeoWidget::translateView(double dx, double dy)
{
    m_viewTransform *= QTransform::fromTranslate(dx, dy);
}

void GeoWidget::move(int dx, int dy)
{
    translateView(dx, dy);
    refresh();
    notifyViewRectChange();
}

void GeoWidget::moveLeft()
{
    move(MoveStep, 0);
}

void GeoWidget::moveRight()
{
    move(-MoveStep, 0);
}

void GeoWidget::moveUp()
{
    move(0, MoveStep);
}

void GeoWidget::moveDown()
{
    move(0, -MoveStep);
}

void GeoWidget::moveTo(int x, int y)
{
    const QPoint shift = centerPixel() - QPoint(x, y);
    move(shift.x(), shift.y());
}

void GeoWidget::jumpTo(const double &x, const double &y)
{
    const QPointF target = m_viewTransform.map(QPointF(x, -y));
    translateView(-target.x(), -target.y());
    refresh();
    notifyViewRectChange();
}

void GeoWidget::setView(const double &x, const double &y, const double &zoom)
{
    const double scale = 1.0 / std::clamp(zoom, MinimumZoom, MaximumZoom);
    m_viewTransform = QTransform(scale, 0.0, 0.0, scale, -scale * x, scale * y);
    refresh();
    notifyViewRectChange();
    Q_EMIT zoomChanged(currentZoom());
    Q_EMIT rotationChanged(currentRotation());
}

void GeoWidget::saveViewport(QTransform &viewTransform) const
{
    viewTransform = m_viewTransform;
}

void GeoWidget::changeViewPort(const QTransform &viewTransform)
{
    // A stored view that collapses the plane would leave nothing to come back from.
    if (!viewTransform.isInvertible()) {
        return;
    }
    m_viewTransform = viewTransform;
    update();
    Q_EMIT zoomChanged(currentZoom());
    Q_EMIT rotationChanged(currentRotation());
    notifyViewRectChange();
}

void GeoWidget::startSettingRangeRingsCenter()
{
    m_passingTool = &m_rangeRingTool;
    showIdleCursor();
}

void GeoWidget::setFollowSelectedTrack(bool follow)
{
    const bool changed = follow != m_followSelectedTrack;
    m_followSelectedTrack = follow;
    if (follow) {
        refresh();
    }
    if (changed) {
        Q_EMIT followSelectedTrackChanged(follow);
    }
}

void GeoWidget::showTrack(unsigned long long id)
{
    const TrackSnapshot *track = m_trackDisplay ? m_trackDisplay->findTrack(id) : nullptr;
    if (track && track->carCoordinateValid) {
        jumpTo(track->carCoordinate.x(), track->carCoordinate.y());
    }
}

void GeoWidget::refresh()
{
    followPicture();
    update();
}

void GeoWidget::beat()
{
    followPicture();
    updateSoon();
}

// A view that is dragged is painted with each move. What else has news comes along with it rather than in a frame of
// its own, which would hold the drag up.
void GeoWidget::updateSoon()
{
    const qint64 since = m_sincePaint.isValid() ? m_sincePaint.elapsed() : DragFrameMs;
    if (!m_panning || since >= DragFrameMs) {
        update();
    } else if (!m_frameTimer.isActive()) {
        m_frameTimer.start(DragFrameMs - static_cast<int>(since));
    }
}

void GeoWidget::followPicture()
{
    if (m_trackDisplay) {
        m_trackDisplay->setBlinkOn(m_clock.elapsed() % BlinkPeriodMs < BlinkOnMs);
    }
    dropLostTracks();
    if (m_followSelectedTrack) {
        keepSelectedTrackCentred();
    }
}

void GeoWidget::dropLostTracks()
{
    if (!m_trackDisplay) {
        return;
    }
    if (m_draggingLabel && !m_trackDisplay->hasTrack(m_draggedTrack)) {
        m_draggingLabel = false;
        m_draggedTrack = 0;
        showIdleCursor();
    }
    const unsigned long long selected = m_trackDisplay->selectedTrackId();
    if (selected != 0 && !m_trackDisplay->hasTrack(selected)) {
        m_trackDisplay->setSelected(0);
        Q_EMIT trackSelected(0);
    }
    const unsigned long long hovered = m_trackDisplay->hoveredTrackId();
    if (hovered != 0 && !m_trackDisplay->hasTrack(hovered)) {
        noteHover(0);
    }
}

void GeoWidget::keepSelectedTrackCentred()
{
    QPointF position;
    if (!m_trackDisplay || !m_trackDisplay->selectedTrackCarCoordinate(position)) {
        return;
    }
    const QPointF offset = screenTransform().map(position) - QPointF(centerPixel());
    const double dx = std::round(offset.x());
    const double dy = std::round(offset.y());
    if (dx == 0.0 && dy == 0.0) {
        return;
    }
    translateView(-dx, -dy);
    notifyViewRectChange();
}

void GeoWidget::refreshMap(bool)
{
    updateSoon();
}

void GeoWidget::refreshTrack(bool)
{
    updateSoon();
}

void GeoWidget::updateMap()
{
    updateSoon();
}

void GeoWidget::updateTrack()
{
    updateSoon();
}

void GeoWidget::notifyViewRectChange()
{
    if (width() <= 0 || height() <= 0) {
        return;
    }
    const QTransform toPlane = screenTransform().inverted();
    const QPoint topLeft = toPlane.map(QPointF(0, 0)).toPoint();
    const QPoint topRight = toPlane.map(QPointF(width(), 0)).toPoint();
    const QPoint bottomLeft = toPlane.map(QPointF(0, height())).toPoint();
    const QPoint bottomRight = toPlane.map(QPointF(width(), height())).toPoint();
    const auto [west, east] = std::minmax({topLeft.x(), topRight.x(), bottomLeft.x(), bottomRight.x()});
    const auto [south, north] = std::minmax({topLeft.y(), topRight.y(), bottomLeft.y(), bottomRight.y()});
    const QPointF top = topRight - topLeft;
    Q_EMIT viewRectChanged(QPoint(west, north), QPoint(east, south), std::hypot(top.x(), top.y()) / width());
}

void GeoWidget::paintEvent(QPaintEvent *)
{
    QElapsedTimer frameTimer;
    frameTimer.start();
    m_view.update(screenTransform(), size(), devicePixelRatioF());
    QPainter painter(this);
    painter.setWorldTransform(m_view.screenTransform());
    const QList<QRect> covered = coveredPlaces();
    if (m_mapDisplay) {
        m_mapDisplay->setCovered(covered);
        m_mapDisplay->paint(painter, m_view);
    }
    if (m_mapDisplay && m_trackDisplay) {
        m_trackDisplay->keepFree(m_mapDisplay->readOutPlaces() + covered);
    }
    const double mapMs = milliseconds(frameTimer);
    if (m_trackDisplay) {
        m_trackDisplay->paint(&painter, m_view);
    }
    painter.end();
    m_frameTimer.stop();
    m_sincePaint.start();
    const double paintMs = milliseconds(frameTimer);
    const auto stats = m_paintStats.addFrame(mapMs, paintMs - mapMs, paintMs, m_clock.elapsed());
    if (stats) {
        Q_EMIT paintStats(*stats);
    }
}

QList<QRect> GeoWidget::coveredPlaces() const
{
    QList<QRect> places;
    for (const QWidget *over : findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (over->isVisible()) {
            places.append(over->geometry());
        }
    }
    return places;
}

void GeoWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    notifyViewRectChange();
}
