#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// I062/010 Data Source Identifier
constexpr Field item010[] = {raw("SAC", 8), raw("SIC", 8)};

// I062/060 Track Mode 3/A Code
constexpr Field item060[] = {raw("V", 1), raw("G", 1), raw("CH", 1), spare(1), octal("MODE3A", 12)};

// I062/080 Track Status
constexpr Field item080[] = {
    raw("MON", 1), raw("SPI", 1), raw("MRH", 1), raw("SRC", 3), raw("CNF", 1), fx, //
    raw("SIM", 1), raw("TSE", 1), raw("TSB", 1), raw("FPC", 1), raw("AFF", 1), raw("STP", 1), raw("KOS", 1), fx, //
    raw("AMA", 1), raw("MD4", 2), raw("ME", 1), raw("MI", 1), raw("MD5", 2), fx, //
    raw("CST", 1), raw("PSR", 1), raw("SSR", 1), raw("MDS", 1), raw("ADS", 1), raw("SUC", 1), raw("AAC", 1), fx, //
    raw("SDS", 2), raw("EMS", 3), raw("PFT", 1), raw("FPLT", 1), fx, //
    raw("DUPT", 1), raw("DUPF", 1), raw("DUPM", 1), raw("SFC", 1), raw("IDD", 1), raw("IEC", 1), raw("MLAT", 1), fx, //
    raw("M5I", 1), spare(6), fx, //
};

// I062/100 Calculated Track Position (Cartesian)
constexpr Field item100[] = {signedQuantity("X", 24, {1, 2}, "m"), signedQuantity("Y", 24, {1, 2}, "m")};

// I062/105 Calculated Position In WGS-84 Co-ordinates
constexpr Field item105[] = {
    signedQuantity("LAT", 32, {180, 33554432}, "°"), signedQuantity("LON", 32, {180, 33554432}, "°")};

// I062/110 Mode 5 Data Reports and Extended Mode 1 Code
constexpr Field item110Sum[] = {
    raw("M5", 1), raw("ID", 1), raw("DA", 1), raw("M1", 1), raw("M2", 1), raw("M3", 1), raw("MC", 1), raw("X", 1)};
constexpr Field item110Pmn[] = {spare(2), raw("PIN", 14), spare(3), raw("NAT", 5), spare(2), raw("MIS", 6)};
constexpr Field item110Pos[] = {
    signedQuantity("LAT", 24, {180, 8388608}, "°"), signedQuantity("LON", 24, {180, 8388608}, "°")};
constexpr Field item110Ga[] = {spare(1), raw("RES", 1), signedQuantity("GA", 14, {25, 1}, "ft")};
constexpr Field item110Em1[] = {spare(4), octal("EM1", 12)};
constexpr Field item110Xp[] = {spare(3), raw("X5", 1), raw("XC", 1), raw("X3", 1), raw("X2", 1), raw("X1", 1)};
constexpr Field item110[] = {
    group("SUM", item110Sum),
    group("PMN", item110Pmn),
    group("POS", item110Pos),
    group("GA", item110Ga),
    group("EM1", item110Em1),
    signedQuantity("TOS", 8, {1, 128}, "s"),
    group("XP", item110Xp),
};

// I062/120 Track Mode 2 Code
constexpr Field item120[] = {spare(4), octal("MODE2", 12)};

// I062/135 Calculated Track Barometric Altitude
constexpr Field item135[] = {raw("QNH", 1), signedQuantity("CTB", 15, {1, 4}, "FL")};

// I062/185 Calculated Track Velocity (Cartesian)
constexpr Field item185[] = {signedQuantity("VX", 16, {1, 4}, "m/s"), signedQuantity("VY", 16, {1, 4}, "m/s")};

// I062/200 Mode of Movement
constexpr Field item200[] = {raw("TRANS", 2), raw("LONG", 2), raw("VERT", 2), raw("ADF", 1), spare(1)};

// I062/210 Calculated Acceleration (Cartesian)
constexpr Field item210[] = {signedQuantity("AX", 8, {1, 4}, "m/s²"), signedQuantity("AY", 8, {1, 4}, "m/s²")};

// I062/245 Target Identification
constexpr Field item245[] = {raw("STI", 2), spare(6), icao("CHR", 48)};

// I062/270 Target Size and Orientation
constexpr Field item270[] = {
    quantity("LENGTH", 7, {1, 1}, "m"), fx, //
    quantity("ORIENTATION", 7, {360, 128}, "°"), fx, //
    quantity("WIDTH", 7, {1, 1}, "m"), fx, //
};

// I062/290 System Track Update Ages
constexpr Field item290[] = {
    quantity("TRK", 8, {1, 4}, "s"),
    quantity("PSR", 8, {1, 4}, "s"),
    quantity("SSR", 8, {1, 4}, "s"),
    quantity("MDS", 8, {1, 4}, "s"),
    quantity("ADS", 16, {1, 4}, "s"),
    quantity("ES", 8, {1, 4}, "s"),
    quantity("VDL", 8, {1, 4}, "s"),
    quantity("UAT", 8, {1, 4}, "s"),
    quantity("LOP", 8, {1, 4}, "s"),
    quantity("MLT", 8, {1, 4}, "s"),
};

// I062/295 Track Data Ages
constexpr Field item295[] = {
    quantity("MFL", 8, {1, 4}, "s"),
    quantity("MD1", 8, {1, 4}, "s"),
    quantity("MD2", 8, {1, 4}, "s"),
    quantity("MDA", 8, {1, 4}, "s"),
    quantity("MD4", 8, {1, 4}, "s"),
    quantity("MD5", 8, {1, 4}, "s"),
    quantity("MHG", 8, {1, 4}, "s"),
    quantity("IAS", 8, {1, 4}, "s"),
    quantity("TAS", 8, {1, 4}, "s"),
    quantity("SAL", 8, {1, 4}, "s"),
    quantity("FSS", 8, {1, 4}, "s"),
    quantity("TID", 8, {1, 4}, "s"),
    quantity("COM", 8, {1, 4}, "s"),
    quantity("SAB", 8, {1, 4}, "s"),
    quantity("ACS", 8, {1, 4}, "s"),
    quantity("BVR", 8, {1, 4}, "s"),
    quantity("GVR", 8, {1, 4}, "s"),
    quantity("RAN", 8, {1, 4}, "s"),
    quantity("TAR", 8, {1, 4}, "s"),
    quantity("TAN", 8, {1, 4}, "s"),
    quantity("GSP", 8, {1, 4}, "s"),
    quantity("VUN", 8, {1, 4}, "s"),
    quantity("MET", 8, {1, 4}, "s"),
    quantity("EMC", 8, {1, 4}, "s"),
    quantity("POS", 8, {1, 4}, "s"),
    quantity("GAL", 8, {1, 4}, "s"),
    quantity("PUN", 8, {1, 4}, "s"),
    quantity("MB", 8, {1, 4}, "s"),
    quantity("IAR", 8, {1, 4}, "s"),
    quantity("MAC", 8, {1, 4}, "s"),
    quantity("BPS", 8, {1, 4}, "s"),
};

// I062/340 Measured Information
constexpr Field item340Sid[] = {raw("SAC", 8), raw("SIC", 8)};
constexpr Field item340Pos[] = {quantity("RHO", 16, {1, 256}, "NM"), quantity("THETA", 16, {360, 65536}, "°")};
constexpr Field item340Mdc[] = {raw("V", 1), raw("G", 1), signedQuantity("LMC", 14, {1, 4}, "FL")};
constexpr Field item340Mda[] = {raw("V", 1), raw("G", 1), raw("L", 1), spare(1), octal("MODE3A", 12)};
constexpr Field item340Typ[] = {raw("TYP", 3), raw("SIM", 1), raw("RAB", 1), raw("TST", 1), spare(2)};
constexpr Field item340[] = {
    group("SID", item340Sid),
    group("POS", item340Pos),
    signedQuantity("HEIGHT", 16, {25, 1}, "ft"),
    group("MDC", item340Mdc),
    group("MDA", item340Mda),
    group("TYP", item340Typ),
};

// I062/380 Aircraft Derived Data
constexpr Field item380IasIasCases[] = {
    when(0, quantity("IAS", 15, {1, 16384}, "NM/s")), when(1, quantity("IAS", 15, {1, 1000}, "Mach"))};
constexpr Field item380Ias[] = {raw("IM", 1), caseOf("IAS", "380/IAS/IM", item380IasIasCases)};
constexpr Field item380Sal[] = {raw("SAS", 1), raw("SRC", 2), signedQuantity("ALT", 13, {25, 1}, "ft")};
constexpr Field item380Fss[] = {raw("MV", 1), raw("AH", 1), raw("AM", 1), signedQuantity("ALT", 13, {25, 1}, "ft")};
constexpr Field item380Tis[] = {
    raw("NAV", 1), raw("NVB", 1), spare(5), fx, //
};
constexpr Field item380Tid[] = {raw("TCA", 1), raw("NC", 1), raw("TCPN", 6), signedQuantity("ALT", 16, {10, 1}, "ft"),
    signedQuantity("LAT", 24, {180, 8388608}, "°"), signedQuantity("LON", 24, {180, 8388608}, "°"), raw("PT", 4),
    raw("TD", 2), raw("TRA", 1), raw("TOA", 1), quantity("TOV", 24, {1, 1}, "s"), quantity("TTR", 16, {1, 100}, "NM")};
constexpr Field item380Com[] = {
    raw("COM", 3), raw("STAT", 3), spare(2), raw("SSC", 1), raw("ARC", 1), raw("AIC", 1), raw("B1A", 1), raw("B1B", 4)};
constexpr Field item380Sab[] = {raw("AC", 2), raw("MN", 2), raw("DC", 2), raw("GBS", 1), spare(6), raw("STAT", 3)};
constexpr Field item380Tar[] = {raw("TI", 2), spare(6), signedQuantity("ROT", 7, {1, 4}, "°/s"), spare(1)};
constexpr Field item380Met[] = {raw("WS", 1), raw("WD", 1), raw("TMP", 1), raw("TRB", 1), spare(4),
    quantity("WSD", 16, {1, 1}, "kt"), quantity("WDD", 16, {1, 1}, "°"), signedQuantity("TMPD", 16, {1, 4}, "°C"),
    integer("TRBD", 8)};
constexpr Field item380Pos[] = {
    signedQuantity("LAT", 24, {180, 8388608}, "°"), signedQuantity("LON", 24, {180, 8388608}, "°")};
constexpr Field item380Pun[] = {spare(4), raw("PUN", 4)};
constexpr Field item380Bdsdata[] = {raw(nullptr, 64)};
constexpr Field item380Bps[] = {spare(4), quantity("BPS", 12, {1, 10}, "mb")};
constexpr Field item380[] = {
    raw("ADR", 24),
    icao("ID", 48),
    quantity("MHG", 16, {360, 65536}, "°"),
    group("IAS", item380Ias),
    quantity("TAS", 16, {1, 1}, "kt"),
    group("SAL", item380Sal),
    group("FSS", item380Fss),
    extended("TIS", item380Tis),
    repetitive("TID", item380Tid),
    group("COM", item380Com),
    group("SAB", item380Sab),
    raw("ACS", 56),
    signedQuantity("BVR", 16, {25, 4}, "ft/min"),
    signedQuantity("GVR", 16, {25, 4}, "ft/min"),
    signedQuantity("RAN", 16, {1, 100}, "°"),
    group("TAR", item380Tar),
    quantity("TAN", 16, {360, 65536}, "°"),
    signedQuantity("GS", 16, {1, 16384}, "NM/s"),
    raw("VUN", 8),
    group("MET", item380Met),
    raw("EMC", 8),
    group("POS", item380Pos),
    signedQuantity("GAL", 16, {25, 4}, "ft"),
    group("PUN", item380Pun),
    repetitive("BDSDATA", item380Bdsdata),
    quantity("IAR", 16, {1, 1}, "kt"),
    quantity("MAC", 16, {1, 125}, "Mach"),
    group("BPS", item380Bps),
};

// I062/390 Flight Plan Related Data
constexpr Field item390Tag[] = {raw("SAC", 8), raw("SIC", 8)};
constexpr Field item390Ifi[] = {raw("TYP", 2), spare(3), integer("NBR", 27)};
constexpr Field item390Fct[] = {raw("GATOAT", 2), raw("FR1FR2", 2), raw("RVSM", 2), raw("HPR", 1), spare(1)};
constexpr Field item390Rds[] = {ascii("NU1", 8), ascii("NU2", 8), ascii("LTR", 8)};
constexpr Field item390Ctl[] = {raw("CENTRE", 8), raw("POSITION", 8)};
constexpr Field item390Tod[] = {raw("TYP", 5), raw("DAY", 2), spare(4), integer("HOR", 5), spare(2), integer("MIN", 6),
    raw("AVS", 1), spare(1), integer("SEC", 6)};
constexpr Field item390Sts[] = {raw("EMP", 2), raw("AVL", 2), spare(4)};
constexpr Field item390Pem[] = {spare(3), raw("VA", 1), octal("MODE3A", 12)};
constexpr Field item390[] = {
    group("TAG", item390Tag),
    ascii("CS", 56),
    group("IFI", item390Ifi),
    group("FCT", item390Fct),
    ascii("TAC", 32),
    ascii("WTC", 8),
    ascii("DEP", 32),
    ascii("DST", 32),
    group("RDS", item390Rds),
    quantity("CFL", 16, {1, 4}, "FL"),
    group("CTL", item390Ctl),
    repetitive("TOD", item390Tod),
    ascii("AST", 48),
    group("STS", item390Sts),
    ascii("STD", 56),
    ascii("STA", 56),
    group("PEM", item390Pem),
    ascii("PEC", 56),
};

// I062/500 Estimated Accuracies
constexpr Field item500Apc[] = {quantity("X", 16, {1, 2}, "m"), quantity("Y", 16, {1, 2}, "m")};
constexpr Field item500Apw[] = {quantity("LAT", 16, {180, 33554432}, "°"), quantity("LON", 16, {180, 33554432}, "°")};
constexpr Field item500Atv[] = {quantity("X", 8, {1, 4}, "m/s"), quantity("Y", 8, {1, 4}, "m/s")};
constexpr Field item500Aa[] = {quantity("X", 8, {1, 4}, "m/s²"), quantity("Y", 8, {1, 4}, "m/s²")};
constexpr Field item500[] = {
    group("APC", item500Apc),
    signedQuantity("COV", 16, {1, 2}, "m"),
    group("APW", item500Apw),
    quantity("AGA", 8, {25, 4}, "ft"),
    quantity("ABA", 8, {1, 4}, "FL"),
    group("ATV", item500Atv),
    group("AA", item500Aa),
    quantity("ARC", 8, {25, 4}, "ft/min"),
};

// I062/510 Composed Track Number
constexpr Field item510[] = {raw("IDENT", 8), raw("TRACK", 15)};

constexpr Field items[] = {
    item("Data Source Identifier", group("010", item010)),
    item("Service Identification", raw("015", 8)),
    item("Track Number", raw("040", 16)),
    item("Track Mode 3/A Code", group("060", item060)),
    item("Time Of Track Information", quantity("070", 24, {1, 128}, "s")),
    item("Track Status", extended("080", item080)),
    item("Calculated Track Position (Cartesian)", group("100", item100)),
    item("Calculated Position In WGS-84 Co-ordinates", group("105", item105)),
    item("Mode 5 Data Reports and Extended Mode 1 Code", compound("110", item110)),
    item("Track Mode 2 Code", group("120", item120)),
    item("Calculated Track Geometric Altitude", signedQuantity("130", 16, {25, 4}, "ft")),
    item("Calculated Track Barometric Altitude", group("135", item135)),
    item("Measured Flight Level", signedQuantity("136", 16, {1, 4}, "FL")),
    item("Calculated Track Velocity (Cartesian)", group("185", item185)),
    item("Mode of Movement", group("200", item200)),
    item("Calculated Acceleration (Cartesian)", group("210", item210)),
    item("Calculated Rate of Climb/Descent", signedQuantity("220", 16, {25, 4}, "ft/min")),
    item("Target Identification", group("245", item245)),
    item("Target Size and Orientation", extended("270", item270)),
    item("System Track Update Ages", compound("290", item290)),
    item("Track Data Ages", compound("295", item295)),
    item("Vehicle Fleet Identification", raw("300", 8)),
    item("Measured Information", compound("340", item340)),
    item("Aircraft Derived Data", compound("380", item380)),
    item("Flight Plan Related Data", compound("390", item390)),
    item("Estimated Accuracies", compound("500", item500)),
    item("Composed Track Number", repetitiveFx("510", item510)),
    item("Reserved Expansion Field", expansion("RE", cat062Expansion)),
    item("Special Purpose Field", explicitLength("SP")),
};

// Item names by field reference number.
constexpr const char *order[] = {"010", Unused, "015", "070", "105", "100", "185", "210", "060", "245", "380", "040",
    "080", "290", "200", "295", "136", "130", "135", "220", "390", "270", "300", "110", "120", "510", "500", "340",
    Unused, Unused, Unused, Unused, Unused, "RE", "SP"};

constexpr Variation variations[] = {variation("", order)};

} // namespace

constexpr Edition cat062Edition121{
    62, "1.21", "SDPS Track Messages", items, std::size(items), variations, std::size(variations)};

} // namespace korvane::asterix
