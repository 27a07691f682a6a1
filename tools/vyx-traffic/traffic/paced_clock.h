#pragma once

#include <atomic>
#include <chrono>

// Lets the run wait for its next moment, and ends the wait early when the run is to stop.
class PacedClock {
public:
    // speed: scenario seconds a second; 0 never waits. stop: set by a signal handler or another thread; outlives this.
    PacedClock(double speed, const std::atomic<bool> &stop);

    // False when the run is to stop. The clock starts with the first call, at that time of the scenario; a moment that
    // is past is not waited for.
    bool waitFor(double scenarioTime);
    // Seconds since the first wait.
    double elapsed() const;

private:
    using Clock = std::chrono::steady_clock;

    double m_speed;
    const std::atomic<bool> &m_stop;
    bool m_started = false;
    Clock::time_point m_start;
    double m_firstTime = 0;
};
