#pragma once

// Mode S registers, after ICAO Doc 9871. mb is the seven octets of a register (56 bits). A value counts where its
// status is set; success says that the register can be the one asked for.

#include <cstdint>

// Data link capability.
struct _ast_bds_10_t {
    bool success; // the register's own number is 1,0 and the reserved bits are zero
    bool continuation;
    bool overlayCommand;
    bool acasOperational;
    std::uint8_t subnetworkVersion; // 0 to 127
    bool enhancedProtocol; // level 5 transponder
    bool specificServices;
    std::uint8_t uplinkThroughput; // ELM, code 0 to 7
    std::uint8_t downlinkThroughput; // ELM, code 0 to 15
    bool identification; // aircraft identification can be downlinked
    bool squitter; // registers 0,5 and 0,6 are updated
    bool surveillanceIdentifier;
    bool capabilityChange; // toggles when the contents of register 1,7 change
    std::uint8_t acasCapability; // four bits: hybrid surveillance, resolution advisories, two of version
    std::uint16_t terminals; // data terminals 0 to 15, 0 at bit 15
};

// Which registers the transponder fills.
struct _ast_bds_17_t {
    bool success; // one is named at least and the reserved bits are zero
    std::uint8_t count;
    std::uint8_t registers[27]; // 0x05, 0x06, ... 0x60, in ascending order of their bits
};
bool ast_bds_17_has(const _ast_bds_17_t &capability, std::uint8_t bds);

// Aircraft identification.
struct _ast_bds_20_t {
    bool success; // the register's own number is 2,0 and all of its characters are assigned
    char callsign[9]; // trailing blanks removed, zero-terminated
};

// ACAS resolution advisory.
struct _ast_bds_30_t {
    bool success; // the register's own number is 3,0 and the threat type is assigned
    std::uint16_t advisory; // ARA: 14 bits, the first at bit 13
    std::uint8_t complement; // RAC: not below, not above, not left, not right; the first at bit 3
    bool terminated; // RAT
    bool multipleThreats; // MTE
    std::uint8_t threatType; // 0 no identity, 1 address, 2 altitude, range and bearing
    std::uint32_t threatAddress; // of type 1
    bool threatAltitudeStatus; // these and what follows: of type 2
    std::int32_t threatAltitude; // feet
    bool threatRangeStatus;
    double threatRange; // nautical miles; 12.6 is "farther than 12.55"
    bool threatBearingStatus;
    double threatBearing; // degrees clockwise from the nose, middle of the six degrees that are sent
};

// Selected vertical intention.
struct _ast_bds_40_t {
    bool success; // at least one status bit is set and the reserved bits are zero
    bool mcpAltitudeStatus;
    std::int32_t mcpAltitude; // MCP/FCU selected altitude, feet
    bool fmsAltitudeStatus;
    std::int32_t fmsAltitude; // feet
    bool baroPressureStatus;
    double baroPressure; // millibars
    bool modesStatus; // of the three MCP/FCU modes
    bool vnav;
    bool altitudeHold;
    bool approach;
    bool targetSourceStatus;
    std::uint8_t targetSource; // 0 unknown, 1 aircraft altitude, 2 MCP/FCU, 3 FMS
};

// Track and turn.
struct _ast_bds_50_t {
    bool success; // at least one status bit is set
    bool rollStatus;
    double roll; // degrees, right wing down positive
    bool trueTrackStatus;
    double trueTrack; // degrees, 0 to 360
    bool groundSpeedStatus;
    double groundSpeed; // knots
    bool trackRateStatus;
    double trackRate; // degrees per second, right positive
    bool trueAirspeedStatus;
    double trueAirspeed; // knots
};

// Heading and speed.
struct _ast_bds_60_t {
    bool success; // at least one status bit is set
    bool magneticHeadingStatus;
    double magneticHeading; // degrees, 0 to 360
    bool indicatedAirspeedStatus;
    double indicatedAirspeed; // knots
    bool machStatus;
    double mach;
    bool baroRateStatus;
    double baroRate; // barometric altitude rate, feet per minute
    bool inertialRateStatus;
    double inertialRate; // inertial vertical velocity, feet per minute
};

_ast_bds_10_t ast_bds_10_decode(const unsigned char *mb);
_ast_bds_17_t ast_bds_17_decode(const unsigned char *mb);
_ast_bds_20_t ast_bds_20_decode(const unsigned char *mb);
_ast_bds_30_t ast_bds_30_decode(const unsigned char *mb);
_ast_bds_40_t ast_bds_40_decode(const unsigned char *mb);
_ast_bds_50_t ast_bds_50_decode(const unsigned char *mb);
_ast_bds_60_t ast_bds_60_decode(const unsigned char *mb);
