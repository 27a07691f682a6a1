#include "ui/main_window.h"

#include "airdb/lib_air_db.h"
#include "app/app_log.h"
#include "app/app_paths.h"
#include "asterix/asterix.h"
#include "display/geo_map_display.h"
#include "display/geo_range_ring_map.h"
#include "display/geo_sensor_map.h"
#include "display/geo_track_display.h"
#include "engine/data_engine.h"
#include "maps/map_library.h"
#include "plan_view/geo_widget.h"
#include "sensors/sensor_manager.h"
#include "settings/track_label_format_window.h"
#include "ui/actions.h"
#include "ui/alert_list_model.h"
#include "ui/library_log.h"
#include "ui/list_view.h"
#include "ui/log_pane.h"
#include "ui/range_ring_window.h"
#include "ui/scope_notice.h"
#include "ui/status_read_outs.h"
#include "ui/track_list_model.h"
#include "ui/weather_intensity_window.h"

#include <QAction>
#include <QDateTime>
#include <QDockWidget>
#include <QGuiApplication>
#include <QMenu>
#include <QStatusBar>

namespace {
constexpr int pullIntervalMs = 100;
constexpr int listIntervalMs = 1000;
constexpr int clockIntervalMs = 500;
constexpr int dropStatsIntervalMs = 60000;
constexpr int statusMessageMs = 8000;
} // namespace

MainWindow::MainWindow(const std::function<void(Config &)> &overrides, QWidget *parent)
    : QMainWindow(parent), m_config(AppPaths::configFile()), m_sensors(std::make_unique<SensorManager>()),
      m_exitQuestion([this] { return confirmExit(); })
{
    if (overrides) {
        m_config.overrideWith(overrides);
    }
    makeDisplay();
    makeFurniture();
    makeDocks();
    if (isDebugMode()) {
        setLogLevel(LogLevel::Debug);
        showLog(LogLevel::Debug, tr("Debug functions enabled"));
    }
    ast_library_init();
    LibraryLog::setWindow(this);
    LibraryLog::install(isDebugMode());

    connectEngine();
    connectDisplay();
    connectInputActions();
    connectReplay();
    connectViewActions();
    connectTrackActions();
    connectMapActions();
    connectRadarPicture();
    connectStaticMaps();
    connectLayouts();
    connectDialogActions();
    loadSensorDatabase();
    loadAircraftDatabase();
    applyConfig();
    applySensor();
    setInputState(InputState::Closed);
    m_host.start();
    startTimers();
}

MainWindow::~MainWindow()
{
    LibraryLog::setWindow(nullptr);
    // The docks are hidden when the base class goes, after the members that their lists are made of.
    for (QDockWidget *dock : {m_trackDock, m_alertDock}) {
        disconnect(dock, nullptr, this, nullptr);
    }
    deleteMapWindows();
}

bool MainWindow::isDebugMode()
{
    return debugModeMarked();
}

void MainWindow::makeDisplay()
{
    m_mapDisplay = std::make_unique<GeoMapDisplay>(&m_host.shared().projector);
    m_trackDisplay = std::make_unique<GeoTrackDisplay>();
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
    setWindowTitle(QGuiApplication::applicationDisplayName());
    m_actions = new Actions(this);
    m_readOuts = new StatusReadOuts(statusBar(), &m_host.shared().projector);
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

void MainWindow::makeDocks()
{
    const auto addDock = [this](const QString &title, const QString &name, QWidget *content, Qt::DockWidgetArea area) {
        auto *dock = new QDockWidget(title, this);
        dock->setObjectName(name); // under which the window's state remembers it
        dock->setWidget(content);
        addDockWidget(area, dock);
        return dock;
    };
    m_logPane = new LogPane(this);
    m_trackModel = new TrackListModel(this);
    m_alertModel = new AlertListModel(this);
    m_trackView = new ListView(m_trackModel, TrackListModel::widestTexts(), this);
    m_trackView->setObjectName("trackList");
    m_trackView->sortByColumn(TrackListModel::Callsign, Qt::AscendingOrder);
    m_alertView = new ListView(m_alertModel, AlertListModel::widestTexts(), this);
    m_alertView->setObjectName("alertList");
    m_alertView->sortByColumn(AlertListModel::Start, Qt::DescendingOrder);

    m_messagesDock = addDock(tr("Messages"), "messagesDock", m_logPane, Qt::BottomDockWidgetArea);
    m_trackDock = addDock(tr("Track List"), "trackListDock", m_trackView, Qt::RightDockWidgetArea);
    m_alertDock = addDock(tr("Alert List"), "alertListDock", m_alertView, Qt::RightDockWidgetArea);
    m_actions->menu(MenuId::View)->addSeparator();
    m_actions->menu(MenuId::View)->addAction(m_messagesDock->toggleViewAction());
}

void MainWindow::connectEngine()
{
    const DataEngine *engine = m_host.engine();
    connect(engine, &DataEngine::logMessage, this, &MainWindow::showLog);
    connect(engine, &DataEngine::inputOpened, this, &MainWindow::onEngineInputOpened);
    connect(engine, &DataEngine::inputOpenFailed, this, &MainWindow::onEngineInputOpenFailed);
    connect(engine, &DataEngine::inputClosed, this, &MainWindow::onEngineInputClosed);
    connect(engine, &DataEngine::alertStatusChanged, this, &MainWindow::updateAlertStatus);
    connect(engine, &DataEngine::antennaRotated, m_mapDisplay->sensorMap(), &GeoSensorMap::antennaRotated);
    connect(engine, &DataEngine::antennaNorthCrossed, m_mapDisplay->sensorMap(), &GeoSensorMap::antennaNorthCrossed);
    connect(m_trackDisplay.get(), &GeoTrackDisplay::shownTrailDotsChanged, &m_host, &EngineHost::setSnapshotTrailDots);
    m_host.setSnapshotTrailDots(m_trackDisplay->trailVisible() ? m_trackDisplay->trailDots() : 0);
}

void MainWindow::connectDisplay()
{
    connect(m_geoWidget, &GeoWidget::cursorMoved, this, &MainWindow::showCursorPosition);
    connect(m_geoWidget, &GeoWidget::zoomChanged, this, &MainWindow::showCurrentZoom);
    connect(m_geoWidget, &GeoWidget::rotationChanged, this, &MainWindow::showCurrentRotation);
    connect(m_geoWidget, &GeoWidget::trackSelected, this, &MainWindow::selectTrackInList);
    connect(m_geoWidget, &GeoWidget::rangeRingsCenterSet, this, &MainWindow::placeRangeRings);
    connect(m_trackView, &ListView::selectedRowChanged, this, &MainWindow::trackListSelectionChanged);
    connect(m_alertView, &ListView::selectedRowChanged, this, &MainWindow::alertListSelectionChanged);
    // A list is not kept up to date while it is out of sight.
    connect(m_trackDock, &QDockWidget::visibilityChanged, this, &MainWindow::updateTrackList);
    connect(m_alertDock, &QDockWidget::visibilityChanged, this, &MainWindow::updateAlertList);
}

void MainWindow::startTimers()
{
    m_pullTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_pullTimer, &QTimer::timeout, this, &MainWindow::pullSlots);
    m_pullTimer.start(pullIntervalMs);
    m_trackListTimer.setInterval(listIntervalMs);
    connect(&m_trackListTimer, &QTimer::timeout, this, &MainWindow::updateTrackList);
    m_alertListTimer.setInterval(listIntervalMs);
    connect(&m_alertListTimer, &QTimer::timeout, this, &MainWindow::updateAlertList);
    connect(&m_clockTimer, &QTimer::timeout, this, &MainWindow::updateClock);
    m_clockTimer.start(clockIntervalMs);
    connect(&m_dropStatsTimer, &QTimer::timeout, this, &MainWindow::publishDropStats);
    m_dropStatsTimer.start(dropStatsIntervalMs);
    updateClock();
}

void MainWindow::showLog(LogLevel level, const QString &text)
{
    if (level < m_minimumLevel) {
        return;
    }
    m_logPane->appendLine(level, formatLogLine(level, QDateTime::currentDateTime(), text));
    if (!m_logPane->isVisible()) {
        statusBar()->showMessage(text, statusMessageMs);
    }
}

void MainWindow::updateClock()
{
    m_readOuts->showTime(QDateTime::currentDateTimeUtc());
}

void MainWindow::applyConfig()
{
    const Config &config = m_config.live();
    m_mapDisplay->applyConfig(config);
    m_trackDisplay->applyConfig(config);
    m_readOuts->setTimeZone(config.displayLocalTimeZoneName);
    m_actions->setToolBarText(config.displayToolbarText);
    (*m_actions)[ActionId::ToggleStaticMaps]->setChecked(config.mapStaticVisible);
    (*m_actions)[ActionId::ToggleSensorMap]->setChecked(config.mapSensorVisible);
    (*m_actions)[ActionId::ToggleWeatherMap]->setChecked(config.mapWeatherVisible);
    (*m_actions)[ActionId::ToggleVideoMap]->setChecked(config.mapVideoVisible);
    if (m_weatherIntensityWindow) {
        m_weatherIntensityWindow->refresh();
    }
    (*m_actions)[ActionId::ToggleRangeRings]->setChecked(config.mapRangeRingVisible);
    if (!m_mapLibrary->indexFile().isEmpty()) {
        loadMaps(); // the first time when the window is shown
    }
    updateClock();
    updateNotices();
}

void MainWindow::applySensor()
{
    m_sensor = m_config.live().sensor(nullptr);
    placeDefaultLayout();
    m_mapDisplay->setSensor(m_sensor);
    beginRadarPicture();
    updateNotices();
}

void MainWindow::editConfig(const std::function<void(Config &)> &change)
{
    m_config.edit(change);
    applyConfig();
}

void MainWindow::loadSensorDatabase()
{
    const QString file = AppPaths::resolvePath(m_config.live().sensorDatabase);
    if (!file.isEmpty() && !m_sensors->loadFromJsonFile(QFileInfo(file))) {
        showLog(LogLevel::Warning, tr("Cannot read the sensor file %1").arg(file));
    }
}

void MainWindow::loadAircraftDatabase()
{
    const QFileInfo file(AppPaths::exeDir() + "/../share/korvane_airdb/airdb.dat");
    korvane::airdb::LibAirDB database;
    if (!database.loadFromDataFile(file)) {
        showLog(LogLevel::Warning, tr("Cannot load the aircraft database: %1").arg(database.lastError()));
    }
    m_trackModel->setAddresses(database.getICAOAddrDict());
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange && m_actions) {
        m_actions->updateIcons();
    }
    if (event->type() == QEvent::WindowStateChange && m_actions) {
        (*m_actions)[ActionId::FullScreen]->setChecked(isFullScreen());
    }
    QMainWindow::changeEvent(event);
}
