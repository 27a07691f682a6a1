#include "traffic/day_clock.h"

#include "traffic/target_writer.h"

#include <cmath>

namespace {

constexpr double SecondsADay = 86400;

} // namespace

DayClock::DayClock(const QDateTime &startTime) : m_startOfDay(startTime.toUTC().time().msecsSinceStartOfDay() / 1000.0)
{
}

double DayClock::secondsOfDay(double time) const
{
    const double seconds = std::fmod(m_startOfDay + time, SecondsADay);
    return seconds < 0 ? seconds + SecondsADay : seconds;
}

std::uint64_t DayClock::timeBits(double time) const
{
    return ::timeBits(secondsOfDay(time));
}
