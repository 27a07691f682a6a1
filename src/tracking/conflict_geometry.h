#pragma once

#include "tracking/track_snapshot.h"

#include <optional>

// How two tracks stand to each other.
struct ConflictGeometry {
    double distance = 0.0; // metres over ground
    std::optional<int> levelDifference; // feet, not negative; empty unless both levels are valid
    // Seconds until they are closest if neither turns nor changes its speed; empty when they do not approach or a
    // velocity is not valid.
    std::optional<double> timeToClosestApproach;
};

// Both as of the later of the two last updates: the other one is taken along its velocity until then. Empty unless both
// have a WGS-84 position. Means nothing for tracks hundreds of miles apart.
std::optional<ConflictGeometry> conflictGeometry(const TrackSnapshot &one, const TrackSnapshot &other);
