#include "engine/report_archive.h"

#include "asterix/asterix.h"
#include "asterix/record_map.h"

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

} // namespace

ReportArchive::ReportArchive()
{
    m_modesDecoder.setAddressCheck(false); // what is kept has passed it
}

void ReportArchive::setTracks(const QSharedPointer<TrackManager> &tracks, const SharedClock &clock)
{
    m_tracks = tracks;
    m_clock = clock;
    m_tracks->setRemovalObserver([this](const Track &track) { noteEnd(track); });
}

void ReportArchive::clear()
{
    m_directory.clear();
    m_plots.clear();
    m_alerts.clear();
    m_dropped.clear();
}

// Trackers have just read the clock for each report that they look at.
void ReportArchive::take(const TakenReport &report)
{
    if (report.reports) {
        report.reports->add(
            report.form, m_clock->lastMs(), report.record ? report.record->uap : nullptr, report.octets, report.size);
    }
    if (report.outcome == ReportOutcome::Track) {
        return;
    }
    if (report.outcome == ReportOutcome::Plot) {
        m_plots.add(report, m_clock->lastMs());
    } else if (report.outcome == ReportOutcome::Alert) {
        m_alerts.add(report, m_clock->nowMs());
    } else if (namesSomebody(report.outcome)) {
        m_dropped.add(report, m_clock->nowMs());
    }
}

void ReportArchive::readIdentities()
{
    const auto note = [this](const LooseReport &report, const unsigned char *octets) { noteIdentity(report, octets); };
    m_plots.takeNew(note);
    m_dropped.takeNew(note);
}

QList<SeenIdentity> ReportArchive::find(const IdentityQuery &query)
{
    readIdentities();
    return m_directory.find(query);
}

void ReportArchive::noteIdentity(const LooseReport &report, const unsigned char *octets)
{
    SeenIdentity seen;
    seen.category = report.category;
    seen.outcome = report.outcome;
    seen.address = report.address;
    seen.sensorNumber = report.sensorNumber;
    seen.place = report.placed ? std::optional(report.place) : std::nullopt;
    seen.lastMs = report.timeMs;
    _ast_datarecord_t record;
    if (report.uap && korvane::asterix::decodeRecord(&record, octets, report.size, report.uap)) {
        identify(seen, record);
    } else if (report.form == TakenReport::Form::ModeS && report.address != 0) {
        readFrame(seen, octets, report.size);
    }
    if (seen.isNamed()) {
        m_directory.note(seen);
    }
}

void ReportArchive::readFrame(SeenIdentity &seen, const unsigned char *octets, quint32 size)
{
    korvane::modes::ModeSFrame frame;
    if (size > sizeof frame.octets) {
        return;
    }
    frame.length = static_cast<std::uint8_t>(size);
    std::copy_n(octets, size, frame.octets);
    m_modesDecoder.decode(korvane::modes::ModeSMessage::AnyDownlink, frame, m_modesMessage);
    if (!m_modesMessage.valid()) {
        return;
    }
    seen.modeA = m_modesMessage.squawk();
    if (const auto *identification = std::get_if<korvane::modes::Identification>(&m_modesMessage.content())) {
        copyCallsign(seen, identification->callsign);
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
