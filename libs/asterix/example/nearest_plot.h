#pragma once

#include <cstddef>
#include <string>

// One line on the nearest plot of a CAT048 datagram.
std::string nearestPlot(const unsigned char *data, std::size_t length);
