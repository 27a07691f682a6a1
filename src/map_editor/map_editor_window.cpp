#include "map_editor/map_editor_window.h"

#include "app/ui_state.h"
#include "display/geo_map_display.h"
#include "map_editor/map_editor_element_pane.h"
#include "map_editor/map_editor_meta_pane.h"
#include "map_editor/map_editor_plan_tool.h"
#include "map_editor/map_editor_point_pane.h"
#include "map_editor/map_editor_progress.h"
#include "map_editor/map_editor_style_pane.h"
#include "map_editor/map_editor_tree_model.h"
#include "map_editor/map_editor_tree_pane.h"
#include "maps/map_library.h"
#include "plan_view/geo_widget.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QShowEvent>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeView>

#include <algorithm>

namespace {

const QString stateGroup = QStringLiteral("MapEditorWindow");
constexpr int MessageMs = 8000;
constexpr QSize UsualSize(1000, 640); // where that holds the tool bar

} // namespace

MapEditorWindow::MapEditorWindow(QWidget *parent)
    : QMainWindow(parent), m_element(new MapEditorElementPane(&m_document)), m_tree(new MapEditorTreePane(&m_document)),
      m_tabs(new QTabWidget), m_meta(new MapEditorMetaPane(&m_document)), m_style(new MapEditorStylePane(&m_document)),
      m_toolBar(addToolBar(tr("Edit"))), m_progress(new MapEditorProgress)
{
    setObjectName(stateGroup);
    // As a dialog it stays in front of the main window when the operator clicks on the plan view to draw.
    setWindowFlags(windowFlags() | Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
    buildLayout();
    makeFileMenu();
    makeEditMenu();
    makeAddMenu();
    makePlanMenu();
    connectPanes();
    resize(std::max(UsualSize.width(), m_toolBar->sizeHint().width()), UsualSize.height());
    restoreGeometry(UiState::geometry(stateGroup));
    updateTitle();
    updateState();
}

MapEditorWindow::~MapEditorWindow()
{
    // Panes and tool use the document, a member. Left to ~QWidget, the panes would be destroyed after it.
    m_planTool.reset();
    delete takeCentralWidget();
}

void MapEditorWindow::buildLayout()
{
    m_tabs->setDocumentMode(true); // on the ground of the window, like everything else
    m_tabs->addTab(m_element, tr("Element"));
    m_tabs->addTab(m_meta, tr("Map"));
    m_tabs->addTab(m_style, tr("Styles"));
    auto *splitter = new QSplitter(this);
    splitter->addWidget(m_tree);
    splitter->addWidget(m_tabs);
    splitter->setSizes({400, 600});
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);
    m_toolBar->setObjectName(QStringLiteral("editToolBar"));
    m_toolBar->setMovable(false);
    statusBar()->addPermanentWidget(m_progress);
}

QAction *MapEditorWindow::addAction(QMenu *menu, const QString &text, const QKeySequence &shortcut)
{
    QAction *action = menu->addAction(text);
    action->setShortcut(shortcut);
    return action;
}

void MapEditorWindow::makeFileMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&File"));
    const auto add = [&](const QString &text, const QKeySequence &shortcut, auto slot) {
        QAction *action = addAction(menu, text, shortcut);
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    QAction *fresh = add(tr("&New"), QKeySequence(Qt::CTRL | Qt::Key_N), &MapEditorWindow::newMap);
    QAction *open = add(tr("&Open..."), QKeySequence(Qt::CTRL | Qt::Key_O), &MapEditorWindow::openChosenFile);
    QAction *save = add(tr("&Save"), QKeySequence(Qt::CTRL | Qt::Key_S), &MapEditorWindow::save);
    QAction *saveAs = add(tr("Save &As..."), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), &MapEditorWindow::saveAs);
    m_fileActions = {fresh, open, save, saveAs};
    m_toolBar->addActions({open, save});
    menu->addSeparator();
    add(tr("Open Style Sheet..."), {}, &MapEditorWindow::openChosenStyleSheet);
    add(tr("Save Style Sheet As..."), {}, &MapEditorWindow::saveStyleSheetAs);
    menu->addSeparator();
    add(tr("&Close"), {}, &QWidget::close);
    m_toolBar->addSeparator();
}

void MapEditorWindow::makeEditMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Edit"));
    QAction *undo = m_document.undoStack().createUndoAction(this);
    undo->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    QAction *redo = m_document.undoStack().createRedoAction(this);
    redo->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Y));
    // A fixed text: with the name of the last change in it, the buttons beside them would move at every change.
    undo->setIconText(tr("Undo"));
    redo->setIconText(tr("Redo"));
    menu->addActions({undo, redo});
    menu->addSeparator();
    const auto add = [&](const QString &text, const QKeySequence &shortcut, auto slot) {
        QAction *action = addAction(menu, text, shortcut);
        connect(action, &QAction::triggered, this, slot);
        m_selectionActions.append(action);
        m_tree->view()->addAction(action);
        return action;
    };
    add(tr("&Rename"), {}, [this] { m_tree->renameCurrent(); });
    QAction *duplicate = add(tr("&Duplicate"), {}, &MapEditorWindow::duplicateSelected);
    QAction *remove = add(tr("De&lete"), QKeySequence(Qt::Key_Delete), &MapEditorWindow::removeSelected);
    // Only in the tree: in text fields and in the table of points the Delete key does something else.
    remove->setShortcutContext(Qt::WidgetShortcut);
    menu->removeAction(remove);
    QAction *removeInMenu = menu->addAction(remove->text(), this, &MapEditorWindow::removeSelected);
    m_selectionActions.append(removeInMenu);
    m_moveMenu = menu->addMenu(tr("&Move to Group"));
    m_tree->view()->addAction(m_moveMenu->menuAction());
    m_selectionActions.append(m_moveMenu->menuAction());
    connect(m_moveMenu, &QMenu::aboutToShow, this, &MapEditorWindow::fillMoveMenu);
    add(tr("Move Group &Up"), {}, [this] { moveGroup(-1); });
    add(tr("Move Group Dow&n"), {}, [this] { moveGroup(1); });
    m_toolBar->addActions({undo, redo, duplicate, removeInMenu});
    m_toolBar->addSeparator();
}

void MapEditorWindow::makeAddMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Add"));
    QAction *group = menu->addAction(tr("&Group"), this, &MapEditorWindow::addGroup);
    m_toolBar->addAction(group);
    for (int i = 0; i < MapElementKindCount; ++i) {
        const auto kind = static_cast<MapElementKind>(i);
        QAction *action = menu->addAction(MapEditorTreeModel::kindText(kind));
        connect(action, &QAction::triggered, this, [this, kind] { addElement(kind); });
        m_toolBar->addAction(action);
    }
    for (QAction *action : menu->actions()) {
        action->setIconText(tr("+ %1").arg(action->text().remove(u'&')));
    }
    m_toolBar->addSeparator();
}

void MapEditorWindow::makePlanMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Plan View"));
    menu->setToolTipsVisible(true);
    m_drawAction = addAction(menu, tr("&Draw"), QKeySequence(Qt::CTRL | Qt::Key_D));
    m_drawAction->setCheckable(true);
    m_centerAction = addAction(menu, tr("&Go There"), QKeySequence(Qt::CTRL | Qt::Key_G));
    connect(m_drawAction, &QAction::triggered, this, &MapEditorWindow::draw);
    connect(m_centerAction, &QAction::triggered, this, &MapEditorWindow::center);
    m_toolBar->addActions({m_drawAction, m_centerAction});
}

void MapEditorWindow::connectPanes()
{
    connect(m_tree, &MapEditorTreePane::currentChanged, this, &MapEditorWindow::showCurrent);
    connect(m_tree, &MapEditorTreePane::selectionChanged, this, &MapEditorWindow::updateState);
    connect(m_element, &MapEditorElementPane::refused, this, &MapEditorWindow::tell);
    connect(&m_document.undoStack(), &QUndoStack::indexChanged, this, &MapEditorWindow::updateTitle);
    connect(&m_document, &MapEditorDocument::pathChanged, this, &MapEditorWindow::updateTitle);
    connect(&m_document, &MapEditorDocument::progressed, m_progress, &MapEditorProgress::setPercent);
    connect(m_progress, &MapEditorProgress::cancelled, this, [this] {
        m_document.cancelFileWork();
        if (m_document.fileWork() == MapEditorDocument::FileWork::None) {
            endFileWork();
        }
    });
    connect(&m_document.styles(), &MapEditorStyles::changed, this, [this](const QString &name) {
        if (!name.isEmpty()) {
            Q_EMIT stylePreview(m_document.styles().sheet());
        }
    });
}

void MapEditorWindow::setGeoWidget(GeoWidget *widget, Projector *projector)
{
    m_geoWidget = widget;
    m_planTool = std::make_unique<MapEditorPlanTool>(&m_document, widget, projector);
    MapEditorPointPane *points = m_element->pointPane();
    connect(points, &MapEditorPointPane::currentPointChanged, m_planTool.get(), &MapEditorPlanTool::setCurrentPoint);
    connect(m_planTool.get(), &MapEditorPlanTool::pointPicked, points, &MapEditorPointPane::setCurrentPoint);
    connect(m_planTool.get(), &MapEditorPlanTool::drawingChanged, m_drawAction, &QAction::setChecked);
    connect(m_planTool.get(), &MapEditorPlanTool::drawingChanged, this, &MapEditorWindow::tellHowToDraw);
    if (widget->mapDisplay()) {
        m_style->setGround(widget->mapDisplay()->backgroundColor());
    }
    m_planTool->setActive(isVisible());
    showCurrent(m_tree->current());
}

void MapEditorWindow::setMapLibrary(const MapLibrary *library)
{
    m_library = library;
    connect(library, &MapLibrary::mapsChanged, this, &MapEditorWindow::updateShownElsewhere);
    connect(library, &MapLibrary::mapChanged, this, &MapEditorWindow::updateShownElsewhere);
    connect(library, &MapLibrary::styleSheetChanged, this, [this] {
        // A change of the same file is this window's own preview, or what it has just saved.
        if (m_library->styleSheetFile() != m_document.styles().file()) {
            takeLibraryStyles();
        }
    });
    takeLibraryStyles();
    updateShownElsewhere();
}

void MapEditorWindow::takeLibraryStyles()
{
    if (!m_library || m_document.styles().isModified()) {
        return;
    }
    m_librarySheet = m_library->styleSheet();
    m_document.setStyleSheet(m_librarySheet, m_library->styleSheetFile());
}

void MapEditorWindow::updateShownElsewhere()
{
    if (!m_planTool) {
        return;
    }
    bool shown = false;
    if (m_library && !m_document.isModified()) {
        for (const MapLibrary::Map &map : m_library->maps()) {
            shown = shown || (map.data && map.visible() && QFileInfo(map.path) == QFileInfo(m_document.path()));
        }
    }
    m_planTool->setShownElsewhere(shown);
}

void MapEditorWindow::select(const MapElementRef &ref)
{
    m_tree->select(ref);
}

void MapEditorWindow::showCurrent(const MapElementRef &ref)
{
    m_element->setElement(ref);
    if (ref.group >= 0) {
        m_style->selectClass(m_document.store().map().groups[ref.group].className);
    }
    if (m_planTool) {
        m_planTool->setElement(ref);
    }
    updateState();
}

void MapEditorWindow::updateState()
{
    const MapEditorSelection selection = m_tree->selection();
    for (QAction *action : std::as_const(m_selectionActions)) {
        action->setEnabled(!selection.isEmpty());
    }
    m_moveMenu->menuAction()->setEnabled(!selection.elements.isEmpty());
    updatePlanActions();
}

// Tool tips say what an action does or why it is disabled.
void MapEditorWindow::updatePlanActions()
{
    const bool element = m_tree->current().isValid();
    const QString obstacle = !m_planTool ? tr("There is no plan view") : tr("Select an element first");
    const bool usable = m_planTool && element;
    for (QAction *action : {m_drawAction, m_centerAction}) {
        action->setEnabled(usable);
    }
    m_drawAction->setToolTip(
        usable ? tr("Set points by clicks on the plan view; Enter ends, Escape cancels") : obstacle);
    m_centerAction->setToolTip(
        usable ? tr("Bring the element, or its current point, to the centre of the plan view") : obstacle);
}

void MapEditorWindow::updateTitle()
{
    const QString path = m_document.path();
    const QString name = path.isEmpty() ? tr("New map") : QFileInfo(path).fileName();
    setWindowTitle(tr("%1[*] - Static Map Editor").arg(name));
    setWindowModified(m_document.isModified() || m_document.styles().isModified());
    updateShownElsewhere();
}

void MapEditorWindow::tell(const QString &text)
{
    statusBar()->showMessage(text, MessageMs);
}

void MapEditorWindow::tellHowToDraw(bool drawing)
{
    if (drawing) {
        statusBar()->showMessage(
            tr("Click on the plan view to set points. Enter or a double-click ends, Escape cancels."));
    } else {
        statusBar()->clearMessage();
    }
}

void MapEditorWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (!event->spontaneous() && !m_document.undoStack().canUndo()) {
        takeLibraryStyles();
    }
    if (m_planTool) {
        m_planTool->setActive(true);
    }
}

void MapEditorWindow::hideEvent(QHideEvent *event)
{
    UiState::saveGeometry(stateGroup, saveGeometry());
    if (m_planTool) {
        m_planTool->setActive(false);
    }
    QMainWindow::hideEvent(event);
}
