#include "map_editor/map_editor_point_pane.h"

#include "map_editor/map_editor_point_model.h"
#include "widgets/coordinate_edit.h"
#include "widgets/coordinate_text.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// Edits a point with a CoordinateEdit; text that is no coordinate leaves the point as it was.
class PointDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        auto *edit = new CoordinateEdit(parent);
        edit->setMinimumWidth(0);
        edit->setFrame(false);
        return edit;
    }

    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        if (auto *edit = qobject_cast<QLineEdit *>(editor)) {
            edit->setText(index.data(Qt::EditRole).toString());
        }
    }

    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override
    {
        const auto *edit = qobject_cast<QLineEdit *>(editor);
        if (edit && edit->hasAcceptableInput()) {
            model->setData(index, edit->text(), Qt::EditRole);
        }
    }
};

} // namespace

MapEditorPointPane::MapEditorPointPane(MapEditorDocument *document, QWidget *parent)
    : QWidget(parent), m_document(document), m_model(new MapEditorPointModel(document, this)),
      m_table(new QTableView(this))
{
    m_table->setObjectName(QStringLiteral("pointTable"));
    m_table->setAccessibleName(tr("Points"));
    m_table->setModel(m_model);
    m_table->setItemDelegate(new PointDelegate(m_table));
    m_table->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setWordWrap(false);
    // With one fixed height the view does not have to measure every row of a long list.
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->setTabKeyNavigation(false); // it goes through the fields of a point while one is edited
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + 8);
    m_table->setColumnWidth(0, m_table->fontMetrics().horizontalAdvance(QStringLiteral("395427.35N1162317.08E")) + 24);
    m_table->horizontalHeader()->setStretchLastSection(true);
    buildLayout();
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        [this](const QModelIndex &current) { Q_EMIT currentPointChanged(current.row()); });
    connect(
        m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &MapEditorPointPane::updateButtons);
    connect(m_model, &QAbstractItemModel::modelReset, this, &MapEditorPointPane::updateButtons);
    // When rows are inserted or removed the current row number changes without a signal from the selection model.
    const auto tellCurrent = [this] { Q_EMIT currentPointChanged(currentPoint()); };
    connect(m_model, &QAbstractItemModel::rowsInserted, this, tellCurrent);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, tellCurrent);
    const auto shortcut = [this](QKeySequence::StandardKey key, auto slot) {
        auto *made = new QShortcut(key, m_table);
        made->setContext(Qt::WidgetShortcut);
        connect(made, &QShortcut::activated, this, slot);
    };
    shortcut(QKeySequence::Delete, &MapEditorPointPane::removeSelected);
    shortcut(QKeySequence::Copy, &MapEditorPointPane::copySelected);
    shortcut(QKeySequence::Paste, [this] { pasteText(QGuiApplication::clipboard()->text()); });
    updateButtons();
}

QAbstractButton *MapEditorPointPane::addButton(const QString &text, const QString &toolTip, const char *name)
{
    auto *button = new QToolButton(this);
    button->setText(text);
    button->setToolTip(toolTip);
    button->setObjectName(QString::fromLatin1(name));
    m_buttons.append(button);
    return button;
}

void MapEditorPointPane::buildLayout()
{
    auto *before = addButton(tr("Insert Before"), tr("Put a point before the current one"), "insertBefore");
    auto *behind = addButton(tr("Insert After"), tr("Put a point behind the current one"), "insertAfter");
    auto *paste = addButton(tr("Paste"), tr("Insert coordinates from the clipboard, one a line"), "pastePoints");
    auto *reverse = addButton(tr("Reverse"), tr("Turn the order of the points round"), "reversePoints");
    auto *remove = addButton(tr("Delete"), tr("Delete the selected points"), "removePoints");
    connect(before, &QAbstractButton::clicked, this, [this] { insertPoint(false); });
    connect(behind, &QAbstractButton::clicked, this, [this] { insertPoint(true); });
    connect(paste, &QAbstractButton::clicked, this, [this] { pasteText(QGuiApplication::clipboard()->text()); });
    connect(reverse, &QAbstractButton::clicked, this, [this] {
        if (element().isValid()) {
            m_document->reversePoints(element());
        }
    });
    connect(remove, &QAbstractButton::clicked, this, &MapEditorPointPane::removeSelected);
    auto *row = new QHBoxLayout;
    row->setSpacing(4);
    for (QAbstractButton *button : std::as_const(m_buttons)) {
        row->addWidget(button);
    }
    row->addStretch(1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table, 1);
    layout->addLayout(row);
}

MapElementRef MapEditorPointPane::element() const
{
    return m_model->element();
}

void MapEditorPointPane::setElement(const MapElementRef &ref)
{
    m_model->setElement(ref);
}

void MapEditorPointPane::updateButtons()
{
    const bool selected = m_table->selectionModel()->hasSelection();
    for (QAbstractButton *button : std::as_const(m_buttons)) {
        button->setEnabled(element().isValid());
    }
    m_buttons.first()->setEnabled(selected);
    m_buttons.last()->setEnabled(selected);
}

qsizetype MapEditorPointPane::currentPoint() const
{
    return m_table->currentIndex().row();
}

void MapEditorPointPane::setCurrentPoint(qsizetype index)
{
    if (index != currentPoint() || !m_table->selectionModel()->hasSelection()) {
        m_table->setCurrentIndex(m_model->index(static_cast<int>(index), 0));
    }
}

qsizetype MapEditorPointPane::insertionPoint() const
{
    const bool chosen = currentPoint() >= 0 && m_table->selectionModel()->hasSelection();
    return chosen ? currentPoint() + 1 : m_model->rowCount();
}

GeoCoordinate MapEditorPointPane::between(qsizetype before) const
{
    const MapEditorStore &store = m_document->store();
    const qsizetype count = store.pointCount(element());
    if (count == 0) {
        return {};
    }
    const GeoCoordinate last = store.point(element(), std::max<qsizetype>(before - 1, 0));
    const GeoCoordinate next = store.point(element(), std::min(before, count - 1));
    return last.isValid() && next.isValid()
        ? GeoCoordinate(last.atDistanceAndAzimuth(last.distanceTo(next) / 2.0, last.azimuthTo(next)))
        : last;
}

void MapEditorPointPane::insertPoint(bool behind)
{
    if (!element().isValid()) {
        return;
    }
    const qsizetype at = behind ? insertionPoint() : std::max<qsizetype>(currentPoint(), 0);
    m_document->insertPoints(element(), at, {between(at)});
    setCurrentPoint(at);
    m_table->setFocus();
    m_table->edit(m_model->index(static_cast<int>(at), 0));
}

void MapEditorPointPane::removeSelected()
{
    if (!element().isValid()) {
        return;
    }
    QList<qsizetype> rows;
    for (const QModelIndex &index : m_table->selectionModel()->selectedRows()) {
        rows.append(index.row());
    }
    m_document->removePoints(element(), rows);
}

void MapEditorPointPane::copySelected() const
{
    QList<int> rows;
    for (const QModelIndex &index : m_table->selectionModel()->selectedRows()) {
        rows.append(index.row());
    }
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const int row : std::as_const(rows)) {
        lines.append(m_model->index(row, 0).data(Qt::DisplayRole).toString());
    }
    QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

void MapEditorPointPane::pasteText(const QString &text)
{
    if (!element().isValid()) {
        return;
    }
    QString badLine;
    const auto points = coordinatesFromLines(text, &badLine);
    if (!points) {
        Q_EMIT refused(tr("\"%1\" is no coordinate; nothing was pasted.").arg(badLine.left(60)));
    } else if (points->isEmpty()) {
        Q_EMIT refused(tr("There are no coordinates to paste."));
    } else {
        m_document->insertPoints(element(), insertionPoint(), *points);
    }
}
