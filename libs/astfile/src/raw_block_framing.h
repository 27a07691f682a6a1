#pragma once

#include "day_clock.h"
#include "framing.h"

namespace korvane::astfile {

// ASTERIX data blocks one after the other: a message is one block, stamped by the time of day in its first record or,
// where that has none, like the block before. Where a length field cannot be right nothing tells where the next block
// begins, so reading ends there.
class RawBlockFraming final : public Framing {
public:
    void begin(BufferedInput &input, const QDateTime &modified) override;
    void next(BufferedInput &input, Record *record) override;
    void resume(qint64 timeMs) override { m_clock.resume(timeMs); }

private:
    void primeClock(std::span<const unsigned char> octets);

    DayClock m_clock;
};

} // namespace korvane::astfile
