#pragma once

#include "geo/projector.h"

// Ellipsoidal Mercator on WGS-84 with its origin at latitude 0, longitude 0 (Snyder, Map Projections, 1987, eq. 7-7
// and 7-9). Latitudes are clamped to 89.5 degrees, so y stays within about 3.4619e7 m.
class MercatorProjector final : public Projector {
public:
    // Always true.
    using Projector::toCartesian;
    using Projector::toWgs84;
    bool toCartesian(double *x, double *y, const double &latitude, const double &longitude) override;
    // False when the result lies outside 90 degrees of latitude or 180 of longitude; it is written in any case.
    bool toWgs84(double *latitude, double *longitude, const double &x, const double &y) override;
};
