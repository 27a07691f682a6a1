#include "engine/snapshot_json.h"

#include <QCoreApplication>
#include <QJsonArray>
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

} // namespace

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
