#pragma once

#include <QMetaType>

#include <optional>

// What the plan view's frames of one statistics interval cost, in milliseconds.
struct PaintStats {
    quint64 frameCount = 0;
    double mapAverage = 0.0;
    double mapMaximum = 0.0;
    double trackAverage = 0.0;
    double trackMaximum = 0.0;
    double paintAverage = 0.0; // the whole frame
    double paintMaximum = 0.0;
};

Q_DECLARE_METATYPE(PaintStats)

// Adds up frame costs and hands them out once an interval.
class PaintStatsCollector {
public:
    static constexpr qint64 IntervalMs = 10000;

    // Adds one frame, costs in milliseconds. nowMs is any steady clock. The first frame only starts the interval; the
    // first frame at least IntervalMs later returns the totals, this frame included, and starts the next interval.
    std::optional<PaintStats> addFrame(double mapMs, double trackMs, double paintMs, qint64 nowMs);

private:
    PaintStats averages() const;

    PaintStats m_sums; // the averages' fields hold sums until they are handed out
    std::optional<qint64> m_intervalStart;
};
