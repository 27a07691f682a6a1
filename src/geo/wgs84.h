#pragma once

// The WGS-84 ellipsoid (NIMA TR8350.2) and the angle conversion that the projections share.
namespace wgs84 {

inline constexpr double SemiMajorAxis = 6378137.0; // metres
inline constexpr double Eccentricity = 0.0818191908426216; // first eccentricity
inline constexpr double EccentricitySquared = 0.006694379990141334;
inline constexpr double HalfEccentricity = 0.0409095954213108;

inline constexpr double Pi = 3.141592653589793;
inline constexpr double MetresPerNauticalMile = 1852.0;

constexpr double radians(double degrees)
{
    return degrees * Pi / 180.0;
}
constexpr double degrees(double radians)
{
    return radians * 180.0 / Pi;
}

} // namespace wgs84
