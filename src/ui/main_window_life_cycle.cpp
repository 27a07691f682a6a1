// From the first frame to the last: window state, and the shutdown in step with the engine.

#include "app/ui_state.h"
#include "display/geo_track_display.h"
#include "display/track_display_format.h"
#include "engine/data_engine.h"
#include "plan_view/geo_widget.h"
#include "ui/list_view.h"
#include "ui/main_window.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLayout>
#include <QMessageBox>
#include <QScreen>

namespace {

// Raised when docks or tool bars change so that an older arrangement no longer fits.
constexpr int arrangementVersion = 1;
constexpr auto arrangementKey = "windowState";
constexpr auto trackListKey = "trackListHeader";
constexpr auto alertListKey = "alertListHeader";
constexpr auto trackFormatKey = "trackDisplayFormat";

} // namespace

void MainWindow::loadUi()
{
    loadUiState();
    layout()->activate(); // the view is fitted to the scope's final size
    if (!restoreView()) {
        showInitialView();
    }
    loadLayouts();
    loadMaps();
    m_geoWidget->setFocus();
}

void MainWindow::loadUiState()
{
    const QString group = objectName();
    const bool known = restoreGeometry(UiState::geometry(group));
    if (!known) {
        resizeMainWindow({1600, 900});
    }
    if (!restoreState(UiState::value(group, arrangementKey), arrangementVersion)) {
        arrangeDocks();
    }
    m_trackView->horizontalHeader()->restoreState(UiState::value(group, trackListKey));
    m_alertView->horizontalHeader()->restoreState(UiState::value(group, alertListKey));
    TrackDisplayFormat format;
    format.readFrom(*m_trackDisplay);
    if (format.fromBytes(UiState::value(group, trackFormatKey))) {
        format.applyTo(*m_trackDisplay);
    }
}

void MainWindow::saveUiState() const
{
    const QString group = objectName();
    UiState::saveGeometry(group, saveGeometry());
    UiState::saveValue(group, arrangementKey, saveState(arrangementVersion));
    UiState::saveValue(group, trackListKey, m_trackView->horizontalHeader()->saveState());
    UiState::saveValue(group, alertListKey, m_alertView->horizontalHeader()->saveState());
    TrackDisplayFormat format;
    format.readFrom(*m_trackDisplay);
    UiState::saveValue(group, trackFormatKey, format.toBytes());
    saveView();
}

void MainWindow::arrangeDocks()
{
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    splitDockWidget(m_trackDock, m_alertDock, Qt::Vertical);
    resizeDocks({m_trackDock}, {std::min(520, width() / 3)}, Qt::Horizontal);
    resizeDocks({m_trackDock, m_alertDock}, {3, 1}, Qt::Vertical);
    resizeDocks({m_messagesDock}, {height() / 9}, Qt::Vertical);
}

void MainWindow::setShutdownWaits(int confirmMs, int threadMs)
{
    m_confirmWaitMs = confirmMs;
    m_threadWaitMs = threadMs;
}

void MainWindow::exitApplication()
{
    if (m_inputState != InputState::Closed) {
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

bool MainWindow::confirmExit()
{
    const QString text = tr("%1 is running, do you want to exit?").arg(QGuiApplication::applicationDisplayName());
    return QMessageBox::question(this, tr("Exit"), text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        == QMessageBox::Yes;
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_shutdown == Shutdown::Complete) {
        event->accept();
        return;
    }
    event->ignore();
    if (m_shutdown == Shutdown::Begun || (m_inputState != InputState::Closed && !m_exitQuestion())) {
        return;
    }
    if (!closeMapWindows()) {
        return; // the operator wants to look after his unsaved changes
    }
    // While the question stood open the program may have been told to end.
    if (m_shutdown == Shutdown::NotBegun) {
        beginShutdown();
    }
}

void MainWindow::beginShutdown()
{
    Q_EMIT shutdownBegun();
    saveUiState();
    m_shutdown = Shutdown::Begun;
    m_pullTimer.stop();
    if (m_inputState == InputState::Closed) {
        QTimer::singleShot(0, this, &MainWindow::continueShutdown);
    } else {
        setInputState(InputState::Closed);
        m_host.closeInput();
    }
    QTimer::singleShot(m_confirmWaitMs, this, &MainWindow::forceShutdown);
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
    if (!m_host.stop(m_threadWaitMs)) {
        showLog(LogLevel::Warning, tr("Data processing thread did not stop within 5 s, abandoning it."));
    }
    m_shutdown = Shutdown::Complete;
    close();
    Q_EMIT shutdownComplete();
}
