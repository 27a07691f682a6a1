#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// I034/010 Data Source Identifier
constexpr Field item010[] = {raw("SAC", 8), raw("SIC", 8)};

// I034/050 System Configuration and Status
constexpr Field item050Com[] = {raw("NOGO", 1), raw("RDPC", 1), raw("RDPR", 1), raw("OVLRDP", 1), raw("OVLXMT", 1),
    raw("MSC", 1), raw("TSV", 1), spare(1)};
constexpr Field item050Psr[] = {raw("ANT", 1), raw("CHAB", 2), raw("OVL", 1), raw("MSC", 1), spare(3)};
constexpr Field item050Ssr[] = {raw("ANT", 1), raw("CHAB", 2), raw("OVL", 1), raw("MSC", 1), spare(3)};
constexpr Field item050Mds[] = {raw("ANT", 1), raw("CHAB", 2), raw("OVLSUR", 1), raw("MSC", 1), raw("SCF", 1),
    raw("DLF", 1), raw("OVLSCF", 1), raw("OVLDLF", 1), spare(7)};
constexpr Field item050[] = {
    group("COM", item050Com),
    vacant,
    vacant,
    group("PSR", item050Psr),
    group("SSR", item050Ssr),
    group("MDS", item050Mds),
};

// I034/060 System Processing Mode
constexpr Field item060Com[] = {spare(1), raw("REDRDP", 3), raw("REDXMT", 3), spare(1)};
constexpr Field item060Psr[] = {raw("POL", 1), raw("REDRAD", 3), raw("STC", 2), spare(2)};
constexpr Field item060Ssr[] = {raw("REDRAD", 3), spare(5)};
constexpr Field item060Mds[] = {raw("REDRAD", 3), raw("CLU", 1), spare(4)};
constexpr Field item060[] = {
    group("COM", item060Com),
    vacant,
    vacant,
    group("PSR", item060Psr),
    group("SSR", item060Ssr),
    group("MDS", item060Mds),
};

// I034/070 Message Count Values
constexpr Field item070[] = {raw("TYP", 5), integer("COUNT", 11)};

// I034/090 Collimation Error
constexpr Field item090[] = {signedQuantity("RNG", 8, {1, 128}, "NM"), signedQuantity("AZM", 8, {360, 16384}, "°")};

// I034/100 Generic Polar Window
constexpr Field item100[] = {quantity("RHOST", 16, {1, 256}, "NM"), quantity("RHOEND", 16, {1, 256}, "NM"),
    quantity("THETAST", 16, {360, 65536}, "°"), quantity("THETAEND", 16, {360, 65536}, "°")};

// I034/120 3D-Position Of Data Source
constexpr Field item120[] = {signedQuantity("HGT", 16, {1, 1}, "m"), signedQuantity("LAT", 24, {180, 8388608}, "°"),
    signedQuantity("LON", 24, {180, 8388608}, "°")};

constexpr Field items[] = {
    item("Message Type", raw("000", 8)),
    item("Data Source Identifier", group("010", item010)),
    item("Sector Number", quantity("020", 8, {360, 256}, "°")),
    item("Time of Day", quantity("030", 24, {1, 128}, "s")),
    item("Antenna Rotation Speed", quantity("041", 16, {1, 128}, "s")),
    item("System Configuration and Status", compound("050", item050)),
    item("System Processing Mode", compound("060", item060)),
    item("Message Count Values", repetitive("070", item070)),
    item("Collimation Error", group("090", item090)),
    item("Generic Polar Window", group("100", item100)),
    item("Data Filter", raw("110", 8)),
    item("3D-Position Of Data Source", group("120", item120)),
    item("Reserved Expansion Field", explicitLength("RE")),
    item("Special Purpose Field", explicitLength("SP")),
};

// Item names by field reference number.
constexpr const char *order[] = {
    "010", "000", "030", "020", "041", "050", "060", "070", "100", "110", "120", "090", "RE", "SP"};

constexpr Variation variations[] = {variation("", order)};

} // namespace

constexpr Edition cat034Edition129{34, "1.29", "Transmission of Monoradar Service Messages", items, std::size(items),
    variations, std::size(variations)};

} // namespace korvane::asterix
