#pragma once

#include "assessment/radar_plot.h"
#include "assessment/sensor_report.h"

#include <unordered_map>
#include <vector>

// Strings the plots of one radar to chains, a target each, and counts turns in which targets were detected, and plots
// that belong to none. A chain is told by 24-bit address, by the radar's own track number, or by Mode 3/A code, in this
// order; plots with none of them belong together when an aircraft could have flown from one to the other.
class PlotChains {
public:
    // Plots come in about the order of their times. period: seconds a turn; nothing is counted while it is 0. False for
    // a plot that came before, as it does from two networks with the same data.
    bool add(const RadarPlot &plot, double period);
    // The radar was silent up to this time: who was not detected before was perhaps there.
    void noteSilence(double end) { m_silenceEnd = end; }
    // Chains that have ended by now, and lone plots, are settled. Now and then.
    void settle(double now, double period);

    DetectionReport detection() const;
    FalsePlotReport falsePlots(double period) const;

    // What the plot names its target by; nothing for those that carry no identity.
    static std::optional<quint64> keyOf(const RadarPlot &plot);

private:
    struct Chain {
        double time = 0.0; // of the last plot
        double range = 0.0;
        double azimuth = 0.0;
        qint64 plots = 0;
        bool transponder = false;
    };
    struct Loner // a plot without identity
    {
        double time = 0.0;
        double range = 0.0;
        double azimuth = 0.0;
        bool inCompany = false;
    };

    std::optional<quint64> chainKey(const RadarPlot &plot);
    void addToChain(Chain &chain, const RadarPlot &plot, double period);
    void countLooks(const Chain &chain, const RadarPlot &plot, int turns);
    static void begin(Chain &chain, const RadarPlot &plot);
    bool isRepeated(const RadarPlot &plot, const std::optional<quint64> &key) const;
    void addLoner(const RadarPlot &plot, double period);
    void countFalse(double range, double azimuth);

    DetectionGrid m_grid;
    std::unordered_map<quint64, Chain> m_chains;
    std::unordered_map<unsigned, quint64> m_chainOfNumber; // chains known by address, by the radar's track numbers
    std::vector<Loner> m_loners; // of the last turns
    std::vector<qint64> m_primaryHits = std::vector<qint64>(512); // by nautical mile
    FalsePlotReport m_false;
    double m_silenceEnd = -1e9;
    std::optional<double> m_begin; // of the time that was looked at
    double m_end = 0.0;
};
