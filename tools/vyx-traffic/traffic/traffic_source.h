#pragma once

#include "traffic/air_traffic.h"
#include "traffic/datagram_maker.h"
#include "traffic/radar_model.h"
#include "traffic/scenario.h"

#include <vector>

// Plays a scenario: what its radars send, one sector after the other, by time. Depends on the scenario and the seed
// alone, not on any clock.
class TrafficSource {
public:
    struct Sending {
        double time = 0; // seconds from the scenario's start
        std::size_t radar = 0; // index in the scenario
        const std::vector<QByteArray> *datagrams = nullptr; // valid until the next call
    };

    // The scenario has a radar at least.
    TrafficSource(const Scenario &scenario, std::uint64_t seed);

    double nextTime() const;
    Sending next();

private:
    struct Station {
        RadarModel radar;
        DatagramMaker maker;
    };

    std::size_t nextStation() const;

    AirTraffic m_traffic;
    std::vector<Station> m_stations;
};
