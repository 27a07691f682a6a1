#include "map_editor/map_editor_store.h"

#include <algorithm>
#include <type_traits>
#include <utility>

namespace {

// Calls the function with the group's list of the kind.
template <typename Group, typename Function>
decltype(auto) withList(Group &group, MapElementKind kind, Function &&function)
{
    switch (kind) {
    case MapElementKind::Polyline:
        return function(group.polylines);
    case MapElementKind::Polygon:
        return function(group.polygons);
    case MapElementKind::Label:
        return function(group.labels);
    case MapElementKind::Symbol:
        return function(group.symbols);
    case MapElementKind::Image:
        break;
    }
    return function(group.images);
}

template <typename Map, typename Function>
decltype(auto) withElement(Map &map, const MapElementRef &ref, Function &&function)
{
    return withList(
        map.groups[ref.group], ref.kind, [&](auto &list) -> decltype(auto) { return function(list[ref.index]); });
}

template <typename Element>
concept HasPointList = requires(Element element)
{
    element.points;
};

template <typename Element>
concept HasPixmap = requires(Element element)
{
    element.pixmap;
};

auto &textOf(auto &element)
{
    if constexpr (requires { element.caption; }) {
        return element.caption;
    } else if constexpr (requires { element.type; }) {
        return element.type;
    } else {
        return element.file;
    }
}

// One of the points of an element that has a fixed number of them.
auto &fixedPoint(auto &element, qsizetype index)
{
    if constexpr (requires { element.coordinate; }) {
        return element.coordinate;
    } else {
        return index == 0 ? element.northwest : element.southeast;
    }
}

template <typename Element>
QList<GeoCoordinate> splice(Element &element, qsizetype at, qsizetype removeCount, const QList<GeoCoordinate> &inserted)
{
    QList<GeoCoordinate> removed;
    if constexpr (HasPointList<Element>) {
        QList<GeoCoordinate> &points = element.points;
        removed = points.mid(at, removeCount);
        const qsizetype replaced = std::min(removeCount, inserted.size());
        std::copy_n(inserted.cbegin(), replaced, points.begin() + at);
        points.remove(at + replaced, removeCount - replaced);
        if (const qsizetype added = inserted.size() - replaced; added > 0) {
            points.insert(at + replaced, added, GeoCoordinate());
            std::copy_n(inserted.cbegin() + replaced, added, points.begin() + at + replaced);
        }
    } else {
        for (qsizetype i = 0; i < removeCount; ++i) {
            removed.append(std::exchange(fixedPoint(element, at + i), inserted.at(i)));
        }
    }
    return removed;
}

} // namespace

bool hasPointList(MapElementKind kind)
{
    return kind == MapElementKind::Polyline || kind == MapElementKind::Polygon;
}

MapElementRef afterChange(MapElementRef ref, const MapEditorChange &change)
{
    const MapElementRef &place = change.ref;
    const bool sameList = ref.group == place.group && ref.kind == place.kind && ref.index >= place.index;
    switch (change.what) {
    case MapEditorChange::Everything:
        return {};
    case MapEditorChange::GroupInserted:
        ref.group += ref.group >= place.group ? 1 : 0;
        return ref;
    case MapEditorChange::GroupRemoved:
        if (ref.group == place.group) {
            return {};
        }
        ref.group -= ref.group > place.group ? 1 : 0;
        return ref;
    case MapEditorChange::ElementsInserted:
        ref.index += sameList ? change.count : 0;
        return ref;
    case MapEditorChange::ElementsRemoved:
        if (sameList && ref.index < place.index + change.count) {
            return {};
        }
        ref.index -= sameList ? change.count : 0;
        return ref;
    default:
        return ref;
    }
}

int MapEditorStore::elementCount(int group, MapElementKind kind) const
{
    return withList(m_map.groups[group], kind, [](const auto &list) { return static_cast<int>(list.size()); });
}

int MapEditorStore::elementCount(int group) const
{
    const MapElementGroup &held = m_map.groups[group];
    return static_cast<int>(
        held.polylines.size() + held.polygons.size() + held.labels.size() + held.symbols.size() + held.images.size());
}

bool MapEditorStore::contains(const MapElementRef &ref) const
{
    return ref.isValid() && ref.group < groupCount() && ref.index < elementCount(ref.group, ref.kind);
}

int MapEditorStore::rowOf(const MapElementRef &ref) const
{
    int row = ref.index;
    for (int kind = 0; kind < static_cast<int>(ref.kind); ++kind) {
        row += elementCount(ref.group, static_cast<MapElementKind>(kind));
    }
    return row;
}

MapElementRef MapEditorStore::refAt(int group, int row) const
{
    int index = row;
    for (int kind = 0; kind < MapElementKindCount; ++kind) {
        const auto elementKind = static_cast<MapElementKind>(kind);
        const int count = elementCount(group, elementKind);
        if (index < count) {
            return {group, elementKind, index};
        }
        index -= count;
    }
    return {};
}

MapElement MapEditorStore::element(const MapElementRef &ref) const
{
    return withElement(m_map, ref, [](const auto &element) { return MapElement(element); });
}

MapElementProperties MapEditorStore::properties(const MapElementRef &ref) const
{
    return withElement(m_map, ref, [](const auto &element) {
        using Element = std::remove_cvref_t<decltype(element)>;
        MapElementProperties properties{element.name, {}, {}};
        if constexpr (!HasPointList<Element>) {
            properties.text = textOf(element);
        }
        if constexpr (HasPixmap<Element>) {
            properties.pixmap = element.pixmap;
        }
        return properties;
    });
}

qsizetype MapEditorStore::pointCount(const MapElementRef &ref) const
{
    if (!hasPointList(ref.kind)) {
        return ref.kind == MapElementKind::Image ? 2 : 1;
    }
    const MapElementGroup &group = m_map.groups[ref.group];
    return ref.kind == MapElementKind::Polyline ? group.polylines[ref.index].points.size()
                                                : group.polygons[ref.index].points.size();
}

GeoCoordinate MapEditorStore::point(const MapElementRef &ref, qsizetype index) const
{
    return withElement(m_map, ref, [index](const auto &element) {
        using Element = std::remove_cvref_t<decltype(element)>;
        if constexpr (HasPointList<Element>) {
            return GeoCoordinate(element.points.at(index));
        } else {
            return GeoCoordinate(fixedPoint(element, index));
        }
    });
}

QList<GeoCoordinate> MapEditorStore::points(const MapElementRef &ref) const
{
    QList<GeoCoordinate> list;
    if (ref.kind == MapElementKind::Polyline) {
        return m_map.groups[ref.group].polylines[ref.index].points;
    }
    if (ref.kind == MapElementKind::Polygon) {
        return m_map.groups[ref.group].polygons[ref.index].points;
    }
    for (qsizetype i = 0; i < pointCount(ref); ++i) {
        list.append(point(ref, i));
    }
    return list;
}

void MapEditorStore::reset(const MapData &map)
{
    const MapEditorChange change;
    Q_EMIT aboutToChange(change);
    m_map = map;
    Q_EMIT changed(change);
}

void MapEditorStore::setMeta(const MapData &meta)
{
    MapEditorChange change;
    change.what = MapEditorChange::Meta;
    Q_EMIT aboutToChange(change);
    const QList<MapElementGroup> groups = std::move(m_map.groups);
    m_map = meta;
    m_map.groups = groups;
    Q_EMIT changed(change);
}

void MapEditorStore::insertGroup(int at, const MapElementGroup &group)
{
    MapEditorChange change;
    change.what = MapEditorChange::GroupInserted;
    change.ref.group = at;
    Q_EMIT aboutToChange(change);
    m_map.groups.insert(at, group);
    Q_EMIT changed(change);
}

MapElementGroup MapEditorStore::takeGroup(int at)
{
    MapEditorChange change;
    change.what = MapEditorChange::GroupRemoved;
    change.ref.group = at;
    Q_EMIT aboutToChange(change);
    MapElementGroup taken = m_map.groups.takeAt(at);
    Q_EMIT changed(change);
    return taken;
}

void MapEditorStore::setGroup(int at, const QString &name, const QString &className)
{
    MapEditorChange change;
    change.what = MapEditorChange::Group;
    change.ref.group = at;
    Q_EMIT aboutToChange(change);
    m_map.groups[at].name = name;
    m_map.groups[at].className = className;
    Q_EMIT changed(change);
}

void MapEditorStore::insertElements(const MapElementRef &at, const QList<MapElement> &elements)
{
    MapEditorChange change;
    change.what = MapEditorChange::ElementsInserted;
    change.ref = at;
    change.count = static_cast<int>(elements.size());
    Q_EMIT aboutToChange(change);
    withList(m_map.groups[at.group], at.kind, [&](auto &list) {
        using Element = typename std::remove_cvref_t<decltype(list)>::value_type;
        list.insert(at.index, elements.size(), Element());
        for (qsizetype i = 0; i < elements.size(); ++i) {
            list[at.index + i] = std::get<Element>(elements.at(i));
        }
    });
    Q_EMIT changed(change);
}

QList<MapElement> MapEditorStore::takeElements(const MapElementRef &first, int count)
{
    MapEditorChange change;
    change.what = MapEditorChange::ElementsRemoved;
    change.ref = first;
    change.count = count;
    Q_EMIT aboutToChange(change);
    QList<MapElement> taken;
    withList(m_map.groups[first.group], first.kind, [&](auto &list) {
        for (int i = 0; i < count; ++i) {
            taken.append(std::move(list[first.index + i]));
        }
        list.remove(first.index, count);
    });
    Q_EMIT changed(change);
    return taken;
}

void MapEditorStore::setProperties(const MapElementRef &ref, const MapElementProperties &properties)
{
    MapEditorChange change;
    change.what = MapEditorChange::Properties;
    change.ref = ref;
    Q_EMIT aboutToChange(change);
    withElement(m_map, ref, [&](auto &element) {
        using Element = std::remove_cvref_t<decltype(element)>;
        element.name = properties.name;
        if constexpr (!HasPointList<Element>) {
            textOf(element) = properties.text;
        }
        if constexpr (HasPixmap<Element>) {
            element.pixmap = properties.pixmap;
        }
    });
    Q_EMIT changed(change);
}

QList<GeoCoordinate> MapEditorStore::splicePoints(
    const MapElementRef &ref, qsizetype at, qsizetype removeCount, const QList<GeoCoordinate> &inserted)
{
    MapEditorChange change;
    change.what = MapEditorChange::Points;
    change.ref = ref;
    change.firstPoint = at;
    change.pointsRemoved = removeCount;
    change.pointsInserted = inserted.size();
    Q_EMIT aboutToChange(change);
    QList<GeoCoordinate> removed =
        withElement(m_map, ref, [&](auto &element) { return splice(element, at, removeCount, inserted); });
    Q_EMIT changed(change);
    return removed;
}
