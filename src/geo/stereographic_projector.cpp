#include "geo/stereographic_projector.h"

#include "geo/wgs84.h"

#include <cmath>

using namespace wgs84;

namespace {

double conformalLatitude(double phi)
{
    const double sinPhi = std::sin(phi);
    const double eSinPhi = Eccentricity * sinPhi;
    const double ratio = (1.0 + sinPhi) / (1.0 - sinPhi) * std::pow((1.0 - eSinPhi) / (1.0 + eSinPhi), Eccentricity);
    return 2.0 * std::atan(std::sqrt(ratio)) - Pi / 2.0;
}

// Seven refinements without a test for convergence: the cost is the same everywhere on the plane.
double geodeticLatitude(double chi)
{
    constexpr int Refinements = 7;
    const double tangent = std::tan(Pi / 4.0 + chi / 2.0);
    double phi = chi;
    for (int i = 0; i < Refinements; ++i) {
        const double eSinPhi = Eccentricity * std::sin(phi);
        phi = 2.0 * std::atan(tangent * std::pow((1.0 + eSinPhi) / (1.0 - eSinPhi), HalfEccentricity)) - Pi / 2.0;
    }
    return phi;
}

} // namespace

StereographicProjector::StereographicProjector(const double &latitude, const double &longitude)
    : m_centreLatitude(latitude), m_centreLongitude(longitude)
{
    const double phi = radians(latitude);
    const double sinPhi = std::sin(phi);
    const double chi = conformalLatitude(phi);
    m_k = 2.0 * SemiMajorAxis * (std::cos(phi) / std::sqrt(1.0 - EccentricitySquared * sinPhi * sinPhi));
    m_cosChi0 = std::cos(chi);
    m_sinChi0 = std::sin(chi);
}

bool StereographicProjector::toCartesian(double *x, double *y, const double &latitude, const double &longitude)
{
    if (!x || !y) {
        return false;
    }
    const double chi = conformalLatitude(radians(latitude));
    const double deltaLambda = radians(longitude - m_centreLongitude);
    const double sinChi = std::sin(chi);
    const double cosChi = std::cos(chi);
    const double cosDelta = std::cos(deltaLambda);
    const double a = m_k / (m_cosChi0 * (1.0 + m_sinChi0 * sinChi + m_cosChi0 * cosChi * cosDelta));
    *x = a * cosChi * std::sin(deltaLambda);
    *y = a * (m_cosChi0 * sinChi - m_sinChi0 * cosChi * cosDelta);
    return true;
}

bool StereographicProjector::toWgs84(double *latitude, double *longitude, const double &x, const double &y)
{
    if (!latitude || !longitude) {
        return false;
    }
    const double rho = std::sqrt(x * x + y * y);
    const double c = 2.0 * std::atan2(rho * m_cosChi0, m_k);
    const double sinC = std::sin(c);
    const double cosC = std::cos(c);
    const double chi = std::asin(m_sinChi0 * cosC + y * sinC * m_cosChi0 / rho);
    *latitude = degrees(geodeticLatitude(chi));
    *longitude = m_centreLongitude + degrees(std::atan2(x * sinC, rho * m_cosChi0 * cosC - y * m_sinChi0 * sinC));
    return true;
}
