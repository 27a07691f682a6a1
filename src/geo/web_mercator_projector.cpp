#include "geo/web_mercator_projector.h"

#include "geo/wgs84.h"

#include <algorithm>
#include <cmath>

bool WebMercatorProjector::toCartesian(double *x, double *y, const double &latitude, const double &longitude)
{
    constexpr double MaximumLatitude = 89.5; // degrees
    const double phi = wgs84::radians(std::clamp(latitude, -MaximumLatitude, MaximumLatitude));
    *x = wgs84::SemiMajorAxis * wgs84::radians(longitude);
    *y = wgs84::SemiMajorAxis * std::asinh(std::tan(phi));
    return true;
}

bool WebMercatorProjector::toWgs84(double *latitude, double *longitude, const double &x, const double &y)
{
    *latitude = wgs84::degrees(std::atan(std::sinh(y / wgs84::SemiMajorAxis)));
    *longitude = wgs84::degrees(x / wgs84::SemiMajorAxis);
    return std::abs(*longitude) <= 180.0;
}
