#include "ui/main_window.h"

#include "app/app_log.h"
#include "app/app_paths.h"
#include "app/log_gate.h"
#include "assessment_windows/sensor_check.h"
#include "asterix/asterix.h"
#include "display/geo_map_display.h"
#include "display/geo_track_display.h"
#include "engine/data_engine.h"
#include "first_start/first_start.h"
#include "health/input_health.h"
#include "inspection/inspection.h"
#include "lists/list_panes.h"
#include "plan_view/geo_widget.h"
#include "plan_view/plan_display.h"
#include "raw_view/stream_windows.h"
#include "second_view/second_views.h"
#include "sensors/sensor_info.h"
#include "sensors/sensor_manager.h"
#include "settings/lock_commands.h"
#include "settings/track_label_format_window.h"
#include "silence/geo_last_place_map.h"
#include "tile_windows/tile_maps.h"
#include "tiles/tile_stock.h"
#include "ui/actions.h"
#include "ui/empty_scope.h"
#include "ui/home_view.h"
#include "ui/input_session.h"
#include "ui/layout_menu.h"
#include "ui/library_log.h"
#include "ui/log_pane.h"
#include "ui/map_windows.h"
#include "ui/plot_switch.h"
#include "ui/replay_controls.h"
#include "ui/snapshot_pump.h"
#include "ui/stats_window.h"
#include "ui/status_line.h"
#include "ui/status_read_outs.h"
#include "ui/theme_menu.h"
#include "ui/track_commands.h"
#include "ui/weather_intensity_window.h"
#include "widgets/scope_notice.h"
#include "widgets/widget_style.h"
#include "workplace/scope_holder.h"
#include "workplace/workplace.h"

#include <QAction>
#include <QDateTime>
#include <QDockWidget>
#include <QGuiApplication>
#include <QMenu>
#include <QStatusBar>

namespace {

constexpr int ClockIntervalMs = 500;
constexpr qint64 OctetsPerMebibyte = 1024 * 1024;

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
    m_logFile.setLimits(config().logFileSize * OctetsPerMebibyte, config().logFileCount); // before the first line
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
    connectFirstStart();
    connectInputActions();
    connectViewActions();
    connectTrackActions();
    connectWorkplace();
    connectMapActions();
    connectMapWindows();
    connectTileMaps();
    connectSecondViews();
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
    m_plan = std::make_unique<PlanDisplay>(&m_host.shared().projector, this);
    m_mapDisplay = m_plan->map();
    m_trackDisplay = m_plan->tracks();
    m_geoWidget = m_plan->widget();
    m_geoWidget->setObjectName("geoWidget");
    auto *holder = new ScopeHolder(m_geoWidget, this);
    setCentralWidget(holder);
    m_workplace = new Workplace(this, holder, ArrangementVersion);
    m_scopeNotice = new ScopeNotice(m_geoWidget);
}

void MainWindow::makeFurniture()
{
    setObjectName("mainWindow");
    setAcceptDrops(true);
    m_actions = new Actions(this);
    m_lock = std::make_unique<LockCommands>(this, (*m_actions)[ActionId::LockSettings], &m_config);
    m_themes = new ThemeMenu(this, m_actions, &m_config, m_trackDisplay);
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
    m_pump = std::make_unique<SnapshotPump>(&m_host.shared(), m_plan.get());
    m_emptyScope = std::make_unique<EmptyScope>();
    m_health = std::make_unique<InputHealth>(m_mapDisplay->addLayer<GeoLastPlaceMap>(MapLayer::Plots));
    m_plotSwitch = std::make_unique<PlotSwitch>(m_mapDisplay->plotMap(), (*m_actions)[ActionId::TogglePlots]);
    m_lists = std::make_unique<ListPanes>(this, m_trackDisplay, [this] { return m_pump->newest(); });
    m_trackCommands = std::make_unique<TrackCommands>(m_actions, m_geoWidget, m_trackDisplay, m_lists.get());
    makeInspection();
    m_home = std::make_unique<HomeView>(m_geoWidget, &m_host.shared().projector, &m_config.live());
    m_layoutMenu = std::make_unique<LayoutMenu>(this, m_actions, m_geoWidget, &m_config.lock());
    m_mapWindows =
        std::make_unique<MapWindows>(this, m_actions, m_geoWidget, &m_host.shared().projector, &m_config.lock());
    const auto tiles = std::make_shared<TileStocks>();
    m_tileMaps = std::make_unique<TileMaps>(this, m_geoWidget, &m_host.shared().projector, tiles,
        [this](const std::function<void(Config &)> &change) { editConfig(change); });
    m_replay = std::make_unique<ReplayControls>(this, m_actions, &m_config, m_sensors.get(), &m_host, m_session.get());
    m_views = std::make_unique<SecondViews>(
        PlanViewWindow::Shared{&m_host.shared().projector, m_mapWindows->library(), m_plan.get(), tiles},
        [this] { return !m_config.lock().locked(); });
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

void MainWindow::connectMapActions()
{
    for (const auto &[id, visible] : SettingToggles) {
        connect((*m_actions)[id], &QAction::triggered, this,
            [this, member = visible](bool on) { editConfig([member, on](Config &config) { config.*member = on; }); });
    }
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
    const QString problem = m_logFile.append(level, QDateTime::currentDateTimeUtc(), text);
    if (!problem.isEmpty()) {
        showLog(LogLevel::Warning, problem);
    }
}

void MainWindow::applyConfig(SettingGroups changed)
{
    const Config &config = m_config.live();
    m_plan->applyConfig(config, changed);
    m_views->applyConfig(config, changed);
    if (changed & SettingGroup::General) {
        applyWidgetStyle(config.displayStyle);
        applyFontScale(config.displayFontScale);
        m_readOuts->setTimeZone(config.displayLocalTimeZoneName);
        m_actions->showValue(ActionId::Theme, Theme::shownName(config.displayTheme));
        m_actions->setToolBarText(config.displayToolbarText);
        updateClock();
        m_logFile.setLimits(config.logFileSize * OctetsPerMebibyte, config.logFileCount);
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
    m_plan->setSensor(m_session->sensor());
    m_views->setSensor(m_session->sensor());
    m_health->setSensor(m_session->sensor().data());
    const GeoCoordinate place = m_session->sensor() ? m_session->sensor()->location() : GeoCoordinate();
    m_readOuts->setSensorPlace(place);
    m_lists->setSensorPlace(place);
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
    m_plan->beginRadarPicture(sensors);
    m_views->beginRadarPicture(sensors);
}

void MainWindow::editConfig(const std::function<void(Config &)> &change)
{
    const Config before = m_config.live();
    if (!m_config.edit(change)) {
        Config edited = before; // the change may refer to what is gone when it comes
        change(edited);
        m_config.lock().whenUnlocked([this, before, edited] {
            editConfig([&before, &edited](Config &config) { copyChanges(before, edited, config); });
        });
        return;
    }
    applyConfig(Config::changedGroups(before, m_config.live()));
}
