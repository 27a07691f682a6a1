#include "geo/mercator_projector.h"

#include "geo/wgs84.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double MaximumLatitude = 89.5; // degrees
constexpr int MaximumRefinements = 15;
constexpr double Converged = 1e-9; // radians
} // namespace

bool MercatorProjector::toCartesian(double *x, double *y, const double &latitude, const double &longitude)
{
    using namespace wgs84;
    const double phi = radians(std::clamp(latitude, -MaximumLatitude, MaximumLatitude));
    const double eSinPhi = Eccentricity * std::sin(phi);
    const double t = std::tan((Pi / 2.0 - phi) / 2.0) / std::pow((1.0 - eSinPhi) / (1.0 + eSinPhi), HalfEccentricity);
    *x = (Pi * longitude / 180.0) * SemiMajorAxis;
    *y = -(std::log(t) * SemiMajorAxis);
    return true;
}

bool MercatorProjector::toWgs84(double *latitude, double *longitude, const double &x, const double &y)
{
    using namespace wgs84;
    const double t = std::exp(y / -SemiMajorAxis);
    double phi = Pi / 2.0 - 2.0 * std::atan(t);
    for (int i = 0; i < MaximumRefinements; ++i) {
        const double eSinPhi = Eccentricity * std::sin(phi);
        const double refined =
            Pi / 2.0 - 2.0 * std::atan(t * std::pow((1.0 - eSinPhi) / (1.0 + eSinPhi), HalfEccentricity));
        const double change = refined - phi;
        phi += change;
        if (std::abs(change) <= Converged) {
            break;
        }
    }
    *latitude = degrees(phi);
    *longitude = x * 180.0 / Pi / SemiMajorAxis;
    return std::abs(*latitude) <= 90.0 && std::abs(*longitude) <= 180.0;
}
