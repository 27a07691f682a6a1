#pragma once

#include "explanation/track_explanation.h"

// A cell of radar video as the display draws it.
struct ShownEcho {
    double azimuth = 0.0; // degrees clockwise from north, at the radar
    double range = 0.0; // metres from it
    quint64 cell = 0; // counted from the antenna
    double cellSize = 0.0; // metres
    int amplitude = 0; // 1 to 255
    int threshold = 0; // amplitudes up to this are not drawn
    int directions = 0; // a turn, that are told apart
    qint64 validityMs = 0; // until it has faded
};

// reports: records of CAT240 of its direction, newest first; none where the antenna has not come round since they were
// asked for.
QList<ExplainedValue> explainEcho(const ShownEcho &echo, const QList<ReportView> &reports, const QDateTime &now);
