#include "map_editor/map_editor_geometry.h"

#include "geo/projector.h"

#include <QtNumeric>

#include <cmath>

namespace {

MapEditorLayer::Join joinOf(MapElementKind kind)
{
    switch (kind) {
    case MapElementKind::Polyline:
        return MapEditorLayer::Join::Line;
    case MapElementKind::Polygon:
        return MapEditorLayer::Join::Ring;
    case MapElementKind::Image:
        return MapEditorLayer::Join::Box;
    default:
        return MapEditorLayer::Join::None;
    }
}

std::size_t at(int index)
{
    return static_cast<std::size_t>(index);
}

std::size_t at(MapElementKind kind)
{
    return static_cast<std::size_t>(kind);
}

} // namespace

MapEditorGeometry::MapEditorGeometry(const MapEditorStore *store, Projector *projector, QObject *parent)
    : QObject(parent), m_store(store), m_projector(projector), m_projection(*projector)
{
    connect(store, &MapEditorStore::changed, this, &MapEditorGeometry::follow);
    follow({});
}

QPointF MapEditorGeometry::project(const GeoCoordinate &coordinate, const QPointF &other) const
{
    QPointF point;
    if (!m_projection.project(coordinate, point)) {
        return QPointF(qQNaN(), qQNaN());
    }
    const double period = m_projection.period();
    if (period > 0.0 && std::isfinite(other.x())) {
        point.rx() += period * std::round((other.x() - point.x()) / period);
    }
    return point;
}

GeoCoordinate MapEditorGeometry::unproject(const QPointF &planePoint) const
{
    const double period = m_projection.period();
    const double x = period > 0.0 ? std::remainder(planePoint.x(), period) : planePoint.x();
    return m_projector->toWgs84(QPointF(x, planePoint.y()));
}

QPolygonF MapEditorGeometry::projected(const MapElementRef &ref) const
{
    const QList<GeoCoordinate> points = m_store->points(ref);
    QPolygonF polygon;
    polygon.reserve(points.size());
    for (const GeoCoordinate &point : points) {
        polygon.append(project(point, polygon.isEmpty() ? QPointF() : polygon.last()));
    }
    return polygon;
}

MapEditorGeometry::Group MapEditorGeometry::projectedGroup(int group) const
{
    Group projectedLists;
    const int count = m_store->elementCount(group);
    for (int row = 0; row < count; ++row) {
        const MapElementRef ref = m_store->refAt(group, row);
        projectedLists[at(ref.kind)].append(projected(ref));
    }
    return projectedLists;
}

QList<QPolygonF> &MapEditorGeometry::list(const MapElementRef &ref)
{
    return m_groups[at(ref.group)][at(ref.kind)];
}

MapEditorLayer::Shape MapEditorGeometry::shape(const MapElementRef &ref) const
{
    if (!m_store->contains(ref)) {
        return {};
    }
    return {m_groups[at(ref.group)][at(ref.kind)].at(ref.index), joinOf(ref.kind)};
}

MapEditorLayer::Backdrop MapEditorGeometry::backdrop(const MapElementRef &except) const
{
    MapEditorLayer::Backdrop backdrop;
    for (int group = 0; group < static_cast<int>(m_groups.size()); ++group) {
        for (int kind = 0; kind < MapElementKindCount; ++kind) {
            const QList<QPolygonF> &elements = m_groups[at(group)][at(kind)];
            for (int i = 0; i < elements.size(); ++i) {
                const MapElementRef ref{group, static_cast<MapElementKind>(kind), i};
                if (ref == except) {
                    continue;
                }
                if (joinOf(ref.kind) == MapEditorLayer::Join::None) {
                    backdrop.places.append(elements.at(i).first());
                } else {
                    backdrop.shapes.append({elements.at(i), joinOf(ref.kind)});
                }
            }
        }
    }
    return backdrop;
}

void MapEditorGeometry::follow(const MapEditorChange &change)
{
    const MapElementRef &ref = change.ref;
    switch (change.what) {
    case MapEditorChange::Everything:
        m_groups.clear();
        for (int i = 0; i < m_store->groupCount(); ++i) {
            m_groups.push_back(projectedGroup(i));
        }
        break;
    case MapEditorChange::GroupInserted:
        m_groups.insert(m_groups.begin() + ref.group, projectedGroup(ref.group));
        break;
    case MapEditorChange::GroupRemoved:
        m_groups.erase(m_groups.begin() + ref.group);
        break;
    case MapEditorChange::ElementsInserted:
        for (int i = 0; i < change.count; ++i) {
            list(ref).insert(ref.index + i, projected({ref.group, ref.kind, ref.index + i}));
        }
        break;
    case MapEditorChange::ElementsRemoved:
        list(ref).remove(ref.index, change.count);
        break;
    case MapEditorChange::Points:
        splice(change);
        break;
    case MapEditorChange::Meta:
    case MapEditorChange::Group:
    case MapEditorChange::Properties:
        return;
    }
    Q_EMIT changed(change);
}

void MapEditorGeometry::splice(const MapEditorChange &change)
{
    QPolygonF &points = list(change.ref)[change.ref.index];
    const qsizetype excess = change.pointsRemoved - change.pointsInserted;
    if (excess > 0) {
        points.remove(change.firstPoint, excess);
    } else if (excess < 0) {
        points.insert(change.firstPoint, -excess, QPointF());
    }
    const qsizetype end = change.firstPoint + change.pointsInserted;
    for (qsizetype i = change.firstPoint; i < end; ++i) {
        points[i] = project(m_store->point(change.ref, i), i > 0 ? points.at(i - 1) : QPointF());
    }
}
