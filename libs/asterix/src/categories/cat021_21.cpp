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
constexpr DataAges item295 = dataAges("ISA");

constexpr Items items = itemsWith(item040, item090, item200, item271, item295.fields);

} // namespace

constexpr Edition cat021Edition21{
    21, "2.1", "ADS-B Target Reports", items.fields, std::size(items.fields), variations, std::size(variations)};

} // namespace korvane::asterix
