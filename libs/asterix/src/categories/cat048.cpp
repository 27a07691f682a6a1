#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// I048/010 Data Source Identifier
constexpr Field item010[] = {raw("SAC", 8), raw("SIC", 8)};

// I048/020 Target Report Descriptor: fields with a bit of their own that says whether they are populated
constexpr Field populatedBit[] = {raw("EP", 1), raw("VAL", 1)};
constexpr Field item020Acasxv[] = {raw("EP", 1), raw("VAL", 4)};
constexpr Field item020[] = {
    raw("TYP", 3), raw("SIM", 1), raw("RDP", 1), raw("SPI", 1), raw("RAB", 1), fx, //
    raw("TST", 1), raw("ERR", 1), raw("XPP", 1), raw("ME", 1), raw("MI", 1), raw("FOEFRI", 2), fx, //
    group("ADSB", populatedBit), group("SCN", populatedBit), group("PAI", populatedBit), spare(1), fx, //
    group("ACASXV", item020Acasxv), group("POXPR", populatedBit), fx, //
    group("POACT", populatedBit), group("DTFXPR", populatedBit), group("DTFACT", populatedBit), spare(1), fx, //
    group("IRMXPR", populatedBit), group("IRMACT", populatedBit), spare(3), fx, //
};

// I048/030 Warning/Error Conditions and Target Classification
constexpr Field item030[] = {raw(nullptr, 7)};

// I048/040 Measured Position in Polar Co-ordinates
constexpr Field item040[] = {quantity("RHO", 16, {1, 256}, "NM"), quantity("THETA", 16, {360, 65536}, "°")};

// I048/042 Calculated Position in Cartesian Co-ordinates
constexpr Field item042[] = {signedQuantity("X", 16, {1, 128}, "NM"), signedQuantity("Y", 16, {1, 128}, "NM")};

// I048/050 Mode-2 Code in Octal Representation
constexpr Field item050[] = {raw("V", 1), raw("G", 1), raw("L", 1), spare(1), octal("MODE2", 12)};

// I048/055 Mode-1 Code in Octal Representation
constexpr Field item055[] = {raw("V", 1), raw("G", 1), raw("L", 1), raw("MODE1", 5)};

// I048/060 Mode-2 Code Confidence Indicator
constexpr Field item060[] = {spare(4), raw("QA4", 1), raw("QA2", 1), raw("QA1", 1), raw("QB4", 1), raw("QB2", 1),
    raw("QB1", 1), raw("QC4", 1), raw("QC2", 1), raw("QC1", 1), raw("QD4", 1), raw("QD2", 1), raw("QD1", 1)};

// I048/065 Mode-1 Code Confidence Indicator
constexpr Field item065[] = {spare(3), raw("QA4", 1), raw("QA2", 1), raw("QA1", 1), raw("QB2", 1), raw("QB1", 1)};

// I048/070 Mode-3/A Code in Octal Representation
constexpr Field item070[] = {raw("V", 1), raw("G", 1), raw("L", 1), spare(1), octal("MODE3A", 12)};

// I048/080 Mode-3/A Code Confidence Indicator
constexpr Field item080[] = {spare(4), raw("QA4", 1), raw("QA2", 1), raw("QA1", 1), raw("QB4", 1), raw("QB2", 1),
    raw("QB1", 1), raw("QC4", 1), raw("QC2", 1), raw("QC1", 1), raw("QD4", 1), raw("QD2", 1), raw("QD1", 1)};

// I048/090 Flight Level in Binary Representation
constexpr Field item090[] = {raw("V", 1), raw("G", 1), signedQuantity("FL", 14, {1, 4}, "FL")};

// I048/100 Mode-C Code and Code Confidence Indicator
constexpr Field item100[] = {raw("V", 1), raw("G", 1), spare(2), raw("MODEC", 12), spare(4), raw("QC1", 1),
    raw("QA1", 1), raw("QC2", 1), raw("QA2", 1), raw("QC4", 1), raw("QA4", 1), raw("QB1", 1), raw("QD1", 1),
    raw("QB2", 1), raw("QD2", 1), raw("QB4", 1), raw("QD4", 1)};

// I048/110 Height Measured by a 3D Radar
constexpr Field item110[] = {spare(2), signedQuantity("3DH", 14, {25, 1}, "ft")};

// I048/120 Radial Doppler Speed
constexpr Field item120Cal[] = {raw("D", 1), spare(5), signedQuantity("CAL", 10, {1, 1}, "m/s")};
constexpr Field item120Rds[] = {
    quantity("DOP", 16, {1, 1}, "m/s"), quantity("AMB", 16, {1, 1}, "m/s"), quantity("FRQ", 16, {1, 1}, "MHz")};
constexpr Field item120[] = {
    group("CAL", item120Cal),
    repetitive("RDS", item120Rds),
};

// I048/130 Radar Plot Characteristics
constexpr Field item130[] = {
    quantity("SRL", 8, {360, 8192}, "°"),
    integer("SRR", 8),
    signedQuantity("SAM", 8, {1, 1}, "dBm"),
    quantity("PRL", 8, {360, 8192}, "°"),
    signedQuantity("PAM", 8, {1, 1}, "dBm"),
    signedQuantity("RPD", 8, {1, 256}, "NM"),
    signedQuantity("APD", 8, {360, 16384}, "°"),
};

// I048/161 Track Number
constexpr Field item161[] = {spare(4), raw("TRN", 12)};

// I048/170 Track Status
constexpr Field item170[] = {
    raw("CNF", 1), raw("RAD", 2), raw("DOU", 1), raw("MAH", 1), raw("CDM", 2), fx, //
    raw("TRE", 1), raw("GHO", 1), raw("SUP", 1), raw("TCC", 1), spare(3), fx, //
};

// I048/200 Calculated Track Velocity in Polar Co-ordinates
constexpr Field item200[] = {quantity("GSP", 16, {1, 16384}, "NM/s"), quantity("HDG", 16, {360, 65536}, "°")};

// I048/210 Track Quality
constexpr Field item210[] = {quantity("SIGX", 8, {1, 128}, "NM"), quantity("SIGY", 8, {1, 128}, "NM"),
    quantity("SIGV", 8, {1, 16384}, "NM/s"), quantity("SIGH", 8, {360, 4096}, "°")};

// I048/230 Communications/ACAS Capability and Flight Status
constexpr Field item230[] = {raw("COM", 3), raw("STAT", 3), raw("SI", 1), spare(1), raw("MSSC", 1), raw("ARC", 1),
    raw("AIC", 1), raw("B1A", 1), raw("B1B", 4)};

// I048/250 BDS Register Data
constexpr Field item250[] = {raw("MBDATA", 56), raw("BDS1", 4), raw("BDS2", 4)};

constexpr Field items[] = {
    item("Data Source Identifier", group("010", item010)),
    item("Target Report Descriptor", extended("020", item020)),
    item("Warning/Error Conditions and Target Classification", repetitiveFx("030", item030)),
    item("Measured Position in Polar Co-ordinates", group("040", item040)),
    item("Calculated Position in Cartesian Co-ordinates", group("042", item042)),
    item("Mode-2 Code in Octal Representation", group("050", item050)),
    item("Mode-1 Code in Octal Representation", group("055", item055)),
    item("Mode-2 Code Confidence Indicator", group("060", item060)),
    item("Mode-1 Code Confidence Indicator", group("065", item065)),
    item("Mode-3/A Code in Octal Representation", group("070", item070)),
    item("Mode-3/A Code Confidence Indicator", group("080", item080)),
    item("Flight Level in Binary Representation", group("090", item090)),
    item("Mode-C Code and Code Confidence Indicator", group("100", item100)),
    item("Height Measured by a 3D Radar", group("110", item110)),
    item("Radial Doppler Speed", compound("120", item120)),
    item("Radar Plot Characteristics", compound("130", item130)),
    item("Time of Day", quantity("140", 24, {1, 128}, "s")),
    item("Track Number", group("161", item161)),
    item("Track Status", extended("170", item170)),
    item("Calculated Track Velocity in Polar Co-ordinates", group("200", item200)),
    item("Track Quality", group("210", item210)),
    item("Aircraft Address", raw("220", 24)),
    item("Communications/ACAS Capability and Flight Status", group("230", item230)),
    item("Aircraft Identification", icao("240", 48)),
    item("BDS Register Data", repetitive("250", item250)),
    item("ACAS Resolution Advisory Report", raw("260", 56)),
    item("Reserved Expansion Field", expansion("RE", cat048Expansion)),
    item("Special Purpose Field", explicitLength("SP")),
};

// Item names by field reference number.
constexpr const char *order[] = {"010", "140", "020", "040", "070", "090", "130", "220", "240", "250", "161", "042",
    "200", "170", "210", "030", "080", "100", "110", "120", "230", "260", "055", "050", "065", "060", "SP", "RE"};

constexpr Variation variations[] = {variation("", order)};

} // namespace

constexpr Edition cat048Edition132{
    48, "1.32", "Monoradar Target Reports", items, std::size(items), variations, std::size(variations)};

} // namespace korvane::asterix
