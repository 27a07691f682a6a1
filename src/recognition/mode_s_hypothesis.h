#pragma once

#include "modes/adsb_tracker.h"
#include "modes/mode_s_decoder.h"
#include "recognition/position_sample.h"
#include "recognition/stream_hypothesis.h"

#include <string>
#include <vector>

// The messages, one after the other, are Mode S frames in an encapsulation.
class ModeSHypothesis final : public StreamHypothesis {
public:
    explicit ModeSHypothesis(korvane::modes::ModeSEncapsulation::Format format) : m_format(format) { }

    void add(std::span<const unsigned char> message, std::optional<qint64> timeMs) override;
    qint64 explained() const override { return m_explained; }
    StreamFormat format() const override { return {.kind = Config::ProcessorType::ModeS, .modeS = m_format}; }
    void report(StreamFindings *findings) const override;

private:
    qint64 octetsOf(const korvane::modes::ModeSFrame &frame) const;
    void addFrame(const korvane::modes::ModeSFrame &frame);

    korvane::modes::ModeSEncapsulation::Format m_format;
    std::string m_buffer; // beginning of a frame that the next message ends
    std::vector<korvane::modes::ModeSFrame> m_frames;
    korvane::modes::ModeSDecoder m_decoder;
    korvane::modes::ModeSMessage m_message;
    korvane::modes::ADSBTracker m_tracker;
    PositionSample m_places;
    ModeSFindings m_counts;
    qint64 m_explained = 0;
    qint64 m_passedOver = 0; // octets of no frame
};
