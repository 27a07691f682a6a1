#include "lists/list_order.h"

#include <algorithm>
#include <utility>

namespace {

// What a row is ordered by.
struct Key {
    int row = 0; // of the model
    bool known = false;
    double number = 0.0;
    QString text;
};

bool isBefore(const Key &one, const Key &other, bool descending)
{
    if (one.known != other.known) {
        return one.known;
    }
    const Key &lower = descending ? other : one;
    const Key &higher = descending ? one : other;
    return lower.number != higher.number ? lower.number < higher.number : lower.text < higher.text;
}

} // namespace

ListOrder::ListOrder(ListModel *model, QObject *parent) : QAbstractProxyModel(parent), m_model(model)
{
    setSourceModel(model);
    connect(model, &QAbstractItemModel::rowsInserted, this,
        [this](const QModelIndex &, int first, int last) { takeIn(first, last); });
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
        [this](const QModelIndex &, int first, int last) { letGo(first, last); });
    connect(model, &QAbstractItemModel::rowsRemoved, this,
        [this](const QModelIndex &, int first, int last) { renumberAfterRemoval(first, last); });
    connect(model, &QAbstractItemModel::dataChanged, this, [this] {
        if (!m_rows.empty()) {
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        }
    });
    if (model->rowCount() > 0) {
        takeIn(0, model->rowCount() - 1);
    }
}

void ListOrder::setFilter(const ListFilter &filter, const QList<int> &shownColumns)
{
    m_filter = filter;
    m_shownColumns = shownColumns;
}

void ListOrder::sort(int column, Qt::SortOrder order)
{
    m_column = column;
    m_order = order;
    arrange();
}

bool ListOrder::accepts(int modelRow) const
{
    return m_filter.isEmpty() || m_filter.accepts(*m_model, modelRow, m_shownColumns);
}

void ListOrder::takeIn(int first, int last)
{
    for (int &row : m_rows) {
        row += row >= first ? last - first + 1 : 0;
    }
    std::vector<int> coming;
    for (int row = first; row <= last; ++row) {
        if (accepts(row)) {
            coming.push_back(row);
        }
    }
    appendRows(coming);
}

void ListOrder::appendRows(const std::vector<int> &modelRows)
{
    if (!modelRows.empty()) {
        beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(modelRows.size()) - 1);
        m_rows.insert(m_rows.end(), modelRows.begin(), modelRows.end());
        notePlaces();
        endInsertRows();
    } else {
        notePlaces();
    }
}

void ListOrder::letGo(int first, int last)
{
    std::vector<bool> leaving(m_rows.size());
    for (int row = first; row <= last; ++row) {
        const int place = m_places[static_cast<std::size_t>(row)];
        if (place >= 0) {
            leaving[static_cast<std::size_t>(place)] = true;
        }
    }
    if (!m_held) {
        dropRows(leaving);
        return;
    }
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        m_rows[row] = leaving[row] ? -1 : m_rows[row];
    }
}

void ListOrder::renumberAfterRemoval(int first, int last)
{
    for (int &row : m_rows) {
        row -= row > last ? last - first + 1 : 0;
    }
    notePlaces();
    if (m_held && !m_rows.empty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
}

void ListOrder::dropRows(const std::vector<bool> &leaving)
{
    for (int last = rowCount() - 1; last >= 0; --last) {
        if (!leaving[static_cast<std::size_t>(last)]) {
            continue;
        }
        int first = last;
        while (first > 0 && leaving[static_cast<std::size_t>(first) - 1]) {
            --first;
        }
        beginRemoveRows({}, first, last);
        m_rows.erase(m_rows.begin() + first, m_rows.begin() + last + 1);
        notePlaces();
        endRemoveRows();
        last = first;
    }
}

void ListOrder::notePlaces()
{
    m_places.assign(static_cast<std::size_t>(m_model->rowCount()), -1);
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        const auto ofModel = static_cast<std::size_t>(m_rows[row]);
        if (m_rows[row] >= 0 && ofModel < m_places.size()) {
            m_places[ofModel] = static_cast<int>(row);
        }
    }
}

void ListOrder::arrange()
{
    dropUnwanted();
    std::vector<int> wanted;
    for (std::size_t row = 0; row < m_places.size(); ++row) {
        if (m_places[row] < 0 && accepts(static_cast<int>(row))) {
            wanted.push_back(static_cast<int>(row));
        }
    }
    appendRows(wanted);
    putInOrder();
}

void ListOrder::dropUnwanted()
{
    std::vector<bool> leaving(m_rows.size());
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        leaving[row] = m_rows[row] < 0 || !accepts(m_rows[row]);
    }
    dropRows(leaving);
}

std::vector<int> ListOrder::orderedRows() const
{
    std::vector<Key> keys;
    keys.reserve(m_rows.size());
    const bool numeric = m_model->isNumeric(m_column);
    for (const int row : m_rows) {
        Key key{row, false, 0.0, {}};
        if (numeric) {
            const std::optional<double> number = m_model->cellNumber(row, m_column);
            key.known = number.has_value();
            key.number = number.value_or(0.0);
        } else {
            key.text = m_model->cellText(row, m_column);
            key.known = !key.text.isEmpty();
        }
        keys.push_back(std::move(key));
    }
    const bool descending = m_order == Qt::DescendingOrder;
    std::stable_sort(keys.begin(), keys.end(),
        [descending](const Key &one, const Key &other) { return isBefore(one, other, descending); });
    std::vector<int> rows;
    rows.reserve(keys.size());
    for (const Key &key : keys) {
        rows.push_back(key.row);
    }
    return rows;
}

void ListOrder::putInOrder()
{
    if (m_column < 0) {
        return;
    }
    std::vector<int> rows = orderedRows();
    if (rows == m_rows) {
        return;
    }
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    const std::vector<int> rowsBefore = std::exchange(m_rows, std::move(rows));
    notePlaces();
    QModelIndexList after;
    for (const QModelIndex &one : before) {
        const int modelRow = rowsBefore[static_cast<std::size_t>(one.row())];
        after.append(index(m_places[static_cast<std::size_t>(modelRow)], one.column()));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

QModelIndex ListOrder::mapToSource(const QModelIndex &proxy) const
{
    if (!proxy.isValid() || proxy.row() >= rowCount() || modelRow(proxy.row()) < 0) {
        return {};
    }
    return m_model->index(modelRow(proxy.row()), proxy.column());
}

QModelIndex ListOrder::mapFromSource(const QModelIndex &source) const
{
    if (!source.isValid() || static_cast<std::size_t>(source.row()) >= m_places.size()) {
        return {};
    }
    const int place = m_places[static_cast<std::size_t>(source.row())];
    return place < 0 ? QModelIndex() : index(place, source.column());
}

QModelIndex ListOrder::index(int row, int column, const QModelIndex &parent) const
{
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex ListOrder::parent(const QModelIndex &) const
{
    return {};
}

int ListOrder::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

bool ListOrder::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0;
}

QVariant ListOrder::data(const QModelIndex &index, int role) const
{
    const QModelIndex source = mapToSource(index);
    return source.isValid() ? m_model->data(source, role) : QVariant();
}

// The base class would ask by way of the first row, which may be an empty line.
QVariant ListOrder::headerData(int section, Qt::Orientation orientation, int role) const
{
    return m_model->headerData(section, orientation, role);
}

int ListOrder::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_model->columnCount();
}
