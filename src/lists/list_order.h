#pragma once

#include "lists/list_filter.h"
#include "lists/list_model.h"

#include <QAbstractProxyModel>
#include <QList>

#include <vector>

// The rows of a list in the order and choice that the operator wants. They are put in order when that is asked for and
// not when values change; between times a new row comes at the end. While the order is held no row moves: one that has
// gone leaves an empty line, which goes at the next arrangement. Rows without a value stand last, whichever way the
// list is sorted; equal ones stay as they stood. GUI thread.
class ListOrder final : public QAbstractProxyModel {
    Q_OBJECT

public:
    // The model stays the caller's and outlives this one.
    explicit ListOrder(ListModel *model, QObject *parent = nullptr);

    // From the next arrangement on. Words of the filter are looked for in the shown columns.
    void setFilter(const ListFilter &filter, const QList<int> &shownColumns);
    void setHeld(bool held) { m_held = held; }
    bool held() const { return m_held; }
    void arrange();
    // Arranges, held or not: it is asked for by the operator. A column of -1: as they came.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    QModelIndex mapToSource(const QModelIndex &proxy) const override;
    QModelIndex mapFromSource(const QModelIndex &source) const override;
    // The model's row; -1: an empty line.
    int modelRow(int row) const { return m_rows[static_cast<std::size_t>(row)]; }

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;
    // Nothing of an empty line.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    bool accepts(int modelRow) const;
    void takeIn(int first, int last);
    void letGo(int first, int last);
    void renumberAfterRemoval(int first, int last);
    // Without a place of its own any longer: by the model's leave, or by the filter's.
    void dropRows(const std::vector<bool> &leaving);
    void dropUnwanted();
    void appendRows(const std::vector<int> &modelRows);
    void putInOrder();
    std::vector<int> orderedRows() const;
    void notePlaces();

    ListModel *m_model;
    ListFilter m_filter;
    QList<int> m_shownColumns;
    int m_column = -1;
    Qt::SortOrder m_order = Qt::AscendingOrder;
    bool m_held = false;
    std::vector<int> m_rows; // of the model, by row; -1: an empty line
    std::vector<int> m_places; // rows by those of the model; -1: filtered out
};
