#include "gps_framing.h"

#include "octets.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace korvane::astfile {

namespace {

using Octets = std::span<const unsigned char>;

constexpr std::size_t BlockHeaderSize = 3;
constexpr int RecordsToTry = 32;

// Of the ten octets only the time is the same in all recordings.
qint64 receiverTime(Octets trailer)
{
    return static_cast<qint64>(read24(trailer, 6)) * 1000 / 128;
}

qint64 millisecondTime(Octets trailer)
{
    return readLittle32(trailer, 0);
}

constexpr std::array<GpsFraming::Layout, 4> Layouts = {{
    {2200, 10, receiverTime},
    {0, 4, millisecondTime},
    {0, 10, receiverTime},
    {2200, 4, millisecondTime},
}};

struct Text {
    Q_DECLARE_TR_FUNCTIONS(GpsFraming)
};

} // namespace

void GpsFraming::begin(BufferedInput &input, const QDateTime &modified)
{
    m_clock.start(modified);
    m_cut = false;
    const Octets octets = input.peek(BufferedInput::MaxPeek);
    m_layout = &*std::max_element(Layouts.begin(), Layouts.end(), [octets](const Layout &a, const Layout &b) {
        return recordsThatFit(a, octets) < recordsThatFit(b, octets); // the first of equals
    });
    input.consume(std::min(octets.size(), m_layout->headerSize));
}

// Whole records from the header on that could be: a recording read in a wrong way soon runs into one that cannot.
int GpsFraming::recordsThatFit(const Layout &layout, Octets octets)
{
    octets = octets.subspan(std::min(octets.size(), layout.headerSize));
    for (int records = 0; records < RecordsToTry; ++records) {
        const std::size_t length = blockLength(octets);
        if (length == 0 || octets[0] == 0 || length + layout.trailerSize > octets.size()
            || layout.timeOf(octets.subspan(length)) >= DayClock::DayMs) {
            return records;
        }
        octets = octets.subspan(length + layout.trailerSize);
    }
    return RecordsToTry;
}

void GpsFraming::next(BufferedInput &input, Record *record)
{
    Octets octets = input.peek(BlockHeaderSize);
    record->offset = input.position();
    if (m_cut) {
        setError(record, Text::tr("The file ends within a time stamp."));
        return;
    }
    if (octets.empty()) {
        record->kind = DataPacket::End;
        return;
    }
    const std::size_t length = blockLength(octets);
    if (length == 0 && octets.size() >= BlockHeaderSize) {
        setError(record, Text::tr("A data block's length field says %1.").arg(read16(octets, 1)));
        return;
    }
    octets = input.peek(length + m_layout->trailerSize);
    if (length == 0 || octets.size() < length) {
        setError(record, Text::tr("The file ends within a data block."));
        return;
    }
    record->kind = DataPacket::Data;
    record->data = octets.first(length);
    m_cut = octets.size() < length + m_layout->trailerSize;
    const qint64 ms = m_cut ? DayClock::DayMs : m_layout->timeOf(octets.subspan(length));
    record->timeMs = ms < DayClock::DayMs ? m_clock.next(ms) : m_clock.last();
    input.consume(m_cut ? length : length + m_layout->trailerSize);
}

void GpsFraming::resume(qint64 timeMs)
{
    m_clock.resume(timeMs);
    m_cut = false;
}

} // namespace korvane::astfile
