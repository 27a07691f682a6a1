#pragma once

#include <array>

// Where a place is seen from a site on the ellipsoid of WGS-84, along the straight line between the two: what a radar
// measures, refraction left out.
class LineOfSight {
public:
    using Point = std::array<double, 3>; // earth-centred, earth-fixed; metres

    struct Sight {
        double range = 0.0; // slant, metres
        double azimuth = 0.0; // degrees clockwise from true north, 0 to 360
        double elevation = 0.0; // degrees above the site's horizontal plane
    };

    // Degrees; metres above the ellipsoid.
    LineOfSight(double latitude, double longitude, double height);

    Sight to(const Point &place) const;

    static Point point(double latitude, double longitude, double height);

private:
    Point m_site;
    // East, north and up at the site.
    Point m_east;
    Point m_north;
    Point m_up;
};
