#include "sirm/alenia_sir_m_radar_records.h"

#include "layout.h"

#include <algorithm>
#include <cmath>

using namespace sirm_layout;

namespace {

constexpr double MetresPerFoot = 0.3048;

static_assert(AleniaSirMRadarPlotRecord::Size == plot::Size && AleniaSirMRadarTrackRecord::Size == track::Size);

} // namespace

unsigned AleniaSirMRadarPlotRecord::plotType() const
{
    return bitsOf(m_octets.data(), plot::Type);
}

void AleniaSirMRadarPlotRecord::setPlotType(unsigned type)
{
    setValue(m_octets.data(), plot::Type, type);
}

double AleniaSirMRadarPlotRecord::range() const
{
    return valueOf(m_octets.data(), plot::Range);
}

double AleniaSirMRadarPlotRecord::azimuth() const
{
    return valueOf(m_octets.data(), plot::Azimuth);
}

void AleniaSirMRadarPlotRecord::setPolar(double rangeKm, double azimuthDegrees)
{
    setValue(m_octets.data(), plot::Range, rangeKm);
    // An angle wraps where other values stop: 359.999 rounds to north.
    const double turn = azimuthDegrees - 360 * std::floor(azimuthDegrees / 360);
    const double steps = std::isfinite(turn) ? std::round(turn / plot::Azimuth.lsb) : 0;
    setBits(m_octets.data(), plot::Azimuth, static_cast<std::uint32_t>(steps));
}

unsigned AleniaSirMRadarPlotRecord::modeACode() const
{
    return bitsOf(m_octets.data(), plot::ModeACode);
}

bool AleniaSirMRadarPlotRecord::modeACodeValid() const
{
    return bitsOf(m_octets.data(), plot::ModeACodeValid) != 0;
}

void AleniaSirMRadarPlotRecord::setModeACode(unsigned code)
{
    setValue(m_octets.data(), plot::ModeACode, code);
    setBits(m_octets.data(), plot::ModeACodeValid, 1);
}

double AleniaSirMRadarPlotRecord::modeCHeightImperial() const
{
    return valueOf(m_octets.data(), plot::ModeCHeight);
}

double AleniaSirMRadarPlotRecord::modeCHeightMetric() const
{
    return modeCHeightImperial() * MetresPerFoot;
}

bool AleniaSirMRadarPlotRecord::modeCHeightValid() const
{
    return bitsOf(m_octets.data(), plot::ModeCHeightValid) != 0;
}

void AleniaSirMRadarPlotRecord::setModeCHeight(double feet)
{
    setValue(m_octets.data(), plot::ModeCHeight, feet);
    setBits(m_octets.data(), plot::ModeCHeightValid, 1);
}

AleniaSirMRadarPlotRecord AleniaSirMRadarPlotRecord::fromOctets(const unsigned char *octets)
{
    AleniaSirMRadarPlotRecord record;
    std::copy_n(octets, Size, record.m_octets.begin());
    return record;
}

unsigned AleniaSirMRadarTrackRecord::trackNumber() const
{
    return bitsOf(m_octets.data(), track::TrackNumber);
}

void AleniaSirMRadarTrackRecord::setTrackNumber(unsigned number)
{
    setValue(m_octets.data(), track::TrackNumber, number);
}

unsigned AleniaSirMRadarTrackRecord::trackType() const
{
    return bitsOf(m_octets.data(), track::Type);
}

void AleniaSirMRadarTrackRecord::setTrackType(unsigned type)
{
    setValue(m_octets.data(), track::Type, type);
}

bool AleniaSirMRadarTrackRecord::coasting() const
{
    return bitsOf(m_octets.data(), track::Coasting) != 0;
}

void AleniaSirMRadarTrackRecord::setCoasting(bool coasting)
{
    setBits(m_octets.data(), track::Coasting, coasting);
}

bool AleniaSirMRadarTrackRecord::trackEnd() const
{
    return bitsOf(m_octets.data(), track::TrackEnd) != 0;
}

void AleniaSirMRadarTrackRecord::setTrackEnd(bool end)
{
    setBits(m_octets.data(), track::TrackEnd, end);
}

unsigned AleniaSirMRadarTrackRecord::verticalTrend() const
{
    return bitsOf(m_octets.data(), track::VerticalTrend);
}

void AleniaSirMRadarTrackRecord::setVerticalTrend(unsigned trend)
{
    setValue(m_octets.data(), track::VerticalTrend, trend);
}

double AleniaSirMRadarTrackRecord::x() const
{
    return valueOf(m_octets.data(), track::X);
}

double AleniaSirMRadarTrackRecord::y() const
{
    return valueOf(m_octets.data(), track::Y);
}

void AleniaSirMRadarTrackRecord::setPosition(double eastKm, double northKm)
{
    setValue(m_octets.data(), track::X, eastKm);
    setValue(m_octets.data(), track::Y, northKm);
}

unsigned AleniaSirMRadarTrackRecord::modeACode() const
{
    return bitsOf(m_octets.data(), track::ModeACode);
}

bool AleniaSirMRadarTrackRecord::modeACodeValid() const
{
    return bitsOf(m_octets.data(), track::ModeACodeValid) != 0;
}

void AleniaSirMRadarTrackRecord::setModeACode(unsigned code)
{
    setValue(m_octets.data(), track::ModeACode, code);
    setBits(m_octets.data(), track::ModeACodeValid, 1);
}

double AleniaSirMRadarTrackRecord::modeCHeightImperial() const
{
    return valueOf(m_octets.data(), track::ModeCHeight);
}

double AleniaSirMRadarTrackRecord::modeCHeightMetric() const
{
    return modeCHeightImperial() * MetresPerFoot;
}

bool AleniaSirMRadarTrackRecord::modeCHeightValid() const
{
    return bitsOf(m_octets.data(), track::ModeCHeightValid) != 0;
}

void AleniaSirMRadarTrackRecord::setModeCHeight(double feet)
{
    setValue(m_octets.data(), track::ModeCHeight, feet);
    setBits(m_octets.data(), track::ModeCHeightValid, 1);
}

double AleniaSirMRadarTrackRecord::rateOfClimbDescent() const
{
    return valueOf(m_octets.data(), track::RateOfClimbDescent);
}

bool AleniaSirMRadarTrackRecord::rateOfClimbDescentValid() const
{
    return bitsOf(m_octets.data(), track::RateOfClimbDescentValid) != 0;
}

void AleniaSirMRadarTrackRecord::setRateOfClimbDescent(double metresPerSecond)
{
    setValue(m_octets.data(), track::RateOfClimbDescent, metresPerSecond);
    setBits(m_octets.data(), track::RateOfClimbDescentValid, 1);
}

double AleniaSirMRadarTrackRecord::vx() const
{
    return valueOf(m_octets.data(), track::Vx);
}

double AleniaSirMRadarTrackRecord::vy() const
{
    return valueOf(m_octets.data(), track::Vy);
}

bool AleniaSirMRadarTrackRecord::velocityPresent() const
{
    return bitsOf(m_octets.data(), track::VelocityPresent) != 0;
}

bool AleniaSirMRadarTrackRecord::velocityValid() const
{
    return bitsOf(m_octets.data(), track::VelocityValid) != 0;
}

void AleniaSirMRadarTrackRecord::setVelocity(double east, double north, bool valid)
{
    setValue(m_octets.data(), track::Vx, east);
    setValue(m_octets.data(), track::Vy, north);
    setBits(m_octets.data(), track::VelocityPresent, 1);
    setBits(m_octets.data(), track::VelocityValid, valid);
}

AleniaSirMRadarTrackRecord AleniaSirMRadarTrackRecord::fromOctets(const unsigned char *octets)
{
    AleniaSirMRadarTrackRecord record;
    std::copy_n(octets, Size, record.m_octets.begin());
    return record;
}
