#include "day_clock.h"

#include <algorithm>
#include <cstdlib>

namespace korvane::astfile {

namespace {

// The recorder's clock and the file system's need not agree to the second.
constexpr qint64 ClockDifferenceMs = 60000;

// For times before 1970, too.
qint64 into(qint64 timeMs, qint64 periodMs)
{
    return ((timeMs % periodMs) + periodMs) % periodMs;
}

// The time on the day that is value into a period and nearest to the last one.
qint64 nearestOnDay(qint64 lastMs, qint64 dayMs, qint64 value, qint64 periodMs)
{
    const qint64 periods = (std::clamp<qint64>(lastMs - dayMs, 0, DayClock::DayMs) - value + periodMs / 2) / periodMs;
    const qint64 lastPeriod = (DayClock::DayMs - 1 - value) / periodMs;
    return dayMs + value + std::clamp<qint64>(periods, 0, lastPeriod) * periodMs;
}

} // namespace

void DayClock::start(const QDateTime &modified)
{
    m_modifiedMs = modified.isValid() ? modified.toMSecsSinceEpoch() : 0;
    m_lastMs.reset();
}

qint64 DayClock::next(qint64 value, qint64 periodMs)
{
    if (!m_lastMs) {
        const qint64 first = m_modifiedMs - into(m_modifiedMs, DayMs) + value;
        m_lastMs = periodMs == DayMs && first > m_modifiedMs + ClockDifferenceMs ? first - DayMs : first;
        return *m_lastMs;
    }
    // The sender begins its count at midnight, wherever in a period that is.
    const qint64 today = *m_lastMs - into(*m_lastMs, DayMs);
    qint64 nearest = nearestOnDay(*m_lastMs, today, value, periodMs);
    for (const qint64 day : {today - DayMs, today + DayMs}) {
        const qint64 other = nearestOnDay(*m_lastMs, day, value, periodMs);
        nearest = std::abs(other - *m_lastMs) < std::abs(nearest - *m_lastMs) ? other : nearest;
    }
    m_lastMs = nearest;
    return nearest;
}

qint64 DayClock::nextOnDay(qint64 msOfDay, int days)
{
    if (!m_lastMs) {
        return next(msOfDay);
    }
    m_lastMs = *m_lastMs - into(*m_lastMs, DayMs) + days * DayMs + msOfDay;
    return *m_lastMs;
}

} // namespace korvane::astfile
