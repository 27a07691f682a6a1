#pragma once

#include "traffic/cyclic_station.h"

// A multilateration system: whatever has a transponder, on the ground or above, as category 020.
class MlatStation final : public CyclicStation {
public:
    MlatStation(const ScenarioMlat &mlat, const Scenario &scenario);

private:
    bool sees(const AirTarget &target) const final;
    void report(const Sight &sight) final;
    void writePosition(const Aircraft::State &state);
    void writeMovement(const Sight &sight);
    void writeModeS(const Sight &sight);

    ScenarioMlat m_mlat;
    double m_magneticVariation;
};
