#pragma once

#include <cstdint>

namespace korvane::modes {

// One frame as a receiver handed it out, before anything in it is looked at.
struct ModeSFrame {
    static constexpr unsigned long long NoTicks = ~0ULL;
    static constexpr unsigned TicksPerMillisecond = 12000;

    unsigned char octets[14] = {};
    std::uint8_t length = 0; // octets: 7 or 14; 2 for a Mode A/C reply
    std::uint8_t signalLevel = 0; // in the receiver's own scale; 0: not told
    unsigned long long ticks = NoTicks; // the receiver's 12 MHz counter, 48 bits
    unsigned long long timeStamp = 0; // milliseconds: of the counter at first, of whatever is set afterwards
};

} // namespace korvane::modes
