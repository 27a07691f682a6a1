#include "map_editor/map_editor_point_model.h"

#include "widgets/coordinate_text.h"

#include <algorithm>

MapEditorPointModel::MapEditorPointModel(MapEditorDocument *document, QObject *parent)
    : QAbstractTableModel(parent), m_document(document)
{
    connect(&document->store(), &MapEditorStore::aboutToChange, this, &MapEditorPointModel::aboutToChange);
    connect(&document->store(), &MapEditorStore::changed, this, &MapEditorPointModel::changed);
}

void MapEditorPointModel::setElement(const MapElementRef &ref)
{
    const MapElementRef shown = ref.isValid() && hasPointList(ref.kind) ? ref : MapElementRef();
    if (shown == m_ref) {
        return;
    }
    beginResetModel();
    m_ref = shown;
    endResetModel();
}

// As many points as are both removed and inserted count as changed rows; the surplus of either is inserted or removed
// after them.
void MapEditorPointModel::aboutToChange(const MapEditorChange &change)
{
    if (!m_ref.isValid()) {
        return;
    }
    if (change.what == MapEditorChange::Points && change.ref == m_ref) {
        const qsizetype replaced = std::min(change.pointsRemoved, change.pointsInserted);
        const int first = static_cast<int>(change.firstPoint + replaced);
        if (change.pointsInserted > replaced) {
            beginInsertRows({}, first, static_cast<int>(change.firstPoint + change.pointsInserted) - 1);
        } else if (change.pointsRemoved > replaced) {
            beginRemoveRows({}, first, static_cast<int>(change.firstPoint + change.pointsRemoved) - 1);
        }
    } else if (afterChange(m_ref, change).group < 0) {
        setElement({});
    }
}

void MapEditorPointModel::changed(const MapEditorChange &change)
{
    if (!m_ref.isValid()) {
        return;
    }
    if (change.what != MapEditorChange::Points || change.ref != m_ref) {
        m_ref = afterChange(m_ref, change);
        return;
    }
    if (change.pointsInserted > change.pointsRemoved) {
        endInsertRows();
    } else if (change.pointsRemoved > change.pointsInserted) {
        endRemoveRows();
    }
    const int replaced = static_cast<int>(std::min(change.pointsRemoved, change.pointsInserted));
    const int first = static_cast<int>(change.firstPoint);
    if (replaced > 0) {
        Q_EMIT dataChanged(index(first, 0), index(first + replaced - 1, ColumnCount - 1));
    }
}

int MapEditorPointModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || !m_ref.isValid() ? 0 : static_cast<int>(m_document->store().pointCount(m_ref));
}

int MapEditorPointModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant MapEditorPointModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) {
        return {};
    }
    const GeoCoordinate point = m_document->store().point(m_ref, index.row());
    const bool decimal = index.column() == DecimalColumn;
    return point.toATCString(decimal ? GeoCoordinate::DecimalDegrees : GeoCoordinate::HighPrecision);
}

QVariant MapEditorPointModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
        return section == DecimalColumn ? tr("Decimal Degrees") : tr("Coordinate");
    }
    return QAbstractTableModel::headerData(section, orientation, role);
}

bool MapEditorPointModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !index.isValid()) {
        return false;
    }
    const QString text = value.toString();
    // The text is less precise than the point: an editor that was opened and closed must not move it.
    if (text == data(index, Qt::EditRole).toString()) {
        return true;
    }
    const GeoCoordinate coordinate = coordinateFromText(text);
    if (!coordinate.isValid()) {
        return false;
    }
    m_document->movePoint(m_ref, index.row(), coordinate);
    return true;
}

Qt::ItemFlags MapEditorPointModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? QAbstractTableModel::flags(index) | Qt::ItemIsEditable : Qt::ItemFlags();
}
