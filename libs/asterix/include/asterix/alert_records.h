#pragma once

// The typed record of safety nets: CAT004.

#include "asterix/items.h"

// The state of one safety net function, named by the type of the messages that it sends.
struct _ast_snet_status_t {
    std::uint8_t type; // I004/000 code: 4 MSAW, 5 APW, 7 STCA, ...; 9 stands for all of the runway functions
    bool on; // managed by the system and running
};

// One aircraft of an alert: I004/170 and I004/171.
struct _ast_item_alert_aircraft_t {
    bool present; // the item is there
    bool callsignPresent;
    char callsign[8]; // seven characters as in the flight plan, trailing blanks removed, zero-terminated
    bool mode3APresent;
    std::uint16_t mode3A; // binary, 0 to 4095
    bool positionPresent; // predicted position of the conflict
    double latitude; // degrees
    double longitude; // degrees
    double altitude; // feet
    bool cartesianPresent; // the same in the system's plane
    double x; // metres, east
    double y; // metres, north
    double z; // feet
    bool timeToThresholdPresent;
    double timeToThreshold; // seconds
    bool distanceToThresholdPresent;
    double distanceToThreshold; // metres
    bool characteristicsPresent;
    std::uint8_t traffic; // 0 unknown, 1 general, 2 operational, 3 not applicable
    std::uint8_t flightRules; // 0 instrument, 1 visual, 2 not applicable, 3 controlled visual
    std::uint8_t rvsm; // 0 unknown, 1 approved, 2 exempt, 3 not approved
    std::uint8_t cdm; // 0 maintaining, 1 climbing, 2 descending, 3 invalid; second extent, zero where it is not sent
    bool targetIdentificationPresent;
    char targetIdentification[9]; // downlinked by Mode S; as in _ast_item_callsign_t
    bool flightPlanPresent;
    std::uint32_t flightPlan; // number
    bool clearedLevelPresent;
    double clearedLevel; // whole flight levels (100 ft), LSB 1/4
};

struct _ast_datarecord_004_t {
    bool valid;
    _ast_sacsic_t i010;
    struct {
        bool present;
        std::uint8_t type; // 1 alive, 4 MSAW, 5 APW, 7 STCA, 17 end of conflict, ...
    } i000;
    _ast_item_time_t i020;
    struct {
        bool present;
        std::uint16_t id;
    } i040;
    struct {
        bool present;
        bool areaStatusPresent;
        std::uint8_t areaStatus; // 0 inactive, 1 active, 2 pre-active
        std::uint8_t status; // meaning depends on the message type
    } i045;
    struct {
        bool present;
        // The functions of all extents that are sent, in the order of the item, each once: a function whose parts have
        // bits of their own is on when one of them is.
        std::uint8_t count;
        _ast_snet_status_t entries[40];
        bool vectoringAltitudes; // minimum radar vectoring altitudes are in use
        bool degraded; // system status; second extent, false where it is not sent
        bool overflow; // more alerts than can be shown
        bool overload;
    } i060;
    _ast_item_track_number_t i030;
    _ast_item_track_number_t i035;
    _ast_item_alert_aircraft_t i170;
    _ast_item_alert_aircraft_t i171;
    struct {
        bool present;
        bool naturePresent;
        std::uint8_t nature; // MAS CAS FLD FVD TYPE CROSS DIV, MAS at bit 6
        std::uint8_t runwayNature; // RRC at bit 1, RTC at bit 0; zero where the second extent is not sent
        bool classificationPresent;
        std::uint8_t table; // of conflict categories
        std::uint8_t properties; // class, three bits; meaning depends on message type and table
        bool high; // conflict severity
        bool probabilityPresent;
        double probability; // percent
        bool durationPresent;
        double duration; // seconds
    } i120;
    struct {
        bool present;
        bool timeToConflictPresent;
        double timeToConflict; // seconds
        bool timeToClosestApproachPresent;
        double timeToClosestApproach; // seconds
        bool horizontalSeparationPresent;
        double horizontalSeparation; // metres
        bool minimumHorizontalSeparationPresent;
        double minimumHorizontalSeparation; // metres
        bool verticalSeparationPresent;
        double verticalSeparation; // feet
        bool minimumVerticalSeparationPresent;
        double minimumVerticalSeparation; // feet
    } i070;
    struct {
        bool present;
        double deviation; // feet, above the planned altitude
    } i076;
    struct {
        bool present;
        double deviation; // metres, ahead of the planned position
    } i074;
    struct {
        bool present;
        double deviation; // metres, to the right of the route
    } i075;
    struct {
        bool present; // the item is there
        bool areaNamePresent;
        char areaName[9]; // as in _ast_item_callsign_t
        bool crossingAreaPresent; // this and what follows: seven characters, trailing blanks removed
        char crossingArea[8];
        bool runway1Present; // runway or taxiway designators
        char runway1[8];
        bool runway2Present;
        char runway2[8];
        bool stopBarPresent;
        char stopBar[8];
        bool gatePresent;
        char gate[8];
    } i100;
};

void ast_datarecord_004_disassemble(_ast_datarecord_004_t *out, const _ast_datarecord_t &record);

// The short name of a message type (I004/000): "MSAW", "STCA"; "UNKNOWN" where the code is not assigned. Never null.
const char *ast_snet_message_type_get_id(std::uint8_t type);
