#include "tracking/report_ledger.h"

#include "asterix/asterix.h"
#include "modes/mode_s_message.h"
#include "sirm/alenia_sir_m_radar_message.h"

#include <algorithm>
#include <array>

void ReportLedger::takeRecord(std::uint32_t category, const _ast_datarecord_t &record, ReportOutcome outcome)
{
    TakenReport report;
    report.category = static_cast<quint8>(category);
    report.fate.outcome = outcome;
    report.octets = record.data;
    report.size = record.length;
    report.record = &record;
    take(report);
}

namespace {

const char *faultOf(const korvane::modes::ModeSMessage &message)
{
    using Fault = korvane::modes::ModeSMessage::Fault;
    switch (message.fault()) {
    case Fault::Length:
        return "the length is not that of the downlink format";
    case Fault::Parity:
        return "wrong parity";
    default:
        return "not decoded";
    }
}

} // namespace

void ReportLedger::takeModeS(const korvane::modes::ModeSMessage &message, ReportOutcome outcome)
{
    TakenReport report;
    report.form = TakenReport::Form::ModeS;
    report.fate.outcome = outcome;
    report.octets = message.frame().octets;
    report.size = message.frame().length;
    report.modeS = &message;
    if (message.valid()) {
        report.fate.address = message.icaoAddr();
    }
    if (outcome == ReportOutcome::Malformed) {
        report.fault = faultOf(message);
    }
    take(report);
}

void ReportLedger::takeSirM(const AleniaSirMRadarMessage &message, ReportOutcome outcome)
{
    const auto *data = dynamic_cast<const AleniaSirMRadarDataMessage *>(&message);
    if (!data || (data->plotRecords().empty() && data->trackRecords().empty())) {
        takeSirM(message, {}, {outcome});
        return;
    }
    for (const auto &record : data->plotRecords()) {
        takeSirM(message, record.octets(), {outcome});
    }
    for (const auto &record : data->trackRecords()) {
        takeSirM(message, record.octets(), {outcome});
    }
}

void ReportLedger::takeSirM(
    const AleniaSirMRadarMessage &message, std::span<const unsigned char> record, const ReportFate &fate)
{
    std::array<unsigned char, AleniaSirMRadarMessage::FixedSize + AleniaSirMRadarTrackRecord::Size> octets;
    std::copy(record.begin(), record.end(),
        std::copy(message.fixedOctets().begin(), message.fixedOctets().end(), octets.begin()));
    TakenReport report;
    report.form = TakenReport::Form::AleniaSirM;
    report.octets = octets.data();
    report.size = static_cast<quint32>(AleniaSirMRadarMessage::FixedSize + record.size());
    report.sirM = &message;
    report.fate = fate;
    take(report);
}
