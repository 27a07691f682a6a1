#include "engine/track_life_span.h"

#include "sensors/sensor_info.h"

std::optional<TrackLifeSpan> TrackLifeSpan::forSensor(const SensorInfo *sensor)
{
    const auto life = sensor ? sensor->trackLife() : std::nullopt;
    if (!life) {
        return std::nullopt;
    }
    const double period = sensor->reportPeriod();
    if (life->coastingPeriods == 0.0 || !(period >= life->shortestPeriod)) {
        return TrackLifeSpan{life->coastingMs, life->terminationMs};
    }
    return TrackLifeSpan{static_cast<unsigned int>(period * 1000.0 * life->coastingPeriods),
        static_cast<unsigned int>(period * 1000.0 * life->terminationPeriods)};
}
