#pragma once

#include "sirm/alenia_sir_m_radar_message.h"

#include <vector>

// The inverse of the decoder. Has no state: any thread, any number of threads.
class AleniaSirMRadarEncoder {
public:
    // Every message can be encoded; unused bits are as they were received, else zero.
    static std::vector<unsigned char> encode(const AleniaSirMRadarMessage &message);
    // Appends to octets, for callers that keep their memory.
    static void append(std::vector<unsigned char> &octets, const AleniaSirMRadarMessage &message);
};
