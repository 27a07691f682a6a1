#pragma once

#include "asterix/asterix.h"
#include "tracking/report_ledger.h"

#include <QByteArray>
#include <QList>

#include <memory>

// One report as it came in.
struct KeptReport {
    TakenReport::Form form = TakenReport::Form::Asterix;
    qint64 timeMs = 0; // when it arrived, since 1970 UTC; a recording's own time
    const korvane::asterix::Uap *uap = nullptr; // with which the record was decoded; null for other formats
    QByteArray octets; // an ASTERIX record from its FSPEC on, a Mode S frame, a track record of Alenia SIR-M
};

// The last reports of one track, in one piece of memory of 6 KB at most that grows with need: nothing is allocated for
// a report once the ring is as large as it gets. Where memory or number run out the oldest make room.
class ReportRing {
public:
    static constexpr int MaximumReports = 50;
    static constexpr std::size_t MaximumOctets = 6000; // with what is noted beside each report

    // A report of more octets than the ring holds is left out.
    void add(TakenReport::Form form, qint64 timeMs, const korvane::asterix::Uap *uap, const unsigned char *octets,
        std::size_t size);

    int count() const { return m_count; }
    // Octets that are allocated.
    std::size_t capacity() const { return m_capacity; }
    // Copies, newest first.
    QList<KeptReport> reports() const;

private:
    struct Head; // before the octets of each report

    void dropOldest();
    void grow(std::size_t needed);
    void write(const void *from, std::size_t size);
    std::size_t read(std::size_t at, void *to, std::size_t size) const;

    std::unique_ptr<unsigned char[]> m_octets;
    quint16 m_capacity = 0;
    quint16 m_begin = 0; // of the oldest report
    quint16 m_used = 0;
    quint16 m_count = 0;
};
