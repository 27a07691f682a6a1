#include "extractors.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace korvane::modes {

namespace {

constexpr std::size_t TicksDigits = 12;
constexpr std::size_t LevelDigits = 2;
constexpr std::size_t MaximumDigits = TicksDigits + LevelDigits + 28;
constexpr std::uint8_t NoDigit = 0xFF;
constexpr std::uint8_t Start = 0xFE;

// What each character is: the value of a hexadecimal digit, the start of a message, or neither.
constexpr std::array<std::uint8_t, 256> makeCharacters()
{
    std::array<std::uint8_t, 256> table{};
    table.fill(NoDigit);
    for (std::uint8_t i = 0; i < 10; ++i) {
        table['0' + i] = i;
    }
    for (std::uint8_t i = 0; i < 6; ++i) {
        table['A' + i] = table['a' + i] = static_cast<std::uint8_t>(10 + i);
    }
    table['*'] = table['@'] = table['<'] = Start;
    return table;
}

constexpr std::array<std::uint8_t, 256> Characters = makeCharacters();

std::uint8_t kindOf(char character)
{
    return Characters[static_cast<unsigned char>(character)];
}

unsigned char octetOf(const char *digits)
{
    return static_cast<unsigned char>(kindOf(digits[0]) << 4 | kindOf(digits[1]));
}

// digits: all hexadecimal. Passed over when their number fits no frame.
void appendFrame(char start, std::string_view digits, std::vector<ModeSFrame> &frames)
{
    const std::size_t prefix = start == '*' ? 0 : start == '@' ? TicksDigits : TicksDigits + LevelDigits;
    const std::size_t count = digits.size() - std::min(prefix, digits.size());
    if (count != 4 && count != 14 && count != 28) {
        return;
    }
    ModeSFrame &frame = frames.emplace_back();
    const char *position = digits.data();
    if (prefix) {
        frame.ticks = 0;
        for (std::size_t i = 0; i < TicksDigits; i += 2) {
            frame.ticks = frame.ticks << 8 | octetOf(position + i);
        }
        frame.timeStamp = frame.ticks / ModeSFrame::TicksPerMillisecond;
    }
    if (start == '<') {
        frame.signalLevel = octetOf(position + TicksDigits);
    }
    position += prefix;
    frame.length = static_cast<std::uint8_t>(count / 2);
    for (std::size_t i = 0; i < frame.length; ++i) {
        frame.octets[i] = octetOf(position + 2 * i);
    }
}

} // namespace

std::size_t extractAvr(std::string_view data, std::vector<ModeSFrame> &frames)
{
    const char *const begin = data.data();
    const char *const end = begin + data.size();
    const char *position = begin;
    while (position != end) {
        if (kindOf(*position) != Start) {
            ++position;
            continue;
        }
        const char *const digits = position + 1;
        const char *const limit =
            digits + std::min<std::size_t>(MaximumDigits + 1, static_cast<std::size_t>(end - digits));
        const char *const stop = std::find_if(digits, limit, [](char c) { return kindOf(c) >= Start; });
        if (stop == end && stop - digits <= static_cast<std::ptrdiff_t>(MaximumDigits)) {
            break;
        }
        if (stop != limit && *stop == ';') {
            appendFrame(*position, {digits, static_cast<std::size_t>(stop - digits)}, frames);
        }
        position = stop; // which may be the start of the next
    }
    return static_cast<std::size_t>(position - begin);
}

} // namespace korvane::modes
