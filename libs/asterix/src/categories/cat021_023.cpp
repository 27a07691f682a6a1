#include "categories/cat021_items.h"

namespace korvane::asterix {
namespace {

using namespace cat021;
using namespace cat021::early;

// I021/130 Position in WGS-84 Co-ordinates
constexpr Field item130[] = {
    signedQuantity("LAT", 24, {180, 8388608}, "°"), signedQuantity("LON", 24, {180, 8388608}, "°")};

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
