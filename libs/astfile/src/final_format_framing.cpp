#include "final_format_framing.h"

#include "octets.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace korvane::astfile {

namespace {

using Octets = std::span<const unsigned char>;

constexpr std::size_t HeaderSize = 8;
constexpr std::size_t NumberedHeaderSize = 12;
constexpr std::size_t StampSize = 4; // day and time, the header's last octets
constexpr std::array<unsigned char, 4> Footer = {0xa5, 0xa5, 0xa5, 0xa5};
constexpr int FramesToTry = 16;
constexpr int MaxDaysApart = 27; // the day octet of some recorders is the day of the month

struct Text {
    Q_DECLARE_TR_FUNCTIONS(FinalFormatFraming)
};

std::size_t frameLength(Octets octets)
{
    return octets.size() < 2 ? 0 : read16(octets, 0);
}

} // namespace

void FinalFormatFraming::begin(BufferedInput &input, const QDateTime &modified)
{
    m_clock.start(modified);
    m_day = -1;
    m_headerSize = HeaderSize;
    Octets octets = input.peek(BufferedInput::MaxPeek);
    const auto filledByBlocks = [](Octets blocks) {
        for (std::size_t length = blockLength(blocks); length > 0 && length <= blocks.size();
             length = blockLength(blocks)) {
            blocks = blocks.subspan(length);
        }
        return blocks.empty();
    };
    // The first frame that blocks fill exactly in one way only decides.
    for (int frame = 0; frame < FramesToTry; ++frame) {
        const std::size_t length = frameLength(octets);
        if (length < NumberedHeaderSize + Footer.size() || length > octets.size()) {
            return;
        }
        const Octets body = octets.first(length - Footer.size());
        const bool plain = filledByBlocks(body.subspan(HeaderSize));
        const bool numbered = filledByBlocks(body.subspan(NumberedHeaderSize));
        if (plain != numbered) {
            m_headerSize = plain ? HeaderSize : NumberedHeaderSize;
            return;
        }
        octets = octets.subspan(length);
    }
}

void FinalFormatFraming::next(BufferedInput &input, Record *record)
{
    Octets octets = input.peek(2);
    record->offset = input.position();
    if (octets.empty()) {
        record->kind = DataPacket::End;
        return;
    }
    const std::size_t length = frameLength(octets);
    if (octets.size() >= 2 && length < m_headerSize + Footer.size()) {
        setError(record, Text::tr("A frame's length field says %1.").arg(length));
        return;
    }
    octets = input.peek(length);
    if (octets.size() < std::max<std::size_t>(length, 2)) {
        setError(record, Text::tr("The file ends within a frame."));
        return;
    }
    const std::size_t bodyEnd = length - Footer.size();
    if (!std::equal(Footer.begin(), Footer.end(), octets.begin() + static_cast<std::ptrdiff_t>(bodyEnd))) {
        setError(record, Text::tr("A frame of %1 octets has no end mark.").arg(length));
        return;
    }
    record->kind = DataPacket::Data;
    record->data = octets.first(bodyEnd).subspan(m_headerSize);
    record->timeMs = timeOf(octets.subspan(m_headerSize - StampSize, StampSize));
    input.consume(length);
}

qint64 FinalFormatFraming::timeOf(Octets stamp)
{
    const int day = stamp[0];
    const int daysLater = m_day < 0 ? 0 : day - m_day;
    m_day = day;
    const qint64 ms = static_cast<qint64>(read24(stamp, 1)) * 10;
    return daysLater > 0 && daysLater <= MaxDaysApart && ms < DayClock::DayMs ? m_clock.nextOnDay(ms, daysLater)
                                                                              : m_clock.next(ms % DayClock::DayMs);
}

void FinalFormatFraming::resume(qint64 timeMs)
{
    m_clock.resume(timeMs);
    m_day = -1;
}

} // namespace korvane::astfile
