#pragma once

#include <QAbstractTableModel>
#include <QHash>

#include <algorithm>
#include <optional>
#include <vector>

// Rows of records that are replaced as a whole once a second. A record keeps its row while its key lasts, so that
// selection, current row and scroll position of the views stay with it; views are told only of rows that came, went or
// changed. Record needs operator==.
template <typename Record, typename Key>
class RecordTableModel : public QAbstractTableModel {
public:
    // For a proxy: the value to sort by; invalid where the record has none.
    static constexpr int SortRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = {}) const final
    {
        return parent.isValid() ? 0 : static_cast<int>(m_records.size());
    }

    const Record &record(int row) const { return m_records[static_cast<std::size_t>(row)]; }
    std::optional<int> rowOf(Key key) const
    {
        const auto found = m_rows.constFind(key);
        return found == m_rows.cend() ? std::nullopt : std::optional<int>(*found);
    }

protected:
    // Keys must differ from each other.
    void replaceRecords(std::vector<Record> records, Key Record::*key)
    {
        QHash<Key, std::size_t> incoming;
        incoming.reserve(static_cast<qsizetype>(records.size()));
        for (std::size_t i = 0; i < records.size(); ++i) {
            incoming.insert(records[i].*key, i);
        }
        removeAllBut(incoming, key);
        updateRecords(records, incoming, key);
        appendRemaining(records, incoming);
        indexRows(key);
    }

private:
    void removeAllBut(const QHash<Key, std::size_t> &incoming, Key Record::*key)
    {
        for (int last = rowCount() - 1; last >= 0; --last) {
            if (incoming.contains(record(last).*key)) {
                continue;
            }
            int first = last;
            while (first > 0 && !incoming.contains(record(first - 1).*key)) {
                --first;
            }
            beginRemoveRows({}, first, last);
            m_records.erase(m_records.begin() + first, m_records.begin() + last + 1);
            endRemoveRows();
            last = first;
        }
    }

    // Tells of one span from the first to the last changed row: a proxy sorts once for it, however many rows it holds.
    void updateRecords(std::vector<Record> &records, QHash<Key, std::size_t> &incoming, Key Record::*key)
    {
        int first = -1;
        int last = -1;
        for (int row = 0; row < rowCount(); ++row) {
            Record &held = m_records[static_cast<std::size_t>(row)];
            Record &next = records[incoming.take(held.*key)];
            if (held == next) {
                continue;
            }
            held = std::move(next);
            first = first < 0 ? row : first;
            last = row;
        }
        if (first >= 0) {
            Q_EMIT dataChanged(index(first, 0), index(last, columnCount() - 1));
        }
    }

    void appendRemaining(std::vector<Record> &records, const QHash<Key, std::size_t> &remaining)
    {
        if (remaining.isEmpty()) {
            return;
        }
        std::vector<std::size_t> places(remaining.cbegin(), remaining.cend());
        std::sort(places.begin(), places.end());
        beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(places.size()) - 1);
        for (const std::size_t place : places) {
            m_records.push_back(std::move(records[place]));
        }
        endInsertRows();
    }

    void indexRows(Key Record::*key)
    {
        m_rows.clear();
        m_rows.reserve(static_cast<qsizetype>(m_records.size()));
        for (int row = 0; row < rowCount(); ++row) {
            m_rows.insert(record(row).*key, row);
        }
    }

    std::vector<Record> m_records;
    QHash<Key, int> m_rows;
};
