#include "mode_s_framing.h"

#include "day_clock.h"

#include <algorithm>
#include <array>

namespace korvane::astfile {

namespace {

using Octets = std::span<const unsigned char>;
using Frame = ModeSFraming::Frame;

constexpr qint64 TicksPerMs = 12000;
constexpr qint64 TicksPerSecond = 1000 * TicksPerMs;
constexpr qint64 MaxGapTicks = 3600 * TicksPerSecond;
constexpr std::size_t MaxFrameSize = 64; // octets of either kind, with room for doubled ones and line ends

constexpr unsigned char Escape = 0x1a;
constexpr std::size_t StampOctets = 6;
constexpr qint64 PositionedStamp = 0xff004d4c4154; // stands for "no time, made from several receivers"

// Octets after the kind: stamp, signal level, frame.
std::size_t binarySize(unsigned char kind)
{
    switch (kind) {
    case '1':
        return StampOctets + 1 + 2;
    case '2':
        return StampOctets + 1 + 7;
    case '3':
        return StampOctets + 1 + 14;
    default:
        return 0;
    }
}

std::optional<qint64> usable(qint64 ticks)
{
    return ticks == 0 || ticks == PositionedStamp ? std::nullopt : std::optional(ticks);
}

Frame binaryFrame(Octets octets)
{
    const std::size_t wanted = octets.size() < 2 ? 0 : binarySize(octets[1]);
    std::size_t at = 2;
    qint64 ticks = 0;
    for (std::size_t i = 0; i < wanted; ++i, ++at) {
        if (at < octets.size() && octets[at] == Escape) {
            ++at;
            if (at < octets.size() && octets[at] != Escape) {
                return {}; // the next frame: this one is cut short
            }
        }
        if (at >= octets.size()) {
            return {};
        }
        ticks = i < StampOctets ? ticks << 8 | octets[at] : ticks;
    }
    return wanted == 0 ? Frame() : Frame{at, usable(ticks)};
}

int hexDigit(unsigned char octet)
{
    if (octet >= '0' && octet <= '9') {
        return octet - '0';
    }
    const int lower = octet | 0x20;
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// Digits before those of the frame: stamp and signal level.
struct TextRow {
    unsigned char start;
    bool stamped;
    std::size_t prefixDigits;
};

constexpr std::array TextRows = {
    TextRow{'*', false, 0},
    TextRow{'@', true, 12},
    TextRow{'%', true, 12},
    TextRow{'<', true, 14},
};

const TextRow *textRowOf(unsigned char start)
{
    const auto row =
        std::find_if(TextRows.begin(), TextRows.end(), [start](const TextRow &r) { return r.start == start; });
    return row == TextRows.end() ? nullptr : &*row;
}

Frame textFrame(const TextRow &row, Octets octets)
{
    std::size_t digits = 0;
    qint64 ticks = 0;
    while (digits + 1 < octets.size() && hexDigit(octets[digits + 1]) >= 0) {
        ticks = digits < 2 * StampOctets ? ticks << 4 | hexDigit(octets[digits + 1]) : ticks;
        ++digits;
    }
    const std::size_t frameDigits = digits - std::min(digits, row.prefixDigits);
    const bool whole = digits + 1 < octets.size() && octets[digits + 1] == ';';
    if (!whole || (frameDigits != 4 && frameDigits != 14 && frameDigits != 28)) {
        return {};
    }
    return {digits + 2, row.stamped ? usable(ticks) : std::nullopt};
}

Frame frameAt(Octets octets)
{
    if (octets[0] == Escape) {
        return binaryFrame(octets);
    }
    const TextRow *row = textRowOf(octets[0]);
    return row ? textFrame(*row, octets) : Frame();
}

} // namespace

void ModeSFraming::begin(BufferedInput &, const QDateTime &modified)
{
    const qint64 modifiedMs = std::max<qint64>(modified.isValid() ? modified.toMSecsSinceEpoch() : 0, 0);
    m_startMs = modifiedMs - modifiedMs % DayClock::DayMs;
    m_elapsedTicks = 0;
    m_lastTicks.reset();
    m_timed = false;
}

void ModeSFraming::next(BufferedInput &input, Record *record)
{
    for (Octets octets = input.peek(MaxFrameSize); !octets.empty(); octets = input.peek(MaxFrameSize)) {
        const Frame frame = frameAt(octets);
        if (frame.size == 0) {
            input.consume(1);
            continue;
        }
        record->kind = DataPacket::Data;
        record->offset = input.position();
        record->data = octets.first(frame.size);
        record->timeMs = timeOf(frame.ticks);
        input.consume(frame.size);
        return;
    }
    record->kind = DataPacket::End;
    record->offset = input.position();
}

// A frame without a stamp came right after the one before.
std::optional<qint64> ModeSFraming::timeOf(std::optional<qint64> ticks)
{
    if (ticks) {
        const qint64 step = m_lastTicks ? *ticks - *m_lastTicks : 0;
        m_elapsedTicks += step >= -TicksPerSecond && step <= MaxGapTicks ? step : 0;
        m_lastTicks = ticks;
        m_timed = true;
    }
    return m_timed ? std::optional(m_startMs + m_elapsedTicks / TicksPerMs) : std::nullopt;
}

void ModeSFraming::resume(qint64 timeMs)
{
    m_startMs = timeMs;
    m_elapsedTicks = 0;
    m_lastTicks.reset();
    m_timed = true;
}

} // namespace korvane::astfile
