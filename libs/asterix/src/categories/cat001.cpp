#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// I001/010 Data Source Identifier
constexpr Field item010[] = {raw("SAC", 8), raw("SIC", 8)};

// I001/020 Target Report Descriptor
constexpr Field item020[] = {
    raw("TYP", 1), raw("SIM", 1), raw("SSRPSR", 2), raw("ANT", 1), raw("SPI", 1), raw("RAB", 1), fx, //
    raw("TST", 1), raw("DS1DS2", 2), raw("ME", 1), raw("MI", 1), spare(2), fx, //
};

// I001/030 Warning/Error Conditions
constexpr Field item030[] = {raw(nullptr, 7)};

// I001/040 Measured Position in Polar Co-ordinates
constexpr Field item040[] = {quantity("RHO", 16, {1, 128}, "NM"), quantity("THETA", 16, {360, 65536}, "°")};

// I001/042 Calculated Position in Cartesian Co-ordinates
constexpr Field item042[] = {signedQuantity("X", 16, {1, 64}, "NM"), signedQuantity("Y", 16, {1, 64}, "NM")};

// I001/050 Mode-2 Code in Octal Representation
constexpr Field item050[] = {raw("V", 1), raw("G", 1), raw("L", 1), spare(1), octal("MODE2", 12)};

// I001/060 Mode-2 Code Confidence Indicator
constexpr Field item060[] = {spare(4), raw("QA4", 1), raw("QA2", 1), raw("QA1", 1), raw("QB4", 1), raw("QB2", 1),
    raw("QB1", 1), raw("QC4", 1), raw("QC2", 1), raw("QC1", 1), raw("QD4", 1), raw("QD2", 1), raw("QD1", 1)};

// I001/070 Mode-3/A Code in Octal Representation
constexpr Field item070[] = {raw("V", 1), raw("G", 1), raw("L", 1), spare(1), octal("MODE3A", 12)};

// I001/080 Mode-3/A Code Confidence Indicator
constexpr Field item080[] = {spare(4), raw("QA4", 1), raw("QA2", 1), raw("QA1", 1), raw("QB4", 1), raw("QB2", 1),
    raw("QB1", 1), raw("QC4", 1), raw("QC2", 1), raw("QC1", 1), raw("QD4", 1), raw("QD2", 1), raw("QD1", 1)};

// I001/090 Mode-C Code in Binary Representation
constexpr Field item090[] = {raw("V", 1), raw("G", 1), signedQuantity("HGT", 14, {1, 4}, "FL")};

// I001/100 Mode-C Code and Code Confidence Indicator
constexpr Field item100[] = {raw("V", 1), raw("G", 1), spare(2), raw("MODEC", 12), spare(4), raw("QC1", 1),
    raw("QA1", 1), raw("QC2", 1), raw("QA2", 1), raw("QC4", 1), raw("QA4", 1), raw("QB1", 1), raw("QD1", 1),
    raw("QB2", 1), raw("QD2", 1), raw("QB4", 1), raw("QD4", 1)};

// I001/130 Radar Plot Characteristics
constexpr Field item130[] = {raw(nullptr, 7)};

// I001/150 Presence of X-Pulse
constexpr Field item150[] = {raw("XA", 1), spare(1), raw("XC", 1), spare(2), raw("X2", 1), spare(2)};

// I001/170 Track Status
constexpr Field item170[] = {
    raw("CON", 1), raw("RAD", 1), raw("MAN", 1), raw("DOU", 1), raw("RDPC", 1), spare(1), raw("GHO", 1), fx, //
    raw("TRE", 1), spare(6), fx, //
};

// I001/200 Calculated Track Velocity in Polar Co-ordinates
constexpr Field item200[] = {quantity("GSP", 16, {1, 16384}, "NM/s"), quantity("HDG", 16, {360, 65536}, "°")};

// I001/210 Track Quality
constexpr Field item210[] = {raw(nullptr, 7)};

constexpr Field items[] = {
    item("Data Source Identifier", group("010", item010)),
    item("Target Report Descriptor", extended("020", item020)),
    item("Warning/Error Conditions", repetitiveFx("030", item030)),
    item("Measured Position in Polar Co-ordinates", group("040", item040)),
    item("Calculated Position in Cartesian Co-ordinates", group("042", item042)),
    item("Mode-2 Code in Octal Representation", group("050", item050)),
    item("Mode-2 Code Confidence Indicator", group("060", item060)),
    item("Mode-3/A Code in Octal Representation", group("070", item070)),
    item("Mode-3/A Code Confidence Indicator", group("080", item080)),
    item("Mode-C Code in Binary Representation", group("090", item090)),
    item("Mode-C Code and Code Confidence Indicator", group("100", item100)),
    item("Measured Radial Doppler Speed", signedQuantity("120", 8, {1, 256}, "NM/s")),
    item("Radar Plot Characteristics", repetitiveFx("130", item130)),
    item("Received Power", signedQuantity("131", 8, {1, 1}, "dBm")),
    item("Truncated Time of Day", quantity("141", 16, {1, 128}, "s")),
    item("Presence of X-Pulse", group("150", item150)),
    item("Track Plot Number", raw("161", 16)),
    item("Track Status", extended("170", item170)),
    item("Calculated Track Velocity in Polar Co-ordinates", group("200", item200)),
    item("Track Quality", repetitiveFx("210", item210)),
    item("Special Purpose Field", explicitLength("SP")),
};

// Item names by field reference number.
constexpr const char *plotOrder[] = {"010", "020", "040", "070", "090", "130", "141", "050", "120", "131", "080", "100",
    "060", "030", "150", Unused, Unused, Unused, Unused, "SP", RandomFields};

// Item names by field reference number.
constexpr const char *trackOrder[] = {"010", "020", "161", "040", "042", "200", "070", "090", "141", "130", "131",
    "120", "170", "210", "050", "080", "100", "060", "030", "SP", RandomFields, "150"};

constexpr Variation variations[] = {variation("plot", plotOrder), variation("track", trackOrder)};

} // namespace

constexpr Edition cat001Edition14{1, "1.4", "Transmission of Monoradar Data Target Reports", items, std::size(items),
    variations, std::size(variations), "020", "TYP"};

} // namespace korvane::asterix
