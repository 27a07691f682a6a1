#include "lists/list_view.h"

#include "lists/list_sort_model.h"
#include "lists/record_table_model.h"
#include "widgets/figure_font.h"
#include "widgets/text_colors.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

constexpr int CellPadding = 6;
constexpr int LitAlpha = 70; // of the selection's colour

// Keys that move within the list; the window has shortcuts on some of them.
bool isListKey(const QKeyEvent &event)
{
    if (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return true;
    default:
        return false;
    }
}

// Cells with room at both sides, so that a number does not run into the text of the next column.
class CellDelegate final : public QStyledItemDelegate {
public:
    explicit CellDelegate(ListView *list) : QStyledItemDelegate(list), m_list(list) { }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        cell.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
        const bool selected = cell.state & QStyle::State_Selected;
        if (!selected && m_list->isLit(index)) {
            QColor light = cell.palette.color(QPalette::Highlight);
            light.setAlpha(LitAlpha);
            painter->fillRect(cell.rect, light);
        }
        const QPalette::ColorGroup group = cell.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
        painter->setFont(cell.font);
        painter->setPen(cell.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
        QRect inner = cell.rect.adjusted(CellPadding, 0, -CellPadding, 0);
        if (!cell.icon.isNull()) {
            const QRect iconPlace(inner.left(), inner.top(), inner.height() * 4 / 3, inner.height());
            cell.icon.paint(painter, iconPlace.adjusted(0, 2, 0, -2), Qt::AlignLeft | Qt::AlignVCenter);
            inner.setLeft(iconPlace.right() + CellPadding / 2);
        }
        painter->drawText(inner, static_cast<int>(cell.displayAlignment | Qt::TextSingleLine),
            cell.fontMetrics.elidedText(cell.text, Qt::ElideRight, inner.width()));
    }

private:
    const ListView *m_list;
};

} // namespace

ListView::ListView(QAbstractItemModel *model, const QList<ListColumn> &columns, QWidget *parent)
    : QTableView(parent), m_sorted(new ListSortModel(model, this))
{
    setModel(m_sorted);
    setItemDelegate(new CellDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setFrameShape(NoFrame);
    setSortingEnabled(true);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(QFontMetrics(figureFont()).height() + 4);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    fitColumns(columns);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &ListView::selectedRowChanged);
    setMouseTracking(true);
    connect(this, &QAbstractItemView::entered, this,
        [this](const QModelIndex &index) { noteHover(m_sorted->mapToSource(index).row()); });
    connect(this, &QAbstractItemView::viewportEntered, this, [this] { noteHover(-1); });
    connect(this, &QAbstractItemView::doubleClicked, this,
        [this](const QModelIndex &index) { Q_EMIT rowDoubleClicked(m_sorted->mapToSource(index).row()); });
    connect(m_sorted, &QAbstractItemModel::rowsInserted, viewport(), qOverload<>(&QWidget::update));
    connect(m_sorted, &QAbstractItemModel::rowsRemoved, viewport(), qOverload<>(&QWidget::update));
}

void ListView::fitColumns(const QList<ListColumn> &columns)
{
    const QFontMetrics figures(figureFont());
    for (int column = 0; column < columns.size(); ++column) {
        const int title = horizontalHeader()->sectionSizeHint(column);
        const int content = figures.horizontalAdvance(columns[column].widestText) + 2 * CellPadding + 2;
        horizontalHeader()->resizeSection(column, std::max(title, content));
    }
}

void ListView::setEmptyText(const QString &text)
{
    if (m_emptyText != text) {
        m_emptyText = text;
        viewport()->update();
    }
}

int ListView::selectedRow() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : m_sorted->mapToSource(rows.first()).row();
}

void ListView::selectRow(int row)
{
    if (row < 0) {
        clearSelection();
        return;
    }
    const QModelIndex index = m_sorted->mapFromSource(m_sorted->sourceModel()->index(row, 0));
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(index);
}

void ListView::setLitRows(const QList<int> &rows)
{
    QList<QPersistentModelIndex> lit;
    for (const int row : rows) {
        lit.append(m_sorted->mapFromSource(m_sorted->sourceModel()->index(row, 0)));
    }
    if (lit != m_lit) {
        m_lit.swap(lit);
        viewport()->update();
    }
}

bool ListView::isLit(const QModelIndex &sortedIndex) const
{
    return std::any_of(m_lit.begin(), m_lit.end(),
        [&sortedIndex](const QPersistentModelIndex &lit) { return lit.isValid() && lit.row() == sortedIndex.row(); });
}

void ListView::noteHover(int row)
{
    if (row != m_hoveredRow) {
        m_hoveredRow = row;
        Q_EMIT hoveredRowChanged(row);
    }
}

void ListView::leaveEvent(QEvent *event)
{
    noteHover(-1);
    QTableView::leaveEvent(event);
}

void ListView::keyPressEvent(QKeyEvent *event)
{
    const bool confirms =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    if (confirms && event->modifiers() == Qt::NoModifier && selectedRow() >= 0) {
        Q_EMIT rowConfirmed(selectedRow());
        return;
    }
    QTableView::keyPressEvent(event);
}

void ListView::contextMenuEvent(QContextMenuEvent *event)
{
    const QModelIndex index = indexAt(viewport()->mapFromGlobal(event->globalPos()));
    if (index.isValid()) {
        Q_EMIT rowMenuRequested(m_sorted->mapToSource(index).row(), event->globalPos());
    }
}

bool ListView::event(QEvent *event)
{
    // Claiming the key makes it come as a key press instead of setting off the window's shortcut.
    if (event->type() == QEvent::ShortcutOverride && isListKey(*static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QTableView::event(event);
}

void ListView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (m_sorted->rowCount() > 0 || m_emptyText.isEmpty()) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(quietTextColor(palette()));
    painter.drawText(
        viewport()->rect().adjusted(12, 12, -12, -12), Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, m_emptyText);
}

void ListView::rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end)
{
    // Left to itself the view would select the neighbour of a selected row that goes.
    if (currentIndex().row() >= start && currentIndex().row() <= end) {
        selectionModel()->clear();
    }
    QTableView::rowsAboutToBeRemoved(parent, start, end);
}
