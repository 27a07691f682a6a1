#pragma once

#include "day_clock.h"
#include "framing.h"

namespace korvane::astfile {

// Recordings stamped by a positioning receiver: data blocks, each followed by its time of day. They come with a header
// of 2,200 octets and ten octets after each block, or with neither and milliseconds of the day instead.
class GpsFraming final : public Framing {
public:
    struct Layout {
        std::size_t headerSize;
        std::size_t trailerSize; // octets after each block
        qint64 (*timeOf)(std::span<const unsigned char> trailer); // ms of the day
    };

    void begin(BufferedInput &input, const QDateTime &modified) override;
    void next(BufferedInput &input, Record *record) override;
    void resume(qint64 timeMs) override;

private:
    static int recordsThatFit(const Layout &layout, std::span<const unsigned char> octets);

    const Layout *m_layout = nullptr;
    DayClock m_clock;
    bool m_cut = false; // the file ended in the last record's trailer
};

} // namespace korvane::astfile
