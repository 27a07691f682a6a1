#pragma once

#include "traffic/datagram_maker.h"
#include "traffic/radar_model.h"
#include "traffic/scenario.h"
#include "traffic/traffic_random.h"

#include <vector>

// Plots of many aircraft that fly circles around a radar, one after the other as its antenna turns, each in a data
// block of its own. Cheap to make: this loads the receiver, not the sender.
class LoadGenerator {
public:
    // reportsPerSecond of scenario time; aircraft 1 to 4000 have track numbers of their own, more share them.
    LoadGenerator(const ScenarioRadar &radar, const QDateTime &startTime, int aircraft, double reportsPerSecond,
        std::uint64_t seed);

    // The next data block, valid until the next call.
    std::span<const unsigned char> next();

private:
    struct Circler {
        TargetReport report; // all that stays the same
        double range = 0; // nautical miles
        double degreesPerSecond = 0; // clockwise around the radar
        double azimuth = 0; // at the start
    };

    Circler circler(int index, int count);

    TrafficRandom m_random;
    DatagramMaker m_maker;
    std::vector<Circler> m_aircraft; // by azimuth
    double m_interval = 0; // seconds from report to report
    std::uint64_t m_count = 0;
};
