#pragma once

#include <cstddef>
#include <vector>

// Data blocks back to back, the same for the same count.
struct SampleBlocks {
    std::vector<unsigned char> octets;
    std::size_t records = 0;
};

// CAT034 and CAT048 as a radar sends them: ten plots of 18 octets on average to a sector message of 8; 17 octets a
// record.
SampleBlocks makePlotBlocks(std::size_t records);

// CAT062 with identification, position, velocity, status, level and aircraft derived data; 58 octets a record.
SampleBlocks makeTrackBlocks(std::size_t records);
