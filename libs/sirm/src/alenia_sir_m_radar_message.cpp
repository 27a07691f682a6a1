#include "sirm/alenia_sir_m_radar_message.h"

#include <algorithm>

void AleniaSirMRadarNorthMarkerMessage::setRotationPeriod(unsigned milliseconds)
{
    m_rotationPeriod = std::min(milliseconds, 0xFFFFU);
}

void AleniaSirMRadarDataMessage::setSector(unsigned sector)
{
    m_sector = sector & 0xF;
    m_sectorValid = true;
}

bool AleniaSirMRadarDataMessage::addPlotRecord(const AleniaSirMRadarPlotRecord &record)
{
    if (m_plotRecords.size() >= MaximumRecords) {
        return false;
    }
    m_plotRecords.push_back(record);
    return true;
}

bool AleniaSirMRadarDataMessage::addTrackRecord(const AleniaSirMRadarTrackRecord &record)
{
    if (m_trackRecords.size() >= MaximumRecords) {
        return false;
    }
    m_trackRecords.push_back(record);
    return true;
}

void AleniaSirMRadarDataMessage::reserve(std::size_t plots, std::size_t tracks)
{
    m_plotRecords.reserve(std::min(plots, MaximumRecords));
    m_trackRecords.reserve(std::min(tracks, MaximumRecords));
}
