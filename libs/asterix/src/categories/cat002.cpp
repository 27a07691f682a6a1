#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// I002/010 Data Source Identifier
constexpr Field item010[] = {raw("SAC", 8), raw("SIC", 8)};

// I002/050 Station Configuration Status
constexpr Field item050[] = {raw(nullptr, 7)};

// I002/060 Station Processing Mode
constexpr Field item060[] = {raw(nullptr, 7)};

// I002/070 Plot Count Values
constexpr Field item070[] = {raw("A", 1), raw("IDENT", 5), integer("COUNTER", 10)};

// I002/080 Warning/Error Conditions
constexpr Field item080[] = {raw(nullptr, 7)};

// I002/090 Collimation Error
constexpr Field item090[] = {signedQuantity("RE", 8, {1, 128}, "NM"), signedQuantity("AE", 8, {360, 16384}, "°")};

// I002/100 Dynamic Window Type 1
constexpr Field item100[] = {quantity("RS", 16, {1, 128}, "NM"), quantity("RE", 16, {1, 128}, "NM"),
    quantity("TS", 16, {360, 65536}, "°"), quantity("TE", 16, {360, 65536}, "°")};

constexpr Field items[] = {
    item("Message Type", raw("000", 8)),
    item("Data Source Identifier", group("010", item010)),
    item("Sector Number", quantity("020", 8, {360, 256}, "°")),
    item("Time of Day", quantity("030", 24, {1, 128}, "s")),
    item("Antenna Rotation Speed", quantity("041", 16, {1, 128}, "s")),
    item("Station Configuration Status", repetitiveFx("050", item050)),
    item("Station Processing Mode", repetitiveFx("060", item060)),
    item("Plot Count Values", repetitive("070", item070)),
    item("Warning/Error Conditions", repetitiveFx("080", item080)),
    item("Collimation Error", group("090", item090)),
    item("Dynamic Window Type 1", group("100", item100)),
    item("Special Purpose Field", explicitLength("SP")),
};

// Item names by field reference number.
constexpr const char *order[] = {
    "010", "000", "020", "030", "041", "050", "060", "070", "100", "090", "080", Unused, "SP", RandomFields};

constexpr Variation variations[] = {variation("", order)};

} // namespace

constexpr Edition cat002Edition12{
    2, "1.2", "Transmission of Monoradar Service Messages", items, std::size(items), variations, std::size(variations)};

} // namespace korvane::asterix
