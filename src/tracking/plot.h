#pragma once

#include "tracking/track.h"

#include <QList>
#include <QPointF>
#include <QSharedPointer>

#include <vector>

// Where a sensor reported a target once, whether or not the report says which one.
struct Plot {
    QPointF place; // plane metres
    qint64 timeMs = 0; // of the report's arrival by the pipeline's clock, since 1970 UTC
    Track::Type type = Track::Unknown; // of what detected it
};

// Plots that came one after the other; never changed once published.
struct PlotBatch {
    quint64 first = 0; // how many plots of its run came before it
    std::vector<Plot> plots; // the oldest first, never empty
};

// The newest plots of one run of the input: its opening, or a recording from one jump of its time to the next.
struct PlotHistory {
    quint64 run = 0; // another number is another run: what was taken of the one before is of no use any more
    quint64 count = 0; // of all plots of the run so far
    QList<QSharedPointer<const PlotBatch>> batches; // the oldest first; what came before them has gone
};
