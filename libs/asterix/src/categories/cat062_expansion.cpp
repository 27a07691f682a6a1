#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// Edition 1.3 of the expansion field.

// CST: Contributing Sensors With Local Tracknumbers
constexpr Field fieldCst[] = {raw("SAC", 8), raw("SIC", 8), spare(4), raw("TYP", 4), raw("LTN", 16)};

// CSN: Contributing Sensors No Local Tracknumbers
constexpr Field fieldCsn[] = {raw("SAC", 8), raw("SIC", 8), spare(4), raw("TYP", 4)};

// TVS: Calculated Track Velocity Relative to System Reference Point
constexpr Field fieldTvs[] = {signedQuantity("VX", 16, {1, 4}, "m/s"), signedQuantity("VY", 16, {1, 4}, "m/s")};

// STS: Supplementary Track Status
constexpr Field fieldStsLnav[] = {raw("EP", 1), raw("VAL", 1)};
constexpr Field fieldSts[] = {
    raw("FDR", 1), group("LNAV", fieldStsLnav), spare(4), fx, //
};

// V3: ADS-B Version 3 Data
constexpr Field fieldV3Ps3[] = {raw("EP", 1), raw("VAL", 3), spare(4)};
constexpr Field fieldV3AsRce[] = {raw("EP", 1), raw("VAL", 2)};
constexpr Field fieldV3AsRrl[] = {raw("EP", 1), raw("VAL", 1)};
constexpr Field fieldV3AsTpw[] = {raw("EP", 1), raw("VAL", 2)};
constexpr Field fieldV3AsTsi[] = {raw("EP", 1), raw("VAL", 2)};
constexpr Field fieldV3AsTao[] = {raw("EP", 1), raw("RE", 1), raw("VAL", 6)};
constexpr Field fieldV3As[] = {group("RCE", fieldV3AsRce), group("RRL", fieldV3AsRrl), group("TPW", fieldV3AsTpw),
    group("TSI", fieldV3AsTsi), group("TAO", fieldV3AsTao), spare(5)};
constexpr Field fieldV3UasMuo[] = {raw("EP", 1), raw("VAL", 1)};
constexpr Field fieldV3UasDaa[] = {raw("EP", 1), raw("VAL", 2)};
constexpr Field fieldV3UasRwc[] = {raw("EP", 1), raw("VAL", 1)};
constexpr Field fieldV3Uas[] = {
    group("MUO", fieldV3UasMuo), group("DAA", fieldV3UasDaa), group("RWC", fieldV3UasRwc), spare(1)};
constexpr Field fieldV3CassSvh[] = {raw("EP", 1), raw("VAL", 2)};
constexpr Field fieldV3CassCatc[] = {raw("EP", 1), raw("VAL", 3)};
constexpr Field fieldV3Cass[] = {group("SVH", fieldV3CassSvh), group("CATC", fieldV3CassCatc), spare(1)};
constexpr Field fieldV3[] = {
    group("PS3", fieldV3Ps3),
    group("AS", fieldV3As),
    group("UAS", fieldV3Uas),
    group("CASS", fieldV3Cass),
};

} // namespace

constexpr Field cat062Expansion[] = {
    repetitive("CST", fieldCst),
    repetitive("CSN", fieldCsn),
    group("TVS", fieldTvs),
    extended("STS", fieldSts),
    compound("V3", fieldV3),
};

} // namespace korvane::asterix
