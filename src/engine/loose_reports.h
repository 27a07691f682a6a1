#pragma once

#include "tracking/kept_report.h"

#include <QPointF>

#include <algorithm>
#include <optional>
#include <vector>

// A report that belongs to no track.
struct LooseReport {
    qint64 timeMs = 0;
    const korvane::asterix::Uap *uap = nullptr;
    QPointF place; // plane metres, where it is placed
    quint32 size = 0;
    quint32 address = 0; // 0: none
    quint32 sensorNumber = 0; // 0: none
    TakenReport::Form form = TakenReport::Form::Asterix;
    ReportOutcome outcome = ReportOutcome::Plot;
    quint8 category = 0;
    bool placed = false;
    std::size_t begin = 0; // of its octets among all, which are in one piece
};

// The newest reports that belong to no track, by the place that they tell: plots, and messages that have none. Bounded
// by octets and by number; nothing is allocated for a report once both are reached. One thread.
class LooseReports {
public:
    // Memory is taken when the first report comes.
    LooseReports(std::size_t maximumOctets, std::size_t maximumReports);

    // A report larger than all the room is left out.
    void add(const TakenReport &report, qint64 timeMs);
    void clear();

    // Newest first, at most so many.
    QList<KeptReport> newest(int maximum) const;
    // Of those that told a place within the radius, plane metres, those of the nearest place: a target that stands
    // still is reported there again and again.
    QList<KeptReport> near(const QPointF &place, double radius, int maximum) const;

    // Those that came since the call before, as far as they are still there, the oldest first.
    template <typename Take>
    void takeNew(Take take)
    {
        const auto fresh = static_cast<std::size_t>(std::min<quint64>(m_added - m_taken, m_count));
        for (std::size_t i = m_count - fresh; i < m_count; ++i) {
            take(entry(i), m_octets.data() + entry(i).begin);
        }
        m_taken = m_added;
    }

private:
    // By age, 0 is the oldest.
    const LooseReport &entry(std::size_t i) const { return m_entries[wrapped(m_first + i)]; }
    std::size_t wrapped(std::size_t i) const { return i < m_maximumReports ? i : i - m_maximumReports; }
    void dropOldest();
    std::optional<std::size_t> makeRoom(std::size_t size);
    KeptReport keptReport(const LooseReport &kept) const;

    const std::size_t m_maximumOctets;
    const std::size_t m_maximumReports;
    std::vector<unsigned char> m_octets;
    std::vector<LooseReport> m_entries; // round and round
    std::size_t m_first = 0; // the oldest
    std::size_t m_count = 0;
    quint64 m_added = 0; // since it was made
    quint64 m_taken = 0; // of them
};
