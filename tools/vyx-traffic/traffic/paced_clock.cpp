#include "traffic/paced_clock.h"

#include <algorithm>
#include <thread>

namespace {

constexpr std::chrono::milliseconds LongestSleep(100); // so that a stop is noticed soon

} // namespace

PacedClock::PacedClock(double speed, const std::atomic<bool> &stop) : m_speed(speed), m_stop(stop) { }

bool PacedClock::waitFor(double scenarioTime)
{
    if (!m_started) {
        m_started = true;
        m_start = Clock::now();
        m_firstTime = scenarioTime;
    }
    if (m_speed <= 0) {
        return !m_stop;
    }
    const std::chrono::duration<double> due((scenarioTime - m_firstTime) / m_speed);
    const auto moment = m_start + std::chrono::duration_cast<Clock::duration>(due);
    for (auto now = Clock::now(); now < moment && !m_stop; now = Clock::now()) {
        std::this_thread::sleep_for(std::min<Clock::duration>(moment - now, LongestSleep));
    }
    return !m_stop;
}

double PacedClock::elapsed() const
{
    return m_started ? std::chrono::duration<double>(Clock::now() - m_start).count() : 0;
}
