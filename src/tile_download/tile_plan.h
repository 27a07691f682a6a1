#pragma once

#include "tiles/tile_geometry.h"

#include <vector>

// A rectangle of latitudes and longitudes in degrees. West of 180 degrees it may end in the east: then west > east.
struct TileArea {
    double north = 0.0;
    double west = 0.0;
    double south = 0.0;
    double east = 0.0;

    // North lies over south, and all of it is on the globe.
    bool valid() const;
    bool operator==(const TileArea &) const = default;
};

// The tiles that cover an area at several levels, in a fixed order: level by level, the shallowest first, rows from
// north to south. Costs no memory for its tiles, of which there may be thousands of millions.
class TilePlan {
public:
    TilePlan() = default;
    // None where the area is invalid or the levels are (they count from 1 to 23, the first not beyond the last).
    TilePlan(const TileArea &area, int firstLevel, int lastLevel);

    qint64 count() const { return m_count; }
    // Positions from 0 to count() - 1.
    TileIndex at(qint64 position) const;

private:
    static TileRange cover(const TileArea &area, quint8 level);
    static qint64 columnsOf(const TileRange &range);
    static qint64 countOf(const TileRange &range);

    std::vector<TileRange> m_levels;
    qint64 m_count = 0;
};
