#include "tile_download/tile_plan.h"

#include <algorithm>
#include <cmath>

namespace {

bool isLatitude(double value)
{
    return std::abs(value) <= 90.0;
}

bool isLongitude(double value)
{
    return std::abs(value) <= 180.0;
}

} // namespace

bool TileArea::valid() const
{
    return isLatitude(north) && isLatitude(south) && north > south && isLongitude(west) && isLongitude(east)
        && west != east;
}

TilePlan::TilePlan(const TileArea &area, int firstLevel, int lastLevel)
{
    if (!area.valid() || firstLevel < TileIndex::MinLevel || lastLevel > TileIndex::MaxLevel) {
        return;
    }
    for (int level = firstLevel; level <= lastLevel; ++level) {
        m_levels.push_back(cover(area, static_cast<quint8>(level)));
        m_count += countOf(m_levels.back());
    }
}

// Round the whole earth no column comes twice.
TileRange TilePlan::cover(const TileArea &area, quint8 level)
{
    TileRange range = TileGeometry::tilesCovering({area.north, area.west}, {area.south, area.east}, level);
    range.right = std::min(range.right, range.left + (1 << level) - 1);
    return range;
}

qint64 TilePlan::columnsOf(const TileRange &range)
{
    return range.right - range.left + 1;
}

qint64 TilePlan::countOf(const TileRange &range)
{
    return columnsOf(range) * (range.bottom - range.top + 1);
}

TileIndex TilePlan::at(qint64 position) const
{
    for (const TileRange &range : m_levels) {
        if (position < countOf(range)) {
            const auto row = static_cast<int>(position / columnsOf(range));
            const auto column = static_cast<int>(position % columnsOf(range));
            return TileRange::wrapped(range.left + column, range.top + row, range.level);
        }
        position -= countOf(range);
    }
    return {};
}
