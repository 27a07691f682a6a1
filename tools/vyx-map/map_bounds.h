#pragma once

#include "maps/map_data.h"

// The corners of what has a place. Maps that cross the 180th meridian reach around the world.
class MapBounds {
public:
    void add(const GeoCoordinate &point);
    // Returns the number of points that lines and areas have.
    qint64 add(const MapElementGroup &group);

    // Invalid while nothing was added.
    GeoCoordinate northwest() const;
    GeoCoordinate southeast() const;
    QString text() const;

private:
    double m_south = 90;
    double m_north = -90;
    double m_west = 180;
    double m_east = -180;
};
