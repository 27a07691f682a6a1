#pragma once

#include "geo/geo_coordinate.h"

struct MapData;

// The middle of what a map spans, also across the date line. Invalid when nothing of the map has a place.
GeoCoordinate mapCenter(const MapData &map);
