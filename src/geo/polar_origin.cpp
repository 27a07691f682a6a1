#include "geo/polar_origin.h"

#include "geo/wgs84.h"

#include <QGeoCoordinate>

#include <algorithm>
#include <cmath>

namespace {
constexpr double EarthRadius = 6371007.2; // metres, mean
} // namespace

// An invalid coordinate holds numbers that are none, and so does all that is made of them.
PolarOrigin::PolarOrigin(const QGeoCoordinate &origin)
    : m_longitude(wgs84::radians(origin.longitude())), m_sinLatitude(std::sin(wgs84::radians(origin.latitude()))),
      m_cosLatitude(std::cos(wgs84::radians(origin.latitude())))
{
}

PolarOrigin::Place PolarOrigin::at(double distance, double bearing) const
{
    const double arc = distance / EarthRadius;
    const double azimuth = wgs84::radians(bearing);
    const double sinLatitude = m_sinLatitude * std::cos(arc) + m_cosLatitude * std::sin(arc) * std::cos(azimuth);
    const double turned =
        std::atan2(std::sin(azimuth) * std::sin(arc) * m_cosLatitude, std::cos(arc) - m_sinLatitude * sinLatitude);
    // Brought back between -180 and 180.
    const double longitude = std::remainder(wgs84::degrees(m_longitude + turned), 360.0);
    return {wgs84::degrees(std::asin(std::clamp(sinLatitude, -1.0, 1.0))), longitude};
}

// By the law of cosines in the triangle with the middle of the Earth, in a form that keeps small angles.
double PolarOrigin::groundDistance(double slantRange, double height, double targetHeight)
{
    const double climb = targetHeight - height;
    const double level = slantRange * slantRange - climb * climb;
    const double chord = level > 0.0 ? std::sqrt(level / ((EarthRadius + height) * (EarthRadius + targetHeight))) : 0.0;
    return 2.0 * EarthRadius * std::asin(std::min(chord / 2.0, 1.0));
}
