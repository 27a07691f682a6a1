#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// I008/010 Data Source Identifier
constexpr Field item010[] = {raw("SAC", 8), raw("SIC", 8)};

// I008/020 Vector Qualifier
constexpr Field item020[] = {
    raw("ORG", 1), integer("I", 3), raw("S", 3), fx, //
    spare(5), raw("TST", 1), raw("ER", 1), fx, //
};

// I008/034 Sequence of Polar Vectors in SPF Notation
constexpr Field item034[] = {integer("STR", 8), integer("ENDR", 8), quantity("AZ", 16, {360, 65536}, "°")};

// I008/036 Sequence of Cartesian Vectors in SPF Notation
constexpr Field item036[] = {signedInteger("X", 8), signedInteger("Y", 8), integer("LENGTH", 8)};

// I008/038 Sequence of Weather Vectors in SPF Notation
constexpr Field item038[] = {
    signedInteger("X1", 8), signedInteger("Y1", 8), signedInteger("X2", 8), signedInteger("Y2", 8)};

// I008/040 Contour Identifier
constexpr Field item040[] = {raw("ORG", 1), raw("I", 3), spare(2), raw("FSTLST", 2), raw("CSN", 8)};

// I008/050 Sequence of Contour Points in SPF Notation
constexpr Field item050[] = {signedInteger("X1", 8), signedInteger("Y1", 8)};

// I008/100 Processing Status
constexpr Field item100[] = {
    signedInteger("F", 5), raw("R", 3), raw("Q", 15), fx, //
};

// I008/110 Station Configuration Status
constexpr Field item110[] = {raw(nullptr, 7)};

constexpr Field items[] = {
    item("Message Type", raw("000", 8)),
    item("Data Source Identifier", group("010", item010)),
    item("Vector Qualifier", extended("020", item020)),
    item("Sequence of Polar Vectors in SPF Notation", repetitive("034", item034)),
    item("Sequence of Cartesian Vectors in SPF Notation", repetitive("036", item036)),
    item("Sequence of Weather Vectors in SPF Notation", repetitive("038", item038)),
    item("Contour Identifier", group("040", item040)),
    item("Sequence of Contour Points in SPF Notation", repetitive("050", item050)),
    item("Time of Day", quantity("090", 24, {1, 128}, "s")),
    item("Processing Status", extended("100", item100)),
    item("Station Configuration Status", repetitiveFx("110", item110)),
    item("Total Number of Items Constituting One Weather Picture", integer("120", 16)),
    item("Special Purpose Field", explicitLength("SP")),
};

// Item names by field reference number.
constexpr const char *order[] = {
    "010", "000", "020", "036", "034", "040", "050", "090", "100", "110", "120", "038", "SP", RandomFields};

constexpr Variation variations[] = {variation("", order)};

} // namespace

constexpr Edition cat008Edition13{
    8, "1.3", "Monoradar Derived Weather Information", items, std::size(items), variations, std::size(variations)};

} // namespace korvane::asterix
