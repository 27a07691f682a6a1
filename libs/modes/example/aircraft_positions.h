#pragma once

#include <string>
#include <vector>

// A line on each aircraft whose position is known after what a receiver sent.
std::vector<std::string> aircraftPositions(const std::vector<std::string> &received);
