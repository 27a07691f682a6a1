#include "engine/antenna_meter.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double Day = 86400.0;
constexpr double ShortestPeriod = 0.2; // seconds; surface radars turn once in one
constexpr double LongestPeriod = 60.0;
constexpr double WholeTurn = 359.5; // degrees; azimuths are rounded
constexpr double LargestRegularPart = 1.5; // of what is usual

double secondsBetween(double earlier, double later)
{
    return std::remainder(later - earlier, Day);
}

template <std::size_t Size>
double median(std::array<double, Size> values, quint64 count)
{
    const auto end = values.begin() + static_cast<std::ptrdiff_t>(std::min<quint64>(count, Size));
    std::sort(values.begin(), end);
    return values[static_cast<std::size_t>(end - values.begin()) / 2];
}

} // namespace

void AntennaMeter::crossNorth(double seconds)
{
    ++m_northMarkers;
    // Sectors measure better: they have more readings.
    if (m_lastNorth >= 0.0 && m_sectorCrossings == 0) {
        addRevolution(secondsBetween(m_lastNorth, seconds));
    }
    m_lastNorth = seconds;
}

void AntennaMeter::crossSector(double azimuth, double seconds)
{
    ++m_sectorCrossings;
    const double elapsed = secondsBetween(m_lastSector, seconds);
    const double step = azimuth - m_lastAzimuth + (azimuth < m_lastAzimuth ? 360.0 : 0.0);
    const bool follows = m_lastSector >= 0.0 && elapsed >= 0.0 && elapsed < LongestPeriod;
    m_lastSector = seconds;
    m_lastAzimuth = azimuth;
    if (!follows) {
        m_turned = m_turning = 0.0;
        return;
    }
    // The same sector again is the same message on a second way, or a whole turn in silence.
    if (step == 0.0) {
        return;
    }
    countMissing(step);
    m_turned += step;
    m_turning += elapsed;
    if (m_turned >= WholeTurn) {
        addRevolution(m_turning * 360.0 / m_turned);
        m_turned = m_turning = 0.0;
    }
}

// A revolution in which a marker was lost looks twice as long.
void AntennaMeter::addRevolution(double period)
{
    const bool lost = m_revolutions > 2 && period > LargestRegularPart * medianPeriod();
    if (period < ShortestPeriod || period > LongestPeriod || lost) {
        return;
    }
    m_periods[m_revolutions % Revolutions] = period;
    ++m_revolutions;
}

double AntennaMeter::medianPeriod() const
{
    return median(m_periods, m_revolutions);
}

void AntennaMeter::countMissing(double step)
{
    if (m_stepCount >= Steps && step > LargestRegularPart * medianStep()) {
        m_missingSectors += static_cast<quint64>(std::lround(step / medianStep())) - 1;
    }
    m_steps[m_stepCount % Steps] = step;
    ++m_stepCount;
}

double AntennaMeter::medianStep() const
{
    return median(m_steps, m_stepCount);
}

AntennaStatistics AntennaMeter::statistics() const
{
    AntennaStatistics statistics;
    statistics.northMarkers = m_northMarkers;
    statistics.sectorCrossings = m_sectorCrossings;
    statistics.revolutions = m_revolutions;
    statistics.missingSectors = m_missingSectors;
    if (m_stepCount >= Steps) {
        statistics.sectors = static_cast<int>(std::lround(360.0 / medianStep()));
    }
    const auto count = static_cast<std::size_t>(std::min<quint64>(m_revolutions, Revolutions));
    if (count == 0) {
        return statistics;
    }
    const auto last = m_periods.begin() + static_cast<std::ptrdiff_t>(count);
    double sum = 0.0;
    std::for_each(m_periods.begin(), last, [&sum](double period) { sum += period; });
    statistics.period = sum / static_cast<double>(count);
    double squares = 0.0;
    std::for_each(m_periods.begin(), last, [&](double period) { squares += std::pow(period - statistics.period, 2); });
    statistics.periodDeviation = std::sqrt(squares / static_cast<double>(count));
    return statistics;
}
