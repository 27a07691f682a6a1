#pragma once

// Item forms that the typed records of several categories share.
//
// Each typed record begins with "valid" and holds, for every item that applications read, a presence flag and the
// item's values in engineering units: distances in nautical miles, angles in degrees, times in seconds since midnight
// UTC, speeds in knots, flight levels in quarter flight levels (25 ft), Mode 3/A codes as their binary value. Where a
// category has another unit, the member says so. What an item that is not present holds is zero.
// A typed record is valid when the record that it was made from is, and is of its category; any other record gives one
// that is not valid and has nothing present.

#include <cstdint>

struct _ast_datarecord_t;

struct _ast_sacsic_t {
    bool present = false;
    std::uint8_t sac = 0;
    std::uint8_t sic = 0;
};

struct _ast_item_time_t {
    bool present;
    double seconds; // 0 to 86400, LSB 1/128 s
};

struct _ast_item_polar_t {
    bool present;
    double rho; // nautical miles, slant range
    double theta; // degrees clockwise from north
};

struct _ast_item_mode3a_t {
    bool present;
    bool v; // true: not validated
    bool g; // true: garbled
    bool l; // true: smoothed or not extracted in the last scan
    std::uint16_t code; // binary, 0 to 4095
};

struct _ast_item_flight_level_t {
    bool present;
    bool v; // true: not validated
    bool g; // true: garbled
    std::int32_t level; // quarter flight levels
};

struct _ast_item_velocity_t {
    bool present;
    double groundSpeed; // knots
    double heading; // degrees clockwise from north
};

struct _ast_item_callsign_t {
    bool present;
    char text[9]; // eight characters as sent, trailing blanks removed, zero-terminated
};

// Mode S registers: count times seven octets of register and one octet of BDS code, in the received octets.
struct _ast_item_registers_t {
    bool present;
    std::uint8_t count;
    const unsigned char *octets; // count * 8 octets
};

struct _ast_item_wgs84_t {
    bool present;
    double latitude; // degrees, north positive
    double longitude; // degrees, east positive
};

struct _ast_item_cartesian_t {
    bool present;
    double x; // metres, east
    double y; // metres, north
};

struct _ast_item_cartesian_velocity_t {
    bool present;
    double vx; // metres per second, east
    double vy; // metres per second, north
};

struct _ast_item_cartesian_acceleration_t {
    bool present;
    double ax; // metres per second squared, east
    double ay; // metres per second squared, north
};

struct _ast_item_address_t {
    bool present;
    std::uint32_t address; // 24 bits
};

struct _ast_item_track_number_t {
    bool present;
    std::uint16_t trackNumber;
};

struct _ast_item_height_t {
    bool present;
    double height; // feet, LSB 6.25 ft
};

// Vehicle with a message button: fire engines, tugs.
struct _ast_item_vehicle_message_t {
    bool present;
    bool trouble;
    std::uint8_t message; // 1 towing, 2 follow me, 3 runway check, 4 emergency, 5 work in progress
};
