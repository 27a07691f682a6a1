#pragma once

#include "engine/identity_directory.h"
#include "engine/loose_reports.h"
#include "engine/radial_watch.h"
#include "modes/mode_s_decoder.h"
#include "tracking/report_ledger.h"
#include "tracking/report_log.h"
#include "tracking/track_manager.h"

#include <QSharedPointer>

// What reports somebody asks for.
struct ReportQuestion {
    enum class About : quint8 {
        Track, // the reports that it was made of
        Place, // the plot that is nearest to it
        Alerts, // the reports of safety nets
        Weather, // the messages that weather pictures are made of
        Radial, // the video of one direction, from when it is asked for on
    };

    quint64 requestId = 0;
    About about = About::Track;
    unsigned int trackNumber = 0; // of a track: the system's own
    quint64 incarnationId = 0;
    QPointF place = {}; // plane metres
    double radius = 0.0; // metres, from it
    qint64 plotMs = 0; // when the plot arrived that may be a track's; 0: only plots without a track
    RadialQuestion radial = {};
};

struct AskedReports {
    ReportQuestion question;
    bool found = false; // the track lives, or there are reports
    QList<KeptReport> reports; // newest first
    quint64 trackOfPlot = 0; // incarnation id; 0: the plot belongs to none
};

// Whom the stream has named and what became of it, as somebody asked for it.
struct Sightings {
    quint64 requestId = 0;
    QString text; // that was asked for
    QList<SeenIdentity> seen; // newest first
};

Q_DECLARE_METATYPE(AskedReports)
Q_DECLARE_METATYPE(Sightings)

// Remembers of each record what an operator may ask about later: the octets of those that make tracks, and the newest
// of those that are shown without one; of all others who they named and what became of them. On the engine's thread.
class ReportArchive final : public ReportLedger {
public:
    ReportArchive();
    ReportArchive(const ReportArchive &) = delete;
    ReportArchive &operator=(const ReportArchive &) = delete;

    // Whose tracks the reports belong to; tells of their ends from now on. Both must outlive the archive.
    void setTracks(const QSharedPointer<TrackManager> &tracks, const SharedClock &clock);
    // Of another input, or the next run of a recording.
    void clear();

    // What made a track or a plot is copied, and mostly there is room for it.
    bool needsCopyingOnly(const TakenReport &report) const
    {
        return report.fate.outcome == ReportOutcome::Track
            ? report.fate.newestReport && m_log.hasRoomFor(report.size)
            : report.fate.outcome == ReportOutcome::Plot && m_plots.hasRoomFor(report);
    }
    void copy(const TakenReport &report)
    {
        if (report.fate.outcome == ReportOutcome::Track) {
            log(report);
        } else {
            m_plots.add(report, m_clock->lastMs());
        }
    }

    // Only copies: who is named in the reports without a track is read later.
    void take(const TakenReport &report) override;
    // To be called once a second: reads whom the reports since the last call have named, and keeps room in step with
    // the number of tracks.
    void endSecond();

    // Of a track that has another incarnation by now nothing is found.
    AskedReports answer(const ReportQuestion &question);
    QList<SeenIdentity> find(const IdentityQuery &query);

private:
    void readIdentities();
    // Trackers have just read the clock for each report that they look at.
    void log(const TakenReport &report)
    {
        m_log.add(*report.fate.newestReport, report.form, m_clock->lastMs(),
            report.record ? report.record->uap : nullptr, report.octets, report.size);
    }
    void keepLoose(const TakenReport &report); // with others of its outcome
    void answerTrack(AskedReports &answer) const;
    void answerPlace(AskedReports &answer) const;
    void noteIdentity(const LooseReport &report, const unsigned char *octets);
    void readFrame(SeenIdentity &seen, const unsigned char *octets, quint32 size);
    void noteEnd(const Track &track);

    QSharedPointer<TrackManager> m_tracks;
    SharedClock m_clock;
    IdentityDirectory m_directory;
    ReportLog m_log;
    LooseReports m_plots{1280 * 1024}; // of about half a minute
    LooseReports m_alerts{96 * 1024};
    LooseReports m_weather{448 * 1024}; // of the last pictures
    RadialWatch m_radials;
    LooseReports m_dropped{448 * 1024}; // until their identities have been read
    korvane::modes::ModeSDecoder m_modesDecoder;
    korvane::modes::ModeSMessage m_modesMessage;
};
