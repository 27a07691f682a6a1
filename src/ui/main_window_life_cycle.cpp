// From the first frame to the last: window state, and the end.

#include "app/ui_state.h"
#include "display/geo_map_display.h"
#include "lists/list_panes.h"
#include "plan_view/geo_widget.h"
#include "plan_view/plan_display.h"
#include "radar_painting/geo_weather_map.h"
#include "second_view/second_views.h"
#include "ui/actions.h"
#include "ui/home_view.h"
#include "ui/input_session.h"
#include "ui/layout_menu.h"
#include "ui/main_window.h"
#include "ui/map_windows.h"
#include "ui/messages.h"
#include "ui/theme_menu.h"
#include "workplace/workplace.h"

#include <QAction>
#include <QCloseEvent>
#include <QDockWidget>
#include <QGuiApplication>
#include <QLayout>
#include <QMessageBox>
#include <QTimer>
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
    m_plan->widget()->setFocus();
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
        m_plan->map()->weatherMap()->setLevelVisible(level - '0', false);
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
    UiState::saveValue(group, WeatherLevelsKey, levelsOff(*m_plan->map()->weatherMap()));
    if (!m_config.onTrial()) {
        m_home->save(group);
    }
}

// On disk before it goes out of sight: a crash in full screen must not cost it.
void MainWindow::storeArrangement()
{
    if (m_workplace->active() && !m_config.lock().locked()) {
        UiState::saveValue(objectName(), ArrangementKey, m_workplace->arrangement());
    }
}

void MainWindow::arrangeDocks()
{
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    QDockWidget *alerts = m_lists->alertDock();
    splitDockWidget(m_lists->trackDock(), alerts, Qt::Vertical);
    for (auto *dock : {m_messages->dock(), findChild<QDockWidget *>("healthDock")}) {
        tabifyDockWidget(alerts, dock);
    }
    alerts->raise();
    const int listWidth = m_lists->usefulWidth(static_cast<int>(width() * WidestLists));
    resizeDocks({m_lists->trackDock()}, {listWidth}, Qt::Horizontal);
    resizeDocks({m_lists->trackDock(), alerts}, {2, 1}, Qt::Vertical);
    QTimer::singleShot(0, m_lists.get(), &ListPanes::widenToWholeColumns); // when the panes have their sizes
}

bool MainWindow::confirm(const QString &title, const QString &text)
{
    return QMessageBox::question(this, title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        == QMessageBox::Yes;
}

void MainWindow::exitApplication()
{
    if (!m_session->isClosed()) {
        showLog(LogLevel::Info, tr("UDP input is working now, stop it first!"));
        return;
    }
    close();
}

void MainWindow::requestExit()
{
    m_shutdown->begin(Shutdown::Afterwards::Nothing);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(m_shutdown->complete());
    if (!m_shutdown->begun() && (m_session->isClosed() || m_questions.exit())) {
        closeMapsAndShutDown(Shutdown::Afterwards::Nothing);
    }
}

// A recording and a demonstration are of the run that ends.
void MainWindow::restart()
{
    const bool running = !m_session->isClosed() || m_session->waiting();
    const bool goesOn = running && !m_session->liveInputWaits() && !m_config.onTrial();
    closeMapsAndShutDown(goesOn ? Shutdown::Afterwards::StartWithInput : Shutdown::Afterwards::Start);
}

// Not when the operator wants to look after his unsaved changes; and when a map is being written, after that.
void MainWindow::closeMapsAndShutDown(Shutdown::Afterwards afterwards)
{
    if (m_mapWindows->close([this, afterwards] { closeMapsAndShutDown(afterwards); })) {
        m_shutdown->begin(afterwards);
    }
}

void MainWindow::setShutdownWaits(int confirmMs, int threadMs)
{
    m_shutdown->setWaits(confirmMs, threadMs);
}

void MainWindow::continueShutdown()
{
    m_shutdown->proceed();
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
