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
        const unsigned char *data = left.data();
        left = left.subspan(m_block.size);
        anyBlock = true;
        m_explained += m_block.valid ? m_block.size : 0;
        withoutTable += m_block.error == korvane::asterix::Error::UnknownCategory ? m_block.size : 0;
        addBlock(data, timeMs);
    }
    // A length that fits by chance leaves something over.
    m_explained += left.empty() ? withoutTable : 0;
    addRest(left.size(), anyBlock);
}

// What the walk over the blocks of a message stopped at.
void AsterixHypothesis::addRest(std::size_t octets, bool anyBlock)
{
    if (octets == 0) {
        return;
    }
    if (anyBlock && octets <= LongestTrailer) {
        ++m_trailers[octets];
        return;
    }
    m_undecodable += static_cast<qint64>(octets);
    m_cutShort += anyBlock && m_block.error == korvane::asterix::Error::BlockTruncated;
}

void AsterixHypothesis::addBlock(const unsigned char *data, std::optional<qint64> timeMs)
{
    const auto category = static_cast<int>(m_block.category);
    const int source = m_block.records.empty() ? knownSourceIn(data) : sourceOfBlock();
    SourceTally &tally = m_sources[source];
    tally.addBlock(category);
    if (tally.wantsJudgement(category)) {
        tally.addJudgement(category, m_judge.judge(data, m_block.size));
    }
    if (!m_block.valid) {
        m_undecodable += m_block.size;
        tally.addUndecodable(m_block);
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

// Of a block without a record: the source that its first octets name, if it has been heard before. In all categories it
// comes first, where it is sent.
int AsterixHypothesis::knownSourceIn(const unsigned char *data) const
{
    constexpr std::uint32_t Header = 3;
    std::uint32_t at = Header;
    while (at < m_block.size && (data[at] & 1)) {
        ++at;
    }
    if (at + 2 >= m_block.size || !(data[Header] & 0x80)) {
        return NoSource;
    }
    const int source = data[at + 1] * SicsPerSac + data[at + 2];
    return m_sources.contains(source) ? source : NoSource;
}

TrailerFindings AsterixHypothesis::trailers() const
{
    TrailerFindings trailers;
    for (const auto &[octets, messages] : m_trailers) {
        trailers.messages += messages;
        if (messages > trailers.alike) {
            trailers.octets = static_cast<int>(octets);
            trailers.alike = messages;
        }
    }
    return trailers;
}

void AsterixHypothesis::report(StreamFindings *findings) const
{
    findings->kind = Config::ProcessorType::Asterix;
    findings->asterixFormat = m_format;
    findings->undecodableOctets = m_undecodable;
    findings->cutShort = m_cutShort;
    findings->trailers = trailers();
    for (const auto &[key, tally] : m_sources) {
        SourceFindings source = tally.findings();
        source.identified = key != NoSource;
        source.sac = static_cast<quint8>(source.identified ? key / SicsPerSac : 0);
        source.sic = static_cast<quint8>(source.identified ? key % SicsPerSac : 0);
        findings->sources += source;
    }
}
