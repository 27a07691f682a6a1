#include "tracking/report_log.h"

#include <algorithm>
#include <cstring>

void ReportLog::setTrackCount(int count)
{
    m_wanted = std::clamp(static_cast<std::size_t>(count) * TrackOctets, LeastOctets, MostOctets);
}

// A round that has more tracks than when it began goes on; else the next one begins.
bool ReportLog::makeRoom(std::size_t needed)
{
    if (needed > LeastOctets) {
        return false;
    }
    if (!m_octets) {
        m_octets.reset(new unsigned char[MostOctets]); // not filled: what is not written takes no memory
    } else if (m_end + needed > m_wanted) {
        ++m_round;
        m_end = 0;
    }
    m_room = m_wanted;
    return true;
}

void ReportLog::clear()
{
    m_octets.reset();
    m_room = 0;
    m_end = 0;
    m_round += 2; // from the round before there may be links as well
}

// Of this round, or of the one before it and not yet written over.
bool ReportLog::isThere(ReportLink link) const
{
    const quint64 round = link >> RoundShift;
    const std::size_t begin = static_cast<quint32>(link);
    return m_octets && (round == m_round || (round + 1 == m_round && begin >= m_end));
}

QList<KeptReport> ReportLog::reports(ReportLink newest) const
{
    QList<KeptReport> reports;
    for (ReportLink link = newest; isThere(link) && reports.size() < MaximumReports;) {
        const unsigned char *const at = m_octets.get() + static_cast<quint32>(link);
        Header header{};
        std::memcpy(&header, at, HeaderSize);
        const QByteArray octets(reinterpret_cast<const char *>(at + HeaderSize), static_cast<qsizetype>(header.size));
        reports.append({header.form, header.timeMs, header.uap, octets});
        link = header.before;
    }
    return reports;
}
