#pragma once

// The typed record of weather: CAT008.

#include "asterix/items.h"

// The most that one record holds of vectors or points.
inline constexpr unsigned AST_WEATHER_MAX = 255;

struct _ast_weather_polar_vector_t {
    std::uint8_t startRange; // as sent; times 2^(f-7) nautical miles, f from I008/100
    std::uint8_t endRange; // the same
    double azimuth; // degrees clockwise from north
};

// As sent; times 2^(f-6) nautical miles.
struct _ast_weather_cartesian_vector_t {
    std::int8_t x; // of the start, east
    std::int8_t y; // north
    std::uint8_t length; // in the direction of I008/020
};

struct _ast_weather_line_t {
    std::int8_t x1;
    std::int8_t y1;
    std::int8_t x2;
    std::int8_t y2;
};

struct _ast_weather_point_t {
    std::int8_t x;
    std::int8_t y;
};

struct _ast_datarecord_008_t {
    bool valid;
    _ast_sacsic_t i010;
    struct {
        bool present;
        std::uint8_t type; // 1 polar vectors, 2 start and length, 3 contour, 4 start and end, 254 SOP, 255 EOP
    } i000;
    struct {
        bool present;
        bool systemCoordinates; // ORG
        std::uint8_t intensity; // 0 to 7
        double orientation; // of the vectors in I008/036: degrees clockwise from north, 0 to 157.5
        bool test; // second extent, false where it is not sent
        bool error; // the same
    } i020;
    struct {
        bool present;
        std::uint8_t count;
        _ast_weather_cartesian_vector_t vectors[AST_WEATHER_MAX];
    } i036;
    struct {
        bool present;
        std::uint8_t count;
        _ast_weather_polar_vector_t vectors[AST_WEATHER_MAX];
    } i034;
    struct {
        bool present;
        bool systemCoordinates; // ORG
        std::uint8_t intensity; // 0 to 7
        bool first; // record of the contour
        bool last; // record of the contour
        std::uint8_t serial; // the contour's number in the picture
    } i040;
    struct {
        bool present;
        std::uint8_t count;
        _ast_weather_point_t points[AST_WEATHER_MAX];
    } i050;
    struct {
        bool present;
        std::uint32_t value; // time of day as sent
        double lsb; // seconds: 1/128
    } i090;
    struct {
        bool present;
        std::int8_t scalingFactor; // f, -16 to 15
        std::uint8_t reductionStage; // 0 is normal
        std::uint16_t parameters; // Q, 15 bits
    } i100;
    struct {
        bool present;
        std::uint16_t count; // of vectors or points in the whole picture
    } i120;
    struct {
        bool present;
        std::uint8_t count;
        _ast_weather_line_t lines[AST_WEATHER_MAX];
    } i038;
};

void ast_datarecord_008_disassemble(_ast_datarecord_008_t *out, const _ast_datarecord_t &record);

// A line or, with both ends the same, a point of the picture.
struct _ast_weather_segment_t {
    double x1; // nautical miles, east
    double y1; // nautical miles, north
    double x2;
    double y2;
};

// Cartesian vectors (I008/036, then I008/038) and contour points (I008/050: each to the next one in the record) as
// segments in nautical miles, for the scaling factor f of the picture's start message. The number of segments, and the
// one at index; the last point of a record stands for itself, since its successor may be in the next record. False,
// with segment as it was, where there is none.
unsigned ast_weather_segment_count(const _ast_datarecord_008_t &record);
bool ast_weather_segment_get(
    _ast_weather_segment_t *segment, const _ast_datarecord_008_t &record, unsigned index, int scalingFactor);
