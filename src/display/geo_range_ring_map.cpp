#include "display/geo_range_ring_map.h"

#include "app/config.h"
#include "display/ground_circle.h"
#include "geo/projector.h"
#include "geo/wgs84.h"
#include "view/geo_view.h"
#include "view/map_text.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int MaximumRings = 100;
constexpr double SmallestLabelledGap = 18.0; // pixels from ring to ring

} // namespace

GeoRangeRingMap::GeoRangeRingMap(Projector *projector, QObject *parent)
    : GeoLayer(QStringLiteral("Range rings"), parent), m_projector(projector)
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
    m_layoutValid = false;
    setColor(config.mapRangeRingColor);
    setVisible(config.mapRangeRingVisible);
}

void GeoRangeRingMap::setRings(const QPointF &center, int number, double distanceNauticalMiles)
{
    m_center = center;
    m_centerSet = true;
    m_number = std::clamp(number, 0, MaximumRings);
    m_distance = distanceNauticalMiles;
    m_layoutValid = false;
    Q_EMIT polluted();
}

void GeoRangeRingMap::setDefaultCenter(const QPointF &center)
{
    m_defaultCenter = center;
    m_layoutValid = false;
    Q_EMIT polluted();
}

void GeoRangeRingMap::setColor(const QColor &color)
{
    m_color = color;
    Q_EMIT polluted();
}

void GeoRangeRingMap::layOut()
{
    m_layoutValid = true;
    m_rings.clear();
    const GeoCoordinate middle = m_projector->toWgs84(center());
    if (!middle.isValid()) {
        return;
    }
    for (int i = 1; i <= m_number; ++i) {
        const double radius = i * m_distance * wgs84::MetresPerNauticalMile;
        m_rings.push_back(groundCircle(*m_projector, middle, radius));
    }
}

void GeoRangeRingMap::paint(QPainter &painter, const GeoView &view)
{
    if (!m_layoutValid) {
        layOut();
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.resetTransform();
    painter.setPen(QPen(m_color, 1));
    for (const QPolygonF &ring : m_rings) {
        if (view.planeRect().intersects(ring.boundingRect())) {
            painter.drawPolyline(view.screenTransform().map(ring));
        }
    }
    const QPointF middle = view.toScreen(center());
    painter.drawLine(middle - QPointF(4, 0), middle + QPointF(4, 0));
    painter.drawLine(middle - QPointF(0, 4), middle + QPointF(0, 4));
    paintDistances(painter, view);
}

void GeoRangeRingMap::paintDistances(QPainter &painter, const GeoView &view) const
{
    if (m_rings.empty() || m_rings.front().isEmpty()) {
        return;
    }
    const QPointF middle = view.toScreen(center());
    if (QLineF(middle, view.toScreen(m_rings.front().first())).length() < SmallestLabelledGap) {
        return;
    }
    painter.setFont(mapFont());
    for (std::size_t i = 0; i < m_rings.size(); ++i) {
        // On the ring's topmost point, whichever way north lies.
        const QPolygonF ring = view.screenTransform().map(m_rings[i]);
        const auto top = std::min_element(
            ring.begin(), ring.end(), [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
        const QString text = QStringLiteral("%1").arg((double(i) + 1.0) * m_distance, 0, 'g', 4);
        drawMapText(painter, *top, text, m_color);
    }
}
