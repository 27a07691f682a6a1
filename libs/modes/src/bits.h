#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace korvane::modes {

// Bits of a 56-bit message field, numbered from 1 at its most significant end as the formats are written down.
constexpr std::uint32_t bits(std::uint64_t field, int first, int count)
{
    return static_cast<std::uint32_t>(field >> (57 - first - count) & ((1ULL << count) - 1));
}

constexpr bool bit(std::uint64_t field, int position)
{
    return bits(field, position, 1) != 0;
}

// Two's complement.
constexpr int signedBits(std::uint64_t field, int first, int count)
{
    const auto value = static_cast<int>(bits(field, first, count));
    return bit(field, first) ? value - (1 << count) : value;
}

// Big-endian numbers.
inline std::uint64_t load64(const unsigned char *octets)
{
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < 8; ++i) {
        value = value << 8 | octets[i];
    }
    return value;
}

inline std::uint32_t load32(const unsigned char *octets)
{
    return static_cast<std::uint32_t>(octets[0]) << 24 | static_cast<std::uint32_t>(octets[1]) << 16
        | static_cast<std::uint32_t>(octets[2]) << 8 | octets[3];
}

inline std::uint32_t load24(const unsigned char *octets)
{
    return static_cast<std::uint32_t>(octets[0]) << 16 | static_cast<std::uint32_t>(octets[1]) << 8 | octets[2];
}

} // namespace korvane::modes
