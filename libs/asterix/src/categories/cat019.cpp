#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// I019/010 Data Source Identifier
constexpr Field item010[] = {raw("SAC", 8), raw("SIC", 8)};

// I019/550 System Status
constexpr Field item550[] = {raw("NOGO", 2), raw("OVL", 1), raw("TSV", 1), raw("TTF", 1), spare(3)};

// I019/551 Tracking Processor Detailed Status
constexpr Field item551[] = {raw("TP1A", 1), raw("TP1B", 1), raw("TP2A", 1), raw("TP2B", 1), raw("TP3A", 1),
    raw("TP3B", 1), raw("TP4A", 1), raw("TP4B", 1)};

// I019/552 Remote Sensor Detailed Status
constexpr Field item552[] = {raw("RSI", 8), spare(1), raw("RS1090", 1), raw("TX1030", 1), raw("TX1090", 1),
    raw("RSS", 1), raw("RSO", 1), spare(2)};

// I019/553 Reference Transponder Detailed Status
constexpr Field item553[] = {
    raw("REFTR1", 2), spare(2), raw("REFTR2", 2), spare(1), fx, //
    raw("REFTR3", 2), spare(2), raw("REFTR4", 2), spare(1), fx, //
};

// I019/600 Position of the MLT System Reference Point
constexpr Field item600[] = {
    signedQuantity("LAT", 32, {180, 1073741824}, "°"), signedQuantity("LON", 32, {180, 1073741824}, "°")};

constexpr Field items[] = {
    item("Message Type", raw("000", 8)),
    item("Data Source Identifier", group("010", item010)),
    item("Time of Day", quantity("140", 24, {1, 128}, "s")),
    item("System Status", group("550", item550)),
    item("Tracking Processor Detailed Status", group("551", item551)),
    item("Remote Sensor Detailed Status", repetitive("552", item552)),
    item("Reference Transponder Detailed Status", extended("553", item553)),
    item("Position of the MLT System Reference Point", group("600", item600)),
    item("Height of the MLT System Reference Point", signedQuantity("610", 16, {1, 4}, "m")),
    item("WGS-84 Undulation", signedQuantity("620", 8, {1, 1}, "m")),
    item("Reserved Expansion Field", explicitLength("RE")),
    item("Special Purpose Field", explicitLength("SP")),
};

// Item names by field reference number.
constexpr const char *order[] = {
    "010", "000", "140", "550", "551", "552", "553", "600", "610", "620", Unused, Unused, "RE", "SP"};

constexpr Variation variations[] = {variation("", order)};

} // namespace

constexpr Edition cat019Edition13{
    19, "1.3", "Multilateration System Status Messages", items, std::size(items), variations, std::size(variations)};

} // namespace korvane::asterix
