#include "map_painting/static_map_geometry.h"

#include "geo/projector.h"
#include "map_painting/static_map_projection.h"

#include <QSet>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double Turn = 360.0; // degrees
constexpr int MostRowsPerRow = 4; // of the plane's rows per picture row

using Place = std::pair<double, double>;

Place placeOf(const GeoCoordinate &coordinate)
{
    return {coordinate.latitude(), coordinate.longitude()};
}

QSet<Place> symbolPlaces(const MapData &map)
{
    QSet<Place> places;
    for (const MapElementGroup &group : map.groups) {
        for (const MapSymbolElement &symbol : group.symbols) {
            places.insert(placeOf(symbol.coordinate));
        }
    }
    return places;
}

// North edges of the picture's rows in the plane, and below them the south edge of the last.
std::vector<double> rowEdges(const StaticMapProjection &projection, const MapImageElement &image, int rowCount)
{
    const double north = image.northwest.latitude();
    const double step = (image.southeast.latitude() - north) / rowCount;
    std::vector<double> edges;
    for (int i = 0; i <= rowCount; ++i) {
        QPointF edge;
        if (!projection.project(north + step * i, image.northwest.longitude(), edge)) {
            return {};
        }
        edges.push_back(edge.y());
    }
    return edges;
}

bool evenlySpaced(const std::vector<double> &edges)
{
    const double height = (edges.front() - edges.back()) / static_cast<double>(edges.size() - 1);
    for (std::size_t i = 0; i < edges.size(); ++i) {
        if (std::abs(edges.front() - height * static_cast<double>(i) - edges[i]) > height / 4.0) {
            return false;
        }
    }
    return true;
}

// The picture's row for each of as many rows as it takes to lose none.
std::vector<int> rowsInPlane(const std::vector<double> &edges)
{
    const int rowCount = static_cast<int>(edges.size()) - 1;
    if (rowCount < 1 || evenlySpaced(edges)) {
        return {};
    }
    double lowest = edges.front() - edges.back();
    for (std::size_t i = 1; i < edges.size(); ++i) {
        lowest = std::min(lowest, edges[i - 1] - edges[i]);
    }
    const double wanted = (edges.front() - edges.back()) / std::max(lowest, 1e-3);
    const int count = static_cast<int>(std::min(std::ceil(wanted), static_cast<double>(rowCount) * MostRowsPerRow));
    const double height = (edges.front() - edges.back()) / count;
    std::vector<int> rows;
    rows.reserve(static_cast<std::size_t>(count));
    int row = 0;
    for (int i = 0; i < count; ++i) {
        const double middle = edges.front() - height * (i + 0.5);
        while (row + 1 < rowCount && edges[static_cast<std::size_t>(row) + 1] > middle) {
            ++row;
        }
        rows.push_back(row);
    }
    return rows;
}

void addImage(
    const StaticMapProjection &projection, const MapImageElement &element, std::vector<StaticMapImage> &images)
{
    QPointF northwest;
    QPointF southeast;
    if (element.pixmap.isNull() || !projection.project(element.northwest, northwest) || !element.southeast.isValid()) {
        return;
    }
    double east = element.southeast.longitude();
    if (east < element.northwest.longitude()) {
        east += Turn;
    }
    if (!projection.project(element.southeast.latitude(), east, southeast) || southeast.y() >= northwest.y()
        || southeast.x() <= northwest.x()) {
        return;
    }
    StaticMapImage image;
    image.element = &element;
    image.box = {northwest.x(), southeast.y(), southeast.x(), northwest.y()};
    image.rows = rowsInPlane(rowEdges(projection, element, element.pixmap.height()));
    images.push_back(std::move(image));
}

PlaneBox boundsOf(const StaticMapGroup &group)
{
    PlaneBox bounds;
    for (const StaticMapImage &image : group.images) {
        bounds.include(image.box);
    }
    for (const StaticMapShape &area : group.areas) {
        bounds.include(area.bounds());
    }
    for (const StaticMapShape &line : group.lines) {
        bounds.include(line.bounds());
    }
    for (const StaticMapSymbol &symbol : group.symbols) {
        bounds.include(symbol.place);
    }
    for (const StaticMapLabel &label : group.labels) {
        bounds.include(label.place);
    }
    return bounds;
}

// Makes the groups of one map.
class Builder {
public:
    Builder(const MapData &map, Projector &projector, const std::atomic<bool> &cancelled)
        : m_projection(projector), m_symbolPlaces(symbolPlaces(map)), m_cancelled(cancelled)
    {
    }

    double period() const { return m_projection.period(); }

    StaticMapGroup make(const MapElementGroup &from) const
    {
        StaticMapGroup group;
        group.className = from.className;
        for (const MapImageElement &image : from.images) {
            addImage(m_projection, image, group.images);
        }
        addAreas(from, group);
        addLines(from, group);
        addPlaces(from, group);
        group.bounds = boundsOf(group);
        return group;
    }

private:
    void addAreas(const MapElementGroup &from, StaticMapGroup &group) const
    {
        for (const MapPolygonElement &polygon : from.polygons) {
            if (m_cancelled) {
                return;
            }
            std::vector<QPointF> edge = m_projection.edge(polygon.points);
            if (edge.size() > 2) {
                group.areas.emplace_back(std::move(edge));
            }
        }
    }

    void addLines(const MapElementGroup &from, StaticMapGroup &group) const
    {
        for (const MapPolylineElement &polyline : from.polylines) {
            if (m_cancelled) {
                return;
            }
            std::vector<QPointF> line = m_projection.line(polyline.points);
            if (line.size() > 1) {
                group.lines.emplace_back(std::move(line));
            }
        }
    }

    void addPlaces(const MapElementGroup &from, StaticMapGroup &group) const
    {
        QPointF place;
        for (const MapSymbolElement &symbol : from.symbols) {
            if (m_projection.project(symbol.coordinate, place)) {
                group.symbols.push_back({place, symbol.type});
            }
        }
        for (const MapLabelElement &label : from.labels) {
            const bool shown = !label.caption.trimmed().isEmpty() && m_projection.project(label.coordinate, place);
            if (shown) {
                group.labels.push_back({place, label.caption, m_symbolPlaces.contains(placeOf(label.coordinate))});
            }
        }
    }

    const StaticMapProjection m_projection;
    const QSet<Place> m_symbolPlaces;
    const std::atomic<bool> &m_cancelled;
};

} // namespace

StaticMapGeometry::Pointer StaticMapGeometry::make(
    const QSharedPointer<const MapData> &data, Projector &projector, const std::atomic<bool> &cancelled)
{
    const auto geometry = QSharedPointer<StaticMapGeometry>::create();
    const Builder builder(*data, projector, cancelled);
    geometry->m_data = data;
    geometry->m_period = builder.period();
    geometry->m_groups.reserve(static_cast<std::size_t>(data->groups.size()));
    for (const MapElementGroup &group : data->groups) {
        geometry->m_groups.push_back(builder.make(group));
    }
    if (cancelled) {
        return {};
    }
    return geometry;
}

qsizetype shapePointCount(const MapData &map)
{
    qsizetype count = 0;
    for (const MapElementGroup &group : map.groups) {
        for (const MapPolylineElement &line : group.polylines) {
            count += line.points.size();
        }
        for (const MapPolygonElement &polygon : group.polygons) {
            count += polygon.points.size();
        }
    }
    return count;
}
