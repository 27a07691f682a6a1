#pragma once

#include "asterix/asterix.h"
#include "tracking/report_ledger.h"

#include <QByteArray>
#include <QList>

#include <cstring>
#include <memory>

// One report as it came in.
struct KeptReport {
    TakenReport::Form form = TakenReport::Form::Asterix;
    qint64 timeMs = 0; // when it arrived, since 1970 UTC; a recording's own time
    const korvane::asterix::Uap *uap = nullptr; // with which the record was decoded; null for other formats
    QByteArray octets; // an ASTERIX record from its FSPEC on, a Mode S frame, a track record of Alenia SIR-M
};

// The last reports of one track, in one piece of memory of 6 KB at most that grows with need: nothing is allocated for
// a report once the ring is as large as it gets. Where room or number run out the oldest go.
class ReportRing {
public:
    static constexpr int MaximumReports = 50;
    static constexpr std::size_t MaximumOctets = 6000; // with what is noted beside each report

    // To be called some time before add(): fetches the memory that it will write to, which nobody has touched since the
    // report before.
    void expect() const
    {
        constexpr int CacheLine = 64;
        if (m_octets) {
            __builtin_prefetch(m_octets.get() + m_end, 1);
            __builtin_prefetch(m_octets.get() + m_end + CacheLine, 1);
        }
    }

    // A report of more octets than the ring holds is left out. Writes and reads nothing of the ring: its memory is cold
    // when a report comes, and it need not be waited for.
    void add(TakenReport::Form form, qint64 timeMs, const korvane::asterix::Uap *uap, const unsigned char *octets,
        std::size_t size)
    {
        const std::size_t needed = size + TailSize;
        if (needed > static_cast<std::size_t>(m_capacity - m_end) && !makeRoom(needed)) {
            return;
        }
        unsigned char *const to = m_octets.get() + m_end;
        std::memcpy(to, octets, size);
        const Tail tail{timeMs, uap, static_cast<quint16>(size), form};
        std::memcpy(to + size, &tail, TailSize);
        m_end = static_cast<quint16>(m_end + needed);
    }

    int count() const;
    // Octets that are allocated.
    std::size_t capacity() const { return m_capacity; }
    // Copies, newest first.
    QList<KeptReport> reports() const;

private:
    // After the octets of each report, so that they are found from the newest back.
    struct Tail {
        qint64 timeMs;
        const korvane::asterix::Uap *uap;
        quint16 size;
        TakenReport::Form form;
    };
    static constexpr std::size_t TailSize = 20; // without the filling at its end

    bool isRoomy() const;
    bool makeRoom(std::size_t needed);
    void grow(std::size_t capacity);
    // Calls take(begin, tail) for each report, newest first, until it has been called MaximumReports times.
    template <typename Take>
    void forEach(Take take) const;

    std::unique_ptr<unsigned char[]> m_octets;
    quint16 m_capacity = 0;
    quint16 m_end = 0; // of the newest report
    quint16 m_lastEnd = 0; // of the round before; what of it lies behind m_end is still there
};
