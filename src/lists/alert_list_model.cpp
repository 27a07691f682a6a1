#include "lists/alert_list_model.h"

#include "display/track_label_text.h"
#include "widgets/text_colors.h"

#include <QBrush>
#include <QGuiApplication>
#include <QHash>
#include <QPalette>

#include <algorithm>
#include <utility>

namespace {

using Number = std::optional<double>;
using Field = RecordColumn<AlertListEntry>;
using TracksById = QHash<quint64, const TrackSnapshot *>;

QString stateName(Alert::State state)
{
    switch (state) {
    case Alert::Initial:
        return AlertListModel::tr("Initial");
    case Alert::Active:
        return AlertListModel::tr("Active");
    case Alert::End:
        return AlertListModel::tr("End");
    case Alert::Terminated:
        return AlertListModel::tr("Terminated");
    default:
        return Alert::stateString(state);
    }
}

// An alert that ended only because nothing arrives may well go on.
QString stateText(const AlertSnapshot &alert)
{
    return alert.endedUnheard ? AlertListModel::tr("End, no data") : stateName(alert.state);
}

AlertListEntry entryFor(const AlertSnapshot &alert, const AlertBoard &board)
{
    AlertListEntry entry;
    entry.key = AlertBoard::keyOf(alert);
    entry.kind = Alert::typeString(alert.type);
    entry.state = alert.state;
    const bool acknowledged = board.isAcknowledged(entry.key);
    entry.stateText = acknowledged ? AlertListModel::tr("Acknowledged") : stateText(alert);
    entry.asking = alert.state == Alert::Active && !acknowledged;
    entry.track1 = alert.track1.text;
    entry.track2 = alert.track2Applicable ? alert.track2.text : QString();
    entry.objectName = alert.objectName;
    entry.startTime = alert.startTime;
    entry.endTime = alert.endTime;
    entry.track1Id = alert.track1.incarnationId;
    entry.track2Id = alert.track2Applicable ? alert.track2.incarnationId : 0;
    entry.sensorNumber1 = alert.track1.otherTrackNumber;
    entry.sensorNumber2 = alert.track2Applicable ? alert.track2.otherTrackNumber : 0;
    return entry;
}

AlertListEntry entryFor(const AlertBoard::Entry &noted)
{
    AlertListEntry entry;
    entry.key = noted.key;
    const QString emergency = Track::emergencyString(noted.emergency);
    entry.kind = emergency.isEmpty() ? QStringLiteral("SPI") : emergency;
    entry.state = noted.state;
    entry.stateText = noted.acknowledged ? AlertListModel::tr("Acknowledged") : stateName(noted.state);
    entry.track1 = noted.track1Text;
    entry.startTime = noted.since;
    entry.track1Id = noted.track1;
    entry.asking = noted.isAsking();
    return entry;
}

QString levelOf(const TrackSnapshot *track)
{
    QString text;
    if (track && track->levelValid) {
        tracklabel::appendNumber(text, tracklabel::shownLevel(track->level), 3);
        tracklabel::appendTrend(text, track->verticalTrend);
    }
    return text;
}

// What the picture says of the alert's tracks and of how long it has lasted.
void complete(AlertListEntry &entry, const DisplaySnapshot &snapshot, const TracksById &tracks)
{
    const TrackSnapshot *first = tracks.value(entry.track1Id);
    entry.level1 = levelOf(first);
    entry.level2 = levelOf(tracks.value(entry.track2Id));
    if (first && entry.sensorNumber1 == 0) {
        entry.sensorNumber1 = first->sensorTrackNumber;
    }
    const QDateTime &end = entry.endTime.isValid() ? entry.endTime : snapshot.time;
    if (entry.startTime.isValid() && end.isValid()) {
        entry.lasts = static_cast<int>(std::max<qint64>(0, entry.startTime.secsTo(end)));
    }
}

TracksById tracksById(const DisplaySnapshot &snapshot)
{
    TracksById tracks;
    tracks.reserve(snapshot.tracks.size());
    for (const TrackSnapshot &track : snapshot.tracks) {
        tracks.insert(track.incarnationId, &track);
    }
    return tracks;
}

QString timeText(const QDateTime &time)
{
    return time.isValid() ? time.toUTC().toString("HH:mm:ss") : QString();
}

// Minutes and seconds.
QString durationText(const AlertListEntry &entry)
{
    const QLatin1Char zero('0');
    return entry.lasts ? QString("%1:%2").arg(*entry.lasts / 60).arg(*entry.lasts % 60, 2, 10, zero) : QString();
}

QString numberText(unsigned int number)
{
    return number != 0 ? QString::number(number) : QString();
}

Number numberOrNone(unsigned int number)
{
    return number != 0 ? Number(number) : Number();
}

Field field(const char *key, const QString &title, const QString &explanation, const QString &widest, bool shown,
    QString (*text)(const AlertListEntry &), Number (*number)(const AlertListEntry &) = nullptr)
{
    return {{QLatin1String(key), title, explanation, widest, Qt::AlignLeft, shown}, text, number};
}

QList<Field> alertFields()
{
    using E = AlertListEntry;
    return {
        field("alert", AlertListModel::tr("Alert"), AlertListModel::tr("Safety-net alert, emergency or special pulse"),
            "MSAW", true, [](const E &entry) { return entry.kind; }),
        field("track", AlertListModel::tr("Track"), {}, "WWWW9999", true, [](const E &entry) { return entry.track1; }),
        field("other", AlertListModel::tr("Other Track"), {}, "WWWW9999", true,
            [](const E &entry) { return entry.track2; }),
        field("state", AlertListModel::tr("State"), {}, AlertListModel::tr("Acknowledged"), true,
            [](const E &entry) { return entry.stateText; }),
        field(
            "begin", AlertListModel::tr("Begin UTC"), {}, "00:00:00", true,
            [](const E &entry) { return timeText(entry.startTime); },
            [](const E &entry) {
                return entry.startTime.isValid() ? Number(static_cast<double>(entry.startTime.toMSecsSinceEpoch()))
                                                 : Number();
            }),
        field("area", AlertListModel::tr("Area"), {}, "WWWWWWWWWW", true,
            [](const E &entry) { return entry.objectName; }),
        field(
            "end", AlertListModel::tr("End UTC"), {}, "00:00:00", true,
            [](const E &entry) { return timeText(entry.endTime); },
            [](const E &entry) {
                return entry.endTime.isValid() ? Number(static_cast<double>(entry.endTime.toMSecsSinceEpoch()))
                                               : Number();
            }),
    };
}

QList<Field> trackFields()
{
    using E = AlertListEntry;
    return {
        field("lasts", AlertListModel::tr("Lasts"),
            AlertListModel::tr("Since its begin, or from there to its end; minutes and seconds"), "99:99", false,
            durationText, [](const E &entry) { return entry.lasts ? Number(*entry.lasts) : Number(); }),
        field("fl", AlertListModel::tr("Level"), AlertListModel::tr("Flight level of the track"), "000W", false,
            [](const E &entry) { return entry.level1; }),
        field("otherfl", AlertListModel::tr("Other Level"), AlertListModel::tr("Flight level of the other track"),
            "000W", false, [](const E &entry) { return entry.level2; }),
        field(
            "sensor", AlertListModel::tr("Sensor No."), AlertListModel::tr("The sensor's own number of the track"),
            "99999", false, [](const E &entry) { return numberText(entry.sensorNumber1); },
            [](const E &entry) { return numberOrNone(entry.sensorNumber1); }),
        field(
            "othersensor", AlertListModel::tr("Other Sensor No."),
            AlertListModel::tr("The sensor's own number of the other track"), "99999", false,
            [](const E &entry) { return numberText(entry.sensorNumber2); },
            [](const E &entry) { return numberOrNone(entry.sensorNumber2); }),
    };
}

} // namespace

AlertListModel::AlertListModel(QObject *parent) : RecordTableModel(alertFields() + trackFields(), parent)
{
    Q_ASSERT(columnCount() == ColumnCount);
}

QVariant AlertListModel::look(const AlertListEntry &entry, int, int role) const
{
    const QColor alarm = alarmTextColor(QGuiApplication::palette());
    switch (role) {
    case Qt::ForegroundRole:
        if (entry.asking) {
            return QBrush(QGuiApplication::palette().color(QPalette::Base));
        }
        return entry.state == Alert::Active ? QVariant(QBrush(alarm)) : QVariant();
    case Qt::BackgroundRole: // turned over until it is acknowledged
        return entry.asking ? QVariant(QBrush(alarm)) : QVariant();
    default:
        return {};
    }
}

void AlertListModel::setSnapshot(const QSharedPointer<const DisplaySnapshot> &snapshot, const AlertBoard &board)
{
    std::vector<AlertListEntry> entries;
    for (const AlertSnapshot &alert : snapshot ? snapshot->alerts : QList<AlertSnapshot>()) {
        entries.push_back(entryFor(alert, board));
    }
    for (const AlertBoard::Entry &noted : board.entries()) {
        if (noted.ofTrack) {
            entries.push_back(entryFor(noted));
        }
    }
    if (snapshot && !entries.empty()) {
        const TracksById tracks = tracksById(*snapshot);
        for (AlertListEntry &entry : entries) {
            complete(entry, *snapshot, tracks);
        }
    }
    replaceRecords(std::move(entries));
}

quint64 AlertListModel::trackId(int row) const
{
    const AlertListEntry &entry = record(row);
    return entry.track1Id != 0 ? entry.track1Id : entry.track2Id;
}

QList<int> AlertListModel::rowsOf(quint64 track) const
{
    QList<int> rows;
    for (int row = 0; track != 0 && row < rowCount(); ++row) {
        if (record(row).track1Id == track || record(row).track2Id == track) {
            rows.append(row);
        }
    }
    return rows;
}
