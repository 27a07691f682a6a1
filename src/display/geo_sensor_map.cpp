#include "display/geo_sensor_map.h"

#include "app/config.h"
#include "display/ground_circle.h"
#include "geo/projector.h"
#include "geo/wgs84.h"
#include "sensors/sensor_info.h"
#include "view/geo_view.h"
#include "view/map_text.h"
#include "view/steady_clock.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double SiteDotRadius = 2.5; // pixels
constexpr double SiteRingRadius = 6.5;
constexpr double NameDistance = 17.0; // pixels below the site
constexpr double RimWithoutCoverage = 60.0; // nautical miles

// Nautical miles, largest first, without zeros and repetitions.
std::vector<double> ringsOf(const SensorInfo &sensor)
{
    const QList<double> entered = sensor.coverages();
    std::vector<double> radii(entered.begin(), entered.end());
    std::erase_if(radii, [](double radius) { return !(radius > 0.0); });
    std::sort(radii.begin(), radii.end(), std::greater<>());
    radii.erase(std::unique(radii.begin(), radii.end()), radii.end());
    return radii;
}

} // namespace

GeoSensorMap::GeoSensorMap(Projector *projector, QObject *parent)
    : GeoLayer(QStringLiteral("Sensor"), parent), m_projector(projector), m_clock(steadyClock())
{
    GeoSensorMap::applyConfig(Config());
}

void GeoSensorMap::setClock(std::function<qint64()> clock)
{
    m_clock = std::move(clock);
}

void GeoSensorMap::applyConfig(const Config &config)
{
    m_color = config.mapSensorColor;
    m_northMarkerColor = config.mapSensorRadarNorthMarkerColor;
    m_antennaLineColor = config.mapSensorRadarAntennaLineColor;
    showCoverage(config.mapSensorCoverageVisible);
    showNorthMarker(config.mapSensorRadarNorthMarkerVisible);
    showAntennaLine(config.mapSensorRadarAntennaLineVisible);
    setVisible(config.mapSensorVisible);
}

void GeoSensorMap::setSensor(const QSharedPointer<SensorInfo> &sensor)
{
    m_location = sensor ? sensor->location() : GeoCoordinate();
    m_sensorName = sensor ? sensor->name() : QString();
    m_coverages = sensor ? ringsOf(*sensor) : std::vector<double>();
    m_turning = sensor && sensor->turns();
    m_sweep.reset();
    m_sweep.setNominalPeriod(m_turning ? sensor->reportPeriod() : 0.0);
    layOut();
    Q_EMIT polluted();
}

void GeoSensorMap::layOut()
{
    m_coverageRings.clear();
    m_rim.clear();
    if (!m_location.isValid()) {
        return;
    }
    m_site = m_projector->toCartesian(m_location);
    for (double radius : m_coverages) {
        m_coverageRings.push_back(groundCircle(*m_projector, m_location, radius * wgs84::MetresPerNauticalMile));
    }
    const double rim = m_coverages.empty() ? RimWithoutCoverage : m_coverages.front();
    m_rim = groundCircle(*m_projector, m_location, rim * wgs84::MetresPerNauticalMile, 360);
}

bool GeoSensorMap::sitePosition(QPointF &planePoint) const
{
    if (!m_location.isValid()) {
        return false;
    }
    planePoint = m_site;
    return true;
}

void GeoSensorMap::showCoverage(bool visible)
{
    m_coverageVisible = visible;
    Q_EMIT polluted();
}

void GeoSensorMap::showNorthMarker(bool visible)
{
    m_northMarkerVisible = visible;
    Q_EMIT polluted();
}

void GeoSensorMap::showAntennaLine(bool visible)
{
    m_antennaLineVisible = visible;
    Q_EMIT polluted();
}

void GeoSensorMap::antennaRotated(double azimuthDegrees)
{
    m_sweep.sectorCrossed(azimuthDegrees, m_clock());
}

void GeoSensorMap::antennaNorthCrossed()
{
    m_sweep.northCrossed(m_clock());
}

void GeoSensorMap::paint(QPainter &painter, const GeoView &view)
{
    if (!m_location.isValid()) {
        return;
    }
    painter.resetTransform();
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_coverageVisible) {
        paintCoverage(painter, view);
    }
    if (m_turning && m_antennaLineVisible) {
        paintAntennaLine(painter, view);
    }
    if (m_turning && m_northMarkerVisible) {
        paintNorthMarker(painter, view);
    }
    paintSite(painter, view);
}

void GeoSensorMap::paintCoverage(QPainter &painter, const GeoView &view) const
{
    painter.setPen(QPen(m_color, 1));
    for (const QPolygonF &ring : m_coverageRings) {
        if (view.planeRect().intersects(ring.boundingRect())) {
            painter.drawPolyline(view.screenTransform().map(ring));
        }
    }
}

void GeoSensorMap::paintAntennaLine(QPainter &painter, const GeoView &view) const
{
    const std::optional<double> azimuth = m_sweep.azimuth(m_clock());
    if (!azimuth) {
        return;
    }
    const int before = int(*azimuth) % 360;
    const double part = *azimuth - std::floor(*azimuth);
    const QPointF end = m_rim[before] * (1.0 - part) + m_rim[before + 1] * part;
    painter.setPen(QPen(m_antennaLineColor, 2));
    painter.drawLine(view.toScreen(m_site), view.toScreen(end));
}

void GeoSensorMap::paintNorthMarker(QPainter &painter, const GeoView &view) const
{
    if (!m_sweep.northFlash(m_clock())) {
        return;
    }
    painter.setPen(QPen(m_northMarkerColor, 2));
    painter.drawLine(view.toScreen(m_site), view.toScreen(m_rim.first()));
}

void GeoSensorMap::paintSite(QPainter &painter, const GeoView &view) const
{
    const QPointF site = view.toScreen(m_site);
    if (!QRectF(view.screenRect()).adjusted(-200, -40, 200, 40).contains(site)) {
        return;
    }
    painter.setPen(QPen(m_color, 2));
    painter.drawEllipse(site, SiteRingRadius, SiteRingRadius);
    painter.setBrush(m_color);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(site, SiteDotRadius, SiteDotRadius);
    painter.setFont(mapFont());
    if (!m_sensorName.isEmpty()) {
        drawMapText(painter, site + QPointF(0, NameDistance), m_sensorName, m_color);
    }
}
