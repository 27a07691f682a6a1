#pragma once

#include "geo/geo_coordinate.h"
#include "processors/weather_processor.h"

#include <QPointF>

#include <array>
#include <vector>

class Projector;

// A piece of a weather vector: between two ranges and two azimuths.
struct WeatherShape {
    int level = 0;
    qsizetype vector = 0; // of the picture, that it is a piece of
    std::array<QPointF, 4> corners; // plane metres, one after the other around the piece
};

// The pieces of a picture's vectors in the order in which they are to be drawn, weaker ones first. A vector is one
// piece unless it is so wide or long that its sides bend. Vectors without extent, or with values that are no numbers,
// give none. Width in degrees.
std::vector<WeatherShape> weatherShapes(
    Projector &projector, const GeoCoordinate &site, const QList<WeatherProcessor::PolarVector> &vectors, double width);

// The width at which the vectors of a picture touch each other, in degrees: the commonest step from one azimuth to the
// next. The fallback where a picture has too few azimuths to tell.
double touchingWidth(const QList<WeatherProcessor::PolarVector> &vectors, double fallback);
