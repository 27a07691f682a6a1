#include "inspection/report_table.h"

#include "widgets/arrow_keys.h"
#include "widgets/figure_font.h"

#include <QHeaderView>
#include <QStyle>

#include <algorithm>
#include <numeric>

namespace {
constexpr int Padding = 16; // pixels beside a cell's text
constexpr int FirstLong = 2; // of the columns that may hold more than there is room for
constexpr int LitAlpha = 70; // of the selection's colour
} // namespace

ReportTable::ReportTable(const QStringList &titles, const QStringList &widest, QWidget *parent)
    : QTableWidget(0, static_cast<int>(titles.size()), parent)
{
    setHorizontalHeaderLabels(titles);
    setFont(figureFont());
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setFrameShape(NoFrame);
    setMouseTracking(true);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setStretchLastSection(true);
    for (int column = 0; column < columnCount(); ++column) {
        const int content = fontMetrics().horizontalAdvance(widest.value(column)) + Padding;
        m_widths.append(std::max(content, horizontalHeader()->sectionSizeHint(column)));
        setColumnWidth(column, m_widths.last());
    }
    new ArrowKeys(this);
    connect(this, &QTableWidget::cellEntered, this, &ReportTable::notePointed);
    connect(this, &QAbstractItemView::viewportEntered, this, [this] { notePointed(-1); });
    connect(this, &QTableWidget::currentCellChanged, this, [this](int row) {
        if (hasFocus()) {
            notePointed(row);
        }
    });
}

int ReportTable::fullWidth() const
{
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    return std::accumulate(m_widths.begin(), m_widths.end(), scrollBar);
}

void ReportTable::setRows(const QList<QStringList> &rows)
{
    setRowCount(static_cast<int>(rows.size()));
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < columnCount(); ++column) {
            setText(row, column, rows[row].value(column));
        }
    }
}

void ReportTable::setText(int row, int column, const QString &text)
{
    QTableWidgetItem *cell = item(row, column);
    if (!cell) {
        cell = new QTableWidgetItem;
        setItem(row, column, cell);
    }
    if (cell->text() != text) {
        cell->setText(text);
        cell->setToolTip(column >= FirstLong ? text : QString()); // it may be cut
    }
}

void ReportTable::setLitRows(const QList<int> &rows)
{
    if (m_lit == rows) {
        return;
    }
    QColor light = palette().color(QPalette::Highlight);
    light.setAlpha(LitAlpha);
    const auto paintRows = [this](const QList<int> &which, const QBrush &brush) {
        for (const int row : which) {
            for (int column = 0; row < rowCount() && column < columnCount(); ++column) {
                item(row, column)->setBackground(brush);
            }
        }
    };
    paintRows(m_lit, {});
    m_lit = rows;
    paintRows(m_lit, light);
    if (!rows.isEmpty() && rows.constFirst() < rowCount()) {
        scrollToItem(item(rows.constFirst(), 0));
    }
}

void ReportTable::leaveEvent(QEvent *event)
{
    QTableWidget::leaveEvent(event);
    notePointed(-1);
}

void ReportTable::focusInEvent(QFocusEvent *event)
{
    QTableWidget::focusInEvent(event);
    notePointed(currentRow());
}

void ReportTable::focusOutEvent(QFocusEvent *event)
{
    QTableWidget::focusOutEvent(event);
    notePointed(-1);
}

void ReportTable::notePointed(int row)
{
    if (m_pointedRow != row) {
        m_pointedRow = row;
        Q_EMIT rowPointed(row);
    }
}
