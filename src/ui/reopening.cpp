#include "ui/reopening.h"

#include "ui/input_session.h"

#include <algorithm>

namespace {

constexpr int ShortestWaitMs = 5000;
constexpr int LongestWaitMs = 5 * 60 * 1000;

} // namespace

Reopening::Reopening(InputSession *session, QObject *parent)
    : QObject(parent), m_session(session), m_waitMs(ShortestWaitMs)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Reopening::due);
    connect(session, &InputSession::openingBegun, &m_timer, &QTimer::stop);
    connect(session, &InputSession::opened, this, [this] { m_waitMs = ShortestWaitMs; });
    connect(session, &InputSession::stopAsked, this, &Reopening::end);
    connect(session, &InputSession::openFailed, this, &Reopening::wait);
    connect(session, &InputSession::closed, this, &Reopening::wait);
}

void Reopening::end()
{
    m_wanted = false;
    m_timer.stop();
    m_waitMs = ShortestWaitMs;
}

// A closing that follows a failure finds the timer running.
void Reopening::wait()
{
    if (!m_wanted || m_timer.isActive()) {
        return;
    }
    Q_EMIT message(LogLevel::Info, tr("The input is opened again in %1 s.").arg(m_waitMs / 1000));
    m_timer.start(m_waitMs);
    m_waitMs = std::min(2 * m_waitMs, LongestWaitMs);
    m_session->setWaiting();
}
