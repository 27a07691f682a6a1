#pragma once

#include <optional>
#include <span>

namespace korvane::astfile {

// Whether frames of a libpcap link type (DLT_...) can be unpacked.
bool linkTypeKnown(int linkType);

// The IP packet in a captured frame, padding included; nothing when the frame carries something else or is too short.
// The result points into the frame.
std::optional<std::span<const unsigned char>> networkPacket(int linkType, std::span<const unsigned char> frame);

} // namespace korvane::astfile
