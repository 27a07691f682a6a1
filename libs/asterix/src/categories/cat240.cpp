#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// I240/010 Data Source Identifier
constexpr Field item010[] = {raw("SAC", 8), raw("SIC", 8)};

// I240/030 Video Summary
constexpr Field item030[] = {ascii(nullptr, 8)};

// I240/040 Video Header Nano
constexpr Field item040[] = {quantity("STARTAZ", 16, {360, 65536}, "°"), quantity("ENDAZ", 16, {360, 65536}, "°"),
    integer("STARTRG", 32), quantity("CELLDUR", 32, {1, 1}, "ns")};

// I240/041 Video Header Femto
constexpr Field item041[] = {quantity("STARTAZ", 16, {360, 65536}, "°"), quantity("ENDAZ", 16, {360, 65536}, "°"),
    integer("STARTRG", 32), quantity("CELLDUR", 32, {1, 1}, "fs")};

// I240/048 Video Cells Resolution & Data Compression Indicator
constexpr Field item048[] = {raw("C", 1), spare(7), raw("RES", 8)};

// I240/049 Video Octets & Video Cells Counters
constexpr Field item049[] = {integer("NBVB", 16), integer("NBCELLS", 24)};

// I240/050 Video Block Low Data Volume
constexpr Field item050[] = {raw(nullptr, 32)};

// I240/051 Video Block Medium Data Volume
constexpr Field item051[] = {raw(nullptr, 512)};

// I240/052 Video Block High Data Volume
constexpr Field item052[] = {raw(nullptr, 2048)};

constexpr Field items[] = {
    item("Message Type", raw("000", 8)),
    item("Data Source Identifier", group("010", item010)),
    item("Video Record Header", integer("020", 32)),
    item("Video Summary", repetitive("030", item030)),
    item("Video Header Nano", group("040", item040)),
    item("Video Header Femto", group("041", item041)),
    item("Video Cells Resolution & Data Compression Indicator", group("048", item048)),
    item("Video Octets & Video Cells Counters", group("049", item049)),
    item("Video Block Low Data Volume", repetitive("050", item050)),
    item("Video Block Medium Data Volume", repetitive("051", item051)),
    item("Video Block High Data Volume", repetitive("052", item052)),
    item("Time of Day", quantity("140", 24, {1, 128}, "s")),
    item("Reserved Expansion Field", explicitLength("RE")),
    item("Special Purpose Field", explicitLength("SP")),
};

// Item names by field reference number.
constexpr const char *order[] = {
    "010", "000", "020", "030", "040", "041", "048", "049", "050", "051", "052", "140", "RE", "SP"};

constexpr Variation variations[] = {variation("", order)};

} // namespace

constexpr Edition cat240Edition13{
    240, "1.3", "Radar Video Transmission", items, std::size(items), variations, std::size(variations)};

} // namespace korvane::asterix
