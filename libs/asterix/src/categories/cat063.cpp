#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// I063/010 Data Source Identifier
constexpr Field item010[] = {raw("SAC", 8), raw("SIC", 8)};

// I063/050 Sensor Identifier
constexpr Field item050[] = {raw("SAC", 8), raw("SIC", 8)};

// I063/060 Sensor Configuration and Status
constexpr Field item060Ttf[] = {raw("EP", 1), raw("VAL", 1)};
constexpr Field item060Spo[] = {raw("EP", 1), raw("VAL", 1)};
constexpr Field item060[] = {
    raw("CON", 2), raw("PSR", 1), raw("SSR", 1), raw("MDS", 1), raw("ADS", 1), raw("MLT", 1), fx, //
    raw("OPS", 1), raw("ODP", 1), raw("OXT", 1), raw("MSC", 1), raw("TSV", 1), raw("NPW", 1), spare(1), fx, //
    group("TTF", item060Ttf), group("SPO", item060Spo), spare(3), fx, //
};

// I063/080 SSR / Mode S Range Gain and Bias
constexpr Field item080[] = {signedQuantity("SRG", 16, {1, 100000}, ""), signedQuantity("SRB", 16, {1, 128}, "NM")};

// I063/090 PSR Range Gain and Bias
constexpr Field item090[] = {signedQuantity("PRG", 16, {1, 100000}, ""), signedQuantity("PRB", 16, {1, 128}, "NM")};

constexpr Field items[] = {
    item("Data Source Identifier", group("010", item010)),
    item("Service Identification", raw("015", 8)),
    item("Time of Message", quantity("030", 24, {1, 128}, "s")),
    item("Sensor Identifier", group("050", item050)),
    item("Sensor Configuration and Status", extended("060", item060)),
    item("Time Stamping Bias", signedQuantity("070", 16, {1, 1}, "ms")),
    item("SSR / Mode S Range Gain and Bias", group("080", item080)),
    item("SSR Mode S Azimuth Bias", signedQuantity("081", 16, {360, 65536}, "°")),
    item("PSR Range Gain and Bias", group("090", item090)),
    item("PSR Azimuth Bias", signedQuantity("091", 16, {360, 65536}, "°")),
    item("PSR Elevation Bias", signedQuantity("092", 16, {360, 65536}, "°")),
    item("Reserved Expansion Field", explicitLength("RE")),
    item("Special Purpose Field", explicitLength("SP")),
};

// Item names by field reference number.
constexpr const char *order[] = {
    "010", "015", "030", "050", "060", "070", "080", "081", "090", "091", "092", Unused, "RE", "SP"};

constexpr Variation variations[] = {variation("", order)};

} // namespace

constexpr Edition cat063Edition17{
    63, "1.7", "Sensor Status Reports", items, std::size(items), variations, std::size(variations)};

} // namespace korvane::asterix
