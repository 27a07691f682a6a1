#pragma once

#include "recognition/period_meter.h"
#include "recognition/stream_hypothesis.h"

class AleniaSirMRadarMessage;

// The messages are those of an Alenia SIR-M radar, in an envelope.
class SirMHypothesis final : public StreamHypothesis {
public:
    explicit SirMHypothesis(Config::AleniaSirMFormat format) : m_format(format) { }

    void add(std::span<const unsigned char> message, std::optional<qint64> timeMs) override;
    qint64 explained() const override { return m_explained; }
    StreamFormat format() const override { return {.kind = Config::ProcessorType::AleniaSirM, .aleniaSirM = m_format}; }
    void report(StreamFindings *findings) const override;

private:
    void addMessage(const AleniaSirMRadarMessage &message, std::optional<qint64> timeMs);

    Config::AleniaSirMFormat m_format;
    SirMFindings m_counts;
    PeriodMeter m_turnMarks;
    qint64 m_explained = 0;
    qint64 m_undecodable = 0;
};
