#pragma once

#include "tracking/report_outcome.h"

#include <QList>
#include <QMetaType>
#include <QPointF>
#include <QString>

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

// Someone whom the stream has named and who has no track now: whose reports are not made into one, or whose track has
// ended.
struct SeenIdentity {
    char callsign[9] = {}; // as sent; empty where it was not
    std::optional<quint16> modeA; // binary value
    quint32 address = 0; // 24 bits; 0: none
    quint32 sensorNumber = 0; // the sensor's own track number; 0: none
    quint32 trackNumber = 0; // the system's, of a track that has ended; 0: it had none
    quint8 category = 0; // of ASTERIX; 0: Mode S or SIR-M
    bool sourceKnown = false;
    quint8 sac = 0;
    quint8 sic = 0;
    ReportOutcome outcome = ReportOutcome::TrackEnd; // of the newest report
    quint64 reports = 0; // that have this outcome, since the identity came into the directory
    qint64 lastMs = 0; // arrival of the newest report; of a track that has ended: its last position
    qint64 endedMs = 0; // when the track ended; 0: no track
    bool endedBySource = false; // else for want of reports
    std::optional<QPointF> place; // plane metres

    bool hasEnded() const { return endedMs != 0; }
    // Whether it can be looked for at all.
    bool isNamed() const { return callsign[0] || modeA || address != 0 || sensorNumber != 0; }
};

// What an operator types to look for somebody: all that the text can mean.
struct IdentityQuery {
    QString callsign; // upper case
    std::optional<quint16> modeA; // of four octal digits
    std::optional<quint32> address; // of six hexadecimal digits
    std::optional<quint32> number; // of digits

    // "vyx123", "7000", "4b1a2c", "42" or "#42". Nothing of an empty text.
    static IdentityQuery fromText(const QString &text);
    bool isEmpty() const { return callsign.isEmpty(); }
    // A callsign matches by its beginning from three characters on.
    bool matches(const QString &otherCallsign, std::optional<quint16> otherModeA, quint32 otherAddress,
        std::initializer_list<quint32> otherNumbers) const;
    bool matches(const SeenIdentity &seen) const;
};

// Whom the stream has named last, the least recently named going out first. Bounded; nothing is allocated for a report
// once it is full. One thread.
class IdentityDirectory {
public:
    static constexpr std::size_t MaximumIdentities = 8192;

    // seen.reports is counted here. Ended tracks have an entry of their own beside those of reports.
    void note(const SeenIdentity &seen);
    void clear();

    std::size_t size() const { return m_entries.size(); }
    // Newest first.
    QList<SeenIdentity> find(const IdentityQuery &query) const;

private:
    static constexpr int None = -1;

    struct Entry {
        SeenIdentity seen;
        quint64 key = 0;
        int newer = None; // neighbours by age
        int older = None;
    };

    static quint64 keyOf(const SeenIdentity &seen);
    int add(quint64 key);
    void unlink(int index);
    void linkAsNewest(int index);

    std::vector<Entry> m_entries;
    std::unordered_map<quint64, int> m_index;
    int m_newest = None;
    int m_oldest = None;
};
