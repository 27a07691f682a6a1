// From the first frame to the last: window state, and the shutdown in step with the engine.

#include "airdb/lib_air_db.h"
#include "app/app_paths.h"
#include "app/ui_state.h"
#include "display/geo_map_display.h"
#include "display/geo_track_display.h"
#include "engine/data_engine.h"
#include "lists/list_panes.h"
#include "plan_view/geo_widget.h"
#include "radar_painting/geo_weather_map.h"
#include "second_view/second_views.h"
#include "sensors/sensor_manager.h"
#include "ui/actions.h"
#include "ui/home_view.h"
#include "ui/input_session.h"
#include "ui/layout_menu.h"
#include "ui/main_window.h"
#include "ui/map_windows.h"
#include "ui/replay_controls.h"
#include "ui/snapshot_pump.h"
#include "ui/theme_menu.h"
#include "workplace/alert_indicator.h"
#include "workplace/workplace.h"

#include <QAction>
#include <QCloseEvent>
#include <QDockWidget>
#include <QGuiApplication>
#include <QLayout>
#include <QMessageBox>
#include <QScreen>
#include <QWindow>

namespace {

// What the lists may take of the width at first; the rest is the scope's.
constexpr double WidestLists = 0.3;
constexpr auto ArrangementKey = "windowState";
constexpr auto TrackFormatKey = "trackDisplayFormat";
constexpr auto WeatherLevelsKey = "weatherLevelsOff";

QByteArray levelsOff(const GeoWeatherMap &weather)
{
    QByteArray digits;
    for (int level = 0; level < GeoWeatherMap::LevelCount; ++level) {
        digits += weather.levelVisible(level) ? QByteArray() : QByteArray::number(level);
    }
    return digits;
}

} // namespace

void MainWindow::loadUi(const QSize &size)
{
    loadUiState(size);
    layout()->activate(); // the view is fitted to the scope's final size
    if (!m_home->restore(objectName())) {
        m_home->showSensor();
    }
    m_layoutMenu->load();
    m_mapWindows->load(config());
    m_views->restore();
    if (!m_views->windows().empty()) {
        bringInFront();
    }
    m_geoWidget->setFocus();
}

// The other views came later. None of them is forgotten behind this window, which the window system puts in front when
// it gives it the keyboard.
void MainWindow::bringInFront()
{
    auto *once = new QObject(this);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, once, [this, once](const QWindow *window) {
        if (window && window == windowHandle()) {
            for (const auto &view : m_views->windows()) {
                view->raise();
            }
            once->deleteLater();
        }
    });
    activateWindow();
}

void MainWindow::loadUiState(const QSize &size)
{
    const QString group = objectName();
    const bool known = restoreGeometry(UiState::geometry(group));
    if (!known) {
        resizeMainWindow({1600, 900});
    }
    if (!size.isEmpty()) {
        resizeMainWindow(size);
        m_sizeOfRun = this->size();
    }
    if (!restoreState(UiState::value(group, ArrangementKey), ArrangementVersion)) {
        arrangeDocks();
    }
    m_workplace->begin();
    m_lists->restore(group);
    m_themes->restoreFormat(UiState::value(group, TrackFormatKey));
    for (const char level : UiState::value(group, WeatherLevelsKey)) {
        m_mapDisplay->weatherMap()->setLevelVisible(level - '0', false);
    }
}

void MainWindow::saveUiState() const
{
    const QString group = objectName();
    if (size() != m_sizeOfRun) {
        UiState::saveGeometry(group, saveGeometry());
    }
    UiState::saveValue(group, ArrangementKey, m_workplace->arrangement());
    m_lists->save(group);
    UiState::saveValue(group, TrackFormatKey, m_themes->formatToStore());
    UiState::saveValue(group, WeatherLevelsKey, levelsOff(*m_mapDisplay->weatherMap()));
    if (!m_config.onTrial()) {
        m_home->save(group);
    }
}

void MainWindow::arrangeDocks()
{
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    QDockWidget *alerts = m_lists->alertDock();
    splitDockWidget(m_lists->trackDock(), alerts, Qt::Vertical);
    for (auto *dock : {m_messagesDock, findChild<QDockWidget *>("healthDock")}) {
        tabifyDockWidget(alerts, dock);
    }
    alerts->raise();
    const int listWidth = m_lists->usefulWidth(static_cast<int>(width() * WidestLists));
    resizeDocks({m_lists->trackDock()}, {listWidth}, Qt::Horizontal);
    resizeDocks({m_lists->trackDock(), alerts}, {2, 1}, Qt::Vertical);
    QTimer::singleShot(0, m_lists.get(), &ListPanes::widenToWholeColumns); // when the panes have their sizes
}

// The arrangement is on disk before it goes out of sight: a crash in full screen must not cost it.
void MainWindow::connectWorkplace()
{
    auto *indicator = new AlertIndicator(m_geoWidget);
    const auto show = [this, indicator] {
        const auto picture = m_pump->newest();
        const int asking = static_cast<int>(m_trackDisplay->alertBoard().askingCount());
        indicator->showAlerts(picture ? picture->alertStatus : std::array<bool, 3>(), asking);
    };
    connect(m_pump.get(), &SnapshotPump::snapshotTaken, indicator, show);
    connect(m_trackDisplay, &GeoTrackDisplay::acknowledged, indicator, show);
    connect(m_workplace, &Workplace::statusShown, indicator,
        [this, indicator](bool shown) { indicator->setVisible(m_workplace->active() && !shown); });
    QAction *edges = (*m_actions)[ActionId::ShowEdges];
    connect(edges, &QAction::triggered, m_workplace, &Workplace::toggleEdges);
    edges->setEnabled(false);
    connect(m_workplace, &Workplace::changed, this, [this, edges](bool active) {
        edges->setEnabled(active);
        if (active && !m_config.lock().locked()) {
            UiState::saveValue(objectName(), ArrangementKey, m_workplace->arrangement());
        }
    });
}

void MainWindow::setShutdownWaits(int confirmMs, int threadMs)
{
    m_shutdownWaits = {confirmMs, threadMs};
}

void MainWindow::exitApplication()
{
    if (m_session->state() != InputSession::State::Closed) {
        showLog(LogLevel::Info, tr("UDP input is working now, stop it first!"));
        return;
    }
    close();
}

void MainWindow::requestExit()
{
    if (m_shutdown == Shutdown::NotBegun) {
        beginShutdown();
    }
}

bool MainWindow::confirm(const QString &title, const QString &text)
{
    return QMessageBox::question(this, title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        == QMessageBox::Yes;
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_shutdown == Shutdown::Complete) {
        event->accept();
        return;
    }
    event->ignore();
    if (m_shutdown == Shutdown::Begun || (m_session->state() != InputSession::State::Closed && !m_questions.exit())) {
        return;
    }
    closeMapsAndShutDown(Afterwards::Nothing);
}

// A recording and a demonstration are of the run that ends.
void MainWindow::restart()
{
    const bool running = m_session->state() != InputSession::State::Closed || m_session->waiting();
    const bool goesOn = running && !m_session->liveInputWaits() && !m_config.onTrial();
    closeMapsAndShutDown(goesOn ? Afterwards::StartWithInput : Afterwards::Start);
}

// Not when the operator wants to look after his unsaved changes. While he was asked, or a map was written, the program
// may have been told to end.
void MainWindow::closeMapsAndShutDown(Afterwards afterwards)
{
    if (m_mapWindows->close([this, afterwards] { closeMapsAndShutDown(afterwards); })
        && m_shutdown == Shutdown::NotBegun) {
        m_afterwards = afterwards;
        beginShutdown();
    }
}

void MainWindow::beginShutdown()
{
    Q_EMIT shutdownBegun();
    saveUiState();
    m_views->closeAll();
    m_config.flush();
    m_shutdown = Shutdown::Begun;
    m_replay->opener()->cancel();
    m_pump->stop();
    if (!m_session->shutDown()) {
        QTimer::singleShot(0, this, &MainWindow::continueShutdown);
    }
    QTimer::singleShot(m_shutdownWaits.confirmMs, this, &MainWindow::forceShutdown);
}

void MainWindow::forceShutdown()
{
    if (m_shutdown != Shutdown::Begun) {
        return;
    }
    showLog(LogLevel::Warning, tr("Data engine did not confirm the input close within 10 s, forcing shutdown."));
    continueShutdown();
}

void MainWindow::continueShutdown()
{
    if (m_shutdown != Shutdown::Begun) {
        return;
    }
    disconnect(m_host.engine(), nullptr, this, nullptr);
    if (!m_host.stop(m_shutdownWaits.threadMs)) {
        showLog(LogLevel::Warning, tr("Data processing thread did not stop within 5 s, abandoning it."));
    }
    m_shutdown = Shutdown::Complete;
    close();
    Q_EMIT shutdownComplete();
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

void MainWindow::loadSensorDatabase()
{
    const QString file = AppPaths::resolvePath(m_config.live().sensorDatabase);
    if (!file.isEmpty() && !m_sensors->loadFromJsonFile(QFileInfo(file))) {
        showLog(LogLevel::Warning, tr("Cannot read the sensor file %1").arg(file));
    }
}

void MainWindow::loadAircraftDatabase()
{
    const QFileInfo file(AppPaths::exeDir() + "/../share/vyxdisplay/airdb.dat");
    korvane::airdb::LibAirDB database;
    if (!database.loadFromDataFile(file)) {
        showLog(LogLevel::Warning, tr("Cannot load the aircraft database: %1").arg(database.lastError()));
    }
    m_lists->setAddresses(database.getICAOAddrDict());
}
