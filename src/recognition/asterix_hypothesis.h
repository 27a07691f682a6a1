#pragma once

#include "asterix/edition_fit.h"
#include "recognition/source_tally.h"
#include "recognition/stream_hypothesis.h"

// The messages are ASTERIX data blocks in an envelope.
class AsterixHypothesis final : public StreamHypothesis {
public:
    explicit AsterixHypothesis(Config::AsterixFormat format) : m_format(format) { }

    void add(std::span<const unsigned char> message, std::optional<qint64> timeMs) override;
    qint64 explained() const override { return m_explained; }
    StreamFormat format() const override { return {.kind = Config::ProcessorType::Asterix, .asterix = m_format}; }
    void report(StreamFindings *findings) const override;

private:
    static constexpr int NoSource = -1;

    void addBlock(const unsigned char *data, std::optional<qint64> timeMs);
    int sourceOfBlock() const;
    int knownSourceIn(const unsigned char *data) const;
    void addRest(std::size_t octets, bool anyBlock);
    TrailerFindings trailers() const;

    Config::AsterixFormat m_format;
    _ast_datablock_t m_block;
    std::map<int, SourceTally> m_sources; // by SAC * 256 + SIC
    korvane::asterix::EditionJudge m_judge;
    qint64 m_explained = 0;
    qint64 m_undecodable = 0;
    qint64 m_cutShort = 0; // messages
    std::map<std::size_t, qint64> m_trailers; // messages by octets after the last block
};
