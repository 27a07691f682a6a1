#pragma once

#include "traffic/day_clock.h"
#include "traffic/scenario.h"
#include "traffic/sector_writer.h"

// Makes Alenia SIR-M messages of what a radar with sixteen sectors says: a north marker where the antenna passes north,
// and for each sector that it has left its plots and tracks. One message a datagram.
class SirMMaker final : public SectorWriter {
public:
    static constexpr int Sectors = 16;

    // startTime: the scenario's second 0, UTC.
    SirMMaker(const ScenarioRadar &radar, const QDateTime &startTime);

    const std::vector<QByteArray> &datagrams(const SectorReport &report) final;

private:
    unsigned milliseconds(double time) const;
    void appendNorthMarker(double time);
    void appendData(const SectorReport &report);

    ScenarioRadar m_radar;
    DayClock m_clock;
    std::vector<QByteArray> m_datagrams;
};
