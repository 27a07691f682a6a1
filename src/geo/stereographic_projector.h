#pragma once

#include "geo/projector.h"

// Oblique ellipsoidal stereographic projection on WGS-84 with scale 1 at its centre (Snyder, Map Projections, 1987,
// eq. 21-24 to 21-38).
class StereographicProjector final : public Projector {
public:
    // The centre, in degrees.
    StereographicProjector(const double &latitude, const double &longitude);

    // Both false, with nothing written, when an output pointer is null.
    using Projector::toCartesian;
    using Projector::toWgs84;
    bool toCartesian(double *x, double *y, const double &latitude, const double &longitude) override;
    // The exact centre (0, 0) gives a latitude that is not a number: the formula divides by the distance from it.
    bool toWgs84(double *latitude, double *longitude, const double &x, const double &y) override;

private:
    double m_k;
    double m_cosChi0;
    double m_sinChi0;
    double m_centreLatitude;
    double m_centreLongitude;
};
