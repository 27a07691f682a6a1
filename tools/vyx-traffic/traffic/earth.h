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

struct Plane {
    double east = 0; // metres
    double north = 0;
};
// Where a position lies from an origin: at its distance and bearing from there.
Plane plane(double originLatitude, double originLongitude, double latitude, double longitude);

// How far away a target at an altitude in feet is seen from an antenna at an altitude in metres, in nautical miles, for
// an Earth with four thirds of its radius.
double radioHorizon(double targetAltitude, double antennaAltitude);

} // namespace Earth
