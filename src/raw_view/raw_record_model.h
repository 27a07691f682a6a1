#pragma once

#include "raw_view/raw_filter.h"
#include "raw_view/raw_record.h"

#include <QAbstractTableModel>
#include <QFont>

#include <deque>
#include <vector>

// The newest records of the stream, the oldest first, as far as the filter lets them through. What a row shows is
// worked out when it is asked for: records out of sight cost their octets only.
class RawRecordModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Time, Form, Source, Size, Identity, Outcome, Contents, ColumnCount };

    // Records that are held, listed or not; beyond them the oldest go, many at a time, so that views are told seldom.
    static constexpr std::size_t MostRecords = 50000;
    static constexpr std::size_t MostOctets = 64 * 1024 * 1024;

    explicit RawRecordModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    // That a column should have room for.
    static QString widestText(int column);

    void append(const std::vector<std::shared_ptr<const StreamBatch>> &batches);
    void clear();
    void setFilter(const RawFilter &filter);
    const RawFilter &filter() const { return m_filter; }

    const RawRecord &record(int row) const;
    // -1: not listed.
    int rowOf(quint64 number) const;
    // All listed ones, in their order.
    std::vector<RawRecord> listed() const;
    std::size_t held() const { return m_records.size(); }

private:
    const std::shared_ptr<RawPage> &pageFor(std::size_t octets);
    void dropOldest();
    void dropPages();
    QVariant look(const RawRecord &record, int column, int role) const;
    QString text(const RawRecord &record, int column) const;

    RawFilter m_filter;
    std::deque<RawRecord> m_records;
    // Of the records, the oldest first; and those whose records have gone: were they given back, others would take
    // pieces of their memory, and more would be needed every time.
    std::deque<std::shared_ptr<RawPage>> m_pages;
    std::vector<std::shared_ptr<RawPage>> m_sparePages;
    std::size_t m_octets = 0; // of all that are held
    std::deque<quint64> m_rows; // numbers of the listed ones
    quint64 m_nextNumber = 1;
};
