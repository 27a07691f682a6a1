#pragma once

#include "tracking/kept_report.h"
#include "tracking/octet_copy.h"
#include "tracking/report_link.h"

#include <QList>

#include <memory>
#include <new>

// The last reports of all tracks, one behind the other as they came; each says where the one before it of the same
// track stands. Writing goes on through memory that nobody has to wait for, whichever track a report belongs to. At the
// end it begins anew over the oldest: what a track has in it is what came in the time of one round, which grows with
// the number of tracks. One thread.
class ReportLog {
public:
    static constexpr int MaximumReports = 50; // of a track that are told
    static constexpr std::size_t TrackOctets = 6000; // room for each, what is noted beside the reports included
    static constexpr std::size_t LeastOctets = 256 * 1024;
    static constexpr std::size_t MostOctets = 64 * 1024 * 1024;

    // Room for so many tracks from the next round on; more are taken account of before it begins.
    void setTrackCount(int count);

    // Whether a report of so many octets needs nothing but writing.
    bool hasRoomFor(std::size_t size) const { return sizeFor(size) <= m_room - m_end; }

    // Behind the newest report of its track, which is then this one. Memory is taken with the first.
    void add(ReportLink &newest, TakenReport::Form form, qint64 timeMs, const korvane::asterix::Uap *uap,
        const unsigned char *octets, std::size_t size)
    {
        if (!hasRoomFor(size) && !makeRoom(sizeFor(size))) {
            return;
        }
        unsigned char *const to = m_octets.get() + m_end;
        new (to) Header{newest, timeMs, uap, static_cast<quint32>(size), form};
        copyOctets(to + HeaderSize, octets, size);
        newest = m_round << RoundShift | m_end;
        m_end += sizeFor(size);
    }

    // Copies of a track's reports, newest first, as far as they are still there.
    QList<KeptReport> reports(ReportLink newest) const;
    // Gives the memory back. Links from before lead nowhere.
    void clear();

    std::size_t room() const { return m_room; } // octets of a round; 0 while there is no memory

private:
    struct Header {
        ReportLink before;
        qint64 timeMs;
        const korvane::asterix::Uap *uap;
        quint32 size;
        TakenReport::Form form;
    };
    static constexpr std::size_t HeaderSize = sizeof(Header);
    static constexpr std::size_t Alignment = alignof(Header);
    static constexpr int RoundShift = 32;
    static constexpr std::size_t sizeFor(std::size_t octets)
    {
        return (HeaderSize + octets + Alignment - 1) & ~(Alignment - 1);
    }

    // A link is the round, from 1 on, and the place in it.
    bool isThere(ReportLink link) const;
    bool makeRoom(std::size_t needed);

    std::unique_ptr<unsigned char[]> m_octets; // MostOctets of address space; memory as far as it is written
    std::size_t m_wanted = LeastOctets; // room for the tracks that there are
    std::size_t m_room = 0;
    std::size_t m_end = 0; // of the newest report
    quint64 m_round = 1;
};
