#pragma once

#include "traffic/air_traffic.h"
#include "traffic/scenario.h"
#include "traffic/traffic_station.h"

#include <QHash>

#include <memory>
#include <vector>

// Plays a scenario: what its stations send, one after the other, by time. Depends on the scenario and the seed alone,
// not on any clock.
class TrafficSource {
public:
    struct Sending {
        double time = 0; // seconds from the scenario's start
        std::size_t station = 0; // index among all that send
        int portOffset = 0;
        const std::vector<QByteArray> *datagrams = nullptr; // maybe none; valid until the next call
    };

    // The scenario has a station at least.
    TrafficSource(const Scenario &scenario, std::uint64_t seed);

    double nextTime() const;
    Sending next();

    // As it is at the time of the last sending.
    const AirTraffic &traffic() const { return m_traffic; }
    const TrafficStation &station(std::size_t index) const { return *m_stations[index].station; }

private:
    struct Place {
        std::unique_ptr<TrafficStation> station;
        int portOffset = 0;
    };

    void add(const ScenarioSource &source, std::unique_ptr<TrafficStation> station);
    void addTrackers(const Scenario &scenario, std::uint64_t seed);
    void addOthers(const Scenario &scenario, std::uint64_t seed);
    std::size_t nextStation() const;

    std::vector<Place> m_stations;
    QHash<QString, std::size_t> m_indices; // by name, of those that track
    AirTraffic m_traffic;
};
