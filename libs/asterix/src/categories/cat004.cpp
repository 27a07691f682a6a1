#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// I004/010 Data Source Identifier
constexpr Field item010[] = {raw("SAC", 8), raw("SIC", 8)};

// I004/015 SDPS Identifier
constexpr Field item015[] = {raw("SAC", 8), raw("SIC", 8)};

// I004/045 Area and Alert Status
constexpr Field item045Area[] = {raw("EP", 1), raw("VAL", 3)};
constexpr Field item045[] = {group("AREA", item045Area), raw("STAT", 3), spare(1)};

// I004/060 Safety Net Function and System Status
constexpr Field item060[] = {
    raw("MRVA", 1), raw("RAMLD", 1), raw("RAMHD", 1), raw("MSAW", 1), raw("APW", 1), raw("CLAM", 1), raw("STCA", 1),
    fx, //
    raw("APM", 1), raw("RIMCA", 1), raw("ACASRA", 1), raw("NTCA", 1), raw("DG", 1), raw("OF", 1), raw("OL", 1), fx, //
    raw("AIW", 1), raw("PAIW", 1), raw("OCAT", 1), raw("SAM", 1), raw("VCD", 1), raw("CHAM", 1), raw("DSAM", 1), fx, //
    raw("DBPSMARR", 1), raw("DBPSMDEP", 1), raw("DBPSMTL", 1), raw("VRAMCRM", 1), raw("VRAMVTM", 1), raw("VRAMVRM", 1),
    raw("HAMHD", 1), fx, //
    raw("HAMRD", 1), raw("HAMVD", 1), raw("HVI", 1), raw("LTW", 1), raw("VPM", 1), raw("TTA", 1), raw("CRA", 1), fx, //
    raw("ASM", 1), raw("IAVM", 1), raw("FTD", 1), raw("ITD", 1), raw("IIA", 1), raw("SQW", 1), raw("CUW", 1), fx, //
    raw("CATC", 1), raw("NOCLR", 1), raw("NOMOV", 1), raw("NOH", 1), raw("WRTY", 1), raw("STOCC", 1), raw("ONGOING", 1),
    fx, //
    raw("NTZ", 1), spare(6), fx, //
};

// I004/070 Conflict Timing and Separation
constexpr Field item070[] = {
    quantity("TC", 24, {1, 128}, "s"),
    quantity("TCA", 24, {1, 128}, "s"),
    quantity("CHS", 24, {1, 2}, "m"),
    quantity("MHS", 16, {1, 2}, "m"),
    quantity("CVS", 16, {25, 1}, "ft"),
    quantity("MVS", 16, {25, 1}, "ft"),
};

// I004/100 Area Definition
constexpr Field item100[] = {
    icao("AN", 48),
    ascii("CAN", 56),
    ascii("RT1", 56),
    ascii("RT2", 56),
    ascii("SB", 56),
    ascii("G", 56),
};

// I004/110 FDPS Sector Control Identification
constexpr Field item110[] = {raw("CEN", 8), raw("POS", 8)};

// I004/120 Conflict Characteristics
constexpr Field item120Cn[] = {
    raw("MAS", 1), raw("CAS", 1), raw("FLD", 1), raw("FVD", 1), raw("TYPE", 1), raw("CROSS", 1), raw("DIV", 1), fx, //
    raw("RRC", 1), raw("RTC", 1), raw("MRVA", 1), raw("VRAMCRM", 1), raw("VRAMVRM", 1), raw("VRAMVTM", 1),
    raw("HAMHD", 1), fx, //
    raw("HAMRD", 1), raw("HAMVD", 1), raw("DBPSMARR", 1), raw("DBPSMDEP", 1), raw("DBPSMTL", 1), raw("AIW", 1),
    spare(1), fx, //
};
// What the three bits say depends on the message type and on the table of definitions; where they are one code and not
// flags, they are the raw value that a case has anyway.
constexpr Field item120CcStca[] = {raw("LPF", 1), raw("CPF", 1), raw("MHF", 1)};
constexpr Field item120CcRimcas[] = {raw("RAS", 1), spare(2)};
constexpr Field item120CcLanding[] = {raw("LFP", 1), spare(1), raw("MSM", 1)};
constexpr Field item120CcCpc[] = {
    when(7, 1, group("CPC", item120CcStca)),
    when(9, 2, group("CPC", item120CcRimcas)),
    when(10, 2, group("CPC", item120CcRimcas)),
    when(11, 2, group("CPC", item120CcRimcas)),
    when(12, 2, group("CPC", item120CcRimcas)),
    when(13, 2, group("CPC", item120CcRimcas)),
    when(14, 2, group("CPC", item120CcRimcas)),
    when(15, 2, group("CPC", item120CcRimcas)),
    when(16, 2, group("CPC", item120CcRimcas)),
    when(45, 1, group("CPC", item120CcLanding)),
};
constexpr Field item120Cc[] = {raw("TID", 4), caseOf("CPC", "000", "120/CC/TID", item120CcCpc), raw("CS", 1)};
constexpr Field item120[] = {
    extended("CN", item120Cn),
    group("CC", item120Cc),
    quantity("CP", 8, {1, 2}, "%"),
    quantity("CD", 24, {1, 128}, "s"),
};

// I004/170 Aircraft Identification and Characteristics 1
constexpr Field item170M31[] = {spare(4), octal("MODE3A", 12)};
constexpr Field item170Cpw[] = {signedQuantity("LAT", 32, {180, 33554432}, "°"),
    signedQuantity("LON", 32, {180, 33554432}, "°"), signedQuantity("ALT", 16, {25, 1}, "ft")};
constexpr Field item170Cpc[] = {
    signedQuantity("X", 24, {1, 2}, "m"), signedQuantity("Y", 24, {1, 2}, "m"), signedQuantity("Z", 16, {25, 1}, "ft")};
constexpr Field item170Ac1[] = {
    raw("GATOAT", 2), raw("FR1FR2", 2), raw("RVSM", 2), raw("HPR", 1), fx, //
    raw("CDM", 2), raw("PRI", 1), raw("GV", 1), spare(3), fx, //
};
constexpr Field item170Fp1[] = {spare(5), quantity("NBR", 27, {1, 1}, "")};
constexpr Field item170[] = {
    ascii("AI1", 56),
    group("M31", item170M31),
    group("CPW", item170Cpw),
    group("CPC", item170Cpc),
    quantity("TT1", 24, {1, 128}, "s"),
    quantity("DT1", 16, {1, 2}, "m"),
    extended("AC1", item170Ac1),
    icao("MS1", 48),
    group("FP1", item170Fp1),
    quantity("CF1", 16, {1, 4}, "FL"),
};

// I004/171 Aircraft Identification and Characteristics 2
constexpr Field item171M32[] = {spare(4), octal("MODE3A", 12)};
constexpr Field item171Cpw[] = {signedQuantity("LAT", 32, {180, 33554432}, "°"),
    signedQuantity("LON", 32, {180, 33554432}, "°"), signedQuantity("ALT", 16, {25, 1}, "ft")};
constexpr Field item171Cpl[] = {
    signedQuantity("X", 24, {1, 2}, "m"), signedQuantity("Y", 24, {1, 2}, "m"), signedQuantity("Z", 16, {25, 1}, "ft")};
constexpr Field item171Ac2[] = {
    raw("GATOAT", 2), raw("FR1FR2", 2), raw("RVSM", 2), raw("HPR", 1), fx, //
    raw("CDM", 2), raw("PRI", 1), raw("GV", 1), spare(3), fx, //
};
constexpr Field item171Fp2[] = {spare(5), quantity("NBR", 27, {1, 1}, "")};
constexpr Field item171[] = {
    ascii("AI2", 56),
    group("M32", item171M32),
    group("CPW", item171Cpw),
    group("CPL", item171Cpl),
    quantity("TT2", 24, {1, 128}, "s"),
    quantity("DT2", 16, {1, 2}, "m"),
    extended("AC2", item171Ac2),
    icao("MS2", 48),
    group("FP2", item171Fp2),
    quantity("CF2", 16, {1, 4}, "FL"),
};

constexpr Field items[] = {
    item("Message Type", raw("000", 8)),
    item("Data Source Identifier", group("010", item010)),
    item("SDPS Identifier", repetitive("015", item015)),
    item("Time of Message", quantity("020", 24, {1, 128}, "s")),
    item("Track Number 1", raw("030", 16)),
    item("Track Number 2", raw("035", 16)),
    item("Alert Identifier", raw("040", 16)),
    item("Area and Alert Status", group("045", item045)),
    item("Safety Net Function and System Status", extended("060", item060)),
    item("Conflict Timing and Separation", compound("070", item070)),
    item("Longitudinal Deviation", signedQuantity("074", 16, {32, 1}, "m")),
    item("Transversal Distance Deviation", signedQuantity("075", 24, {1, 2}, "m")),
    item("Vertical Deviation", signedQuantity("076", 16, {25, 1}, "ft")),
    item("Area Definition", compound("100", item100)),
    item("FDPS Sector Control Identification", repetitive("110", item110)),
    item("Conflict Characteristics", compound("120", item120)),
    item("Aircraft Identification and Characteristics 1", compound("170", item170)),
    item("Aircraft Identification and Characteristics 2", compound("171", item171)),
    item("Reserved Expansion Field", explicitLength("RE")),
    item("Special Purpose Field", explicitLength("SP")),
};

// Item names by field reference number.
constexpr const char *order[] = {"010", "000", "015", "020", "040", "045", "060", "030", "170", "120", "070", "076",
    "074", "075", "100", "035", "171", "110", Unused, "RE", "SP"};

constexpr Variation variations[] = {variation("", order)};

} // namespace

constexpr Edition cat004Edition113{
    4, "1.13", "Safety Net Messages", items, std::size(items), variations, std::size(variations)};

} // namespace korvane::asterix
