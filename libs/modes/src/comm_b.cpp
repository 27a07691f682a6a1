#include "modes/comm_b.h"

#include "advisory.h"
#include "bits.h"
#include "modes/codes.h"

#include <algorithm>
#include <cmath>

namespace korvane::modes {

namespace {

// A field of a register that a status bit switches.
struct StatusField {
    int status;
    int first;
    int count;
};

// A field whose status bit is 0 is 0 too.
template <std::size_t Size>
bool obeysStatusBits(std::uint64_t mb, const std::array<StatusField, Size> &fields)
{
    for (const StatusField &field : fields) {
        if (!bit(mb, field.status) && bits(mb, field.first, field.count) != 0) {
            return false;
        }
    }
    return true;
}

constexpr std::array Bds40Fields{StatusField{1, 2, 12}, StatusField{14, 15, 12}, StatusField{27, 28, 12},
    StatusField{48, 49, 3}, StatusField{54, 55, 2}};
constexpr std::array Bds45Fields{StatusField{1, 2, 2}, StatusField{4, 5, 2}, StatusField{7, 8, 2},
    StatusField{10, 11, 2}, StatusField{13, 14, 2}, StatusField{16, 17, 10}, StatusField{27, 28, 11},
    StatusField{39, 40, 12}};
constexpr std::array Bds50Fields{StatusField{1, 2, 10}, StatusField{12, 13, 11}, StatusField{24, 25, 10},
    StatusField{35, 36, 10}, StatusField{46, 47, 10}};
constexpr std::array Bds60Fields{StatusField{1, 2, 11}, StatusField{13, 14, 10}, StatusField{24, 25, 10},
    StatusField{35, 36, 10}, StatusField{46, 47, 10}};

template <typename Value>
std::optional<Value> when(bool isPresent, Value value)
{
    return isPresent ? std::optional<Value>(value) : std::nullopt;
}

std::optional<std::uint8_t> smallNumber(std::uint64_t mb, const StatusField &field)
{
    return when(bit(mb, field.status), static_cast<std::uint8_t>(bits(mb, field.first, field.count)));
}

std::optional<int> number(std::uint64_t mb, const StatusField &field, int unit)
{
    return when(bit(mb, field.status), static_cast<int>(bits(mb, field.first, field.count)) * unit);
}

std::optional<int> signedNumber(std::uint64_t mb, const StatusField &field, int unit)
{
    return when(bit(mb, field.status), signedBits(mb, field.first, field.count) * unit);
}

std::optional<double> signedAngle(std::uint64_t mb, const StatusField &field, double unit)
{
    return when(bit(mb, field.status), signedBits(mb, field.first, field.count) * unit);
}

// Degrees clockwise from north.
std::optional<double> direction(std::uint64_t mb, const StatusField &field, double unit)
{
    const double angle = signedBits(mb, field.first, field.count) * unit;
    return when(bit(mb, field.status), angle < 0 ? angle + 360 : angle);
}

template <typename Value>
bool isBeyond(const std::optional<Value> &value, Value limit)
{
    return value && std::abs(*value) > limit;
}

// Knots, in the standard atmosphere. The pressure is that of the altitude as the altimeter has it, so that the weather
// does not matter.
double calibratedAirspeed(double mach, int altitude)
{
    constexpr double SeaLevelSoundSpeed = 661.4788; // knots
    constexpr double Tropopause = 36089.24; // feet
    const double feet = std::min<double>(altitude, Tropopause);
    const double lower = std::pow(1 - 6.8755856e-6 * feet, 5.2558797);
    const double pressure = lower * std::exp(-std::max(altitude - Tropopause, 0.0) / 20805.8); // of that at sea level
    const double impact = pressure * (std::pow(1 + 0.2 * mach * mach, 3.5) - 1);
    return SeaLevelSoundSpeed * std::sqrt(5 * (std::pow(impact + 1, 2.0 / 7) - 1));
}

constexpr double SpeedTolerance = 20; // knots, between the indicated airspeed and that of the Mach number

} // namespace

ResolutionAdvisory decodeAdvisory(std::uint64_t field)
{
    ResolutionAdvisory advisory;
    advisory.advisory = static_cast<std::uint16_t>(bits(field, 9, 14));
    advisory.complement = static_cast<std::uint8_t>(bits(field, 23, 4));
    advisory.isTerminated = bit(field, 27);
    advisory.hasMultipleThreats = bit(field, 28);
    advisory.threatType = static_cast<std::uint8_t>(bits(field, 29, 2));
    if (advisory.threatType == 1) {
        advisory.threatAddress = bits(field, 31, 24);
    }
    return advisory;
}

std::optional<DataLinkCapability> decodeBds10(std::uint64_t mb)
{
    DataLinkCapability capability;
    capability.isContinued = bit(mb, 9);
    capability.hasOverlayCommand = bit(mb, 15);
    capability.hasAcas = bit(mb, 16);
    capability.version = static_cast<std::uint8_t>(bits(mb, 17, 7));
    capability.hasSpecificServices = bit(mb, 25);
    capability.hasIdentification = bit(mb, 33);
    const bool knowsOverlay = capability.version >= 5; // since that version of the subnetwork
    if (bits(mb, 1, 8) != 0x10 || bits(mb, 10, 5) != 0 || capability.hasOverlayCommand != knowsOverlay) {
        return std::nullopt;
    }
    return capability;
}

std::optional<UsageCapability> decodeBds17(std::uint64_t mb)
{
    constexpr int IdentificationBit = 7; // every aircraft with registers has this one
    if (bits(mb, 25, 32) != 0 || !bit(mb, IdentificationBit)) {
        return std::nullopt;
    }
    return UsageCapability{bits(mb, 1, 24)};
}

std::optional<AircraftIdentification> decodeBds20(std::uint64_t mb)
{
    AircraftIdentification identification;
    if (bits(mb, 1, 8) != 0x20 || !callsignFromCode(mb & 0xFFFFFFFFFFFF, identification.callsign)) {
        return std::nullopt;
    }
    return identification;
}

std::optional<ResolutionAdvisory> decodeBds30(std::uint64_t mb)
{
    if (bits(mb, 1, 8) != 0x30 || bits(mb, 29, 2) == 3) {
        return std::nullopt;
    }
    return decodeAdvisory(mb);
}

std::optional<VerticalIntention> decodeBds40(std::uint64_t mb)
{
    if (mb == 0 || !obeysStatusBits(mb, Bds40Fields) || bits(mb, 40, 8) != 0 || bits(mb, 52, 2) != 0) {
        return std::nullopt;
    }
    VerticalIntention intention;
    intention.mcpAltitude = number(mb, Bds40Fields[0], 16);
    intention.fmsAltitude = number(mb, Bds40Fields[1], 16);
    intention.barometricSetting = when(bit(mb, 27), bits(mb, 28, 12) * 0.1 + 800);
    intention.mcpModes = smallNumber(mb, Bds40Fields[3]);
    intention.altitudeSource = smallNumber(mb, Bds40Fields[4]);
    return intention;
}

std::optional<MeteorologicalHazard> decodeBds45(std::uint64_t mb)
{
    if (mb == 0 || !obeysStatusBits(mb, Bds45Fields) || bits(mb, 52, 5) != 0) {
        return std::nullopt;
    }
    MeteorologicalHazard hazard;
    hazard.turbulence = smallNumber(mb, Bds45Fields[0]);
    hazard.windShear = smallNumber(mb, Bds45Fields[1]);
    hazard.microburst = smallNumber(mb, Bds45Fields[2]);
    hazard.icing = smallNumber(mb, Bds45Fields[3]);
    hazard.wakeVortex = smallNumber(mb, Bds45Fields[4]);
    hazard.temperature = signedAngle(mb, Bds45Fields[5], 0.25);
    hazard.pressure = number(mb, Bds45Fields[6], 1);
    hazard.radioHeight = number(mb, Bds45Fields[7], 16);
    if (hazard.temperature && (*hazard.temperature < -80 || *hazard.temperature > 60)) {
        return std::nullopt;
    }
    return hazard;
}

std::optional<TrackAndTurn> decodeBds50(std::uint64_t mb)
{
    if (mb == 0 || !obeysStatusBits(mb, Bds50Fields)) {
        return std::nullopt;
    }
    TrackAndTurn turn;
    turn.roll = signedAngle(mb, Bds50Fields[0], 45.0 / 256);
    turn.trueTrack = direction(mb, Bds50Fields[1], 90.0 / 512);
    turn.groundSpeed = number(mb, Bds50Fields[2], 2);
    turn.trackRate = signedAngle(mb, Bds50Fields[3], 8.0 / 256);
    turn.trueAirspeed = number(mb, Bds50Fields[4], 2);
    if (isBeyond(turn.roll, 50.0) || isBeyond(turn.groundSpeed, 600) || isBeyond(turn.trueAirspeed, 600)) {
        return std::nullopt;
    }
    if (turn.groundSpeed && turn.trueAirspeed && std::abs(*turn.groundSpeed - *turn.trueAirspeed) > 200) {
        return std::nullopt;
    }
    return turn;
}

std::optional<HeadingAndSpeed> decodeBds60(std::uint64_t mb, std::optional<int> altitude)
{
    if (mb == 0 || !obeysStatusBits(mb, Bds60Fields)) {
        return std::nullopt;
    }
    HeadingAndSpeed speed;
    speed.magneticHeading = direction(mb, Bds60Fields[0], 90.0 / 512);
    speed.indicatedAirspeed = number(mb, Bds60Fields[1], 1);
    speed.mach = when(bit(mb, 24), bits(mb, 25, 10) * (2.048 / 512));
    speed.barometricRate = signedNumber(mb, Bds60Fields[3], 32);
    speed.inertialRate = signedNumber(mb, Bds60Fields[4], 32);
    if (isBeyond(speed.indicatedAirspeed, 500) || isBeyond(speed.mach, 1.0) || isBeyond(speed.barometricRate, 6000)
        || isBeyond(speed.inertialRate, 6000)) {
        return std::nullopt;
    }
    if (altitude && speed.indicatedAirspeed && speed.mach
        && std::abs(calibratedAirspeed(*speed.mach, *altitude) - *speed.indicatedAirspeed) > SpeedTolerance) {
        return std::nullopt;
    }
    return speed;
}

RegisterCandidates inferRegisters(std::uint64_t mb, std::optional<int> altitude)
{
    RegisterCandidates candidates;
    const auto add = [&candidates](std::uint8_t code, bool isPossible) {
        if (isPossible) {
            candidates.registers[candidates.count++] = code;
        }
    };
    add(0x10, decodeBds10(mb).has_value());
    add(0x17, decodeBds17(mb).has_value());
    add(0x20, decodeBds20(mb).has_value());
    add(0x30, decodeBds30(mb).has_value());
    add(0x40, decodeBds40(mb).has_value());
    add(0x45, decodeBds45(mb).has_value());
    add(0x50, decodeBds50(mb).has_value());
    add(0x60, decodeBds60(mb, altitude).has_value());
    return candidates;
}

} // namespace korvane::modes
