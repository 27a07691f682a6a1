#include "view/paint_stats.h"

#include <algorithm>
#include <utility>

std::optional<PaintStats> PaintStatsCollector::addFrame(double mapMs, double trackMs, double paintMs, qint64 nowMs)
{
    ++m_sums.frameCount;
    m_sums.mapAverage += mapMs;
    m_sums.mapMaximum = std::max(m_sums.mapMaximum, mapMs);
    m_sums.trackAverage += trackMs;
    m_sums.trackMaximum = std::max(m_sums.trackMaximum, trackMs);
    m_sums.paintAverage += paintMs;
    m_sums.paintMaximum = std::max(m_sums.paintMaximum, paintMs);

    if (!m_intervalStart) {
        m_intervalStart = nowMs;
        return std::nullopt;
    }
    if (nowMs - *m_intervalStart < IntervalMs) {
        return std::nullopt;
    }
    const PaintStats stats = averages();
    m_sums = PaintStats();
    m_intervalStart = nowMs;
    return stats;
}

PaintStats PaintStatsCollector::averages() const
{
    PaintStats stats = m_sums;
    const double frames = static_cast<double>(m_sums.frameCount);
    stats.mapAverage /= frames;
    stats.trackAverage /= frames;
    stats.paintAverage /= frames;
    return stats;
}
