#pragma once

#include "geo/geo_coordinate.h"

#include <QPolygonF>

class Projector;

// The points of the plane (metres) that lie at one true distance (metres over the ground) from a place, evenly by
// azimuth from north clockwise; the polygon is closed by its first point. On a Mercator plane this is no circle.
// Empty when the centre is invalid or the radius is not positive.
QPolygonF groundCircle(Projector &projector, const GeoCoordinate &center, double radiusMetres, int points = 180);
