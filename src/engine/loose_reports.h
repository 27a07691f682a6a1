#pragma once

#include "tracking/kept_report.h"
#include "tracking/octet_copy.h"

#include <QList>
#include <QPointF>

#include <memory>
#include <new>

// A report that belongs to no track.
struct LooseReport {
    quint32 size = 0; // of its octets, which follow
    quint32 address = 0; // 0: none
    quint32 sensorNumber = 0; // 0: none
    TakenReport::Form form = TakenReport::Form::Asterix;
    ReportOutcome outcome = ReportOutcome::Plot;
    quint8 category = 0;
    bool placed = false;
    qint64 timeMs = 0;
    const korvane::asterix::Uap *uap = nullptr;
    QPointF place; // plane metres, where it is placed

    const unsigned char *octets() const { return reinterpret_cast<const unsigned char *>(this + 1); }
};

// The newest reports that belong to no track, by the place that they tell: plots, and messages that have none. They
// stand one behind the other in memory that is written round and round, the oldest making room for the newest. One
// thread.
class LooseReports {
public:
    // Octets in all, what is noted beside each report included. Memory is taken when the first report comes.
    explicit LooseReports(quint32 room) : m_capacity(room & ~(Alignment - 1)) { }

    // Whether the report needs nothing but writing.
    bool hasRoomFor(const TakenReport &report) const { return report.octets && sizeFor(report.size) <= m_free; }

    // A report larger than all the room is left out, and one without octets.
    void add(const TakenReport &report, qint64 timeMs)
    {
        if (!hasRoomFor(report) && !makeRoomFor(report)) {
            return;
        }
        unsigned char *const to = m_memory.get() + m_end;
        new (to) LooseReport{report.size, report.fate.address.value_or(0), report.fate.sensorTrackNumber, report.form,
            report.fate.outcome, report.category, report.fate.place.has_value(), timeMs,
            report.record ? report.record->uap : nullptr, report.fate.place.value_or(QPointF())};
        copyOctets(to + sizeof(LooseReport), report.octets, report.size);
        m_end += sizeFor(report.size);
        m_free -= sizeFor(report.size);
        ++m_count;
        ++m_fresh;
    }
    void clear();

    // Newest first, at most so many.
    QList<KeptReport> newest(qsizetype maximum) const;
    // Of those that told a place within the radius, plane metres, those of the nearest place: a target that stands
    // still is reported there again and again.
    QList<KeptReport> near(const QPointF &place, double radius, qsizetype maximum) const;

    // Those that came since the call before, as far as they are still there, the oldest first.
    template <typename Take>
    void takeNew(Take take)
    {
        quint32 at = m_freshAt;
        for (quint32 i = 0; i < m_fresh; ++i) {
            const LooseReport &report = next(at);
            take(report, report.octets());
        }
        m_fresh = 0;
        m_freshAt = at;
    }

private:
    static constexpr quint32 Alignment = alignof(LooseReport);
    static constexpr quint32 sizeFor(quint32 octets)
    {
        return (static_cast<quint32>(sizeof(LooseReport)) + octets + Alignment - 1) & ~(Alignment - 1);
    }

    // The report at a place, or the first one where none follows; at goes on behind it.
    const LooseReport &next(quint32 &at) const
    {
        if (at == m_wrap) {
            at = 0;
        }
        const auto *report = reinterpret_cast<const LooseReport *>(m_memory.get() + at);
        at += sizeFor(report->size);
        return *report;
    }
    bool makeRoomFor(const TakenReport &report);
    bool makeRoom(quint32 needed);
    void dropBefore(quint32 end);
    template <typename Wanted>
    QList<KeptReport> newestOf(Wanted wanted, qsizetype maximum) const;

    const quint32 m_capacity;
    std::unique_ptr<unsigned char[]> m_memory;
    // Where the newest report ends, and what may be written from there on before the oldest, or the end, is reached.
    quint32 m_end = 0;
    quint32 m_free = 0;
    quint32 m_oldest = 0;
    quint32 m_wrap = 0; // end of the last report before those that begin anew; the capacity while none does
    quint32 m_count = 0;
    quint32 m_fresh = 0; // reports that were not taken yet, the newest ones
    quint32 m_freshAt = 0; // the oldest of them
};
