#include "tile_painting/tile_plane.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double LargestError = 0.5; // pixels

// How far a place lies further south in the ellipsoidal plane: a * e * artanh(e * sin(latitude)), where the sine of the
// latitude is tanh(y / a) of the spherical northing y (Snyder, Map Projections, 1987, eq. 5-8 and 7-7).
double southOfSphere(double sphericalY)
{
    using namespace wgs84;
    return SemiMajorAxis * Eccentricity * std::atanh(Eccentricity * std::tanh(sphericalY / SemiMajorAxis));
}

} // namespace

double TilePlane::toPlaneY(double sphericalY)
{
    return sphericalY - southOfSphere(sphericalY);
}

// Each step leaves less than e squared, a hundred and fiftieth, of the error: from 42 km to a micrometre.
double TilePlane::toSphericalY(double planeY)
{
    constexpr int Steps = 5;
    double y = planeY;
    for (int i = 0; i < Steps; ++i) {
        y = planeY + southOfSphere(y);
    }
    return y;
}

double TilePlane::span(int level)
{
    return 2.0 * HalfWorld / std::ldexp(1.0, level);
}

QRectF TilePlane::planeRect(int column, int row, int level)
{
    const double size = span(level);
    const double north = toPlaneY(HalfWorld - row * size);
    const double south = toPlaneY(HalfWorld - (row + 1) * size);
    return QRectF(column * size - HalfWorld, south, size, north - south);
}

TileRange TilePlane::covering(const QRectF &planeRect, int level)
{
    const double size = span(level);
    const auto column = [size](double x) { return static_cast<int>(std::floor((x + HalfWorld) / size)); };
    const auto row = [size](double y) { return static_cast<int>(std::floor((HalfWorld - toSphericalY(y)) / size)); };
    TileRange range;
    range.level = static_cast<quint8>(level);
    range.left = column(planeRect.left());
    range.right = column(planeRect.right());
    range.top = std::max(row(planeRect.bottom()), 0);
    range.bottom = std::min(row(planeRect.top()), (1 << level) - 1);
    return range;
}

// Both edges of a strip of height h are where they belong. In between the straight line misses the curve by at most
// h * h / 8 times its second derivative, which is nowhere more than 0.77 * e * e / a (the largest that that of tanh
// gets, 4 / sqrt(27), times e squared over a: 8.1e-10 per metre). For tiles in their own resolution that is 0.52 pixels
// at level 1 with one strip and half of it with every level: two strips there and one everywhere else. Tiles that are
// enlarged, as those of a service's last level, need more: their number goes with the root of the enlargement.
int TilePlane::strips(int level, double metresPerPixel)
{
    const double curvature = 0.77 * wgs84::EccentricitySquared / wgs84::SemiMajorAxis;
    const double tallest = std::sqrt(8.0 * LargestError * metresPerPixel / curvature);
    return std::max(1, static_cast<int>(std::ceil(span(level) / tallest)));
}
