#include "lists/list_view.h"

#include "lists/list_order.h"
#include "widgets/arrow_keys.h"
#include "widgets/figure_font.h"
#include "widgets/text_colors.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

constexpr int CellPadding = 6;
constexpr int LitAlpha = 70; // of the selection's colour

int rowHeightOfFigures()
{
    return QFontMetrics(figureFont()).height() + 2;
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

ListView::ListView(ListModel *model, QWidget *parent)
    : QTableView(parent), m_model(model), m_order(new ListOrder(model, this))
{
    setUpTable();
    fitColumns();
    showDefaultColumns();
    connectRows();
}

void ListView::setUpTable()
{
    setModel(m_order);
    setItemDelegate(new CellDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // columns stay where they are when rows come
    setFrameShape(NoFrame);
    new ArrowKeys(this);
    setSortingEnabled(true);
    setMouseTracking(true);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(rowHeightOfFigures());
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsMovable(true);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
}

// The operator's widths of columns grow with the text.
void ListView::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    const int height = rowHeightOfFigures();
    const int before = verticalHeader()->defaultSectionSize();
    if (event->type() != QEvent::FontChange || height == before) {
        return;
    }
    verticalHeader()->setDefaultSectionSize(height);
    for (const int column : shownColumns()) {
        horizontalHeader()->resizeSection(column, horizontalHeader()->sectionSize(column) * height / before);
    }
}

void ListView::connectRows()
{
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!m_changing) {
            Q_EMIT selectedRowChanged();
        }
    });
    connect(this, &QAbstractItemView::entered, this, &ListView::noteHover);
    connect(this, &QAbstractItemView::viewportEntered, this, [this] { noteHover({}); });
    connect(this, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex &index) {
        if (const int row = m_order->modelRow(index.row()); row >= 0) {
            Q_EMIT rowDoubleClicked(row);
        }
    });
    connect(m_order, &QAbstractItemModel::rowsInserted, viewport(), qOverload<>(&QWidget::update));
    connect(m_order, &QAbstractItemModel::rowsRemoved, viewport(), qOverload<>(&QWidget::update));
    connect(m_order, &QAbstractItemModel::dataChanged, this, &ListView::leaveEmptyLine);
}

int ListView::fittingWidth(int column) const
{
    const int title = horizontalHeader()->sectionSizeHint(column);
    const int content = QFontMetrics(figureFont()).horizontalAdvance(m_model->columns()[column].widestText);
    return std::max(title, content + 2 * CellPadding + 2);
}

void ListView::fitColumns()
{
    for (int column = 0; column < m_model->columns().size(); ++column) {
        horizontalHeader()->resizeSection(column, fittingWidth(column));
    }
}

void ListView::showDefaultColumns()
{
    QHeaderView *header = horizontalHeader();
    const QList<ListColumn> &columns = m_model->columns();
    for (int column = 0; column < columns.size(); ++column) {
        header->moveSection(header->visualIndex(column), column);
        header->setSectionHidden(column, false); // a hidden one has no width to set
    }
    fitColumns();
    for (int column = 0; column < columns.size(); ++column) {
        header->setSectionHidden(column, !columns[column].shownAtFirst);
    }
}

QList<int> ListView::shownColumns() const
{
    QList<int> shown;
    for (int place = 0; place < horizontalHeader()->count(); ++place) {
        const int column = horizontalHeader()->logicalIndex(place);
        if (!isColumnHidden(column)) {
            shown.append(column);
        }
    }
    return shown;
}

int ListView::widthOfWholeColumns(int most) const
{
    const int beside = verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    int width = beside;
    for (const int column : shownColumns()) {
        // The last one may have been stretched.
        const int wanted = fittingWidth(column);
        if (width > beside && width + wanted > most) {
            break;
        }
        width += wanted;
    }
    return width;
}

void ListView::widenToWholeColumns()
{
    int last = -1;
    int right = 0;
    for (const int column : shownColumns()) {
        if (right + columnWidth(column) > viewport()->width()) {
            break;
        }
        right += columnWidth(column);
        last = column;
    }
    if (last >= 0) {
        setColumnWidth(last, columnWidth(last) + viewport()->width() - right);
    }
}

bool ListView::inUse() const
{
    const bool touched = m_sinceTouched.isValid() && m_sinceTouched.elapsed() < RestMs;
    return touched && (m_pointerInside || (hasFocus() && selectedRow() >= 0));
}

void ListView::takeChange(const std::function<void()> &change)
{
    const QScopedValueRollback changing(m_changing, true);
    m_order->setHeld(inUse());
    change();
    if (!m_order->held()) {
        m_order->arrange();
    }
}

void ListView::arrange()
{
    const QScopedValueRollback changing(m_changing, true);
    m_order->arrange();
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
    return rows.isEmpty() ? -1 : m_order->modelRow(rows.first().row());
}

void ListView::selectRow(int row)
{
    const QModelIndex index = row < 0 ? QModelIndex() : m_order->mapFromSource(m_model->index(row, 0));
    if (!index.isValid()) {
        clearSelection();
        return;
    }
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(index.siblingAtColumn(shownColumns().value(0)));
}

void ListView::setLitRows(const QList<int> &rows)
{
    QList<QPersistentModelIndex> lit;
    for (const int row : rows) {
        lit.append(m_order->mapFromSource(m_model->index(row, 0)));
    }
    if (lit != m_lit) {
        m_lit.swap(lit);
        viewport()->update();
    }
}

bool ListView::isLit(const QModelIndex &index) const
{
    return std::any_of(m_lit.begin(), m_lit.end(),
        [&index](const QPersistentModelIndex &lit) { return lit.isValid() && lit.row() == index.row(); });
}

void ListView::noteHover(const QModelIndex &index)
{
    const int row = index.isValid() ? m_order->modelRow(index.row()) : -1;
    if (row != m_hoveredRow) {
        m_hoveredRow = row;
        Q_EMIT hoveredRowChanged(row);
    }
}

bool ListView::viewportEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Enter: // which need not be a move: the list may have come under the pointer
        m_pointerInside = true;
        break;
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
        m_pointerInside = true;
        m_sinceTouched.start();
        break;
    case QEvent::Leave:
        m_pointerInside = false;
        break;
    default:
        break;
    }
    return QTableView::viewportEvent(event);
}

void ListView::leaveEvent(QEvent *event)
{
    m_pointerInside = false;
    noteHover({});
    QTableView::leaveEvent(event);
}

void ListView::keyPressEvent(QKeyEvent *event)
{
    m_sinceTouched.start();
    if (event->matches(QKeySequence::Copy)) {
        Q_EMIT copyRequested();
        return;
    }
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
    if (event->reason() == QContextMenuEvent::Keyboard) {
        const QRect current = visualRect(currentIndex());
        Q_EMIT menuRequested(selectedRow(), viewport()->mapToGlobal(current.bottomLeft()));
        return;
    }
    const QModelIndex index = indexAt(viewport()->mapFromGlobal(event->globalPos()));
    Q_EMIT menuRequested(index.isValid() ? m_order->modelRow(index.row()) : -1, event->globalPos());
}

bool ListView::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Copy)) {
        event->accept();
        return true;
    }
    return QTableView::event(event);
}

void ListView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (m_order->rowCount() > 0 || m_emptyText.isEmpty()) {
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

// The same where a row has left an empty line.
void ListView::leaveEmptyLine()
{
    const QModelIndex current = currentIndex();
    if (current.isValid() && m_order->modelRow(current.row()) < 0) {
        selectionModel()->clear();
    }
}
