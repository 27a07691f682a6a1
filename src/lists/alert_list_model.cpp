#include "lists/alert_list_model.h"

#include "tracking/alert.h"
#include "widgets/text_colors.h"

#include <QBrush>
#include <QGuiApplication>

namespace {

AlertListEntry entryFor(const AlertSnapshot &alert)
{
    AlertListEntry entry;
    entry.id = alert.id;
    entry.type = alert.type;
    entry.state = alert.state;
    entry.stateText = alert.stateString;
    entry.track1 = alert.track1.text;
    entry.track2 = alert.track2Applicable ? alert.track2.text : QString();
    entry.objectName = alert.objectName;
    entry.startTime = alert.startTime;
    entry.endTime = alert.endTime;
    entry.track1Id = alert.track1.incarnationId;
    entry.track2Id = alert.track2Applicable ? alert.track2.incarnationId : 0;
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
        {tr("State"), {}, tr("Terminated")},
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
    const bool alarm = role == Qt::ForegroundRole && entry.state == Alert::Active;
    return alarm ? QVariant(QBrush(alarmTextColor(QGuiApplication::palette()))) : QVariant();
}

void AlertListModel::setAlerts(const QList<AlertSnapshot> &alerts)
{
    showSnapshots(alerts, entryFor);
}

quint64 AlertListModel::trackId(int row) const
{
    const AlertListEntry &entry = record(row);
    return entry.track1Id != 0 ? entry.track1Id : entry.track2Id;
}

QString AlertListModel::text(const AlertListEntry &entry, int column) const
{
    switch (column) {
    case Type:
        return Alert::typeString(entry.type);
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
