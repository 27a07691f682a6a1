#pragma once

#include "tracking/alert_snapshot.h"
#include "tracking/plot.h"
#include "tracking/track_snapshot.h"

#include <QDateTime>
#include <QList>

#include <array>

// The air picture at one moment; never changed once published.
struct DisplaySnapshot {
    QList<TrackSnapshot> tracks;
    QList<AlertSnapshot> alerts;
    std::array<bool, 3> alertStatus = {}; // MSAW, APW, STCA: index is Alert::Type minus 1
    QDateTime time = {}; // of the picture, UTC: all ages in it count to here; stands still while the input does
    bool recordedTime = false; // a recording's own, also after its end, until another input is opened
    quint64 messages = 0; // received since the input was opened
    PlotHistory plots = {}; // also those of the snapshots before, so that who misses some misses no plot
    QDateTime netsHeard = {}; // when the safety nets last sent anything, as time; invalid: not yet
};
