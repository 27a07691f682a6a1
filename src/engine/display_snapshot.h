#pragma once

#include "tracking/alert_snapshot.h"
#include "tracking/track_snapshot.h"

#include <QList>

#include <array>

// The air picture at one moment; never changed once published.
struct DisplaySnapshot {
    QList<TrackSnapshot> tracks;
    QList<AlertSnapshot> alerts;
    std::array<bool, 3> alertStatus = {}; // MSAW, APW, STCA: index is Alert::Type minus 1
};
