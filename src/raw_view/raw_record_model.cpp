#include "raw_view/raw_record_model.h"

#include "tracking/report_outcome.h"
#include "widgets/figure_font.h"
#include "widgets/text_colors.h"

#include <QDateTime>
#include <QGuiApplication>

#include <algorithm>
#include <atomic>

namespace {

// So much more than the most is held before some go.
constexpr std::size_t DropShare = 10;

struct ColumnSpec {
    const char *title;
    const char *widest; // null: words, which are of a length of their own in each language
    Qt::Alignment alignment;
};

constexpr ColumnSpec Columns[] = {
    {QT_TRANSLATE_NOOP("RawRecordModel", "Time"), "23:59:59.999", Qt::AlignLeft},
    {QT_TRANSLATE_NOOP("RawRecordModel", "Format"), "CAT048", Qt::AlignLeft},
    {QT_TRANSLATE_NOOP("RawRecordModel", "Source"), "255/255", Qt::AlignLeft},
    {QT_TRANSLATE_NOOP("RawRecordModel", "Octets"), "1400", Qt::AlignRight},
    {QT_TRANSLATE_NOOP("RawRecordModel", "Identity"), "DLH4ABCD 7777 3C6444 #9999", Qt::AlignLeft},
    {QT_TRANSLATE_NOOP("RawRecordModel", "Became"), nullptr, Qt::AlignLeft},
    {QT_TRANSLATE_NOOP("RawRecordModel", "Holds"), "010 140 020 040 070 090 220 240 250 161", Qt::AlignLeft},
};
static_assert(std::size(Columns) == RawRecordModel::ColumnCount);

// Whether nobody else reads it any more, on whichever thread.
bool isUnshared(const std::shared_ptr<RawPage> &page)
{
    const bool isUnshared = page.use_count() == 1;
    std::atomic_thread_fence(std::memory_order_acquire); // after what the last reader did
    return isUnshared;
}

} // namespace

RawRecordModel::RawRecordModel(QObject *parent) : QAbstractTableModel(parent) { }

int RawRecordModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int RawRecordModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString RawRecordModel::widestText(int column)
{
    const char *widest = Columns[column].widest;
    return widest ? QString::fromLatin1(widest) : reportOutcomeText(ReportOutcome::NoIdentity);
}

QVariant RawRecordModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Columns[section].alignment | Qt::AlignVCenter);
    }
    return role == Qt::DisplayRole ? tr(Columns[section].title) : QVariant();
}

QVariant RawRecordModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    return look(record(index.row()), index.column(), role);
}

QVariant RawRecordModel::look(const RawRecord &record, int column, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return text(record, column);
    case Qt::FontRole:
        return figureFont();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Columns[column].alignment | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        if (record.facts.outcome == ReportOutcome::Malformed) {
            return alarmTextColor(QGuiApplication::palette());
        }
        return isShown(record.facts.outcome) ? QVariant() : quietTextColor(QGuiApplication::palette());
    case Qt::ToolTipRole:
        return column == Outcome || column == Contents ? text(record, column) : QVariant();
    default:
        return {};
    }
}

QString RawRecordModel::text(const RawRecord &record, int column) const
{
    switch (column) {
    case Time:
        return QDateTime::fromMSecsSinceEpoch(record.facts.timeMs, Qt::UTC).toString(QStringLiteral("HH:mm:ss.zzz"));
    case Form:
        return formText(record);
    case Source:
        return sourceText(record);
    case Size:
        return QString::number(record.facts.size);
    case Identity:
        return identityText(record);
    case Outcome:
        return outcomeText(record);
    default:
        return contentsText(record);
    }
}

void RawRecordModel::append(const std::vector<std::shared_ptr<const StreamBatch>> &batches)
{
    std::vector<quint64> rows;
    for (const auto &batch : batches) {
        for (const StreamBatch::Record &received : batch->records) {
            const auto &page = pageFor(received.size);
            RawRecord &record = m_records.emplace_back(RawRecord{received, page, m_nextNumber++});
            record.facts.offset = page->add(batch->octetsOf(received));
            m_octets += received.size;
            if (m_filter.matches(record)) {
                rows.push_back(record.number);
            }
        }
    }
    if (!rows.empty()) {
        beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(rows.size()) - 1);
        m_rows.insert(m_rows.end(), rows.begin(), rows.end());
        endInsertRows();
    }
    dropOldest();
}

// The newest one, or one behind it.
const std::shared_ptr<RawPage> &RawRecordModel::pageFor(std::size_t octets)
{
    if (!m_pages.empty() && m_pages.back()->hasRoomFor(octets)) {
        return m_pages.back();
    }
    if (m_sparePages.empty() || octets > RawPage::UsualRoom) {
        return m_pages.emplace_back(std::make_shared<RawPage>(std::max(octets, RawPage::UsualRoom)));
    }
    m_pages.push_back(std::move(m_sparePages.back()));
    m_sparePages.pop_back();
    return m_pages.back();
}

// Those before the oldest record's.
void RawRecordModel::dropPages()
{
    while (m_pages.front() != m_records.front().page) {
        if (m_pages.front()->room() == RawPage::UsualRoom && isUnshared(m_pages.front())) {
            m_pages.front()->clear();
            m_sparePages.push_back(std::move(m_pages.front()));
        }
        m_pages.pop_front();
    }
}

void RawRecordModel::dropOldest()
{
    if (m_records.size() <= MostRecords + MostRecords / DropShare && m_octets <= MostOctets + MostOctets / DropShare) {
        return;
    }
    std::size_t going = 0;
    std::size_t octets = m_octets;
    while (m_records.size() - going > MostRecords || octets > MostOctets) {
        octets -= m_records[going++].facts.size;
    }
    const auto end = std::lower_bound(m_rows.begin(), m_rows.end(), m_records.front().number + going);
    const int rows = static_cast<int>(end - m_rows.begin());
    if (rows > 0) {
        beginRemoveRows({}, 0, rows - 1);
    }
    m_records.erase(m_records.begin(), m_records.begin() + static_cast<std::ptrdiff_t>(going));
    m_octets = octets;
    dropPages();
    if (rows > 0) {
        m_rows.erase(m_rows.begin(), end);
        endRemoveRows();
    }
}

void RawRecordModel::clear()
{
    beginResetModel();
    m_records.clear();
    m_rows.clear();
    m_pages.clear();
    m_sparePages.clear();
    m_octets = 0;
    endResetModel();
}

void RawRecordModel::setFilter(const RawFilter &filter)
{
    if (filter == m_filter) {
        return;
    }
    beginResetModel();
    m_filter = filter;
    m_rows.clear();
    for (const RawRecord &record : m_records) {
        if (m_filter.matches(record)) {
            m_rows.push_back(record.number);
        }
    }
    endResetModel();
}

const RawRecord &RawRecordModel::record(int row) const
{
    return m_records[m_rows[static_cast<std::size_t>(row)] - m_records.front().number];
}

int RawRecordModel::rowOf(quint64 number) const
{
    const auto found = std::lower_bound(m_rows.begin(), m_rows.end(), number);
    return found != m_rows.end() && *found == number ? static_cast<int>(found - m_rows.begin()) : -1;
}

std::vector<RawRecord> RawRecordModel::listed() const
{
    std::vector<RawRecord> records;
    records.reserve(m_rows.size());
    for (int row = 0; row < rowCount(); ++row) {
        records.push_back(record(row));
    }
    return records;
}
