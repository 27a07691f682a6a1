#pragma once

// The typed record of radar video, and its cells: CAT240.

#include "asterix/items.h"

#include <cstddef>

// Where a row of cells lies.
struct _ast_item_video_header_t {
    bool present;
    double startAzimuth; // degrees clockwise from north
    double endAzimuth; // degrees; less than the start where the row crosses north
    std::uint32_t startCell; // of the first cell, counted in cells from the antenna
    std::uint32_t cellDuration; // nanoseconds in I240/040, femtoseconds in I240/041
};

// Cells as sent, in the received octets.
struct _ast_item_video_block_t {
    bool present;
    std::uint32_t size; // octets
    const unsigned char *octets;
};

struct _ast_datarecord_240_t {
    bool valid;
    _ast_sacsic_t i010;
    struct {
        bool present;
        std::uint8_t type; // 1 summary, 2 video
    } i000;
    struct {
        bool present;
        std::uint32_t sequence; // message number, for finding gaps
    } i020;
    struct {
        bool present;
        std::uint8_t length;
        const char *text; // ASCII, not zero-terminated, in the received octets
    } i030;
    _ast_item_video_header_t i040;
    _ast_item_video_header_t i041;
    struct {
        bool present;
        bool compressed;
        std::uint8_t resolution; // 1 to 6: 1, 2, 4, 8, 16, 32 bits a cell
    } i048;
    struct {
        bool present;
        std::uint16_t octets; // in use, as the sender counts them
        std::uint32_t cells; // in use
    } i049;
    _ast_item_video_block_t i050;
    _ast_item_video_block_t i051;
    _ast_item_video_block_t i052;
    struct {
        bool present;
        std::uint8_t hours;
        std::uint8_t minutes;
        std::uint8_t seconds;
        std::uint16_t milliseconds; // 0 to 992, rounded
    } i140;
};

void ast_datarecord_240_disassemble(_ast_datarecord_240_t *out, const _ast_datarecord_t &record);

_ast_sacsic_t ast_datarecord_240_get_sacsic(const _ast_datarecord_t &record);

// What ast_datarecord_240_get_vector() returns. The numbers are part of the interface.
enum _ast_video_error_t : int {
    AST_VIDEO_OK = 0,
    AST_VIDEO_NOT_VIDEO = 1, // not a valid CAT240 record
    AST_VIDEO_NO_VECTOR = 2, // no video block: a summary, or nothing at all
    AST_VIDEO_NO_HEADER = 3, // neither I240/040 nor I240/041
    AST_VIDEO_NO_RESOLUTION = 4, // I240/048 is missing
    AST_VIDEO_UNKNOWN_RESOLUTION = 5, // its code is not assigned
    AST_VIDEO_COMPRESSED = 6, // by an algorithm that only sender and receiver know
    AST_VIDEO_CELLS_MISSING = 7, // I240/049 counts more cells than the video block holds
    AST_VIDEO_BUFFER_TOO_SMALL = 14,
};

struct _ast_video_vector_t {
    double startAzimuth; // degrees clockwise from north
    double endAzimuth; // degrees; less than the start where the row crosses north
    double cellSize; // metres along the range: half the way of light during a cell
    std::uint32_t startCell; // of the first cell, counted in cells from the antenna
    std::uint32_t cellCount;
    // Changes when the picture's layout does: the resolution code, plus 16 where the cell duration is in femtoseconds.
    std::uint16_t videoMode;
};

// Describes the row of cells of a record and writes one amplitude a cell into buffer, nearest cell first: 0 to
// 2^bits - 1. Returns 0 or an error of the list above. With AST_VIDEO_BUFFER_TOO_SMALL vector is filled (cellCount is
// what the buffer would have to hold) and buffer is as it was; with any other error neither is touched. Without
// I240/049 the row has as many cells as the block has room for.
int ast_datarecord_240_get_vector(
    _ast_video_vector_t *vector, unsigned int *buffer, std::size_t capacity, const _ast_datarecord_t &record);
