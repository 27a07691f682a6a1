#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// I020/010 Data Source Identifier
constexpr Field item010[] = {raw("SAC", 8), raw("SIC", 8)};

// I020/020 Target Report Descriptor
constexpr Field item020[] = {
    raw("SSR", 1), raw("MS", 1), raw("HF", 1), raw("VDL4", 1), raw("UAT", 1), raw("DME", 1), raw("OT", 1), fx, //
    raw("RAB", 1), raw("SPI", 1), raw("CHN", 1), raw("GBS", 1), raw("CRT", 1), raw("SIM", 1), raw("TST", 1), fx, //
    raw("CF", 2), spare(5), fx, //
};

// I020/030 Warning/Error Conditions
constexpr Field item030[] = {raw(nullptr, 7)};

// I020/041 Position In WGS-84 Coordinates
constexpr Field item041[] = {
    signedQuantity("LAT", 32, {180, 33554432}, "°"), signedQuantity("LON", 32, {180, 33554432}, "°")};

// I020/042 Position in Cartesian Coordinates
constexpr Field item042[] = {signedQuantity("X", 24, {1, 2}, "m"), signedQuantity("Y", 24, {1, 2}, "m")};

// I020/050 Mode-2 Code in Octal Representation
constexpr Field item050[] = {raw("V", 1), raw("G", 1), raw("L", 1), spare(1), octal("MODE2", 12)};

// I020/055 Mode-1 Code in Octal Representation
constexpr Field item055[] = {raw("V", 1), raw("G", 1), raw("L", 1), raw("MODE1", 5)};

// I020/070 Mode-3/A Code in Octal Representation
constexpr Field item070[] = {raw("V", 1), raw("G", 1), raw("L", 1), spare(1), octal("MODE3A", 12)};

// I020/090 Flight Level in Binary Representation
constexpr Field item090[] = {raw("V", 1), raw("G", 1), signedQuantity("FL", 14, {1, 4}, "FL")};

// I020/100 Mode C Code
constexpr Field item100[] = {raw("V", 1), raw("G", 1), spare(2), raw("MODEC", 12), spare(4), raw("QC1", 1),
    raw("QA1", 1), raw("QC2", 1), raw("QA2", 1), raw("QC4", 1), raw("QA4", 1), raw("QB1", 1), raw("QD1", 1),
    raw("QB2", 1), raw("QD2", 1), raw("QB4", 1), raw("QD4", 1)};

// I020/161 Track Number
constexpr Field item161[] = {spare(4), raw("TRN", 12)};

// I020/170 Track Status
constexpr Field item170[] = {
    raw("CNF", 1), raw("TRE", 1), raw("CST", 1), raw("CDM", 2), raw("MAH", 1), raw("STH", 1), fx, //
    raw("GHO", 1), spare(6), fx, //
};

// I020/202 Calculated Track Velocity in Cartesian Coordinates
constexpr Field item202[] = {signedQuantity("VX", 16, {1, 4}, "m/s"), signedQuantity("VY", 16, {1, 4}, "m/s")};

// I020/210 Calculated Acceleration
constexpr Field item210[] = {signedQuantity("AX", 8, {1, 4}, "m/s²"), signedQuantity("AY", 8, {1, 4}, "m/s²")};

// I020/230 Communications/ACAS Capability and Flight Status
constexpr Field item230[] = {raw("COM", 3), raw("STAT", 3), raw("CASEVN", 2), raw("MSSC", 1), raw("ARC", 1),
    raw("AIC", 1), raw("B1A", 1), raw("B1B", 4)};

// I020/245 Target Identification
constexpr Field item245[] = {raw("STI", 2), spare(6), icao("CHR", 48)};

// I020/250 BDS Register Data
constexpr Field item250[] = {raw("BDSDATA", 56), raw("BDS1", 4), raw("BDS2", 4)};

// I020/310 Pre-programmed Message
constexpr Field item310[] = {raw("TRB", 1), raw("MSG", 7)};

// I020/400 Contributing Devices
constexpr Field item400[] = {raw("BIT1", 1), raw("BIT2", 1), raw("BIT3", 1), raw("BIT4", 1), raw("BIT5", 1),
    raw("BIT6", 1), raw("BIT7", 1), raw("BIT8", 1)};

// I020/500 Position Accuracy
constexpr Field item500Dop[] = {
    quantity("X", 16, {1, 4}, ""), quantity("Y", 16, {1, 4}, ""), quantity("XY", 16, {1, 4}, "")};
constexpr Field item500Sdp[] = {
    quantity("X", 16, {1, 4}, "m"), quantity("Y", 16, {1, 4}, "m"), quantity("XY", 16, {1, 4}, "")};
constexpr Field item500[] = {
    group("DOP", item500Dop),
    group("SDP", item500Sdp),
    quantity("SDH", 16, {1, 2}, "m"),
};

constexpr Field items[] = {
    item("Data Source Identifier", group("010", item010)),
    item("Target Report Descriptor", extended("020", item020)),
    item("Warning/Error Conditions", repetitiveFx("030", item030)),
    item("Position In WGS-84 Coordinates", group("041", item041)),
    item("Position in Cartesian Coordinates", group("042", item042)),
    item("Mode-2 Code in Octal Representation", group("050", item050)),
    item("Mode-1 Code in Octal Representation", group("055", item055)),
    item("Mode-3/A Code in Octal Representation", group("070", item070)),
    item("Flight Level in Binary Representation", group("090", item090)),
    item("Mode C Code", group("100", item100)),
    item("Geometric Height (WGS-84)", signedQuantity("105", 16, {25, 4}, "ft")),
    item("Measured Height (Local Cartesian Coordinates)", signedQuantity("110", 16, {25, 4}, "ft")),
    item("Time of Day", quantity("140", 24, {1, 128}, "s")),
    item("Track Number", group("161", item161)),
    item("Track Status", extended("170", item170)),
    item("Calculated Track Velocity in Cartesian Coordinates", group("202", item202)),
    item("Calculated Acceleration", group("210", item210)),
    item("Target Address", raw("220", 24)),
    item("Communications/ACAS Capability and Flight Status", group("230", item230)),
    item("Target Identification", group("245", item245)),
    item("BDS Register Data", repetitive("250", item250)),
    item("ACAS Resolution Advisory Report", raw("260", 56)),
    item("Vehicle Fleet Identification", raw("300", 8)),
    item("Pre-programmed Message", group("310", item310)),
    item("Contributing Devices", repetitive("400", item400)),
    item("Position Accuracy", compound("500", item500)),
    item("Reserved Expansion Field", explicitLength("RE")),
    item("Special Purpose Field", explicitLength("SP")),
};

// Item names by field reference number.
constexpr const char *order[] = {"010", "020", "140", "041", "042", "161", "170", "070", "202", "090", "100", "220",
    "245", "110", "105", "210", "300", "310", "500", "400", "250", "230", "260", "030", "055", "050", "RE", "SP"};

constexpr Variation variations[] = {variation("", order)};

} // namespace

constexpr Edition cat020Edition111{
    20, "1.11", "Multilateration Target Reports", items, std::size(items), variations, std::size(variations)};

} // namespace korvane::asterix
