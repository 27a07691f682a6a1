#include "assessment/time_axis.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double LongestStep = 60.0; // seconds; what is further away is a stray, or the data have a gap
constexpr int StraysOfGap = 50;

} // namespace

double TimeAxis::place(double timeOfDay, std::optional<double> arrival, double wrap)
{
    const double near = arrival ? *arrival : m_origin ? m_last : timeOfDay;
    // What begins anew within the day does so from midnight on.
    const double midnight = wrap < DaySeconds ? DaySeconds * std::floor(near / DaySeconds) : 0.0;
    const double since = near - midnight;
    const double absolute = midnight + timeOfDay + wrap * std::round((since - timeOfDay) / wrap);
    m_isDated = m_isDated || (arrival && !m_origin);
    const double time = relative(absolute);
    m_last = absolute;
    follow(time);
    return time;
}

double TimeAxis::relative(double absolute)
{
    m_origin = m_origin.value_or(absolute);
    return absolute - *m_origin;
}

void TimeAxis::follow(double time)
{
    m_strays = std::abs(time - m_now) > LongestStep ? m_strays + 1 : 0;
    if (m_strays == 0) {
        m_now = std::max(m_now, time);
    } else if (m_strays >= StraysOfGap) {
        m_now = time;
        m_strays = 0;
    }
    m_end = std::max(m_end, m_now);
}

QDateTime TimeAxis::origin() const
{
    if (!m_isDated || !m_origin) {
        return {};
    }
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(std::llround(*m_origin * 1000)), Qt::UTC);
}
