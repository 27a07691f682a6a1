#pragma once

#include "tracking/plot.h"

// Collects plots for readers that look now and then, and keeps the newest of those that were published, so that a
// reader loses none when it misses a publication or some. Memory is bounded by the number of plots and of batches: a
// reader that looks every 15 seconds loses nothing at 20,000 plots a second. In the steady state nothing is allocated
// per plot. Engine's thread.
class PlotStore {
public:
    static constexpr std::size_t MaximumPlots = 400000; // published ones; 13 MB
    static constexpr std::size_t MaximumBatchPlots = 50000;
    static constexpr qsizetype MaximumBatches = 512; // nearly two minutes of publications

    // Forgets everything: another run begins.
    void restart();

    void add(const QPointF &place, Track::Type type, qint64 timeMs)
    {
        m_arriving.push_back({place, timeMs, type});
        if (m_arriving.size() == MaximumBatchPlots) {
            closeBatch();
        }
    }

    // Publishes what has been added since.
    const PlotHistory &publish();

private:
    void closeBatch();

    std::vector<Plot> m_arriving; // keeps its memory
    std::size_t m_published = 0; // plots in the history
    PlotHistory m_history;
};
