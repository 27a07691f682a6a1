#include "engine/loose_reports.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double SamePlace = 1.0; // metres

double distanceOf(const QPointF &a, const QPointF &b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

} // namespace

LooseReports::LooseReports(std::size_t maximumOctets, std::size_t maximumReports)
    : m_maximumOctets(maximumOctets), m_maximumReports(maximumReports)
{
}

void LooseReports::add(const TakenReport &report, qint64 timeMs)
{
    if (m_entries.empty()) {
        m_octets.resize(m_maximumOctets);
        m_entries.resize(m_maximumReports);
    }
    const auto begin = report.octets ? makeRoom(report.size) : std::nullopt;
    if (!begin) {
        return;
    }
    std::copy_n(report.octets, report.size, m_octets.data() + *begin);
    LooseReport &kept = m_entries[wrapped(m_first + m_count)];
    kept.timeMs = timeMs;
    kept.uap = report.record ? report.record->uap : nullptr;
    kept.placed = report.place.has_value();
    kept.place = kept.placed ? *report.place : QPointF();
    kept.size = report.size;
    kept.address = report.address.value_or(0);
    kept.sensorNumber = report.sensorTrackNumber;
    kept.form = report.form;
    kept.outcome = report.outcome;
    kept.category = report.category;
    kept.begin = *begin;
    ++m_count;
    ++m_added;
}

void LooseReports::dropOldest()
{
    m_first = wrapped(m_first + 1);
    --m_count;
}

// Behind the newest, or at the beginning where too little is left at the end. The oldest in the way go.
std::optional<std::size_t> LooseReports::makeRoom(std::size_t size)
{
    if (size > m_maximumOctets) {
        return std::nullopt;
    }
    if (m_count == m_maximumReports) {
        dropOldest();
    }
    if (m_count == 0) {
        return 0;
    }
    const LooseReport &newest = entry(m_count - 1);
    std::size_t begin = newest.begin + newest.size;
    if (begin + size > m_maximumOctets) {
        // What lies behind is passed over: it is older than anything at the beginning.
        while (m_count > 0 && entry(0).begin >= begin) {
            dropOldest();
        }
        begin = 0;
    }
    while (m_count > 0 && entry(0).begin < begin + size && entry(0).begin + entry(0).size > begin) {
        dropOldest();
    }
    return begin;
}

void LooseReports::clear()
{
    m_count = 0;
}

KeptReport LooseReports::keptReport(const LooseReport &kept) const
{
    const auto *octets = reinterpret_cast<const char *>(m_octets.data() + kept.begin);
    return {kept.form, kept.timeMs, kept.uap, QByteArray(octets, static_cast<qsizetype>(kept.size))};
}

QList<KeptReport> LooseReports::newest(int maximum) const
{
    QList<KeptReport> found;
    for (std::size_t i = m_count; i > 0 && found.size() < maximum; --i) {
        found.append(keptReport(entry(i - 1)));
    }
    return found;
}

QList<KeptReport> LooseReports::near(const QPointF &place, double radius, int maximum) const
{
    std::optional<QPointF> nearest;
    double least = radius;
    for (std::size_t i = 0; i < m_count; ++i) {
        const LooseReport &there = entry(i);
        if (there.placed && distanceOf(there.place, place) <= least) {
            least = distanceOf(there.place, place);
            nearest = there.place;
        }
    }
    QList<KeptReport> found;
    for (std::size_t i = m_count; nearest && i > 0 && found.size() < maximum; --i) {
        const LooseReport &kept = entry(i - 1);
        if (kept.placed && distanceOf(kept.place, *nearest) <= SamePlace) {
            found.append(keptReport(kept));
        }
    }
    return found;
}
