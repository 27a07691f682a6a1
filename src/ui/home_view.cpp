#include "ui/home_view.h"

#include "app/config.h"
#include "app/ui_state.h"
#include "display/geo_map_display.h"
#include "geo/projector.h"
#include "geo/wgs84.h"
#include "orientation/geo_range_ring_map.h"
#include "plan_view/geo_widget.h"
#include "ui/view_state.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr double FirstViewReach = 90.0; // nautical miles; labels crowd each other in a first view of more
constexpr double LabelMargin = 1.05;
constexpr auto ViewKey = "view";

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

HomeView::HomeView(GeoWidget *plan, Projector *projector, const Config *config)
    : m_plan(plan), m_projector(projector), m_config(config)
{
}

GeoRangeRingMap *HomeView::rings() const
{
    return m_plan->mapDisplay()->rangeRingMap();
}

GeoCoordinate HomeView::place() const
{
    const bool sensor = m_config->sensorType != UnknownSensor && m_config->sensorLocation.isValid();
    return sensor ? m_config->sensorLocation : m_config->displayCenterCoordinate;
}

QPointF HomeView::planePoint(const GeoCoordinate &coordinate) const
{
    return m_projector->toCartesian(coordinate);
}

GeoCoordinate HomeView::coordinate(const QPointF &planePoint) const
{
    return m_projector->toWgs84(planePoint);
}

GeoCoordinate HomeView::viewCenter() const
{
    return coordinate(m_plan->screenTransform().inverted().map(QRectF(m_plan->rect()).center()));
}

GeoCoordinate HomeView::ringCenter() const
{
    return coordinate(rings()->center());
}

void HomeView::showSensor()
{
    const GeoCoordinate center = place();
    if (!center.isValid()) {
        return;
    }
    // A metre over the ground is longer in the plane towards the poles.
    const double reach = std::min(coverage(*m_config), FirstViewReach) * wgs84::MetresPerNauticalMile * LabelMargin
        / std::cos(qDegreesToRadians(center.latitude()));
    const QPointF middle = planePoint(center);
    m_plan->setView(middle.x(), middle.y(), 2.0 * reach / std::min(m_plan->width(), m_plan->height()));
}

void HomeView::jumpTo(const GeoCoordinate &center)
{
    const QPointF point = planePoint(center);
    m_plan->jumpTo(point.x(), point.y());
}

void HomeView::placeRings(const GeoCoordinate &center, int number, double distance)
{
    m_ringsPlaced = true;
    rings()->setRings(planePoint(center), number, distance);
}

bool HomeView::restore(const QString &group)
{
    ViewState view;
    if (!view.fromBytes(UiState::value(group, ViewKey)) || view.sensor != m_config->sensorName) {
        return false;
    }
    const QPointF middle = planePoint(view.center);
    m_plan->setView(middle.x(), middle.y(), view.metresPerPixel);
    m_plan->rotate(view.rotation);
    if (view.ringCenter.isValid()) {
        placeRings(view.ringCenter, rings()->number(), rings()->distance());
    }
    return true;
}

void HomeView::save(const QString &group) const
{
    ViewState view;
    view.sensor = m_config->sensorName;
    view.center = viewCenter();
    view.metresPerPixel = m_plan->currentZoom();
    view.rotation = m_plan->currentRotation();
    if (m_ringsPlaced) {
        view.ringCenter = ringCenter();
    }
    UiState::saveValue(group, ViewKey, view.toBytes());
}
