#include "asterix/asterix.h"

#include "bits.h"

using korvane::asterix::bitsAt;
using korvane::asterix::signExtended;

namespace {

// Bits of a register are numbered from 1.
unsigned registerBits(const unsigned char *mb, unsigned first, unsigned count)
{
    return static_cast<unsigned>(bitsAt(mb, first - 1, count));
}

// A sign bit, then so many bits of value in two's complement.
std::int32_t signedBits(const unsigned char *mb, unsigned signBit, unsigned valueBits)
{
    return static_cast<std::int32_t>(signExtended(registerBits(mb, signBit, valueBits + 1), valueBits + 1));
}

} // namespace

_ast_bds_40_t ast_bds_40_decode(const unsigned char *mb)
{
    _ast_bds_40_t out{};
    out.mcpAltitudeStatus = registerBits(mb, 1, 1) != 0;
    out.mcpAltitude = static_cast<std::int32_t>(registerBits(mb, 2, 12)) * 16;
    out.fmsAltitudeStatus = registerBits(mb, 14, 1) != 0;
    out.fmsAltitude = static_cast<std::int32_t>(registerBits(mb, 15, 12)) * 16;
    out.baroPressureStatus = registerBits(mb, 27, 1) != 0;
    out.baroPressure = 800 + registerBits(mb, 28, 12) * 0.1;
    const bool modesStatus = registerBits(mb, 48, 1) != 0;
    const bool sourceStatus = registerBits(mb, 54, 1) != 0;
    const bool reserved = registerBits(mb, 40, 8) != 0 || registerBits(mb, 52, 2) != 0;
    out.success = !reserved
        && (out.mcpAltitudeStatus || out.fmsAltitudeStatus || out.baroPressureStatus || modesStatus || sourceStatus);
    return out;
}

_ast_bds_60_t ast_bds_60_decode(const unsigned char *mb)
{
    _ast_bds_60_t out{};
    out.magneticHeadingStatus = registerBits(mb, 1, 1) != 0;
    const double heading = signedBits(mb, 2, 10) * (90.0 / 512);
    out.magneticHeading = heading < 0 ? heading + 360 : heading;
    out.indicatedAirspeedStatus = registerBits(mb, 13, 1) != 0;
    out.indicatedAirspeed = registerBits(mb, 14, 10);
    out.machStatus = registerBits(mb, 24, 1) != 0;
    out.mach = registerBits(mb, 25, 10) * (2.048 / 512);
    out.baroRateStatus = registerBits(mb, 35, 1) != 0;
    out.baroRate = signedBits(mb, 36, 9) * 32;
    out.inertialRateStatus = registerBits(mb, 46, 1) != 0;
    out.inertialRate = signedBits(mb, 47, 9) * 32;
    out.success = out.magneticHeadingStatus || out.indicatedAirspeedStatus || out.machStatus || out.baroRateStatus
        || out.inertialRateStatus;
    return out;
}
