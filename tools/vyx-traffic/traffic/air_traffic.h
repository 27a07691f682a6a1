#pragma once

#include "traffic/aircraft.h"
#include "traffic/random_flights.h"
#include "traffic/scenario.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

// One aircraft in the air.
struct AirTarget {
    std::uint64_t id = 0; // never used again
    std::shared_ptr<const ScenarioFlight> flight;
    Aircraft aircraft;
    double startedAt = 0; // seconds from the scenario's start
    std::optional<double> endedAt; // its route is flown; it stays for a last look of the radars

    std::uint16_t squawkAt(double time) const;
    // The radar, which turns once in rotationPeriod seconds, detects nothing of it at the time.
    bool hiddenAt(double time, double rotationPeriod) const;
};

// 7500, 7600 or 7700.
bool isEmergency(std::uint16_t squawk);

// Everything that flies at a moment of the scenario: the flights of the file and those made up from the seed.
class AirTraffic {
public:
    AirTraffic(const Scenario &scenario, std::uint64_t seed);

    // Seconds for which an aircraft flies on after the end of its route, so that whoever tracks it can see it once more
    // and end its track; 0 until set.
    void setLingering(double seconds) { m_lingering = seconds; }

    // Seconds from the scenario's start; not before the time of the call before.
    void advanceTo(double time);
    // In the order of their ids.
    const std::vector<AirTarget> &targets() const { return m_targets; }

private:
    struct Departure {
        std::shared_ptr<const ScenarioFlight> flight;
        double at = 0;
    };

    void advanceTargets(double seconds);
    void removeGone();
    void startDue();
    void start(const std::shared_ptr<const ScenarioFlight> &flight, double at);
    void fillUp();
    bool clearOfOthers(const Aircraft &aircraft) const;

    std::vector<AirTarget> m_targets;
    std::vector<Departure> m_departures;
    RandomFlights m_randomFlights;
    int m_randomCount = 0;
    std::vector<std::uint64_t> m_randomIds; // of the made-up flights in the air
    double m_lingering = 0;
    double m_now = 0;
    bool m_started = false;
    std::uint64_t m_nextId = 1;
};
