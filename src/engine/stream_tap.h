#pragma once

#include "tracking/clock.h"
#include "tracking/report_ledger.h"

#include <QMutex>
#include <QtGlobal>

#include <memory>
#include <span>
#include <vector>

namespace korvane::asterix {
struct Uap;
}

// A piece of what an input received, in the order in which it came.
struct StreamBatch {
    // A datagram, a piece of a serial line's octets, a recorded message: with its envelope.
    struct Message {
        qint64 timeMs = 0; // of arrival, since 1970 UTC; a recording's own time
        quint32 offset = 0; // in octets
        quint32 size = 0;
    };
    // What TakenReport says of a record, without what points elsewhere.
    struct Record {
        qint64 timeMs = 0;
        quint32 offset = 0;
        quint32 size = 0;
        const korvane::asterix::Uap *uap = nullptr; // that decoded it; null in other forms and where nothing did
        const char *fault = nullptr; // static; null for records that are whole
        quint32 faultOffset = 0;
        quint32 address = NoAddress;
        quint32 trackNumber = 0; // system track number; 0: none
        quint32 sensorTrackNumber = 0; // 0: none
        TakenReport::Form form = TakenReport::Form::Asterix;
        quint8 category = 0;
        ReportOutcome outcome = ReportOutcome::Malformed;
        bool identified = false; // SAC and SIC are told; of SIR-M, SIC is the radar's number
        quint8 sac = 0;
        quint8 sic = 0;
    };
    static constexpr quint32 NoAddress = 0xFFFFFFFF;

    // As the tap was asked for, one of the two is empty.
    std::vector<Message> messages;
    std::vector<Record> records;
    std::vector<unsigned char> octets;

    std::span<const unsigned char> octetsOf(const Record &record) const
    {
        return {octets.data() + record.offset, record.size};
    }
    std::span<const unsigned char> octetsOf(const Message &message) const
    {
        return {octets.data() + message.offset, message.size};
    }
};

// Copies of what an input receives, for somebody on another thread who looks at the stream as it comes. What waits is
// bounded: a reader who is too slow, or does not read at all, gets the newest and is told how many he missed. A
// batch begins with the room that those before it took, so that hardly anything is allocated in between. The engine
// never waits for the reader longer than for moving a pointer.
class StreamTap final : public ReportLedger {
public:
    enum class Content { Messages, Records };
    static constexpr std::size_t BatchOctets = 256 * 1024; // then the next one begins
    static constexpr std::size_t BatchEntries = 4096;
    static constexpr std::size_t MostWaiting = 16; // batches

    struct Taken {
        std::vector<std::shared_ptr<const StreamBatch>> batches; // the oldest first
        quint64 missed = 0; // messages or records since the last taking, all of them older than the batches
    };

    explicit StreamTap(Content content) : m_content(content) { }

    // The reader's thread.
    Taken takeAll();

    // The engine's thread. A tap of the other content ignores what it is told.
    void setClock(const SharedClock &clock) { m_clock = clock; }
    void addMessage(std::span<const unsigned char> message);
    void take(const TakenReport &report) override;
    // The reader may have what has come so far. To be called now and then.
    void flush();

private:
    StreamBatch &batchFor(std::size_t octets);
    static quint32 store(StreamBatch &batch, const unsigned char *octets, std::size_t size);

    const Content m_content;
    SharedClock m_clock;
    std::shared_ptr<StreamBatch> m_batch; // that is being filled; null: none
    std::size_t m_usualEntries = 0; // of the largest of the last few batches
    std::size_t m_usualOctets = 0;
    QMutex m_mutex; // of all below
    std::vector<std::shared_ptr<const StreamBatch>> m_waiting;
    quint64 m_missed = 0;
};

// The taps that are open on an engine; for its thread.
class StreamTaps {
public:
    void open(const std::shared_ptr<StreamTap> &tap) { m_taps.push_back(tap); }
    void close(const std::shared_ptr<StreamTap> &tap) { std::erase(m_taps, tap); }
    bool isEmpty() const { return m_taps.empty(); }

    void addMessage(std::span<const unsigned char> message)
    {
        for (const auto &tap : m_taps) {
            tap->addMessage(message);
        }
    }
    void take(const TakenReport &report)
    {
        for (const auto &tap : m_taps) {
            tap->take(report);
        }
    }
    void flush()
    {
        for (const auto &tap : m_taps) {
            tap->flush();
        }
    }

private:
    std::vector<std::shared_ptr<StreamTap>> m_taps;
};
