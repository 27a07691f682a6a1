#pragma once

#include "app/log_gate.h"
#include "asterix/asterix.h"
#include "geo/polar_origin.h"
#include "sensors/sensor_info.h"
#include "tracking/plot_store.h"
#include "tracking/report_ledger.h"
#include "tracking/track_manager.h"

#include <QObject>
#include <QSharedPointer>

#include <memory>
#include <optional>

class AleniaSirMRadarMessage;
class Projector;
namespace korvane::modes {
class ModeSMessage;
}

// Turns the decoded reports of one sensor into tracks: association, position, identity, kinematics. It neither filters
// nor ages. One per open input, on the thread of its track manager.
class Tracker : public QObject {
    Q_OBJECT

public:
    // The projector is not owned and must outlive the tracker.
    Tracker(const QSharedPointer<TrackManager> &trackManager, Projector *projector, QObject *parent = nullptr);

    // The kind of sensor that it serves.
    virtual SensorInfo::Type type() const { return SensorInfo::UnknownSensor; }
    // Takes a decoded block; blocks of other categories and invalid blocks are ignored.
    virtual void procAsterixMessage(const _ast_datablock_t &block) = 0;
    // Takes a valid message; the message may be reused by the decoder after the call.
    virtual void procModeSMessage(const std::shared_ptr<korvane::modes::ModeSMessage> &message) = 0;
    virtual void procAleniaSirMMessage(const QSharedPointer<AleniaSirMRadarMessage> &message);

    // Where every report that has a place becomes a plot, also one that belongs to no track; not test targets. Null, as
    // at first: nowhere. The store must outlive the tracker.
    void setPlotStore(PlotStore *plots) { m_plots = plots; }

    // Who is told what became of every record of a valid block and of every message, used or not. Null, as at first:
    // nobody. The ledger must outlive the tracker.
    void setLedger(ReportLedger *ledger) { m_ledger = ledger; }

    // The tracker for the sensor's type; null for a null sensor and for a type without a tracker.
    static QSharedPointer<Tracker> create(const QSharedPointer<SensorInfo> &sensor,
        const QSharedPointer<TrackManager> &trackManager, Projector *projector, QObject *parent = nullptr);

Q_SIGNALS:
    void message(LogLevel level, const QString &text);

protected:
    // What a report names its track by.
    struct Identity {
        unsigned int number = 0; // the sensor's own track number; 0: none
        std::optional<unsigned int> address; // 24-bit aircraft address; 0 is sent by who has none
        double reportPeriod = 0.0; // seconds between two reports of one track

        bool usable() const { return number != 0 || address.value_or(0) != 0; }
    };

    // For what every faulty report says: the text is made only where debug lines are shown.
    template <typename MakeText>
    void debug(MakeText makeText)
    {
        if (LogGate::isShown(LogLevel::Debug)) {
            Q_EMIT message(LogLevel::Debug, makeText());
        }
    }

    using Taken = ReportFate;

    // Expands every record of a block that the category's disassembler reads and hands it on; the ledger is told what
    // each has become.
    template <typename Record, typename Disassemble, typename Take>
    void takeEach(const _ast_datablock_t &block, Disassemble disassemble, Take takeRecord)
    {
        for (const auto &generic : block.records) {
            Record record;
            disassemble(&record, generic);
            handIn(block, generic, [&] { return record.valid ? takeRecord(record) : Taken{ReportOutcome::Malformed}; });
        }
    }
    // take() does what there is to do with the record, and says what became of it: where the ledger is to find it,
    // since copying it costs more than all that the ledger does.
    template <typename Take>
    void handIn(const _ast_datablock_t &block, const _ast_datarecord_t &record, Take take) const
    {
        const TakenReport report{TakenReport::Form::Asterix, static_cast<quint8>(block.category), record.length,
            record.data, &record, nullptr, nullptr, nullptr, 0, take()};
        if (m_ledger) {
            m_ledger->take(report);
        }
    }
    void handIn(const korvane::modes::ModeSMessage &message, const Taken &taken) const;
    // What sensors of this kind do not send.
    void refuse(const _ast_datablock_t &block) const;
    void refuse(const korvane::modes::ModeSMessage &message) const;

    ReportLedger *ledger() const { return m_ledger; }
    TrackManager &trackManager() const { return *m_trackManager; }
    Projector &projector() const { return *m_projector; }

    // A new track; null when no system track number is free, which is reported at most once in ten seconds.
    QSharedPointer<Track> createTrack();
    // The track of a sensor that numbers its tracks once and for all, new where there was none. Null as createTrack().
    QSharedPointer<Track> findOrCreate(unsigned int number);
    // The track that a report with this identity, which must be usable, belongs to; null where there is none.
    QSharedPointer<Track> find(const Identity &identity, const QDateTime &now);
    // The track of a sensor that may know an aircraft by number, by address or by both, new where there was none; its
    // identity is brought up to date. The identity must be usable. Null as createTrack().
    QSharedPointer<Track> associate(const Identity &identity, const QDateTime &now);
    // The source has ended the track: it goes at once. Its system track number; 0 where there is none.
    unsigned int endTrack(const Identity &identity, const QDateTime &now);

    // Where a report's target is.
    struct Place {
        double latitude = 0.0;
        double longitude = 0.0;
        bool valid = false; // on the globe
        QPointF plane = {}; // while it is valid
    };
    Place placeOf(double latitude, double longitude) const;
    // Metres over ground and degrees clockwise from north.
    Place placeOf(const PolarOrigin &origin, double distance, double bearing) const;

    // A report with a track: nothing where it has no place.
    static Taken takenBy(Track &track, const Identity &identity, const std::optional<Place> &place);
    // A report that names no track, or whose track got no number.
    static Taken takenAsPlot(const std::optional<Place> &place, bool isTest);
    static Taken notNumbered(const Identity &identity, const std::optional<Place> &place);
    static Taken notPlaced(const Identity &identity);
    // A report that ended a track, which may be none: 0.
    static Taken ended(const Identity &identity, unsigned int trackNumber);

    // The report of now is a plot.
    void addPlot(const QPointF &planePosition, Track::Type type, const QDateTime &now) const
    {
        if (m_plots) {
            m_plots->add(planePosition, type, now.toMSecsSinceEpoch());
        }
    }

    // Sets the track's position, and its plane position where the place is valid.
    static void put(Track &track, const Place &place);

private:
    QSharedPointer<Track> findByNumber(unsigned int number);
    QSharedPointer<Track> findByAddress(const Identity &identity, const QDateTime &now);

    QSharedPointer<TrackManager> m_trackManager;
    Projector *m_projector;
    PlotStore *m_plots = nullptr;
    ReportLedger *m_ledger = nullptr;
    QDateTime m_lastExhaustion; // when it was last reported that no track number is free
};
