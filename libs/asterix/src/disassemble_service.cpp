// The typed records of radar service messages: CAT002 and CAT034.

#include "disassemble.h"
#include "typed_items.h"

using namespace korvane::asterix;

void ast_datarecord_002_disassemble(_ast_datarecord_002_t *out, const _ast_datarecord_t &record)
{
    *out = {};
    if (!isReadable(record, 2)) {
        return;
    }
    out->valid = true;
    const Items items(record);
    out->i010 = readSacSic(items[Item002::I010]);
    if (const unsigned char *at = items[Item002::I000]) {
        out->i000 = {true, at[0]};
    }
    if (const unsigned char *at = items[Item002::I020]) {
        out->i020 = {true, at[0] * (360.0 / 256)};
    }
    readTime(out->i030, items[Item002::I030]);
    if (const unsigned char *at = items[Item002::I041]) {
        out->i041 = {true, be16(at) / 128.0};
    }
}

void ast_datarecord_034_disassemble(_ast_datarecord_034_t *out, const _ast_datarecord_t &record)
{
    *out = {};
    if (!isReadable(record, 34)) {
        return;
    }
    out->valid = true;
    const Items items(record);
    out->i010 = readSacSic(items[Item034::I010]);
    if (const unsigned char *at = items[Item034::I000]) {
        out->i000 = {true, at[0]};
    }
    readTime(out->i030, items[Item034::I030]);
    if (const unsigned char *at = items[Item034::I020]) {
        out->i020 = {true, at[0] * (360.0 / 256)};
    }
    if (const unsigned char *at = items[Item034::I041]) {
        out->i041 = {true, be16(at) / 128.0};
    }
    if (const unsigned char *at = items[Item034::I120]) {
        constexpr double Lsb = 180.0 / 8388608;
        out->i120 = {true, static_cast<std::int16_t>(be16(at)), signed24(at + 2) * Lsb, signed24(at + 5) * Lsb};
    }
}
