// What can be asked of the window, handed on to the part that does it, and what the window shows of the session.

#include "app/app_log.h"
#include "app/app_paths.h"
#include "first_start/first_start.h"
#include "lists/list_panes.h"
#include "plan_view/geo_widget.h"
#include "plan_view/plan_display.h"
#include "second_view/second_views.h"
#include "tile_windows/tile_maps.h"
#include "ui/actions.h"
#include "ui/input_notices.h"
#include "ui/input_session.h"
#include "ui/layout_menu.h"
#include "ui/main_window.h"
#include "ui/map_windows.h"
#include "ui/messages.h"
#include "ui/replay_controls.h"
#include "ui/snapshot_pump.h"
#include "ui/status_read_outs.h"
#include "ui/view_windows.h"

#include <QAction>
#include <QDateTime>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QScreen>
#include <QUrl>

namespace {

// The one local file that is being dragged; else empty. Whether it is a recording, its contents tell.
QString draggedFile(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    const QString file = urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
    return QFileInfo(file).isFile() ? file : QString();
}

} // namespace

// The log.

void MainWindow::showLog(LogLevel level, const QString &text)
{
    m_messages->show(level, text);
}

void MainWindow::setLogLevel(LogLevel minimum)
{
    m_messages->setMinimumLevel(minimum);
}

bool MainWindow::isDebugMode()
{
    return debugModeMarked();
}

// The input.

const InputHealth &MainWindow::health() const
{
    return m_notices->health();
}

bool MainWindow::inputOpen() const
{
    return m_session->isOpen();
}

void MainWindow::openInput()
{
    // A recording brings the sensor that nobody has configured.
    const bool tellsItsSensor = m_session->replaying() && !m_session->sensor();
    if (tellsItsSensor && m_session->isClosed()) {
        playRecording(m_session->recording().filePath());
    } else {
        m_session->open();
    }
}

void MainWindow::pauseInput(bool paused)
{
    m_session->pause(paused);
}

void MainWindow::closeInput()
{
    m_session->close();
}

void MainWindow::stopInput()
{
    const bool live = inputOpen() && !m_session->replaying() && !m_config.onTrial();
    const quint64 request = m_session->requestId();
    // While the question stood open the input may have ended, and another may have taken its place.
    if (!live || (m_questions.stop() && request == m_session->requestId())) {
        closeInput();
    }
}

void MainWindow::onEngineInputOpened(unsigned long long requestId)
{
    m_session->onOpened(requestId);
}

void MainWindow::onEngineInputOpenFailed(unsigned long long requestId)
{
    m_session->onOpenFailed(requestId);
}

void MainWindow::onEngineInputClosed(unsigned long long requestId)
{
    m_session->onClosed(requestId);
}

void MainWindow::showSession()
{
    m_pump->setInputLive(!m_session->replaying());
    m_firstStart->setInput(m_session->isClosed(), m_session->replaying());
    (*m_actions)[ActionId::Start]->setEnabled(m_session->isClosed());
    QAction *pause = (*m_actions)[ActionId::Pause];
    pause->setEnabled(inputOpen());
    pause->setChecked(m_session->paused());
    (*m_actions)[ActionId::Record]->setEnabled(inputOpen() && !m_session->replaying());
    showTitle();
}

void MainWindow::showTitle()
{
    const QString profile = AppPaths::profile();
    const QString program = QGuiApplication::applicationDisplayName();
    const QString title = profile.isEmpty() ? program : tr("%1 - %2").arg(profile, program);
    const QString recording = m_session->recording().fileName();
    setWindowTitle(recording.isEmpty() ? title : tr("%1 - %2").arg(recording, title));
}

// Recordings.

void MainWindow::openRecordingFile()
{
    m_replay->openRecordingFile();
}

void MainWindow::playRecording(const QString &fileName)
{
    m_replay->opener()->open(fileName);
}

RecordingOpener *MainWindow::recordingOpener() const
{
    return m_replay->opener();
}

void MainWindow::setReplaySpeed(ReplaySpeed::Speed speed)
{
    m_session->setReplaySpeed(speed);
}

void MainWindow::changeReplaySpeed(QAction *action)
{
    m_replay->changeSpeed(action);
}

void MainWindow::initReplaySpeedMenu()
{
    m_replay->initSpeedMenu();
}

void MainWindow::updateReplaySpeedMenu()
{
    m_replay->updateSpeedMenu();
}

void MainWindow::applyReplayConfig(const QFileInfo &file)
{
    m_session->chooseRecording(file);
}

void MainWindow::updateInputFileMeta(const QFileInfo &file)
{
    m_replay->updateFileMeta(file);
}

void MainWindow::onEngineReplayProgress(const QDateTime &time)
{
    m_replay->showPosition(time);
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!draggedFile(event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent *event)
{
    const QString file = draggedFile(event->mimeData());
    if (!file.isEmpty()) {
        event->acceptProposedAction();
        playRecording(file);
    }
}

// Pictures and lists.

QSharedPointer<const DisplaySnapshot> MainWindow::newestSnapshot() const
{
    return m_pump->newest();
}

void MainWindow::pullSlots()
{
    m_pump->pull();
}

void MainWindow::procWeatherPicture(const WeatherProcessor::Picture &picture)
{
    m_pump->showWeather(picture);
}

void MainWindow::procVideoRadial(const VideoProcessor::Radial &radial)
{
    m_pump->showRadial(radial);
}

void MainWindow::updateTrackList()
{
    m_lists->updateTrackList();
}

void MainWindow::updateAlertList()
{
    m_lists->updateAlertList();
}

void MainWindow::clearTrackList()
{
    m_lists->clearTrackList();
}

void MainWindow::clearAlertList()
{
    m_lists->clearAlertList();
}

void MainWindow::trackListSelectionChanged()
{
    m_lists->trackListSelectionChanged();
}

void MainWindow::selectTrackInList(unsigned long long id)
{
    m_lists->selectTrackInList(id);
}

void MainWindow::updateAlertStatus(Alert::Type type, bool on)
{
    m_readOuts->showAlertStatus(type, on);
}

void MainWindow::updateClock()
{
    const auto picture = m_pump->newest();
    if (inputOpen() && m_session->replaying() && picture && picture->recordedTime && picture->time.isValid()) {
        m_readOuts->showRecordedTime(picture->time);
    } else {
        m_readOuts->showTime(QDateTime::currentDateTimeUtc());
    }
}

// The view.

GeoWidget *MainWindow::geoWidget() const
{
    return m_plan->widget();
}

void MainWindow::toggleFullScreen()
{
    setFullScreen(!isFullScreen());
}

void MainWindow::setFullScreen(bool on)
{
    // The other states stay, so that a maximized window comes back maximized.
    setWindowState(on ? windowState() | Qt::WindowFullScreen : windowState() & ~Qt::WindowFullScreen);
}

void MainWindow::resizeMainWindow(const QSize &size)
{
    setWindowState(windowState() & ~(Qt::WindowFullScreen | Qt::WindowMaximized));
    // Without a screen there is nothing to fit into.
    const bool onScreen = QGuiApplication::platformName() != "offscreen";
    const QSize frame = frameGeometry().size() - geometry().size();
    resize(onScreen ? size.boundedTo(screen()->availableSize() - frame) : size);
}

void MainWindow::showCursorPosition(const QPointF &planePoint, const QPoint &)
{
    m_readOuts->showCursorPosition(planePoint);
}

void MainWindow::showCurrentZoom(double metresPerPixel)
{
    m_readOuts->showZoom(metresPerPixel);
}

void MainWindow::showCurrentRotation(double degrees)
{
    m_readOuts->showRotation(degrees);
}

void MainWindow::showMapLoadInfo(const QFileInfo &file, const QString &progress)
{
    m_messages->showProgress(tr("Loading map %1: %2").arg(file.fileName(), progress));
}

void MainWindow::loadLayout(QAction *action)
{
    m_layoutMenu->loadLayout(action);
}

void MainWindow::updateMapLayoutMenu()
{
    m_layoutMenu->updateMenu();
}

// Windows of the parts.

void MainWindow::showReplayWindow()
{
    m_replay->showWindow();
}

void MainWindow::showBingMapsDownloaderWindow()
{
    m_tileMaps->showDownloadWindow();
}

void MainWindow::barTileServices()
{
    m_tileMaps->barServices();
    m_views->barTileServices();
}

void MainWindow::showRotationWindow()
{
    m_viewWindows->showRotation();
}

void MainWindow::showSetCenterWindow()
{
    m_viewWindows->showCenter();
}

void MainWindow::showRangeRingWindow()
{
    m_viewWindows->showRangeRings();
}

void MainWindow::showWeatherIntensityWindow()
{
    m_viewWindows->showWeatherIntensity();
}

void MainWindow::showTrackLabelFormatWindow()
{
    m_viewWindows->showTrackLabelFormat();
}

void MainWindow::showMapWindow()
{
    m_mapWindows->showMaps();
}

void MainWindow::launchStaticMapEditor(const QString &path, MapFile::Format format)
{
    m_mapWindows->showEditor(path, format);
}

void MainWindow::showLayoutSaveWindow()
{
    m_layoutMenu->showSaveWindow();
}
