#pragma once

#include "traffic/cyclic_station.h"

// A surface movement radar: aircraft and vehicles on and just above an airport, as category 010.
class SmrStation final : public CyclicStation {
public:
    SmrStation(const ScenarioSmr &smr, const Scenario &scenario);

private:
    bool sees(const AirTarget &target) const final;
    void beginCycle(double time) final;
    void report(const Sight &sight) final;
    void writeMovement(const Aircraft::State &state);
    void writeShape(const Sight &sight);

    ScenarioSmr m_smr;
};
