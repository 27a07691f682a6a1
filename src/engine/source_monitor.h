#pragma once

#include "asterix/asterix.h"
#include "engine/antenna_meter.h"
#include "engine/delay_meter.h"
#include "engine/source_statistics.h"
#include "tracking/clock.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

// Counts what arrives from each source and what became of it. The router tells where messages and blocks begin; the
// records come in as to any ledger. In the steady state nothing is allocated, but for an example of an outcome once a
// second. Engine's thread.
class SourceMonitor final : public ReportLedger {
public:
    explicit SourceMonitor(SharedClock clock) : m_clock(std::move(clock)) { restart(0.0); }

    void setClock(SharedClock clock) { m_clock = std::move(clock); }

    // Forgets all counts. Seconds between two reports of the sensor as it is configured, 0 where that is not known.
    void restart(double reportPeriod);
    // What the input reads, for people.
    void setEndpoints(const QStringList &endpoints) { m_totals.endpoints = endpoints; }

    // The time of what comes next; to be called every fifth of a second, and by recordings that jump through time with
    // every message.
    void advance();

    // A message of the input begins, or a block in it: from its first octet to its end, as far as there is one.
    void beginMessage(qint64 octets, int endpoint)
    {
        if (m_clock->isRecorded()) {
            advance();
        }
        ++m_totals.messages;
        m_totals.octets += static_cast<quint64>(octets);
        m_totals.lastMessageMs = m_nowMs;
        if (endpoint != m_endpoint) {
            m_endpoint = endpoint;
            forgetLast();
        }
    }
    void beginBlock(std::size_t octets)
    {
        ++m_block;
        m_blockOctets = octets;
    }
    void countUndecodable() { ++m_totals.undecodableMessages; }
    void countTrailed() { ++m_totals.trailedMessages; }

    void setBacklog(const InputBacklog &backlog) { m_totals.backlog = backlog; }

    // Most records come from where the last one came and became what others of their block did: those need nothing but
    // counting.
    bool needsCountingOnly(const TakenReport &report) const
    {
        return report.record && isAsLast(*report.record)
            && m_last->lookedAt[static_cast<std::size_t>(report.fate.outcome)] == m_block;
    }
    void count(const TakenReport &report) { ++m_last->values.outcomes[static_cast<std::size_t>(report.fate.outcome)]; }

    void take(const TakenReport &report) override;

    // Everything but what the engine knows of its input.
    InputStatistics statistics() const;

private:
    // Whole buckets, and the one under way.
    static constexpr quint8 VideoCategory = 240;
    static constexpr int Seconds = (SourceStatistics::HistoryBuckets + 1) * SourceStatistics::BucketSeconds;

    struct Source {
        SourceStatistics values; // but for the records, which are the sum of the outcomes
        quint64 lastMessage = 0; // as counted by the input
        quint64 lastBlock = 0;
        quint64 countedRecords = 0; // those in the seconds
        qint64 lastBucket = 0; // the stretch of ten seconds in which it was heard last
        int buckets = 0; // in how many it was heard
        std::array<quint32, Seconds> seconds{}; // records in each of the last seconds, by indexOf()
        // By outcome: the block in which a record of it was looked at last, and when the next one is to be an example.
        std::array<quint64, ReportOutcomeCount> lookedAt{};
        std::array<qint64, ReportOutcomeCount> nextExampleMs{};
        DelayMeter delay;
        AntennaMeter antenna;
        quint32 videoSequence = 0; // of the last record of CAT240

        quint64 records() const;
        bool isRegular(qint64 bucket) const;
        quint32 recordsIn(qint64 firstSecond, qint64 span) const;
        void forgetTime();
    };
    static std::size_t indexOf(qint64 second)
    {
        return static_cast<std::size_t>((second % Seconds + Seconds) % Seconds);
    }
    // Which source a record is of, without its edition.
    struct Key {
        TakenReport::Form form = TakenReport::Form::Asterix;
        quint8 category = 0;
        quint8 endpoint = 0;
        bool identified = false;
        quint8 sac = 0;
        quint8 sic = 0;

        quint64 packed() const;
    };

    // All categories have the source as their first item.
    static _ast_sacsic_t sourceIn(const _ast_datarecord_t &record)
    {
        const std::uint16_t at = record.itemOffsets[0];
        return at == 0 ? _ast_sacsic_t{} : _ast_sacsic_t{true, record.data[at], record.data[at + 1]};
    }
    // Whether it names its source, and the last record was of the same one, on the same way, by the same description.
    bool isAsLast(const _ast_datarecord_t &record) const
    {
        const std::uint16_t at = record.itemOffsets[0];
        return at != 0 && record.uap == m_lastUap && codeAt(record.data + at) == m_lastCode;
    }
    // SAC and SIC, in whatever order.
    static std::uint16_t codeAt(const unsigned char *octets)
    {
        std::uint16_t code = 0;
        std::memcpy(&code, octets, sizeof code);
        return code;
    }
    void forgetLast()
    {
        m_last = nullptr;
        m_lastUap = nullptr;
    }
    Source &sourceOf(const TakenReport &report);
    Source &findSource(const TakenReport &report);
    Key keyOf(const TakenReport &report) const;
    Source &find(const TakenReport &report, quint64 key);
    Source *makeRoom();
    void beginIn(Source &source, const TakenReport &report);
    void measure(Source &source, const TakenReport &report) const;
    void measureAntenna(Source &source, const TakenReport &report) const;
    static void measureVideo(Source &source, const TakenReport &report);
    void keepExample(Source &source, const TakenReport &report) const;
    void endSecond(qint64 passed);
    void setSecond(qint64 second);
    void addRates(SourceStatistics &values, const Source &source) const;
    double expectedInterval(const SourceStatistics &values) const;

    SharedClock m_clock;
    double m_reportPeriod = 0.0;
    InputStatistics m_totals; // without sources
    qint64 m_nowMs = 0;
    qint64 m_second = 0; // the one under way, since 1970
    qint64 m_bucket = 0; // the stretch of ten of them under way
    int m_endpoint = 0;
    quint64 m_block = 0; // counted from 1 on
    std::size_t m_blockOctets = 0;
    int m_admissions = 0; // of sources for which another had to go, in this second

    std::vector<quint64> m_keys; // of the sources, packed, with their editions: searched through quickly
    std::vector<std::unique_ptr<Source>> m_sources;
    Source m_others;
    // The last record's, where it was decoded and names its source.
    Source *m_last = nullptr;
    const void *m_lastUap = nullptr;
    std::uint16_t m_lastCode = 0;
};
