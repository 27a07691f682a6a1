#pragma once

#include <optional>

class SensorInfo;

// How long tracks live without a report, milliseconds.
struct TrackLifeSpan {
    unsigned int coastingMs = 0;
    unsigned int terminationMs = 0;

    // By the sensor's rotation period or update interval; fixed spans where it has none or one too short to be true.
    // Nothing for a null sensor and for unknown types: the spans stay as they are.
    static std::optional<TrackLifeSpan> forSensor(const SensorInfo *sensor);
};
