#include "vyx-map/tile_options.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

bool TileOptions::setLevels(const QString &text, QString &error)
{
    const QStringList ends = text.split(QLatin1Char('-'));
    bool isFirst = false;
    bool isLast = false;
    minLevel = ends.first().toInt(&isFirst);
    maxLevel = ends.last().toInt(&isLast);
    if (!isFirst || !isLast || ends.size() > 2 || minLevel < 0 || maxLevel > DeepestLevel || minLevel > maxLevel) {
        error =
            QStringLiteral("--levels takes levels from 0 to %1, such as 3-9, not \"%2\"").arg(DeepestLevel).arg(text);
    }
    return error.isEmpty();
}

bool TileOptions::setArea(const QString &text, QString &error)
{
    const QStringList parts = text.split(QLatin1Char(','));
    std::array<double, 4> values = {};
    bool isGood = parts.size() == 4;
    for (int i = 0; i < 4 && isGood; ++i) {
        values[static_cast<std::size_t>(i)] = parts[i].toDouble(&isGood);
    }
    auto [south, west, north, east] = values;
    if (south > north) {
        std::swap(south, north);
    }
    if (west > east && west - east < 180.0) {
        std::swap(west, east);
    }
    northwest = GeoCoordinate(north, west);
    southeast = GeoCoordinate(south, east);
    if (!isGood || !northwest.isValid() || !southeast.isValid() || north == south || east == west) {
        error = QStringLiteral("--area takes two corners in degrees, lat,lon,lat,lon, not \"%1\"").arg(text);
    }
    return error.isEmpty();
}
