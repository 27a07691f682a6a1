// The typed records of plot and track messages: CAT001 and CAT048.

#include "disassemble.h"
#include "typed_items.h"

namespace korvane::asterix {

namespace {

void readPosition001(_ast_datarecord_001_t &out, Items items)
{
    if (const unsigned char *at = items[Item001::I040]) {
        out.i040 = {true, be16(at) / 128.0, azimuth16(at + 2)};
    }
    if (const unsigned char *at = items[Item001::I042]) {
        out.i042 = {true, signed16(at) / 64.0, signed16(at + 2) / 64.0};
    }
}

void readDescriptor048(_ast_datarecord_048_t &out, const unsigned char *at)
{
    if (at) {
        const auto [first, second] = readExtents<2>(at);
        out.i020 = {true, static_cast<std::uint8_t>(first >> 5), bit(first, 4), bit(first, 3), bit(first, 2),
            bit(first, 1), bit(second, 4), bit(second, 7)};
    }
}

void readStatus048(_ast_datarecord_048_t &out, const unsigned char *at)
{
    if (!at) {
        return;
    }
    const unsigned first = at[0];
    const bool trackEnd = bit(first, 0) && bit(at[1], 7);
    out.i170 = {true, bit(first, 7), static_cast<std::uint8_t>(first >> 5 & 3), bit(first, 4), bit(first, 3),
        static_cast<std::uint8_t>(first >> 1 & 3), trackEnd};
}

void readModeS048(_ast_datarecord_048_t &out, Items items)
{
    if (const unsigned char *at = items[Item048::I220]) {
        out.i220 = {true, be24(at)};
    }
    if (const unsigned char *at = items[Item048::I240]) {
        out.i240.present = true;
        readCallsign(out.i240.text, at);
    }
    readRegisters(out.i250, items[Item048::I250]);
    if (const unsigned char *at = items[Item048::I230]) {
        out.i230 = {true, static_cast<std::uint8_t>(at[0] >> 5), static_cast<std::uint8_t>(at[0] >> 2 & 7)};
    }
}

void readPosition048(_ast_datarecord_048_t &out, Items items)
{
    if (const unsigned char *at = items[Item048::I040]) {
        out.i040 = {true, be16(at) / 256.0, azimuth16(at + 2)};
    }
    if (const unsigned char *at = items[Item048::I042]) {
        out.i042 = {true, static_cast<std::int16_t>(be16(at)), static_cast<std::int16_t>(be16(at + 2)), 1.0 / 128};
    }
}

} // namespace
} // namespace korvane::asterix

using namespace korvane::asterix;

void ast_datarecord_001_disassemble(_ast_datarecord_001_t *out, const _ast_datarecord_t &record)
{
    *out = {};
    if (!isReadable(record, 1)) {
        return;
    }
    out->valid = true;
    const Items items(record);
    out->i010 = readSacSic(items[Item001::I010]);
    if (const unsigned char *at = items[Item001::I020]) {
        const auto [first, second] = readExtents<2>(at);
        out->i020 = {true, static_cast<std::uint8_t>(first >> 7), static_cast<std::uint8_t>(first >> 4 & 3),
            bit(first, 6), bit(first, 2), bit(first, 1), static_cast<std::uint8_t>(second >> 5 & 3), bit(second, 4),
            bit(second, 7)};
    }
    if (const unsigned char *at = items[Item001::I161]) {
        out->i161 = {true, static_cast<std::uint16_t>(be16(at))};
    }
    readPosition001(*out, items);
    readVelocity(out->i200, items[Item001::I200]);
    readMode3A(out->i070, items[Item001::I070]);
    readFlightLevel(out->i090, items[Item001::I090]);
    if (const unsigned char *at = items[Item001::I141]) {
        out->i141 = {true, be16(at) / 128.0};
    }
    if (const unsigned char *at = items[Item001::I170]) {
        const bool trackEnd = bit(at[0], 0) && bit(at[1], 7);
        out->i170 = {true, bit(at[0], 7), bit(at[0], 6), bit(at[0], 5), trackEnd};
    }
}

void ast_datarecord_048_disassemble(_ast_datarecord_048_t *out, const _ast_datarecord_t &record)
{
    *out = {};
    if (!isReadable(record, 48)) {
        return;
    }
    out->valid = true;
    const Items items(record);
    out->i010 = readSacSic(items[Item048::I010]);
    readTime(out->i140, items[Item048::I140]);
    readDescriptor048(*out, items[Item048::I020]);
    readPosition048(*out, items);
    readMode3A(out->i070, items[Item048::I070]);
    readFlightLevel(out->i090, items[Item048::I090]);
    readModeS048(*out, items);
    if (const unsigned char *at = items[Item048::I161]) {
        out->i161 = {true, static_cast<std::uint16_t>(be16(at) & 0x0FFF)};
    }
    readVelocity(out->i200, items[Item048::I200]);
    readStatus048(*out, items[Item048::I170]);
}
