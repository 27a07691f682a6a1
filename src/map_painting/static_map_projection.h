#pragma once

#include "geo/geo_coordinate.h"

#include <QList>
#include <QPointF>

#include <vector>

class Projector;

// Brings the coordinates of maps into the plane.
class StaticMapProjection {
public:
    // The projector must outlive this.
    explicit StaticMapProjection(Projector &projector);

    // How far east of itself the world shows again; 0 for a projection that does not repeat.
    double period() const { return m_period; }

    // False when the coordinate is invalid or has no place in the plane.
    bool project(const GeoCoordinate &coordinate, QPointF &point) const;
    // Longitudes beyond 180 degrees are allowed.
    bool project(double latitude, double longitude, QPointF &point) const;

    // The points that have a place. From one point to the next it is the shorter way around the world, so that what
    // crosses the 180th meridian goes on beyond it.
    std::vector<QPointF> line(const QList<GeoCoordinate> &points) const;
    // The same with the first point once more at the end. An edge that goes around the world encloses the pole that it
    // is nearer to.
    std::vector<QPointF> edge(const QList<GeoCoordinate> &points) const;

private:
    struct Chain;
    std::vector<QPointF> projected(const Chain &chain) const;

    Projector &m_projector;
    double m_period = 0.0;
};
