#pragma once

#include "modes/mode_s_frame.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace korvane::modes {

// Append the frames of data to frames and return how many octets are done with; the rest is the beginning of a frame.
std::size_t extractBeast(std::string_view data, std::vector<ModeSFrame> &frames);
std::size_t extractAvr(std::string_view data, std::vector<ModeSFrame> &frames);
std::size_t extractRaw(std::string_view data, std::vector<ModeSFrame> &frames);
std::size_t extractRawRssi(std::string_view data, std::vector<ModeSFrame> &frames);

} // namespace korvane::modes
