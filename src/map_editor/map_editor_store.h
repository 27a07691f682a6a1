#pragma once

#include "maps/map_data.h"

#include <QObject>

#include <variant>

// In the order in which a group's elements are listed.
enum class MapElementKind { Polyline, Polygon, Label, Symbol, Image };
inline constexpr int MapElementKindCount = 5;

// The alternatives stand in the order of MapElementKind.
using MapElement =
    std::variant<MapPolylineElement, MapPolygonElement, MapLabelElement, MapSymbolElement, MapImageElement>;

// The place of an element in its map: group, and index within the group's list of the kind.
struct MapElementRef {
    int group = -1;
    MapElementKind kind = MapElementKind::Polyline;
    int index = -1;

    bool isValid() const { return group >= 0 && index >= 0; }
    auto operator<=>(const MapElementRef &) const = default;
};

// All of an element except its points.
struct MapElementProperties {
    QString name;
    QString text; // a label's caption, a symbol's type, an image's file
    QPixmap pixmap; // of an image
};

// One change of a map. ref is where: the group, the first of the elements, or the element whose points changed.
struct MapEditorChange {
    enum What {
        Everything,
        Meta,
        GroupInserted,
        GroupRemoved,
        Group, // name or class
        ElementsInserted,
        ElementsRemoved,
        Properties,
        Points,
    };
    What what = Everything;
    MapElementRef ref;
    int count = 0; // of elements
    qsizetype firstPoint = 0;
    qsizetype pointsRemoved = 0;
    qsizetype pointsInserted = 0;
};

// Tells whether something differs from what was saved, also when undo leads back to it: every state has a number.
struct MapEditorState {
    quint64 current = 0;
    quint64 saved = 0;
    quint64 newest = 0;

    bool isModified() const { return current != saved; }
    void setSaved() { saved = current; }
};

// The map that is edited, changed in small steps that are announced before and after, so that views of large maps look
// at what changed only. Knows nothing of undo. Places that are passed in must exist. GUI thread.
class MapEditorStore final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // Whoever keeps a copy makes the next change slow: it then has to copy the lists that it changes.
    const MapData &map() const { return m_map; }
    MapEditorState &state() { return m_state; }
    const MapEditorState &state() const { return m_state; }

    int groupCount() const { return static_cast<int>(m_map.groups.size()); }
    int elementCount(int group, MapElementKind kind) const;
    int elementCount(int group) const;
    bool contains(const MapElementRef &ref) const;
    // Rows count the elements of a group through all kinds.
    int rowOf(const MapElementRef &ref) const;
    MapElementRef refAt(int group, int row) const;

    MapElement element(const MapElementRef &ref) const;
    MapElementProperties properties(const MapElementRef &ref) const;
    // A label and a symbol have one point, an image two: its corners, north-west first.
    qsizetype pointCount(const MapElementRef &ref) const;
    GeoCoordinate point(const MapElementRef &ref, qsizetype index) const;
    QList<GeoCoordinate> points(const MapElementRef &ref) const;

    void reset(const MapData &map);
    // All of the map except its groups.
    void setMeta(const MapData &meta);
    void insertGroup(int at, const MapElementGroup &group);
    MapElementGroup takeGroup(int at);
    void setGroup(int at, const QString &name, const QString &className);
    // The elements must be of the ref's kind.
    void insertElements(const MapElementRef &at, const QList<MapElement> &elements);
    QList<MapElement> takeElements(const MapElementRef &first, int count);
    void setProperties(const MapElementRef &ref, const MapElementProperties &properties);
    // Of elements other than lines and areas as many points are inserted as are removed. Returns what was removed.
    QList<GeoCoordinate> splicePoints(
        const MapElementRef &ref, qsizetype at, qsizetype removeCount, const QList<GeoCoordinate> &inserted);

Q_SIGNALS:
    void aboutToChange(const MapEditorChange &change);
    void changed(const MapEditorChange &change);

private:
    MapData m_map;
    MapEditorState m_state;
};

// The reference to the same element (or group, with an index of -1) after the change; its group is -1 when the element
// was removed.
MapElementRef afterChange(MapElementRef ref, const MapEditorChange &change);

// Whether its points are a list of any length.
bool hasPointList(MapElementKind kind);
