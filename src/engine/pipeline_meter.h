#pragma once

#include "engine/pipeline_stats.h"

#include <QtGlobal>

#include <optional>

// Counts what runs through the pipeline and turns it into PipelineStats, one record per window. Times are milliseconds
// of a monotonic clock that the caller reads.
class PipelineMeter {
public:
    static constexpr qint64 WindowMs = 10000;

    // Forgets all counts, as a new input does. The statistics window under way goes on.
    void reset();

    void countMessage(qint64 octets);
    void countRadial() { ++m_radials; }
    void countSnapshot(qint64 buildMs);
    void countWeatherPicture(qint64 nowMs, int vectors);

    // Since the last reset().
    quint64 messages() const { return m_messages; }
    quint64 octets() const { return m_octets; }

    // The statistics of the window that ends at nowMs, and a new window begins; nothing while the window is younger
    // than WindowMs. The first call begins the first window.
    std::optional<PipelineStats> takeStats(qint64 nowMs, int snapshotTracks, int snapshotAlerts);

private:
    quint64 m_messages = 0;
    quint64 m_octets = 0;
    quint64 m_messagesAtLastStats = 0;
    quint64 m_octetsAtLastStats = 0;
    quint64 m_radials = 0;
    qint64 m_snapshots = 0;
    qint64 m_buildSumMs = 0;
    qint64 m_buildMaximumMs = 0;
    std::optional<qint64> m_windowStartMs;
    std::optional<qint64> m_lastPictureMs;
    std::optional<double> m_pictureIntervalSeconds;
    int m_pictureVectors = 0;
};
