#pragma once

#include "app/log_level.h"

#include <QObject>

class EngineHost;
class InputSession;
class QWidget;

// The program's orderly end, in step with the engine: its input is closed, it is stopped, and the window closes. Each
// is waited for only so long, and none of it blocks before the last. GUI thread.
class Shutdown final : public QObject {
    Q_OBJECT

public:
    // What is to follow when this program has ended.
    enum class Afterwards { Nothing, Start, StartWithInput };

    // All must outlive this object. The window hears nothing of the engine once that is being stopped.
    Shutdown(QWidget *window, InputSession *session, EngineHost *host);

    bool begun() const { return m_stage != Stage::NotBegun; } // true also once it is complete
    // The window may be closed.
    bool complete() const { return m_stage == Stage::Complete; }
    Afterwards afterwards() const { return m_afterwards; }
    // For the engine's answer and for the end of its thread.
    void setWaits(int confirmMs, int threadMs);

    // Nothing a second time.
    void begin(Afterwards afterwards);

public Q_SLOTS:
    // Waits no longer for the end of the input. Nothing before begin() or a second time.
    void proceed();

Q_SIGNALS:
    // Everything is still as it was: the time to store it.
    void begins();
    // The engine has stopped and the window is closed.
    void completed();
    void logMessage(LogLevel level, const QString &text);

private:
    enum class Stage { NotBegun, Begun, Complete };

    void force();

    QWidget *m_window;
    InputSession *m_session;
    EngineHost *m_host;
    Stage m_stage = Stage::NotBegun;
    Afterwards m_afterwards = Afterwards::Nothing;
    int m_confirmMs = 10000;
    int m_threadMs = 5000;
};
