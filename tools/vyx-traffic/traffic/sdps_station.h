#pragma once

#include "traffic/cyclic_station.h"

// A surveillance data processing system: a system track of everything that flies, as category 062.
class SdpsStation final : public CyclicStation {
public:
    SdpsStation(const ScenarioSdps &sdps, const Scenario &scenario);

private:
    bool sees(const AirTarget &target) const final;
    void report(const Sight &sight) final;
    void writePosition(const Aircraft::State &state);
    void writeMovement(const Aircraft::State &state);
    void writeStatus(const Sight &sight);
    void writeTransponder(const Sight &sight);
    void writeAircraftData(const Sight &sight);

    ScenarioSdps m_sdps;
    double m_magneticVariation;
};
