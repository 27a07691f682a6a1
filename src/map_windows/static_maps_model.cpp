#include "map_windows/static_maps_model.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMimeData>

#include <limits>

namespace {

const QString rowMimeType = QStringLiteral("application/x-vyxdisplay-static-map");

QString numberText(const std::optional<int> &number)
{
    return number ? QString::number(*number) : QString();
}

QString stateText(const MapLibrary::Map &map)
{
    switch (map.state) {
    case MapLibrary::State::Waiting:
        return StaticMapsModel::tr("waiting");
    case MapLibrary::State::Loading:
        return StaticMapsModel::tr("loading, %1 %").arg(map.percent);
    case MapLibrary::State::Loaded:
        return StaticMapsModel::tr("loaded");
    case MapLibrary::State::Failed:
        return map.data ? StaticMapsModel::tr("failed, shown as before: %1").arg(map.error)
                        : StaticMapsModel::tr("failed: %1").arg(map.error);
    }
    return {};
}

QString titleText(const MapLibrary::Map &map)
{
    const QString given = !map.data ? QString() : map.data->title.isEmpty() ? map.data->name : map.data->title;
    return given.isEmpty() ? QFileInfo(map.path).completeBaseName() : given;
}

QString explanation(int column)
{
    switch (column) {
    case StaticMapsModel::Priority:
        return StaticMapsModel::tr("Maps of higher priority are drawn over the others.");
    case StaticMapsModel::MinZoom:
    case StaticMapsModel::MaxZoom:
        return StaticMapsModel::tr("The map is shown while one pixel stands for this many metres; empty: no limit.");
    default:
        return {};
    }
}

QString toolTip(const MapLibrary::Map &map, int column)
{
    switch (column) {
    case StaticMapsModel::File:
        return QDir::toNativeSeparators(map.path);
    case StaticMapsModel::State:
        return stateText(map);
    default:
        return explanation(column);
    }
}

} // namespace

StaticMapsModel::StaticMapsModel(MapLibrary *library, QObject *parent) : QAbstractTableModel(parent), m_library(library)
{
    connect(library, &MapLibrary::mapsChanged, this, [this] {
        beginResetModel();
        endResetModel();
    });
    connect(library, &MapLibrary::mapChanged, this, &StaticMapsModel::showChanged);
}

quint64 StaticMapsModel::id(int row) const
{
    return row >= 0 && row < rowCount() ? m_library->maps()[row].id : 0;
}

int StaticMapsModel::row(quint64 id) const
{
    const MapLibrary::Map *map = m_library->map(id);
    return map ? static_cast<int>(map - m_library->maps().constData()) : -1;
}

void StaticMapsModel::showChanged(quint64 id)
{
    const int changed = row(id);
    Q_EMIT dataChanged(index(changed, 0), index(changed, ColumnCount - 1));
}

int StaticMapsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_library->maps().size());
}

int StaticMapsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant StaticMapsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    if (role == Qt::ToolTipRole) {
        return explanation(section);
    }
    const QStringList titles{
        tr("Map"), tr("File"), tr("Priority"), tr("Min. zoom"), tr("Max. zoom"), tr("Format"), tr("Size"), tr("State")};
    return titles.value(section);
}

QString StaticMapsModel::text(const MapLibrary::Map &map, int column)
{
    switch (column) {
    case Title:
        return titleText(map);
    case File:
        return QDir::toNativeSeparators(map.entry.file);
    case Priority:
        return QString::number(map.priority());
    case MinZoom:
        return numberText(map.entry.minZoom);
    case MaxZoom:
        return numberText(map.entry.maxZoom);
    case Format:
        return MapFile::formatToString(map.format);
    case Size:
        return map.size > 0 ? QLocale().formattedDataSize(map.size, 1, QLocale::DataSizeTraditionalFormat) : QString();
    case State:
        return stateText(map);
    default:
        return {};
    }
}

QVariant StaticMapsModel::editValue(const MapLibrary::Map &map, int column)
{
    switch (column) {
    case Priority:
        return numberText(map.entry.priority);
    case Format:
        return static_cast<int>(map.entry.format);
    default:
        return text(map, column);
    }
}

QVariant StaticMapsModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const MapLibrary::Map &shown = map(index);
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return text(shown, column);
    case Qt::EditRole:
        return editValue(shown, column);
    case Qt::ToolTipRole:
        return toolTip(shown, column);
    case Qt::CheckStateRole:
        return column == Title ? QVariant(shown.visible() ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::TextAlignmentRole:
        return column >= Priority && column <= Size && column != Format ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                                                        : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    case ProgressRole:
        return column == State && shown.state == MapLibrary::State::Loading ? QVariant(shown.percent) : QVariant();
    default:
        return {};
    }
}

bool StaticMapsModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return false;
    }
    MapIndexEntry entry = map(index).entry;
    if (role == Qt::CheckStateRole && index.column() == Title) {
        entry.visible = value.value<Qt::CheckState>() == Qt::Checked;
    } else if (role != Qt::EditRole || !takeOver(entry, index.column(), value)) {
        return false;
    }
    m_library->setEntry(id(index.row()), entry);
    return true;
}

bool StaticMapsModel::takeOver(MapIndexEntry &entry, int column, const QVariant &value)
{
    switch (column) {
    case Priority:
        return setNumber(entry.priority, value.toString(), std::numeric_limits<int>::min());
    case MinZoom:
    case MaxZoom:
        if (!setNumber(column == MinZoom ? entry.minZoom : entry.maxZoom, value.toString(), 0)) {
            return false;
        }
        if (entry.minZoom && entry.maxZoom && *entry.minZoom > *entry.maxZoom) {
            Q_EMIT refused(tr("The zoom range is empty: %1 to %2.").arg(*entry.minZoom).arg(*entry.maxZoom));
            return false;
        }
        return true;
    case Format:
        entry.format = static_cast<MapFile::Format>(value.toInt());
        return true;
    default:
        return false;
    }
}

bool StaticMapsModel::setNumber(std::optional<int> &number, const QString &text, int minimum)
{
    if (text.trimmed().isEmpty()) {
        number.reset();
        return true;
    }
    bool isNumber = false;
    const int entered = text.trimmed().toInt(&isNumber);
    if (!isNumber || entered < minimum) {
        Q_EMIT refused(tr("\"%1\" is not a usable number.").arg(text));
        return false;
    }
    number = entered;
    return true;
}

Qt::ItemFlags StaticMapsModel::flags(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return Qt::ItemIsDropEnabled; // between the rows, not on them
    }
    Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled;
    flags.setFlag(Qt::ItemIsUserCheckable, index.column() == Title);
    flags.setFlag(Qt::ItemIsEditable, index.column() >= Priority && index.column() <= Format);
    return flags;
}

QStringList StaticMapsModel::mimeTypes() const
{
    return {rowMimeType};
}

QMimeData *StaticMapsModel::mimeData(const QModelIndexList &indexes) const
{
    auto *data = new QMimeData; // owned by the caller
    data->setData(rowMimeType, QByteArray::number(indexes.isEmpty() ? 0 : id(indexes.constFirst().row())));
    return data;
}

bool StaticMapsModel::dropMimeData(
    const QMimeData *data, Qt::DropAction action, int row, int, const QModelIndex &parent)
{
    const quint64 dragged = data->data(rowMimeType).toULongLong();
    const int from = this->row(dragged);
    if (action != Qt::MoveAction || parent.isValid() || from < 0) {
        return false;
    }
    const int to = row < 0 ? rowCount() : row;
    m_library->moveTo(dragged, from < to ? to - 1 : to); // rows behind the dragged one move up
    return true;
}
