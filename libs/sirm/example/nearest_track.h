#pragma once

#include <cstddef>
#include <string>

// One line on the nearest living track of a radar's datagram.
std::string nearestTrack(const unsigned char *octets, std::size_t length);
