#include "map_editor/map_editor_tree_model.h"

#include "widgets/text_colors.h"

#include <QGuiApplication>

namespace {

constexpr quintptr GroupLevel = 0; // internal id of groups; that of an element is the number of its group

} // namespace

MapEditorTreeModel::MapEditorTreeModel(MapEditorDocument *document, QObject *parent)
    : QAbstractItemModel(parent), m_document(document)
{
    renewGroupIds();
    connect(&document->store(), &MapEditorStore::aboutToChange, this, &MapEditorTreeModel::aboutToChange);
    connect(&document->store(), &MapEditorStore::changed, this, &MapEditorTreeModel::changed);
}

void MapEditorTreeModel::renewGroupIds()
{
    m_groupIds.clear();
    for (int i = 0; i < m_document->store().groupCount(); ++i) {
        m_groupIds.append(++m_newestGroupId);
    }
}

void MapEditorTreeModel::aboutToChange(const MapEditorChange &change)
{
    const MapElementRef &ref = change.ref;
    const auto rows = [&](auto begin) {
        const int first = m_document->store().rowOf(ref);
        (this->*begin)(index(ref.group, 0), first, first + change.count - 1);
    };
    switch (change.what) {
    case MapEditorChange::Everything:
        beginResetModel();
        break;
    case MapEditorChange::GroupInserted:
        beginInsertRows({}, ref.group, ref.group);
        break;
    case MapEditorChange::GroupRemoved:
        beginRemoveRows({}, ref.group, ref.group);
        break;
    case MapEditorChange::ElementsInserted:
        rows(&MapEditorTreeModel::beginInsertRows);
        break;
    case MapEditorChange::ElementsRemoved:
        rows(&MapEditorTreeModel::beginRemoveRows);
        break;
    default:
        break;
    }
}

void MapEditorTreeModel::changed(const MapEditorChange &change)
{
    switch (change.what) {
    case MapEditorChange::Everything:
        renewGroupIds();
        endResetModel();
        break;
    case MapEditorChange::GroupInserted:
        m_groupIds.insert(change.ref.group, ++m_newestGroupId);
        endInsertRows();
        break;
    case MapEditorChange::GroupRemoved:
        m_groupIds.removeAt(change.ref.group);
        endRemoveRows();
        break;
    case MapEditorChange::ElementsInserted:
        endInsertRows();
        break;
    case MapEditorChange::ElementsRemoved:
        endRemoveRows();
        break;
    case MapEditorChange::Group:
    case MapEditorChange::Properties:
        tellRow(change.ref);
        break;
    case MapEditorChange::Points:
        if (change.pointsInserted != change.pointsRemoved) {
            tellRow(change.ref);
        }
        break;
    case MapEditorChange::Meta:
        break;
    }
}

void MapEditorTreeModel::tellRow(const MapElementRef &ref)
{
    const QModelIndex first = indexOf(ref);
    Q_EMIT dataChanged(first, first.siblingAtColumn(ColumnCount - 1));
}

MapElementRef MapEditorTreeModel::refOf(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return {};
    }
    if (index.internalId() == GroupLevel) {
        return {index.row(), MapElementKind::Polyline, -1};
    }
    return m_document->store().refAt(static_cast<int>(m_groupIds.indexOf(index.internalId())), index.row());
}

QModelIndex MapEditorTreeModel::indexOf(const MapElementRef &ref) const
{
    if (ref.group < 0 || ref.group >= m_groupIds.size()) {
        return {};
    }
    const QModelIndex group = index(ref.group, 0);
    return ref.index < 0 ? group : index(m_document->store().rowOf(ref), 0, group);
}

QModelIndex MapEditorTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    return createIndex(row, column, parent.isValid() ? m_groupIds.at(parent.row()) : GroupLevel);
}

QModelIndex MapEditorTreeModel::parent(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == GroupLevel) {
        return {};
    }
    return createIndex(static_cast<int>(m_groupIds.indexOf(index.internalId())), 0, GroupLevel);
}

int MapEditorTreeModel::rowCount(const QModelIndex &parent) const
{
    const MapEditorStore &store = m_document->store();
    if (!parent.isValid()) {
        return store.groupCount();
    }
    return parent.internalId() == GroupLevel && parent.column() == 0 ? store.elementCount(parent.row()) : 0;
}

int MapEditorTreeModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QVariant MapEditorTreeModel::data(const QModelIndex &index, int role) const
{
    const MapElementRef ref = refOf(index);
    if (ref.group < 0) {
        return {};
    }
    if (ref.index < 0) {
        return groupData(m_document->store().map().groups[ref.group], index.column(), role);
    }
    return elementData(ref, index.column(), role);
}

QVariant MapEditorTreeModel::groupData(const MapElementGroup &group, int column, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::EditRole) {
        return {};
    }
    switch (column) {
    case NameColumn:
        return group.name.isEmpty() && role == Qt::DisplayRole ? group.className : group.name;
    case KindColumn:
        return tr("Group");
    default:
        return group.className;
    }
}

QVariant MapEditorTreeModel::elementData(const MapElementRef &ref, int column, int role) const
{
    const MapElementProperties properties = m_document->store().properties(ref);
    const bool nameless = column == NameColumn && properties.name.isEmpty();
    if (role == Qt::ForegroundRole && nameless) {
        return quietTextColor(QGuiApplication::palette());
    }
    if (role == Qt::DisplayRole && nameless) {
        return tr("no name");
    }
    if (role != Qt::DisplayRole && role != Qt::EditRole) {
        return {};
    }
    switch (column) {
    case NameColumn:
        return properties.name;
    case KindColumn:
        return kindText(ref.kind);
    default:
        return hasPointList(ref.kind) ? detailText(ref) : properties.text.section(u'\n', 0, 0);
    }
}

QString MapEditorTreeModel::detailText(const MapElementRef &ref) const
{
    const qsizetype count = m_document->store().pointCount(ref);
    return count == 1 ? tr("1 point") : tr("%1 points").arg(count);
}

QString MapEditorTreeModel::kindText(MapElementKind kind)
{
    switch (kind) {
    case MapElementKind::Polyline:
        return tr("Line");
    case MapElementKind::Polygon:
        return tr("Area");
    case MapElementKind::Label:
        return tr("Label");
    case MapElementKind::Symbol:
        return tr("Symbol");
    case MapElementKind::Image:
        break;
    }
    return tr("Image");
}

QVariant MapEditorTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case NameColumn:
        return tr("Name");
    case KindColumn:
        return tr("Kind");
    default:
        return tr("Details");
    }
}

bool MapEditorTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const MapElementRef ref = refOf(index);
    if (role != Qt::EditRole || index.column() != NameColumn || ref.group < 0) {
        return false;
    }
    if (ref.index < 0) {
        m_document->setGroupName(ref.group, value.toString());
    } else {
        m_document->setName(ref, value.toString());
    }
    return true;
}

Qt::ItemFlags MapEditorTreeModel::flags(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return {};
    }
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    if (index.internalId() != GroupLevel) {
        flags |= Qt::ItemNeverHasChildren;
    }
    if (index.column() == NameColumn) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}
