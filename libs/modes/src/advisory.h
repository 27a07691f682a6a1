#pragma once

#include "modes/extended_squitter.h"

#include <cstdint>

namespace korvane::modes {

// From bit 9 of a message field on: the layout is the same wherever advisories are reported.
ResolutionAdvisory decodeAdvisory(std::uint64_t field);

} // namespace korvane::modes
