// Static maps and the layouts of the view.

#include "app/app_paths.h"
#include "app/map_places.h"
#include "display/geo_map_display.h"
#include "map_editor/map_editor_window.h"
#include "map_painting/geo_static_map.h"
#include "map_windows/layout_save_window.h"
#include "map_windows/static_map_feed.h"
#include "map_windows/static_maps_window.h"
#include "maps/map_layout.h"
#include "maps/map_library.h"
#include "plan_view/geo_widget.h"
#include "ui/actions.h"
#include "ui/main_window.h"

#include <QAction>
#include <QActionGroup>
#include <QDir>
#include <QMenu>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr int loadInfoMs = 2000;

const QString defaultLayoutName = QStringLiteral("default");

QString layoutFile()
{
    return AppPaths::configFile(QStringLiteral("layout"));
}

} // namespace

void MainWindow::connectStaticMaps()
{
    m_mapLibrary = new MapLibrary(this);
    new StaticMapFeed(m_mapLibrary, m_mapDisplay->staticMap(), m_mapLibrary);
    connect(m_mapLibrary, &MapLibrary::message, this,
        [this](bool error, const QString &text) { showLog(error ? LogLevel::Warning : LogLevel::Info, text); });
    connect(m_mapLibrary, &MapLibrary::mapChanged, this, [this, shown = quint64(0)](quint64 id) mutable {
        const MapLibrary::Map *map = m_mapLibrary->map(id);
        if (map && map->state == MapLibrary::State::Loading) {
            shown = id;
            showMapLoadInfo(QFileInfo(map->path), tr("%1 %").arg(map->percent));
        } else if (id == shown) {
            shown = 0;
            if (map && map->state == MapLibrary::State::Loaded) {
                statusBar()->clearMessage(); // a failure has a message of its own
            }
        }
    });
    const auto on = [this](ActionId id, auto slot) { connect((*m_actions)[id], &QAction::triggered, this, slot); };
    on(ActionId::StaticMaps, &MainWindow::showMapWindow);
    on(ActionId::StaticMapEditor, [this] { launchStaticMapEditor({}, MapFile::Unknown); });
    on(ActionId::ToggleStaticMaps,
        [this](bool visible) { editConfig([visible](Config &config) { config.mapStaticVisible = visible; }); });
}

// What is open already stays as it is, unsaved changes of the index included.
void MainWindow::loadMaps()
{
    const QString index = MapPlaces::resolve(m_config.live().mapIndex);
    if (index != m_mapLibrary->indexFile()) {
        m_mapLibrary->openIndex(index);
    }
    const QString styleSheet = MapPlaces::resolve(m_config.live().mapStyleSheet);
    if (styleSheet != m_mapLibrary->styleSheetFile()) {
        m_mapLibrary->openStyleSheet(styleSheet);
    }
}

void MainWindow::showMapLoadInfo(const QFileInfo &file, const QString &progress)
{
    statusBar()->showMessage(tr("Loading map %1: %2").arg(file.fileName(), progress), loadInfoMs);
}

void MainWindow::showMapWindow()
{
    if (!m_staticMapsWindow) {
        m_staticMapsWindow = new StaticMapsWindow(m_mapLibrary, this);
        m_staticMapsWindow->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_staticMapsWindow, &StaticMapsWindow::editRequested, this, &MainWindow::launchStaticMapEditor);
        connect(m_staticMapsWindow, &StaticMapsWindow::centerRequested, this, [this](const GeoCoordinate &center) {
            const QPointF point = planePoint(center);
            m_geoWidget->jumpTo(point.x(), point.y());
        });
        connect(m_staticMapsWindow, &StaticMapsWindow::styleSheetChosen, this, [this](const QString &file) {
            editConfig([&file](Config &config) { config.mapStyleSheet = AppPaths::storePath(file); });
        });
        connect(m_staticMapsWindow, &StaticMapsWindow::indexFileChanged, this, [this](const QString &file) {
            if (MapPlaces::resolve(m_config.live().mapIndex) != file) {
                editConfig([&file](Config &config) { config.mapIndex = AppPaths::storePath(file); });
            }
        });
    }
    m_staticMapsWindow->show();
    m_staticMapsWindow->raise();
    m_staticMapsWindow->activateWindow();
}

void MainWindow::launchStaticMapEditor(const QString &path, MapFile::Format format)
{
    if (!m_mapEditorWindow) {
        m_mapEditorWindow = new MapEditorWindow(this);
        m_mapEditorWindow->setGeoWidget(m_geoWidget, &m_host.shared().projector);
        m_mapEditorWindow->setMapLibrary(m_mapLibrary);
        connect(m_mapEditorWindow, &MapEditorWindow::stylePreview, m_mapLibrary, &MapLibrary::setStyleSheet);
        connect(m_mapEditorWindow, &MapEditorWindow::saved, this, &MainWindow::showEditedMap);
        connect(m_mapEditorWindow, &MapEditorWindow::styleSheetSaved, this, &MainWindow::showEditedStyleSheet);
    }
    m_mapEditorWindow->show();
    m_mapEditorWindow->raise();
    m_mapEditorWindow->activateWindow();
    if (!path.isEmpty()) {
        m_mapEditorWindow->openFile(path, format);
    }
}

// The library notices by itself that a map of its own was written.
void MainWindow::showEditedMap(const QString &path)
{
    const QString file = QFileInfo(path).absoluteFilePath();
    const QList<MapLibrary::Map> &maps = m_mapLibrary->maps();
    if (std::none_of(maps.begin(), maps.end(), [&file](const MapLibrary::Map &map) { return map.path == file; })) {
        showMapWindow();
        m_staticMapsWindow->addFiles({file});
    }
}

// The library notices by itself that the sheet that it shows was written.
void MainWindow::showEditedStyleSheet(const QString &path)
{
    const QString file = QFileInfo(path).absoluteFilePath();
    if (file == m_mapLibrary->styleSheetFile()) {
        return;
    }
    editConfig([&file](Config &config) {
        if (MapPlaces::resolve(config.mapStyleSheet) != file) {
            config.mapStyleSheet = AppPaths::storePath(file);
        }
    });
}

bool MainWindow::settleMaps(const Config &edited)
{
    const bool stays = MapPlaces::resolve(edited.mapIndex) == m_mapLibrary->indexFile();
    return stays || !m_staticMapsWindow || m_staticMapsWindow->settleChanges();
}

bool MainWindow::closeMapWindows()
{
    return (!m_mapEditorWindow || m_mapEditorWindow->close()) && (!m_staticMapsWindow || m_staticMapsWindow->close());
}

// Left to the base class they would go after the display and the library that they work on.
void MainWindow::deleteMapWindows()
{
    delete m_mapEditorWindow;
    delete m_staticMapsWindow;
}

// Layouts.

void MainWindow::connectLayouts()
{
    m_layouts = new MapLayout(this);
    connect(m_layouts, &MapLayout::currentLayoutChanged, m_geoWidget, &GeoWidget::changeViewPort);
    connect(m_layouts, &MapLayout::saveViewport, m_geoWidget, &GeoWidget::saveViewport, Qt::DirectConnection);
    connect((*m_actions)[ActionId::SaveLayout], &QAction::triggered, this, &MainWindow::showLayoutSaveWindow);
    updateMapLayoutMenu();
    QAction *holder = (*m_actions)[ActionId::LoadLayout];
    if (auto *button = qobject_cast<QToolButton *>(m_actions->toolBar(ToolBarId::View)->widgetForAction(holder))) {
        button->setPopupMode(QToolButton::InstantPopup);
    }
}

// The layout that was current when layouts were last changed or chosen comes back, even if the view was moved after
// that: the operator chose where to begin. With the built-in one the view begins where it was left, which is what is
// shown when this is called.
void MainWindow::loadLayouts()
{
    QTransform lastView;
    m_geoWidget->saveViewport(lastView);
    m_layouts->load(layoutFile());
    if (!layoutChosen()) {
        m_geoWidget->changeViewPort(lastView);
    }
    updateMapLayoutMenu();
}

bool MainWindow::layoutChosen() const
{
    return m_layouts->layoutNames().contains(m_layouts->currentLayoutName());
}

void MainWindow::placeDefaultLayout()
{
    const GeoCoordinate center = homeCoordinate();
    if (center.isValid()) {
        const QPointF point = planePoint(center);
        m_layouts->setDefaultLayout(point.x(), point.y());
    }
}

void MainWindow::leaveLayout()
{
    if (layoutChosen()) {
        m_layouts->setCurrentLayout(defaultLayoutName);
        saveLayouts();
    }
}

void MainWindow::saveLayouts()
{
    if (!m_layouts->save(layoutFile())) {
        showLog(LogLevel::Warning, tr("Cannot write the layout file %1").arg(QDir::toNativeSeparators(layoutFile())));
    }
    updateMapLayoutMenu();
}

void MainWindow::updateMapLayoutMenu()
{
    QAction *holder = (*m_actions)[ActionId::LoadLayout];
    if (QMenu *before = holder->menu()) {
        before->deleteLater(); // one of its actions may be at work
    }
    auto *menu = new QMenu(this);
    holder->setMenu(menu);
    auto *group = new QActionGroup(menu);
    auto *removal = new QMenu(tr("Remove"), menu);
    const QStringList stored = m_layouts->layoutNames();
    for (const QString &name : QStringList{defaultLayoutName} + stored) {
        QAction *action = menu->addAction(QString(name).replace(u'&', QLatin1String("&&")));
        action->setData(name);
        action->setCheckable(true);
        action->setChecked(name == (layoutChosen() ? m_layouts->currentLayoutName() : defaultLayoutName));
        group->addAction(action);
    }
    connect(group, &QActionGroup::triggered, this, &MainWindow::loadLayout);
    for (const QString &name : stored) {
        removal->addAction(QString(name).replace(u'&', QLatin1String("&&")), this, [this, name] {
            m_layouts->removeLayout(name);
            saveLayouts();
        });
    }
    menu->addSeparator();
    menu->addMenu(removal)->setEnabled(!stored.isEmpty());
}

void MainWindow::loadLayout(QAction *action)
{
    m_layouts->setCurrentLayout(action->data().toString());
    saveLayouts();
}

void MainWindow::showLayoutSaveWindow()
{
    auto *window = new LayoutSaveWindow(m_layouts->layoutNames(), this);
    window->setAttribute(Qt::WA_DeleteOnClose);
    if (layoutChosen()) {
        window->setName(m_layouts->currentLayoutName());
    }
    connect(window, &LayoutSaveWindow::layoutNamed, this, [this](const QString &name, bool makeCurrent) {
        QTransform view;
        Q_EMIT m_layouts->saveViewport(view);
        m_layouts->addLayout(name, view, makeCurrent);
        saveLayouts();
    });
    window->open();
}
