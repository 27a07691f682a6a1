#include "modes/codes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace korvane::modes {

namespace {

// The pulses of identity and altitude codes, as they stand in the 13 bits.
enum Pulse : unsigned {
    C1 = 0x1000,
    A1 = 0x0800,
    C2 = 0x0400,
    A2 = 0x0200,
    C4 = 0x0100,
    A4 = 0x0080,
    B1 = 0x0020,
    D1 = 0x0010,
    B2 = 0x0008,
    D2 = 0x0004,
    B4 = 0x0002,
    D4 = 0x0001,
};
constexpr unsigned MetricBit = 0x0040;
constexpr unsigned QuarterBit = 0x0010; // steps of 25 feet

// Most significant first.
constexpr std::array SquawkPulses{A4, A2, A1, B4, B2, B1, C4, C2, C1, D4, D2, D1};
constexpr std::array FiveHundredPulses{D1, D2, D4, A1, A2, A4, B1, B2, B4};
constexpr std::array HundredPulses{C1, C2, C4};

constexpr double FeetPerMetre = 1 / 0.3048;
constexpr std::array<char, 65> CallsignCharacters{"?ABCDEFGHIJKLMNOPQRSTUVWXYZ????? ???????????????0123456789??????"};

template <std::size_t Size>
unsigned gather(unsigned code, const std::array<Pulse, Size> &pulses)
{
    unsigned value = 0;
    for (const Pulse pulse : pulses) {
        value = value << 1 | (code & pulse ? 1U : 0U);
    }
    return value;
}

unsigned fromGray(unsigned gray)
{
    unsigned value = gray;
    for (unsigned shifted = gray >> 1; shifted; shifted >>= 1) {
        value ^= shifted;
    }
    return value;
}

std::optional<int> altitudeFromGillham(unsigned code)
{
    const auto fiveHundreds = static_cast<int>(fromGray(gather(code, FiveHundredPulses)));
    auto hundreds = static_cast<int>(fromGray(gather(code, HundredPulses)));
    if (hundreds == 7) {
        hundreds = 5;
    } else if (hundreds == 0 || hundreds > 4) {
        return std::nullopt;
    }
    if (fiveHundreds % 2) {
        hundreds = 6 - hundreds; // every other run of five counts backwards
    }
    return fiveHundreds * 500 + hundreds * 100 - 1300;
}

} // namespace

std::uint16_t squawkFromCode(unsigned code)
{
    return static_cast<std::uint16_t>(gather(code, SquawkPulses));
}

unsigned codeFromSquawk(std::uint16_t squawk)
{
    unsigned code = 0;
    for (std::size_t i = 0; i < SquawkPulses.size(); ++i) {
        code |= squawk >> (11 - i) & 1 ? SquawkPulses[i] : 0U;
    }
    return code;
}

std::optional<int> altitudeFromCode(unsigned code)
{
    if (code == 0) {
        return std::nullopt;
    }
    if (code & MetricBit) {
        return static_cast<int>(std::lround(((code & 0x1F80) >> 1 | (code & 0x3F)) * FeetPerMetre));
    }
    if (code & QuarterBit) {
        return static_cast<int>((code & 0x1F80) >> 2 | (code & 0x20) >> 1 | (code & 0x0F)) * 25 - 1000;
    }
    return altitudeFromGillham(code);
}

unsigned codeFromAltitude(int feet)
{
    const auto steps = static_cast<unsigned>(std::lround((std::clamp(feet, -1000, 50175) + 1000) / 25.0));
    return (steps & 0x7E0) << 2 | (steps & 0x10) << 1 | QuarterBit | (steps & 0x0F);
}

bool callsignFromCode(std::uint64_t code, char (&text)[9])
{
    for (std::size_t i = 0; i < 8; ++i) {
        text[i] = CallsignCharacters[code >> (42 - 6 * i) & 63];
    }
    text[8] = '\0';
    if (std::memchr(text, '?', 8)) {
        text[0] = '\0';
        return false;
    }
    for (int i = 7; i >= 0 && text[i] == ' '; --i) {
        text[i] = '\0';
    }
    return true;
}

std::uint64_t codeFromCallsign(const char *text)
{
    constexpr std::uint64_t Blank = 32;
    std::uint64_t code = 0;
    bool isOver = false;
    for (std::size_t i = 0; i < 8; ++i) {
        isOver = isOver || text[i] == '\0';
        const char *const found = isOver || text[i] == '?' ? nullptr : std::strchr(CallsignCharacters.data(), text[i]);
        code = code << 6 | (found ? static_cast<std::uint64_t>(found - CallsignCharacters.data()) : Blank);
    }
    return code;
}

} // namespace korvane::modes
