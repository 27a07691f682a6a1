#pragma once

// Where a UAP has the values that a target report of any category and edition may carry: address, position, level and
// so on. Found once for each UAP by the names in its table, so that an edition that moves or widens a field needs
// nothing here.

#include <array>
#include <cstddef>
#include <cstdint>

namespace korvane::asterix {

struct Node;
struct Uap;

enum class ReportField : std::uint8_t {
    Address,
    Identification,
    Latitude,
    Longitude,
    Mode3A,
    Mode3ANotValidated,
    Mode3AGarbled,
    Mode3ASmoothed,
    GroundSpeed,
    TrackAngle,
    VelocityX,
    VelocityY,
    MagneticHeading,
    Level,
    SelectedAltitude,
    VerticalRate,
    GroundBit,
    PriorityStatus,
    SurveillanceStatus,
    MilitaryEmergency,
    Spi,
    TestBit,
    TimeOfDay,
    TransponderCode, // Mode 3/A of any category, where Mode3A is that of CAT021
    TrackNumber,
    PositionTime,
    GeometricAltitude,
    Count
};

inline constexpr std::size_t ReportFieldCount = static_cast<std::size_t>(ReportField::Count);
// A value may stand in two items of a UAP, the better one first.
inline constexpr std::size_t ReportPlaces = 2;

struct ReportPlace {
    const Node *node = nullptr; // null: the UAP does not have it
    std::uint8_t slot = 0; // FRN minus 1 of its item
    bool isNested = false; // in a sub-item or a later extent: has to be searched for in each record
    bool isSigned = false;
    std::uint8_t bits = 0;
    std::uint16_t bitOffset = 0; // from the first bit of the item
    double lsb = 1; // in degrees, feet, knots, feet per minute or seconds
};

using ReportFields = std::array<std::array<ReportPlace, ReportPlaces>, ReportFieldCount>;

ReportFields findReportFields(const Uap &uap);

} // namespace korvane::asterix
