#include "map_editor/map_editor_tree_pane.h"

#include "map_editor/map_editor_tree_model.h"
#include "widgets/quiet_hint.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int ExpandLimit = 500; // elements

} // namespace

MapEditorTreePane::MapEditorTreePane(MapEditorDocument *document, QWidget *parent)
    : QWidget(parent), m_model(new MapEditorTreeModel(document, this)), m_filtered(new QSortFilterProxyModel(this)),
      m_filter(new QLineEdit(this)), m_view(new QTreeView(this))
{
    m_filtered->setSourceModel(m_model);
    m_filtered->setFilterKeyColumn(-1);
    m_filtered->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_filtered->setRecursiveFilteringEnabled(true);
    m_filter->setPlaceholderText(tr("Filter"));
    m_filter->setClearButtonEnabled(true);
    m_filter->setAccessibleName(m_filter->placeholderText());
    m_filter->setObjectName(QStringLiteral("treeFilter"));
    m_view->setObjectName(QStringLiteral("mapTree"));
    m_view->setAccessibleName(tr("Elements of the map"));
    m_view->setModel(m_filtered);
    m_view->setUniformRowHeights(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    const int figure = fontMetrics().averageCharWidth();
    m_view->header()->resizeSection(MapEditorTreeModel::NameColumn, 27 * figure);
    m_view->header()->resizeSection(MapEditorTreeModel::KindColumn, 11 * figure);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_view, 1);
    makeHint();
    connect(m_filter, &QLineEdit::textChanged, this, &MapEditorTreePane::setFilter);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        [this] { Q_EMIT currentChanged(current()); });
    connect(
        m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &MapEditorTreePane::selectionChanged);
    connect(m_filtered, &QAbstractItemModel::modelReset, this, [this] {
        expandSmall();
        Q_EMIT currentChanged({});
        Q_EMIT selectionChanged();
    });
}

void MapEditorTreePane::expandSmall()
{
    int elements = 0;
    for (int i = 0; i < m_filtered->rowCount(); ++i) {
        elements += m_filtered->rowCount(m_filtered->index(i, 0));
    }
    if (elements <= ExpandLimit) {
        m_view->expandAll();
    }
}

void MapEditorTreePane::makeHint()
{
    m_hint = makeQuietHint({}, m_view->viewport());
    auto *onView = new QVBoxLayout(m_view->viewport());
    onView->addWidget(m_hint);
    connect(m_filtered, &QAbstractItemModel::rowsInserted, this, &MapEditorTreePane::updateHint);
    connect(m_filtered, &QAbstractItemModel::rowsRemoved, this, &MapEditorTreePane::updateHint);
    connect(m_filtered, &QAbstractItemModel::modelReset, this, &MapEditorTreePane::updateHint);
    updateHint();
}

void MapEditorTreePane::updateHint()
{
    const bool filtered = m_model->rowCount() > 0;
    m_hint->setText(filtered ? tr("Nothing has this text.") : tr("Open a map, or add a group."));
    m_hint->setVisible(m_filtered->rowCount() == 0);
}

void MapEditorTreePane::setFilter(const QString &text)
{
    if (m_filter->text() != text) {
        m_filter->setText(text); // calls this function again
    } else {
        m_filtered->setFilterFixedString(text);
    }
    if (!text.isEmpty()) {
        expandSmall();
    }
}

MapElementRef MapEditorTreePane::current() const
{
    return m_model->refOf(m_filtered->mapToSource(m_view->currentIndex()));
}

QModelIndex MapEditorTreePane::viewIndex(const MapElementRef &ref) const
{
    return m_filtered->mapFromSource(m_model->indexOf(ref));
}

void MapEditorTreePane::select(const MapElementRef &ref)
{
    if (ref.group >= 0 && !viewIndex(ref).isValid()) {
        setFilter(QString());
    }
    m_view->setCurrentIndex(viewIndex(ref));
}

void MapEditorTreePane::select(const MapEditorSelection &selection)
{
    QList<MapElementRef> refs = selection.elements;
    for (const int group : selection.groups) {
        refs.append({group, MapElementKind::Polyline, -1});
    }
    if (refs.isEmpty()) {
        return;
    }
    select(refs.first());
    for (const MapElementRef &ref : std::as_const(refs)) {
        m_view->selectionModel()->select(viewIndex(ref), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
}

MapEditorSelection MapEditorTreePane::selection() const
{
    MapEditorSelection selection;
    for (const QModelIndex &index : m_view->selectionModel()->selectedRows()) {
        const MapElementRef ref = m_model->refOf(m_filtered->mapToSource(index));
        if (ref.index < 0) {
            selection.groups.append(ref.group);
        } else {
            selection.elements.append(ref);
        }
    }
    return selection;
}

void MapEditorTreePane::renameCurrent()
{
    const QModelIndex current = m_view->currentIndex();
    if (current.isValid()) {
        m_view->edit(current.siblingAtColumn(MapEditorTreeModel::NameColumn));
    }
}
