#pragma once

#include "app/config.h"
#include "app/log_level.h"
#include "engine/replay_speed.h"

#include <QDateTime>
#include <QFileInfo>
#include <QObject>
#include <QSet>
#include <QSharedPointer>

class EngineHost;
class RunConfig;
class SensorInfo;

#include <optional>

// The input as the operator sees it: what was asked of the engine and what it answered, which recording is played in
// place of the live input, and what the input is recorded to. The engine's answers are handed in; those to an older
// request than the last are ignored. GUI thread.
class InputSession final : public QObject {
    Q_OBJECT

public:
    enum class State { Closed, Opening, Open };

    // Both must outlive the session.
    InputSession(RunConfig *config, EngineHost *host);

    State state() const { return m_state; }
    bool isOpen() const { return m_state == State::Open; }
    bool isClosed() const { return m_state == State::Closed; }
    bool paused() const { return m_paused; }
    // Of the newest opening, 0 before the first.
    quint64 requestId() const { return m_requestId; }
    // The input of this run is a recording, whether or not it is open.
    bool replaying() const;
    // The recording; empty while the input of this run is a live one.
    QFileInfo recording() const;
    // There is a live input to go back to.
    bool liveInputWaits() const { return m_liveInput.has_value(); }
    ReplaySpeed::Speed replaySpeed() const { return m_replaySpeed; }
    // Of the input; null when none is configured.
    const QSharedPointer<SensorInfo> &sensor() const { return m_sensor; }
    void setSensor(const QSharedPointer<SensorInfo> &sensor) { m_sensor = sensor; }

    // "UDP port 20000".
    QString description() const;
    // Those on which the open input takes datagrams that are no multicast.
    QSet<quint16> unicastPorts() const;
    // It is closed, and will be opened again without anybody asking.
    bool waiting() const { return m_waiting; }
    void setWaiting();
    // Why the picture is empty or old; empty while it is neither.
    QString notice() const;

    // The picture of the last input is not kept any longer.
    void forgetPicture();

    // Ends the input with the program: whatever is under way, none opens any more. False when none was open; otherwise
    // shutDownDone() follows when the engine has closed it.
    bool shutDown();

public Q_SLOTS:
    void open();
    // Also ends the waiting for another attempt.
    void close();
    void pause(bool paused);

    // Plays a recording from its beginning, in place of the input that is open.
    void play(const QString &fileName);
    // Makes the recording the input of this run.
    void chooseRecording(const QFileInfo &file);
    // Plays the recording from there (invalid: the beginning), in place of what is open.
    void restart(const QDateTime &start);
    // Back to the input that was there before the first recording.
    void returnToLiveInput();
    // For this and all later recordings.
    void setReplaySpeed(ReplaySpeed::Speed speed);
    void setAutoRewind(bool on);

    void onOpened(quint64 requestId);
    // Why the input of that request cannot be opened or has ended by itself, one sentence; comes before its end.
    void onFault(quint64 requestId, const QString &reason);
    void onOpenFailed(quint64 requestId);
    void onClosed(quint64 requestId);

Q_SIGNALS:
    void logMessage(LogLevel level, const QString &text);
    // State, pause, replay speed, or which input it is.
    void changed();
    void recordingChosen(const QFileInfo &file);
    // Settings of these groups are those of the live input again, which is opened next.
    void settingsBroughtBack(SettingGroups changed);
    // Nobody wants the input any more, whether or not one is open.
    void stopAsked();
    // A request goes out: what the last input left behind is of no use now.
    void openingBegun();
    void opened();
    // No input has been opened, and none is about to be, for that reason.
    void openFailed(const QString &reason);
    // The input has ended, and no other one takes its place at once.
    void closed();
    void shutDownDone();

private:
    bool isCurrent(quint64 requestId) const { return requestId == m_requestId; }
    QString closedNotice() const;
    void end();
    void setState(State state);

    RunConfig *m_config;
    EngineHost *m_host;
    QSharedPointer<SensorInfo> m_sensor;
    State m_state = State::Closed;
    quint64 m_requestId = 0; // of the newest request
    bool m_wasOpen = false; // there is a last picture to look at
    QString m_fault; // of the newest request; empty: none
    bool m_paused = false;
    bool m_waiting = false;
    bool m_shuttingDown = false;
    bool m_reopen = false; // as soon as the one that is being closed has closed
    QDateTime m_replayStart; // of the next opening; invalid: the beginning
    ReplaySpeed::Speed m_replaySpeed = ReplaySpeed::Normal;
    std::optional<Config::InputComm> m_liveInput; // the kind of input before the first recording
};
