#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// I021/010 Data Source Identification
constexpr Field item010[] = {raw("SAC", 8), raw("SIC", 8)};

// I021/040 Target Report Descriptor
constexpr Field item040[] = {raw("DCR", 1), raw("GBS", 1), raw("SIM", 1), raw("TST", 1), raw("RAB", 1), raw("SAA", 1),
    raw("SPI", 1), spare(1), raw("ATP", 3), raw("ARC", 2), spare(3)};

// I021/090 Figure of Merit
constexpr Field item090[] = {raw("AC", 2), raw("MN", 2), raw("DC", 2), spare(6), signedQuantity("PA", 4, {1, 1}, "")};

// I021/110 Trajectory Intent
constexpr Field item110Tis[] = {
    raw("NAV", 1), raw("NVB", 1), spare(5), fx, //
};
constexpr Field item110Tid[] = {raw("TCA", 1), raw("NC", 1), raw("TCPN", 6), signedQuantity("ALT", 16, {10, 1}, "ft"),
    signedQuantity("LAT", 24, {180, 8388608}, "°"), signedQuantity("LON", 24, {180, 8388608}, "°"), raw("PT", 4),
    raw("TD", 2), raw("TRA", 1), raw("TOA", 1), quantity("TOV", 24, {1, 1}, "s"), quantity("TTR", 16, {1, 100}, "NM")};
constexpr Field item110[] = {
    extended("TIS", item110Tis),
    repetitive("TID", item110Tid),
};

// I021/130 Position in WGS-84 Co-ordinates
constexpr Field item130[] = {
    signedQuantity("LAT", 24, {180, 8388608}, "°"), signedQuantity("LON", 24, {180, 8388608}, "°")};

// I021/146 Intermediate State Selected Altitude
constexpr Field item146[] = {raw("SAS", 1), raw("SRC", 2), signedQuantity("ALT", 13, {25, 1}, "ft")};

// I021/148 Final State Selected Altitude
constexpr Field item148[] = {raw("MV", 1), raw("AH", 1), raw("AM", 1), signedQuantity("ALT", 13, {25, 1}, "ft")};

// I021/150 Air Speed
constexpr Field item150AsCases[] = {
    when(0, quantity("AS", 15, {1, 16384}, "NM/s")), when(1, quantity("AS", 15, {1, 1000}, "Mach"))};
constexpr Field item150[] = {raw("IM", 1), caseOf("AS", "150/IM", item150AsCases)};

// I021/160 Ground Vector
constexpr Field item160[] = {signedQuantity("GS", 16, {1, 16384}, "NM/s"), quantity("TA", 16, {360, 65536}, "°")};

// I021/165 Rate Of Turn
constexpr Field item165[] = {
    raw("TI", 2), spare(5), fx, //
    signedQuantity("ROT", 7, {1, 4}, "°/s"), fx, //
};

// I021/210 Link Technology Indicator
constexpr Field item210[] = {spare(3), raw("DTI", 1), raw("MDS", 1), raw("UAT", 1), raw("VDL", 1), raw("OTR", 1)};

// I021/220 Met Information
constexpr Field item220[] = {
    quantity("WS", 16, {1, 1}, "kt"),
    quantity("WD", 16, {1, 1}, "°"),
    signedQuantity("TMP", 16, {1, 4}, "°C"),
    integer("TRB", 8),
};

constexpr Field items[] = {
    item("Data Source Identification", group("010", item010)),
    item("Emitter Category", raw("020", 8)),
    item("Time of Day", quantity("030", 24, {1, 128}, "s")),
    item("Time of Day Accuracy", quantity("032", 8, {1, 256}, "s")),
    item("Target Report Descriptor", group("040", item040)),
    item("Target Address", raw("080", 24)),
    item("Figure of Merit", group("090", item090)),
    item("Velocity Accuracy", raw("095", 8)),
    item("Trajectory Intent", compound("110", item110)),
    item("Position in WGS-84 Co-ordinates", group("130", item130)),
    item("Geometric Altitude", signedQuantity("140", 16, {25, 4}, "ft")),
    item("Flight Level", signedQuantity("145", 16, {1, 4}, "FL")),
    item("Intermediate State Selected Altitude", group("146", item146)),
    item("Final State Selected Altitude", group("148", item148)),
    item("Air Speed", group("150", item150)),
    item("True Airspeed", quantity("151", 16, {1, 1}, "kt")),
    item("Magnetic Heading", quantity("152", 16, {360, 65536}, "°")),
    item("Barometric Vertical Rate", signedQuantity("155", 16, {25, 4}, "ft/min")),
    item("Geometric Vertical Rate", signedQuantity("157", 16, {25, 4}, "ft/min")),
    item("Ground Vector", group("160", item160)),
    item("Rate Of Turn", extended("165", item165)),
    item("Target Identification", icao("170", 48)),
    item("Target Status", raw("200", 8)),
    item("Link Technology Indicator", group("210", item210)),
    item("Met Information", compound("220", item220)),
    item("Roll Angle", signedQuantity("230", 16, {1, 100}, "°")),
    item("Reserved Expansion Field", explicitLength("RE")),
    item("Special Purpose Field", explicitLength("SP")),
};

// Item names by field reference number.
constexpr const char *order[] = {"010", "040", "030", "130", "080", "140", "090", "210", "230", "145", "150", "151",
    "152", "155", "157", "160", "165", "170", "095", "032", "200", "020", "220", "146", "148", "110", Unused, Unused,
    Unused, Unused, Unused, Unused, Unused, "RE", "SP"};

constexpr Variation variations[] = {variation("", order)};

} // namespace

constexpr Edition cat021Edition023{
    21, "0.23", "ADS-B Target Reports", items, std::size(items), variations, std::size(variations)};

} // namespace korvane::asterix
