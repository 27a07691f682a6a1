// Recordings: playing one as the input, and making one of the input.

#include "app/app_paths.h"
#include "astfile/rec_file.h"
#include "astfile/recording_index.h"
#include "engine/data_engine.h"
#include "engine/recording_scan.h"
#include "plan_view/geo_widget.h"
#include "ui/actions.h"
#include "ui/main_window.h"
#include "ui/replay_window.h"
#include "ui/stats_window.h"

#include <QAction>
#include <QActionGroup>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QMenu>
#include <QMimeData>
#include <QToolBar>
#include <QToolButton>

using korvane::astfile::RecFile;
using korvane::astfile::RecordingIndex;

namespace {

const QList<RecFile::Format> playableFormats = {
    RecFile::Pcap, RecFile::PcapNg, RecFile::RawAsterix, RecFile::FinalFormat, RecFile::Gps, RecFile::ModeS};

// The one local file that is being dragged, if it is a recording; else empty.
QString draggedRecording(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    const QString file = urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
    return RecFile::formatFromFileName(file) != RecFile::Unknown ? file : QString();
}

} // namespace

void MainWindow::connectReplay()
{
    const auto on = [this](ActionId id, auto slot) { connect((*m_actions)[id], &QAction::triggered, this, slot); };
    on(ActionId::Replay, &MainWindow::openRecordingFile);
    on(ActionId::PlaybackWindow, &MainWindow::showReplayWindow);
    on(ActionId::Record, &MainWindow::recordInput);
    on(ActionId::Statistics, &MainWindow::showStatsWindow);
    initReplaySpeedMenu();
    setAcceptDrops(true);

    m_recordingScan = new RecordingScan(this);
    m_replayWindow = new ReplayWindow(this);
    m_statsWindow = new StatsWindow(this);
    connect(m_recordingScan, &RecordingScan::progressed, m_replayWindow, &ReplayWindow::setScanProgress);
    connect(m_recordingScan, &RecordingScan::finished, this, &MainWindow::showIndex);
    connect(m_replayWindow, &ReplayWindow::openRequested, this, &MainWindow::openRecordingFile);
    connect(m_replayWindow, &ReplayWindow::scanCancelRequested, this, [this] {
        m_recordingScan->cancel();
        m_replayWindow->setScanCancelled();
    });
    connect(m_replayWindow, &ReplayWindow::startRequested, this, &MainWindow::startReplay);
    connect(m_replayWindow, &ReplayWindow::jumpRequested, this, &MainWindow::startReplay);
    connect(m_replayWindow, &ReplayWindow::pauseRequested, this, &MainWindow::pauseInput);
    connect(m_replayWindow, &ReplayWindow::stopRequested, this, &MainWindow::closeInput);
    connect(m_replayWindow, &ReplayWindow::speedChosen, this, &MainWindow::setReplaySpeed);
    connect(m_replayWindow, &ReplayWindow::autoRewindChanged, this, [this](bool again) {
        m_config.edit([again](Config &config) { config.inputFileAutoRewind = again; });
        m_host.setReplayAutoRewind(again);
    });
    connect(m_replayWindow, &ReplayWindow::liveInputRequested, this, &MainWindow::returnToLiveInput);

    const DataEngine *engine = m_host.engine();
    connect(engine, &DataEngine::replayProgress, this, &MainWindow::onEngineReplayProgress);
    connect(engine, &DataEngine::recordingStarted, this, [this] { (*m_actions)[ActionId::Record]->setChecked(true); });
    connect(engine, &DataEngine::recordingStopped, this, [this] { (*m_actions)[ActionId::Record]->setChecked(false); });
    connect(engine, &DataEngine::pipelineStats, m_statsWindow, &StatsWindow::setPipelineStats);
    connect(m_geoWidget, &GeoWidget::paintStats, m_statsWindow, &StatsWindow::setPaintStats);
    connect(this, &MainWindow::dropStats, m_statsWindow, &StatsWindow::setDropStats);
}

void MainWindow::initReplaySpeedMenu()
{
    auto *menu = new QMenu(this);
    auto *group = new QActionGroup(menu);
    for (const ReplaySpeed::Speed speed : ReplaySpeed::values()) {
        QAction *action = menu->addAction(ReplaySpeed::name(speed));
        action->setCheckable(true);
        action->setData(speed);
        group->addAction(action);
    }
    connect(group, &QActionGroup::triggered, this, &MainWindow::changeReplaySpeed);
    QAction *holder = (*m_actions)[ActionId::ReplaySpeed];
    holder->setMenu(menu);
    if (auto *button = qobject_cast<QToolButton *>(m_actions->toolBar(ToolBarId::General)->widgetForAction(holder))) {
        button->setPopupMode(QToolButton::InstantPopup);
    }
    updateReplaySpeedMenu();
}

void MainWindow::updateReplaySpeedMenu()
{
    QMenu *menu = (*m_actions)[ActionId::ReplaySpeed]->menu();
    if (!menu) {
        return;
    }
    for (QAction *action : menu->actions()) {
        action->setChecked(action->data().toInt() == m_replaySpeed);
    }
}

void MainWindow::changeReplaySpeed(QAction *action)
{
    setReplaySpeed(static_cast<ReplaySpeed::Speed>(action->data().toInt()));
}

void MainWindow::setReplaySpeed(ReplaySpeed::Speed speed)
{
    m_replaySpeed = speed;
    m_host.setReplaySpeed(speed);
    m_replayWindow->setSpeed(speed);
    updateReplaySpeedMenu();
}

void MainWindow::openRecordingFile()
{
    const QString chosen = QFileDialog::getOpenFileName(
        this, tr("Open Recording"), m_config.live().inputFileName.path(), RecFile::formatNameFilter(playableFormats));
    if (!chosen.isEmpty()) {
        playRecording(chosen);
    }
}

void MainWindow::playRecording(const QString &fileName)
{
    const QFileInfo file(fileName);
    if (RecFile::formatFromFileName(file.fileName()) == RecFile::Unknown) {
        showLog(LogLevel::Critical, tr("Recording file format is not supported."));
        return;
    }
    if (!file.isReadable()) {
        showLog(LogLevel::Warning, tr("Failed to open recording file: %1").arg(fileName));
        return;
    }
    applyReplayConfig(file);
    startReplay({});
}

void MainWindow::applyReplayConfig(const QFileInfo &file)
{
    if (!replaying()) {
        m_liveInput = m_config.live().inputComm;
    }
    m_config.overrideWith([&file](Config &config) {
        config.inputComm = Config::InputComm::File;
        config.inputFileName = file;
    });
    updateInputFileMeta(file);
    updateNotices();
}

void MainWindow::updateInputFileMeta(const QFileInfo &file)
{
    if (file == m_scannedFile) {
        return;
    }
    m_scannedFile = file;
    m_replayWindow->setFile(file);
    m_replayWindow->setScanProgress(0);
    m_recordingScan->start(file.filePath());
}

void MainWindow::showIndex(const RecordingIndex &index, const QString &error)
{
    m_host.setRecordingIndex(index);
    m_replayWindow->setIndex(index, error);
}

// With an input open: in its place, as soon as it has closed.
void MainWindow::startReplay(const QDateTime &start)
{
    m_replayStart = start;
    if (m_inputState == InputState::Closed) {
        openInput();
    } else {
        m_reopenInput = true;
        m_host.closeInput();
    }
}

void MainWindow::returnToLiveInput()
{
    if (!m_liveInput) {
        return;
    }
    m_config.overrideWith([this](Config &config) { config.inputComm = *m_liveInput; });
    m_liveInput.reset();
    startReplay({});
}

void MainWindow::onEngineReplayProgress(const QDateTime &time)
{
    m_replayWindow->setPosition(time);
}

void MainWindow::updateReplayWindow()
{
    if (!m_replayWindow) {
        return;
    }
    using State = ReplayWindow::State;
    const bool running = replaying() && m_inputState != InputState::Closed;
    m_replayWindow->setState(!running ? State::Stopped : m_paused ? State::Paused : State::Playing);
    m_replayWindow->setLiveInputAvailable(replaying() && m_liveInput.has_value());
    m_replayWindow->setAutoRewind(m_config.live().inputFileAutoRewind);
    m_replayWindow->setSpeed(m_replaySpeed);
}

void MainWindow::showReplayWindow()
{
    if (replaying()) {
        updateInputFileMeta(m_config.live().inputFileName);
    }
    updateReplayWindow();
    m_replayWindow->show();
    m_replayWindow->raise();
    m_replayWindow->activateWindow();
}

void MainWindow::showStatsWindow()
{
    publishDropStats(); // otherwise only once a minute
    m_statsWindow->show();
    m_statsWindow->raise();
    m_statsWindow->activateWindow();
}

void MainWindow::recordInput(bool on)
{
    QAction *action = (*m_actions)[ActionId::Record];
    action->setChecked(!on); // until the engine answers
    if (!on) {
        m_host.stopRecording();
        return;
    }
    const QString name = QDateTime::currentDateTimeUtc().toString("'recording-'yyyyMMdd-hhmmss'.pcap'");
    const QString file = QFileDialog::getSaveFileName(
        this, tr("Record Input"), QDir::home().filePath(name), RecFile::formatNameFilter({RecFile::Pcap}));
    if (!file.isEmpty()) {
        m_host.startRecording(QFileInfo(file).suffix().isEmpty() ? file + ".pcap" : file);
    }
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!draggedRecording(event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent *event)
{
    const QString file = draggedRecording(event->mimeData());
    if (!file.isEmpty()) {
        event->acceptProposedAction();
        playRecording(file);
    }
}
