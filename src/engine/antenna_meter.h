#pragma once

#include "engine/source_statistics.h"

#include <array>

// What north markers and sector crossings tell of an antenna: how fast it turns, and which sectors were not heard of.
class AntennaMeter {
public:
    // Seconds of a clock that begins anew every day. Degrees clockwise from north.
    void crossNorth(double seconds);
    void crossSector(double azimuth, double seconds);

    AntennaStatistics statistics() const;

private:
    static constexpr int Revolutions = 10;
    static constexpr int Steps = 16;

    void addRevolution(double period);
    double medianPeriod() const;
    void countMissing(double step);
    double medianStep() const;

    quint64 m_northMarkers = 0;
    quint64 m_sectorCrossings = 0;
    quint64 m_revolutions = 0;
    quint64 m_missingSectors = 0;
    double m_lastNorth = -1.0; // seconds; negative: none yet
    double m_lastSector = -1.0;
    double m_lastAzimuth = 0.0;
    double m_turned = 0.0; // degrees since the revolution under way began
    double m_turning = 0.0; // seconds
    std::array<double, Revolutions> m_periods{}; // the oldest is overwritten, by number of the revolution
    std::array<double, Steps> m_steps{}; // degrees, the same by number of steps
    quint64 m_stepCount = 0;
};
