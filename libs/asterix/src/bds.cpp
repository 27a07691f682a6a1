#include "asterix/bds.h"

#include "bits.h"
#include "disassemble.h"
#include "icao_text.h"

#include <algorithm>
#include <iterator>

using namespace korvane::asterix;

namespace {

// Bits of a register are numbered from 1.
unsigned registerBits(const unsigned char *mb, unsigned first, unsigned count)
{
    return static_cast<unsigned>(bitsAt(mb, first - 1, count));
}

bool registerBit(const unsigned char *mb, unsigned number)
{
    return registerBits(mb, number, 1) != 0;
}

// A sign bit, then so many bits of value in two's complement.
std::int32_t signedBits(const unsigned char *mb, unsigned signBit, unsigned valueBits)
{
    return static_cast<std::int32_t>(signExtended(registerBits(mb, signBit, valueBits + 1), valueBits + 1));
}

// Ten bits and a sign of half a turn.
double angleBits(const unsigned char *mb, unsigned signBit)
{
    const double angle = signedBits(mb, signBit, 10) * (90.0 / 512);
    return angle < 0 ? angle + 360 : angle;
}

// The registers that bits 1 to 24 and 27 to 29 of register 1,7 stand for; 0 where a bit is reserved.
constexpr std::uint8_t CapabilityBits[] = {0x05, 0x06, 0x07, 0x08, 0x09, 0x0A, 0x20, 0x21, 0x40, 0x41, 0x42, 0x43, 0x44,
    0x45, 0x48, 0x50, 0x51, 0x52, 0x53, 0x54, 0x55, 0x56, 0x5F, 0x60, 0, 0, 0xE1, 0xE2, 0xF1};

// Feet of a Mode C code: C1 A1 C2 A2 C4 A4 0 B1 D1 B2 D2 B4 D4, D1 not in use; false where it is none.
bool decodeModeC(unsigned code, std::int32_t &feet)
{
    const auto pulse = [code](int number) { return code >> (13 - number) & 1U; };
    // Both parts are Gray codes: 500 ft steps in D2 D4 A1 A2 A4 B1 B2 B4, 100 ft steps in C1 C2 C4.
    unsigned fiveHundreds = 0;
    for (const int number : {11, 13, 2, 4, 6, 8, 10, 12}) {
        fiveHundreds = fiveHundreds << 1 | ((fiveHundreds & 1) ^ pulse(number));
    }
    unsigned hundreds = pulse(1) << 2 | pulse(3) << 1 | pulse(5);
    hundreds ^= hundreds >> 1 ^ hundreds >> 2;
    if (hundreds == 0 || hundreds == 5 || hundreds == 6 || pulse(7) != 0 || pulse(9) != 0) {
        return false;
    }
    if (hundreds == 7) {
        hundreds = 5;
    }
    // Within odd steps of 500 ft the steps of 100 ft run backwards.
    if (fiveHundreds % 2 == 1) {
        hundreds = 6 - hundreds;
    }
    feet = static_cast<std::int32_t>(fiveHundreds * 500 + hundreds * 100) - 1300;
    return true;
}

void readThreat(_ast_bds_30_t &out, const unsigned char *mb)
{
    if (out.threatType == 1) {
        out.threatAddress = registerBits(mb, 31, 24);
    }
    if (out.threatType != 2) {
        return;
    }
    out.threatAltitudeStatus = decodeModeC(registerBits(mb, 31, 13), out.threatAltitude);
    if (const unsigned range = registerBits(mb, 44, 7); range > 0) {
        out.threatRangeStatus = true;
        out.threatRange = (range - 1) / 10.0;
    }
    if (const unsigned bearing = registerBits(mb, 51, 6); bearing > 0 && bearing <= 60) {
        out.threatBearingStatus = true;
        out.threatBearing = bearing * 6.0 - 3;
    }
}

} // namespace

_ast_bds_10_t ast_bds_10_decode(const unsigned char *mb)
{
    _ast_bds_10_t out{};
    out.continuation = registerBit(mb, 9);
    out.overlayCommand = registerBit(mb, 15);
    out.acasOperational = registerBit(mb, 16);
    out.subnetworkVersion = static_cast<std::uint8_t>(registerBits(mb, 17, 7));
    out.enhancedProtocol = registerBit(mb, 24);
    out.specificServices = registerBit(mb, 25);
    out.uplinkThroughput = static_cast<std::uint8_t>(registerBits(mb, 26, 3));
    out.downlinkThroughput = static_cast<std::uint8_t>(registerBits(mb, 29, 4));
    out.identification = registerBit(mb, 33);
    out.squitter = registerBit(mb, 34);
    out.surveillanceIdentifier = registerBit(mb, 35);
    out.capabilityChange = registerBit(mb, 36);
    out.acasCapability = static_cast<std::uint8_t>(registerBits(mb, 37, 4));
    out.terminals = static_cast<std::uint16_t>(registerBits(mb, 41, 16));
    out.success = mb[0] == 0x10 && registerBits(mb, 10, 5) == 0;
    return out;
}

_ast_bds_17_t ast_bds_17_decode(const unsigned char *mb)
{
    _ast_bds_17_t out{};
    bool isReserved = registerBits(mb, 30, 27) != 0;
    for (unsigned number = 1; number <= std::size(CapabilityBits); ++number) {
        if (!registerBit(mb, number)) {
            continue;
        }
        if (const std::uint8_t bds = CapabilityBits[number - 1]) {
            out.registers[out.count++] = bds;
        } else {
            isReserved = true;
        }
    }
    out.success = !isReserved && out.count > 0;
    return out;
}

bool ast_bds_17_has(const _ast_bds_17_t &capability, std::uint8_t bds)
{
    const std::uint8_t *const end = capability.registers + capability.count;
    return std::find(capability.registers, end, bds) != end;
}

_ast_bds_20_t ast_bds_20_decode(const unsigned char *mb)
{
    _ast_bds_20_t out{};
    readCallsign(out.callsign, mb + 1);
    out.success = mb[0] == 0x20 && out.callsign[0] != '\0';
    for (unsigned i = 0; i < 8; ++i) {
        const unsigned character = registerBits(mb, 9 + 6 * i, 6);
        out.success = out.success && (IcaoAlphabet[character] != ' ' || character == 32);
    }
    return out;
}

_ast_bds_30_t ast_bds_30_decode(const unsigned char *mb)
{
    _ast_bds_30_t out{};
    out.advisory = static_cast<std::uint16_t>(registerBits(mb, 9, 14));
    out.complement = static_cast<std::uint8_t>(registerBits(mb, 23, 4));
    out.terminated = registerBit(mb, 27);
    out.multipleThreats = registerBit(mb, 28);
    out.threatType = static_cast<std::uint8_t>(registerBits(mb, 29, 2));
    readThreat(out, mb);
    out.success = mb[0] == 0x30 && out.threatType != 3;
    return out;
}

_ast_bds_40_t ast_bds_40_decode(const unsigned char *mb)
{
    _ast_bds_40_t out{};
    out.mcpAltitudeStatus = registerBit(mb, 1);
    out.mcpAltitude = static_cast<std::int32_t>(registerBits(mb, 2, 12)) * 16;
    out.fmsAltitudeStatus = registerBit(mb, 14);
    out.fmsAltitude = static_cast<std::int32_t>(registerBits(mb, 15, 12)) * 16;
    out.baroPressureStatus = registerBit(mb, 27);
    out.baroPressure = 800 + registerBits(mb, 28, 12) * 0.1;
    out.modesStatus = registerBit(mb, 48);
    out.vnav = registerBit(mb, 49);
    out.altitudeHold = registerBit(mb, 50);
    out.approach = registerBit(mb, 51);
    out.targetSourceStatus = registerBit(mb, 54);
    out.targetSource = static_cast<std::uint8_t>(registerBits(mb, 55, 2));
    const bool isReserved = registerBits(mb, 40, 8) != 0 || registerBits(mb, 52, 2) != 0;
    out.success = !isReserved
        && (out.mcpAltitudeStatus || out.fmsAltitudeStatus || out.baroPressureStatus || out.modesStatus
            || out.targetSourceStatus);
    return out;
}

_ast_bds_50_t ast_bds_50_decode(const unsigned char *mb)
{
    _ast_bds_50_t out{};
    out.rollStatus = registerBit(mb, 1);
    out.roll = signedBits(mb, 2, 9) * (45.0 / 256);
    out.trueTrackStatus = registerBit(mb, 12);
    out.trueTrack = angleBits(mb, 13);
    out.groundSpeedStatus = registerBit(mb, 24);
    out.groundSpeed = registerBits(mb, 25, 10) * 2;
    out.trackRateStatus = registerBit(mb, 35);
    out.trackRate = signedBits(mb, 36, 9) * (8.0 / 256);
    out.trueAirspeedStatus = registerBit(mb, 46);
    out.trueAirspeed = registerBits(mb, 47, 10) * 2;
    out.success =
        out.rollStatus || out.trueTrackStatus || out.groundSpeedStatus || out.trackRateStatus || out.trueAirspeedStatus;
    return out;
}

_ast_bds_60_t ast_bds_60_decode(const unsigned char *mb)
{
    _ast_bds_60_t out{};
    out.magneticHeadingStatus = registerBit(mb, 1);
    out.magneticHeading = angleBits(mb, 2);
    out.indicatedAirspeedStatus = registerBit(mb, 13);
    out.indicatedAirspeed = registerBits(mb, 14, 10);
    out.machStatus = registerBit(mb, 24);
    out.mach = registerBits(mb, 25, 10) * (2.048 / 512);
    out.baroRateStatus = registerBit(mb, 35);
    out.baroRate = signedBits(mb, 36, 9) * 32;
    out.inertialRateStatus = registerBit(mb, 46);
    out.inertialRate = signedBits(mb, 47, 9) * 32;
    out.success = out.magneticHeadingStatus || out.indicatedAirspeedStatus || out.machStatus || out.baroRateStatus
        || out.inertialRateStatus;
    return out;
}
