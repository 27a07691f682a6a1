#include "extractors.h"

#include "bits.h"

#include <algorithm>
#include <cstring>

namespace korvane::modes {

namespace {

constexpr unsigned char Escape = 0x1A;
constexpr std::size_t HeadSize = 7; // time stamp and signal level
constexpr std::size_t MaximumBody = HeadSize + 14;

// Octets of the frame of a kind; 0 for what is no kind.
std::size_t frameLength(unsigned char kind)
{
    switch (kind) {
    case '1':
        return 2;
    case '2':
        return 7;
    case '3':
    case '4': // the receiver's own state, which is passed over
        return 14;
    default:
        return 0;
    }
}

// Whether one of eight octets is the escape: the octet that becomes 0 borrows.
bool hasEscape(std::uint64_t octets)
{
    constexpr std::uint64_t Ones = 0x0101010101010101;
    const std::uint64_t zeroed = octets ^ Ones * Escape;
    return ((zeroed - Ones) & ~zeroed & Ones << 7) != 0;
}

std::uint64_t loadAsIs(const unsigned char *octets)
{
    std::uint64_t value = 0;
    std::memcpy(&value, octets, sizeof value);
    return value;
}

// size: 9 to 24, in three loads that may overlap.
bool isPlain(const unsigned char *body, std::size_t size)
{
    return !hasEscape(loadAsIs(body)) && !hasEscape(loadAsIs(body + std::min<std::size_t>(8, size - 8)))
        && !hasEscape(loadAsIs(body + size - 8));
}

void appendFrame(const unsigned char *body, std::size_t length, std::vector<ModeSFrame> &frames)
{
    ModeSFrame &frame = frames.emplace_back();
    frame.ticks = load64(body) >> 16;
    frame.timeStamp = frame.ticks / ModeSFrame::TicksPerMillisecond;
    frame.signalLevel = body[6];
    frame.length = static_cast<std::uint8_t>(length);
    if (length == 14) {
        std::memcpy(frame.octets, body + HeadSize, 14);
    } else {
        std::memcpy(frame.octets, body + HeadSize, length);
    }
}

enum class Copy { Whole, Incomplete, Broken };

// Takes doubled escapes apart. position is moved behind what was copied, or to the escape that breaks it off.
Copy copyBody(const unsigned char *&position, const unsigned char *end, unsigned char *body, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i) {
        if (position == end) {
            return Copy::Incomplete;
        }
        if (*position == Escape) {
            if (position + 1 == end) {
                return Copy::Incomplete;
            }
            if (position[1] != Escape) {
                return Copy::Broken;
            }
            ++position;
        }
        body[i] = *position++;
    }
    return Copy::Whole;
}

} // namespace

std::size_t extractBeast(std::string_view data, std::vector<ModeSFrame> &frames)
{
    const auto *const begin = reinterpret_cast<const unsigned char *>(data.data());
    const unsigned char *const end = begin + data.size();
    const unsigned char *position = begin;
    unsigned char copy[MaximumBody];
    while (position != end) {
        position = std::find(position, end, Escape);
        if (end - position < 2) {
            break;
        }
        const unsigned char kind = position[1];
        const std::size_t length = frameLength(kind);
        if (length == 0) {
            position += kind == Escape ? 2 : 1; // in the middle of a frame a doubled escape begins nothing
            continue;
        }
        const std::size_t size = HeadSize + length;
        const unsigned char *body = position + 2;
        const unsigned char *next = body + std::min(size, static_cast<std::size_t>(end - body));
        if (next != body + size || !isPlain(body, size)) {
            next = body;
            const Copy result = copyBody(next, end, copy, size);
            if (result == Copy::Incomplete) {
                break;
            }
            if (result == Copy::Broken) {
                position = next;
                continue;
            }
            body = copy;
        }
        if (kind != '4') {
            appendFrame(body, length, frames);
        }
        position = next;
    }
    return static_cast<std::size_t>(position - begin);
}

} // namespace korvane::modes
