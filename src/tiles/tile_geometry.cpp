#include "tiles/tile_geometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

using std::numbers::pi;

TileIndex TileRange::wrapped(int column, int row, quint8 level)
{
    const int columns = 1 << level;
    return {(column % columns + columns) % columns, row, level};
}

std::vector<TileIndex> TileRange::tiles() const
{
    struct Place {
        int column;
        int row;
        qint64 distance;
    };
    std::vector<Place> places;
    for (int row = top; row <= bottom; ++row) {
        for (int column = left; column <= std::min(right, left + (1 << level) - 1); ++column) {
            const qint64 dx = 2LL * column - left - right;
            const qint64 dy = 2LL * row - top - bottom;
            places.push_back({column, row, dx * dx + dy * dy});
        }
    }
    std::ranges::stable_sort(places, {}, &Place::distance);
    std::vector<TileIndex> found;
    found.reserve(places.size());
    for (const Place &place : places) {
        found.push_back(wrapped(place.column, place.row, level));
    }
    return found;
}

qint64 TileGeometry::mapSize(int level)
{
    return static_cast<qint64>(TileSize) << level;
}

double TileGeometry::clip(double value, double minimum, double maximum)
{
    return std::clamp(value, minimum, maximum);
}

QPoint TileGeometry::latLongToPixelXY(double latitude, double longitude, int level)
{
    const double sinPhi = std::sin(clip(latitude, -MaxLatitude, MaxLatitude) * pi / 180.0);
    const double x = (clip(longitude, -180.0, 180.0) + 180.0) / 360.0;
    const double y = 0.5 - std::log((1.0 + sinPhi) / (1.0 - sinPhi)) / (4.0 * pi);
    const auto size = static_cast<double>(mapSize(level));
    return {static_cast<int>(clip(x * size + 0.5, 0.0, size - 1.0)),
        static_cast<int>(clip(y * size + 0.5, 0.0, size - 1.0))};
}

GeoCoordinate TileGeometry::pixelXYToLatLong(int x, int y, int level)
{
    const auto size = static_cast<double>(mapSize(level));
    const double east = clip(x, 0.0, size - 1.0) / size - 0.5;
    const double north = 0.5 - clip(y, 0.0, size - 1.0) / size;
    return {90.0 - 360.0 * std::atan(std::exp(-north * 2.0 * pi)) / pi, 360.0 * east};
}

QPoint TileGeometry::pixelXYToTileXY(const QPoint &pixel)
{
    return {pixel.x() / TileSize, pixel.y() / TileSize};
}

QPoint TileGeometry::tileXYToPixelXY(const QPoint &tile)
{
    return {tile.x() * TileSize, tile.y() * TileSize};
}

int TileGeometry::groundResolutionToLevel(double metresPerPixel)
{
    const double level = std::ceil(std::log2(Circumference / (metresPerPixel * TileSize)));
    if (std::isnan(level)) {
        return TileIndex::MinLevel;
    }
    return static_cast<int>(clip(level, TileIndex::MinLevel, TileIndex::MaxLevel));
}

TileRange TileGeometry::tilesCovering(double north, double west, double south, double east, int level)
{
    const int top = pixelXYToTileXY(latLongToPixelXY(north, 0.0, level)).y();
    const int bottom = pixelXYToTileXY(latLongToPixelXY(south, 0.0, level)).y();
    const int columns = 1 << level;
    if (!(east - west < 360.0)) {
        return {0, top, columns - 1, bottom, static_cast<quint8>(level)};
    }
    const double turns = std::floor((west + 180.0) / 360.0) * 360.0;
    const bool crosses = east - turns > 180.0;
    const auto column = [level](
                            double longitude) { return pixelXYToTileXY(latLongToPixelXY(0.0, longitude, level)).x(); };
    const int left = column(west - turns);
    const int right = column(east - turns - (crosses ? 360.0 : 0.0)) + (crosses ? columns : 0);
    return {left, top, right, bottom, static_cast<quint8>(level)};
}

TileRange TileGeometry::tilesCovering(const GeoCoordinate &topLeft, const GeoCoordinate &bottomRight, int level)
{
    const double west = topLeft.longitude();
    const double east = bottomRight.longitude();
    return tilesCovering(topLeft.latitude(), west, bottomRight.latitude(), east < west ? east + 360.0 : east, level);
}
