#pragma once

#include "processors/weather_processor.h"

#include <QtGlobal>

// What a display has drawn of a radar's weather and video at one place, for those who tell where it comes from.

struct ShownWeather {
    WeatherProcessor::PolarVector vector;
    double timeOfDay = -1.0; // of its picture, as there
    double width = 0.0; // degrees
    bool widthMeasured = false; // so that neighbours touch; else as configured
    bool hatched = false; // its level is switched off
};

struct ShownEcho {
    quint8 sac = 0; // of the radar; 0/0 where it does not say
    quint8 sic = 0;
    double azimuth = 0.0; // degrees clockwise from north, at the radar
    double range = 0.0; // metres from it
    quint64 cell = 0; // counted from the antenna
    double cellSize = 0.0; // metres
    int amplitude = 0; // 1 to 255
    int threshold = 0; // amplitudes up to this are not drawn
    int directions = 0; // a turn, that are told apart
    qint64 validityMs = 0; // until it has faded
};
