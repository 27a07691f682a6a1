#pragma once

// Courses and distances on a sphere, the one that QGeoCoordinate computes on, so that a receiver which puts plots back
// with QGeoCoordinate::atDistanceAndAzimuth gets the position that was flown. Latitudes, longitudes and bearings are in
// degrees, bearings clockwise from north, distances in metres.
namespace Earth {

inline constexpr double MetresPerNauticalMile = 1852;
inline constexpr double MetresPerFoot = 0.3048;

double radians(double degrees);
// 0 (included) to 360 (excluded).
double normalized(double degrees);
// The shorter way from one bearing to another: -180 to 180, right positive.
double turnBetween(double from, double to);

double distance(double fromLatitude, double fromLongitude, double toLatitude, double toLongitude);
double bearing(double fromLatitude, double fromLongitude, double toLatitude, double toLongitude);
// Moves the position along the bearing.
void advance(double &latitude, double &longitude, double bearing, double metres);

} // namespace Earth
