#pragma once

#include <QDateTime>

#include <algorithm>

// How late pictures are at most when the window takes them. Counts in milliseconds.
class LargestDelay {
public:
    // From one time of day to another, both in seconds since midnight UTC; across midnight where the first is later.
    static int between(double timeOfDay, double now)
    {
        constexpr double SecondsPerDay = 86400.0;
        const double delay = now - timeOfDay;
        return qRound((delay < 0.0 ? delay + SecondsPerDay : delay) * 1000.0);
    }

    // A picture's own time of day, and the clock's when it was taken; a picture without one (negative) does not count.
    void add(double timeOfDay, const QDateTime &now)
    {
        if (timeOfDay >= 0.0) {
            m_largest = std::max(m_largest, between(timeOfDay, now.toUTC().time().msecsSinceStartOfDay() / 1000.0));
        }
    }

    int milliseconds() const { return m_largest; }

private:
    int m_largest = 0;
};
