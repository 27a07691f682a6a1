#include "tracking/report_ring.h"

#include <algorithm>
#include <cstring>

namespace {
constexpr std::size_t CapacityStep = 512; // a few reports: most tracks of false targets have no more
}

struct ReportRing::Head {
    qint64 timeMs;
    const korvane::asterix::Uap *uap;
    quint16 size;
    TakenReport::Form form;
};

void ReportRing::add(TakenReport::Form form, qint64 timeMs, const korvane::asterix::Uap *uap,
    const unsigned char *octets, std::size_t size)
{
    const std::size_t needed = sizeof(Head) + size;
    if (needed > MaximumOctets) {
        return;
    }
    if (m_count == MaximumReports) {
        dropOldest();
    }
    if (m_used + needed > m_capacity) {
        grow(needed);
    }
    while (m_used + needed > m_capacity) {
        dropOldest();
    }
    Head head{};
    head.timeMs = timeMs;
    head.uap = uap;
    head.size = static_cast<quint16>(size);
    head.form = form;
    write(&head, sizeof head);
    write(octets, size);
    ++m_count;
}

void ReportRing::dropOldest()
{
    Head head{};
    read(m_begin, &head, sizeof head);
    const std::size_t size = sizeof head + head.size;
    m_begin = static_cast<quint16>((m_begin + size) % m_capacity);
    m_used = static_cast<quint16>(m_used - size);
    --m_count;
}

void ReportRing::grow(std::size_t needed)
{
    const std::size_t capacity = std::min(MaximumOctets, std::max(m_capacity + CapacityStep, m_used + needed));
    if (capacity <= m_capacity) {
        return;
    }
    auto octets = std::make_unique<unsigned char[]>(capacity);
    if (m_used > 0) {
        read(m_begin, octets.get(), m_used);
    }
    m_octets = std::move(octets);
    m_capacity = static_cast<quint16>(capacity);
    m_begin = 0;
}

void ReportRing::write(const void *from, std::size_t size)
{
    const std::size_t at = (m_begin + m_used) % m_capacity;
    const std::size_t first = std::min(size, m_capacity - at);
    const auto *octets = static_cast<const unsigned char *>(from);
    std::copy_n(octets, first, m_octets.get() + at);
    std::copy_n(octets + first, size - first, m_octets.get());
    m_used = static_cast<quint16>(m_used + size);
}

// Returns where the next piece begins.
std::size_t ReportRing::read(std::size_t at, void *to, std::size_t size) const
{
    const std::size_t first = std::min(size, m_capacity - at);
    auto *octets = static_cast<unsigned char *>(to);
    std::copy_n(m_octets.get() + at, first, octets);
    std::copy_n(m_octets.get(), size - first, octets + first);
    return (at + size) % m_capacity;
}

QList<KeptReport> ReportRing::reports() const
{
    QList<KeptReport> reports;
    reports.reserve(m_count);
    std::size_t at = m_begin;
    for (int i = 0; i < m_count; ++i) {
        Head head{};
        at = read(at, &head, sizeof head);
        KeptReport report{head.form, head.timeMs, head.uap, QByteArray(head.size, Qt::Uninitialized)};
        at = read(at, report.octets.data(), head.size);
        reports.append(report);
    }
    std::reverse(reports.begin(), reports.end());
    return reports;
}
