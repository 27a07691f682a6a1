#include "lists/alert_list_model.h"

#include "tracking/alert.h"
#include "widgets/text_colors.h"

#include <QBrush>
#include <QGuiApplication>
#include <QPalette>

namespace {

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

QString timeText(const QDateTime &time)
{
    return time.isValid() ? time.toUTC().toString("HH:mm:ss") : QString();
}

QVariant timeOrNone(const QDateTime &time)
{
    return time.isValid() ? QVariant(time.toMSecsSinceEpoch()) : QVariant();
}

} // namespace

// In the order of Column.
QList<ListColumn> AlertListModel::makeColumns()
{
    return {
        {tr("Alert"), {}, "MSAW"},
        {tr("Track"), {}, "WWWW9999"},
        {tr("Other Track"), {}, "WWWW9999"},
        {tr("Area"), {}, "WWWWWWWWWW"},
        {tr("State"), {}, tr("Acknowledged")},
        {tr("Begin UTC"), {}, "00:00:00"},
        {tr("End UTC"), {}, "00:00:00"},
    };
}

AlertListModel::AlertListModel(QObject *parent) : RecordTableModel(makeColumns(), parent)
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

void AlertListModel::setAlerts(const QList<AlertSnapshot> &alerts, const AlertBoard &board)
{
    QList<AlertListEntry> entries;
    for (const AlertSnapshot &alert : alerts) {
        entries.append(entryFor(alert, board));
    }
    for (const AlertBoard::Entry &noted : board.entries()) {
        if (noted.ofTrack) {
            entries.append(entryFor(noted));
        }
    }
    showSnapshots(entries, [](const AlertListEntry &entry) { return entry; });
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

QString AlertListModel::text(const AlertListEntry &entry, int column) const
{
    switch (column) {
    case Type:
        return entry.kind;
    case Track1:
        return entry.track1;
    case Track2:
        return entry.track2;
    case Object:
        return entry.objectName;
    case State:
        return entry.stateText;
    case Start:
        return timeText(entry.startTime);
    case End:
        return timeText(entry.endTime);
    default:
        return {};
    }
}

QVariant AlertListModel::sortValue(const AlertListEntry &entry, int column) const
{
    switch (column) {
    case State:
        return entry.state;
    case Start:
        return timeOrNone(entry.startTime);
    case End:
        return timeOrNone(entry.endTime);
    default:
        return RecordTableModel::sortValue(entry, column);
    }
}
