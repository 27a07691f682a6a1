#pragma once

#include "widgets/figure_font.h"

#include <QAbstractTableModel>
#include <QFont>
#include <QHash>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

// One column of a list: texts as they are shown.
struct ListColumn {
    QString title;
    QString explanation; // the header's tool tip; may be empty
    QString widestText; // that the column's width should hold
    Qt::Alignment alignment = Qt::AlignLeft;
};

// Rows of records that are replaced as a whole once a second. A record keeps its row while its key lasts, so that
// selection, current row and scroll position of the views stay with it; views are told only of rows that came, went or
// changed. Record needs operator==; Key is the member that tells one from another.
template <typename Record, auto Key>
class RecordTableModel : public QAbstractTableModel {
    using KeyType = std::decay_t<decltype(std::declval<Record>().*Key)>;

public:
    // For a proxy: the value to sort by; invalid where the record has none.
    static constexpr int SortRole = Qt::UserRole;

    RecordTableModel(QList<ListColumn> columns, QObject *parent)
        : QAbstractTableModel(parent), m_columns(std::move(columns)), m_figures(figureFont())
    {
    }

    int rowCount(const QModelIndex &parent = {}) const final
    {
        return parent.isValid() ? 0 : static_cast<int>(m_records.size());
    }

    int columnCount(const QModelIndex &parent = {}) const final
    {
        return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const final
    {
        if (orientation != Qt::Horizontal || section < 0 || section >= m_columns.size()) {
            return {};
        }
        switch (role) {
        case Qt::DisplayRole:
            return m_columns[section].title;
        case Qt::ToolTipRole:
            return textOrNone(m_columns[section].explanation);
        case Qt::TextAlignmentRole:
            return alignment(section);
        default:
            return {};
        }
    }

    QVariant data(const QModelIndex &index, int role) const final
    {
        if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
            return {};
        }
        switch (role) {
        case Qt::DisplayRole:
            return text(record(index.row()), index.column());
        case SortRole:
            return sortValue(record(index.row()), index.column());
        case Qt::FontRole:
            return m_figures;
        case Qt::TextAlignmentRole:
            return alignment(index.column());
        default:
            return look(record(index.row()), index.column(), role);
        }
    }

    const QList<ListColumn> &columns() const { return m_columns; }

    void clear() { replaceRecords({}); }

    const Record &record(int row) const { return m_records[static_cast<std::size_t>(row)]; }
    std::optional<int> rowOf(KeyType key) const
    {
        const auto found = m_rows.constFind(key);
        return found == m_rows.cend() ? std::nullopt : std::optional<int>(*found);
    }

protected:
    virtual QString text(const Record &record, int column) const = 0;
    // Invalid where the record has none.
    virtual QVariant sortValue(const Record &record, int column) const { return textOrNone(text(record, column)); }
    // Colours, decorations and tool tips.
    virtual QVariant look(const Record &record, int column, int role) const = 0;

    static QVariant textOrNone(const QString &text) { return text.isEmpty() ? QVariant() : QVariant(text); }

    // Makes the records of what a snapshot holds. Keys must differ from each other.
    template <typename Snapshot, typename Make>
    void showSnapshots(const QList<Snapshot> &snapshots, Make make)
    {
        std::vector<Record> records;
        records.reserve(static_cast<std::size_t>(snapshots.size()));
        std::transform(snapshots.cbegin(), snapshots.cend(), std::back_inserter(records), make);
        replaceRecords(std::move(records));
    }

private:
    QVariant alignment(int column) const { return QVariant::fromValue(m_columns[column].alignment | Qt::AlignVCenter); }

    void replaceRecords(std::vector<Record> records)
    {
        QHash<KeyType, std::size_t> incoming;
        incoming.reserve(static_cast<qsizetype>(records.size()));
        for (std::size_t i = 0; i < records.size(); ++i) {
            incoming.insert(records[i].*Key, i);
        }
        removeAllBut(incoming);
        updateRecords(records, incoming);
        appendRemaining(records, incoming);
        indexRows();
    }

    void removeAllBut(const QHash<KeyType, std::size_t> &incoming)
    {
        for (int last = rowCount() - 1; last >= 0; --last) {
            if (incoming.contains(record(last).*Key)) {
                continue;
            }
            int first = last;
            while (first > 0 && !incoming.contains(record(first - 1).*Key)) {
                --first;
            }
            beginRemoveRows({}, first, last);
            m_records.erase(m_records.begin() + first, m_records.begin() + last + 1);
            endRemoveRows();
            last = first;
        }
    }

    // Tells of one span from the first to the last changed row: a proxy sorts once for it, however many rows it holds.
    void updateRecords(std::vector<Record> &records, QHash<KeyType, std::size_t> &incoming)
    {
        int first = -1;
        int last = -1;
        for (int row = 0; row < rowCount(); ++row) {
            Record &held = m_records[static_cast<std::size_t>(row)];
            Record &next = records[incoming.take(held.*Key)];
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

    void appendRemaining(std::vector<Record> &records, const QHash<KeyType, std::size_t> &remaining)
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

    void indexRows()
    {
        m_rows.clear();
        m_rows.reserve(static_cast<qsizetype>(m_records.size()));
        for (int row = 0; row < rowCount(); ++row) {
            m_rows.insert(record(row).*Key, row);
        }
    }

    const QList<ListColumn> m_columns;
    const QFont m_figures;
    std::vector<Record> m_records;
    QHash<KeyType, int> m_rows;
};
