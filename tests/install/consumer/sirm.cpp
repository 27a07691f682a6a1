#include "sirm/alenia_sir_m_radar_decoder.h"
#include "sirm/alenia_sir_m_radar_encoder.h"

int main()
{
    const auto octets = AleniaSirMRadarEncoder::encode(AleniaSirMRadarNorthMarkerMessage());
    return AleniaSirMRadarDecoder::decode(octets.data(), octets.size()).valid() ? 0 : 1;
}
