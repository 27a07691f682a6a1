#pragma once

#include <QDateTime>

#include <optional>

// Puts times of day from many sources on one axis, in seconds from the first of them, over any number of midnights.
class TimeAxis {
public:
    static constexpr double DaySeconds = 86400.0;

    // Arrival in seconds since 1970 UTC, where it is known: the day follows from it; otherwise from the time before.
    // wrap: after which the times of day begin anew, where that is sooner.
    double place(double timeOfDay, std::optional<double> arrival, double wrap = DaySeconds);
    double placeArrival(double arrival) { return relative(arrival); }

    // The time that the data have come to. One stamp that is far from all others does not move it.
    double now() const { return m_now; }
    double end() const { return m_end; } // the latest that now() was
    // Of the axis' zero; invalid where only times of day are known.
    QDateTime origin() const;

private:
    double relative(double absolute);
    void follow(double time);

    std::optional<double> m_origin; // seconds since 1970, or of the first day
    bool m_isDated = false;
    double m_last = 0.0; // absolute
    double m_now = 0.0;
    double m_end = 0.0;
    int m_strays = 0; // in a row
};
