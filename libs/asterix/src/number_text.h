#pragma once

// Numbers as JSON text, without a detour over floating point where the LSB allows it. Each function returns the end.

#include "layout.h"

#include <cstdint>

namespace korvane::asterix {

char *writeUnsigned(char *out, std::uint64_t value);

// bits of node, sign-extended where it is signed, times its LSB. The text reads back as the double nearest to that.
char *writeScaled(char *out, const Node &node, std::uint64_t bits);

} // namespace korvane::asterix
