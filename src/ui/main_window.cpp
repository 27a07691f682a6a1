// What the window is made of, and which part hears which.

#include "ui/main_window.h"

#include "app/app_log.h"
#include "app/app_paths.h"
#include "asterix/asterix.h"
#include "display/geo_map_display.h"
#include "display/geo_track_display.h"
#include "engine/data_engine.h"
#include "first_start/first_start.h"
#include "health/cures.h"
#include "health/health_dock.h"
#include "help/help.h"
#include "lists/list_panes.h"
#include "orientation/geo_sensor_map.h"
#include "plan_view/geo_widget.h"
#include "plan_view/plan_display.h"
#include "radar_painting/geo_video_map.h"
#include "second_view/second_views.h"
#include "sensors/sensor_manager.h"
#include "settings/lock_commands.h"
#include "settings/settings_reference.h"
#include "tile_windows/tile_maps.h"
#include "tiles/tile_stock.h"
#include "ui/actions.h"
#include "ui/analysis.h"
#include "ui/home_view.h"
#include "ui/input_notices.h"
#include "ui/input_session.h"
#include "ui/layout_menu.h"
#include "ui/library_log.h"
#include "ui/map_windows.h"
#include "ui/messages.h"
#include "ui/reopening.h"
#include "ui/replay_controls.h"
#include "ui/snapshot_pump.h"
#include "ui/stats_window.h"
#include "ui/status_read_outs.h"
#include "ui/theme_menu.h"
#include "ui/track_commands.h"
#include "ui/view_windows.h"
#include "workplace/alert_indicator.h"
#include "workplace/scope_holder.h"
#include "workplace/workplace.h"

#include <QAction>
#include <QDockWidget>
#include <QGuiApplication>
#include <QMenu>
#include <QStatusBar>
#include <QTimer>

namespace {
constexpr int ClockIntervalMs = 500;
}

MainWindow::MainWindow(const std::function<void(Config &)> &overrides, QWidget *parent)
    : QMainWindow(parent), m_config(AppPaths::configFile()), m_sensors(std::make_unique<SensorManager>())
{
    setQuestions();
    if (overrides) {
        m_config.overrideWith(overrides);
    }
    makeDisplay();
    makeFurniture();
    makeParts();
    makeExplainers();
    routeLibraryLogs();
    connectLog();
    connectSettings();
    connectEngine();
    connectSession();
    connectRecordings();
    connectDisplay();
    connectHealth();
    connectFirstStart();
    connectWorkplace();
    connectMapWindows();
    connectSecondViews();
    connectShutdown();
    connectInputActions();
    connectViewActions();
    connectTrackActions();
    connectLabelActions();
    connectMapActions();
    connectDialogActions();
    loadSensorDatabase();
    loadAircraftDatabase();
    applyConfig(AllSettings);
    applySensor();
    showSession();
    m_host.start();
    m_pump->start();
    startClock();
}

MainWindow::~MainWindow()
{
    LibraryLog::setSink(nullptr, {});
    disconnect(&m_config, nullptr, this, nullptr); // writes what waits when the line for messages has gone
    if (m_host.engine()) {
        disconnect(m_host.engine(), nullptr, this, nullptr);
    }
}

void MainWindow::setQuestions()
{
    m_questions.exit = [this] {
        return confirm(
            tr("Exit"), tr("%1 is running, do you want to exit?").arg(QGuiApplication::applicationDisplayName()));
    };
    m_questions.stop = [this] {
        return confirm(tr("Stop"), tr("The input is running on %1. Stop it?").arg(m_session->description()));
    };
}

void MainWindow::makeDisplay()
{
    m_plan = std::make_unique<PlanDisplay>(&m_host.shared().projector, this);
    m_plan->widget()->setObjectName("geoWidget");
    auto *holder = new ScopeHolder(m_plan->widget(), this);
    setCentralWidget(holder);
    m_workplace = new Workplace(this, holder, ArrangementVersion);
}

void MainWindow::makeFurniture()
{
    setObjectName("mainWindow");
    setAcceptDrops(true);
    m_actions = new Actions(this);
    makeResizeMenu();
    m_lock = std::make_unique<LockCommands>(this, (*m_actions)[ActionId::LockSettings], &m_config);
    m_themes = new ThemeMenu(this, m_actions, &m_config, m_plan->tracks());
    m_readOuts = new StatusReadOuts(statusBar(), &m_host.shared().projector);
    showCurrentZoom(m_plan->widget()->currentZoom());
    showCurrentRotation(m_plan->widget()->currentRotation());
    m_messages = new Messages(this);
    m_messages->applyConfig(config()); // before the first line
    m_actions->menu(MenuId::View)->addSeparator();
    m_actions->menu(MenuId::View)->addAction(m_messages->dock()->toggleViewAction());
    m_stats = new StatsWindow(this);
}

void MainWindow::makeParts()
{
    GeoWidget *view = m_plan->widget();
    Projector *projector = &m_host.shared().projector;
    const auto edit = [this](const std::function<void(Config &)> &change) { editConfig(change); };
    m_session = std::make_unique<InputSession>(&m_config, &m_host);
    m_shutdown = std::make_unique<Shutdown>(this, m_session.get(), &m_host);
    m_pump = std::make_unique<SnapshotPump>(&m_host.shared(), m_plan.get());
    m_lists = std::make_unique<ListPanes>(this, m_plan->tracks(), [this] { return m_pump->newest(); });
    m_trackCommands = std::make_unique<TrackCommands>(m_actions, view, m_plan->tracks(), m_lists.get());
    m_home = std::make_unique<HomeView>(view, projector, &m_config.live());
    m_layoutMenu = std::make_unique<LayoutMenu>(this, m_actions, view, &m_config.lock());
    m_mapWindows = std::make_unique<MapWindows>(this, m_actions, view, projector, &m_config.lock());
    m_viewWindows = std::make_unique<ViewWindows>(this, &m_config.live(), m_plan.get(), m_home.get(), edit);
    const auto tiles = std::make_shared<TileStocks>();
    m_tileMaps = std::make_unique<TileMaps>(this, view, projector, tiles, edit);
    m_views =
        std::make_unique<SecondViews>(PlanViewWindow::Shared{projector, m_mapWindows->library(), m_plan.get(), tiles},
            [this] { return !m_config.lock().locked(); });
    m_replay = std::make_unique<ReplayControls>(this, m_actions, &m_config, m_sensors.get(), &m_host, m_session.get());
    m_firstStart = std::make_unique<FirstStart>(
        FirstStart::Window{this, &m_config, m_sensors.get(), &m_host, [this] { return m_questions.stop(); }});
    m_help = new Help(this);
    m_help->setMadePage(QStringLiteral("settings-reference.md"), &SettingsReference::page);
}

// Who explains the picture.
void MainWindow::makeExplainers()
{
    m_analysis = std::make_unique<Analysis>(Analysis::Window{this, m_actions, &m_config.live(), m_sensors.get(),
        &m_host, m_session.get(), m_pump.get(), m_plan.get(), m_trackCommands.get()});
    m_notices = std::make_unique<InputNotices>(InputNotices::Window{m_session.get(), m_pump.get(), m_tileMaps.get(),
        (*m_actions)[ActionId::TogglePlots], m_plan.get(), m_views.get(), m_lists.get(), m_readOuts});
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

void MainWindow::startClock()
{
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &MainWindow::updateClock);
    timer->start(ClockIntervalMs);
}

void MainWindow::connectLog()
{
    const auto log = [this](const auto &part, auto message) { connect(&part, message, this, &MainWindow::showLog); };
    log(*m_host.engine(), &DataEngine::logMessage);
    log(*m_session, &InputSession::logMessage);
    log(*m_replay->opener(), &RecordingOpener::logMessage);
    log(m_notices->health(), &InputHealth::logMessage);
    log(*m_themes, &ThemeMenu::logMessage);
    log(*m_lock, &LockCommands::logMessage);
    log(*m_layoutMenu, &LayoutMenu::logMessage);
    log(*m_mapWindows, &MapWindows::logMessage);
    log(*m_tileMaps, &TileMaps::logMessage);
    log(*m_views, &SecondViews::logMessage);
    log(*m_firstStart, &FirstStart::logMessage);
    log(*m_shutdown, &Shutdown::logMessage);
    const auto warn = [this](const auto &part, auto warning) {
        connect(&part, warning, this, [this](const QString &text) { showLog(LogLevel::Warning, text); });
    };
    warn(m_config, &RunConfig::writeFailed);
    warn(*m_sensors, &SensorManager::warning);
    warn(*m_lists, &ListPanes::failed);
    m_themes->reportProblems();
}

void MainWindow::connectSettings()
{
    connect(m_themes, &ThemeMenu::changed, this, &MainWindow::applyConfig);
    connect(m_lock.get(), &LockCommands::locked, m_viewWindows.get(), &ViewWindows::closeTrackLabelFormat);
    connect(m_lock.get(), &LockCommands::locked, m_mapWindows.get(), [this] { m_mapWindows->close([] {}); });
}

void MainWindow::connectEngine()
{
    const DataEngine *engine = m_host.engine();
    connect(engine, &DataEngine::inputFault, m_session.get(), &InputSession::onFault);
    connect(engine, &DataEngine::inputOpened, this, &MainWindow::onEngineInputOpened);
    connect(engine, &DataEngine::inputOpenFailed, this, &MainWindow::onEngineInputOpenFailed);
    connect(engine, &DataEngine::inputClosed, this, &MainWindow::onEngineInputClosed);
    connect(engine, &DataEngine::replayProgress, this, &MainWindow::onEngineReplayProgress);
    connect(engine, &DataEngine::alertStatusChanged, this, &MainWindow::updateAlertStatus);
    const GeoSensorMap *antenna = m_plan->map()->sensorMap();
    connect(engine, &DataEngine::antennaRotated, antenna, &GeoSensorMap::antennaRotated);
    connect(engine, &DataEngine::antennaNorthCrossed, antenna, &GeoSensorMap::antennaNorthCrossed);
    connect(engine, &DataEngine::pipelineStats, m_stats, &StatsWindow::setPipelineStats);
    const GeoTrackDisplay *tracks = m_plan->tracks();
    connect(tracks, &GeoTrackDisplay::shownTrailDotsChanged, &m_host, &EngineHost::setSnapshotTrailDots);
    m_host.setSnapshotTrailDots(tracks->trailVisible() ? tracks->trailDots() : 0);
}

void MainWindow::connectSession()
{
    InputSession *session = m_session.get();
    connect(session, &InputSession::changed, this, &MainWindow::showSession);
    connect(session, &InputSession::openingBegun, this, &MainWindow::beginRadarPicture);
    connect(session, &InputSession::opened, m_lists.get(), &ListPanes::start);
    connect(session, &InputSession::opened, this, &MainWindow::inputOpened);
    connect(session, &InputSession::openFailed, this, &MainWindow::inputFailed);
    connect(session, &InputSession::closed, this, &MainWindow::pullSlots); // the input's last picture
    connect(session, &InputSession::closed, m_lists.get(), &ListPanes::refresh);
    connect(session, &InputSession::closed, this, &MainWindow::inputClosed);
}

void MainWindow::connectRecordings()
{
    const RecordingOpener *opener = m_replay->opener();
    connect(opener, &RecordingOpener::settingsProposed, this, &MainWindow::takeRunSettings);
    connect(opener, &RecordingOpener::refused, m_notices.get(), &InputNotices::showRefusal);
    connect(opener, &RecordingOpener::refused, this, &MainWindow::inputFailed);
    connect(m_session.get(), &InputSession::settingsBroughtBack, this, &MainWindow::takeRunSettings);
}

void MainWindow::keepInput()
{
    auto *reopening = new Reopening(m_session.get(), this);
    connect(reopening, &Reopening::message, this, &MainWindow::showLog);
    connect(reopening, &Reopening::due, this, [this] {
        if (m_session->isClosed()) {
            openInput();
        }
    });
    // A recording ends as it should.
    connect(m_session.get(), &InputSession::openingBegun, reopening,
        [this, reopening] { reopening->setWanted(config().inputAutoStart && !m_session->replaying()); });
}

void MainWindow::connectDisplay()
{
    const GeoWidget *view = m_plan->widget();
    connect(view, &GeoWidget::cursorMoved, this, &MainWindow::showCursorPosition);
    connect(view, &GeoWidget::zoomChanged, this, &MainWindow::showCurrentZoom);
    connect(view, &GeoWidget::rotationChanged, this, &MainWindow::showCurrentRotation);
    connect(view, &GeoWidget::paintStats, m_stats, [this](const PaintStats &stats) {
        m_stats->setPaintStats(stats);
        m_stats->setLayerTimes(m_plan->map()->layerTimes());
    });
    connect(view, &GeoWidget::rangeRingsCenterSet, this, [this] {
        m_home->noteRingsPlaced();
        if (!config().mapRangeRingVisible) {
            editConfig([](Config &config) { config.mapRangeRingVisible = true; });
        }
    });
    connect(m_plan->map()->videoMap(), &GeoVideoMap::siteUnknown, this, [this](unsigned char sac, unsigned char sic) {
        showLog(LogLevel::Warning,
            tr("Radar video of SAC %1, SIC %2 is not shown: no sensor has this identification.").arg(sac).arg(sic));
    });
    connect(m_pump.get(), &SnapshotPump::alertStatusChanged, this, &MainWindow::updateAlertStatus);
    connect(m_pump.get(), &SnapshotPump::dropStats, m_stats, &StatsWindow::setDropStats);
    connect(m_pump.get(), &SnapshotPump::dropStats, this, &MainWindow::dropStats);
}

void MainWindow::connectHealth()
{
    auto *dock = new HealthDock(&m_notices->health(), this, m_messages->dock());
    m_actions->menu(MenuId::View)->addAction(dock->toggleViewAction());
    m_analysis->diagnoseFor(dock);
    const Actions &actions = *m_actions;
    auto *cures = new Cures({actions[ActionId::TogglePlots], actions[ActionId::ToggleTrackLabel],
                                actions[ActionId::Pause], actions[ActionId::Start], actions[ActionId::Settings],
                                [this](const std::function<void(Config &)> &change) { changeSensor(change); }},
        this);
    connect(dock, &HealthDock::cureRequested, cures, &Cures::cureSource);
    connect(m_analysis.get(), &Analysis::cureChosen, cures, &Cures::cureAbsence);
}

void MainWindow::connectFirstStart()
{
    FirstStart *start = m_firstStart.get();
    connect(start, &FirstStart::themeChosen, m_themes, &ThemeMenu::beginOrChoose);
    connect(start, &FirstStart::recordingWanted, this, &MainWindow::openRecordingFile);
    connect(start, &FirstStart::inputUnwanted, this, &MainWindow::closeInput);
    connect(start, &FirstStart::settingsEntered, this, &MainWindow::startWith);
    connect(start, &FirstStart::demoBegun, this, [this](SettingGroups changed) {
        takeRunSettings(changed);
        m_session->restart({});
    });
    connect(start, &FirstStart::demoEnded, this, [this](SettingGroups changed) {
        takeRunSettings(changed);
        m_session->forgetPicture(); // made-up traffic over the operator's own maps could be taken for his
    });
    connect(this, &MainWindow::inputOpened, start, &FirstStart::onInputOpened);
    connect(this, &MainWindow::inputClosed, start, &FirstStart::onInputClosed);
    connect(this, &MainWindow::inputFailed, start, &FirstStart::onInputClosed);
}

void MainWindow::connectMapWindows()
{
    MapWindows *maps = m_mapWindows.get();
    connect(maps, &MapWindows::loading, this, &MainWindow::showMapLoadInfo);
    connect(maps, &MapWindows::loaded, m_messages, &Messages::clearProgress);
    connect(maps, &MapWindows::centerRequested, this, [this](const GeoCoordinate &center) { m_home->jumpTo(center); });
    connect(
        maps, &MapWindows::indexChosen, this, [this](const QString &file) { storeMapFile(&Config::mapIndex, file); });
    connect(maps, &MapWindows::styleSheetChosen, this,
        [this](const QString &file) { storeMapFile(&Config::mapStyleSheet, file); });
}

void MainWindow::connectSecondViews()
{
    SecondViews *views = m_views.get();
    connect(m_pump.get(), &SnapshotPump::snapshotTaken, views, [this] { m_views->setSnapshot(m_pump->newest()); });
    connect(m_pump.get(), &SnapshotPump::weatherTaken, views, &SecondViews::showWeather);
    connect(m_pump.get(), &SnapshotPump::radialTaken, views, &SecondViews::showRadial);
    connect(m_host.engine(), &DataEngine::antennaRotated, views, &SecondViews::antennaRotated);
    connect(m_host.engine(), &DataEngine::antennaNorthCrossed, views, &SecondViews::antennaNorthCrossed);
    connect(views, &SecondViews::trackSelected, m_trackCommands.get(), &TrackCommands::select);
    connect(views, &SecondViews::explainRequested, m_trackCommands.get(), &TrackCommands::trackToExplain);
    connect(views, &SecondViews::acknowledgeRequested, m_plan->tracks(), &GeoTrackDisplay::acknowledgeTrack);
    connect(views, &SecondViews::tileConsentGiven, this,
        [this] { editConfig([](Config &config) { config.mapTileConsent = true; }); });
}

// The alerts' indicators stand on the scope while the status bar is out of sight.
void MainWindow::connectWorkplace()
{
    auto *indicator = new AlertIndicator(m_plan->widget());
    const auto show = [this, indicator] {
        const auto picture = m_pump->newest();
        const int asking = static_cast<int>(m_plan->tracks()->alertBoard().askingCount());
        indicator->showAlerts(picture ? picture->alertStatus : std::array<bool, 3>(), asking);
    };
    connect(m_pump.get(), &SnapshotPump::snapshotTaken, indicator, show);
    connect(m_plan->tracks(), &GeoTrackDisplay::acknowledged, indicator, show);
    connect(m_workplace, &Workplace::statusShown, indicator,
        [this, indicator](bool shown) { indicator->setVisible(m_workplace->active() && !shown); });
    connect(m_workplace, &Workplace::changed, this, &MainWindow::storeArrangement);
}

void MainWindow::connectShutdown()
{
    const Shutdown *shutdown = m_shutdown.get();
    connect(shutdown, &Shutdown::begins, this, &MainWindow::shutdownBegun); // whoever reports it sees the whole picture
    connect(shutdown, &Shutdown::begins, m_help, &Help::closeWindow);
    connect(shutdown, &Shutdown::begins, this, &MainWindow::saveUiState);
    connect(shutdown, &Shutdown::begins, m_views.get(), &SecondViews::closeAll);
    connect(shutdown, &Shutdown::begins, &m_config, &RunConfig::flush);
    connect(shutdown, &Shutdown::begins, m_replay->opener(), &RecordingOpener::cancel);
    connect(shutdown, &Shutdown::begins, m_pump.get(), &SnapshotPump::stop);
    connect(shutdown, &Shutdown::completed, this, &MainWindow::shutdownComplete);
}
