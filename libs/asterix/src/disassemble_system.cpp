// The typed record of system track messages: CAT062.

#include "disassemble.h"
#include "typed_items.h"

namespace korvane::asterix {
namespace {

// Positions in the presence field of I062/380.
enum AircraftDerived : unsigned {
    Address = 0,
    Identification = 1,
    MagneticHeading = 2,
    SelectedAltitude = 5,
    FinalSelectedAltitude = 6,
    Communications = 9,
    AdsbStatus = 10,
    BarometricRate = 12,
    TrackAngle = 16,
    GroundSpeed = 17
};

std::int32_t altitude13(const unsigned char *at)
{
    return static_cast<std::int32_t>(signExtended(be16(at) & 0x1FFF, 13)) * 25;
}

void readAircraftDerivedField(_ast_datarecord_062_t &out, unsigned position, const unsigned char *at)
{
    auto &derived = out.i380;
    switch (position) {
    case Address:
        derived.addressPresent = true;
        derived.address = be24(at);
        break;
    case Identification:
        derived.callsignPresent = true;
        readCallsign(derived.callsign, at);
        break;
    case MagneticHeading:
        derived.magneticHeadingPresent = true;
        derived.magneticHeading = azimuth16(at);
        break;
    case SelectedAltitude:
        derived.selectedAltitudePresent = true;
        derived.selectedAltitude = altitude13(at);
        break;
    case FinalSelectedAltitude:
        derived.finalSelectedAltitudePresent = true;
        derived.finalSelectedAltitude = altitude13(at);
        break;
    case Communications:
        derived.flightStatusPresent = true;
        derived.flightStatus = at[0] >> 2 & 7;
        break;
    case AdsbStatus:
        derived.priorityStatusPresent = true;
        derived.priorityStatus = at[1] & 7;
        break;
    case BarometricRate:
        derived.verticalRatePresent = true;
        derived.verticalRate = signed16(at) * 6.25;
        break;
    case TrackAngle:
        derived.trackAnglePresent = true;
        derived.trackAngle = azimuth16(at);
        break;
    case GroundSpeed:
        derived.groundSpeedPresent = true;
        derived.groundSpeed = signed16(at) * (3600.0 / 16384);
        break;
    default:
        break;
    }
}

void readAircraftDerived(_ast_datarecord_062_t &out, const _ast_datarecord_t &record, const unsigned char *at)
{
    if (!at) {
        return;
    }
    out.i380.present = true;
    visitSubItems(record, Item062::I380, at,
        [&out](unsigned position, const unsigned char *next) { readAircraftDerivedField(out, position, next); });
}

void readFlightPlan(_ast_datarecord_062_t &out, const _ast_datarecord_t &record, const unsigned char *at)
{
    constexpr unsigned Callsign = 1; // position in the presence field
    constexpr int CallsignLength = 7;
    if (!at) {
        return;
    }
    visitSubItems(record, Item062::I390, at, [&out](unsigned position, const unsigned char *next) {
        if (position != Callsign) {
            return;
        }
        out.i390.callsignPresent = true;
        readAscii(out.i390.callsign, next, CallsignLength);
    });
}

void readStatus(_ast_datarecord_062_t &out, const unsigned char *at)
{
    if (!at) {
        return;
    }
    const auto [first, second, third, fourth, fifth] = readExtents<5>(at);
    out.i080 = {true, bit(first, 7), bit(first, 6), bit(first, 5), static_cast<std::uint8_t>(first >> 2 & 7),
        bit(first, 1), bit(second, 7), bit(second, 6), bit(second, 5), bit(third, 4), bit(third, 0), bit(fourth, 7),
        bit(fourth, 6), bit(fourth, 5), bit(fourth, 4), bit(fourth, 3), static_cast<std::uint8_t>(fifth >> 3 & 7)};
}

void readUpdateAges(_ast_datarecord_062_t &out, const _ast_datarecord_t &record, const unsigned char *at)
{
    constexpr double Lsb = 0.25; // seconds
    if (!at) {
        return;
    }
    auto &ages = out.i290;
    ages.present = true;
    // By position in the presence field. All but the one that is not read are of one octet.
    _ast_update_age_t *const places[] = {
        nullptr, &ages.psr, &ages.ssr, &ages.modeS, nullptr, &ages.es, &ages.vdl, &ages.uat, nullptr, &ages.mlat};
    visitSubItems(record, Item062::I290, at, [&places](unsigned position, const unsigned char *next) {
        if (position < std::size(places) && places[position]) {
            *places[position] = {true, next[0] * Lsb};
        }
    });
}

void readMeasured(_ast_datarecord_062_t &out, const _ast_datarecord_t &record, const unsigned char *at)
{
    constexpr unsigned ReportType = 5; // position in the presence field
    if (!at) {
        return;
    }
    visitSubItems(record, Item062::I340, at, [&out](unsigned position, const unsigned char *next) {
        if (position == ReportType) {
            out.i340 = {true, static_cast<std::uint8_t>(next[0] >> 5)};
        }
    });
}

void readKinematics(_ast_datarecord_062_t &out, Items items)
{
    if (const unsigned char *at = items[Item062::I105]) {
        constexpr double Lsb = 180.0 / 33554432;
        const auto latitude = static_cast<std::int32_t>(be32(at));
        const auto longitude = static_cast<std::int32_t>(be32(at + 4));
        out.i105 = {true, latitude * Lsb, longitude * Lsb, latitude, longitude, Lsb};
    }
    if (const unsigned char *at = items[Item062::I100]) {
        out.i100 = {true, signed24(at) * 0.5, signed24(at + 3) * 0.5};
    }
    if (const unsigned char *at = items[Item062::I185]) {
        out.i185 = {true, signed16(at) * 0.25, signed16(at + 2) * 0.25};
    }
    if (const unsigned char *at = items[Item062::I220]) {
        out.i220 = {true, signed16(at) * 6.25};
    }
    if (const unsigned char *at = items[Item062::I200]) {
        out.i200 = {true, static_cast<std::uint8_t>(at[0] >> 6), static_cast<std::uint8_t>(at[0] >> 4 & 3),
            static_cast<std::uint8_t>(at[0] >> 2 & 3), bit(at[0], 1)};
    }
}

void readLevels(_ast_datarecord_062_t &out, Items items)
{
    if (const unsigned char *at = items[Item062::I136]) {
        out.i136 = {true, signed16(at)};
    }
    if (const unsigned char *at = items[Item062::I130]) {
        out.i130 = {true, signed16(at) * 6.25};
    }
    if (const unsigned char *at = items[Item062::I135]) {
        const unsigned value = be16(at);
        out.i135 = {true, bit(value, 15), static_cast<double>(signExtended(value & 0x7FFF, 15))};
    }
}

} // namespace
} // namespace korvane::asterix

using namespace korvane::asterix;

void ast_datarecord_062_disassemble(_ast_datarecord_062_t *out, const _ast_datarecord_t &record)
{
    *out = {};
    if (!isReadable(record, 62)) {
        return;
    }
    out->valid = true;
    const Items items(record);
    out->i010 = readSacSic(items[Item062::I010]);
    readTime(out->i070, items[Item062::I070]);
    readKinematics(*out, items);
    readMode3A(out->i060, items[Item062::I060]);
    if (const unsigned char *at = items[Item062::I245]) {
        out->i245.present = true;
        readCallsign(out->i245.text, at + 1); // after the source of the identification
    }
    readAircraftDerived(*out, record, items[Item062::I380]);
    readFlightPlan(*out, record, items[Item062::I390]);
    if (const unsigned char *at = items[Item062::I040]) {
        out->i040 = {true, static_cast<std::uint16_t>(be16(at))};
    }
    readStatus(*out, items[Item062::I080]);
    readUpdateAges(*out, record, items[Item062::I290]);
    readMeasured(*out, record, items[Item062::I340]);
    readLevels(*out, items);
}
