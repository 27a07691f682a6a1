#include "engine/report_archive.h"

#include "asterix/asterix.h"
#include "asterix/record_map.h"
#include "modes/mode_s_message.h"

#include <algorithm>

namespace {

constexpr int MaximumAlertReports = 512; // all that are kept

// Outcomes of records that name nobody.
bool namesSomebody(ReportOutcome outcome)
{
    switch (outcome) {
    case ReportOutcome::Track: // with the track
    case ReportOutcome::TrackEnd: // noted when the track went
    case ReportOutcome::Alert:
    case ReportOutcome::Weather:
    case ReportOutcome::Video:
    case ReportOutcome::SourceStatus:
    case ReportOutcome::Malformed:
        return false;
    default:
        return true;
    }
}

void copyCallsign(SeenIdentity &seen, const char *text)
{
    std::copy_n(text, std::min<std::size_t>(qstrlen(text), sizeof seen.callsign - 1), seen.callsign);
}

void identify(SeenIdentity &seen, const _ast_datarecord_t &record)
{
    const auto source = ast_datarecord_get_sacsic(record);
    seen.sourceKnown = source.present;
    seen.sac = source.sac;
    seen.sic = source.sic;
    copyCallsign(seen, ast_datarecord_get_callsign(record).text);
    seen.modeA = korvane::asterix::mode3aOf(record);
    if (seen.address == 0) {
        seen.address = ast_datarecord_get_icaoaddr(record).address;
    }
    if (seen.sensorNumber == 0) {
        seen.sensorNumber = korvane::asterix::trackNumberOf(record).value_or(0);
    }
}

void identify(SeenIdentity &seen, const korvane::modes::ModeSMessage &message)
{
    seen.address = message.icaoAddr();
    seen.modeA = message.squawk();
    if (const auto *identification = std::get_if<korvane::modes::Identification>(&message.content())) {
        copyCallsign(seen, identification->callsign);
    }
}

} // namespace

void ReportArchive::setTracks(const QSharedPointer<TrackManager> &tracks, const SharedClock &clock)
{
    m_tracks = tracks;
    m_clock = clock;
    m_tracks->setRemovalObserver([this](const Track &track) { noteEnd(track); });
}

void ReportArchive::take(const TakenReport &report)
{
    if (report.trackNumber != 0 && report.outcome != ReportOutcome::TrackEnd) {
        if (Track *track = m_tracks->trackByNumber(report.trackNumber)) {
            // With a place the track has just noted the time, which spares reading the clock once more for each report.
            const qint64 timeMs = report.place ? track->lastUpdate().toMSecsSinceEpoch() : m_clock->nowMs();
            track->reports().add(
                report.form, timeMs, report.record ? report.record->uap : nullptr, report.octets, report.size);
        }
    }
    if (report.outcome == ReportOutcome::Plot) {
        m_plots.add(report, m_clock->nowMs());
    } else if (report.outcome == ReportOutcome::Alert) {
        m_alerts.add(report, m_clock->nowMs());
    }
    if (namesSomebody(report.outcome)) {
        noteIdentity(report, m_clock->nowMs());
    }
}

void ReportArchive::clear()
{
    m_directory.clear();
    m_plots.clear();
    m_alerts.clear();
}

void ReportArchive::noteIdentity(const TakenReport &report, qint64 nowMs)
{
    SeenIdentity seen;
    seen.category = report.category;
    seen.outcome = report.outcome;
    seen.address = report.address.value_or(0);
    seen.sensorNumber = report.sensorTrackNumber;
    seen.place = report.place;
    seen.lastMs = nowMs;
    if (report.record) {
        identify(seen, *report.record);
    } else if (report.modeS && report.modeS->valid()) {
        identify(seen, *report.modeS);
    }
    if (seen.isNamed()) {
        m_directory.note(seen);
    }
}

// A track that is silent for its span ends by itself; whose last report is younger was ended by its source.
void ReportArchive::noteEnd(const Track &track)
{
    SeenIdentity seen;
    if (track.modeSCallsignValid()) {
        copyCallsign(seen, track.modeSCallsign().toLatin1().constData());
    }
    if (track.modeACodeValid()) {
        seen.modeA = static_cast<quint16>(track.modeACode());
    }
    seen.address = track.icaoAddrValid() ? track.icaoAddr() : 0;
    seen.sensorNumber = track.otherTrackNumber();
    seen.trackNumber = track.trackNumber();
    seen.outcome = ReportOutcome::TrackEnd;
    seen.lastMs = track.lastUpdate().toMSecsSinceEpoch();
    seen.endedMs = m_clock->nowMs();
    seen.endedBySource = seen.endedMs - seen.lastMs < m_tracks->terminationSpan();
    if (track.carCoordinateValid()) {
        seen.place = track.carCoordinate();
    }
    m_directory.note(seen);
}

AskedReports ReportArchive::answer(const ReportQuestion &question) const
{
    AskedReports answer{question, false, {}};
    switch (question.about) {
    case ReportQuestion::About::Track:
        if (Track *track = m_tracks->trackByNumber(question.trackNumber)) {
            answer.found = track->incarnationId() == question.incarnationId;
            answer.reports = answer.found ? track->reports().reports() : QList<KeptReport>();
        }
        return answer;
    case ReportQuestion::About::Place:
        answer.reports = m_plots.near(question.place, question.radius, ReportRing::MaximumReports);
        break;
    case ReportQuestion::About::Alerts:
        answer.reports = m_alerts.newest(MaximumAlertReports);
        break;
    }
    answer.found = !answer.reports.isEmpty();
    return answer;
}
