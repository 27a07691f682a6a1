#pragma once

#include <cstddef>
#include <cstdint>

namespace korvane::modes {

// How the last three octets of a frame come about.
enum class ParityKind {
    Unknown, // a reserved format, or a military one without public definition
    Own,
    Interrogator, // its identifier laid over
    Address, // the aircraft's address laid over
};

struct DownlinkFormat {
    std::uint8_t number = 0;
    std::uint8_t length = 7; // octets
    ParityKind parity = ParityKind::Unknown;
};

// Of the first octet of a frame.
constexpr DownlinkFormat downlinkFormatOf(unsigned char octet)
{
    const auto number = static_cast<std::uint8_t>(octet >= 0xC0 ? 24 : octet >> 3);
    const auto length = static_cast<std::uint8_t>(number >= 16 ? 14 : 7);
    switch (number) {
    case 17:
    case 18:
        return {number, length, ParityKind::Own};
    case 11:
        return {number, length, ParityKind::Interrogator};
    case 0:
    case 4:
    case 5:
    case 16:
    case 20:
    case 21:
    case 24:
        return {number, length, ParityKind::Address};
    default:
        return {number, length, ParityKind::Unknown};
    }
}

constexpr std::uint32_t InterrogatorMask = 0x7F;

} // namespace korvane::modes
