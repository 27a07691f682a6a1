// The view: what the operator does to the picture, where it begins, and its read-outs.

#include "app/ui_state.h"
#include "display/geo_map_display.h"
#include "display/geo_range_ring_map.h"
#include "display/geo_track_display.h"
#include "display/geo_video_map.h"
#include "display/geo_weather_map.h"
#include "plan_view/geo_widget.h"
#include "sensors/sensor_manager.h"
#include "ui/actions.h"
#include "ui/main_window.h"
#include "ui/status_read_outs.h"
#include "ui/view_state.h"

#include <QAction>
#include <QDockWidget>
#include <QGuiApplication>
#include <QScreen>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr double metresPerNauticalMile = 1852.0;
constexpr double firstViewReach = 90.0; // nautical miles; labels crowd each other in a first view of more
constexpr auto viewKey = "view";

// How far the configured sensor sees, nautical miles.
double coverage(const Config &config)
{
    switch (config.sensorType) {
    case RadarSensor:
        return std::max(config.sensorRadarIsPrimary ? config.sensorRadarCoveragePrimary : 0,
            config.sensorRadarIsSecondary || config.sensorRadarIsModeS ? config.sensorRadarCoverageSecondary : 0);
    case AdsbSensor:
        return config.sensorAdsbCoverage;
    case MlatSensor:
        return config.sensorMlatCoverage;
    case SdpsSensor:
        return config.sensorSdpsCoverage;
    case SmrSensor:
        return config.sensorSmrCoverage;
    case UnknownSensor:
        break;
    }
    return 100.0;
}

} // namespace

void MainWindow::connectViewActions()
{
    const auto on = [this](
                        ActionId id, auto slot) { connect((*m_actions)[id], &QAction::triggered, m_geoWidget, slot); };
    on(ActionId::ZoomIn, &GeoWidget::zoomIn);
    on(ActionId::ZoomOut, &GeoWidget::zoomOut);
    on(ActionId::RotateRight, &GeoWidget::rotateClockWise);
    on(ActionId::RotateLeft, &GeoWidget::rotateCounterClockWise);
    on(ActionId::RotateNorthUp, &GeoWidget::rotateNorthUp);
    on(ActionId::MoveLeft, &GeoWidget::moveLeft);
    on(ActionId::MoveUp, &GeoWidget::moveUp);
    on(ActionId::MoveDown, &GeoWidget::moveDown);
    on(ActionId::MoveRight, &GeoWidget::moveRight);
    connect((*m_actions)[ActionId::FullScreen], &QAction::triggered, this, &MainWindow::setFullScreen);
}

void MainWindow::connectTrackActions()
{
    QAction *label = (*m_actions)[ActionId::ToggleTrackLabel];
    connect(label, &QAction::toggled, m_trackDisplay.get(), &GeoTrackDisplay::showLabel);
    // The format window switches labels too.
    connect(m_trackDisplay.get(), &GeoTrackDisplay::polluted, label,
        [this, label] { label->setChecked(m_trackDisplay->labelVisible()); });
    label->setChecked(m_trackDisplay->labelVisible());
    connect((*m_actions)[ActionId::FollowSelectedTrack], &QAction::toggled, m_geoWidget,
        &GeoWidget::setFollowSelectedTrack);

    const auto toggleDock = [this](ActionId id, QDockWidget *dock) {
        QAction *action = (*m_actions)[id];
        connect(action, &QAction::triggered, dock, &QWidget::setVisible);
        // A dock behind another's tab is there all the same.
        connect(dock->toggleViewAction(), &QAction::toggled, action, &QAction::setChecked);
        action->setChecked(dock->toggleViewAction()->isChecked());
    };
    toggleDock(ActionId::ToggleTrackList, m_trackDock);
    toggleDock(ActionId::ToggleAlertList, m_alertDock);
}

void MainWindow::connectMapActions()
{
    connect((*m_actions)[ActionId::ToggleSensorMap], &QAction::triggered, this,
        [this](bool on) { editConfig([on](Config &config) { config.mapSensorVisible = on; }); });
    connect((*m_actions)[ActionId::ToggleRangeRings], &QAction::triggered, this,
        [this](bool on) { editConfig([on](Config &config) { config.mapRangeRingVisible = on; }); });
    connect((*m_actions)[ActionId::SetRangeRingsCenter], &QAction::triggered, m_geoWidget,
        &GeoWidget::startSettingRangeRingsCenter);
}

void MainWindow::connectRadarPicture()
{
    connect((*m_actions)[ActionId::ToggleWeatherMap], &QAction::triggered, this,
        [this](bool on) { editConfig([on](Config &config) { config.mapWeatherVisible = on; }); });
    connect((*m_actions)[ActionId::ToggleVideoMap], &QAction::triggered, this,
        [this](bool on) { editConfig([on](Config &config) { config.mapVideoVisible = on; }); });
    connect(m_mapDisplay->videoMap(), &GeoVideoMap::siteUnknown, this, [this](unsigned char sac, unsigned char sic) {
        showLog(LogLevel::Warning,
            tr("Radar video of SAC %1, SIC %2 is not shown: no sensor has this identification.").arg(sac).arg(sic));
    });
}

void MainWindow::beginRadarPicture()
{
    QList<QSharedPointer<SensorInfo>> sensors;
    for (const QString &name : m_sensors->sensorNames()) {
        sensors.append(m_sensors->findSensor(name));
    }
    m_mapDisplay->videoMap()->setKnownSensors(sensors);
    m_mapDisplay->weatherMap()->clear();
}

void MainWindow::procWeatherPicture(const WeatherProcessor::Picture &picture)
{
    m_mapDisplay->weatherMap()->setPicture(picture);
}

void MainWindow::procVideoRadial(const VideoProcessor::Radial &radial)
{
    m_mapDisplay->videoMap()->addRadial(radial);
}

void MainWindow::toggleFullScreen()
{
    setFullScreen(!isFullScreen());
}

void MainWindow::setFullScreen(bool on)
{
    // The other states stay, so that a maximized window comes back maximized.
    setWindowState(on ? windowState() | Qt::WindowFullScreen : windowState() & ~Qt::WindowFullScreen);
}

void MainWindow::resizeMainWindow(const QSize &size)
{
    setWindowState(windowState() & ~(Qt::WindowFullScreen | Qt::WindowMaximized));
    // Without a screen there is nothing to fit into.
    const bool onScreen = QGuiApplication::platformName() != "offscreen";
    const QSize frame = frameGeometry().size() - geometry().size();
    resize(onScreen ? size.boundedTo(screen()->availableSize() - frame) : size);
}

void MainWindow::showCursorPosition(const QPointF &planePoint, const QPoint &)
{
    m_readOuts->showCursorPosition(planePoint);
}

void MainWindow::showCurrentZoom(double metresPerPixel)
{
    m_readOuts->showZoom(metresPerPixel);
}

void MainWindow::showCurrentRotation(double degrees)
{
    m_readOuts->showRotation(degrees);
}

QPointF MainWindow::planePoint(const GeoCoordinate &coordinate) const
{
    double x = 0.0;
    double y = 0.0;
    m_host.shared().projector.toCartesian(&x, &y, coordinate.latitude(), coordinate.longitude());
    return {x, y};
}

GeoCoordinate MainWindow::coordinate(const QPointF &planePoint) const
{
    double latitude = 0.0;
    double longitude = 0.0;
    return m_host.shared().projector.toWgs84(&latitude, &longitude, planePoint.x(), planePoint.y())
        ? GeoCoordinate(latitude, longitude)
        : GeoCoordinate();
}

GeoCoordinate MainWindow::viewCenter() const
{
    const QPointF middle = QRectF(m_geoWidget->rect()).center();
    return coordinate(m_geoWidget->screenTransform().inverted().map(middle));
}

GeoCoordinate MainWindow::homeCoordinate() const
{
    return m_sensor && m_sensor->location().isValid() ? m_sensor->location() : m_config.live().displayCenterCoordinate;
}

void MainWindow::showInitialView()
{
    const GeoCoordinate center = homeCoordinate();
    if (!center.isValid()) {
        return;
    }
    // The coverage, with a margin for labels. A metre over the ground is longer in the plane towards the poles.
    const double reach = std::min(coverage(m_config.live()), firstViewReach) * metresPerNauticalMile
        / std::cos(qDegreesToRadians(center.latitude()));
    const QPointF middle = planePoint(center);
    m_geoWidget->setView(middle.x(), middle.y(), 2.1 * reach / std::min(m_geoWidget->width(), m_geoWidget->height()));
}

bool MainWindow::restoreView()
{
    ViewState view;
    if (!view.fromBytes(UiState::value(objectName(), viewKey)) || view.sensor != m_config.live().sensorName) {
        return false;
    }
    const QPointF middle = planePoint(view.center);
    m_geoWidget->setView(middle.x(), middle.y(), view.metresPerPixel);
    m_geoWidget->rotate(view.rotation);
    if (view.ringCenter.isValid()) {
        const GeoRangeRingMap *rings = m_mapDisplay->rangeRingMap();
        m_ringCenterPlaced = true;
        m_mapDisplay->rangeRingMap()->setRings(planePoint(view.ringCenter), rings->number(), rings->distance());
    }
    return true;
}

void MainWindow::saveView() const
{
    ViewState view;
    view.sensor = m_config.live().sensorName;
    view.center = viewCenter();
    view.metresPerPixel = m_geoWidget->currentZoom();
    view.rotation = m_geoWidget->currentRotation();
    if (m_ringCenterPlaced) {
        view.ringCenter = coordinate(m_mapDisplay->rangeRingMap()->center());
    }
    UiState::saveValue(objectName(), viewKey, view.toBytes());
}

void MainWindow::placeRangeRings(const QPointF &)
{
    m_ringCenterPlaced = true;
    showRangeRings();
}

void MainWindow::showRangeRings()
{
    if (!m_config.live().mapRangeRingVisible) {
        editConfig([](Config &config) { config.mapRangeRingVisible = true; });
    }
}
