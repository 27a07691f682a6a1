#include "traffic/earth.h"

#include "geo/geo_coordinate.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Earth {

double radians(double degrees)
{
    return degrees * std::numbers::pi / 180;
}

double normalized(double degrees)
{
    const double rest = std::fmod(degrees, 360.0);
    const double positive = rest < 0 ? rest + 360 : rest;
    return positive >= 360 ? 0 : positive;
}

double turnBetween(double from, double to)
{
    const double right = normalized(to - from);
    return right > 180 ? right - 360 : right;
}

double distance(double fromLatitude, double fromLongitude, double toLatitude, double toLongitude)
{
    return GeoCoordinate(fromLatitude, fromLongitude).distanceTo(GeoCoordinate(toLatitude, toLongitude));
}

double bearing(double fromLatitude, double fromLongitude, double toLatitude, double toLongitude)
{
    return GeoCoordinate(fromLatitude, fromLongitude).azimuthTo(GeoCoordinate(toLatitude, toLongitude));
}

void advance(double &latitude, double &longitude, double bearing, double metres)
{
    const QGeoCoordinate moved = GeoCoordinate(latitude, longitude).atDistanceAndAzimuth(metres, bearing);
    latitude = moved.latitude();
    longitude = moved.longitude();
}

Plane plane(double originLatitude, double originLongitude, double latitude, double longitude)
{
    const double metres = distance(originLatitude, originLongitude, latitude, longitude);
    const double angle = radians(bearing(originLatitude, originLongitude, latitude, longitude));
    return {metres * std::sin(angle), metres * std::cos(angle)};
}

double radioHorizon(double targetAltitude, double antennaAltitude)
{
    constexpr double MilesOfRootFoot = 1.23;
    return MilesOfRootFoot
        * (std::sqrt(std::max(targetAltitude, 0.0)) + std::sqrt(std::max(antennaAltitude / MetresPerFoot, 0.0)));
}

} // namespace Earth
