#pragma once

#include "geo/wgs84.h"
#include "tiles/tile_geometry.h"

#include <QRectF>

// How tiles, which are spherical Mercator, lie in the plane, which is ellipsoidal Mercator (MercatorProjector).
// Eastings are the same in both. Northings differ by up to 42 km, smoothly: a parallel keeps its place on the ground in
// both.
struct TilePlane {
    // Metres from the equator to the northern edge of the map, and from 0 to 180 degrees east.
    static constexpr double HalfWorld = wgs84::Pi * wgs84::SemiMajorAxis;

    // Metres north of the equator.
    static double toPlaneY(double sphericalY);
    static double toSphericalY(double planeY);

    // Metres from edge to edge of a tile, in the spherical plane.
    static double span(int level);
    // Where a tile lies in the plane; columns may lie beyond the map's edges.
    static QRectF planeRect(int column, int row, int level);
    // The tiles that touch a rectangle of the plane. Empty where there are none.
    static TileRange covering(const QRectF &planeRect, int level);

    // In how many strips of equal height a tile is drawn, each stretched evenly, so that nothing lies more than half a
    // pixel from its place. Metres of the plane per device pixel.
    static int strips(int level, double metresPerPixel);
};
