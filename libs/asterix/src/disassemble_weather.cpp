// The typed record of weather: CAT008.

#include "disassemble.h"
#include "typed_items.h"

#include <cmath>
#include <numbers>

namespace korvane::asterix {
namespace {

std::int8_t signed8(unsigned char octet)
{
    return static_cast<std::int8_t>(octet);
}

void readQualifier(_ast_datarecord_008_t &out, const unsigned char *at)
{
    if (!at) {
        return;
    }
    const auto extents = readExtents<2>(at);
    out.i020 = {true, bit(extents[0], 7), static_cast<std::uint8_t>(extents[0] >> 4 & 7), (extents[0] >> 1 & 7) * 22.5,
        bit(extents[1], 2), bit(extents[1], 1)};
}

// Calls read(element, octets) for each element of a repetitive item.
template <typename Item, typename Read>
void readSequence(Item &out, const unsigned char *at, unsigned octets, Read read)
{
    if (!at) {
        return;
    }
    out.present = true;
    out.count = at[0];
    for (unsigned i = 0; i < out.count; ++i) {
        read(i, at + 1 + i * octets);
    }
}

void readVectors(_ast_datarecord_008_t &out, Items items)
{
    readSequence(out.i034, items[Item008::I034], 4, [&out](unsigned i, const unsigned char *at) {
        out.i034.vectors[i] = {at[0], at[1], azimuth16(at + 2)};
    });
    readSequence(out.i036, items[Item008::I036], 3, [&out](unsigned i, const unsigned char *at) {
        out.i036.vectors[i] = {signed8(at[0]), signed8(at[1]), at[2]};
    });
    readSequence(out.i038, items[Item008::I038], 4, [&out](unsigned i, const unsigned char *at) {
        out.i038.lines[i] = {signed8(at[0]), signed8(at[1]), signed8(at[2]), signed8(at[3])};
    });
    readSequence(out.i050, items[Item008::I050], 2, [&out](unsigned i, const unsigned char *at) {
        out.i050.points[i] = {signed8(at[0]), signed8(at[1])};
    });
}

void readPicture(_ast_datarecord_008_t &out, Items items)
{
    if (const unsigned char *at = items[Item008::I090]) {
        out.i090 = {true, be24(at), 1.0 / 128};
    }
    if (const unsigned char *at = items[Item008::I100]) {
        out.i100 = {true, static_cast<std::int8_t>(signExtended(at[0] >> 3, 5)), static_cast<std::uint8_t>(at[0] & 7),
            static_cast<std::uint16_t>(be16(at + 1) >> 1)};
    }
    if (const unsigned char *at = items[Item008::I120]) {
        out.i120 = {true, static_cast<std::uint16_t>(be16(at))};
    }
}

// The vector from its start in the direction that its shading has.
_ast_weather_segment_t shadingSegment(const _ast_weather_cartesian_vector_t &vector, double orientation)
{
    const double radians = orientation * (std::numbers::pi / 180);
    return {static_cast<double>(vector.x), static_cast<double>(vector.y), vector.x + vector.length * std::sin(radians),
        vector.y + vector.length * std::cos(radians)};
}

_ast_weather_segment_t contourSegment(const _ast_datarecord_008_t &record, unsigned index)
{
    const _ast_weather_point_t &point = record.i050.points[index];
    const _ast_weather_point_t &next = record.i050.points[index + 1 < record.i050.count ? index + 1 : index];
    return {static_cast<double>(point.x), static_cast<double>(point.y), static_cast<double>(next.x),
        static_cast<double>(next.y)};
}

} // namespace
} // namespace korvane::asterix

using namespace korvane::asterix;

void ast_datarecord_008_disassemble(_ast_datarecord_008_t *out, const _ast_datarecord_t &record)
{
    *out = {};
    if (!isReadable(record, 8)) {
        return;
    }
    out->valid = true;
    const Items items(record);
    out->i010 = readSacSic(items[Item008::I010]);
    if (const unsigned char *at = items[Item008::I000]) {
        out->i000 = {true, at[0]};
    }
    readQualifier(*out, items[Item008::I020]);
    readVectors(*out, items);
    if (const unsigned char *at = items[Item008::I040]) {
        out->i040 = {
            true, bit(at[0], 7), static_cast<std::uint8_t>(at[0] >> 4 & 7), bit(at[0], 1), bit(at[0], 0), at[1]};
    }
    readPicture(*out, items);
}

unsigned ast_weather_segment_count(const _ast_datarecord_008_t &record)
{
    return 0U + record.i036.count + record.i038.count + record.i050.count;
}

bool ast_weather_segment_get(
    _ast_weather_segment_t *segment, const _ast_datarecord_008_t &record, unsigned index, int scalingFactor)
{
    if (index >= ast_weather_segment_count(record)) {
        return false;
    }
    const unsigned line = index - record.i036.count;
    if (index < record.i036.count) {
        *segment = shadingSegment(record.i036.vectors[index], record.i020.orientation);
    } else if (line < record.i038.count) {
        const _ast_weather_line_t &ends = record.i038.lines[line];
        *segment = {static_cast<double>(ends.x1), static_cast<double>(ends.y1), static_cast<double>(ends.x2),
            static_cast<double>(ends.y2)};
    } else {
        *segment = contourSegment(record, line - record.i038.count);
    }
    const double lsb = std::ldexp(1.0, scalingFactor - 6);
    *segment = {segment->x1 * lsb, segment->y1 * lsb, segment->x2 * lsb, segment->y2 * lsb};
    return true;
}
