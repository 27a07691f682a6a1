#pragma once

#include "explanation/track_explanation.h"

// A weather vector as the display draws it.
struct ShownWeather {
    int intensity = 0; // 0 to 7
    double startRange = 0.0; // nautical miles from the radar
    double endRange = 0.0;
    double azimuth = 0.0; // degrees clockwise from north
    double timeOfDay = -1.0; // of its picture, seconds since midnight UTC; -1.0: none was sent
    double width = 0.0; // degrees
    bool widthMeasured = false; // so that neighbours touch; else as configured
    bool hatched = false; // its level is switched off
};

// Where it came from.
struct WeatherOrigin {
    // The message of the vector, the start and the end of its picture; empty where they are kept no more.
    QList<KeptReport> reports;
    int element = 0; // of I008/034, from 1
};

// kept: messages of CAT008, newest first.
WeatherOrigin originOf(const ShownWeather &weather, const QList<KeptReport> &kept);
// views: of the origin's reports.
QList<ExplainedValue> explainWeather(
    const ShownWeather &weather, const WeatherOrigin &origin, const QList<ReportView> &views, const QDateTime &now);
