#pragma once

#include "map_painting/static_map_geometry.h"
#include "view/plane_box.h"

#include <QColor>
#include <QPointF>
#include <QTransform>

#include <cmath>
#include <utility>

class StaticMapLabelLayout;

// One map that is to be seen.
struct ShownMap {
    StaticMapGeometry::Pointer geometry;
    int priority = 0;
};

// What the painters of elements need to know: one look at one copy of the world (copies follow each other to the east
// and to the west).
struct StaticMapFrame {
    QTransform toScreen; // from plane metres of the copy to logical pixels
    PlaneBox sight; // what is to be painted of the copy's plane
    double metresPerPixel = 1.0;
    double devicePixelRatio = 1.0;
    int copy = 0; // worlds to the east of the plane's own
    int symbolSize = 32; // pixels
    QColor ground; // under the maps
    bool smoothImages = false;
    bool crowded = false; // so many lines that they are drawn in the quickest way
    const StaticMapLabelLayout *labels = nullptr;

    // Where the plane's origin lies on the screen: what is drawn relative to it moves along with the map.
    QPointF origin() const { return toScreen.map(QPointF(0.0, 0.0)); }
};

// The whole pixel that upright things are drawn at: the same one in every view that differs by whole pixels.
inline QPointF wholePixel(const QPointF &point)
{
    constexpr double RoundingNoise = 1e-4; // of plane coordinates, in pixels
    return QPointF(std::floor(point.x() + 0.5 + RoundingNoise), std::floor(point.y() + 0.5 + RoundingNoise));
}

// The first and the last copy of the world that may be seen; elements may reach half a world beyond its rim.
inline std::pair<int, int> copiesInSight(const PlaneBox &sight, double period)
{
    if (period <= 0.0) {
        return {0, 0};
    }
    return {
        static_cast<int>(std::floor(sight.west / period)) - 1, static_cast<int>(std::ceil(sight.east / period)) + 1};
}
