#include "sirm/alenia_sir_m_radar_encoder.h"

std::vector<unsigned char> AleniaSirMRadarEncoder::encode(const AleniaSirMRadarMessage &message)
{
    std::vector<unsigned char> octets;
    append(octets, message);
    return octets;
}

void AleniaSirMRadarEncoder::append(std::vector<unsigned char> &octets, const AleniaSirMRadarMessage &message)
{
    octets.insert(octets.end(), message.fixedOctets().begin(), message.fixedOctets().end());
    const auto appendAll = [&octets](const auto &records) {
        for (const auto &record : records) {
            octets.insert(octets.end(), record.octets().begin(), record.octets().end());
        }
    };
    if (message.type() == AleniaSirMRadarMessage::Type::Data) {
        const auto &data = static_cast<const AleniaSirMRadarDataMessage &>(message);
        appendAll(data.plotRecords());
        appendAll(data.trackRecords());
    }
}
