#include "geo/line_of_sight.h"

#include "geo/wgs84.h"

#include <cmath>

namespace {

double product(const LineOfSight::Point &a, const LineOfSight::Point &b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

} // namespace

LineOfSight::LineOfSight(double latitude, double longitude, double height) : m_site(point(latitude, longitude, height))
{
    const double sinLatitude = std::sin(wgs84::radians(latitude));
    const double cosLatitude = std::cos(wgs84::radians(latitude));
    const double sinLongitude = std::sin(wgs84::radians(longitude));
    const double cosLongitude = std::cos(wgs84::radians(longitude));
    m_east = {-sinLongitude, cosLongitude, 0.0};
    m_north = {-sinLatitude * cosLongitude, -sinLatitude * sinLongitude, cosLatitude};
    m_up = {cosLatitude * cosLongitude, cosLatitude * sinLongitude, sinLatitude};
}

LineOfSight::Sight LineOfSight::to(const Point &place) const
{
    const Point way = {place[0] - m_site[0], place[1] - m_site[1], place[2] - m_site[2]};
    const double east = product(way, m_east);
    const double north = product(way, m_north);
    const double up = product(way, m_up);
    const double azimuth = wgs84::degrees(std::atan2(east, north));
    return {std::sqrt(product(way, way)), azimuth < 0.0 ? azimuth + 360.0 : azimuth,
        wgs84::degrees(std::atan2(up, std::hypot(east, north)))};
}

// With the radius of curvature in the prime vertical.
LineOfSight::Point LineOfSight::point(double latitude, double longitude, double height)
{
    const double sinLatitude = std::sin(wgs84::radians(latitude));
    const double cosLatitude = std::cos(wgs84::radians(latitude));
    const double radius =
        wgs84::SemiMajorAxis / std::sqrt(1.0 - wgs84::EccentricitySquared * sinLatitude * sinLatitude);
    return {(radius + height) * cosLatitude * std::cos(wgs84::radians(longitude)),
        (radius + height) * cosLatitude * std::sin(wgs84::radians(longitude)),
        (radius * (1.0 - wgs84::EccentricitySquared) + height) * sinLatitude};
}
