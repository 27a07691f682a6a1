#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// I010/010 Data Source Identifier
constexpr Field item010[] = {raw("SAC", 8), raw("SIC", 8)};

// I010/020 Target Report Descriptor
constexpr Field item020[] = {
    raw("TYP", 3), raw("DCR", 1), raw("CHN", 1), raw("GBS", 1), raw("CRT", 1), fx, //
    raw("SIM", 1), raw("TST", 1), raw("RAB", 1), raw("LOP", 2), raw("TOT", 2), fx, //
    raw("SPI", 1), spare(6), fx, //
};

// I010/040 Measured Position in Polar Co-ordinates
constexpr Field item040[] = {quantity("RHO", 16, {1, 1}, "m"), quantity("TH", 16, {360, 65536}, "°")};

// I010/041 Position in WGS-84 Co-ordinates
constexpr Field item041[] = {
    signedQuantity("LAT", 32, {180, 2147483648}, "°"), signedQuantity("LON", 32, {180, 2147483648}, "°")};

// I010/042 Position in Cartesian Co-ordinates
constexpr Field item042[] = {signedQuantity("X", 16, {1, 1}, "m"), signedQuantity("Y", 16, {1, 1}, "m")};

// I010/060 Mode-3/A Code in Octal Representation
constexpr Field item060[] = {raw("V", 1), raw("G", 1), raw("L", 1), spare(1), octal("MODE3A", 12)};

// I010/090 Flight Level in Binary Representation
constexpr Field item090[] = {raw("V", 1), raw("G", 1), signedQuantity("FL", 14, {1, 4}, "FL")};

// I010/161 Track Number
constexpr Field item161[] = {spare(4), raw("TRK", 12)};

// I010/170 Track Status
constexpr Field item170[] = {
    raw("CNF", 1), raw("TRE", 1), raw("CST", 2), raw("MAH", 1), raw("TCC", 1), raw("STH", 1), fx, //
    raw("TOM", 2), raw("DOU", 3), raw("MRS", 2), fx, //
    raw("GHO", 1), spare(6), fx, //
};

// I010/200 Calculated Track Velocity in Polar Co-ordinates
constexpr Field item200[] = {quantity("GSP", 16, {1, 16384}, "NM/s"), quantity("TRA", 16, {360, 65536}, "°")};

// I010/202 Calculated Track Velocity in Cartesian Co-ordinates
constexpr Field item202[] = {signedQuantity("VX", 16, {1, 16}, "m/s"), signedQuantity("VY", 16, {1, 16}, "m/s")};

// I010/210 Calculated Acceleration
constexpr Field item210[] = {signedQuantity("AX", 8, {1, 16}, "m/s²"), signedQuantity("AY", 8, {1, 16}, "m/s²")};

// I010/245 Target Identification
constexpr Field item245[] = {raw("STI", 2), spare(6), icao("CHR", 48)};

// I010/250 Mode S MB Data
constexpr Field item250[] = {raw("MBDATA", 56), raw("BDS1", 4), raw("BDS2", 4)};

// I010/270 Target Size and Orientation
constexpr Field item270[] = {
    quantity("LENGTH", 7, {1, 1}, "m"), fx, //
    quantity("ORIENTATION", 7, {360, 128}, "°"), fx, //
    quantity("WIDTH", 7, {1, 1}, "m"), fx, //
};

// I010/280 Presence
constexpr Field item280[] = {signedQuantity("DRHO", 8, {1, 1}, "m"), signedQuantity("DTHETA", 8, {3, 20}, "°")};

// I010/310 Pre-programmed Message
constexpr Field item310[] = {raw("TRB", 1), raw("MSG", 7)};

// I010/500 Standard Deviation of Position
constexpr Field item500[] = {
    quantity("DEVX", 8, {1, 4}, "m"), quantity("DEVY", 8, {1, 4}, "m"), signedQuantity("COVXY", 16, {1, 4}, "m")};

// I010/550 System Status
constexpr Field item550[] = {raw("NOGO", 2), raw("OVL", 1), raw("TSV", 1), raw("DIV", 1), raw("TTF", 1), spare(2)};

constexpr Field items[] = {
    item("Message Type", raw("000", 8)),
    item("Data Source Identifier", group("010", item010)),
    item("Target Report Descriptor", extended("020", item020)),
    item("Measured Position in Polar Co-ordinates", group("040", item040)),
    item("Position in WGS-84 Co-ordinates", group("041", item041)),
    item("Position in Cartesian Co-ordinates", group("042", item042)),
    item("Mode-3/A Code in Octal Representation", group("060", item060)),
    item("Flight Level in Binary Representation", group("090", item090)),
    item("Measured Height", signedQuantity("091", 16, {25, 4}, "ft")),
    item("Amplitude of Primary Plot", raw("131", 8)),
    item("Time of Day", quantity("140", 24, {1, 128}, "s")),
    item("Track Number", group("161", item161)),
    item("Track Status", extended("170", item170)),
    item("Calculated Track Velocity in Polar Co-ordinates", group("200", item200)),
    item("Calculated Track Velocity in Cartesian Co-ordinates", group("202", item202)),
    item("Calculated Acceleration", group("210", item210)),
    item("Target Address", raw("220", 24)),
    item("Target Identification", group("245", item245)),
    item("Mode S MB Data", repetitive("250", item250)),
    item("Target Size and Orientation", extended("270", item270)),
    item("Presence", repetitive("280", item280)),
    item("Vehicle Fleet Identification", raw("300", 8)),
    item("Pre-programmed Message", group("310", item310)),
    item("Standard Deviation of Position", group("500", item500)),
    item("System Status", group("550", item550)),
    item("Reserved Expansion Field", explicitLength("RE")),
    item("Special Purpose Field", explicitLength("SP")),
};

// Item names by field reference number.
constexpr const char *order[] = {"010", "000", "020", "140", "041", "040", "042", "200", "202", "161", "170", "060",
    "220", "245", "250", "300", "090", "091", "270", "550", "310", "500", "280", "131", "210", Unused, "SP", "RE"};

constexpr Variation variations[] = {variation("", order)};

} // namespace

constexpr Edition cat010Edition11{10, "1.1", "Transmission of Monosensor Surface Movement Data", items,
    std::size(items), variations, std::size(variations)};

} // namespace korvane::asterix
