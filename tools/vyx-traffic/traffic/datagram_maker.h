#pragma once

#include "traffic/datagram_packer.h"
#include "traffic/day_clock.h"
#include "traffic/sector_writer.h"
#include "traffic/target_writer.h"

#include <memory>

// Makes datagrams of what a radar says: a service message block and the target reports of the sector in blocks of their
// own, in as many datagrams as it takes.
class DatagramMaker final : public SectorWriter {
public:
    // startTime: the scenario's second 0, UTC.
    DatagramMaker(const ScenarioRadar &radar, const QDateTime &startTime);

    const std::vector<QByteArray> &datagrams(const SectorReport &report) final;
    // One block with the one report; valid until the next call.
    std::span<const unsigned char> block(const TargetReport &report);

private:
    void writeService(const SectorReport &report);
    void beginService(int type, double time);

    ScenarioRadar m_radar;
    DayClock m_clock;
    korvane::asterix::BlockEncoder m_service;
    std::unique_ptr<TargetWriter> m_targets;
    DatagramPacker m_packer;
};
