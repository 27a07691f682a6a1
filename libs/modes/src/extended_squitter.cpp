#include "modes/extended_squitter.h"

#include "advisory.h"
#include "bits.h"
#include "modes/codes.h"

#include <array>
#include <cmath>
#include <numbers>

namespace korvane::modes {

namespace {

// The altitude code of squitters leaves out the metric bit.
std::optional<int> altitudeFromShortCode(std::uint32_t code)
{
    return altitudeFromCode((code & 0xFC0) << 1 | (code & 0x3F));
}

CprPosition positionOf(std::uint64_t me, bool isSurface)
{
    return {bit(me, 22), isSurface, 17, bits(me, 23, 17), bits(me, 40, 17)};
}

Identification decodeIdentification(std::uint64_t me)
{
    Identification content;
    content.categorySet = static_cast<char>('A' + 4 - static_cast<int>(bits(me, 1, 5)));
    content.category = static_cast<std::uint8_t>(bits(me, 6, 3));
    callsignFromCode(me & 0xFFFFFFFFFFFF, content.callsign);
    return content;
}

// Ranges of the movement code: each begins at a code with a speed and goes on in steps, in knots.
struct MovementRange {
    std::uint32_t first;
    double speed;
    double step;
};
constexpr std::array MovementRanges{MovementRange{124, 175, 0}, MovementRange{109, 100, 5}, MovementRange{94, 70, 2},
    MovementRange{39, 15, 1}, MovementRange{13, 2, 0.5}, MovementRange{9, 1, 0.25}, MovementRange{2, 0.125, 0.125},
    MovementRange{1, 0, 0}};

std::optional<double> speedOfMovement(std::uint32_t code)
{
    if (code > MovementRanges.front().first) {
        return std::nullopt;
    }
    for (const MovementRange &range : MovementRanges) {
        if (code >= range.first) {
            return range.speed + range.step * (code - range.first);
        }
    }
    return std::nullopt;
}

SurfacePosition decodeSurfacePosition(std::uint64_t me)
{
    SurfacePosition content;
    content.groundSpeed = speedOfMovement(bits(me, 6, 7));
    if (bit(me, 13)) {
        content.track = bits(me, 14, 7) * 360.0 / 128;
    }
    content.position = positionOf(me, true);
    return content;
}

AirbornePosition decodeAirbornePosition(std::uint64_t me, std::uint32_t typeCode)
{
    AirbornePosition content;
    content.surveillanceStatus = static_cast<std::uint8_t>(bits(me, 6, 2));
    content.isGnssHeight = typeCode >= 20;
    content.altitude = altitudeFromShortCode(bits(me, 9, 12));
    if (typeCode != 0) {
        content.position = positionOf(me, false);
    }
    return content;
}

// A component of the velocity in knots: a sign, then a number that counts from 1.
std::optional<int> component(std::uint64_t me, int first, int scale)
{
    const auto value = static_cast<int>(bits(me, first + 1, 10));
    if (value == 0) {
        return std::nullopt;
    }
    return (value - 1) * (bit(me, first) ? -scale : scale);
}

void decodeGroundVelocity(std::uint64_t me, int scale, AirborneVelocity &content)
{
    const std::optional<int> east = component(me, 14, scale);
    const std::optional<int> north = component(me, 25, scale);
    if (!east || !north) {
        return;
    }
    content.groundSpeed = std::sqrt(static_cast<double>(*east * *east + *north * *north));
    const double track = std::atan2(*east, *north) * (180 / std::numbers::pi);
    content.track = track < 0 ? track + 360 : track;
}

void decodeAirVelocity(std::uint64_t me, int scale, AirborneVelocity &content)
{
    if (bit(me, 14)) {
        content.heading = bits(me, 15, 10) * 360.0 / 1024;
    }
    content.isTrueAirspeed = bit(me, 25);
    if (const auto airspeed = static_cast<int>(bits(me, 26, 10))) {
        content.airspeed = (airspeed - 1) * scale;
    }
}

SquitterContent decodeVelocity(std::uint64_t me)
{
    AirborneVelocity content;
    content.subtype = static_cast<std::uint8_t>(bits(me, 6, 3));
    if (content.subtype < 1 || content.subtype > 4) {
        return {};
    }
    const int scale = content.subtype % 2 ? 1 : 4;
    if (content.subtype <= 2) {
        decodeGroundVelocity(me, scale, content);
    } else {
        decodeAirVelocity(me, scale, content);
    }
    content.isBarometricRate = bit(me, 36);
    if (const auto rate = static_cast<int>(bits(me, 38, 9))) {
        content.verticalRate = (rate - 1) * (bit(me, 37) ? -64 : 64);
    }
    if (const auto difference = static_cast<int>(bits(me, 50, 7))) {
        content.gnssAboveBarometric = (difference - 1) * (bit(me, 49) ? -25 : 25);
    }
    return content;
}

SquitterContent decodeAircraftStatus(std::uint64_t me)
{
    if (bits(me, 6, 3) == 2) {
        return decodeAdvisory(me);
    }
    if (bits(me, 6, 3) != 1) {
        return {};
    }
    EmergencyStatus content;
    content.emergency = static_cast<std::uint8_t>(bits(me, 9, 3));
    content.squawk = squawkFromCode(bits(me, 12, 13));
    return content;
}

void decodeTargetStateFirst(std::uint64_t me, TargetState &content)
{
    const std::uint32_t source = bits(me, 8, 2);
    if (source != 0 && bits(me, 16, 10) <= 1010) {
        content.selectedAltitude = static_cast<int>(bits(me, 16, 10)) * 100 - 1000;
    }
    content.isFmsAltitude = source == 3;
    if (bits(me, 26, 2) != 0 && bits(me, 28, 9) < 360) {
        content.selectedHeading = bits(me, 28, 9);
    }
}

void decodeTargetStateSecond(std::uint64_t me, TargetState &content)
{
    content.isFmsAltitude = bit(me, 9);
    if (const auto altitude = static_cast<int>(bits(me, 10, 11))) {
        content.selectedAltitude = (altitude - 1) * 32;
    }
    if (const std::uint32_t setting = bits(me, 21, 9)) {
        content.barometricSetting = 800 + (setting - 1) * 0.8;
    }
    if (bit(me, 30)) {
        content.selectedHeading = bits(me, 31, 9) * 180.0 / 256;
    }
    content.hasModes = bit(me, 47);
    content.isAutopilotOn = content.hasModes && bit(me, 48);
    content.isVnavOn = content.hasModes && bit(me, 49);
    content.isAltitudeHoldOn = content.hasModes && bit(me, 50);
    content.isApproachOn = content.hasModes && bit(me, 52);
    content.isLnavOn = content.hasModes && bit(me, 54);
}

SquitterContent decodeTargetState(std::uint64_t me)
{
    TargetState content;
    content.subtype = static_cast<std::uint8_t>(bits(me, 6, 2));
    content.nacP = static_cast<std::uint8_t>(bits(me, 40, 4));
    content.sil = static_cast<std::uint8_t>(bits(me, 45, 2));
    if (content.subtype > 1) {
        return {};
    }
    if (content.subtype == 1) {
        decodeTargetStateSecond(me, content);
    } else {
        decodeTargetStateFirst(me, content);
    }
    return content;
}

SquitterContent decodeOperationalStatus(std::uint64_t me)
{
    if (bits(me, 6, 3) > 1) {
        return {};
    }
    OperationalStatus content;
    content.isSurface = bit(me, 8);
    content.capabilities = static_cast<std::uint16_t>(bits(me, 9, 16));
    content.modes = static_cast<std::uint16_t>(bits(me, 25, 16));
    content.version = static_cast<std::uint8_t>(bits(me, 41, 3));
    content.nicSupplementA = bit(me, 44);
    content.nacP = static_cast<std::uint8_t>(bits(me, 45, 4));
    content.sil = static_cast<std::uint8_t>(bits(me, 51, 2));
    content.isMagneticHeading = bit(me, 54);
    return content;
}

} // namespace

SquitterContent decodeSquitter(std::uint64_t me)
{
    const std::uint32_t typeCode = bits(me, 1, 5);
    if (typeCode >= 1 && typeCode <= 4) {
        return decodeIdentification(me);
    }
    if (typeCode >= 5 && typeCode <= 8) {
        return decodeSurfacePosition(me);
    }
    if (typeCode <= 18 || (typeCode >= 20 && typeCode <= 22)) {
        return decodeAirbornePosition(me, typeCode);
    }
    switch (typeCode) {
    case 19:
        return decodeVelocity(me);
    case 28:
        return decodeAircraftStatus(me);
    case 29:
        return decodeTargetState(me);
    case 31:
        return decodeOperationalStatus(me);
    default:
        return {};
    }
}

CoarsePosition decodeCoarsePosition(std::uint64_t me)
{
    CoarsePosition content;
    content.altitude = altitudeFromShortCode(bits(me, 8, 12));
    if (bit(me, 20)) {
        content.track = bits(me, 21, 5) * 11.25;
    }
    if (const std::uint32_t speed = bits(me, 26, 6)) {
        content.groundSpeed = (speed - 1) * 32.0;
    }
    content.position = {bit(me, 32), false, 12, bits(me, 33, 12), bits(me, 45, 12)};
    return content;
}

} // namespace korvane::modes
