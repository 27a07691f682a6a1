#pragma once

#include "geo/geo_coordinate.h"

#include <QPointF>

// One past position of a track: one trail dot.
class TrackHistoryElement {
public:
    TrackHistoryElement() = default;
    // Plane position in metres of the projection that was current when it was recorded; level in feet.
    TrackHistoryElement(const GeoCoordinate &geoCoordinate, bool geoCoordinateValid, const QPointF &carCoordinate,
        bool carCoordinateValid, bool ground, int level, bool levelValid)
        : m_geoCoordinate(geoCoordinate), m_carCoordinate(carCoordinate), m_level(level),
          m_geoCoordinateValid(geoCoordinateValid), m_carCoordinateValid(carCoordinateValid), m_ground(ground),
          m_levelValid(levelValid)
    {
    }

    const GeoCoordinate &geoCoordinate() const { return m_geoCoordinate; }
    bool geoCoordinateValid() const { return m_geoCoordinateValid; }
    const QPointF &carCoordinate() const { return m_carCoordinate; }
    bool carCoordinateValid() const { return m_carCoordinateValid; }
    bool isGround() const { return m_ground; }
    int level() const { return m_level; }
    bool levelValid() const { return m_levelValid; }

private:
    GeoCoordinate m_geoCoordinate;
    QPointF m_carCoordinate;
    int m_level = 0;
    bool m_geoCoordinateValid = false;
    bool m_carCoordinateValid = false;
    bool m_ground = false;
    bool m_levelValid = false;
};
