#include "orientation/geo_sensor_map.h"

#include "app/config.h"
#include "geo/projector.h"
#include "geo/wgs84.h"
#include "orientation/ground_circle.h"
#include "sensors/sensor_info.h"
#include "view/geo_view.h"
#include "view/map_text.h"
#include "view/steady_clock.h"
#include "view/text_room.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double SiteDotRadius = 2.5; // pixels
constexpr double SiteRingRadius = 6.5;
constexpr double NameDistance = 17.0; // pixels below the site
constexpr double RimWithoutCoverage = 60.0; // nautical miles
constexpr double ShortMarker = 16.0; // pixels
constexpr double SmallestNamedRing = 40.0; // pixels, radius

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

// How far along the line the rectangle is left for good, 0 to 1; 0 where the line does not touch it.
double lastPartWithin(const QLineF &line, const QRectF &rect)
{
    double enters = 0.0;
    double leaves = 1.0;
    const auto clip = [&](double start, double delta, double least, double most) {
        if (delta == 0.0) {
            leaves = start < least || start > most ? 0.0 : leaves;
            return;
        }
        const auto [first, last] = std::minmax({(least - start) / delta, (most - start) / delta});
        enters = std::max(enters, first);
        leaves = std::min(leaves, last);
    };
    clip(line.x1(), line.dx(), rect.left(), rect.right());
    clip(line.y1(), line.dy(), rect.top(), rect.bottom());
    return enters < leaves ? leaves : 0.0;
}

} // namespace

GeoSensorMap::GeoSensorMap(Projector *projector, QObject *parent)
    : GeoLayer(tr("Sensor"), parent), m_projector(projector), m_clock(steadyClock())
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
    m_coveragePicture.invalidate();
    m_northMarkerColor = config.mapSensorRadarNorthMarkerColor;
    m_antennaLineColor = config.mapSensorRadarAntennaLineColor;
    m_ground = config.mapBackgroundColor;
    m_nameVisible = config.mapSensorNameVisible;
    m_northMarkerShort = config.mapSensorRadarNorthMarkerShort;
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
    m_coveragePicture.invalidate();
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

void GeoSensorMap::placeTexts(const GeoView &view, TextRoom &room)
{
    m_texts.clear();
    if (!m_location.isValid() || !m_nameVisible) {
        return;
    }
    const QPointF site = view.toScreen(m_site);
    const QPointF below = site + QPointF(0, NameDistance);
    if (!m_sensorName.isEmpty() && room.takeIfFree(mapTextRect(below, m_sensorName))) {
        m_texts.push_back({below, m_sensorName});
    }
    for (std::size_t i = 0; m_coverageVisible && i < m_coverageRings.size(); ++i) {
        const QPolygonF ring = view.screenTransform().map(m_coverageRings[i]);
        if (QLineF(site, ring.first()).length() < SmallestNamedRing) {
            continue;
        }
        const QString range = tr("%1 %2 NM").arg(m_sensorName).arg(m_coverages[i], 0, 'g', 4).trimmed();
        const auto labels = placeOnRing(ring, range, room, 1);
        m_texts.insert(m_texts.end(), labels.begin(), labels.end());
    }
}

void GeoSensorMap::paint(QPainter &painter, const GeoView &view)
{
    if (!m_location.isValid()) {
        return;
    }
    if (m_coverageVisible) {
        paintCoverage(painter, view);
    }
    painter.resetTransform();
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_turning && m_antennaLineVisible) {
        paintAntennaLine(painter, view);
    }
    if (m_turning && m_northMarkerVisible) {
        paintNorthMarker(painter, view);
    }
    paintSite(painter, view);
    drawRingLabels(painter, m_texts, m_color, m_ground);
}

void GeoSensorMap::paintCoverage(QPainter &painter, const GeoView &view)
{
    m_coveragePicture.turnTo(view,
        [this](QImage &picture, const GeoView &part) { drawRings(picture, part, m_coverageRings, QPen(m_color, 1)); });
    m_coveragePicture.paint(painter, placesOf(m_texts));
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
    painter.drawLine(northMark(view));
}

// From the site to the rim, or just its end there: at the rim of the view where that comes first.
QLineF GeoSensorMap::northMark(const GeoView &view) const
{
    const QLineF line(view.toScreen(m_site), view.toScreen(m_rim.first()));
    if (!m_northMarkerShort) {
        return line;
    }
    const double end = lastPartWithin(line, view.screenRect());
    const double length = std::min(ShortMarker / std::max(line.length(), ShortMarker), end);
    return QLineF(line.pointAt(end - length), line.pointAt(end));
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
}
