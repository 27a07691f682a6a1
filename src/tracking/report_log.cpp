#include "tracking/report_ring.h"

#include <algorithm>

namespace {
constexpr std::size_t CapacityStep = 512; // a few reports: most tracks of false targets have no more
}

template <typename Take>
void ReportRing::forEach(Take take) const
{
    int left = MaximumReports;
    const auto walkBack = [&](std::size_t end, std::size_t least) {
        while (end >= least + TailSize && left > 0) {
            Tail tail{};
            std::memcpy(&tail, m_octets.get() + end - TailSize, TailSize);
            if (end < least + TailSize + tail.size) {
                return; // partly written over
            }
            end -= TailSize + tail.size;
            take(end, tail);
            --left;
        }
    };
    walkBack(m_end, 0);
    if (m_lastEnd > m_end) {
        walkBack(m_lastEnd, m_end);
    }
}

int ReportRing::count() const
{
    int count = 0;
    forEach([&count](std::size_t, const Tail &) { ++count; });
    return count;
}

// Where a round ends and the next one begins room for a report each is lost.
bool ReportRing::isRoomy() const
{
    int count = 0;
    std::size_t used = 0;
    std::size_t largest = 0;
    forEach([&](std::size_t, const Tail &tail) {
        ++count;
        used += tail.size + TailSize;
        largest = std::max(largest, tail.size + TailSize);
    });
    return count == MaximumReports && used + 2 * largest <= m_capacity;
}

// At the end of a round: a larger ring while it holds too few, else another round.
bool ReportRing::makeRoom(std::size_t needed)
{
    if (needed > MaximumOctets) {
        return false;
    }
    if (m_capacity < MaximumOctets && (!isRoomy() || needed > m_capacity)) {
        grow(std::min(MaximumOctets, std::max(m_capacity + CapacityStep, m_end + needed)));
    }
    if (needed > static_cast<std::size_t>(m_capacity - m_end)) {
        m_lastEnd = m_end;
        m_end = 0;
    }
    return true;
}

// What there is moves to the beginning, the oldest first.
void ReportRing::grow(std::size_t capacity)
{
    auto octets = std::make_unique<unsigned char[]>(capacity);
    std::size_t size = 0;
    forEach([&size](std::size_t, const Tail &tail) { size += tail.size + TailSize; });
    std::size_t end = size;
    forEach([&](std::size_t begin, const Tail &tail) {
        end -= tail.size + TailSize;
        std::copy_n(m_octets.get() + begin, tail.size + TailSize, octets.get() + end);
    });
    m_octets = std::move(octets);
    m_capacity = static_cast<quint16>(capacity);
    m_end = static_cast<quint16>(size);
    m_lastEnd = 0;
}

QList<KeptReport> ReportRing::reports() const
{
    QList<KeptReport> reports;
    forEach([&](std::size_t begin, const Tail &tail) {
        const auto *octets = reinterpret_cast<const char *>(m_octets.get() + begin);
        reports.append(KeptReport{tail.form, tail.timeMs, tail.uap, QByteArray(octets, tail.size)});
    });
    return reports;
}
