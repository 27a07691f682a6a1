#pragma once

#include "geo/projector.h"

// Spherical Mercator with its origin at latitude 0, longitude 0: the plane that the tiles of web maps are cut from
// (EPSG 3857). It takes geodetic latitudes for those of a sphere, so places lie up to 42 km from where
// MercatorProjector has them. Latitudes are clamped to 89.5 degrees.
class WebMercatorProjector final : public Projector {
public:
    // Always true.
    using Projector::toCartesian;
    using Projector::toWgs84;
    bool toCartesian(double *x, double *y, const double &latitude, const double &longitude) override;
    // False when the longitude lies outside 180 degrees; it is written in any case.
    bool toWgs84(double *latitude, double *longitude, const double &x, const double &y) override;
};
