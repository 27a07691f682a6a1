#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// Edition 1.5 of the expansion field.

// BPS: Barometric Pressure Setting
constexpr Field fieldBps[] = {spare(4), quantity("BPS", 12, {1, 10}, "hPa")};

// SH: Selected Heading
constexpr Field fieldSh[] = {spare(4), raw("HDR", 1), raw("STAT", 1), quantity("SH", 10, {45, 64}, "°")};

// NAV: Navigation Mode
constexpr Field fieldNavMfm[] = {raw("EP", 1), raw("VAL", 1)};
constexpr Field fieldNav[] = {
    raw("AP", 1), raw("VN", 1), raw("AH", 1), raw("AM", 1), group("MFM", fieldNavMfm), spare(2)};

// SGV: Surface Ground Vector
constexpr Field fieldSgv[] = {
    raw("STP", 1), raw("HTS", 1), raw("HTT", 1), raw("HRD", 1), quantity("GSS", 11, {1, 8}, "kt"), fx, //
    quantity("HGT", 7, {45, 16}, "°"), fx, //
};

// STA: Aircraft Status
constexpr Field fieldStaRce[] = {raw("EP", 1), raw("VAL", 2)};
constexpr Field fieldStaRrl[] = {raw("EP", 1), raw("VAL", 1)};
constexpr Field fieldStaPs3[] = {raw("EP", 1), raw("VAL", 3)};
constexpr Field fieldStaTpw[] = {raw("EP", 1), raw("VAL", 2)};
constexpr Field fieldStaTsi[] = {raw("EP", 1), raw("VAL", 2)};
constexpr Field fieldStaMuo[] = {raw("EP", 1), raw("VAL", 1)};
constexpr Field fieldStaRwc[] = {raw("EP", 1), raw("VAL", 1)};
constexpr Field fieldStaDaa[] = {raw("EP", 1), raw("VAL", 2)};
constexpr Field fieldStaDf17ca[] = {raw("EP", 1), raw("VAL", 3)};
constexpr Field fieldStaSvh[] = {raw("EP", 1), raw("VAL", 2)};
constexpr Field fieldStaCatc[] = {raw("EP", 1), raw("VAL", 3)};
constexpr Field fieldStaTao[] = {raw("EP", 1), raw("VAL", 5), spare(1)};
constexpr Field fieldSta[] = {
    raw("ES", 1), raw("UAT", 1), group("RCE", fieldStaRce), group("RRL", fieldStaRrl), fx, //
    group("PS3", fieldStaPs3), group("TPW", fieldStaTpw), fx, //
    group("TSI", fieldStaTsi), group("MUO", fieldStaMuo), group("RWC", fieldStaRwc), fx, //
    group("DAA", fieldStaDaa), group("DF17CA", fieldStaDf17ca), fx, //
    group("SVH", fieldStaSvh), group("CATC", fieldStaCatc), fx, //
    group("TAO", fieldStaTao), fx, //
};

// MES: Military Extended Squitter
constexpr Field fieldMesSum[] = {
    raw("M5", 1), raw("ID", 1), raw("DA", 1), raw("M1", 1), raw("M2", 1), raw("M3", 1), raw("MC", 1), raw("PO", 1)};
constexpr Field fieldMesPno[] = {spare(2), raw("PIN", 14), spare(5), raw("NO", 11)};
constexpr Field fieldMesEm1[] = {raw("V", 1), spare(1), raw("L", 1), spare(1), octal("EM1", 12)};
constexpr Field fieldMesXp[] = {
    spare(2), raw("XP", 1), raw("X5", 1), raw("XC", 1), raw("X3", 1), raw("X2", 1), raw("X1", 1)};
constexpr Field fieldMesFom[] = {spare(3), raw("FOM", 5)};
constexpr Field fieldMesM2[] = {raw("V", 1), spare(1), raw("L", 1), spare(1), octal("MODE2", 12)};
constexpr Field fieldMes[] = {
    group("SUM", fieldMesSum),
    group("PNO", fieldMesPno),
    group("EM1", fieldMesEm1),
    group("XP", fieldMesXp),
    group("FOM", fieldMesFom),
    group("M2", fieldMesM2),
};

} // namespace

constexpr Field cat021Expansion[] = {
    group("BPS", fieldBps),
    group("SH", fieldSh),
    group("NAV", fieldNav),
    raw("GAO", 8),
    extended("SGV", fieldSgv),
    extended("STA", fieldSta),
    quantity("TNH", 16, {360, 65536}, "°"),
    compound("MES", fieldMes),
};

} // namespace korvane::asterix
