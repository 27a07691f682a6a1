#pragma once

// WGS-84 to the display plane and back. Plane units are metres, x east, y north. Projectors never change after
// construction, so one instance serves all threads without a lock.
class Projector {
public:
    virtual ~Projector() = default;

    // Latitude and longitude in degrees.
    virtual bool toCartesian(double *x, double *y, const double &latitude, const double &longitude) = 0;
    virtual bool toWgs84(double *latitude, double *longitude, const double &x, const double &y) = 0;
};
