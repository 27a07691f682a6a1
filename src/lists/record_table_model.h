#pragma once

#include "lists/list_model.h"
#include "widgets/figure_font.h"

#include <QFont>
#include <QHash>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

// A column of records: what it is called, and what it makes of a record.
template <typename Record>
struct RecordColumn {
    ListColumn column;
    QString (*text)(const Record &record);
    std::optional<double> (*number)(const Record &record) = nullptr; // to sort by; null: by the text
};

// Rows of records that are replaced as a whole once a second. A record keeps its row while its key lasts, so that
// selection, current row and scroll position of the views stay with it; views are told only of rows that came, went or
// changed. Texts are made when they are asked for. Record needs operator==; Key is the member that tells one from
// another.
template <typename Record, auto Key>
class RecordTableModel : public ListModel {
    using KeyType = std::decay_t<decltype(std::declval<Record>().*Key)>;

public:
    using Column = RecordColumn<Record>;

    RecordTableModel(const QList<Column> &columns, QObject *parent) : ListModel(parent), m_fields(columns)
    {
        for (const Column &field : columns) {
            m_columns.append(field.column);
        }
    }

    int rowCount(const QModelIndex &parent = {}) const final
    {
        return parent.isValid() ? 0 : static_cast<int>(m_records.size());
    }

    int columnCount(const QModelIndex &parent = {}) const final
    {
        return parent.isValid() ? 0 : static_cast<int>(m_fields.size());
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const final
    {
        if (orientation != Qt::Horizontal || section < 0 || section >= m_fields.size()) {
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
            return cellText(index.row(), index.column());
        case Qt::FontRole:
            return figureFont();
        case Qt::TextAlignmentRole:
            return alignment(index.column());
        default:
            return look(record(index.row()), index.column(), role);
        }
    }

    const QList<ListColumn> &columns() const final { return m_columns; }
    QString cellText(int row, int column) const final { return m_fields[column].text(record(row)); }
    bool isNumeric(int column) const final { return m_fields[column].number; }
    std::optional<double> cellNumber(int row, int column) const final
    {
        return isNumeric(column) ? m_fields[column].number(record(row)) : std::nullopt;
    }

    void clear() { replaceRecords({}); }

    const Record &record(int row) const { return m_records[static_cast<std::size_t>(row)]; }
    std::optional<int> rowOf(KeyType key) const
    {
        const auto found = m_rows.constFind(key);
        return found == m_rows.cend() ? std::nullopt : std::optional<int>(*found);
    }

protected:
    // Colours, decorations and tool tips.
    virtual QVariant look(const Record &record, int column, int role) const = 0;

    static QVariant textOrNone(const QString &text) { return text.isEmpty() ? QVariant() : QVariant(text); }

    // Keys must differ from each other.
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

private:
    QVariant alignment(int column) const { return QVariant::fromValue(m_columns[column].alignment | Qt::AlignVCenter); }

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

    // Tells of one span from the first to the last changed row, however many rows it holds.
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

    const QList<Column> m_fields;
    QList<ListColumn> m_columns;
    std::vector<Record> m_records;
    QHash<KeyType, int> m_rows;
};
