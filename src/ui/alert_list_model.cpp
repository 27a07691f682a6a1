#include "ui/alert_list_model.h"

#include "tracking/alert.h"
#include "widgets/figure_font.h"
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

AlertListModel::AlertListModel(QObject *parent) : RecordTableModel(parent), m_figures(figureFont()) { }

int AlertListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant AlertListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const AlertListEntry &entry = record(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(entry, index.column());
    case SortRole:
        return sortValue(entry, index.column());
    case Qt::ForegroundRole:
        return entry.state == Alert::Active ? QVariant(QBrush(alarmTextColor(QGuiApplication::palette()))) : QVariant();
    case Qt::FontRole:
        return m_figures;
    default:
        return {};
    }
}

QVariant AlertListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const char *const titles[] = {QT_TR_NOOP("Alert"), QT_TR_NOOP("Track"), QT_TR_NOOP("Other Track"),
        QT_TR_NOOP("Area"), QT_TR_NOOP("State"), QT_TR_NOOP("Begin UTC"), QT_TR_NOOP("End UTC")};
    static_assert(std::size(titles) == ColumnCount);
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    }
    return role == Qt::DisplayRole ? QVariant(tr(titles[section])) : QVariant();
}

QStringList AlertListModel::widestTexts()
{
    return {"MSAW", "WWWW9999", "WWWW9999", "WWWWWWWWWW", tr("Terminated"), "00:00:00", "00:00:00"};
}

void AlertListModel::setAlerts(const QList<AlertSnapshot> &alerts)
{
    std::vector<AlertListEntry> entries;
    entries.reserve(static_cast<std::size_t>(alerts.size()));
    std::transform(alerts.cbegin(), alerts.cend(), std::back_inserter(entries), entryFor);
    replaceRecords(std::move(entries), &AlertListEntry::id);
}

void AlertListModel::clear()
{
    replaceRecords({}, &AlertListEntry::id);
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
    default: {
        const QString shown = text(entry, column);
        return shown.isEmpty() ? QVariant() : QVariant(shown);
    }
    }
}
