#pragma once

// Big-endian octets to numbers. The caller has checked that the octets are there.

#include <cstdint>

namespace korvane::asterix {

inline std::uint32_t be16(const unsigned char *at)
{
    return std::uint32_t{at[0]} << 8 | at[1];
}

inline std::uint32_t be24(const unsigned char *at)
{
    return std::uint32_t{at[0]} << 16 | std::uint32_t{at[1]} << 8 | at[2];
}

inline std::uint32_t be32(const unsigned char *at)
{
    return be16(at) << 16 | be16(at + 2);
}

// Of 0 to 8 octets.
inline std::uint64_t beOctets(const unsigned char *at, int count)
{
    switch (count) {
    case 1:
        return at[0];
    case 2:
        return be16(at);
    case 3:
        return be24(at);
    case 4:
        return be32(at);
    default: {
        std::uint64_t value = 0;
        for (int i = 0; i < count; ++i) {
            value = value << 8 | at[i];
        }
        return value;
    }
    }
}

// Bits of a field of 1 to 64, that begins bitOffset bits after at; reads only the octets that the field touches.
inline std::uint64_t bitsAt(const unsigned char *at, unsigned bitOffset, unsigned bits)
{
    const unsigned char *first = at + bitOffset / 8;
    const unsigned skipped = bitOffset % 8;
    const unsigned octets = (skipped + bits + 7) / 8;
    const unsigned surplus = octets * 8 - skipped - bits;
    if (octets <= 8) {
        return beOctets(first, static_cast<int>(octets)) >> surplus & (~std::uint64_t{0} >> (64 - bits));
    }
    const std::uint64_t upper = beOctets(first, 8) & (~std::uint64_t{0} >> skipped);
    return upper << (8 - surplus) | std::uint64_t{first[8]} >> surplus;
}

// Two's complement of so many bits.
inline std::int64_t signExtended(std::uint64_t value, unsigned bits)
{
    const std::uint64_t sign = std::uint64_t{1} << (bits - 1);
    return static_cast<std::int64_t>((value ^ sign) - sign);
}

} // namespace korvane::asterix
