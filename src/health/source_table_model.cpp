#include "health/source_table_model.h"

#include "health/health_light.h"

#include <QGuiApplication>

#include <algorithm>
#include <numeric>

namespace {

constexpr int LightSize = 12; // pixels

// Of titles and contents.
int alignmentOf(int column)
{
    const bool isFigure =
        column == SourceTableModel::Rate || column == SourceTableModel::Delay || column == SourceTableModel::Shown;
    return static_cast<int>(isFigure ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter);
}

QString delayText(const DelayStatistics &delay)
{
    return delay.samples == 0 ? QStringLiteral("---") : SourceJudge::delayText(delay.median);
}

// For whom the picture is nothing.
QString spokenCurve(const SourceStatistics &statistics)
{
    const auto count = std::accumulate(statistics.history.begin(), statistics.history.end(), quint64{0});
    return SourceTableModel::tr("%n report(s)", nullptr, static_cast<int>(count));
}

} // namespace

void SourceTableModel::setSources(const QList<SourceHealth> &sources)
{
    const bool same = std::equal(sources.begin(), sources.end(), m_sources.begin(), m_sources.end(),
        [](const SourceHealth &a, const SourceHealth &b) { return a.isSameAs(b); });
    if (!same) {
        beginResetModel();
    }
    m_sources = sources;
    if (!same) {
        endResetModel();
    } else if (!m_sources.isEmpty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

int SourceTableModel::rowOf(const SourceHealth &source) const
{
    const auto found = std::find_if(
        m_sources.begin(), m_sources.end(), [&](const SourceHealth &other) { return other.isSameAs(source); });
    return found == m_sources.end() ? -1 : static_cast<int>(found - m_sources.begin());
}

int SourceTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_sources.size());
}

int SourceTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SourceTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const SourceHealth &source = m_sources[index.row()];
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return text(source, column);
    case Qt::ToolTipRole:
        return source.judgement.sentence;
    case Qt::DecorationRole:
        return column == Source ? QVariant(lightPixmap(source.judgement.light, LightSize, qGuiApp->devicePixelRatio()))
                                : QVariant();
    case Qt::TextAlignmentRole:
        return alignmentOf(column);
    case Qt::AccessibleTextRole:
        return column == Curve ? QVariant(spokenCurve(source.statistics)) : QVariant();
    case HistoryRole: {
        const auto &history = source.statistics.history;
        return QVariant::fromValue(QList<quint32>(history.begin(), history.end()));
    }
    default:
        return {};
    }
}

QString SourceTableModel::text(const SourceHealth &source, int column) const
{
    const SourceJudgement &judgement = source.judgement;
    switch (column) {
    case Source:
        return SourceJudge::nameOf(source.statistics);
    case Rate:
        return tr("%1/s").arg(source.statistics.rate10, 0, 'f', 1);
    case Delay:
        return delayText(source.statistics.delay);
    case Shown:
        // Rounded down: what is not all does not look like it.
        return judgement.shownShare ? tr("%1 %").arg(static_cast<int>(*judgement.shownShare * 100.0)) : QString();
    case State:
        return judgement.state;
    case Reason:
        return judgement.reason ? reportOutcomeText(*judgement.reason) : QString();
    default:
        return {};
    }
}

QVariant SourceTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole) {
        return alignmentOf(section);
    }
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Source:
        return tr("Source");
    case Rate:
        return tr("Reports");
    case Curve:
        return tr("Last 10 minutes");
    case Delay:
        return tr("Delay");
    case Shown:
        return tr("Used");
    case State:
        return tr("State");
    case Reason:
        return tr("Not used, mostly because");
    default:
        return {};
    }
}
