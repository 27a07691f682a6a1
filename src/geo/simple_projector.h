#pragma once

#include "geo/projector.h"

// Plate carrée: one degree is 60 nautical miles on both axes, at every latitude.
class SimpleProjector final : public Projector {
public:
    // Both always true.
    using Projector::toCartesian;
    using Projector::toWgs84;
    bool toCartesian(double *x, double *y, const double &latitude, const double &longitude) override;
    bool toWgs84(double *latitude, double *longitude, const double &x, const double &y) override;
};
