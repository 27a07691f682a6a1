#include "sirm/alenia_sir_m_radar_message.h"

#include "layout.h"

#include <algorithm>

using namespace sirm_layout;

static_assert(
    AleniaSirMRadarMessage::FixedSize == north_marker::Size && AleniaSirMRadarMessage::FixedSize == data::Size);

namespace {

constexpr unsigned NoTime = 86'400'000;

} // namespace

AleniaSirMRadarMessage::AleniaSirMRadarMessage(Type type)
{
    setBits(m_octets.data(), header::Type, static_cast<std::uint32_t>(type));
    setBits(m_octets.data(), header::Length, FixedSize);
    setTimeOfDay(NoTime);
}

void AleniaSirMRadarMessage::setFixedOctets(const unsigned char *octets)
{
    std::copy_n(octets, FixedSize, m_octets.begin());
}

unsigned AleniaSirMRadarMessage::radarId() const
{
    return bitsOf(m_octets.data(), header::RadarId);
}

void AleniaSirMRadarMessage::setRadarId(unsigned id)
{
    setBits(m_octets.data(), header::RadarId, id);
}

unsigned AleniaSirMRadarMessage::timeOfDay() const
{
    return bitsOf(m_octets.data(), header::TimeOfDay);
}

void AleniaSirMRadarMessage::setTimeOfDay(unsigned milliseconds)
{
    setBits(m_octets.data(), header::TimeOfDay, milliseconds);
}

unsigned AleniaSirMRadarMessage::length() const
{
    return bitsOf(m_octets.data(), header::Length);
}

bool AleniaSirMRadarNorthMarkerMessage::northNotSynchronized() const
{
    return bitsOf(m_octets.data(), north_marker::NorthNotSynchronized) != 0;
}

void AleniaSirMRadarNorthMarkerMessage::setNorthNotSynchronized(bool notSynchronized)
{
    setBits(m_octets.data(), north_marker::NorthNotSynchronized, notSynchronized);
}

bool AleniaSirMRadarNorthMarkerMessage::clockNotSynchronized() const
{
    return bitsOf(m_octets.data(), north_marker::ClockNotSynchronized) != 0;
}

void AleniaSirMRadarNorthMarkerMessage::setClockNotSynchronized(bool notSynchronized)
{
    setBits(m_octets.data(), north_marker::ClockNotSynchronized, notSynchronized);
}

unsigned AleniaSirMRadarNorthMarkerMessage::rotationPeriod() const
{
    return bitsOf(m_octets.data(), north_marker::RotationPeriod);
}

void AleniaSirMRadarNorthMarkerMessage::setRotationPeriod(unsigned milliseconds)
{
    setBits(m_octets.data(), north_marker::RotationPeriod, std::min(milliseconds, 0xFFFFU));
}

unsigned AleniaSirMRadarDataMessage::sector() const
{
    return bitsOf(m_octets.data(), data::Sector);
}

bool AleniaSirMRadarDataMessage::sectorValid() const
{
    return bitsOf(m_octets.data(), data::SectorValid) != 0;
}

void AleniaSirMRadarDataMessage::setSector(unsigned sector)
{
    setBits(m_octets.data(), data::Sector, sector);
    setBits(m_octets.data(), data::SectorValid, 1);
}

unsigned AleniaSirMRadarDataMessage::plotCount() const
{
    return bitsOf(m_octets.data(), data::PlotCount);
}

unsigned AleniaSirMRadarDataMessage::trackCount() const
{
    return bitsOf(m_octets.data(), data::TrackCount);
}

void AleniaSirMRadarDataMessage::countRecords()
{
    const std::size_t length = data::Size + m_plotRecords.size() * plot::Size + m_trackRecords.size() * track::Size;
    setBits(m_octets.data(), header::Length, static_cast<std::uint32_t>(length));
    setBits(m_octets.data(), data::PlotCount, static_cast<std::uint32_t>(m_plotRecords.size()));
    setBits(m_octets.data(), data::TrackCount, static_cast<std::uint32_t>(m_trackRecords.size()));
}

bool AleniaSirMRadarDataMessage::addPlotRecord(const AleniaSirMRadarPlotRecord &record)
{
    if (m_plotRecords.size() >= MaximumRecords) {
        return false;
    }
    m_plotRecords.push_back(record);
    countRecords();
    return true;
}

bool AleniaSirMRadarDataMessage::addTrackRecord(const AleniaSirMRadarTrackRecord &record)
{
    if (m_trackRecords.size() >= MaximumRecords) {
        return false;
    }
    m_trackRecords.push_back(record);
    countRecords();
    return true;
}

void AleniaSirMRadarDataMessage::reserve(std::size_t plots, std::size_t tracks)
{
    m_plotRecords.reserve(std::min(plots, MaximumRecords));
    m_trackRecords.reserve(std::min(tracks, MaximumRecords));
}
