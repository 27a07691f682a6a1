#pragma once

#include "traffic/aircraft.h"

#include <array>
#include <cstdint>

// Registers of a Mode S transponder as a radar reads them.
struct ModeSRegister {
    std::uint8_t code = 0; // 0x40 for BDS 4,0
    std::array<std::uint8_t, 7> octets{};
};

// BDS 4,0, selected vertical intention: MCP/FCU and FMS selected altitude and the standard pressure setting.
ModeSRegister selectedVerticalIntention(double selectedAltitude);
// BDS 5,0, track and turn report: roll angle, true track, ground speed, turn rate, true airspeed.
ModeSRegister trackAndTurn(const Aircraft::State &state);
// BDS 6,0, heading and speed report: magnetic heading, indicated airspeed, Mach, barometric and inertial vertical rate.
// magneticVariation: degrees, east positive.
ModeSRegister headingAndSpeed(const Aircraft::State &state, double magneticVariation);
