#pragma once

#include "encoded_report.h"
#include "geo/mercator_projector.h"
#include "tracking/track_manager.h"
#include "tracking/tracker.h"

#include <QHash>
#include <QJsonObject>
#include <QStringList>

// The tracker for a sensor at 50 degrees north, 8 degrees east, its store, and a clock that is set by hand.
class TrackerRig {
public:
    static constexpr int ReportPeriod = 4; // seconds

    // What the sensor's record says beyond what all of them do here.
    explicit TrackerRig(SensorType type, const QJsonObject &more = {})
    {
        setTime(0.0);
        manager->setClock(m_clock);
        QJsonObject object{{"type", sensorTypeToString(type)}, {"location", "500000.00N0080000.00E"},
            {"rotation_period", ReportPeriod}, {"update_interval", ReportPeriod}};
        for (auto member = more.begin(); member != more.end(); ++member) {
            object[member.key()] = member.value();
        }
        const auto sensor = SensorInfo::create(object);
        tracker = Tracker::create(sensor, manager, &m_projector);
    }

    template <typename Kind>
    Kind *as() const
    {
        return qobject_cast<Kind *>(tracker.data());
    }

    void setTime(double second)
    {
        now = m_start.addMSecs(qRound64(second * 1000));
        m_clock->startRecorded(now);
    }

    double second() const { return static_cast<double>(m_start.msecsTo(now)) / 1000; }

    void receive(const QByteArray &octets)
    {
        _ast_datablock_t block;
        ast_datablock_smart_decode(&block, reinterpret_cast<const unsigned char *>(octets.constData()), octets.size());
        tracker->procAsterixMessage(block);
    }

    // Reports with "; " between them; one that begins with "@4.5 " comes at that second.
    void send(int category, const QString &reports)
    {
        for (const auto &report : reports.split("; ")) {
            const bool timed = report.startsWith('@');
            if (timed) {
                setTime(report.section(' ', 0, 0).mid(1).toDouble());
            }
            receive(encodedReport(category, timed ? report.section(' ', 1) : report));
        }
    }

private:
    const QDateTime m_start = QDateTime::fromSecsSinceEpoch(1'800'000'000, Qt::UTC);
    MercatorProjector m_projector;
    std::shared_ptr<Clock> m_clock = std::make_shared<Clock>();

public:
    QDateTime now; // as set
    QSharedPointer<TrackManager> manager = QSharedPointer<TrackManager>::create();
    QSharedPointer<Tracker> tracker;
};

// What the rig's one track shows under the names that the expectation has values for, as in "type 7, level 10125", in
// the same form; "-" for what is not valid. "tracks" is their number.
inline QString shown(const TrackerRig &rig, const QString &expected)
{
    const auto tracks = rig.manager->allTracks();
    const auto track = tracks.isEmpty() ? QSharedPointer<Track>::create(0u) : tracks.first();
    const auto number = [](bool valid, double value, int decimals) {
        return valid ? QString::number(value, 'f', decimals) : QStringLiteral("-");
    };
    const auto position = track->geoCoordinate();
    const bool placed = track->geoCoordinateValid();
    const QHash<QString, QString> values{{"tracks", QString::number(tracks.size())},
        {"type", QString::number(track->type())}, {"state", QString::number(track->state())},
        {"address", track->icaoAddrString()}, {"call", track->modeSCallsign()}, {"code", track->modeAString()},
        {"lat", number(placed, position.latitude(), 5)}, {"lon", number(placed, position.longitude(), 5)},
        {"x", number(track->carCoordinateValid(), track->carCoordinate().x(), 0)},
        {"y", number(track->carCoordinateValid(), track->carCoordinate().y(), 0)},
        {"speed", number(track->groundSpeedValid(), track->groundSpeed(), 1)},
        {"heading", number(track->headingValid(), track->heading(), 1)},
        {"level", number(track->levelValid(), track->level(), 0)},
        {"selected", number(track->selectedAltitudeValid(), track->selectedAltitude(), 0)},
        {"rate", number(track->verticalRateValid(), track->verticalRate(), 0)},
        {"trend", QString::number(track->verticalTrend())}, {"ground", QString::number(track->isGround())},
        {"marks", Track::emergencyString(track->emergency()) + (track->spi() ? "SPI" : "")},
        {"detected", QString::number(track->detectedBy())}, {"dots", QString::number(track->history().size())}};
    QStringList texts;
    for (const auto &part : expected.split(", ")) {
        const auto name = part.section(' ', 0, 0);
        texts.append(name + ' ' + values.value(name, "no such value"));
    }
    return texts.join(", ");
}
