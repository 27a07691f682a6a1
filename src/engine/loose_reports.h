#pragma once

#include "tracking/report_ring.h"

#include <QPointF>

#include <optional>
#include <vector>

// The newest reports that belong to no track, by the place that they tell: plots, and messages that have none. Bounded
// by octets and by number; nothing is allocated for a report once both are reached. One thread.
class LooseReports {
public:
    // Memory is taken when the first report comes.
    LooseReports(std::size_t maximumOctets, std::size_t maximumReports);

    // A report larger than all the room is left out.
    void add(const TakenReport &report, qint64 timeMs);
    void clear();

    std::size_t count() const { return m_count; }
    // Newest first, at most so many.
    QList<KeptReport> newest(int maximum) const;
    // Of those that told a place within the radius, plane metres, those of the nearest place: a target that stands
    // still is reported there again and again.
    QList<KeptReport> near(const QPointF &place, double radius, int maximum) const;

private:
    struct Entry {
        qint64 timeMs = 0;
        const korvane::asterix::Uap *uap = nullptr;
        std::optional<QPointF> place;
        std::size_t begin = 0; // of its octets, which are in one piece
        quint32 size = 0;
        TakenReport::Form form = TakenReport::Form::Asterix;
    };

    // By age, 0 is the oldest.
    const Entry &entry(std::size_t i) const { return m_entries[(m_first + i) % m_entries.size()]; }
    void dropOldest();
    std::optional<std::size_t> makeRoom(std::size_t size);
    KeptReport keptReport(const Entry &kept) const;

    const std::size_t m_maximumOctets;
    const std::size_t m_maximumReports;
    std::vector<unsigned char> m_octets;
    std::vector<Entry> m_entries; // round and round
    std::size_t m_first = 0; // the oldest
    std::size_t m_count = 0;
};
