#include "silence/silence_watch.h"

#include "engine/display_snapshot.h"
#include "sensors/sensor_info.h"

#include <algorithm>
#include <utility>

void SilenceWatch::setSensor(const SensorInfo *sensor)
{
    const double period = sensor ? sensor->reportPeriod() : 0.0;
    const double shortest = sensor && sensor->trackLife() ? sensor->trackLife()->shortestPeriod : 0.0;
    m_sensorPeriod = period > 0.0 && period >= shortest ? period : AssumedPeriod;
}

double SilenceWatch::period() const
{
    return std::max({ShortestPeriod, m_sensorPeriod, m_measuredPeriod});
}

void SilenceWatch::beginInput()
{
    m_endedRun = m_run;
    m_measuredPeriod = 0.0;
    m_everHeard = false;
    m_level = Level::Heard;
}

void SilenceWatch::setExpecting(bool expecting)
{
    if (expecting != m_expecting) {
        m_expecting = expecting;
        m_level = Level::Heard;
        m_begun = false;
    }
}

QDateTime SilenceWatch::since() const
{
    return QDateTime::fromMSecsSinceEpoch(m_lastMs, Qt::UTC);
}

bool SilenceWatch::look(const DisplaySnapshot &snapshot)
{
    const quint64 run = snapshot.plots.run;
    if (!m_expecting || run == m_endedRun) {
        return false;
    }
    m_nowMs = snapshot.time.toMSecsSinceEpoch();
    if (!m_begun || run != m_run || m_nowMs < m_lastMs) {
        begin(snapshot);
    }
    if (snapshot.messages != m_messages) {
        m_messages = snapshot.messages;
        m_everHeard = true;
        m_lastMs = m_nowMs;
    }
    return levelNow() != std::exchange(m_level, levelNow());
}

void SilenceWatch::begin(const DisplaySnapshot &snapshot)
{
    m_begun = true;
    m_run = snapshot.plots.run;
    m_messages = snapshot.messages;
    m_everHeard = snapshot.messages > 0;
    m_recorded = snapshot.recordedTime;
    m_lastMs = m_nowMs;
}

SilenceWatch::Level SilenceWatch::levelNow() const
{
    const double periods = static_cast<double>(silentMs()) / 1000.0 / period();
    if (periods >= SilentPeriods) {
        return Level::Silent;
    }
    return periods >= OverduePeriods ? Level::Overdue : Level::Heard;
}
