// The input: its commands, its state, and what it brings in.

#include "display/geo_map_display.h"
#include "display/geo_track_display.h"
#include "display/geo_weather_map.h"
#include "plan_view/geo_widget.h"
#include "ui/actions.h"
#include "ui/alert_list_model.h"
#include "ui/list_view.h"
#include "ui/main_window.h"
#include "ui/scope_notice.h"
#include "ui/status_read_outs.h"
#include "ui/track_list_model.h"

#include <QAction>
#include <QDockWidget>
#include <QGuiApplication>
#include <QScopedValueRollback>

#include <utility>

void MainWindow::connectInputActions()
{
    connect((*m_actions)[ActionId::Start], &QAction::triggered, this, &MainWindow::openInput);
    connect((*m_actions)[ActionId::Stop], &QAction::triggered, this, &MainWindow::closeInput);
    connect((*m_actions)[ActionId::Pause], &QAction::triggered, this, &MainWindow::pauseInput);
    connect((*m_actions)[ActionId::Exit], &QAction::triggered, this, &MainWindow::exitApplication);
}

void MainWindow::openInput()
{
    if (m_inputState != InputState::Closed) {
        showLog(LogLevel::Warning, tr("Input is working now, stop first!"));
        return;
    }
    if (!m_sensor) {
        showLog(LogLevel::Warning, tr("Unknown sensor"));
        return;
    }
    ++m_requestId;
    beginRadarPicture();
    setInputState(InputState::Opening);
    m_host.openInput(m_config.live(), m_sensor, m_replayStart, m_requestId);
    m_replayStart = QDateTime();
}

void MainWindow::closeInput()
{
    if (m_inputState == InputState::Closed) {
        showLog(LogLevel::Warning, tr("Inpput is not working now."));
        return;
    }
    m_host.closeInput();
}

void MainWindow::pauseInput(bool paused)
{
    if (m_inputState != InputState::Open) {
        return;
    }
    m_paused = paused;
    m_host.pauseInput(paused);
    updateInputActions();
    updateNotices();
}

void MainWindow::onEngineInputOpened(unsigned long long requestId)
{
    if (!isCurrentAnswer(requestId) || m_inputState != InputState::Opening || m_shutdown != Shutdown::NotBegun) {
        return;
    }
    setInputState(InputState::Open);
    m_inputWasOpen = true;
    if (!m_trackListTimer.isActive()) {
        m_trackListTimer.start();
    }
    if (!m_alertListTimer.isActive()) {
        m_alertListTimer.start();
    }
    Q_EMIT inputOpened();
}

void MainWindow::onEngineInputOpenFailed(unsigned long long requestId)
{
    inputEnded(requestId);
}

void MainWindow::onEngineInputClosed(unsigned long long requestId)
{
    inputEnded(requestId);
}

void MainWindow::inputEnded(unsigned long long requestId)
{
    if (!isCurrentAnswer(requestId)) {
        return;
    }
    setInputState(InputState::Closed);
    if (m_shutdown == Shutdown::Begun) {
        continueShutdown();
        return;
    }
    if (std::exchange(m_reopenInput, false)) {
        openInput();
        return;
    }
    pullSlots(); // the input's last picture
    Q_EMIT inputClosed();
}

void MainWindow::setInputState(InputState state)
{
    m_inputState = state;
    m_paused = false;
    updateInputActions();
    updateNotices();
}

void MainWindow::updateInputActions()
{
    const bool closed = m_inputState == InputState::Closed;
    for (const ActionId id : {ActionId::Start, ActionId::Settings, ActionId::SensorManager}) {
        (*m_actions)[id]->setEnabled(closed);
    }
    QAction *pause = (*m_actions)[ActionId::Pause];
    pause->setEnabled(m_inputState == InputState::Open);
    pause->setChecked(m_paused);
    QAction *record = (*m_actions)[ActionId::Record];
    record->setEnabled(m_inputState == InputState::Open && !replaying());
    updateReplaySpeedMenu();
    updateReplayWindow();
}

void MainWindow::updateNotices()
{
    m_scopeNotice->showText(scopeNotice());
    const bool running = m_inputState == InputState::Open;
    m_trackView->setEmptyText(!running ? tr("No input is running.")
            : replaying()              ? tr("No tracks yet in %1.").arg(inputDescription())
                                       : tr("No tracks. Listening on %1.").arg(inputDescription()));
    setWindowTitle(replaying()
            ? tr("%1 - %2").arg(m_config.live().inputFileName.fileName(), QGuiApplication::applicationDisplayName())
            : QGuiApplication::applicationDisplayName());
    m_alertView->setEmptyText(running ? tr("No alerts.") : tr("No input is running."));
}

QString MainWindow::scopeNotice() const
{
    switch (m_inputState) {
    case InputState::Opening:
        return tr("Opening %1 ...").arg(inputDescription());
    case InputState::Open:
        return m_paused ? tr("Paused. The picture is not being updated.") : QString();
    case InputState::Closed:
        break;
    }
    if (!m_sensor) {
        return tr("No sensor is configured. Choose one in Settings (F10), then press Start.");
    }
    return m_inputWasOpen ? tr("Input stopped. This is the last picture.")
                          : tr("No input is running. Press Start to open %1.").arg(inputDescription());
}

QString MainWindow::inputDescription() const
{
    const Config &config = m_config.live();
    switch (config.inputComm) {
    case Config::InputComm::Serial:
        return tr("serial line %1").arg(config.inputSerialDevice);
    case Config::InputComm::File:
        return tr("recording %1").arg(config.inputFileName.fileName());
    case Config::InputComm::Udp:
        break;
    }
    return config.inputUdpMulticast1
        ? tr("UDP %1:%2").arg(config.inputUdpMcastAddress1.toString()).arg(config.inputUdpPort1)
        : tr("UDP port %1").arg(config.inputUdpPort1);
}

void MainWindow::pullSlots()
{
    const bool live = !replaying(); // a recording's times of day are of another day
    if (const auto batch = m_videoReader.take(m_host.shared().video)) {
        for (const VideoProcessor::Radial &radial : batch->radials) {
            procVideoRadial(radial);
        }
        if (live && !batch->radials.isEmpty()) {
            m_videoDelay.add(batch->radials.constFirst().timeOfDay, QDateTime::currentDateTimeUtc());
        }
    }
    if (const auto picture = m_weatherReader.take(m_host.shared().weather)) {
        procWeatherPicture(*picture);
        if (live) {
            m_weatherDelay.add(picture->timeOfDay, QDateTime::currentDateTimeUtc());
        }
    }
    const QSharedPointer<const DisplaySnapshot> snapshot = m_displayReader.take(m_host.shared().display);
    if (!snapshot) {
        return;
    }
    m_snapshot = snapshot;
    m_trackDisplay->setSnapshot(snapshot);
    for (std::size_t i = 0; i < m_alertStatus.size(); ++i) {
        if (m_alertStatus[i] != snapshot->alertStatus[i]) {
            m_alertStatus[i] = snapshot->alertStatus[i];
            updateAlertStatus(static_cast<Alert::Type>(i + 1), m_alertStatus[i]);
        }
    }
}

void MainWindow::publishDropStats()
{
    Q_EMIT dropStats({m_displayReader.dropped(), m_videoReader.dropped(), m_weatherReader.dropped(),
        m_mapDisplay->weatherMap()->emptyPictures(), m_weatherDelay.milliseconds(), m_videoDelay.milliseconds()});
}

void MainWindow::updateTrackList()
{
    const QList<TrackSnapshot> tracks = m_snapshot ? m_snapshot->tracks : QList<TrackSnapshot>();
    m_trackDock->setWindowTitle(tr("Track List - %1").arg(tracks.size()));
    if (isVisible() && !m_trackView->isVisible()) {
        return;
    }
    const QScopedValueRollback updating(m_updatingList, true);
    m_trackModel->setTracks(tracks);
    selectTrackInList(m_trackDisplay->selectedTrackId());
}

void MainWindow::updateAlertList()
{
    const QList<AlertSnapshot> alerts = m_snapshot ? m_snapshot->alerts : QList<AlertSnapshot>();
    m_alertDock->setWindowTitle(tr("Alert List - %1").arg(alerts.size()));
    if (isVisible() && !m_alertView->isVisible()) {
        return;
    }
    const QScopedValueRollback updating(m_updatingList, true);
    m_alertModel->setAlerts(alerts);
}

void MainWindow::clearTrackList()
{
    const QScopedValueRollback updating(m_updatingList, true);
    m_trackModel->clear();
    m_trackDock->setWindowTitle(tr("Track List - %1").arg(0));
}

void MainWindow::clearAlertList()
{
    const QScopedValueRollback updating(m_updatingList, true);
    m_alertModel->clear();
    m_alertDock->setWindowTitle(tr("Alert List - %1").arg(0));
}

void MainWindow::trackListSelectionChanged()
{
    if (m_updatingList) {
        return;
    }
    const int row = m_trackView->selectedRow();
    m_trackDisplay->setSelected(row < 0 ? 0 : m_trackModel->trackId(row));
}

void MainWindow::alertListSelectionChanged()
{
    const int row = m_alertView->selectedRow();
    if (m_updatingList || row < 0 || m_alertModel->trackId(row) == 0) {
        return;
    }
    m_trackDisplay->setSelected(m_alertModel->trackId(row));
    selectTrackInList(m_alertModel->trackId(row));
}

void MainWindow::selectTrackInList(unsigned long long id)
{
    const int row = m_trackModel->rowOf(id).value_or(-1);
    if (row == m_trackView->selectedRow()) {
        return;
    }
    const QScopedValueRollback updating(m_updatingList, true);
    m_trackView->selectRow(row);
}

void MainWindow::updateAlertStatus(Alert::Type type, bool on)
{
    m_readOuts->showAlertStatus(type, on);
}
