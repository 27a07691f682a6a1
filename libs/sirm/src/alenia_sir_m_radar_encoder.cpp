#include "sirm/alenia_sir_m_radar_encoder.h"

#include "layout.h"

using namespace sirm_layout;

namespace {

std::size_t sizeOf(const AleniaSirMRadarDataMessage &message)
{
    return data::Size + message.plotRecords().size() * plot::Size + message.trackRecords().size() * track::Size;
}

void encodeHeader(unsigned char *octets, const AleniaSirMRadarMessage &message, std::size_t size)
{
    setBits(octets, header::Type, static_cast<std::uint32_t>(message.type()));
    setBits(octets, header::RadarId, message.radarId());
    setBits(octets, header::Length, static_cast<std::uint32_t>(size));
    setBits(octets, header::TimeOfDay, message.timeOfDay());
}

void appendNorthMarker(std::vector<unsigned char> &octets, const AleniaSirMRadarNorthMarkerMessage &message)
{
    const std::size_t start = octets.size();
    octets.resize(start + north_marker::Size);
    unsigned char *const at = octets.data() + start;
    encodeHeader(at, message, north_marker::Size);
    setBits(at, north_marker::NorthNotSynchronized, message.northNotSynchronized());
    setBits(at, north_marker::ClockNotSynchronized, message.clockNotSynchronized());
    setBits(at, north_marker::RotationPeriod, message.rotationPeriod());
}

void appendData(std::vector<unsigned char> &octets, const AleniaSirMRadarDataMessage &message)
{
    const std::size_t start = octets.size();
    octets.resize(start + data::Size);
    unsigned char *const at = octets.data() + start;
    encodeHeader(at, message, sizeOf(message));
    setBits(at, data::SectorValid, message.sectorValid());
    setBits(at, data::Sector, message.sector());
    setBits(at, data::PlotCount, static_cast<std::uint32_t>(message.plotRecords().size()));
    setBits(at, data::TrackCount, static_cast<std::uint32_t>(message.trackRecords().size()));
    for (const AleniaSirMRadarPlotRecord &record : message.plotRecords()) {
        octets.insert(octets.end(), record.octets().begin(), record.octets().end());
    }
    for (const AleniaSirMRadarTrackRecord &record : message.trackRecords()) {
        octets.insert(octets.end(), record.octets().begin(), record.octets().end());
    }
}

} // namespace

std::vector<unsigned char> AleniaSirMRadarEncoder::encode(const AleniaSirMRadarMessage &message)
{
    std::vector<unsigned char> octets;
    append(octets, message);
    return octets;
}

void AleniaSirMRadarEncoder::append(std::vector<unsigned char> &octets, const AleniaSirMRadarMessage &message)
{
    switch (message.type()) {
    case AleniaSirMRadarMessage::Type::NorthMarker:
        return appendNorthMarker(octets, static_cast<const AleniaSirMRadarNorthMarkerMessage &>(message));
    case AleniaSirMRadarMessage::Type::Data:
        return appendData(octets, static_cast<const AleniaSirMRadarDataMessage &>(message));
    }
}
