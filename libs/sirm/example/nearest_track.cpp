#include "example/nearest_track.h"

#include "sirm/alenia_sir_m_radar_decoder.h"

#include <cmath>

std::string nearestTrack(const unsigned char *octets, std::size_t length)
{
    const AleniaSirMRadarDecoder::Result result = AleniaSirMRadarDecoder::decode(octets, length);
    if (!result.valid()) {
        return AleniaSirMRadarDecoder::errorText(result.error);
    }
    if (result.message->type() != AleniaSirMRadarMessage::Type::Data) {
        return "antenna at north";
    }
    std::string nearest = "no track";
    double range = 1000;
    for (const auto &track : static_cast<const AleniaSirMRadarDataMessage &>(*result.message).trackRecords()) {
        const double kilometres = std::hypot(track.x(), track.y());
        if (track.trackEnd() || track.trackType() == 0 || kilometres >= range) {
            continue;
        }
        range = kilometres;
        nearest = "track " + std::to_string(track.trackNumber());
    }
    return nearest;
}
