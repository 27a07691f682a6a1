// The typed records of surface movement and multilateration: CAT010 and CAT020.

#include "disassemble.h"
#include "typed_items.h"

namespace korvane::asterix {
namespace {

std::uint8_t bitsOf(unsigned value, int lowest, int count)
{
    return static_cast<std::uint8_t>(value >> lowest & ((1U << count) - 1));
}

void readDescriptor010(_ast_datarecord_010_t &out, const unsigned char *at)
{
    if (!at) {
        return;
    }
    const auto [first, second, third] = readExtents<3>(at);
    out.i020 = {true, bitsOf(first, 5, 3), bit(first, 4), bitsOf(first, 3, 1), bit(first, 2), bit(first, 1),
        bit(second, 7), bit(second, 6), bit(second, 5), bitsOf(second, 3, 2), bitsOf(second, 1, 2), bit(third, 7)};
}

void readStatus010(_ast_datarecord_010_t &out, const unsigned char *at)
{
    if (!at) {
        return;
    }
    const auto [first, second, third] = readExtents<3>(at);
    out.i170 = {true, bit(first, 7), bit(first, 6), bitsOf(first, 4, 2), bit(first, 3), bit(first, 2), bit(first, 1),
        bitsOf(second, 6, 2), bitsOf(second, 3, 3), bitsOf(second, 1, 2), bit(third, 7)};
}

void readMotion010(_ast_datarecord_010_t &out, Items items)
{
    readWgs84(out.i041, items[Item010::I041], 180.0 / 2147483648);
    if (const unsigned char *at = items[Item010::I040]) {
        out.i040 = {true, static_cast<double>(be16(at)), azimuth16(at + 2)};
    }
    if (const unsigned char *at = items[Item010::I042]) {
        out.i042 = {true, signed16(at), signed16(at + 2)};
    }
    readVelocity(out.i200, items[Item010::I200]);
    readCartesianVelocity(out.i202, items[Item010::I202], 0.0625);
    readAcceleration(out.i210, items[Item010::I210], 0.0625);
    readFlightLevel(out.i090, items[Item010::I090]);
    readHeight(out.i091, items[Item010::I091]);
}

void readShape010(_ast_datarecord_010_t &out, Items items)
{
    if (const unsigned char *at = items[Item010::I270]) {
        const auto [length, orientation, width] = readExtents<3>(at);
        out.i270 = {true, static_cast<double>(length >> 1), (orientation >> 1) * (360.0 / 128),
            static_cast<double>(width >> 1)};
    }
    if (const unsigned char *at = items[Item010::I500]) {
        out.i500 = {true, at[0] * 0.25, at[1] * 0.25, signed16(at + 2) * 0.25};
    }
    if (const unsigned char *at = items[Item010::I131]) {
        out.i131 = {true, at[0]};
    }
}

void readSystem010(_ast_datarecord_010_t &out, Items items)
{
    if (const unsigned char *at = items[Item010::I000]) {
        out.i000 = {true, at[0]};
    }
    if (const unsigned char *at = items[Item010::I550]) {
        out.i550 = {true, bitsOf(at[0], 6, 2), bit(at[0], 5), bit(at[0], 4), bit(at[0], 3), bit(at[0], 2)};
    }
}

// Target identification of both categories: its source, then the characters.
template <typename Identification>
void readIdentification(Identification &out, const unsigned char *at)
{
    if (!at) {
        return;
    }
    out.present = true;
    out.sti = static_cast<std::uint8_t>(at[0] >> 6);
    readCallsign(out.text, at + 1);
}

void readDescriptor020(_ast_datarecord_020_t &out, const unsigned char *at)
{
    if (!at) {
        return;
    }
    const auto [first, second] = readExtents<2>(at);
    out.i020 = {true, bitsOf(first, 1, 7), bit(second, 7), bit(second, 6), bitsOf(second, 5, 1), bit(second, 4),
        bit(second, 3), bit(second, 2), bit(second, 1)};
}

void readStatus020(_ast_datarecord_020_t &out, const unsigned char *at)
{
    if (!at) {
        return;
    }
    const auto [first, second] = readExtents<2>(at);
    out.i170 = {true, bit(first, 7), bit(first, 6), bit(first, 5), bitsOf(first, 3, 2), bit(first, 2), bit(first, 1),
        bit(second, 7)};
}

void readMotion020(_ast_datarecord_020_t &out, Items items)
{
    readWgs84(out.i041, items[Item020::I041], 180.0 / 33554432);
    if (const unsigned char *at = items[Item020::I042]) {
        out.i042 = {true, signed24(at) * 0.5, signed24(at + 3) * 0.5};
    }
    readCartesianVelocity(out.i202, items[Item020::I202], 0.25);
    readAcceleration(out.i210, items[Item020::I210], 0.25);
    if (const unsigned char *at = items[Item020::I090]) {
        _ast_item_flight_level_t level{};
        readFlightLevel(level, at);
        out.i090 = {true, level.v, level.g, level.level * 0.25};
    }
    readHeight(out.i105, items[Item020::I105]);
    readHeight(out.i110, items[Item020::I110]);
}

void readModeS020(_ast_datarecord_020_t &out, Items items)
{
    readAddress(out.i220, items[Item020::I220]);
    readIdentification(out.i245, items[Item020::I245]);
    readRegisters(out.i250, items[Item020::I250]);
    if (const unsigned char *at = items[Item020::I230]) {
        out.i230 = {true, bitsOf(at[0], 5, 3), bitsOf(at[0], 2, 3)};
    }
    if (const unsigned char *at = items[Item020::I260]) {
        out.i260 = {true, at};
    }
}

} // namespace
} // namespace korvane::asterix

using namespace korvane::asterix;

void ast_datarecord_010_disassemble(_ast_datarecord_010_t *out, const _ast_datarecord_t &record)
{
    *out = {};
    if (!isReadable(record, 10)) {
        return;
    }
    out->valid = true;
    const Items items(record);
    out->i010 = readSacSic(items[Item010::I010]);
    readSystem010(*out, items);
    readDescriptor010(*out, items[Item010::I020]);
    readTime(out->i140, items[Item010::I140]);
    readMotion010(*out, items);
    readTrackNumber(out->i161, items[Item010::I161], 0x0FFF);
    readStatus010(*out, items[Item010::I170]);
    readMode3A(out->i060, items[Item010::I060]);
    readAddress(out->i220, items[Item010::I220]);
    readIdentification(out->i245, items[Item010::I245]);
    readRegisters(out->i250, items[Item010::I250]);
    if (const unsigned char *at = items[Item010::I300]) {
        out->i300 = {true, at[0]};
    }
    readVehicleMessage(out->i310, items[Item010::I310]);
    readShape010(*out, items);
}

void ast_datarecord_020_disassemble(_ast_datarecord_020_t *out, const _ast_datarecord_t &record)
{
    *out = {};
    if (!isReadable(record, 20)) {
        return;
    }
    out->valid = true;
    const Items items(record);
    out->i010 = readSacSic(items[Item020::I010]);
    readDescriptor020(*out, items[Item020::I020]);
    readTime(out->i140, items[Item020::I140]);
    readMotion020(*out, items);
    readTrackNumber(out->i161, items[Item020::I161], 0x0FFF);
    readStatus020(*out, items[Item020::I170]);
    readMode3A(out->i070, items[Item020::I070]);
    readModeS020(*out, items);
    if (const unsigned char *at = items[Item020::I300]) {
        out->i300 = {true, at[0]};
    }
    readVehicleMessage(out->i310, items[Item020::I310]);
}
