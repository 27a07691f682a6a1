// The typed record of safety nets: CAT004.

#include "disassemble.h"
#include "typed_items.h"

#include <iterator>

namespace korvane::asterix {
namespace {

// What the bits of I004/060 report: message types, or one of these.
enum SystemStatus : std::uint8_t { Nothing = 0, VectoringAltitudes = 200, Degraded, Overflow, Overload };

// In the order of the item, seven bits an extent. Several bits of one type are parts of one function. 99 is airspace
// infringement, happened and predicted; 20 and 24 are the pressure setting and vertical rate monitors, 27 holding.
constexpr std::uint8_t StatusBits[] = {
    VectoringAltitudes, 2, 3, 4, 5, 6, 7, //
    8, 9, 18, 19, Degraded, Overflow, Overload, //
    99, 99, 22, 21, 23, 25, 26, //
    20, 20, 20, 24, 24, 24, 27, //
    27, 27, 98, 97, 28, 29, 30, //
    31, 32, 33, 34, 35, 36, 37, //
    38, 39, 40, 41, 42, 43, 44, //
    45, Nothing, Nothing, Nothing, Nothing, Nothing, Nothing, //
};

using Functions = decltype(_ast_datarecord_004_t::i060);

static_assert(std::size(Functions{}.entries) >= 39, "the functions in the table above");

void addFunction(Functions &out, std::uint8_t type, bool on)
{
    switch (type) {
    case Nothing:
        return;
    case VectoringAltitudes:
        out.vectoringAltitudes = on;
        return;
    case Degraded:
        out.degraded = on;
        return;
    case Overflow:
        out.overflow = on;
        return;
    case Overload:
        out.overload = on;
        return;
    default:
        // The parts of a function stand side by side.
        if (out.count > 0 && out.entries[out.count - 1].type == type) {
            out.entries[out.count - 1].on |= on;
        } else {
            out.entries[out.count++] = {type, on};
        }
    }
}

void readFunctions(Functions &out, const unsigned char *at)
{
    if (!at) {
        return;
    }
    out.present = true;
    for (std::size_t i = 0; i < std::size(StatusBits); ++i) {
        addFunction(out, StatusBits[i], bit(*at, 7 - static_cast<int>(i % 7)));
        if (i % 7 == 6 && !(*at++ & 1)) {
            break;
        }
    }
}

void readPredictedPosition(_ast_item_alert_aircraft_t &out, const unsigned char *at)
{
    constexpr double Lsb = 180.0 / 33554432;
    out.positionPresent = true;
    out.latitude = static_cast<std::int32_t>(be32(at)) * Lsb;
    out.longitude = static_cast<std::int32_t>(be32(at + 4)) * Lsb;
    out.altitude = signed16(at + 8) * 25;
}

void readCartesianPosition(_ast_item_alert_aircraft_t &out, const unsigned char *at)
{
    out.cartesianPresent = true;
    out.x = signed24(at) * 0.5;
    out.y = signed24(at + 3) * 0.5;
    out.z = signed16(at + 6) * 25;
}

void readCharacteristics(_ast_item_alert_aircraft_t &out, const unsigned char *at)
{
    const auto extents = readExtents<2>(at);
    out.characteristicsPresent = true;
    out.traffic = static_cast<std::uint8_t>(extents[0] >> 6);
    out.flightRules = static_cast<std::uint8_t>(extents[0] >> 4 & 3);
    out.rvsm = static_cast<std::uint8_t>(extents[0] >> 2 & 3);
    out.cdm = static_cast<std::uint8_t>(extents[1] >> 6);
}

void readAircraftField(_ast_item_alert_aircraft_t &out, unsigned position, const unsigned char *at)
{
    switch (position) {
    case 0:
        out.callsignPresent = true;
        readAscii(out.callsign, at, 7);
        break;
    case 1:
        out.mode3APresent = true;
        out.mode3A = static_cast<std::uint16_t>(be16(at) & 0x0FFF);
        break;
    case 2:
        readPredictedPosition(out, at);
        break;
    case 3:
        readCartesianPosition(out, at);
        break;
    case 4:
        out.timeToThresholdPresent = true;
        out.timeToThreshold = be24(at) / 128.0;
        break;
    case 5:
        out.distanceToThresholdPresent = true;
        out.distanceToThreshold = be16(at) * 0.5;
        break;
    case 6:
        readCharacteristics(out, at);
        break;
    case 7:
        out.targetIdentificationPresent = true;
        readCallsign(out.targetIdentification, at);
        break;
    case 8:
        out.flightPlanPresent = true;
        out.flightPlan = be32(at) & 0x07FFFFFF;
        break;
    case 9:
        out.clearedLevelPresent = true;
        out.clearedLevel = be16(at) * 0.25;
        break;
    default:
        break;
    }
}

void readAircraft(_ast_item_alert_aircraft_t &out, const _ast_datarecord_t &record, Item004 item, Items items)
{
    const unsigned char *at = items[item];
    if (!at) {
        return;
    }
    out.present = true;
    visitSubItems(record, item, at,
        [&out](unsigned position, const unsigned char *octets) { readAircraftField(out, position, octets); });
}

void readArea(_ast_datarecord_004_t &out, const _ast_datarecord_t &record, Items items)
{
    const unsigned char *at = items[Item004::I100];
    if (!at) {
        return;
    }
    auto &area = out.i100;
    area.present = true;
    const auto readDesignator = [](bool &present, char *text, const unsigned char *octets) {
        present = true;
        readAscii(text, octets, 7);
    };
    visitSubItems(record, Item004::I100, at, [&](unsigned position, const unsigned char *octets) {
        switch (position) {
        case 0:
            area.areaNamePresent = true;
            return readCallsign(area.areaName, octets);
        case 1:
            return readDesignator(area.crossingAreaPresent, area.crossingArea, octets);
        case 2:
            return readDesignator(area.runway1Present, area.runway1, octets);
        case 3:
            return readDesignator(area.runway2Present, area.runway2, octets);
        case 4:
            return readDesignator(area.stopBarPresent, area.stopBar, octets);
        case 5:
            return readDesignator(area.gatePresent, area.gate, octets);
        default:
            return;
        }
    });
}

void readTiming(_ast_datarecord_004_t &out, const _ast_datarecord_t &record, Items items)
{
    const unsigned char *at = items[Item004::I070];
    if (!at) {
        return;
    }
    auto &timing = out.i070;
    timing.present = true;
    const auto note = [](bool &present, double &out70, double value) {
        present = true;
        out70 = value;
    };
    visitSubItems(record, Item004::I070, at, [&](unsigned position, const unsigned char *octets) {
        switch (position) {
        case 0:
            return note(timing.timeToConflictPresent, timing.timeToConflict, be24(octets) / 128.0);
        case 1:
            return note(timing.timeToClosestApproachPresent, timing.timeToClosestApproach, be24(octets) / 128.0);
        case 2:
            return note(timing.horizontalSeparationPresent, timing.horizontalSeparation, be24(octets) * 0.5);
        case 3:
            return note(
                timing.minimumHorizontalSeparationPresent, timing.minimumHorizontalSeparation, be16(octets) * 0.5);
        case 4:
            return note(timing.verticalSeparationPresent, timing.verticalSeparation, be16(octets) * 25.0);
        case 5:
            return note(timing.minimumVerticalSeparationPresent, timing.minimumVerticalSeparation, be16(octets) * 25.0);
        default:
            return;
        }
    });
}

void readConflictField(_ast_datarecord_004_t &out, unsigned position, const unsigned char *at)
{
    auto &conflict = out.i120;
    switch (position) {
    case 0: {
        const auto extents = readExtents<2>(at);
        conflict.naturePresent = true;
        conflict.nature = static_cast<std::uint8_t>(extents[0] >> 1);
        conflict.runwayNature = static_cast<std::uint8_t>(extents[1] >> 6);
        break;
    }
    case 1:
        conflict.classificationPresent = true;
        conflict.table = static_cast<std::uint8_t>(at[0] >> 4);
        conflict.properties = static_cast<std::uint8_t>(at[0] >> 1 & 7);
        conflict.high = bit(at[0], 0);
        break;
    case 2:
        conflict.probabilityPresent = true;
        conflict.probability = at[0] * 0.5;
        break;
    case 3:
        conflict.durationPresent = true;
        conflict.duration = be24(at) / 128.0;
        break;
    default:
        break;
    }
}

void readConflict(_ast_datarecord_004_t &out, const _ast_datarecord_t &record, Items items)
{
    const unsigned char *at = items[Item004::I120];
    if (!at) {
        return;
    }
    out.i120.present = true;
    visitSubItems(record, Item004::I120, at,
        [&out](unsigned position, const unsigned char *octets) { readConflictField(out, position, octets); });
}

void readDeviations(_ast_datarecord_004_t &out, Items items)
{
    if (const unsigned char *at = items[Item004::I074]) {
        out.i074 = {true, signed16(at) * 32};
    }
    if (const unsigned char *at = items[Item004::I075]) {
        out.i075 = {true, signed24(at) * 0.5};
    }
    if (const unsigned char *at = items[Item004::I076]) {
        out.i076 = {true, signed16(at) * 25};
    }
}

} // namespace
} // namespace korvane::asterix

using namespace korvane::asterix;

void ast_datarecord_004_disassemble(_ast_datarecord_004_t *out, const _ast_datarecord_t &record)
{
    *out = {};
    if (!isReadable(record, 4)) {
        return;
    }
    out->valid = true;
    const Items items(record);
    out->i010 = readSacSic(items[Item004::I010]);
    if (const unsigned char *at = items[Item004::I000]) {
        out->i000 = {true, at[0]};
    }
    readTime(out->i020, items[Item004::I020]);
    if (const unsigned char *at = items[Item004::I040]) {
        out->i040 = {true, static_cast<std::uint16_t>(be16(at))};
    }
    if (const unsigned char *at = items[Item004::I045]) {
        out->i045 = {
            true, bit(at[0], 7), static_cast<std::uint8_t>(at[0] >> 4 & 7), static_cast<std::uint8_t>(at[0] >> 1 & 7)};
    }
    readFunctions(out->i060, items[Item004::I060]);
    readTrackNumber(out->i030, items[Item004::I030], 0xFFFF);
    readTrackNumber(out->i035, items[Item004::I035], 0xFFFF);
    readAircraft(out->i170, record, Item004::I170, items);
    readAircraft(out->i171, record, Item004::I171, items);
    readConflict(*out, record, items);
    readTiming(*out, record, items);
    readDeviations(*out, items);
    readArea(*out, record, items);
}
