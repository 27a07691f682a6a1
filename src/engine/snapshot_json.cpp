#include "engine/snapshot_json.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QSaveFile>

#include <algorithm>

namespace {

template <typename T>
QJsonValue valueOrNull(bool valid, const T &value)
{
    return valid ? QJsonValue(value) : QJsonValue(QJsonValue::Null);
}

QJsonValue timeValue(const QDateTime &time)
{
    return valueOrNull(time.isValid(), time.toUTC().toString(Qt::ISODateWithMs));
}

QJsonValue code(bool valid, unsigned int value)
{
    return valueOrNull(valid, static_cast<qint64>(value));
}

QJsonArray trailArray(const QList<QPointF> &trail)
{
    QJsonArray points;
    for (const QPointF &point : trail) {
        points += QJsonArray{point.x(), point.y()};
    }
    return points;
}

// What few tracks have: the keys are there only for those.
void addRarities(QJsonObject &object, const TrackSnapshot &track)
{
    if (track.emergency != Track::NoEmergency) {
        object["emergency"] = Track::emergencyString(track.emergency);
    }
    if (track.spi) {
        object["spi"] = true;
    }
}

QJsonObject trackObject(const TrackSnapshot &track)
{
    QJsonObject object{
        {"trackNumber", static_cast<qint64>(track.trackNumber)},
        {"icaoAddr", valueOrNull(track.icaoAddrValid, track.icaoAddrString)},
        {"callsign", valueOrNull(track.callsignValid, track.callsign)},
        {"modeA", valueOrNull(track.modeACodeValid, track.modeAString)},
        {"modeACode", code(track.modeACodeValid, track.modeACode)},
        {"type", track.type},
        {"state", track.state},
        {"latitude", valueOrNull(track.geoCoordinateValid, track.geoCoordinate.latitude())},
        {"longitude", valueOrNull(track.geoCoordinateValid, track.geoCoordinate.longitude())},
        {"x", valueOrNull(track.carCoordinateValid, track.carCoordinate.x())},
        {"y", valueOrNull(track.carCoordinateValid, track.carCoordinate.y())},
        {"groundSpeed", valueOrNull(track.groundSpeedValid, track.groundSpeed)},
        {"heading", valueOrNull(track.headingValid, track.heading)},
        {"onGround", track.onGround},
        {"level", valueOrNull(track.levelValid, track.level)},
        {"selectedAltitude", valueOrNull(track.selectedAltitudeValid, track.selectedAltitude)},
        {"verticalRate", valueOrNull(track.verticalRateValid, track.verticalRate)},
        {"verticalTrend", track.verticalTrend},
        {"lastUpdate", timeValue(track.lastUpdate)},
        {"alerts", track.alertsString},
        {"trail", trailArray(track.trail)},
    };
    addRarities(object, track);
    return object;
}

QJsonObject sideObject(const AlertSnapshot::TrackSide &side)
{
    return {
        {"trackNumber", code(side.otherTrackNumber != 0, side.otherTrackNumber)},
        {"modeACode", code(side.modeACodeValid, side.modeACode)},
        {"text", side.text},
    };
}

QJsonObject alertObject(const AlertSnapshot &alert)
{
    return {
        {"id", static_cast<qint64>(alert.id)},
        {"type", alert.type},
        {"state", alert.state},
        {"stateText", alert.stateString},
        {"objectName", valueOrNull(!alert.objectName.isEmpty(), alert.objectName)},
        {"lastUpdate", timeValue(alert.lastUpdate)},
        {"startTime", timeValue(alert.startTime)},
        {"endTime", timeValue(alert.endTime)},
        {"track1", sideObject(alert.track1)},
        {"track2", valueOrNull(alert.track2Applicable, sideObject(alert.track2))},
    };
}

QJsonValue timeValue(qint64 ms)
{
    return timeValue(ms == 0 ? QDateTime() : QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC));
}

QString formName(TakenReport::Form form)
{
    switch (form) {
    case TakenReport::Form::ModeS:
        return QStringLiteral("modeS");
    case TakenReport::Form::AleniaSirM:
        return QStringLiteral("sirM");
    case TakenReport::Form::Asterix:
        break;
    }
    return QStringLiteral("asterix");
}

QJsonObject outcomesObject(const SourceStatistics &source)
{
    QJsonObject outcomes;
    for (int i = 0; i < ReportOutcomeCount; ++i) {
        const auto outcome = static_cast<ReportOutcome>(i);
        if (source.outcome(outcome) > 0) {
            outcomes[QLatin1String(reportOutcomeName(outcome))] = static_cast<qint64>(source.outcome(outcome));
        }
    }
    return outcomes;
}

QJsonObject countsObject(const SourceStatistics &source)
{
    return {
        {"datagrams", static_cast<qint64>(source.datagrams)},
        {"blocks", static_cast<qint64>(source.blocks)},
        {"records", static_cast<qint64>(source.records)},
        {"octets", static_cast<qint64>(source.octets)},
        {"outcomes", outcomesObject(source)},
    };
}

QJsonObject delayObject(const DelayStatistics &delay)
{
    return {{"samples", delay.samples}, {"median", delay.median}, {"percentile95", delay.percentile95},
        {"smallest", delay.smallest}, {"jumps", static_cast<qint64>(delay.jumps)}};
}

QJsonObject antennaObject(const AntennaStatistics &antenna)
{
    return {
        {"period", valueOrNull(antenna.period > 0.0, antenna.period)},
        {"deviation", valueOrNull(antenna.period > 0.0, antenna.periodDeviation)},
        {"revolutions", static_cast<qint64>(antenna.revolutions)},
        {"northMarkers", static_cast<qint64>(antenna.northMarkers)},
        {"sectorCrossings", static_cast<qint64>(antenna.sectorCrossings)},
        {"missingSectors", static_cast<qint64>(antenna.missingSectors)},
    };
}

QJsonObject sourceObject(const SourceStatistics &source, const QStringList &endpoints)
{
    QJsonObject object = countsObject(source);
    object["form"] = formName(source.form);
    object["sac"] = valueOrNull(source.identified, source.sac);
    object["sic"] = valueOrNull(source.identified, source.sic);
    object["category"] = source.category;
    object["edition"] = valueOrNull(!source.edition.isEmpty(), QString::fromLatin1(source.edition));
    object["endpoint"] = endpoints.value(source.endpoint);
    object["rate10"] = source.rate10;
    object["rate60"] = source.rate60;
    object["firstArrival"] = timeValue(source.firstArrivalMs);
    object["lastArrival"] = timeValue(source.lastArrivalMs);
    object["expectedInterval"] = valueOrNull(source.expectedInterval > 0.0, source.expectedInterval);
    if (source.delay.samples > 0) {
        object["delay"] = delayObject(source.delay);
    }
    if (source.antenna.northMarkers + source.antenna.sectorCrossings > 0) {
        object["antenna"] = antennaObject(source.antenna);
    }
    return object;
}

} // namespace

QJsonArray SnapshotJson::sources(const InputStatistics &statistics)
{
    QJsonArray sources;
    for (const SourceStatistics &source : statistics.sources) {
        sources += sourceObject(source, statistics.endpoints);
    }
    if (statistics.others.records > 0) {
        QJsonObject others = countsObject(statistics.others);
        others["others"] = static_cast<qint64>(statistics.otherSources);
        sources += others;
    }
    return sources;
}

QJsonObject SnapshotJson::toJson(const DisplaySnapshot &snapshot)
{
    // In the order of their numbers, so that two pictures can be compared as text.
    QList<TrackSnapshot> byNumber = snapshot.tracks;
    std::sort(byNumber.begin(), byNumber.end(),
        [](const TrackSnapshot &a, const TrackSnapshot &b) { return a.trackNumber < b.trackNumber; });
    QJsonArray tracks;
    for (const TrackSnapshot &track : std::as_const(byNumber)) {
        tracks += trackObject(track);
    }
    QJsonArray alerts;
    for (const AlertSnapshot &alert : snapshot.alerts) {
        alerts += alertObject(alert);
    }
    const QJsonObject status{
        {"MSAW", snapshot.alertStatus[0]}, {"APW", snapshot.alertStatus[1]}, {"STCA", snapshot.alertStatus[2]}};
    return {{"time", timeValue(snapshot.time)}, {"recordedTime", snapshot.recordedTime}, {"tracks", tracks},
        {"alerts", alerts}, {"alertStatus", status}};
}

bool SnapshotJson::save(const QJsonObject &picture, const QString &fileName, QString *error)
{
    QSaveFile file(fileName);
    const bool saved =
        file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(picture).toJson()) >= 0 && file.commit();
    if (!saved && error) {
        *error = file.errorString();
    }
    return saved;
}
