#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// I023/010 Data Source Identifier
constexpr Field item010[] = {raw("SAC", 8), raw("SIC", 8)};

// I023/015 Service Type and Identification
constexpr Field item015[] = {raw("SID", 4), raw("STYP", 4)};

// I023/100 Ground Station Status
constexpr Field item100[] = {
    raw("NOGO", 1), raw("ODP", 1), raw("OXT", 1), raw("MSC", 1), raw("TSV", 1), raw("SPO", 1), raw("RN", 1), fx, //
    quantity("GSSP", 7, {1, 1}, "s"), fx, //
};

// I023/101 Service Configuration
constexpr Field item101[] = {
    quantity("RP", 8, {1, 2}, "s"), raw("SC", 3), spare(4), fx, //
    quantity("SSRP", 7, {1, 1}, "s"), fx, //
};

// I023/110 Service Status
constexpr Field item110[] = {
    spare(4), raw("STAT", 3), fx, //
};

// I023/120 Service Statistics
constexpr Field item120[] = {raw("TYPE", 8), raw("REF", 1), spare(7), raw("CV", 32)};

constexpr Field items[] = {
    item("Report Type", raw("000", 8)),
    item("Data Source Identifier", group("010", item010)),
    item("Service Type and Identification", group("015", item015)),
    item("Time of Day", quantity("070", 24, {1, 128}, "s")),
    item("Ground Station Status", extended("100", item100)),
    item("Service Configuration", extended("101", item101)),
    item("Service Status", extended("110", item110)),
    item("Service Statistics", repetitive("120", item120)),
    item("Operational Range", quantity("200", 8, {1, 1}, "NM")),
    item("Reserved Expansion Field", explicitLength("RE")),
    item("Special Purpose Field", explicitLength("SP")),
};

// Item names by field reference number.
constexpr const char *order[] = {
    "010", "000", "015", "070", "100", "101", "200", "110", "120", Unused, Unused, Unused, "RE", "SP"};

constexpr Variation variations[] = {variation("", order)};

} // namespace

constexpr Edition cat023Edition13{23, "1.3", "CNS/ATM Ground Station and Service Status Reports", items,
    std::size(items), variations, std::size(variations)};

} // namespace korvane::asterix
