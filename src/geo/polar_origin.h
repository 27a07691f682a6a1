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

    // Metres over ground to what is so far away in a straight line, at heights in metres above the sphere. Zero where
    // the heights alone are farther apart than that.
    static double groundDistance(double slantRange, double height, double targetHeight);

private:
    double m_longitude; // radians
    double m_sinLatitude;
    double m_cosLatitude;
};
