#include "ui/input_session.h"

#include "app/run_config.h"
#include "engine/engine_host.h"

#include <utility>

InputSession::InputSession(RunConfig *config, EngineHost *host) : m_config(config), m_host(host) { }

bool InputSession::replaying() const
{
    return m_config->live().inputComm == Config::InputComm::File;
}

QFileInfo InputSession::recording() const
{
    return replaying() ? m_config->live().inputFileName : QFileInfo();
}

QString InputSession::description() const
{
    const Config &config = m_config->live();
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

QSet<quint16> InputSession::unicastPorts() const
{
    const Config &config = m_config->live();
    QSet<quint16> ports;
    if (m_state != State::Open || config.inputComm != Config::InputComm::Udp) {
        return ports;
    }
    if (!config.inputUdpMulticast1) {
        ports.insert(config.inputUdpPort1);
    }
    if (config.inputEnable2 && !config.inputUdpMulticast2) {
        ports.insert(config.inputUdpPort2);
    }
    return ports;
}

QString InputSession::notice() const
{
    switch (m_state) {
    case State::Opening:
        return tr("Opening %1 ...").arg(description());
    case State::Open:
        return m_paused ? tr("Paused. The picture is not being updated.") : QString();
    case State::Closed:
        break;
    }
    return m_waiting ? tr("%1\nAnother attempt is made by itself.").arg(closedNotice()) : closedNotice();
}

QString InputSession::closedNotice() const
{
    if (!m_sensor) {
        return tr(
            "No sensor is configured. Choose one in Settings (F10), then press Start; or let Help, Getting Started, "
            "lead you.");
    }
    if (!m_fault.isEmpty()) {
        return m_wasOpen ? tr("Input stopped. %1\nThis is the last picture.").arg(m_fault) : m_fault;
    }
    return m_wasOpen ? tr("Input stopped. This is the last picture.")
                     : tr("No input is running. Press Start to open %1.").arg(description());
}

void InputSession::setState(State state)
{
    m_state = state;
    m_paused = false;
    m_waiting = false;
    Q_EMIT changed();
}

void InputSession::setWaiting()
{
    m_waiting = true;
    Q_EMIT changed();
}

void InputSession::open()
{
    if (m_shuttingDown) {
        return;
    }
    if (m_state != State::Closed) {
        Q_EMIT logMessage(LogLevel::Warning, tr("Input is working now, stop first!"));
        return;
    }
    if (!m_sensor) {
        Q_EMIT logMessage(LogLevel::Warning, tr("Unknown sensor"));
        Q_EMIT openFailed(tr("Unknown sensor"));
        return;
    }
    ++m_requestId;
    m_fault.clear();
    Q_EMIT openingBegun();
    setState(State::Opening);
    m_host->openInput(m_config->live(), m_sensor, m_replayStart, m_requestId);
    m_replayStart = QDateTime();
}

void InputSession::close()
{
    Q_EMIT stopAsked();
    if (std::exchange(m_waiting, false)) {
        Q_EMIT logMessage(LogLevel::Info, tr("No further attempt is made to open the input."));
        Q_EMIT changed();
        return;
    }
    if (m_state == State::Closed) {
        Q_EMIT logMessage(LogLevel::Warning, tr("Inpput is not working now."));
        return;
    }
    m_reopen = false; // stopping during a jump stops
    m_replayStart = QDateTime();
    m_host->closeInput();
}

void InputSession::pause(bool paused)
{
    if (m_state != State::Open) {
        return;
    }
    m_paused = paused;
    m_host->pauseInput(paused);
    Q_EMIT changed();
}

void InputSession::onOpened(quint64 requestId)
{
    if (!isCurrent(requestId) || m_state != State::Opening) {
        return;
    }
    m_wasOpen = true;
    setState(State::Open);
    Q_EMIT opened();
}

void InputSession::onFault(quint64 requestId, const QString &reason)
{
    if (isCurrent(requestId)) {
        m_fault = reason;
    }
}

void InputSession::onOpenFailed(quint64 requestId)
{
    if (!isCurrent(requestId)) {
        return;
    }
    m_wasOpen = false; // the engine has cleared the picture
    m_fault = tr("Cannot open %1: %2").arg(description(), m_fault);
    const bool final = !m_reopen;
    end();
    if (final) {
        Q_EMIT openFailed(m_fault);
    }
}

void InputSession::onClosed(quint64 requestId)
{
    if (isCurrent(requestId)) {
        end();
    }
}

void InputSession::end()
{
    setState(State::Closed);
    if (m_shuttingDown) {
        Q_EMIT shutDownDone();
    } else if (std::exchange(m_reopen, false)) {
        open();
    } else {
        Q_EMIT closed();
    }
}

void InputSession::forgetPicture()
{
    m_wasOpen = false;
    m_fault.clear();
    m_host->forgetPicture();
    Q_EMIT changed();
}

bool InputSession::shutDown()
{
    m_shuttingDown = true;
    Q_EMIT stopAsked();
    if (m_state == State::Closed) {
        return false;
    }
    setState(State::Closed);
    m_host->closeInput();
    return true;
}

void InputSession::play(const QString &fileName)
{
    chooseRecording(QFileInfo(fileName));
    restart({});
}

void InputSession::chooseRecording(const QFileInfo &file)
{
    if (!replaying()) {
        m_liveInput = m_config->live().inputComm;
    }
    m_config->overrideWith([&file](Config &config) {
        config.inputComm = Config::InputComm::File;
        config.inputFileName = file;
    });
    Q_EMIT recordingChosen(file);
    Q_EMIT changed();
}

void InputSession::restart(const QDateTime &start)
{
    m_replayStart = start;
    if (m_state == State::Closed) {
        open();
    } else {
        m_reopen = true;
        m_host->closeInput();
    }
}

void InputSession::returnToLiveInput()
{
    if (!m_liveInput) {
        return;
    }
    const SettingGroups changed = m_config->bringBack();
    m_config->overrideWith([this](Config &config) { config.inputComm = *m_liveInput; });
    m_liveInput.reset();
    Q_EMIT settingsBroughtBack(changed);
    restart({});
}

void InputSession::setReplaySpeed(ReplaySpeed::Speed speed)
{
    m_replaySpeed = speed;
    m_host->setReplaySpeed(speed);
    Q_EMIT changed();
}

void InputSession::setAutoRewind(bool on)
{
    m_config->edit([on](Config &config) { config.inputFileAutoRewind = on; });
    m_host->setReplayAutoRewind(on);
    Q_EMIT changed();
}
