#pragma once

namespace korvane::asterix {

// The six-bit alphabet of aircraft identifications; what is not assigned reads as a blank.
inline constexpr char IcaoAlphabet[] = " ABCDEFGHIJKLMNOPQRSTUVWXYZ                     0123456789      ";

} // namespace korvane::asterix
