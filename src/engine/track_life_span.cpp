#include "engine/track_life_span.h"

#include "sensors/adsb_sensor_info.h"
#include "sensors/radar_sensor_info.h"
#include "sensors/sdps_sensor_info.h"
#include "sensors/smr_sensor_info.h"

#include <algorithm>
#include <array>

namespace {

// Multiples of the period from a shortest one on, fixed spans where it is shorter or not known.
struct LifeSpanRow {
    SensorType type;
    double shortestPeriod; // seconds
    double coastingPeriods;
    double terminationPeriods;
    unsigned int coastingFallbackMs;
    unsigned int terminationFallbackMs;
};

constexpr std::array LifeSpans = {
    LifeSpanRow{RadarSensor, 1.0, 1.25, 3.0, 5000, 12000},
    LifeSpanRow{AdsbSensor, 0.5, 1.5, 3.0, 3000, 15000},
    LifeSpanRow{MlatSensor, 0.0, 0.0, 0.0, 3000, 15000},
    LifeSpanRow{SdpsSensor, 4.0, 1.5, 3.0, 10000, 20000},
    LifeSpanRow{SmrSensor, 1.0, 1.25, 3.0, 1500, 3000},
};

// Seconds between two reports of one target; 0 when it is not known.
double updatePeriod(const SensorInfo *sensor)
{
    if (const auto *radar = qobject_cast<const RadarSensorInfo *>(sensor)) {
        return radar->rotationPeriod();
    }
    if (const auto *adsb = qobject_cast<const AdsbSensorInfo *>(sensor)) {
        return adsb->updateInterval();
    }
    if (const auto *sdps = qobject_cast<const SdpsSensorInfo *>(sensor)) {
        return sdps->updateInterval();
    }
    if (const auto *smr = qobject_cast<const SmrSensorInfo *>(sensor)) {
        return smr->rotationPeriod();
    }
    return 0.0;
}

} // namespace

std::optional<TrackLifeSpan> TrackLifeSpan::forSensor(const SensorInfo *sensor)
{
    const auto row = std::find_if(LifeSpans.begin(), LifeSpans.end(),
        [sensor](const LifeSpanRow &candidate) { return sensor && candidate.type == sensor->type(); });
    if (row == LifeSpans.end()) {
        return std::nullopt;
    }
    const double period = updatePeriod(sensor);
    if (row->coastingPeriods == 0.0 || !(period >= row->shortestPeriod)) {
        return TrackLifeSpan{row->coastingFallbackMs, row->terminationFallbackMs};
    }
    return TrackLifeSpan{static_cast<unsigned int>(period * 1000.0 * row->coastingPeriods),
        static_cast<unsigned int>(period * 1000.0 * row->terminationPeriods)};
}
