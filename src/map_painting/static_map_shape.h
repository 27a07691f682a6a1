#pragma once

#include "view/plane_box.h"

#include <QPointF>

#include <cstddef>
#include <vector>

// A line, or the edge of an area, in the plane at several levels of detail.
class StaticMapShape {
public:
    // Consecutive segments.
    struct Block {
        PlaneBox bounds;
        std::size_t first = 0; // index of the first point
        std::size_t last = 0; // and of the last, which is the next block's first
        double distance = 0.0; // metres along the line from its start to the first point
    };

    struct Level {
        double detail = 0.0; // metres by which the line may lie off its true place
        std::vector<QPointF> points;
        std::vector<Block> blocks;
    };

    // At least two points. The last point of an edge is the first again.
    explicit StaticMapShape(std::vector<QPointF> points);

    const PlaneBox &bounds() const { return m_bounds; }
    // The one with the fewest points that looks right at a scale.
    const Level &level(double metresPerPixel) const;

private:
    void addLevels();

    PlaneBox m_bounds;
    std::vector<Level> m_levels; // finest first
};
