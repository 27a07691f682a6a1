#pragma once

// The typed records of radars: plots and tracks (CAT001, CAT048), service messages (CAT002, CAT034).

#include "asterix/items.h"

struct _ast_datarecord_001_t {
    bool valid;
    _ast_sacsic_t i010;
    struct {
        bool present;
        std::uint8_t typ; // 0 plot, 1 track (first bit)
        std::uint8_t ssrpsr; // detection: 1 primary, 2 secondary, 3 both
        bool sim;
        bool spi;
        bool rab;
        std::uint8_t emergency; // DS1/DS2: 0 none, 1 unlawful interference, 2 radio failure, 3 emergency
        bool me; // military emergency; this, the one before and the one after: second extent, zero where it is not sent
        bool tst; // test target
    } i020;
    struct {
        bool present;
        std::uint16_t trackNumber;
    } i161;
    _ast_item_polar_t i040;
    struct {
        bool present;
        double x; // nautical miles, east
        double y; // nautical miles, north
    } i042;
    _ast_item_velocity_t i200;
    _ast_item_mode3a_t i070;
    _ast_item_flight_level_t i090; // in quarter flight levels, as in CAT048
    struct {
        bool present;
        double seconds; // truncated time of day, 0 to 512
    } i141;
    struct {
        bool present;
        bool con; // true: tentative
        bool rad;
        bool man;
        bool tre; // track end
    } i170;
};

struct _ast_datarecord_002_t {
    bool valid;
    _ast_sacsic_t i010;
    struct {
        bool present;
        std::uint8_t type; // 1 north marker, 2 sector crossing, 3 south marker
    } i000;
    struct {
        bool present;
        double azimuth; // degrees
    } i020;
    _ast_item_time_t i030;
    struct {
        bool present;
        double period; // seconds
    } i041;
};

struct _ast_datarecord_034_t {
    bool valid;
    _ast_sacsic_t i010;
    struct {
        bool present;
        std::uint8_t type; // 1 north marker, 2 sector crossing, 3 geographical filtering, 4 jamming strobe
    } i000;
    _ast_item_time_t i030;
    struct {
        bool present;
        double azimuth; // degrees
    } i020;
    struct {
        bool present;
        double period; // seconds
    } i041;
    struct {
        bool present;
        std::int32_t height; // metres above WGS-84
        double latitude; // degrees
        double longitude; // degrees
    } i120;
};

struct _ast_datarecord_048_t {
    bool valid;
    _ast_sacsic_t i010;
    _ast_item_time_t i140;
    struct {
        bool present;
        std::uint8_t typ; // 0 none, 1 PSR, 2 SSR, 3 both, 4 Mode S all-call, 5 roll-call, 6 and 7 the same with PSR
        bool sim;
        bool rdp;
        bool spi;
        bool rab;
        bool me; // military emergency; this and the one after: second extent, false where it is not sent
        bool tst; // test target
    } i020;
    _ast_item_polar_t i040;
    _ast_item_mode3a_t i070;
    _ast_item_flight_level_t i090;
    struct {
        bool present;
        std::uint32_t address; // 24 bits
    } i220;
    _ast_item_callsign_t i240;
    _ast_item_registers_t i250;
    struct {
        bool present;
        std::uint16_t trackNumber;
    } i161;
    struct {
        bool present;
        std::int32_t x; // raw count, east
        std::int32_t y; // raw count, north
        double resolution; // nautical miles per count
    } i042;
    _ast_item_velocity_t i200;
    struct {
        bool present;
        bool cnf; // true: tentative
        std::uint8_t rad;
        bool dou;
        bool mah;
        std::uint8_t cdm;
        bool tre; // track end
    } i170;
    struct {
        bool present;
        std::uint8_t com;
        std::uint8_t stat; // flight status: 0 no alert, airborne; 1 no alert, on ground; ...
    } i230;
};

void ast_datarecord_001_disassemble(_ast_datarecord_001_t *out, const _ast_datarecord_t &record);
void ast_datarecord_002_disassemble(_ast_datarecord_002_t *out, const _ast_datarecord_t &record);
void ast_datarecord_034_disassemble(_ast_datarecord_034_t *out, const _ast_datarecord_t &record);
void ast_datarecord_048_disassemble(_ast_datarecord_048_t *out, const _ast_datarecord_t &record);
