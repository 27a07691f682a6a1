#include "engine/report_archive.h"

#include "asterix/asterix.h"
#include "asterix/record_map.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int MaximumLooseReports = 4096; // of one kind that are told
constexpr double SamePlot = 1.0; // metres between a plot and a position of a track
// Between the stamps of a plot and of the report that it is of: the clock goes on while the report is read. Shorter
// than two reports of a track follow each other.
constexpr qint64 ReadingMs = 50;
constexpr std::size_t LatestPositions = 64; // of a track: plots are seen for a few of its reports

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
    m_log.clear();
    m_plots.clear();
    m_alerts.clear();
    m_weather.clear();
    m_radials.clear();
    m_dropped.clear();
}

// A report may belong to a track and be of no use for it.
void ReportArchive::take(const TakenReport &report)
{
    if (report.fate.newestReport) {
        log(report);
    }
    keepLoose(report);
}

void ReportArchive::keepLoose(const TakenReport &report)
{
    switch (report.fate.outcome) {
    case ReportOutcome::Track: // with the track
    case ReportOutcome::TrackEnd: // noted when the track went
    case ReportOutcome::SourceStatus:
    case ReportOutcome::Malformed:
        return;
    case ReportOutcome::Plot:
        return m_plots.add(report, m_clock->lastMs());
    case ReportOutcome::Alert:
        return m_alerts.add(report, m_clock->nowMs());
    case ReportOutcome::Weather:
        return m_weather.add(report, m_clock->nowMs());
    case ReportOutcome::Video:
        return m_radials.take(report, m_clock->nowMs());
    default:
        m_dropped.add(report, m_clock->nowMs());
    }
}

void ReportArchive::endSecond()
{
    readIdentities();
    m_log.setTrackCount(m_tracks->trackCount());
    m_radials.endSecond();
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

AskedReports ReportArchive::answer(const ReportQuestion &question)
{
    AskedReports answer{question, false, {}};
    switch (question.about) {
    case ReportQuestion::About::Track:
        answerTrack(answer);
        return answer;
    case ReportQuestion::About::Place:
        answerPlace(answer);
        break;
    case ReportQuestion::About::Alerts:
        answer.reports = m_alerts.newest(MaximumLooseReports);
        break;
    case ReportQuestion::About::Weather:
        answer.reports = m_weather.newest(MaximumLooseReports);
        break;
    case ReportQuestion::About::Radial:
        answer.reports = m_radials.ask(question.radial);
        break;
    }
    answer.found = !answer.reports.isEmpty();
    return answer;
}

void ReportArchive::answerTrack(AskedReports &answer) const
{
    Track *track = m_tracks->trackByNumber(answer.question.trackNumber);
    answer.found = track && track->incarnationId() == answer.question.incarnationId;
    if (answer.found) {
        answer.reports = m_log.reports(track->newestReport());
    }
}

// Of plots that belong to a track nothing is kept but what is kept of the track: it was there at that place, and had a
// report at that time.
void ReportArchive::answerPlace(AskedReports &answer) const
{
    const ReportQuestion &question = answer.question;
    answer.reports = m_plots.near(question.place, question.radius, ReportLog::MaximumReports);
    if (!answer.reports.isEmpty() || question.plotMs == 0) {
        return;
    }
    const auto wasThere = [&question](const TrackHistoryElement &element) {
        const QPointF away = element.carCoordinate() - question.place;
        return element.carCoordinateValid() && std::hypot(away.x(), away.y()) <= SamePlot;
    };
    for (const auto &track : m_tracks->allTracks()) {
        const auto &history = track->history();
        const auto end = history.begin() + static_cast<qsizetype>(std::min(history.size(), LatestPositions));
        if (std::none_of(history.begin(), end, wasThere)) {
            continue;
        }
        const auto reports = m_log.reports(track->newestReport());
        const auto sinceWhen = std::find_if(reports.rbegin(), reports.rend(),
            [&question](const KeptReport &report) { return report.timeMs >= question.plotMs; });
        if (sinceWhen != reports.rend() && sinceWhen->timeMs <= question.plotMs + ReadingMs) {
            answer.reports = {*sinceWhen};
            answer.trackOfPlot = track->incarnationId();
            return;
        }
    }
}
