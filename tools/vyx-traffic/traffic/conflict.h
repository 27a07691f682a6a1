#pragma once

#include "traffic/aircraft.h"
#include "traffic/scenario.h"

#include <optional>

// The geometry behind the alerts of a safety net. Aircraft are taken to fly straight on at the speed they have, and to
// climb or descend at their rate until they reach the altitude that they have selected.

struct Separation {
    double horizontal = 0; // metres
    double vertical = 0; // feet
};

struct Conflict {
    double start = 0; // seconds until both separations are lost; 0: they are
    double closestAt = 0; // seconds until the horizontal distance is least, 0 when they part already
    Separation now;
    Separation closest; // at closestAt
};

// The conflict that two aircraft are in or will be in within so many seconds. Both separations have to be lost at the
// same time; what is just kept is no conflict.
std::optional<Conflict> predictConflict(
    const Aircraft &one, const Aircraft &other, const Separation &minimum, double lookAhead);

struct Prediction {
    double latitude = 0;
    double longitude = 0;
    double altitude = 0; // feet
};

// Where an aircraft will be after so many seconds.
Prediction predict(const Aircraft &aircraft, double seconds);

// Inside the polygon, at or above its lower and below its upper altitude.
bool isInside(const ScenarioArea &area, const Prediction &position);
