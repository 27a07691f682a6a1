#pragma once

#include "geo/geo_coordinate.h"

#include <QPointF>

// WGS-84 to the display plane and back. Plane units are metres, x east, y north. Projectors never change after
// construction, so one instance serves all threads without a lock.
class Projector {
public:
    virtual ~Projector() = default;

    // Latitude and longitude in degrees.
    virtual bool toCartesian(double *x, double *y, const double &latitude, const double &longitude) = 0;
    virtual bool toWgs84(double *latitude, double *longitude, const double &x, const double &y) = 0;

    // The same by value. Longitudes may lie beyond 180 degrees where a shape goes on across that meridian.
    QPointF toCartesian(double latitude, double longitude)
    {
        QPointF point;
        toCartesian(&point.rx(), &point.ry(), latitude, longitude);
        return point;
    }
    QPointF toCartesian(const QGeoCoordinate &place) { return toCartesian(place.latitude(), place.longitude()); }
    // Invalid where the plane point lies off the globe.
    GeoCoordinate toWgs84(const QPointF &planePoint)
    {
        double latitude = 0.0;
        double longitude = 0.0;
        return toWgs84(&latitude, &longitude, planePoint.x(), planePoint.y()) ? GeoCoordinate(latitude, longitude)
                                                                              : GeoCoordinate();
    }
};
