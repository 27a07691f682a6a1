#include "recognition/asterix_hypothesis.h"

#include "engine/envelope.h"

#include <algorithm>

namespace {

constexpr int SicsPerSac = 256;
// What recorders put behind the last block of a message, and check sequences.
constexpr std::size_t LongestTrailer = 32;

} // namespace

void AsterixHypothesis::add(std::span<const unsigned char> message, std::optional<qint64> timeMs)
{
    auto left = message.subspan(std::min(message.size(), envelopeSize(m_format)));
    qint64 withoutTable = 0;
    bool anyBlock = false;
    while (!left.empty() && ast_datablock_smart_decode(&m_block, left.data(), left.size()) && m_block.size > 0) {
        left = left.subspan(m_block.size);
        anyBlock = true;
        m_explained += m_block.valid ? m_block.size : 0;
        withoutTable += m_block.error == korvane::asterix::Error::UnknownCategory ? m_block.size : 0;
        addBlock(timeMs);
    }
    // A length that fits by chance leaves something over.
    m_explained += left.empty() ? withoutTable : 0;
    m_undecodable += !anyBlock || left.size() > LongestTrailer ? static_cast<qint64>(left.size()) : 0;
}

void AsterixHypothesis::addBlock(std::optional<qint64> timeMs)
{
    const auto category = static_cast<int>(m_block.category);
    const int source = sourceOfBlock();
    if (!m_block.valid) {
        m_undecodable += m_block.size;
        m_sources[source].addUndecodable(category, m_block.size);
        return;
    }
    for (const _ast_datarecord_t &record : m_block.records) {
        const _ast_sacsic_t own = ast_datarecord_get_sacsic(record);
        m_sources[own.present ? own.sac * SicsPerSac + own.sic : source].addRecord(record, category, timeMs);
    }
}

// Records without an identification of their own are of the source of those beside them.
int AsterixHypothesis::sourceOfBlock() const
{
    for (const _ast_datarecord_t &record : m_block.records) {
        const _ast_sacsic_t source = ast_datarecord_get_sacsic(record);
        if (source.present) {
            return source.sac * SicsPerSac + source.sic;
        }
    }
    return NoSource;
}

void AsterixHypothesis::report(StreamFindings *findings) const
{
    findings->kind = Config::ProcessorType::Asterix;
    findings->asterixFormat = m_format;
    findings->undecodableOctets = m_undecodable;
    for (const auto &[key, tally] : m_sources) {
        SourceFindings source = tally.findings();
        source.identified = key != NoSource;
        source.sac = static_cast<quint8>(source.identified ? key / SicsPerSac : 0);
        source.sic = static_cast<quint8>(source.identified ? key % SicsPerSac : 0);
        findings->sources += source;
    }
}
