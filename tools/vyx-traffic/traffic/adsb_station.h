#pragma once

#include "traffic/cyclic_station.h"

// An ADS-B ground station: aircraft with a Mode S transponder, as category 021 in any of its editions.
class AdsbStation final : public CyclicStation {
public:
    AdsbStation(const ScenarioAdsb &station, const Scenario &scenario);

private:
    bool sees(const AirTarget &target) const final;
    void report(const Sight &sight) final;
    void writeTimes(double time);
    void writePosition(const Aircraft::State &state);
    void writeMovement(const Sight &sight);
    void writeQuality();

    ScenarioAdsb m_station;
    double m_magneticVariation;
    bool m_isOld; // an edition before 1.0
};
