#include "engine/loose_reports.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace {

constexpr double SamePlace = 1.0; // metres
constexpr quint32 RoomsAtOnce = 64; // part of all the room that is made at a time

double distanceOf(const QPointF &a, const QPointF &b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

KeptReport keptReport(const LooseReport &kept)
{
    const auto *octets = reinterpret_cast<const char *>(kept.octets());
    return {kept.form, kept.timeMs, kept.uap, QByteArray(octets, static_cast<qsizetype>(kept.size))};
}

} // namespace

bool LooseReports::makeRoomFor(const TakenReport &report)
{
    return report.octets && makeRoom(sizeFor(report.size));
}

// Behind the newest, or at the beginning where too little is left at the end. The oldest in the way go.
bool LooseReports::makeRoom(quint32 needed)
{
    if (needed > m_capacity) {
        return false;
    }
    if (!m_memory) {
        m_memory.reset(new unsigned char[m_capacity]); // not filled: what is not written takes no memory
        clear();
    }
    const quint32 wanted = std::max(needed, m_capacity / RoomsAtOnce);
    for (;;) {
        const bool oldestFollows = m_count > 0 && m_oldest >= m_end;
        m_free = (oldestFollows ? m_oldest : m_capacity) - m_end;
        if (m_free >= (oldestFollows ? wanted : needed)) {
            return true;
        }
        if (oldestFollows) {
            dropBefore(m_end + wanted);
        } else {
            m_wrap = m_end;
            m_end = 0;
        }
    }
}

// Those in the way of what is to end at the place, up to the last one before those that begin anew.
void LooseReports::dropBefore(quint32 end)
{
    quint32 at = m_oldest;
    quint32 left = m_count;
    for (; left > 0 && at < end && at != m_wrap; --left) {
        at += sizeFor(reinterpret_cast<const LooseReport *>(m_memory.get() + at)->size);
    }
    if (left == 0) {
        clear();
        return;
    }
    m_oldest = at;
    m_count = left;
    if (m_oldest == m_wrap) {
        m_freshAt = m_freshAt == m_wrap ? 0 : m_freshAt;
        m_wrap = m_capacity;
        m_oldest = 0;
    }
    if (m_fresh > m_count) {
        m_fresh = m_count;
        m_freshAt = m_oldest;
    }
}

void LooseReports::clear()
{
    m_free = m_memory ? m_capacity : 0;
    m_wrap = m_capacity;
    m_end = m_oldest = m_freshAt = 0;
    m_count = m_fresh = 0;
}

template <typename Wanted>
QList<KeptReport> LooseReports::newestOf(Wanted wanted, qsizetype maximum) const
{
    std::vector<const LooseReport *> reports;
    quint32 at = m_oldest;
    for (quint32 i = 0; i < m_count; ++i) {
        const LooseReport &report = next(at);
        if (wanted(report)) {
            reports.push_back(&report);
        }
    }
    QList<KeptReport> found;
    for (auto report = reports.rbegin(); report != reports.rend() && found.size() < maximum; ++report) {
        found.append(keptReport(**report));
    }
    return found;
}

QList<KeptReport> LooseReports::newest(qsizetype maximum) const
{
    return newestOf([](const LooseReport &) { return true; }, maximum);
}

QList<KeptReport> LooseReports::near(const QPointF &place, double radius, qsizetype maximum) const
{
    std::optional<QPointF> nearest;
    double least = radius;
    quint32 at = m_oldest;
    for (quint32 i = 0; i < m_count; ++i) {
        const LooseReport &there = next(at);
        if (there.placed && distanceOf(there.place, place) <= least) {
            least = distanceOf(there.place, place);
            nearest = there.place;
        }
    }
    const auto isThere = [&nearest](const LooseReport &report) {
        return nearest && report.placed && distanceOf(report.place, *nearest) <= SamePlace;
    };
    return newestOf(isThere, maximum);
}
