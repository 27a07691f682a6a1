#include "vyx-map/map_bounds.h"

#include <algorithm>

void MapBounds::add(const GeoCoordinate &point)
{
    if (!point.isValid()) {
        return;
    }
    m_south = std::min(m_south, point.latitude());
    m_north = std::max(m_north, point.latitude());
    m_west = std::min(m_west, point.longitude());
    m_east = std::max(m_east, point.longitude());
}

qint64 MapBounds::add(const MapElementGroup &group)
{
    qint64 points = 0;
    const auto addAll = [this, &points](const auto &elements) {
        for (const auto &element : elements) {
            for (const GeoCoordinate &point : element.points) {
                add(point);
            }
            points += element.points.size();
        }
    };
    addAll(group.polylines);
    addAll(group.polygons);
    for (const MapSymbolElement &symbol : group.symbols) {
        add(symbol.coordinate);
    }
    for (const MapLabelElement &label : group.labels) {
        add(label.coordinate);
    }
    for (const MapImageElement &image : group.images) {
        add(image.northwest);
        add(image.southeast);
    }
    return points;
}

GeoCoordinate MapBounds::northwest() const
{
    return m_south > m_north ? GeoCoordinate() : GeoCoordinate(m_north, m_west);
}

GeoCoordinate MapBounds::southeast() const
{
    return m_south > m_north ? GeoCoordinate() : GeoCoordinate(m_south, m_east);
}

QString MapBounds::text() const
{
    if (m_south > m_north) {
        return QStringLiteral("none");
    }
    return QStringLiteral("%1 to %2")
        .arg(GeoCoordinate(m_south, m_west).toATCString(), GeoCoordinate(m_north, m_east).toATCString());
}
