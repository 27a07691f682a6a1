#include "engine/delay_meter.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr qint64 SamplePeriodMs = 200;
constexpr double LargestSteadyChange = 1.0; // seconds
constexpr qint64 DayMs = 86400 * 1000;

} // namespace

void DelayMeter::add(qint64 arrivalMs, double seconds, double period)
{
    const double arrival = static_cast<double>(arrivalMs % DayMs) / 1000.0;
    const double delay = std::remainder(arrival - seconds, period);
    if (m_count > 0 && std::abs(std::remainder(delay - m_latest, period)) > LargestSteadyChange) {
        ++m_jumps;
    }
    m_latest = delay;
    m_delays[static_cast<std::size_t>(m_next)] = static_cast<float>(delay);
    m_next = (m_next + 1) % Window;
    m_count = std::min(m_count + 1, Window);
    m_nextMs = arrivalMs + SamplePeriodMs;
}

DelayStatistics DelayMeter::statistics() const
{
    DelayStatistics statistics{m_count, 0.0, 0.0, 0.0, m_latest, m_jumps};
    if (m_count == 0) {
        return statistics;
    }
    std::array<float, Window> sorted = m_delays;
    const auto end = sorted.begin() + m_count;
    std::sort(sorted.begin(), end);
    statistics.median = static_cast<double>(sorted[static_cast<std::size_t>(m_count / 2)]);
    statistics.percentile95 = static_cast<double>(sorted[static_cast<std::size_t>((m_count * 95 - 1) / 100)]);
    statistics.smallest = static_cast<double>(sorted.front());
    return statistics;
}
