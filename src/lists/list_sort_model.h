#pragma once

#include <QSortFilterProxyModel>

// Sorts a list by its sort values. Rows without a value stand at the end, whichever way the list is sorted.
class ListSortModel final : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit ListSortModel(QAbstractItemModel *source, QObject *parent = nullptr);

protected:
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;
};
