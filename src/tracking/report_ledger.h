#pragma once

#include "tracking/report_link.h"
#include "tracking/report_outcome.h"

#include <QPointF>

#include <cstdint>
#include <optional>
#include <vector>

class AleniaSirMRadarMessage;
struct _ast_datarecord_t;
namespace korvane::modes {
class ModeSMessage;
}

// One record and what became of it. Everything that it points at lives during the call only.
struct TakenReport {
    enum class Form : quint8 { Asterix, ModeS, AleniaSirM };

    Form form = Form::Asterix;
    quint8 category = 0; // of ASTERIX; 0 in other forms
    ReportOutcome outcome = ReportOutcome::Malformed;
    quint32 size = 0;
    // As received: an ASTERIX record from its FSPEC on; a block that cannot be decoded, or the rest of the message from
    // it on where its end is not known; a Mode S frame; a plot or track record of SIR-M, null for its other messages.
    const unsigned char *octets = nullptr;
    const _ast_datarecord_t *record = nullptr; // a decoded ASTERIX record; null otherwise
    const korvane::modes::ModeSMessage *modeS = nullptr; // a Mode S message, valid or not; null otherwise
    const AleniaSirMRadarMessage *sirM = nullptr; // the message that a record of SIR-M belongs to; null otherwise

    unsigned int trackNumber = 0; // the system track number of the track that it began, updated or ended; 0: none
    ReportLink *newestReport = nullptr; // of that track, in what is kept of the stream; null: none
    // What it names its track by, where a tracker has looked.
    unsigned int sensorTrackNumber = 0; // 0: none
    std::optional<unsigned int> address; // 24 bits
    std::optional<QPointF> place; // of the target, plane metres; nothing where it has none or one off the globe

    // Why it is malformed: static English text, null for all others; and octets from the first of them to the fault.
    const char *fault = nullptr;
    quint32 faultOffset = 0;
};

// Is told of every record once, in the order of arrival, on the engine's thread: about a microsecond apart at worst, so
// nothing that takes time or allocates belongs into it.
class ReportLedger {
public:
    virtual ~ReportLedger() = default;
    virtual void take(const TakenReport &report) = 0;

    // A record that has nothing to do with a track.
    void takeRecord(std::uint32_t category, const _ast_datarecord_t &record, ReportOutcome outcome);
    // A Mode S message, valid or not.
    void takeModeS(const korvane::modes::ModeSMessage &message, ReportOutcome outcome);
    // Every record of a message, or the message itself where it has none.
    void takeSirM(const AleniaSirMRadarMessage &message, ReportOutcome outcome);

protected:
    ReportLedger() = default;
    ReportLedger(const ReportLedger &) = default;
    ReportLedger &operator=(const ReportLedger &) = default;
};

// Tells several ledgers, which it does not own.
class ReportLedgers final : public ReportLedger {
public:
    void add(ReportLedger *ledger) { m_ledgers.push_back(ledger); }
    void remove(ReportLedger *ledger) { std::erase(m_ledgers, ledger); }

    // Not for the compiler to guess that one of them is of this class, within itself again and again.
    [[gnu::noinline]] void take(const TakenReport &report) override;

private:
    std::vector<ReportLedger *> m_ledgers;
};
