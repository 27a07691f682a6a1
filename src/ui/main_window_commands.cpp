// What can be asked of the window, handed on to the part that does it, and what the window shows of the session.

#include "app/app_paths.h"
#include "assessment_windows/sensor_check.h"
#include "first_start/first_start.h"
#include "health/cures.h"
#include "health/health_dock.h"
#include "health/input_health.h"
#include "inspection/inspection.h"
#include "lists/list_panes.h"
#include "plan_view/geo_widget.h"
#include "second_view/second_views.h"
#include "tile_windows/tile_maps.h"
#include "ui/actions.h"
#include "ui/empty_scope.h"
#include "ui/home_view.h"
#include "ui/input_session.h"
#include "ui/layout_menu.h"
#include "ui/main_window.h"
#include "ui/map_windows.h"
#include "ui/plot_switch.h"
#include "ui/replay_controls.h"
#include "ui/snapshot_pump.h"
#include "ui/status_line.h"
#include "ui/status_read_outs.h"
#include "widgets/scope_notice.h"

#include <QAction>
#include <QDateTime>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QScreen>

namespace {

constexpr int RefusalShownMs = 10000; // over a picture that goes on

// The one local file that is being dragged; else empty. Whether it is a recording, its contents tell.
QString draggedFile(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    const QString file = urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
    return QFileInfo(file).isFile() ? file : QString();
}

} // namespace

// The input.

bool MainWindow::inputOpen() const
{
    return m_session->state() == InputSession::State::Open;
}

void MainWindow::openInput()
{
    // A recording brings the sensor that nobody has configured.
    const bool tellsItsSensor = m_session->replaying() && !m_session->sensor();
    if (tellsItsSensor && m_session->state() == InputSession::State::Closed) {
        playRecording(config().inputFileName.filePath());
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
    m_sensorCheck->setInput(inputOpen(), m_session->description(), config());
    m_firstStart->setInput(m_session->state() == InputSession::State::Closed, m_session->replaying());
    updateInputActions();
    tellHealthOfInput();
    updateNotices();
}

void MainWindow::updateInputActions()
{
    const bool closed = m_session->state() == InputSession::State::Closed;
    (*m_actions)[ActionId::Start]->setEnabled(closed);
    QAction *pause = (*m_actions)[ActionId::Pause];
    pause->setEnabled(inputOpen());
    pause->setChecked(m_session->paused());
    (*m_actions)[ActionId::Record]->setEnabled(inputOpen() && !m_session->replaying());
}

void MainWindow::connectHealth()
{
    InputHealth *health = m_health.get();
    connect(health, &InputHealth::logMessage, this, &MainWindow::showLog);
    connect(health, &InputHealth::changed, this, &MainWindow::updateNotices);
    connect(m_session.get(), &InputSession::openingBegun, health, &InputHealth::beginInput);
    connect(m_pump.get(), &SnapshotPump::snapshotTaken, health, &InputHealth::look);
    connect(m_pump.get(), &SnapshotPump::statisticsTaken, health, &InputHealth::take);
    const QAction *plots = (*m_actions)[ActionId::TogglePlots];
    connect(plots, &QAction::toggled, health, &InputHealth::setPlotsShown);
    health->setPlotsShown(plots->isChecked());
    const auto *dock = new HealthDock(health, this, m_messagesDock);
    m_actions->menu(MenuId::View)->addAction(dock->toggleViewAction());
    Actions &actions = *m_actions;
    auto *cures = new Cures({actions[ActionId::TogglePlots], actions[ActionId::ToggleTrackLabel],
                                actions[ActionId::Pause], actions[ActionId::Start], actions[ActionId::Settings],
                                [this](const std::function<void(Config &)> &change) { changeSensor(change); }},
        this);
    connect(dock, &HealthDock::cureRequested, cures, &Cures::cureSource);
    connect(m_inspection.get(), &Inspection::cureChosen, cures, &Cures::cureAbsence);
}

void MainWindow::tellHealthOfInput()
{
    const bool expecting = inputOpen() && !m_session->paused();
    m_health->setInput(m_session->description(), expecting, m_session->unicastPorts());
}

// Nothing is said twice: silence goes before what else there would be to say of an open input.
void MainWindow::showHealth()
{
    const auto &warning = m_health->notice();
    if (warning) {
        m_scopeNotice->showWarning(warning->urgency, warning->headline, warning->text);
        m_views->showWarning(warning->urgency, warning->headline, warning->text);
        m_lists->setWarning(warning->urgency, warning->headline);
    } else {
        m_scopeNotice->showText(scopeNotice());
        m_views->showText(scopeNotice());
        m_lists->setWarning(Urgency::Note, {});
    }
    m_readOuts->showNetsUnheard(m_health->netsUnheard());
}

void MainWindow::changeSensor(const std::function<void(Config &)> &change)
{
    m_config.lock().whenUnlocked([this, change] {
        editConfig(change);
        applySensor();
        if (inputOpen()) {
            const auto snapshot = m_pump->newest();
            m_session->restart(m_session->replaying() && snapshot ? snapshot->time : QDateTime());
        }
    });
}

QString MainWindow::scopeNotice() const
{
    const QString input = m_session->description();
    for (const QString &notice :
        {m_session->notice(), m_plotSwitch->notice(input), emptyNotice(input), m_tileMaps->notice()}) {
        if (!notice.isEmpty()) {
            return notice;
        }
    }
    return {};
}

// By the truth about its sources, where they tell it.
QString MainWindow::emptyNotice(const QString &input) const
{
    const QString why = m_emptyScope->nothingIsSeen() ? m_health->explanation() : QString();
    return why.isEmpty() ? m_emptyScope->notice(input)
                         : tr("Nothing of what %1 brings is seen. %2\nMore: View, Input Health.").arg(input, why);
}

void MainWindow::updateNotices()
{
    const QString input = m_session->description();
    showHealth();
    const QString idle = tr("No input is running.");
    const QString why = m_health->explanation();
    const QString waiting = !why.isEmpty() ? tr("No tracks. %1").arg(why)
        : m_session->replaying()           ? tr("No tracks yet in %1.").arg(input)
                                           : tr("No tracks. Listening on %1.").arg(input);
    const QString plots = tr("No tracks. The target reports of %1 are shown as plots.").arg(input);
    const QString open = m_plotSwitch->standsIn() ? plots : waiting;
    m_lists->setEmptyTexts(inputOpen() ? open : idle, inputOpen() ? tr("No alerts.") : idle);
    const QString profile = AppPaths::profile();
    const QString program = QGuiApplication::applicationDisplayName();
    const QString title = profile.isEmpty() ? program : tr("%1 - %2").arg(profile, program);
    setWindowTitle(m_session->replaying() ? tr("%1 - %2").arg(config().inputFileName.fileName(), title) : title);
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

void MainWindow::refuseRecording(const QString &reason)
{
    m_scopeNotice->showText(reason);
    if (m_session->state() != InputSession::State::Closed) {
        QTimer::singleShot(RefusalShownMs, this, &MainWindow::updateNotices);
    }
    Q_EMIT inputFailed(reason);
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

void MainWindow::alertListSelectionChanged()
{
    m_lists->alertListSelectionChanged();
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
    m_statusLine->showProgress(tr("Loading map %1: %2").arg(file.fileName(), progress));
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

void MainWindow::connectTileMaps()
{
    connect(m_tileMaps.get(), &TileMaps::logMessage, this, &MainWindow::showLog);
    connect((*m_actions)[ActionId::ToggleTileMap], &QAction::triggered, m_tileMaps.get(), &TileMaps::show);
    connect(m_tileMaps.get(), &TileMaps::changed, this, [this] {
        (*m_actions)[ActionId::ToggleTileMap]->setChecked(m_tileMaps->shown());
        showHealth();
    });
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
