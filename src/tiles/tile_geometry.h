#pragma once

#include "geo/geo_coordinate.h"
#include "tiles/tile_index.h"

#include <QPoint>

#include <vector>

// Tiles that lie side by side, corners included. Columns go on beyond the map's edges where a view crosses the 180th
// meridian; wrapped() takes them back.
struct TileRange {
    int left = 0;
    int top = 0;
    int right = -1;
    int bottom = -1;
    quint8 level = 0;

    qint64 count() const { return static_cast<qint64>(right - left + 1) * (bottom - top + 1); }
    static TileIndex wrapped(int column, int row, quint8 level);
    // Each tile once, nearest to the middle first.
    std::vector<TileIndex> tiles() const;
};

// Spherical Web Mercator, as the tile services cut it: 256 pixels a tile. Latitudes are clipped to 85.05112878 degrees.
struct TileGeometry {
    static constexpr int TileSize = 256; // pixels
    static constexpr double MaxLatitude = 85.05112878; // degrees
    static constexpr double Circumference = 40075016.686; // metres, of the equator

    // Width and height of the whole map in pixels.
    static qint64 mapSize(int level);
    static double clip(double value, double minimum, double maximum);
    // Degrees; to the nearest pixel of the map.
    static QPoint latLongToPixelXY(double latitude, double longitude, int level);
    static GeoCoordinate pixelXYToLatLong(int x, int y, int level);
    static QPoint pixelXYToTileXY(const QPoint &pixel);
    static QPoint tileXYToPixelXY(const QPoint &tile);
    // The coarsest level, 1 to 23, that is no coarser than the view. Metres of the plane, as at the equator.
    static int groundResolutionToLevel(double metresPerPixel);

    // The tiles that cover a rectangle. Degrees; longitudes may lie beyond 180 where it crosses that meridian.
    static TileRange tilesCovering(double north, double west, double south, double east, int level);
    // The same between two corners; the right one lies west of the left one where the rectangle crosses that meridian.
    static TileRange tilesCovering(const GeoCoordinate &topLeft, const GeoCoordinate &bottomRight, int level);
};
