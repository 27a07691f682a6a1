#pragma once

class QGeoCoordinate;

// Places at a distance and a bearing from one that stays, on the sphere on which QGeoCoordinate measures: the same as
// its atDistanceAndAzimuth(), with what depends on the origin alone worked out once and nothing allocated.
class PolarOrigin {
public:
    // Degrees; not numbers where the origin is invalid.
    struct Place {
        double latitude;
        double longitude;
    };

    explicit PolarOrigin(const QGeoCoordinate &origin);

    // Metres over ground and degrees clockwise from north.
    Place at(double distance, double bearing) const;

private:
    double m_longitude; // radians
    double m_sinLatitude;
    double m_cosLatitude;
};
