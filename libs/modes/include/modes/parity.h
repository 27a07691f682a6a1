#pragma once

#include <cstddef>
#include <cstdint>

namespace korvane::modes {

// The remainder of a frame of 7 or 14 octets: 0 for good extended squitters, the address for replies that lay their
// parity over it, the interrogator for all-call replies.
std::uint32_t parityRemainder(const unsigned char *frame, std::size_t length);

// The bit, from 1, whose fault leaves this remainder; 0 for a remainder that no single bit leaves.
int faultyBit(std::uint32_t remainder, std::size_t length);

} // namespace korvane::modes
