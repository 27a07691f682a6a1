#include "ui/shutdown.h"

#include "engine/data_engine.h"
#include "engine/engine_host.h"
#include "ui/input_session.h"

#include <QTimer>
#include <QWidget>

Shutdown::Shutdown(QWidget *window, InputSession *session, EngineHost *host)
    : m_window(window), m_session(session), m_host(host)
{
    connect(session, &InputSession::shutDownDone, this, &Shutdown::proceed);
}

void Shutdown::setWaits(int confirmMs, int threadMs)
{
    m_confirmMs = confirmMs;
    m_threadMs = threadMs;
}

void Shutdown::begin(Afterwards afterwards)
{
    if (begun()) {
        return;
    }
    m_stage = Stage::Begun;
    m_afterwards = afterwards;
    Q_EMIT begins();
    if (!m_session->shutDown()) {
        QTimer::singleShot(0, this, &Shutdown::proceed);
    }
    QTimer::singleShot(m_confirmMs, this, &Shutdown::force);
}

void Shutdown::force()
{
    if (m_stage == Stage::Begun) {
        Q_EMIT logMessage(
            LogLevel::Warning, tr("Data engine did not confirm the input close within 10 s, forcing shutdown."));
        proceed();
    }
}

void Shutdown::proceed()
{
    if (m_stage != Stage::Begun) {
        return;
    }
    disconnect(m_host->engine(), nullptr, m_window, nullptr);
    if (!m_host->stop(m_threadMs)) {
        Q_EMIT logMessage(LogLevel::Warning, tr("Data processing thread did not stop within 5 s, abandoning it."));
    }
    m_stage = Stage::Complete;
    m_window->close();
    Q_EMIT completed();
}
