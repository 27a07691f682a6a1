#pragma once

#include "tracking/report_link.h"
#include "tracking/report_outcome.h"

#include <QPointF>

#include <cstdint>
#include <optional>
#include <span>

class AleniaSirMRadarMessage;
struct _ast_datarecord_t;
namespace korvane::modes {
class ModeSMessage;
}

// What became of a record, and whom it told of.
struct ReportFate {
    ReportOutcome outcome = ReportOutcome::Malformed;
    unsigned int trackNumber = 0; // the system track number of the track that it began, updated or ended; 0: none
    ReportLink *newestReport = nullptr; // of that track, in what is kept of the stream; null: none
    // What it names its track by, where a tracker has looked.
    unsigned int sensorTrackNumber = 0; // 0: none
    std::optional<unsigned int> address = {}; // 24 bits
    // Of a target without a track, plane metres; nothing where it has no place, or one off the globe.
    std::optional<QPointF> place = {};
};

// One record and what became of it. Everything that it points at lives during the call only.
struct TakenReport {
    enum class Form : quint8 { Asterix, ModeS, AleniaSirM };

    Form form = Form::Asterix;
    quint8 category = 0; // of ASTERIX; 0 in other forms
    quint32 size = 0;
    // As received: an ASTERIX record from its FSPEC on; a block that cannot be decoded, or the rest of the message from
    // it on where its end is not known; a Mode S frame; of a SIR-M message what comes before its records, and the
    // record.
    const unsigned char *octets = nullptr;
    const _ast_datarecord_t *record = nullptr; // a decoded ASTERIX record; null otherwise
    const korvane::modes::ModeSMessage *modeS = nullptr; // a Mode S message, valid or not; null otherwise
    const AleniaSirMRadarMessage *sirM = nullptr; // the message that a record of SIR-M belongs to; null otherwise

    // Why it is malformed: static English text, null for all others; and octets from the first of them to the fault.
    const char *fault = nullptr;
    quint32 faultOffset = 0;

    ReportFate fate = {};
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
    // One of them: its octets, none for the message itself.
    void takeSirM(const AleniaSirMRadarMessage &message, std::span<const unsigned char> record, const ReportFate &fate);

protected:
    ReportLedger() = default;
    ReportLedger(const ReportLedger &) = default;
    ReportLedger &operator=(const ReportLedger &) = default;
};
