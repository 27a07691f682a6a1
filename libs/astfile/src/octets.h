#pragma once

#include <cstdint>
#include <span>

namespace korvane::astfile {

// Network byte order; the caller has checked that the octets are there.
inline std::uint32_t read16(std::span<const unsigned char> octets, std::size_t offset)
{
    return static_cast<std::uint32_t>(octets[offset]) << 8 | octets[offset + 1];
}

inline std::uint32_t read24(std::span<const unsigned char> octets, std::size_t offset)
{
    return read16(octets, offset) << 8 | octets[offset + 2];
}

inline std::uint32_t read32(std::span<const unsigned char> octets, std::size_t offset)
{
    return read16(octets, offset) << 16 | read16(octets, offset + 2);
}

inline std::uint32_t readLittle32(std::span<const unsigned char> octets, std::size_t offset)
{
    return octets[offset] | static_cast<std::uint32_t>(octets[offset + 1]) << 8
        | static_cast<std::uint32_t>(octets[offset + 2]) << 16 | static_cast<std::uint32_t>(octets[offset + 3]) << 24;
}

} // namespace korvane::astfile
