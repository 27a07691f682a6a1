#include "orientation/antenna_sweep.h"

#include <cmath>

namespace {

constexpr double SilentRevolutions = 3.0;
constexpr double UnknownPeriod = 12.0; // seconds; slower antennas do not exist
constexpr qint64 FlashMs = 400;
// A revolution that differs more than this from the nominal one has lost its start, or heard it twice.
constexpr double LongestRevolution = 1.6;
constexpr double ShortestRevolution = 0.4;
constexpr double FastestPeriod = 0.4; // seconds, while there is no nominal one

double wrapped(double azimuth)
{
    const double rest = std::fmod(azimuth, 360.0);
    return rest < 0.0 ? rest + 360.0 : rest;
}

} // namespace

void AntennaSweep::setNominalPeriod(double seconds)
{
    m_nominalPeriod = seconds > 0.0 ? seconds : 0.0;
    m_measuredPeriod.reset();
}

void AntennaSweep::reset()
{
    m_measuredPeriod.reset();
    m_lastHeard.reset();
    m_revolutionStart.reset();
    m_lastNorth.reset();
}

void AntennaSweep::sectorCrossed(double azimuth, qint64 nowMs)
{
    if (!std::isfinite(azimuth)) {
        return;
    }
    const Passage passage{wrapped(azimuth), nowMs};
    if (m_lastHeard && passage.azimuth < m_lastHeard->azimuth) {
        revolutionBegun(passage.azimuth, nowMs);
    }
    m_lastHeard = passage;
}

void AntennaSweep::northCrossed(qint64 nowMs)
{
    revolutionBegun(0.0, nowMs);
    m_lastNorth = nowMs;
    m_lastHeard = Passage{0.0, nowMs};
}

void AntennaSweep::revolutionBegun(double azimuth, qint64 nowMs)
{
    if (m_revolutionStart) {
        const double turned = 360.0 + azimuth - m_revolutionStart->azimuth;
        const double seconds = static_cast<double>(nowMs - m_revolutionStart->time) / 1000.0 * 360.0 / turned;
        const double shortest = m_nominalPeriod > 0.0 ? ShortestRevolution * m_nominalPeriod : FastestPeriod;
        const double longest = LongestRevolution * (m_nominalPeriod > 0.0 ? m_nominalPeriod : UnknownPeriod);
        if (seconds >= shortest && seconds <= longest) {
            m_measuredPeriod = seconds;
        }
    }
    m_revolutionStart = Passage{azimuth, nowMs};
}

std::optional<double> AntennaSweep::azimuth(qint64 nowMs) const
{
    if (!m_lastHeard) {
        return std::nullopt;
    }
    const double seconds = static_cast<double>(nowMs - m_lastHeard->time) / 1000.0;
    const double turn = period();
    if (seconds > SilentRevolutions * (turn > 0.0 ? turn : UnknownPeriod)) {
        return std::nullopt;
    }
    return turn > 0.0 ? wrapped(m_lastHeard->azimuth + seconds / turn * 360.0) : m_lastHeard->azimuth;
}

bool AntennaSweep::northFlash(qint64 nowMs) const
{
    return m_lastNorth && nowMs - *m_lastNorth < FlashMs;
}

double AntennaSweep::period() const
{
    return m_measuredPeriod.value_or(m_nominalPeriod);
}
