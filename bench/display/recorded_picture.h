#pragma once

#include "tracking/track_snapshot.h"

#include <QList>
#include <QString>

#include <vector>

// What the engine would publish while a built-in traffic scenario plays: a picture every 200 ms.
class RecordedPicture {
public:
    static constexpr int IntervalMs = 200;

    // Pictures of the seconds from the first to the last, in scenario time.
    static std::vector<QList<TrackSnapshot>> play(const QString &scenario, double first, double last);
};
