#include "block_time.h"

#include "day_clock.h"
#include "octets.h"

#include <array>

namespace korvane::astfile {

namespace {

using Octets = std::span<const unsigned char>;

constexpr std::size_t BlockHeaderSize = 3;
constexpr qint64 TicksPerSecond = 128;
constexpr qint64 TruncatedPeriodMs = 512000;

// Item lengths: octets, or one of these.
constexpr std::int16_t Extended = 0; // octets up to one without its lowest bit
constexpr std::int16_t repeated(int octets) // one octet of count, then so many each
{
    return static_cast<std::int16_t>(-octets);
}

constexpr int MaxItems = 27;

// The items before the time of day, in the order of the record, and how to tell the row from others of its category.
struct TimeRow {
    unsigned category;
    int timeItem; // place in the order, from 1
    bool truncated; // two octets of time instead of three
    int requiredItem; // 0: none; in the order, from 1
    std::array<std::int16_t, MaxItems> lengths;
};

constexpr int TrackBitItem = -1; // requiredItem: the first bit of item 020, the second in the order, is set

constexpr std::array Rows = {
    TimeRow{1, 9, true, TrackBitItem, {2, Extended, 2, 4, 4, 4, 2, 2}},
    TimeRow{1, 7, true, 0, {2, Extended, 4, 2, 2, Extended}},
    TimeRow{2, 4, false, 0, {2, 1, 1}},
    TimeRow{4, 4, false, 0, {2, 1, repeated(1)}},
    TimeRow{8, 8, false, 0, {2, 1, Extended, repeated(3), repeated(4), 2, repeated(2)}},
    TimeRow{10, 4, false, 0, {2, 1, Extended}},
    TimeRow{19, 3, false, 0, {2, 1}},
    TimeRow{20, 3, false, 0, {2, Extended}},
    // Later editions by the target address, which is always sent: reception of the position, its applicability, and
    // transmission of the report. Earlier ones have one time of day.
    TimeRow{21, 12, false, 11, {2, Extended, 2, 1, 3, 6, 8, 3, 2, 2, 3}},
    TimeRow{21, 5, false, 11, {2, Extended, 2, 1}},
    TimeRow{21, 28, false, 11,
        {2, Extended, 2, 1, 3, 6, 8, 3, 2, 2, 3, 3, 4, 3, 4, 2, Extended, 1, 2, 2, 2, 2, 1, 2, 2, 4, 2}},
    TimeRow{21, 3, false, 5, {2, 2}},
    TimeRow{23, 4, false, 0, {2, 1, 1}},
    TimeRow{34, 3, false, 0, {2, 1}},
    TimeRow{48, 2, false, 0, {2}},
    TimeRow{62, 4, false, 0, {2, 0, 1}},
    TimeRow{63, 3, false, 0, {2, 1}},
    TimeRow{65, 4, false, 0, {2, 1, 1}},
    TimeRow{240, 12, false, 0, {2, 1, 4, repeated(1), 12, 12, 2, 5, repeated(4), repeated(64), repeated(256)}},
};

class Record {
public:
    explicit Record(Octets octets) : m_octets(octets)
    {
        while (m_fspecSize < octets.size() && (octets[m_fspecSize] & 1U)) {
            ++m_fspecSize;
        }
        ++m_fspecSize;
    }

    bool has(int item) const
    {
        const auto bit = static_cast<std::size_t>(item - 1);
        return bit / 7 < m_fspecSize && bit / 7 < m_octets.size() && (m_octets[bit / 7] >> (7 - bit % 7) & 1U);
    }

    // Octets from the record's start to the item, past its end where the items before it are cut short.
    std::size_t offsetOf(int item, const TimeRow &row) const
    {
        std::size_t offset = m_fspecSize;
        for (int before = 1; before < item; ++before) {
            offset += has(before) ? lengthAt(offset, row.lengths[static_cast<std::size_t>(before - 1)]) : 0;
        }
        return offset;
    }

private:
    std::size_t lengthAt(std::size_t offset, std::int16_t length) const
    {
        if (length > 0) {
            return static_cast<std::size_t>(length);
        }
        if (length < 0) {
            return offset < m_octets.size() ? 1 + m_octets[offset] * static_cast<std::size_t>(-length) : 1;
        }
        std::size_t end = offset;
        while (end < m_octets.size() && (m_octets[end] & 1U)) {
            ++end;
        }
        return end + 1 - offset;
    }

    Octets m_octets;
    std::size_t m_fspecSize = 0;
};

bool applies(const TimeRow &row, const Record &record, Octets octets)
{
    if (row.requiredItem == TrackBitItem) {
        const std::size_t descriptor = record.offsetOf(2, row);
        return record.has(2) && descriptor < octets.size() && (octets[descriptor] & 0x80U);
    }
    return row.requiredItem == 0 || record.has(row.requiredItem);
}

std::optional<BlockTime> timeOf(const TimeRow &row, const Record &record, Octets octets)
{
    const std::size_t size = row.truncated ? 2 : 3;
    const std::size_t offset = record.offsetOf(row.timeItem, row);
    if (!record.has(row.timeItem) || offset + size > octets.size()) {
        return std::nullopt;
    }
    const qint64 ticks = row.truncated ? read16(octets, offset) : read24(octets, offset);
    const BlockTime time = {ticks * 1000 / TicksPerSecond, row.truncated ? TruncatedPeriodMs : DayClock::DayMs};
    return time.ms < time.periodMs ? std::optional(time) : std::nullopt;
}

} // namespace

std::optional<BlockTime> blockTime(Octets block)
{
    if (block.size() <= BlockHeaderSize) {
        return std::nullopt;
    }
    const Octets octets = block.subspan(BlockHeaderSize);
    const Record record(octets);
    for (const TimeRow &row : Rows) {
        if (row.category != block[0] || !applies(row, record, octets)) {
            continue;
        }
        if (const auto time = timeOf(row, record, octets)) {
            return time;
        }
        if (row.requiredItem == TrackBitItem) {
            return std::nullopt; // a track is no plot
        }
    }
    return std::nullopt;
}

} // namespace korvane::astfile
