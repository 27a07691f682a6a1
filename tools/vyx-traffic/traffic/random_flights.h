#pragma once

#include "traffic/scenario.h"
#include "traffic/traffic_random.h"

// Makes up flights along the airways of a scenario: overflights at a level of the semicircular rule, departures and
// arrivals where an airway begins or ends at an airport.
class RandomFlights {
public:
    // Needs at least one airway where a flight is asked for.
    RandomFlights(const ScenarioRandomTraffic &rules, std::uint64_t seed);

    ScenarioFlight next();
    // Seconds that a flight which is under way when the scenario starts has been flying.
    double flownAtStart(const ScenarioFlight &flight);

private:
    std::vector<ScenarioFix> drawAirway();
    void drawIdentity(ScenarioFlight &flight);
    void drawPerformance(ScenarioFlight &flight);
    double drawCruisingAltitude(const std::vector<ScenarioFix> &airway);

    ScenarioRandomTraffic m_rules;
    TrafficRandom m_random;
};
