#include "orientation/ground_circle.h"

#include "geo/projector.h"

QPolygonF groundCircle(Projector &projector, const GeoCoordinate &center, double radiusMetres, int points)
{
    QPolygonF circle;
    if (!center.isValid() || !(radiusMetres > 0.0)) {
        return circle;
    }
    circle.reserve(points + 1);
    for (int i = 0; i < points; ++i) {
        const QGeoCoordinate place = center.atDistanceAndAzimuth(radiusMetres, i * 360.0 / points);
        // Across the 180th meridian the longitude starts again on the other side; the circle goes on where it was.
        double longitude = place.longitude();
        if (longitude - center.longitude() > 180.0) {
            longitude -= 360.0;
        } else if (longitude - center.longitude() < -180.0) {
            longitude += 360.0;
        }
        circle.append(projector.toCartesian(place.latitude(), longitude));
    }
    circle.append(circle.first());
    return circle;
}
