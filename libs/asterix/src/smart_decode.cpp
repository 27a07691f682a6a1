#include "smart_decode.h"

#include "layout.h"
#include "plausibility.h"
#include "walker.h"

#include <array>

namespace korvane::asterix {
namespace {

struct Candidate {
    const CategoryTable *table;
    Plausibility plausibility;

    explicit Candidate(const char *edition)
        : table(findTable(21, edition)), plausibility(*findTable(21, edition)->uaps.front())
    {
    }
};

// In the order in which they are preferred where nothing tells them apart: the newer one.
using Candidates = std::array<Candidate, 4>;

const Candidates &candidates()
{
    static const Candidates made{Candidate("2.7"), Candidate("2.1"), Candidate("0.26"), Candidate("0.23")};
    return made;
}

// Records of different sources in one block are rare.
constexpr unsigned OtherSource = 2;

// How well a candidate suits a block.
struct Verdict {
    std::uint32_t left = 0; // octets that are not decoded
    Oddness oddness;

    // Good enough not to look at other editions, of a source that is known to send this one. The points leave room for
    // a habit of the sender: an FSPEC that is longer than it needs to be, items that it does not send.
    bool isGood(std::size_t records) const { return left == 0 && oddness.form == 0 && oddness.values <= 2 * records; }
    bool isBetterThan(const Verdict &other) const
    {
        return left != other.left ? left < other.left : oddness.weight() < other.oddness.weight();
    }
};

Verdict judge(const Candidate &candidate, _ast_datablock_t &block, const unsigned char *data)
{
    decodeRecords(block, data, *candidate.table);
    Verdict verdict;
    verdict.left = block.valid ? 0 : block.size - block.errorOffset + 1;
    if (!block.valid || block.records.empty()) {
        return verdict;
    }
    const _ast_sacsic_t first = ast_datarecord_get_sacsic(block.records.front());
    for (const _ast_datarecord_t &record : block.records) {
        const _ast_sacsic_t source = ast_datarecord_get_sacsic(record);
        verdict.oddness.values += source.sac != first.sac || source.sic != first.sic ? OtherSource : 0;
        verdict.oddness.add(candidate.plausibility.oddness(record));
    }
    return verdict;
}

// The source of the first record, which all editions have in the same place; -1 where there is none.
int sourceOf(const unsigned char *data, std::uint32_t size)
{
    constexpr std::uint32_t Header = 3;
    std::uint32_t at = Header;
    while (at < size && (data[at] & 1)) {
        ++at;
    }
    const bool isSent = at + 2 < size && (data[Header] & 0x80);
    return isSent ? data[at + 1] << 8 | data[at + 2] : -1;
}

// What a block object remembers of a source: its SAC/SIC and the number of its candidate, from 1, in the lowest octet.
class SourceMemory {
public:
    SourceMemory(_ast_datablock_t &block, int source)
        : m_source(source), m_place(block.recentEditions[static_cast<unsigned>(source) % block.recentEditions.size()])
    {
    }

    // -1: not known.
    int candidate() const
    {
        const bool isKnown = m_source >= 0 && m_place != 0 && m_place >> 8 == static_cast<std::uint32_t>(m_source);
        return isKnown ? static_cast<int>(m_place & 0xFF) - 1 : -1;
    }

    void remember(std::size_t candidate)
    {
        if (m_source >= 0) {
            m_place = static_cast<std::uint32_t>(m_source) << 8 | static_cast<std::uint32_t>(candidate + 1);
        }
    }

private:
    int m_source;
    std::uint32_t &m_place;
};

} // namespace

void decodeCat021(_ast_datablock_t &block, const unsigned char *data)
{
    SourceMemory memory(block, sourceOf(data, block.size));
    const Candidates &all = candidates();
    const int known = memory.candidate();
    const std::size_t first = known >= 0 ? static_cast<std::size_t>(known) : 0;
    std::size_t best = first;
    std::size_t decoded = first;
    Verdict verdict = judge(all[first], block, data);
    const bool isSettled = known >= 0 && verdict.isGood(block.records.size());
    for (std::size_t i = 0; i < all.size() && !isSettled; ++i) {
        if (i == first) {
            continue;
        }
        const Verdict other = judge(all[i], block, data);
        decoded = i;
        if (other.isBetterThan(verdict)) {
            verdict = other;
            best = i;
        }
    }
    if (decoded != best) {
        decodeRecords(block, data, *all[best].table);
    }
    if (block.valid) {
        memory.remember(best);
    }
}

void prepareSmartDecoding()
{
    candidates();
}

} // namespace korvane::asterix
