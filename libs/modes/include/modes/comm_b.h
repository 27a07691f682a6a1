#pragma once

#include "modes/extended_squitter.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace korvane::modes {

// The registers of Comm-B replies. A reply does not say which register it holds: a decoder returns nothing where the
// 56-bit message field, in the low bits of mb, cannot be its register. Values whose status bit is 0 are absent.

// 1,0: data link capability.
struct DataLinkCapability {
    bool isContinued = false; // further registers tell more
    bool hasOverlayCommand = false;
    bool hasAcas = false;
    std::uint8_t version = 0; // of the Mode S subnetwork
    bool hasSpecificServices = false;
    bool hasIdentification = false;
};

// 1,7: common usage capability.
struct UsageCapability {
    std::uint32_t registers = 0; // the first 24 bits: 0,5 0,6 0,7 0,8 0,9 0,A 2,0 2,1 4,0 ...
};

// 2,0: aircraft identification.
struct AircraftIdentification {
    char callsign[9] = {}; // without filling
};

// 4,0: selected vertical intention.
struct VerticalIntention {
    std::optional<int> mcpAltitude; // feet
    std::optional<int> fmsAltitude; // feet
    std::optional<double> barometricSetting; // hectopascal
    std::optional<std::uint8_t> mcpModes; // VNAV 4, altitude hold 2, approach 1
    std::optional<std::uint8_t> altitudeSource; // 0 unknown, 1 aircraft, 2 mode control panel, 3 FMS
};

// 4,5: meteorological hazard.
struct MeteorologicalHazard {
    std::optional<std::uint8_t> turbulence; // these five 0 to 3
    std::optional<std::uint8_t> windShear;
    std::optional<std::uint8_t> microburst;
    std::optional<std::uint8_t> icing;
    std::optional<std::uint8_t> wakeVortex;
    std::optional<double> temperature; // degrees Celsius
    std::optional<int> pressure; // hectopascal
    std::optional<int> radioHeight; // feet
};

// 5,0: track and turn.
struct TrackAndTurn {
    std::optional<double> roll; // degrees, right wing down positive
    std::optional<double> trueTrack; // degrees
    std::optional<int> groundSpeed; // knots
    std::optional<double> trackRate; // degrees a second
    std::optional<int> trueAirspeed; // knots
};

// 6,0: heading and speed.
struct HeadingAndSpeed {
    std::optional<double> magneticHeading; // degrees
    std::optional<int> indicatedAirspeed; // knots
    std::optional<double> mach;
    std::optional<int> barometricRate; // feet per minute
    std::optional<int> inertialRate; // feet per minute
};

std::optional<DataLinkCapability> decodeBds10(std::uint64_t mb);
std::optional<UsageCapability> decodeBds17(std::uint64_t mb);
std::optional<AircraftIdentification> decodeBds20(std::uint64_t mb);
std::optional<ResolutionAdvisory> decodeBds30(std::uint64_t mb);
std::optional<VerticalIntention> decodeBds40(std::uint64_t mb);
std::optional<MeteorologicalHazard> decodeBds45(std::uint64_t mb);
std::optional<TrackAndTurn> decodeBds50(std::uint64_t mb);
// altitude: feet, where the reply tells it: the two speeds must then belong together in it.
std::optional<HeadingAndSpeed> decodeBds60(std::uint64_t mb, std::optional<int> altitude = std::nullopt);

// The registers that a message field can be, as 0x10 to 0x60, ascending.
struct RegisterCandidates {
    std::array<std::uint8_t, 8> registers{};
    std::size_t count = 0;

    // The register when there is just one that it can be, else 0.
    std::uint8_t only() const { return count == 1 ? registers[0] : std::uint8_t{0}; }
};
RegisterCandidates inferRegisters(std::uint64_t mb, std::optional<int> altitude = std::nullopt);

} // namespace korvane::modes
