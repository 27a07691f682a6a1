#pragma once

#include "map_painting/static_map_shape.h"
#include "maps/map_data.h"
#include "view/plane_box.h"

#include <QSharedPointer>
#include <QString>

#include <atomic>
#include <vector>

class Projector;

struct StaticMapSymbol {
    QPointF place;
    QString type;
};

struct StaticMapLabel {
    QPointF place;
    QString caption;
    bool besideSymbol = false; // there is a symbol at the place
};

struct StaticMapImage {
    const MapImageElement *element = nullptr;
    PlaneBox box;
    // The picture's row that is to be seen in each row of the box, top first. Empty when the rows are as far apart
    // from each other in the plane as in the picture.
    std::vector<int> rows;
};

// A group of elements in the plane.
struct StaticMapGroup {
    QString className;
    PlaneBox bounds; // of all that is in it
    std::vector<StaticMapImage> images;
    std::vector<StaticMapShape> areas;
    std::vector<StaticMapShape> lines;
    std::vector<StaticMapSymbol> symbols;
    std::vector<StaticMapLabel> labels;
};

// A map in the plane, in metres. Never changes. Elements that cross the 180th meridian go on beyond the plane's rim.
class StaticMapGeometry {
public:
    using Pointer = QSharedPointer<const StaticMapGeometry>;

    // Null when cancelled. Any thread.
    static Pointer make(
        const QSharedPointer<const MapData> &data, Projector &projector, const std::atomic<bool> &cancelled);

    const std::vector<StaticMapGroup> &groups() const { return m_groups; }
    // How far east of itself the world shows again; 0 for a projection that does not repeat.
    double period() const { return m_period; }

private:
    QSharedPointer<const MapData> m_data; // images point into it
    std::vector<StaticMapGroup> m_groups;
    double m_period = 0.0;
};

// How many points a map's lines and areas have: how long it takes to prepare.
qsizetype shapePointCount(const MapData &map);
