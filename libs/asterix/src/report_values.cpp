#include "asterix/report_values.h"

#include "asterix/record_map.h"
#include "asterix/reference_values.h"
#include "disassemble.h"
#include "record_fields.h"

#include <cmath>
#include <numbers>
#include <optional>

namespace korvane::asterix {
namespace {

std::optional<std::uint64_t> placeBits(const _ast_datarecord_t &record, const ReportPlace &place)
{
    if (!place.node || record.itemOffsets[place.slot] == 0) {
        return std::nullopt;
    }
    if (place.isNested) {
        return fieldBits(record, *place.node);
    }
    return bitsAt(record.data + record.itemOffsets[place.slot], place.bitOffset, place.bits);
}

struct FoundBits {
    const ReportPlace *place;
    std::uint64_t bits;
};

// The first place of a field that the record fills.
std::optional<FoundBits> findBits(const _ast_datarecord_t &record, ReportField field)
{
    if (!record.valid) {
        return std::nullopt;
    }
    for (const ReportPlace &place : record.uap->reportFields[static_cast<std::size_t>(field)]) {
        if (const std::optional<std::uint64_t> bits = placeBits(record, place)) {
            return FoundBits{&place, *bits};
        }
    }
    return std::nullopt;
}

std::optional<double> findValue(const _ast_datarecord_t &record, ReportField field)
{
    const std::optional<FoundBits> found = findBits(record, field);
    if (!found) {
        return std::nullopt;
    }
    const double count = found->place->isSigned ? static_cast<double>(signExtended(found->bits, found->place->bits))
                                                : static_cast<double>(found->bits);
    return count * found->place->lsb;
}

bool findFlag(const _ast_datarecord_t &record, ReportField field)
{
    const std::optional<FoundBits> found = findBits(record, field);
    return found && found->bits != 0;
}

struct Velocity {
    double speed; // knots
    double trackAngle; // degrees, 0 to 360
};

// Polar where the record has it, else out of its Cartesian components.
std::optional<Velocity> findVelocity(const _ast_datarecord_t &record)
{
    if (const auto speed = findValue(record, ReportField::GroundSpeed)) {
        return Velocity{*speed, findValue(record, ReportField::TrackAngle).value_or(0)};
    }
    const auto x = findValue(record, ReportField::VelocityX);
    const auto y = findValue(record, ReportField::VelocityY);
    if (!x || !y) {
        return std::nullopt;
    }
    const double angle = std::atan2(*x, *y) * (180 / std::numbers::pi);
    return Velocity{std::hypot(*x, *y), angle < 0 ? angle + 360 : angle};
}

_ast_altitude_t altitude(const _ast_datarecord_t &record, ReportField field)
{
    const std::optional<double> feet = findValue(record, field);
    return {feet.has_value(), feet.value_or(0)};
}

_ast_time_of_day_t timeOf(const _ast_datarecord_t &record, ReportField field)
{
    constexpr double Day = 86400;
    constexpr std::uint8_t WholeDayBits = 24;
    const auto found = findBits(record, field);
    if (!found) {
        return {};
    }
    const ReportPlace &place = *found->place;
    const double period = place.bits < WholeDayBits ? std::ldexp(place.lsb, place.bits) : Day;
    return {true, static_cast<double>(found->bits) * place.lsb, period};
}

} // namespace
} // namespace korvane::asterix

using namespace korvane::asterix;

_ast_item_address_t ast_datarecord_get_icaoaddr(const _ast_datarecord_t &record)
{
    const auto found = findBits(record, ReportField::Address);
    return found ? _ast_item_address_t{true, static_cast<std::uint32_t>(found->bits)} : _ast_item_address_t{};
}

_ast_time_of_day_t ast_datarecord_get_timeofday(const _ast_datarecord_t &record)
{
    return timeOf(record, ReportField::TimeOfDay);
}

_ast_time_of_day_t ast_datarecord_get_positiontime(const _ast_datarecord_t &record)
{
    const _ast_time_of_day_t time = timeOf(record, ReportField::PositionTime);
    return time.present ? time : ast_datarecord_get_timeofday(record);
}

_ast_altitude_t ast_datarecord_get_geometricaltitude(const _ast_datarecord_t &record)
{
    return altitude(record, ReportField::GeometricAltitude);
}

_ast_item_callsign_t ast_datarecord_get_callsign(const _ast_datarecord_t &record)
{
    _ast_item_callsign_t callsign{};
    if (const auto found = findBits(record, ReportField::Identification)) {
        callsign.present = true;
        textOfCallsign(callsign.text, found->bits);
    }
    return callsign;
}

_ast_item_wgs84_t ast_datarecord_get_wgs84coord(const _ast_datarecord_t &record)
{
    const auto latitude = findValue(record, ReportField::Latitude);
    const auto longitude = findValue(record, ReportField::Longitude);
    return latitude && longitude ? _ast_item_wgs84_t{true, *latitude, *longitude} : _ast_item_wgs84_t{};
}

_ast_ground_bit_t ast_datarecord_021_get_groundbit(const _ast_datarecord_t &record)
{
    if (!record.valid) {
        return {};
    }
    const ReportPlace &place = record.uap->reportFields[static_cast<std::size_t>(ReportField::GroundBit)][0];
    const bool present = place.node && record.itemOffsets[place.slot] != 0;
    return {present, present && findFlag(record, ReportField::GroundBit)};
}

bool ast_datarecord_021_get_testbit(const _ast_datarecord_t &record)
{
    return findFlag(record, ReportField::TestBit);
}

_ast_item_mode3a_t ast_datarecord_021_get_squawk(const _ast_datarecord_t &record)
{
    const auto found = findBits(record, ReportField::Mode3A);
    if (!found) {
        return {};
    }
    return {true, findFlag(record, ReportField::Mode3ANotValidated), findFlag(record, ReportField::Mode3AGarbled),
        findFlag(record, ReportField::Mode3ASmoothed), static_cast<std::uint16_t>(found->bits)};
}

_ast_target_status_t ast_datarecord_021_get_targetstatus(const _ast_datarecord_t &record)
{
    constexpr std::uint64_t SpiSet = 3;
    const auto priority = findBits(record, ReportField::PriorityStatus);
    const auto surveillance = findBits(record, ReportField::SurveillanceStatus);
    const bool spi = (surveillance && surveillance->bits == SpiSet) || findFlag(record, ReportField::Spi);
    return {priority.has_value(), static_cast<std::uint8_t>(priority ? priority->bits : 0),
        findFlag(record, ReportField::MilitaryEmergency), spi};
}

_ast_speed_t ast_datarecord_get_speed(const _ast_datarecord_t &record)
{
    const auto velocity = findVelocity(record);
    return velocity ? _ast_speed_t{true, velocity->speed} : _ast_speed_t{};
}

_ast_heading_t ast_datarecord_get_heading(const _ast_datarecord_t &record)
{
    const auto velocity = findVelocity(record);
    const auto magnetic = findValue(record, ReportField::MagneticHeading);
    if (!velocity && !magnetic) {
        return {};
    }
    return {true, velocity.has_value(), magnetic.has_value(), velocity ? velocity->trackAngle : *magnetic};
}

_ast_altitude_t ast_datarecord_get_flightlevel(const _ast_datarecord_t &record)
{
    return altitude(record, ReportField::Level);
}

_ast_altitude_t ast_datarecord_021_get_selaltitude(const _ast_datarecord_t &record)
{
    return altitude(record, ReportField::SelectedAltitude);
}

_ast_vrate_t ast_datarecord_get_vrate(const _ast_datarecord_t &record)
{
    const auto rate = findValue(record, ReportField::VerticalRate);
    return {rate.has_value(), rate.value_or(0)};
}

namespace korvane::asterix {

std::optional<std::uint16_t> mode3aOf(const _ast_datarecord_t &record)
{
    const auto found = findBits(record, ReportField::TransponderCode);
    return found ? std::optional(static_cast<std::uint16_t>(found->bits)) : std::nullopt;
}

std::optional<std::uint32_t> trackNumberOf(const _ast_datarecord_t &record)
{
    const auto found = findBits(record, ReportField::TrackNumber);
    return found ? std::optional(static_cast<std::uint32_t>(found->bits)) : std::nullopt;
}

} // namespace korvane::asterix
