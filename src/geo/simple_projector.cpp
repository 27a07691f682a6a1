#include "geo/simple_projector.h"

#include "geo/wgs84.h"

namespace {
constexpr double MinutesPerDegree = 60.0;
}

bool SimpleProjector::toCartesian(double *x, double *y, const double &latitude, const double &longitude)
{
    *x = longitude * MinutesPerDegree * wgs84::MetresPerNauticalMile;
    *y = latitude * MinutesPerDegree * wgs84::MetresPerNauticalMile;
    return true;
}

bool SimpleProjector::toWgs84(double *latitude, double *longitude, const double &x, const double &y)
{
    *latitude = y / MinutesPerDegree / wgs84::MetresPerNauticalMile;
    *longitude = x / MinutesPerDegree / wgs84::MetresPerNauticalMile;
    return true;
}
