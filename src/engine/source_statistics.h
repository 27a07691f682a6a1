#pragma once

#include "tracking/report_ledger.h"
#include "tracking/report_outcome.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

// What the engine counts of its input, as plain values for the window. Times are those of the pipeline's clock in
// milliseconds since 1970 UTC: the recording's own while one plays, and standing still while the input is paused.

// A record as it was received, to be shown.
struct ReportExample {
    static constexpr qsizetype LargestSize = 256;

    QByteArray octets; // no more than LargestSize of them; empty: there is none
    quint32 size = 0; // of the whole record
    qint64 timeMs = 0; // of arrival
    QString fault; // of one that is malformed: why, in English; empty otherwise
    quint32 faultOffset = 0; // octets from the first
};

// From the time of day in the records, of one in five a second at most, to their arrival. A source whose clock is ahead
// has a negative delay. Seconds.
struct DelayStatistics {
    int samples = 0; // of the last 256 that the values are made of; 0: the source sends no time of day
    double median = 0.0;
    double percentile95 = 0.0;
    double smallest = 0.0; // the clock's offset and the shortest way: below 0, the clock is ahead by at least that
    double latest = 0.0;
    quint64 jumps = 0; // changes by more than a second from one sample to the next, since the beginning
};

// What a radar's own messages say of its antenna (CAT002, CAT034, SIR-M).
struct AntennaStatistics {
    quint64 northMarkers = 0;
    quint64 sectorCrossings = 0;
    quint64 revolutions = 0; // whole ones that were measured
    double period = 0.0; // seconds, the mean of the last ten revolutions; 0: not measured
    double periodDeviation = 0.0; // seconds, the standard deviation of those
    int sectors = 0; // crossings in a whole revolution; 0: it sends none, or not yet enough to tell
    // Sequence gaps. ASTERIX numbers no datagrams; what shows that some were lost is a sector missing in a revolution.
    quint64 missingSectors = 0;
};

// A source is a SAC/SIC, its category and edition, and the endpoint that it arrives at.
struct SourceStatistics {
    static constexpr int HistoryBuckets = 60;
    static constexpr int BucketSeconds = 10;

    TakenReport::Form form = TakenReport::Form::Asterix;
    bool identified = false; // SAC and SIC are sent; of SIR-M, SIC is the radar's number at its site
    quint8 sac = 0;
    quint8 sic = 0;
    quint8 category = 0; // of ASTERIX
    QByteArray edition; // that decoded it, such as "1.32"; empty where nothing was decoded
    int endpoint = 0; // index into InputStatistics::endpoints

    quint64 datagrams = 0; // messages of the input that hold something of it
    quint64 blocks = 0;
    quint64 records = 0;
    quint64 octets = 0; // of its blocks, headers included

    double rate10 = 0.0; // records a second over the last ten seconds
    double rate60 = 0.0; // and the last minute; over as long as it has been heard where that is shorter
    // Records in each ten seconds of the last ten minutes, the oldest first, zeros before it was heard for the
    // first time. Buckets end at whole ten seconds of the pipeline's clock.
    std::array<quint32, HistoryBuckets> history{};

    qint64 firstArrivalMs = 0; // these two to a fifth of a second
    qint64 lastArrivalMs = 0;
    // Seconds between two reports of a target, two north markers and so on: the period that was measured on this
    // source's antenna, else the sensor's as it is configured; 0 where neither is known.
    double expectedInterval = 0.0;

    DelayStatistics delay;
    AntennaStatistics antenna; // of the categories that tell of one
    quint64 missingMessages = 0; // of CAT240, which alone numbers its messages (I240/020)

    std::array<quint64, ReportOutcomeCount> outcomes{}; // their sum is records
    std::array<ReportExample, ReportOutcomeCount> examples; // the last one, or one of the last second

    quint64 outcome(ReportOutcome which) const { return outcomes[static_cast<std::size_t>(which)]; }
    const ReportExample &example(ReportOutcome which) const { return examples[static_cast<std::size_t>(which)]; }
};

// What the system keeps for a live input; nothing for others.
struct InputBacklog {
    qint64 octets = 0; // that wait to be read
    quint64 kernelDrops = 0; // messages that found no room, since the input was opened
};

// Published every second, whether or not anything arrives, and when an input is opened or closed.
struct InputStatistics {
    qint64 timeMs = 0;
    bool recordedTime = false; // the recording's own
    bool open = false; // while it is not, the counts are those of the input before
    bool paused = false; // nothing is counted
    quint64 requestId = 0; // of the opening

    QStringList endpoints; // what the input reads: "239.0.0.1:50000", a serial device, a file

    // Of the whole input since it was opened, or the recording rewound.
    quint64 messages = 0;
    quint64 octets = 0;
    quint64 undecodableMessages = 0; // nothing in them could be decoded, from their first octet on
    quint64 trailedMessages = 0; // octets that begin no block follow the last one: check sequences, recorders' own
    std::optional<qint64> lastMessageMs; // to a fifth of a second

    InputBacklog backlog;

    // By category, SAC/SIC and so on. At most MaximumSources; what is heard once goes first when there are more.
    static constexpr int MaximumSources = 256;
    QList<SourceStatistics> sources;
    SourceStatistics others; // the sums of those that had no room: records, octets, blocks, outcomes
    quint64 otherSources = 0; // how many of them, some counted more than once
};
