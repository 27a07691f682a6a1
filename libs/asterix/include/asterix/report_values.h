#pragma once

// Values of a target report by what they are, whatever category and edition the record has: CAT021 in all of its
// editions, and CAT001, 010, 020, 048 and 062 as far as they carry the value. A record that does not has present
// false, and so has a record of any other category.

#include "asterix/items.h"

struct _ast_speed_t {
    bool present;
    double speed; // ground speed, knots
};

struct _ast_heading_t {
    bool present; // one of the two below at least
    bool trackAngleAvailable; // over ground, from true north
    bool magneticHeadingAvailable;
    double heading; // degrees clockwise: the track angle where it is available, else the magnetic heading
};

struct _ast_altitude_t {
    bool present;
    double altitude; // feet
};

struct _ast_vrate_t {
    bool present;
    double rate; // feet per minute, climbing positive
};

struct _ast_ground_bit_t {
    bool present;
    bool onGround; // false as well where its extent is not sent
};

struct _ast_target_status_t {
    bool present;
    std::uint8_t priority; // 0 no emergency, 1 general, 4 no communications, 5 unlawful interference, 6 downed, ...
    bool militaryEmergency;
    bool spi; // also where only I021/040 says so, with present false
};

// I021/080, I010/220, I020/220, I048/220, I062/380 ADR.
_ast_item_address_t ast_datarecord_get_icaoaddr(const _ast_datarecord_t &record);
// I021/170, I010/245, I020/245, I048/240, I062/245 else I062/380 ID.
_ast_item_callsign_t ast_datarecord_get_callsign(const _ast_datarecord_t &record);
// I021/131 where that is a position, else I021/130; I010/041, I020/041, I062/105.
_ast_item_wgs84_t ast_datarecord_get_wgs84coord(const _ast_datarecord_t &record);
// I021/070; v, g and l are false in the editions that do not send them. Edition 0.23 has no Mode 3/A code. Of CAT021
// only.
_ast_item_mode3a_t ast_datarecord_021_get_squawk(const _ast_datarecord_t &record);
// I021/040 GBS. Of CAT021 only.
_ast_ground_bit_t ast_datarecord_021_get_groundbit(const _ast_datarecord_t &record);
// I021/200, in the editions 0.23 and 0.26 with I021/040 SPI. Of CAT021 only.
_ast_target_status_t ast_datarecord_021_get_targetstatus(const _ast_datarecord_t &record);
// I021/040 TST: a target that the station makes to test itself. Of CAT021 only.
bool ast_datarecord_021_get_testbit(const _ast_datarecord_t &record);
// I021/160, I001/200, I010/200, I048/200; of the Cartesian velocity I010/202, I020/202, I062/185 otherwise.
_ast_speed_t ast_datarecord_get_speed(const _ast_datarecord_t &record);
// The same items; magnetic I021/152 and I062/380 MHG.
_ast_heading_t ast_datarecord_get_heading(const _ast_datarecord_t &record);
// The level in feet: I021/145, I001/090, I010/090, I020/090, I048/090, I062/136. Garbled levels count.
_ast_altitude_t ast_datarecord_get_flightlevel(const _ast_datarecord_t &record);
// I021/146, else the final one in I021/148. Of CAT021 only.
_ast_altitude_t ast_datarecord_021_get_selaltitude(const _ast_datarecord_t &record);
// Barometric I021/155, else geometric I021/157; I062/220.
_ast_vrate_t ast_datarecord_get_vrate(const _ast_datarecord_t &record);
