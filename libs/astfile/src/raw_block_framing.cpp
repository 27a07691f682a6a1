#include "raw_block_framing.h"

#include "block_time.h"

#include <QCoreApplication>

namespace korvane::astfile {

namespace {

constexpr std::size_t HeaderSize = 3;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(RawBlockFraming)
};

} // namespace

void RawBlockFraming::begin(BufferedInput &input, const QDateTime &modified)
{
    m_clock.start(modified);
    primeClock(input.peek(BufferedInput::MaxPeek));
}

// Blocks before the first that tells the whole time of day are stamped by it, too: truncated times need it, and the
// first message of a replay should have a time.
void RawBlockFraming::primeClock(std::span<const unsigned char> octets)
{
    std::optional<BlockTime> truncated;
    for (std::size_t length = blockLength(octets); length > 0 && length <= octets.size();
         length = blockLength(octets)) {
        const auto time = blockTime(octets.first(length));
        if (time && time->periodMs == DayClock::DayMs) {
            m_clock.next(time->ms);
            return;
        }
        truncated = truncated ? truncated : time;
        octets = octets.subspan(length);
    }
    if (truncated) {
        m_clock.next(truncated->ms, truncated->periodMs);
    }
}

void RawBlockFraming::next(BufferedInput &input, Record *record)
{
    auto octets = input.peek(HeaderSize);
    record->offset = input.position();
    if (octets.empty()) {
        record->kind = DataPacket::End;
        return;
    }
    if (octets.size() < HeaderSize) {
        setError(record, Text::tr("The file ends within a data block's header."));
        return;
    }
    const std::size_t length = blockLength(octets);
    if (length == 0) {
        setError(record, Text::tr("A data block's length field says %1.").arg(octets[1] << 8 | octets[2]));
        return;
    }
    octets = input.peek(length);
    if (octets.size() < length) {
        setError(record, Text::tr("The file ends within a data block of %1 octets.").arg(length));
        return;
    }
    record->kind = DataPacket::Data;
    record->data = octets.first(length);
    if (const auto time = blockTime(record->data)) {
        m_clock.next(time->ms, time->periodMs);
    }
    record->timeMs = m_clock.last();
    input.consume(length);
}

} // namespace korvane::astfile
