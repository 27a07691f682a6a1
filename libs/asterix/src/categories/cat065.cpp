#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// I065/010 Data Source Identifier
constexpr Field item010[] = {raw("SAC", 8), raw("SIC", 8)};

// I065/040 SDPS Configuration and Status
constexpr Field item040[] = {raw("NOGO", 2), raw("OVL", 1), raw("TSV", 1), raw("PSS", 2), raw("STTN", 1), spare(1)};

constexpr Field items[] = {
    item("Message Type", raw("000", 8)),
    item("Data Source Identifier", group("010", item010)),
    item("Service Identification", raw("015", 8)),
    item("Batch Number", integer("020", 8)),
    item("Time of Message", quantity("030", 24, {1, 128}, "s")),
    item("SDPS Configuration and Status", group("040", item040)),
    item("Service Status Report", raw("050", 8)),
    item("Reserved Expansion Field", explicitLength("RE")),
    item("Special Purpose Field", explicitLength("SP")),
};

// Item names by field reference number.
constexpr const char *order[] = {
    "010", "000", "015", "030", "020", "040", "050", Unused, Unused, Unused, Unused, Unused, "RE", "SP"};

constexpr Variation variations[] = {variation("", order)};

} // namespace

constexpr Edition cat065Edition16{
    65, "1.6", "SDPS Service Status Reports", items, std::size(items), variations, std::size(variations)};

} // namespace korvane::asterix
