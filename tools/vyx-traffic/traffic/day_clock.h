#pragma once

#include <QDateTime>

// Turns seconds from the scenario's start into seconds of the day, 0 to 86400 (excluded), UTC.
class DayClock {
public:
    // startTime: the scenario's second 0.
    explicit DayClock(const QDateTime &startTime);

    double secondsOfDay(double time) const;
    // In 1/128 s, midnight wrapped to 0.
    std::uint64_t timeBits(double time) const;

private:
    double m_startOfDay = 0; // seconds
};
