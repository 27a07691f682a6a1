#include "modes/receiver_clock.h"

#include <cstdlib>

namespace korvane::modes {

unsigned long long ReceiverClock::toUtc(const ModeSFrame &frame, unsigned long long arrival)
{
    if (frame.ticks == ModeSFrame::NoTicks) {
        return arrival;
    }
    const auto counter = static_cast<long long>(frame.ticks / ModeSFrame::TicksPerMillisecond);
    const auto now = static_cast<long long>(arrival);
    if (!m_isTied || std::llabs(counter + m_offset - now) > MaximumDrift) {
        m_isTied = true;
        m_offset = now - counter;
    }
    return static_cast<unsigned long long>(counter + m_offset);
}

} // namespace korvane::modes
