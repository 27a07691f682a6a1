#pragma once

#include "asterix/encoder.h"
#include "traffic/radar_model.h"
#include "traffic/target_writer.h"

#include <QByteArray>
#include <QDateTime>

#include <memory>
#include <vector>

// Makes datagrams of what a radar says: a service message block and the target reports of the sector in blocks of their
// own, in as many datagrams as it takes.
class DatagramMaker {
public:
    static constexpr qsizetype LargestDatagram = 1400; // octets: passes every link in one piece

    // startTime: the scenario's second 0, UTC.
    DatagramMaker(const ScenarioRadar &radar, const QDateTime &startTime);

    // Never empty; valid until the next call.
    const std::vector<QByteArray> &datagrams(const SectorReport &report);
    // One block with the one report; valid until the next call.
    std::span<const unsigned char> block(const TargetReport &report);

private:
    double secondsOfDay(double time) const;
    void writeService(const SectorReport &report);
    void beginService(int type, double time);
    void appendTargets(const std::vector<TargetReport> &targets);
    void appendBlock(std::span<const unsigned char> block);

    ScenarioRadar m_radar;
    double m_startOfDay = 0; // seconds
    korvane::asterix::BlockEncoder m_service;
    std::unique_ptr<TargetWriter> m_targets;
    std::vector<QByteArray> m_datagrams;
};
