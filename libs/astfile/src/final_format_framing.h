#pragma once

#include "day_clock.h"
#include "framing.h"

namespace korvane::astfile {

// The final format: per frame the length of the whole frame, 16 bits; in a variant a sequence number, 32 bits; an octet
// of error code, one of board and line, one of recording day, the time of day in 0.01 s, 24 bits; data blocks; four
// octets A5. A message is what a frame holds.
class FinalFormatFraming final : public Framing {
public:
    void begin(BufferedInput &input, const QDateTime &modified) override;
    void next(BufferedInput &input, Record *record) override;
    void resume(qint64 timeMs) override;

private:
    qint64 timeOf(std::span<const unsigned char> stamp);

    std::size_t m_headerSize = 0;
    DayClock m_clock;
    int m_day = -1; // of the last frame; -1: none
};

} // namespace korvane::astfile
