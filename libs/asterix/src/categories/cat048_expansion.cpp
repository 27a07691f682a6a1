#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// Edition 1.13 of the expansion field.

// MD5: Mode 5 Reports
constexpr Field fieldMd5Sum[] = {
    raw("M5", 1), raw("ID", 1), raw("DA", 1), raw("M1", 1), raw("M2", 1), raw("M3", 1), raw("MC", 1), spare(1)};
constexpr Field fieldMd5Pmn[] = {
    spare(2), raw("PIN", 14), spare(2), raw("NAV", 1), raw("NAT", 5), spare(2), raw("MIS", 6)};
constexpr Field fieldMd5Pos[] = {
    signedQuantity("LAT", 24, {180, 8388608}, "°"), signedQuantity("LON", 24, {180, 8388608}, "°")};
constexpr Field fieldMd5Ga[] = {spare(1), raw("RES", 1), signedQuantity("GA", 14, {25, 1}, "ft")};
constexpr Field fieldMd5Em1[] = {raw("V", 1), raw("G", 1), raw("L", 1), spare(1), octal("EM1", 12)};
constexpr Field fieldMd5Xp[] = {
    spare(2), raw("XP", 1), raw("X5", 1), raw("XC", 1), raw("X3", 1), raw("X2", 1), raw("X1", 1)};
constexpr Field fieldMd5[] = {
    group("SUM", fieldMd5Sum),
    group("PMN", fieldMd5Pmn),
    group("POS", fieldMd5Pos),
    group("GA", fieldMd5Ga),
    group("EM1", fieldMd5Em1),
    quantity("TOS", 8, {1, 128}, "s"),
    group("XP", fieldMd5Xp),
};

// M5N: Mode 5 Reports, New Format
constexpr Field fieldM5nSum[] = {
    raw("M5", 1), raw("ID", 1), raw("DA", 1), raw("M1", 1), raw("M2", 1), raw("M3", 1), raw("MC", 1), spare(1)};
constexpr Field fieldM5nPmn[] = {spare(2), raw("PIN", 14), spare(4), raw("NOV", 1), raw("NO", 11)};
constexpr Field fieldM5nPos[] = {
    signedQuantity("LAT", 24, {180, 8388608}, "°"), signedQuantity("LON", 24, {180, 8388608}, "°")};
constexpr Field fieldM5nGa[] = {spare(1), raw("RES", 1), signedQuantity("GA", 14, {25, 1}, "ft")};
constexpr Field fieldM5nEm1[] = {raw("V", 1), raw("G", 1), raw("L", 1), spare(1), octal("EM1", 12)};
constexpr Field fieldM5nXp[] = {
    spare(2), raw("XP", 1), raw("X5", 1), raw("XC", 1), raw("X3", 1), raw("X2", 1), raw("X1", 1)};
constexpr Field fieldM5nFom[] = {spare(3), raw("FOM", 5)};
constexpr Field fieldM5n[] = {
    group("SUM", fieldM5nSum),
    group("PMN", fieldM5nPmn),
    group("POS", fieldM5nPos),
    group("GA", fieldM5nGa),
    group("EM1", fieldM5nEm1),
    quantity("TOS", 8, {1, 128}, "s"),
    group("XP", fieldM5nXp),
    group("FOM", fieldM5nFom),
};

// M4E: Extended Mode 4 Report
constexpr Field fieldM4e[] = {
    spare(5), raw("FOEFRI", 2), fx, //
};

// RPC: Radar Plot Characteristics
constexpr Field fieldRpc[] = {
    integer("SCO", 8),
    quantity("SRC", 16, {1, 10}, "dB"),
    quantity("RW", 16, {1, 256}, "NM"),
    quantity("AR", 16, {1, 256}, "NM"),
};

// RTC: Radar Track Characteristics
constexpr Field fieldRtcPtl[] = {
    spare(3), raw("SCN", 1), raw("RC", 1), raw("AC", 1), raw("SSR", 1), raw("PSR", 1), raw("PLOTNR", 16)};
constexpr Field fieldRtcAtl[] = {raw(nullptr, 16)};
constexpr Field fieldRtcNpp[] = {quantity("PREDRHO", 16, {1, 128}, "NM"), quantity("PREDTHETA", 16, {360, 65536}, "°"),
    quantity("EVOLRHOSTART", 16, {1, 128}, "NM"), quantity("EVOLRHOEND", 16, {1, 128}, "NM"),
    quantity("EVOLTHETASTART", 16, {360, 65536}, "°"), quantity("EVOLTHETAEND", 16, {360, 65536}, "°"),
    quantity("NOISERHOSTART", 16, {1, 128}, "NM"), quantity("NOISERHOEND", 16, {1, 128}, "NM"),
    quantity("NOISETHETASTART", 16, {360, 65536}, "°"), quantity("NOISETHETAEND", 16, {360, 65536}, "°"),
    quantity("PREDTIME", 16, {1, 128}, "s")};
constexpr Field fieldRtcDlk[] = {raw("TYPE", 4), raw("ORIGIN", 2), raw("STATE", 2)};
constexpr Field fieldRtcLck[] = {raw("LS", 1), quantity("LOCTIM", 15, {1, 1}, "ms")};
constexpr Field fieldRtcTc[] = {spare(7), integer("TCOUNT1", 4), raw("TCODE1", 5), integer("TCOUNT2", 4),
    octal("TCODE2", 12), integer("TCOUNT3", 4), octal("TCODE3", 12)};
constexpr Field fieldRtcTlc[] = {raw("ACQI", 2), integer("TRKUPDCTR", 14), quantity("LASTTRKUPD", 16, {1, 1}, "ms")};
constexpr Field fieldRtcAsi[] = {raw("SACADJS", 8), raw("SICADJS", 8), quantity("TIMEOFDAYSCN", 16, {1, 128}, "s"),
    raw("DATAUSE", 7), raw("DRNA", 1), raw("DRN", 16)};
constexpr Field fieldRtcIr[] = {raw("IR", 1), quantity("M3A", 7, {1, 1}, "s")};
constexpr Field fieldRtc[] = {
    group("PTL", fieldRtcPtl),
    repetitive("ATL", fieldRtcAtl),
    quantity("TRN", 8, {1, 1}, "%"),
    group("NPP", fieldRtcNpp),
    repetitive("DLK", fieldRtcDlk),
    group("LCK", fieldRtcLck),
    group("TC", fieldRtcTc),
    group("TLC", fieldRtcTlc),
    repetitive("ASI", fieldRtcAsi),
    raw("TES", 8),
    group("IR", fieldRtcIr),
};

// CPC: Common and Plot Characteristics
constexpr Field fieldCpcRpl[] = {raw("TYPE", 8), raw("REPLYNBR", 16)};
constexpr Field fieldCpcDate[] = {integer("Y1", 4), integer("Y2", 4), integer("Y3", 4), integer("Y4", 4),
    integer("M1", 4), integer("M2", 4), integer("D1", 4), integer("D2", 4)};
constexpr Field fieldCpc[] = {
    raw("PNB", 16),
    repetitive("RPL", fieldCpcRpl),
    integer("SNB", 8),
    group("DATE", fieldCpcDate),
};

// GEN48: Generic Category 048 Data
constexpr Field fieldGen48Altm2[] = {raw("V", 1), raw("G", 1), raw("L", 1), spare(1), octal("ALTM2", 12)};
constexpr Field fieldGen48Altm3[] = {raw("V", 1), raw("G", 1), raw("L", 1), spare(1), octal("ALTM3", 12)};
constexpr Field fieldGen48Altfl[] = {raw("V", 1), raw("G", 1), signedQuantity("ALTFL", 14, {1, 4}, "FL")};
constexpr Field fieldGen48Rcsdb[] = {spare(2), signedQuantity("RCSDB", 14, {1, 100}, "dBm²")};
constexpr Field fieldGen48Rcsm[] = {spare(2), quantity("RCSM", 30, {1, 1000000}, "m²")};
constexpr Field fieldGen48[] = {
    group("ALTM2", fieldGen48Altm2),
    group("ALTM3", fieldGen48Altm3),
    group("ALTFL", fieldGen48Altfl),
    group("RCSDB", fieldGen48Rcsdb),
    group("RCSM", fieldGen48Rcsm),
};

} // namespace

constexpr Field cat048Expansion[] = {
    compound("MD5", fieldMd5),
    compound("M5N", fieldM5n),
    extended("M4E", fieldM4e),
    compound("RPC", fieldRpc),
    quantity("ERR", 24, {1, 256}, "NM"),
    compound("RTC", fieldRtc),
    compound("CPC", fieldCpc),
    compound("GEN48", fieldGen48),
};

} // namespace korvane::asterix
