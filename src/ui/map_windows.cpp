#include "ui/map_windows.h"

#include "app/config.h"
#include "app/map_places.h"
#include "app/settings_lock.h"
#include "display/geo_map_display.h"
#include "map_editor/map_editor_window.h"
#include "map_painting/geo_static_map.h"
#include "map_windows/static_map_feed.h"
#include "map_windows/static_maps_window.h"
#include "maps/map_library.h"
#include "plan_view/geo_widget.h"
#include "ui/actions.h"
#include "widgets/window_opening.h"

#include <QAction>

#include <algorithm>
#include <utility>

MapWindows::MapWindows(
    QWidget *window, const Actions *actions, GeoWidget *plan, Projector *projector, const SettingsLock *lock)
    : m_window(window), m_plan(plan), m_projector(projector), m_library(new MapLibrary(window))
{
    new StaticMapFeed(m_library, plan->mapDisplay()->staticMap(), m_library);
    connect(m_library, &MapLibrary::message, this, [this](bool error, const QString &text) {
        Q_EMIT logMessage(error ? LogLevel::Warning : LogLevel::Info, text);
    });
    connect(m_library, &MapLibrary::mapChanged, this, &MapWindows::announceLoading);
    connect((*actions)[ActionId::StaticMaps], &QAction::triggered, this,
        [this, lock] { lock->whenUnlocked([this] { showMaps(); }); });
    connect((*actions)[ActionId::StaticMapEditor], &QAction::triggered, this,
        [this, lock] { lock->whenUnlocked([this] { showEditor({}, MapFile::Unknown); }); });
}

// Left to their parent they would go after the display and the library that they work on.
MapWindows::~MapWindows()
{
    delete m_editor;
    delete m_maps;
}

void MapWindows::load(const Config &config)
{
    const QString index = MapPlaces::resolve(config.mapIndex);
    if (index != m_library->indexFile()) {
        m_library->openIndex(index);
    }
    const QString styleSheet = MapPlaces::resolve(config.mapStyleSheet);
    if (styleSheet != m_library->styleSheetFile()) {
        m_library->openStyleSheet(styleSheet);
    }
}

void MapWindows::reload(const Config &config)
{
    if (!m_library->indexFile().isEmpty()) {
        load(config);
    }
}

void MapWindows::announceLoading(quint64 id)
{
    const MapLibrary::Map *map = m_library->map(id);
    if (map && map->state == MapLibrary::State::Loading) {
        m_announced = id;
        Q_EMIT loading(QFileInfo(map->path), tr("%1 %").arg(map->percent));
    } else if (id == m_announced) {
        m_announced = 0;
        if (map && map->state == MapLibrary::State::Loaded) {
            Q_EMIT loaded(); // a failure has a message of its own
        }
    }
}

void MapWindows::showMaps()
{
    if (!m_maps) {
        makeMapsWindow();
    }
    bringUp(m_maps);
}

void MapWindows::makeMapsWindow()
{
    m_maps = new StaticMapsWindow(m_library, m_window);
    m_maps->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_maps, &StaticMapsWindow::editRequested, this, &MapWindows::showEditor);
    connect(m_maps, &StaticMapsWindow::centerRequested, this, &MapWindows::centerRequested);
    connect(m_maps, &StaticMapsWindow::styleSheetChosen, this, &MapWindows::styleSheetChosen);
    connect(m_maps, &StaticMapsWindow::indexFileChanged, this, &MapWindows::indexChosen);
}

void MapWindows::showEditor(const QString &path, MapFile::Format format)
{
    if (!m_editor) {
        makeEditor();
    }
    bringUp(m_editor);
    if (!path.isEmpty()) {
        m_editor->openFile(path, format);
    }
}

void MapWindows::makeEditor()
{
    m_editor = new MapEditorWindow(m_window);
    m_editor->setGeoWidget(m_plan, m_projector);
    m_editor->setMapLibrary(m_library);
    connect(m_editor, &MapEditorWindow::stylePreview, m_library, &MapLibrary::setStyleSheet);
    connect(m_editor, &MapEditorWindow::saved, this, &MapWindows::addEditedMap);
    connect(m_editor, &MapEditorWindow::styleSheetSaved, this, [this](const QString &path) {
        const QString file = QFileInfo(path).absoluteFilePath();
        // The library notices by itself that the sheet that it shows was written.
        if (file != m_library->styleSheetFile()) {
            Q_EMIT styleSheetChosen(file);
        }
    });
}

// The library notices by itself that a map of its own was written.
void MapWindows::addEditedMap(const QString &path)
{
    const QString file = QFileInfo(path).absoluteFilePath();
    const QList<MapLibrary::Map> &maps = m_library->maps();
    if (std::none_of(maps.begin(), maps.end(), [&file](const MapLibrary::Map &map) { return map.path == file; })) {
        showMaps();
        m_maps->addFiles({file});
    }
}

bool MapWindows::settle(const Config &edited)
{
    const bool stays = MapPlaces::resolve(edited.mapIndex) == m_library->indexFile();
    return stays || !m_maps || m_maps->settleChanges();
}

bool MapWindows::close(const std::function<void()> &editorClosed)
{
    return (!m_editor || m_editor->closeThen(editorClosed)) && (!m_maps || m_maps->close());
}
