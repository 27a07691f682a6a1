#pragma once

#include "modes/cpr.h"

#include <cstdint>
#include <optional>
#include <variant>

namespace korvane::modes {

// What the 56-bit field of an extended squitter says, by type code. Values that a squitter marks as not available are
// absent.

// Type codes 1 to 4.
struct Identification {
    char callsign[9] = {}; // without filling; empty when it has a character that is none
    std::uint8_t category = 0; // 0 to 7, within the set
    char categorySet = 'D'; // 'A' to 'D'
};

// Type codes 5 to 8.
struct SurfacePosition {
    std::optional<double> groundSpeed; // knots
    std::optional<double> track; // degrees
    CprPosition position;
};

// Type codes 0, 9 to 18, 20 to 22.
struct AirbornePosition {
    std::uint8_t surveillanceStatus = 0; // 0 to 3
    bool isGnssHeight = false; // of the altitude: above the ellipsoid instead of barometric
    std::optional<int> altitude; // feet
    std::optional<CprPosition> position;
};

// Type code 19.
struct AirborneVelocity {
    std::uint8_t subtype = 0; // 1, 2 over ground; 3, 4 through the air; 2 and 4 supersonic
    std::optional<double> groundSpeed; // knots
    std::optional<double> track; // degrees
    std::optional<double> airspeed; // knots
    bool isTrueAirspeed = false; // else indicated
    std::optional<double> heading; // degrees
    std::optional<int> verticalRate; // feet per minute
    bool isBarometricRate = false; // else geometric
    std::optional<int> gnssAboveBarometric; // feet
};

// Type code 28, subtype 1.
struct EmergencyStatus {
    std::uint8_t emergency = 0; // 0 none, 1 general, 2 medical, 3 fuel, 4 radio, 5 unlawful interference, 6 downed
    std::uint16_t squawk = 0; // binary value of the four octal digits
};

// A resolution advisory: register 3,0, type code 28 subtype 2 and the message field of DF 16.
struct ResolutionAdvisory {
    std::uint16_t advisory = 0; // 14 bits, first is the most significant
    std::uint8_t complement = 0; // 4 bits
    bool isTerminated = false;
    bool hasMultipleThreats = false;
    std::uint8_t threatType = 0; // 1 address, 2 range and bearing
    std::uint32_t threatAddress = 0; // of type 1
};

// Type code 29.
struct TargetState {
    std::uint8_t subtype = 0; // 0 of the first edition, 1 of the second
    std::optional<int> selectedAltitude; // feet
    bool isFmsAltitude = false; // else of the mode control panel
    std::optional<double> barometricSetting; // hectopascal
    std::optional<double> selectedHeading; // degrees
    std::uint8_t nacP = 0;
    std::uint8_t sil = 0;
    bool hasModes = false; // the five below are told
    bool isAutopilotOn = false;
    bool isVnavOn = false;
    bool isAltitudeHoldOn = false;
    bool isApproachOn = false;
    bool isLnavOn = false;
};

// Type code 31.
struct OperationalStatus {
    bool isSurface = false;
    std::uint16_t capabilities = 0;
    std::uint16_t modes = 0;
    std::uint8_t version = 0;
    bool nicSupplementA = false;
    std::uint8_t nacP = 0;
    std::uint8_t sil = 0;
    bool isMagneticHeading = false; // of the reference direction
};

// TIS-B coarse position, control field 3.
struct CoarsePosition {
    std::optional<int> altitude; // feet, barometric
    std::optional<double> track; // degrees, to 11.25
    std::optional<double> groundSpeed; // knots, to 32
    CprPosition position;
};

using SquitterContent = std::variant<std::monostate, Identification, SurfacePosition, AirbornePosition,
    AirborneVelocity, EmergencyStatus, ResolutionAdvisory, TargetState, OperationalStatus, CoarsePosition>;

// me: the field in the low 56 bits. Nothing for type codes and subtypes that are reserved.
SquitterContent decodeSquitter(std::uint64_t me);
CoarsePosition decodeCoarsePosition(std::uint64_t me);

} // namespace korvane::modes
