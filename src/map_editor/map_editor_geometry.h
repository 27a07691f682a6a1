#pragma once

#include "map_editor/map_editor_store.h"
#include "map_painting/map_editor_layer.h"
#include "map_painting/static_map_projection.h"

#include <QObject>
#include <QPolygonF>

#include <array>
#include <vector>

// The plane coordinates of the edited map. Every point is projected once, and again only when it changes. A line that
// crosses the 180th meridian continues beyond it.
class MapEditorGeometry final : public QObject {
    Q_OBJECT

public:
    // Store and projector must outlive it.
    MapEditorGeometry(const MapEditorStore *store, Projector *projector, QObject *parent = nullptr);

    // The place nearest to the other, where the world repeats; not finite when there is none.
    QPointF project(const GeoCoordinate &coordinate, const QPointF &other = {}) const;
    // Invalid where the plane shows no place of the earth.
    GeoCoordinate unproject(const QPointF &planePoint) const;

    MapEditorLayer::Shape shape(const MapElementRef &ref) const;
    // All elements but one.
    MapEditorLayer::Backdrop backdrop(const MapElementRef &except) const;

Q_SIGNALS:
    // After a change of the store that moves, adds or removes points.
    void changed(const MapEditorChange &change);

private:
    using Group = std::array<QList<QPolygonF>, MapElementKindCount>; // by kind

    void follow(const MapEditorChange &change);
    void splice(const MapEditorChange &change);
    Group projectedGroup(int group) const;
    QPolygonF projected(const MapElementRef &ref) const;
    QList<QPolygonF> &list(const MapElementRef &ref);

    const MapEditorStore *m_store;
    Projector *m_projector;
    StaticMapProjection m_projection;
    std::vector<Group> m_groups;
};
