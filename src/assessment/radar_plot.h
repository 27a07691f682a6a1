#pragma once

#include "asterix/asterix.h"

#include <optional>

// What one radar record says, as far as it is needed to judge the radar.
struct RadarPlot {
    double time = 0.0; // seconds; on the time axis of the assessment
    double range = 0.0; // slant, metres
    double azimuth = 0.0; // degrees clockwise from north
    bool primary = false; // kinds of detection
    bool secondary = false;
    std::optional<unsigned> address; // 24-bit
    std::optional<unsigned> trackNumber;
    std::optional<unsigned> squawk; // binary value
    std::optional<double> altitude; // metres, from Mode C

    // Nothing for a record that is no detection: no place, a track carried on or ended, a test target, a field
    // monitor. The time is left to the caller.
    static std::optional<RadarPlot> of(int category, const _ast_datarecord_t &record);
};
