// The typed record of radar video, and its row of cells: CAT240.

#include "disassemble.h"
#include "typed_items.h"

namespace korvane::asterix {
namespace {

constexpr double HalfSpeedOfLight = 299792458 / 2.0; // metres per second of the way out and back
constexpr std::uint16_t FemtosecondMode = 16;
constexpr std::uint8_t MaxResolution = 6;

void readHeader(_ast_item_video_header_t &out, const unsigned char *at)
{
    if (at) {
        out = {true, azimuth16(at), azimuth16(at + 2), be32(at + 4), be32(at + 8)};
    }
}

// A count of elements of so many octets.
void readBlock(_ast_item_video_block_t &out, const unsigned char *at, std::uint32_t elementOctets)
{
    if (at) {
        out = {true, at[0] * elementOctets, at + 1};
    }
}

void readTimeOfDay(_ast_datarecord_240_t &out, const unsigned char *at)
{
    if (!at) {
        return;
    }
    const std::uint32_t seconds = be24(at) >> 7;
    const std::uint32_t milliseconds = ((be24(at) & 127) * 1000 + 64) / 128;
    out.i140 = {true, static_cast<std::uint8_t>(seconds / 3600), static_cast<std::uint8_t>(seconds / 60 % 60),
        static_cast<std::uint8_t>(seconds % 60), static_cast<std::uint16_t>(milliseconds)};
}

// The block that holds the cells; null where there is none. A sender uses one of the three.
const _ast_item_video_block_t *videoBlock(const _ast_datarecord_240_t &record)
{
    for (const _ast_item_video_block_t *block : {&record.i050, &record.i051, &record.i052}) {
        if (block->present && block->size > 0) {
            return block;
        }
    }
    return nullptr;
}

// 1, 2, 4, 8, 16 or 32.
unsigned cellBits(std::uint8_t resolution)
{
    return 1U << (resolution - 1);
}

_ast_video_error_t describeVector(
    _ast_video_vector_t &vector, const _ast_datarecord_240_t &record, const _ast_item_video_block_t &block)
{
    if (!record.i040.present && !record.i041.present) {
        return AST_VIDEO_NO_HEADER;
    }
    if (!record.i048.present) {
        return AST_VIDEO_NO_RESOLUTION;
    }
    if (record.i048.compressed) {
        return AST_VIDEO_COMPRESSED;
    }
    if (record.i048.resolution < 1 || record.i048.resolution > MaxResolution) {
        return AST_VIDEO_UNKNOWN_RESOLUTION;
    }
    const std::uint32_t room = block.size * 8 / cellBits(record.i048.resolution);
    const std::uint32_t cells = record.i049.present ? record.i049.cells : room;
    if (cells > room) {
        return AST_VIDEO_CELLS_MISSING;
    }
    const bool inNanoseconds = record.i040.present;
    const _ast_item_video_header_t &header = inNanoseconds ? record.i040 : record.i041;
    const double duration = header.cellDuration / (inNanoseconds ? 1e9 : 1e15); // seconds
    vector = {header.startAzimuth, header.endAzimuth, duration * HalfSpeedOfLight, header.startCell, cells,
        static_cast<std::uint16_t>(record.i048.resolution + (inNanoseconds ? 0 : FemtosecondMode))};
    return AST_VIDEO_OK;
}

// Cells of less than an octet, the first one in the uppermost bits.
void unpackCells(unsigned *out, std::uint32_t count, const unsigned char *octets, unsigned bits)
{
    const unsigned mask = (1U << bits) - 1;
    for (std::uint32_t i = 0; i < count; ++i) {
        const unsigned position = i * bits;
        out[i] = octets[position / 8] >> (8 - bits - position % 8) & mask;
    }
}

void readCells(unsigned *out, std::uint32_t count, const unsigned char *octets, unsigned bits)
{
    switch (bits) {
    case 8:
        for (std::uint32_t i = 0; i < count; ++i) {
            out[i] = octets[i];
        }
        break;
    case 16:
        for (std::uint32_t i = 0; i < count; ++i) {
            out[i] = be16(octets + 2 * i);
        }
        break;
    case 32:
        for (std::uint32_t i = 0; i < count; ++i) {
            out[i] = be32(octets + 4 * i);
        }
        break;
    default:
        unpackCells(out, count, octets, bits);
    }
}

} // namespace
} // namespace korvane::asterix

using namespace korvane::asterix;

void ast_datarecord_240_disassemble(_ast_datarecord_240_t *out, const _ast_datarecord_t &record)
{
    *out = {};
    if (!isReadable(record, 240)) {
        return;
    }
    out->valid = true;
    const Items items(record);
    out->i010 = readSacSic(items[Item240::I010]);
    if (const unsigned char *at = items[Item240::I000]) {
        out->i000 = {true, at[0]};
    }
    if (const unsigned char *at = items[Item240::I020]) {
        out->i020 = {true, be32(at)};
    }
    if (const unsigned char *at = items[Item240::I030]) {
        out->i030 = {true, at[0], reinterpret_cast<const char *>(at + 1)};
    }
    readHeader(out->i040, items[Item240::I040]);
    readHeader(out->i041, items[Item240::I041]);
    if (const unsigned char *at = items[Item240::I048]) {
        out->i048 = {true, bit(at[0], 7), at[1]};
    }
    if (const unsigned char *at = items[Item240::I049]) {
        out->i049 = {true, static_cast<std::uint16_t>(be16(at)), be24(at + 2)};
    }
    readBlock(out->i050, items[Item240::I050], 4);
    readBlock(out->i051, items[Item240::I051], 64);
    readBlock(out->i052, items[Item240::I052], 256);
    readTimeOfDay(*out, items[Item240::I140]);
}

_ast_sacsic_t ast_datarecord_240_get_sacsic(const _ast_datarecord_t &record)
{
    return isReadable(record, 240) ? ast_datarecord_get_sacsic(record) : _ast_sacsic_t{};
}

int ast_datarecord_240_get_vector(
    _ast_video_vector_t *vector, unsigned int *buffer, std::size_t capacity, const _ast_datarecord_t &record)
{
    _ast_datarecord_240_t video;
    ast_datarecord_240_disassemble(&video, record);
    if (!video.valid) {
        return AST_VIDEO_NOT_VIDEO;
    }
    const _ast_item_video_block_t *block = videoBlock(video);
    if (!block) {
        return AST_VIDEO_NO_VECTOR;
    }
    _ast_video_vector_t described;
    if (const _ast_video_error_t error = describeVector(described, video, *block); error != AST_VIDEO_OK) {
        return error;
    }
    *vector = described;
    if (described.cellCount > capacity) {
        return AST_VIDEO_BUFFER_TOO_SMALL;
    }
    readCells(buffer, described.cellCount, block->octets, cellBits(video.i048.resolution));
    return AST_VIDEO_OK;
}
