#include "engine/pipeline_meter.h"

#include <algorithm>

void PipelineMeter::reset()
{
    const std::optional<qint64> windowStartMs = m_windowStartMs;
    *this = {};
    m_windowStartMs = windowStartMs;
}

void PipelineMeter::countMessage(qint64 octets)
{
    ++m_messages;
    m_octets += static_cast<quint64>(octets);
}

void PipelineMeter::countSnapshot(qint64 buildMs)
{
    ++m_snapshots;
    m_buildSumMs += buildMs;
    m_buildMaximumMs = std::max(m_buildMaximumMs, buildMs);
}

void PipelineMeter::countWeatherPicture(qint64 nowMs, int vectors)
{
    if (m_lastPictureMs) {
        m_pictureIntervalSeconds = static_cast<double>(nowMs - *m_lastPictureMs) / 1000.0;
    }
    m_lastPictureMs = nowMs;
    m_pictureVectors = vectors;
}

std::optional<PipelineStats> PipelineMeter::takeStats(qint64 nowMs, int snapshotTracks, int snapshotAlerts)
{
    if (!m_windowStartMs) {
        m_windowStartMs = nowMs;
        return std::nullopt;
    }
    if (nowMs - *m_windowStartMs < WindowMs) {
        return std::nullopt;
    }
    const double seconds = static_cast<double>(nowMs - *m_windowStartMs) / 1000.0;
    PipelineStats stats;
    stats.snapshotTracks = snapshotTracks;
    stats.snapshotAlerts = snapshotAlerts;
    stats.generationAverageMs = m_snapshots > 0 ? static_cast<int>(m_buildSumMs / m_snapshots) : 0;
    stats.generationMaximumMs = static_cast<int>(m_buildMaximumMs);
    stats.inputPacketsPerSecond = static_cast<double>(m_messages - m_messagesAtLastStats) / seconds;
    stats.inputKilobytesPerSecond = static_cast<double>(m_octets - m_octetsAtLastStats) / seconds / 1024.0;
    stats.videoRadialsPerSecond = static_cast<double>(m_radials) / seconds;
    stats.weatherSecondsPerPicture = m_pictureIntervalSeconds.value_or(0.0);
    stats.weatherIntervalValid = m_pictureIntervalSeconds.has_value();
    stats.weatherVectors = m_pictureVectors;

    m_snapshots = m_buildSumMs = m_buildMaximumMs = 0;
    m_radials = 0;
    m_messagesAtLastStats = m_messages;
    m_octetsAtLastStats = m_octets;
    m_windowStartMs = nowMs;
    return stats;
}
