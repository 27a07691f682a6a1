#include "orientation/geo_range_ring_map.h"

#include "app/config.h"
#include "geo/projector.h"
#include "geo/wgs84.h"
#include "orientation/ground_circle.h"
#include "view/geo_view.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int MaximumRings = 100;
constexpr double SmallestLabelledGap = 44.0; // pixels from one ring with a distance to the next

} // namespace

GeoRangeRingMap::GeoRangeRingMap(Projector *projector, QObject *parent)
    : GeoLayer(tr("Range rings"), parent), m_projector(projector)
{
    takeLook(Config());
}

void GeoRangeRingMap::applyConfig(const Config &config)
{
    const GeoCoordinate &place =
        config.sensorLocation.isValid() ? config.sensorLocation : config.displayCenterCoordinate;
    if (place.isValid()) {
        setDefaultCenter(m_projector->toCartesian(place));
    }
    takeLook(config);
}

void GeoRangeRingMap::takeLook(const Config &config)
{
    m_number = std::clamp(config.mapRangeRingNumber, 0, MaximumRings);
    m_distance = config.mapRangeRingDistance;
    forgetRings();
    m_labelColor = config.mapRangeRingLabelColor;
    m_labelsVisible = config.mapRangeRingLabelVisible;
    m_ground = config.mapBackgroundColor;
    setColor(config.mapRangeRingColor);
    setVisible(config.mapRangeRingVisible);
}

void GeoRangeRingMap::setRings(const QPointF &center, int number, double distanceNauticalMiles)
{
    m_center = center;
    m_centerSet = true;
    m_number = std::clamp(number, 0, MaximumRings);
    m_distance = distanceNauticalMiles;
    forgetRings();
    Q_EMIT polluted();
}

void GeoRangeRingMap::setDefaultCenter(const QPointF &center)
{
    m_defaultCenter = center;
    forgetRings();
    Q_EMIT polluted();
}

void GeoRangeRingMap::forgetRings()
{
    m_ringsValid = false;
    m_picture.invalidate();
}

void GeoRangeRingMap::setColor(const QColor &color)
{
    m_color = color;
    m_picture.invalidate();
    Q_EMIT polluted();
}

const std::vector<QPolygonF> &GeoRangeRingMap::rings()
{
    if (m_ringsValid) {
        return m_rings;
    }
    m_ringsValid = true;
    m_rings.clear();
    const GeoCoordinate middle = m_projector->toWgs84(center());
    if (!middle.isValid() || !(m_distance > 0.0)) {
        return m_rings;
    }
    for (int i = 1; i <= m_number; ++i) {
        const double radius = i * m_distance * wgs84::MetresPerNauticalMile;
        m_rings.push_back(groundCircle(*m_projector, middle, radius));
    }
    return m_rings;
}

QPolygonF GeoRangeRingMap::outermostRing(const GeoView &view)
{
    return rings().empty() ? QPolygonF() : view.screenTransform().map(rings().back());
}

// Every which ring has its distance; 0: none.
int GeoRangeRingMap::labelledStep(const GeoView &view)
{
    if (!m_labelsVisible || rings().empty()) {
        return 0;
    }
    const double gap = QLineF(view.toScreen(center()), view.toScreen(rings().front().first())).length();
    const double step = std::ceil(SmallestLabelledGap / gap);
    return step <= static_cast<double>(rings().size()) ? static_cast<int>(step) : 0;
}

void GeoRangeRingMap::placeTexts(const GeoView &view, TextRoom &room)
{
    m_labels.clear();
    const int step = labelledStep(view);
    if (step == 0) {
        return;
    }
    const std::size_t every = static_cast<std::size_t>(step);
    for (std::size_t i = every; i <= rings().size(); i += every) {
        const QPolygonF &ring = rings()[i - 1];
        if (!view.planeRect().intersects(ring.boundingRect())) {
            continue;
        }
        const QString text = tr("%1 NM").arg(static_cast<double>(i) * m_distance, 0, 'g', 4);
        const auto labels = placeOnRing(view.screenTransform().map(ring), text, room);
        m_labels.insert(m_labels.end(), labels.begin(), labels.end());
    }
}

void GeoRangeRingMap::paint(QPainter &painter, const GeoView &view)
{
    m_picture.turnTo(
        view, [this](QImage &picture, const GeoView &part) { drawRings(picture, part, rings(), QPen(m_color, 1)); });
    m_picture.paint(painter, placesOf(m_labels));
    painter.resetTransform();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_color, 1));
    const QPointF middle = view.toScreen(center());
    painter.drawLine(middle - QPointF(4, 0), middle + QPointF(4, 0));
    painter.drawLine(middle - QPointF(0, 4), middle + QPointF(0, 4));
    drawRingLabels(painter, m_labels, m_labelColor, m_ground);
}
