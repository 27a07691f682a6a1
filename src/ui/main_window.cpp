#include "ui/main_window.h"

#include "app/app_log.h"
#include "app/app_paths.h"
#include "app/log_gate.h"
#include "app/map_places.h"
#include "assessment_windows/sensor_check.h"
#include "asterix/asterix.h"
#include "display/geo_map_display.h"
#include "display/geo_track_display.h"
#include "engine/data_engine.h"
#include "health/input_health.h"
#include "inspection/inspection.h"
#include "lists/list_panes.h"
#include "orientation/geo_map_key.h"
#include "orientation/geo_sensor_map.h"
#include "plan_view/geo_widget.h"
#include "radar_painting/geo_video_map.h"
#include "radar_painting/geo_weather_map.h"
#include "sensors/sensor_info.h"
#include "sensors/sensor_manager.h"
#include "settings/track_label_format_window.h"
#include "silence/geo_last_place_map.h"
#include "tile_windows/tile_maps.h"
#include "ui/actions.h"
#include "ui/empty_scope.h"
#include "ui/home_view.h"
#include "ui/input_session.h"
#include "ui/layout_menu.h"
#include "ui/library_log.h"
#include "ui/log_pane.h"
#include "ui/map_windows.h"
#include "ui/plot_switch.h"
#include "ui/range_ring_window.h"
#include "ui/replay_controls.h"
#include "ui/scope_chip.h"
#include "ui/scope_notice.h"
#include "ui/snapshot_pump.h"
#include "ui/stats_window.h"
#include "ui/status_line.h"
#include "ui/status_read_outs.h"
#include "ui/theme_menu.h"
#include "ui/track_commands.h"
#include "ui/weather_intensity_window.h"
#include "widgets/widget_style.h"

#include <QAction>
#include <QDateTime>
#include <QDockWidget>
#include <QGuiApplication>
#include <QMenu>
#include <QStatusBar>

namespace {

constexpr int ClockIntervalMs = 500;

// The settings that an action switches.
constexpr std::pair<ActionId, bool Config::*> SettingToggles[] = {
    {ActionId::ArrangeLabels, &Config::trackLabelAutoPlace},
    {ActionId::ToggleStaticMaps, &Config::mapStaticVisible},
    {ActionId::ToggleSensorMap, &Config::mapSensorVisible},
    {ActionId::ToggleWeatherMap, &Config::mapWeatherVisible},
    {ActionId::ToggleVideoMap, &Config::mapVideoVisible},
    {ActionId::TogglePlots, &Config::mapPlotVisible},
    {ActionId::ToggleRangeRings, &Config::mapRangeRingVisible},
    {ActionId::ToggleRangeRingLabels, &Config::mapRangeRingLabelVisible},
    {ActionId::ToggleCompassRose, &Config::mapCompassRoseVisible},
    {ActionId::ToggleScaleBar, &Config::mapScaleBarVisible},
    {ActionId::ToggleKey, &Config::mapKeyVisible},
};

} // namespace

MainWindow::MainWindow(const std::function<void(Config &)> &overrides, QWidget *parent)
    : QMainWindow(parent), m_config(AppPaths::configFile()), m_sensors(std::make_unique<SensorManager>())
{
    m_questions.exit = [this] {
        return confirm(
            tr("Exit"), tr("%1 is running, do you want to exit?").arg(QGuiApplication::applicationDisplayName()));
    };
    m_questions.stop = [this] {
        return confirm(tr("Stop"), tr("The input is running on %1. Stop it?").arg(m_session->description()));
    };
    connect(
        &m_config, &RunConfig::writeFailed, this, [this](const QString &text) { showLog(LogLevel::Warning, text); });
    if (overrides) {
        m_config.overrideWith(overrides);
    }
    makeDisplay();
    makeFurniture();
    makeMessagesDock();
    makeParts();
    routeLibraryLogs();
    connectThemes();
    connectEngine();
    connectSession();
    connectRecordings();
    connectDisplay();
    connectScopeNotices();
    connectHealth();
    connectInputActions();
    connectViewActions();
    connectTrackActions();
    connectMapActions();
    connectMapWindows();
    connectTileMaps();
    connectDialogActions();
    connect(m_sensors.get(), &SensorManager::warning, this,
        [this](const QString &text) { showLog(LogLevel::Warning, text); });
    loadSensorDatabase();
    loadAircraftDatabase();
    applyConfig(AllSettings);
    applySensor();
    showSession();
    m_host.start();
    m_pump->start();
    connect(&m_clockTimer, &QTimer::timeout, this, &MainWindow::updateClock);
    m_clockTimer.start(ClockIntervalMs);
}

MainWindow::~MainWindow()
{
    LibraryLog::setSink(nullptr, {});
    disconnect(&m_config, nullptr, this, nullptr); // writes what waits when the line for messages has gone
    if (m_host.engine()) {
        disconnect(m_host.engine(), nullptr, this, nullptr);
    }
}

void MainWindow::setLogLevel(LogLevel minimum)
{
    m_minimumLevel = minimum;
    LogGate::setShownLevel(minimum);
}

bool MainWindow::isDebugMode()
{
    return debugModeMarked();
}

void MainWindow::makeDisplay()
{
    m_mapDisplay = std::make_unique<GeoMapDisplay>(&m_host.shared().projector);
    m_trackDisplay = std::make_unique<GeoTrackDisplay>();
    m_mapDisplay->mapKey()->addSymbolSource([this](double devicePixelRatio) {
        std::vector<GeoMapKey::Symbol> symbols;
        for (auto &[meaning, picture] : m_trackDisplay->shownSymbols(devicePixelRatio)) {
            symbols.push_back({meaning, picture});
        }
        return symbols;
    });
    m_geoWidget = new GeoWidget(this);
    m_geoWidget->setObjectName("geoWidget");
    m_geoWidget->setMinimumSize(320, 240);
    m_geoWidget->setMapDisplay(m_mapDisplay.get());
    m_geoWidget->setTrackDisplay(m_trackDisplay.get());
    setCentralWidget(m_geoWidget);
    m_scopeNotice = new ScopeNotice(m_geoWidget);
}

void MainWindow::makeFurniture()
{
    setObjectName("mainWindow");
    setAcceptDrops(true);
    m_actions = new Actions(this);
    m_themes = new ThemeMenu(this, m_actions, &m_config, m_trackDisplay.get());
    m_readOuts = new StatusReadOuts(statusBar(), &m_host.shared().projector);
    m_statusLine = std::make_unique<StatusLine>(statusBar());
    m_windows.stats = new StatsWindow(this);
    makeResizeMenu();
    showCurrentZoom(m_geoWidget->currentZoom());
    showCurrentRotation(m_geoWidget->currentRotation());
}

void MainWindow::makeResizeMenu()
{
    QAction *action = (*m_actions)[ActionId::ResizeMainWindow];
    auto *sizes = new QMenu(this);
    for (const QSize size : {QSize(1024, 768), QSize(1280, 720), QSize(1280, 1024), QSize(1600, 900), QSize(1920, 1080),
             QSize(2560, 1440), QSize(3840, 2160)}) {
        sizes->addAction(
            tr("%1 x %2").arg(size.width()).arg(size.height()), this, [this, size] { resizeMainWindow(size); });
    }
    action->setMenu(sizes);
}

void MainWindow::makeMessagesDock()
{
    m_logPane = new LogPane(this);
    m_messagesDock = new QDockWidget(tr("Messages"), this);
    m_messagesDock->setObjectName("messagesDock"); // under which the window's state remembers it
    m_messagesDock->setWidget(m_logPane);
    addDockWidget(Qt::BottomDockWidgetArea, m_messagesDock);
    m_actions->menu(MenuId::View)->addSeparator();
    m_actions->menu(MenuId::View)->addAction(m_messagesDock->toggleViewAction());
}

void MainWindow::makeParts()
{
    m_session = std::make_unique<InputSession>(&m_config, &m_host);
    m_pump = std::make_unique<SnapshotPump>(&m_host.shared(), m_mapDisplay.get(), m_trackDisplay.get());
    m_emptyScope = std::make_unique<EmptyScope>();
    m_health = std::make_unique<InputHealth>(m_mapDisplay->addLayer<GeoLastPlaceMap>(MapLayer::Plots));
    m_plotSwitch = std::make_unique<PlotSwitch>(m_mapDisplay->plotMap(), (*m_actions)[ActionId::TogglePlots]);
    m_lists = std::make_unique<ListPanes>(this, m_trackDisplay.get(), [this] { return m_pump->newest(); });
    m_trackCommands = std::make_unique<TrackCommands>(m_actions, m_geoWidget, m_trackDisplay.get(), m_lists.get());
    makeInspection();
    m_home = std::make_unique<HomeView>(m_geoWidget, &m_host.shared().projector, &m_config.live());
    m_layoutMenu = std::make_unique<LayoutMenu>(this, m_actions, m_geoWidget);
    m_mapWindows = std::make_unique<MapWindows>(this, m_actions, m_geoWidget, &m_host.shared().projector);
    m_tileMaps = std::make_unique<TileMaps>(this, m_geoWidget, &m_host.shared().projector,
        [this](const std::function<void(Config &)> &change) { editConfig(change); });
    m_replay = std::make_unique<ReplayControls>(this, m_actions, &m_config, m_sensors.get(), &m_host, m_session.get());
}

void MainWindow::routeLibraryLogs()
{
    setLogLevel(minimumLogLevel(isDebugMode()));
    if (isDebugMode()) {
        showLog(LogLevel::Debug, tr("Debug functions enabled"));
    }
    ast_library_init();
    LibraryLog::setSink(this, [this](LogLevel level, const QString &text) { showLog(level, text); });
    LibraryLog::install(isDebugMode());
}

void MainWindow::connectThemes()
{
    connect(m_themes, &ThemeMenu::logMessage, this, &MainWindow::showLog);
    connect(m_themes, &ThemeMenu::changed, this, &MainWindow::applyConfig);
    m_themes->reportProblems();
}

void MainWindow::connectEngine()
{
    const DataEngine *engine = m_host.engine();
    connect(engine, &DataEngine::logMessage, this, &MainWindow::showLog);
    connect(engine, &DataEngine::inputFault, m_session.get(), &InputSession::onFault);
    connect(engine, &DataEngine::inputOpened, this, &MainWindow::onEngineInputOpened);
    connect(engine, &DataEngine::inputOpenFailed, this, &MainWindow::onEngineInputOpenFailed);
    connect(engine, &DataEngine::inputClosed, this, &MainWindow::onEngineInputClosed);
    connect(engine, &DataEngine::replayProgress, this, &MainWindow::onEngineReplayProgress);
    connect(engine, &DataEngine::alertStatusChanged, this, &MainWindow::updateAlertStatus);
    connect(engine, &DataEngine::antennaRotated, m_mapDisplay->sensorMap(), &GeoSensorMap::antennaRotated);
    connect(engine, &DataEngine::antennaNorthCrossed, m_mapDisplay->sensorMap(), &GeoSensorMap::antennaNorthCrossed);
    connect(engine, &DataEngine::pipelineStats, m_windows.stats, &StatsWindow::setPipelineStats);
    connect(m_trackDisplay.get(), &GeoTrackDisplay::shownTrailDotsChanged, &m_host, &EngineHost::setSnapshotTrailDots);
    m_host.setSnapshotTrailDots(m_trackDisplay->trailVisible() ? m_trackDisplay->trailDots() : 0);
}

void MainWindow::connectSession()
{
    InputSession *session = m_session.get();
    connect(session, &InputSession::logMessage, this, &MainWindow::showLog);
    connect(session, &InputSession::changed, this, &MainWindow::showSession);
    connect(session, &InputSession::openingBegun, this, &MainWindow::beginRadarPicture);
    connect(session, &InputSession::opened, m_lists.get(), &ListPanes::start);
    connect(session, &InputSession::opened, this, &MainWindow::inputOpened);
    connect(session, &InputSession::openFailed, this, &MainWindow::inputFailed);
    connect(session, &InputSession::closed, this, &MainWindow::pullSlots); // the input's last picture
    connect(session, &InputSession::closed, m_lists.get(), &ListPanes::refresh);
    connect(session, &InputSession::closed, this, &MainWindow::inputClosed);
    connect(session, &InputSession::shutDownDone, this, &MainWindow::continueShutdown);
}

void MainWindow::connectRecordings()
{
    const RecordingOpener *opener = m_replay->opener();
    connect(opener, &RecordingOpener::logMessage, this, &MainWindow::showLog);
    connect(opener, &RecordingOpener::settingsProposed, this, &MainWindow::takeRunSettings);
    connect(opener, &RecordingOpener::refused, this, &MainWindow::refuseRecording);
    connect(m_session.get(), &InputSession::settingsBroughtBack, this, &MainWindow::takeRunSettings);
}

void MainWindow::connectDisplay()
{
    connect(m_geoWidget, &GeoWidget::cursorMoved, this, &MainWindow::showCursorPosition);
    connect(m_geoWidget, &GeoWidget::zoomChanged, this, &MainWindow::showCurrentZoom);
    connect(m_geoWidget, &GeoWidget::rotationChanged, this, &MainWindow::showCurrentRotation);
    connect(m_geoWidget, &GeoWidget::paintStats, this, [this](const PaintStats &stats) {
        m_windows.stats->setPaintStats(stats);
        m_windows.stats->setLayerTimes(m_mapDisplay->layerTimes());
    });
    connect(m_geoWidget, &GeoWidget::rangeRingsCenterSet, this, [this] {
        m_home->noteRingsPlaced();
        showRangeRings();
    });
    connect(m_mapDisplay->videoMap(), &GeoVideoMap::siteUnknown, this, [this](unsigned char sac, unsigned char sic) {
        showLog(LogLevel::Warning,
            tr("Radar video of SAC %1, SIC %2 is not shown: no sensor has this identification.").arg(sac).arg(sic));
    });
    connect(m_pump.get(), &SnapshotPump::alertStatusChanged, this, &MainWindow::updateAlertStatus);
    connect(m_pump.get(), &SnapshotPump::dropStats, m_windows.stats, &StatsWindow::setDropStats);
    connect(m_pump.get(), &SnapshotPump::dropStats, this, &MainWindow::dropStats);
}

void MainWindow::connectScopeNotices()
{
    PlotSwitch *plots = m_plotSwitch.get();
    // Before the setting follows, which need not change by it.
    connect((*m_actions)[ActionId::TogglePlots], &QAction::triggered, plots, &PlotSwitch::switchTo);
    connect(m_session.get(), &InputSession::openingBegun, plots,
        [this, plots] { plots->beginInput(m_session->replaying() ? config().inputFileName.filePath() : QString()); });
    connect(m_pump.get(), &SnapshotPump::snapshotTaken, plots, &PlotSwitch::look);
    connect(plots, &PlotSwitch::changed, this, &MainWindow::updateNotices);
    EmptyScope *scope = m_emptyScope.get();
    connect(m_session.get(), &InputSession::openingBegun, scope, &EmptyScope::beginInput);
    connect(m_pump.get(), &SnapshotPump::snapshotTaken, scope, &EmptyScope::look);
    connect(m_pump.get(), &SnapshotPump::radarPictureTaken, scope, &EmptyScope::noteRadarPicture);
    connect(scope, &EmptyScope::changed, this, &MainWindow::updateNotices);
}

void MainWindow::connectInputActions()
{
    connect((*m_actions)[ActionId::Start], &QAction::triggered, this, &MainWindow::openInput);
    connect((*m_actions)[ActionId::Stop], &QAction::triggered, this, &MainWindow::stopInput);
    connect((*m_actions)[ActionId::Pause], &QAction::triggered, this, &MainWindow::pauseInput);
    connect((*m_actions)[ActionId::Exit], &QAction::triggered, this, &MainWindow::exitApplication);
}

void MainWindow::connectViewActions()
{
    const auto on = [this](
                        ActionId id, auto slot) { connect((*m_actions)[id], &QAction::triggered, m_geoWidget, slot); };
    on(ActionId::ZoomIn, &GeoWidget::zoomIn);
    on(ActionId::ZoomOut, &GeoWidget::zoomOut);
    on(ActionId::RotateRight, &GeoWidget::rotateClockWise);
    on(ActionId::RotateLeft, &GeoWidget::rotateCounterClockWise);
    on(ActionId::RotateNorthUp, &GeoWidget::rotateNorthUp);
    on(ActionId::MoveLeft, &GeoWidget::moveLeft);
    on(ActionId::MoveUp, &GeoWidget::moveUp);
    on(ActionId::MoveDown, &GeoWidget::moveDown);
    on(ActionId::MoveRight, &GeoWidget::moveRight);
    on(ActionId::SetRangeRingsCenter, &GeoWidget::startSettingRangeRingsCenter);
    connect((*m_actions)[ActionId::FullScreen], &QAction::triggered, this, &MainWindow::setFullScreen);
}

void MainWindow::connectTrackActions()
{
    QAction *label = (*m_actions)[ActionId::ToggleTrackLabel];
    connect(label, &QAction::toggled, m_trackDisplay.get(), &GeoTrackDisplay::showLabel);
    // The format window switches labels too.
    connect(m_trackDisplay.get(), &GeoTrackDisplay::polluted, label,
        [this, label] { label->setChecked(m_trackDisplay->labelVisible()); });
    label->setChecked(m_trackDisplay->labelVisible());
    connectLabelActions();

    const auto toggleDock = [this](ActionId id, QDockWidget *dock) {
        QAction *action = (*m_actions)[id];
        connect(action, &QAction::triggered, dock, &QWidget::setVisible);
        // A dock behind another's tab is there all the same.
        connect(dock->toggleViewAction(), &QAction::toggled, action, &QAction::setChecked);
        action->setChecked(dock->toggleViewAction()->isChecked());
    };
    toggleDock(ActionId::ToggleTrackList, m_lists->trackDock());
    toggleDock(ActionId::ToggleAlertList, m_lists->alertDock());
}

void MainWindow::connectLabelActions()
{
    GeoTrackDisplay *tracks = m_trackDisplay.get();
    QAction *reset = (*m_actions)[ActionId::ResetLabel];
    QAction *resetAll = (*m_actions)[ActionId::ResetAllLabels];
    connect(reset, &QAction::triggered, tracks, [tracks] { tracks->resetTrackLabelOffset(tracks->selectedTrackId()); });
    connect(resetAll, &QAction::triggered, tracks, &GeoTrackDisplay::resetTrackLabelOffsets);
    const auto update = [tracks, reset, resetAll] {
        reset->setEnabled(!tracks->trackLabelOffsetDefault(tracks->selectedTrackId()));
        resetAll->setEnabled(tracks->anyTrackLabelOffset());
    };
    connect(tracks, &GeoTrackDisplay::polluted, reset, update);
    update();
    auto *chip = new ScopeChip(m_geoWidget, 1);
    // Later: it comes in the midst of painting.
    const auto note = [chip](int count) {
        const QString text = count == 1 ? tr("1 label shortened") : tr("%1 labels shortened").arg(count);
        chip->showText(count > 0 ? text : QString());
    };
    // Later: it comes in the midst of painting.
    connect(tracks, &GeoTrackDisplay::shortenedLabelsChanged, chip, note, Qt::QueuedConnection);
}

void MainWindow::connectMapActions()
{
    for (const auto &[id, visible] : SettingToggles) {
        connect((*m_actions)[id], &QAction::triggered, this,
            [this, member = visible](bool on) { editConfig([member, on](Config &config) { config.*member = on; }); });
    }
}

void MainWindow::connectMapWindows()
{
    MapWindows *maps = m_mapWindows.get();
    connect(m_layoutMenu.get(), &LayoutMenu::logMessage, this, &MainWindow::showLog);
    connect(maps, &MapWindows::logMessage, this, &MainWindow::showLog);
    connect(maps, &MapWindows::loading, this, &MainWindow::showMapLoadInfo);
    connect(maps, &MapWindows::loaded, this, [this] { m_statusLine->clearProgress(); });
    connect(maps, &MapWindows::centerRequested, this, [this](const GeoCoordinate &center) { m_home->jumpTo(center); });
    const auto store = [this](QString Config::*member, const QString &file) {
        editConfig([member, &file](Config &config) {
            if (MapPlaces::resolve(config.*member) != file) {
                config.*member = AppPaths::storePath(file);
            }
        });
        m_mapWindows->reload(m_config.live()); // the place of the setting may have got its file just now
    };
    connect(maps, &MapWindows::indexChosen, this, [store](const QString &file) { store(&Config::mapIndex, file); });
    connect(maps, &MapWindows::styleSheetChosen, this,
        [store](const QString &file) { store(&Config::mapStyleSheet, file); });
}

void MainWindow::showLog(LogLevel level, const QString &text)
{
    if (level < m_minimumLevel) {
        return;
    }
    m_logPane->appendLine(level, formatLogLine(level, QDateTime::currentDateTime(), text));
    if (!m_logPane->isVisible()) {
        m_statusLine->showLine(level, text);
    }
}

void MainWindow::applyConfig(SettingGroups changed)
{
    const Config &config = m_config.live();
    m_mapDisplay->applyConfig(config, changed);
    if (changed & SettingGroup::Tracks) {
        m_trackDisplay->applyConfig(config);
    }
    if (changed & SettingGroup::General) {
        applyWidgetStyle(config.displayStyle);
        m_readOuts->setTimeZone(config.displayLocalTimeZoneName);
        m_actions->setToolBarText(config.displayToolbarText);
        updateClock();
    }
    for (const auto &[id, visible] : SettingToggles) {
        (*m_actions)[id]->setChecked(config.*visible);
    }
    m_plotSwitch->setWanted(config.mapPlotVisible);
    if (changed & SettingGroup::Weather && m_windows.weatherIntensity) {
        m_windows.weatherIntensity->refresh();
    }
    if (changed & SettingGroup::PlanView && m_windows.trackLabelFormat) {
        m_windows.trackLabelFormat->setGround(config.mapBackgroundColor);
    }
    if (changed & SettingGroup::Tiles) {
        m_tileMaps->applyConfig(config);
    }
    if (changed & SettingGroup::StaticMaps) {
        m_mapWindows->reload(config);
    }
    if (changed & RunGroups) {
        updateNotices();
    }
}

void MainWindow::applySensor()
{
    m_session->setSensor(m_config.live().sensor(nullptr));
    m_sensors->addDetails(m_session->sensor().data());
    placeDefaultLayout();
    m_mapDisplay->setSensor(m_session->sensor());
    m_health->setSensor(m_session->sensor().data());
    m_trackDisplay->setSensor(m_session->sensor());
    m_readOuts->setSensorPlace(m_session->sensor() ? m_session->sensor()->location() : GeoCoordinate());
    beginRadarPicture();
    updateNotices();
}

void MainWindow::takeRunSettings(SettingGroups changed)
{
    applyConfig(changed);
    if (changed & SettingGroup::Sensor) {
        applySensor();
        showSensorPlace();
    }
}

void MainWindow::placeDefaultLayout()
{
    if (m_home->place().isValid()) {
        m_layoutMenu->placeDefault(m_home->planePoint(m_home->place()));
    }
}

void MainWindow::beginRadarPicture()
{
    QList<QSharedPointer<SensorInfo>> sensors;
    for (const QString &name : m_sensors->sensorNames()) {
        sensors.append(m_sensors->findSensor(name));
    }
    m_mapDisplay->videoMap()->setKnownSensors(sensors);
    m_mapDisplay->weatherMap()->clear();
}

void MainWindow::editConfig(const std::function<void(Config &)> &change)
{
    const Config before = m_config.live();
    m_config.edit(change);
    applyConfig(Config::changedGroups(before, m_config.live()));
}
