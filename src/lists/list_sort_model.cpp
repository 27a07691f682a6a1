#include "lists/list_sort_model.h"

#include "lists/track_list_model.h"

ListSortModel::ListSortModel(QAbstractItemModel *source, QObject *parent) : QSortFilterProxyModel(parent)
{
    setSortRole(TrackListModel::SortRole);
    setSourceModel(source);
}

bool ListSortModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const QVariant leftValue = left.data(sortRole());
    const QVariant rightValue = right.data(sortRole());
    if (leftValue.isValid() != rightValue.isValid()) {
        return leftValue.isValid() == (sortOrder() == Qt::AscendingOrder);
    }
    return leftValue.isValid() && QSortFilterProxyModel::lessThan(left, right);
}
