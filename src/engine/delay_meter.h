#pragma once

#include "engine/source_statistics.h"

#include <array>

// The delay between the time of day in a source's records and their arrival, from a sample now and then.
class DelayMeter {
public:
    static constexpr int Window = 256; // samples

    // Whether a further sample is wanted at a time in milliseconds.
    bool isDue(qint64 nowMs) const { return nowMs >= m_nextMs; }
    // Arrival in milliseconds since 1970 UTC; the record's time in seconds, which begins anew after the period, a day
    // or less. What would be late by more than half a period is taken for early.
    void add(qint64 arrivalMs, double seconds, double period);

    DelayStatistics statistics() const;

private:
    std::array<float, Window> m_delays{}; // the oldest is overwritten
    int m_count = 0;
    int m_next = 0;
    qint64 m_nextMs = 0;
    double m_latest = 0.0;
    quint64 m_jumps = 0;
};
