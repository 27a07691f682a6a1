#pragma once

#include "explanation/track_explanation.h"
#include "processors/shown_cells.h"

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
