#pragma once

#include "framing.h"

namespace korvane::astfile {

// Mode S frames as receivers hand them out, in binary (1A, kind, 12 MHz stamp, signal level, frame, with 1A doubled) or
// as text ('*', '@', '%' or '<', hexadecimal digits, ';'), even mixed. A message is one frame as it stands in the file;
// octets that belong to none are passed over. Stamps count from the first one, which is put at midnight; where the
// counter jumps back by more than a second or on by more than an hour it is taken to have been set anew.
class ModeSFraming final : public Framing {
public:
    void begin(BufferedInput &input, const QDateTime &modified) override;
    void next(BufferedInput &input, Record *record) override;
    void resume(qint64 timeMs) override;

    struct Frame {
        std::size_t size = 0; // octets in the file; 0: none
        std::optional<qint64> ticks; // of the 12 MHz counter
    };

private:
    std::optional<qint64> timeOf(std::optional<qint64> ticks);

    qint64 m_startMs = 0;
    std::optional<qint64> m_lastTicks;
    qint64 m_elapsedTicks = 0; // since the start
    bool m_timed = false; // some frame had a stamp
};

} // namespace korvane::astfile
