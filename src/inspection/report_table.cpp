#include "inspection/report_table.h"

#include "widgets/figure_font.h"

#include <QHeaderView>
#include <QKeyEvent>
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
    connect(this, &QTableWidget::cellEntered, this, &ReportTable::noteHover);
    connect(this, &QAbstractItemView::viewportEntered, this, [this] { noteHover(-1); });
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

bool ReportTable::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() >= Qt::Key_Left && key->key() <= Qt::Key_Down && !(key->modifiers() & Qt::ControlModifier)) {
            event->accept();
            return true;
        }
    }
    return QTableWidget::event(event);
}

void ReportTable::leaveEvent(QEvent *event)
{
    QTableWidget::leaveEvent(event);
    noteHover(-1);
}

void ReportTable::noteHover(int row)
{
    if (m_hoveredRow != row) {
        m_hoveredRow = row;
        Q_EMIT rowHovered(row);
    }
}
