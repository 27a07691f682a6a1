#pragma once

#include <cstdint>
#include <optional>

namespace korvane::modes {

// The 13-bit identity code to the binary value of its four octal digits, and back.
std::uint16_t squawkFromCode(unsigned code);
unsigned codeFromSquawk(std::uint16_t squawk);

// Feet of a 13-bit altitude code: in steps of 25 feet, of 100 feet (Gillham) or in metres. Nothing for codes that mean
// none.
std::optional<int> altitudeFromCode(unsigned code);
// Steps of 25 feet, rounded; -1000 to 50175.
unsigned codeFromAltitude(int feet);

// Eight characters of six bits, first in the highest of 48, to text without filling: letters, digits and blanks. False,
// with no text, when one of them is none.
bool callsignFromCode(std::uint64_t code, char (&text)[9]);
std::uint64_t codeFromCallsign(const char *text);

} // namespace korvane::modes
