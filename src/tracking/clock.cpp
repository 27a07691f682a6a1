#include "tracking/clock.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <utility>

namespace {

// Part of the time passed by which live time may run faster or slower than it is, to come back to the system's.
constexpr qint64 CorrectionDivisor = 10;

} // namespace

Clock::Clock()
    : Clock([] { return QDateTime::currentMSecsSinceEpoch(); }, [] { return QDeadlineTimer::current().deadline(); })
{
}

Clock::Clock(Source system, Source monotonic) : m_system(std::move(system)), m_monotonic(std::move(monotonic))
{
    startLive();
}

QDateTime Clock::now() const
{
    const qint64 ms = nowMs();
    if (ms != m_readingMs) {
        m_reading = QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC);
        m_readingMs = ms;
    }
    return m_reading;
}

qint64 Clock::nowMs() const
{
    return m_recorded || m_held ? m_stillMs : liveMs();
}

qint64 Clock::liveMs() const
{
    const qint64 monotonicMs = m_monotonic();
    const qint64 passed = std::max<qint64>(0, monotonicMs - m_monotonicMs);
    const qint64 limit = passed / CorrectionDivisor;
    // Readings in quick succession leave the remainder of the division for later ones.
    if (passed >= CorrectionDivisor) {
        m_monotonicMs = monotonicMs;
        m_liveMs += passed + std::clamp(m_system() - (m_liveMs + passed), -limit, limit);
        return m_liveMs;
    }
    return m_liveMs + passed;
}

void Clock::startLive()
{
    m_recorded = m_held = false;
    m_liveMs = m_system();
    m_monotonicMs = m_monotonic();
}

void Clock::hold()
{
    m_stillMs = nowMs();
    m_held = true;
}

void Clock::startRecorded(const QDateTime &time)
{
    m_recorded = true;
    m_held = false;
    m_stillMs = time.toMSecsSinceEpoch();
}

void Clock::advanceTo(const QDateTime &time)
{
    if (m_recorded && !m_held) {
        m_stillMs = std::max(m_stillMs, time.toMSecsSinceEpoch());
    }
}
