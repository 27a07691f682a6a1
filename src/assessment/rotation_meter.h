#pragma once

#include "assessment/even_sample.h"
#include "assessment/sensor_report.h"
#include "recognition/period_meter.h"

#include <map>

// Measures the antenna's turns: by north markers, by crossings of one sector where there are none, by the reports of
// the same targets where there are no service messages.
class RotationMeter {
public:
    // Seconds; the sector is the number of its azimuth, of which the first to be noted counts.
    void noteNorth(double time) { m_north.note(time); }
    void noteSector(int sector, double time);
    void noteTarget(quint64 key, double time);
    void noteReported(double period) { m_reported = period; }

    // The best that is known so far, seconds; 0: nothing.
    double period() const;

    RotationReport report() const;

private:
    // What recurs once a turn. Turns in which it was lost are left out.
    class Marks {
    public:
        void note(double time);
        qint64 turns() const { return m_turns; }
        double mean() const { return m_turns > 0 ? m_sum / static_cast<double>(m_turns) : 0.0; }
        void report(RotationReport *report) const;

    private:
        std::optional<double> m_first;
        double m_last = 0.0;
        qint64 m_turns = 0;
        double m_sum = 0.0;
        // Sum of squares of deviations from the running mean (B. P. Welford, Technometrics 4, 1962).
        double m_squares = 0.0;
        double m_shortest = 0.0;
        double m_longest = 0.0;
        EvenSample<RotationReport::Turn> m_course{2000};
    };

    const Marks *marks() const;

    Marks m_north;
    Marks m_sectors;
    std::optional<int> m_sector; // whose crossings are noted
    PeriodMeter m_targets;
    qint64 m_targetsNoted = 0;
    mutable double m_targetPeriod = 0.0; // worked out now and then
    mutable qint64 m_targetPeriodOf = 0; // from so many
    double m_reported = 0.0;
};
