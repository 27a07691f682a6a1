#pragma once

#include "modes/mode_s_frame.h"

namespace korvane::modes {

// Ties a receiver's 12 MHz counter, which starts anywhere, to UTC. The first frame sets the tie; it is set anew when
// the two clocks have come apart, as after a restart of the receiver or a pause of the recording.
class ReceiverClock {
public:
    // The UTC time of a frame in milliseconds since 1970, given that of its arrival; the arrival for one without
    // time stamp.
    unsigned long long toUtc(const ModeSFrame &frame, unsigned long long arrival);

private:
    static constexpr long long MaximumDrift = 2000; // milliseconds

    bool m_isTied = false;
    long long m_offset = 0; // milliseconds from the counter to UTC
};

} // namespace korvane::modes
