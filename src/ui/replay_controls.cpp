#include "ui/replay_controls.h"

#include "app/run_config.h"
#include "astfile/rec_file.h"
#include "engine/data_engine.h"
#include "engine/engine_host.h"
#include "ui/actions.h"
#include "ui/input_session.h"
#include "ui/replay_window.h"
#include "widgets/window_opening.h"

#include <QAction>
#include <QActionGroup>
#include <QDir>
#include <QFileDialog>
#include <QMenu>

using korvane::astfile::RecFile;
using korvane::astfile::RecordingIndex;

ReplayControls::ReplayControls(QWidget *window, Actions *actions, RunConfig *config, const SensorManager *sensors,
    EngineHost *host, InputSession *session)
    : m_window(window), m_actions(actions), m_config(config), m_host(host), m_session(session),
      m_replayWindow(new ReplayWindow(window)), m_opener(window, config, sensors, session, this)
{
    initSpeedMenu();
    connectActions();
    connectWindow();
    connectEngine();
    connect(&m_scan, &RecordingScan::progressed, m_replayWindow, &ReplayWindow::setScanProgress);
    connect(&m_scan, &RecordingScan::finished, this, &ReplayControls::showIndex);
    connect(session, &InputSession::recordingChosen, this, &ReplayControls::updateFileMeta);
    connect(session, &InputSession::changed, this, &ReplayControls::showSession);
    showSession();
}

void ReplayControls::connectActions()
{
    const auto on = [this](ActionId id, auto slot) { connect((*m_actions)[id], &QAction::triggered, this, slot); };
    on(ActionId::Replay, &ReplayControls::openRecordingFile);
    on(ActionId::PlaybackWindow, &ReplayControls::showWindow);
    on(ActionId::Record, &ReplayControls::recordInput);
}

void ReplayControls::connectWindow()
{
    connect(m_replayWindow, &ReplayWindow::openRequested, this, &ReplayControls::openRecordingFile);
    connect(m_replayWindow, &ReplayWindow::scanCancelRequested, this, &ReplayControls::cancelScan);
    connect(m_replayWindow, &ReplayWindow::startRequested, m_session, &InputSession::restart);
    connect(m_replayWindow, &ReplayWindow::jumpRequested, m_session, &InputSession::restart);
    connect(m_replayWindow, &ReplayWindow::pauseRequested, m_session, &InputSession::pause);
    connect(m_replayWindow, &ReplayWindow::stopRequested, m_session, &InputSession::close);
    connect(m_replayWindow, &ReplayWindow::speedChosen, m_session, &InputSession::setReplaySpeed);
    connect(m_replayWindow, &ReplayWindow::autoRewindChanged, m_session, &InputSession::setAutoRewind);
    connect(m_replayWindow, &ReplayWindow::liveInputRequested, m_session, &InputSession::returnToLiveInput);
}

void ReplayControls::connectEngine()
{
    QAction *record = (*m_actions)[ActionId::Record];
    connect(m_host->engine(), &DataEngine::recordingStarted, record, [record] { record->setChecked(true); });
    connect(m_host->engine(), &DataEngine::recordingStopped, record, [record] { record->setChecked(false); });
}

void ReplayControls::initSpeedMenu()
{
    auto *menu = new QMenu(m_window);
    auto *group = new QActionGroup(menu);
    for (const ReplaySpeed::Speed speed : ReplaySpeed::values()) {
        QAction *action = menu->addAction(ReplaySpeed::name(speed));
        action->setCheckable(true);
        action->setData(speed);
        group->addAction(action);
    }
    connect(group, &QActionGroup::triggered, this, &ReplayControls::changeSpeed);
    if (QMenu *before = m_actions->setMenu(ActionId::ReplaySpeed, menu)) {
        before->deleteLater();
    }
    updateSpeedMenu();
}

void ReplayControls::updateSpeedMenu()
{
    for (QAction *action : (*m_actions)[ActionId::ReplaySpeed]->menu()->actions()) {
        action->setChecked(action->data().toInt() == m_session->replaySpeed());
    }
    m_actions->showValue(ActionId::ReplaySpeed, ReplaySpeed::name(m_session->replaySpeed()));
}

void ReplayControls::changeSpeed(QAction *action)
{
    m_session->setReplaySpeed(static_cast<ReplaySpeed::Speed>(action->data().toInt()));
}

void ReplayControls::openRecordingFile()
{
    const QString chosen =
        QFileDialog::getOpenFileName(m_window, tr("Open Recording"), m_config->live().inputFileName.path(),
            RecFile::formatNameFilter(RecFile::formats()) + ";;" + tr("All files (*)"));
    if (!chosen.isEmpty()) {
        m_opener.open(chosen);
    }
}

void ReplayControls::updateFileMeta(const QFileInfo &file)
{
    if (file == m_scannedFile) {
        return;
    }
    m_scannedFile = file;
    m_replayWindow->setFile(file);
    m_replayWindow->setScanProgress(0);
    m_scan.start(file.filePath());
}

void ReplayControls::cancelScan()
{
    m_scan.cancel();
    m_replayWindow->setScanCancelled();
}

void ReplayControls::showIndex(const RecordingIndex &index, const QString &error)
{
    m_host->setRecordingIndex(index);
    m_replayWindow->setIndex(index, error);
}

void ReplayControls::showPosition(const QDateTime &time)
{
    m_replayWindow->setPosition(time);
}

void ReplayControls::showSession()
{
    using State = ReplayWindow::State;
    const bool running = m_session->replaying() && m_session->state() != InputSession::State::Closed;
    m_replayWindow->setState(!running ? State::Stopped : m_session->paused() ? State::Paused : State::Playing);
    m_replayWindow->setLiveInputAvailable(m_session->replaying() && m_session->liveInputWaits());
    m_replayWindow->setAutoRewind(m_config->live().inputFileAutoRewind);
    m_replayWindow->setSpeed(m_session->replaySpeed());
    updateSpeedMenu();
}

void ReplayControls::showWindow()
{
    if (m_session->replaying()) {
        updateFileMeta(m_config->live().inputFileName);
    }
    showSession();
    bringUp(m_replayWindow);
}

void ReplayControls::recordInput(bool on)
{
    (*m_actions)[ActionId::Record]->setChecked(!on); // until the engine answers
    if (!on) {
        m_host->stopRecording();
        return;
    }
    const QString name = QDateTime::currentDateTimeUtc().toString("'recording-'yyyyMMdd-hhmmss'.pcap'");
    const QString file = QFileDialog::getSaveFileName(
        m_window, tr("Record Input"), QDir::home().filePath(name), RecFile::formatNameFilter({RecFile::Pcap}));
    if (!file.isEmpty()) {
        m_host->startRecording(QFileInfo(file).suffix().isEmpty() ? file + ".pcap" : file);
    }
}
