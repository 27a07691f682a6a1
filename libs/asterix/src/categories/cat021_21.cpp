#include "categories/cat021_items.h"

namespace korvane::asterix {
namespace {

using namespace cat021;
using namespace cat021::late;

// I021/040 Target Report Descriptor
constexpr Field item040[] = {
    raw("ATP", 3), raw("ARC", 2), raw("RC", 1), raw("RAB", 1), fx, //
    raw("DCR", 1), raw("GBS", 1), raw("SIM", 1), raw("TST", 1), raw("SAA", 1), raw("CL", 2), fx, //
    spare(2), raw("IPC", 1), raw("NOGO", 1), raw("CPR", 1), raw("LDPJ", 1), raw("RCF", 1), fx, //
};

// I021/090 Quality Indicators
constexpr Field item090[] = {
    raw("NUCRNACV", 3), raw("NUCPNIC", 4), fx, //
    raw("NICBARO", 1), raw("SIL", 2), raw("NACP", 4), fx, //
    spare(2), raw("SILS", 1), raw("SDA", 2), raw("GVA", 2), fx, //
    raw("PIC", 4), spare(3), fx, //
};

// I021/200 Target Status
constexpr Field item200[] = {raw("ICF", 1), raw("LNAV", 1), spare(1), raw("PS", 3), raw("SS", 2)};

// I021/271 Surface Capabilities and Characteristics
constexpr Field item271[] = {
    spare(2), raw("POA", 1), raw("CDTIS", 1), raw("B2LOW", 1), raw("RAS", 1), raw("IDENT", 1), fx, //
    spare(4), raw("LW", 4), //
};

// I021/295 Data Ages
constexpr Field item295[] = {
    quantity("AOS", 8, {1, 10}, "s"),
    quantity("TRD", 8, {1, 10}, "s"),
    quantity("M3A", 8, {1, 10}, "s"),
    quantity("QI", 8, {1, 10}, "s"),
    quantity("TI1", 8, {1, 10}, "s"),
    quantity("MAM", 8, {1, 10}, "s"),
    quantity("GH", 8, {1, 10}, "s"),
    quantity("FL", 8, {1, 10}, "s"),
    quantity("ISA", 8, {1, 10}, "s"),
    quantity("FSA", 8, {1, 10}, "s"),
    quantity("AS", 8, {1, 10}, "s"),
    quantity("TAS", 8, {1, 10}, "s"),
    quantity("MH", 8, {1, 10}, "s"),
    quantity("BVR", 8, {1, 10}, "s"),
    quantity("GVR", 8, {1, 10}, "s"),
    quantity("GV", 8, {1, 10}, "s"),
    quantity("TAR", 8, {1, 10}, "s"),
    quantity("TI2", 8, {1, 10}, "s"),
    quantity("TS", 8, {1, 10}, "s"),
    quantity("MET", 8, {1, 10}, "s"),
    quantity("ROA", 8, {1, 10}, "s"),
    quantity("ARA", 8, {1, 10}, "s"),
    quantity("SCC", 8, {1, 10}, "s"),
};

constexpr Field items[] = {
    item("Aircraft Operational Status", group("008", item008)),
    item("Data Source Identification", group("010", item010)),
    item("Service Identification", raw("015", 8)),
    item("Service Management", quantity("016", 8, {1, 2}, "s")),
    item("Emitter Category", raw("020", 8)),
    item("Target Report Descriptor", extended("040", item040)),
    item("Mode 3/A Code in Octal Representation", group("070", item070)),
    item("Time of Applicability for Position", quantity("071", 24, {1, 128}, "s")),
    item("Time of Applicability for Velocity", quantity("072", 24, {1, 128}, "s")),
    item("Time of Message Reception for Position", quantity("073", 24, {1, 128}, "s")),
    item("Time of Message Reception of Position-High Precision", group("074", item074)),
    item("Time of Message Reception for Velocity", quantity("075", 24, {1, 128}, "s")),
    item("Time of Message Reception of Velocity-High Precision", group("076", item076)),
    item("Time of ASTERIX Report Transmission", quantity("077", 24, {1, 128}, "s")),
    item("Target Address", raw("080", 24)),
    item("Quality Indicators", extended("090", item090)),
    item("Trajectory Intent", compound("110", item110)),
    item("Position in WGS-84 Co-ordinates", group("130", item130)),
    item("High-Resolution Position in WGS-84 Co-ordinates", group("131", item131)),
    item("Message Amplitude", signedQuantity("132", 8, {1, 1}, "dBm")),
    item("Geometric Height", signedQuantity("140", 16, {25, 4}, "ft")),
    item("Flight Level", signedQuantity("145", 16, {1, 4}, "FL")),
    item("Selected Altitude", group("146", item146)),
    item("Final State Selected Altitude", group("148", item148)),
    item("Air Speed", group("150", item150)),
    item("True Airspeed", group("151", item151)),
    item("Magnetic Heading", quantity("152", 16, {360, 65536}, "°")),
    item("Barometric Vertical Rate", group("155", item155)),
    item("Geometric Vertical Rate", group("157", item157)),
    item("Airborne Ground Vector", group("160", item160)),
    item("Track Number", group("161", item161)),
    item("Track Angle Rate", group("165", item165)),
    item("Target Identification", icao("170", 48)),
    item("Target Status", group("200", item200)),
    item("MOPS Version", group("210", item210)),
    item("Met Information", compound("220", item220)),
    item("Roll Angle", signedQuantity("230", 16, {1, 100}, "°")),
    item("Mode S MB Data", repetitive("250", item250)),
    item("ACAS Resolution Advisory Report", group("260", item260)),
    item("Surface Capabilities and Characteristics", extended("271", item271)),
    item("Data Ages", compound("295", item295)),
    item("Receiver ID", raw("400", 8)),
    item("Reserved Expansion Field", expansion("RE", cat021Expansion)),
    item("Special Purpose Field", explicitLength("SP")),
};

// Item names by field reference number.
constexpr const char *order[] = {"010", "040", "161", "015", "071", "130", "131", "072", "150", "151", "080", "073",
    "074", "075", "076", "140", "090", "210", "070", "230", "145", "152", "200", "155", "157", "160", "165", "077",
    "170", "020", "220", "146", "148", "110", "016", "008", "271", "132", "250", "260", "400", "295", Unused, Unused,
    Unused, Unused, Unused, "RE", "SP"};

constexpr Variation variations[] = {variation("", order)};

} // namespace

constexpr Edition cat021Edition21{
    21, "2.1", "ADS-B Target Reports", items, std::size(items), variations, std::size(variations)};

} // namespace korvane::asterix
