#include "categories/cat021_items.h"

namespace korvane::asterix {
namespace {

using namespace cat021;
using namespace cat021::late;

// I021/040 Target Report Descriptor
constexpr Field item040Tbc[] = {raw("EP", 1), integer("VAL", 6)};
constexpr Field item040Mbc[] = {raw("EP", 1), integer("VAL", 6)};
constexpr Field item040[] = {
    raw("ATP", 3), raw("ARC", 2), raw("RC", 1), raw("RAB", 1), fx, //
    raw("DCR", 1), raw("GBS", 1), raw("SIM", 1), raw("TST", 1), raw("SAA", 1), raw("CL", 2), fx, //
    spare(1), raw("LLC", 1), raw("IPC", 1), raw("NOGO", 1), raw("CPR", 1), raw("LDPJ", 1), raw("RCF", 1), fx, //
    group("TBC", item040Tbc), fx, //
    group("MBC", item040Mbc), fx, //
};

// I021/090 Quality Indicators
constexpr Field item090Valstate[] = {raw("EP", 1), raw("VAL", 2)};
constexpr Field item090[] = {
    raw("NUCRNACV", 3), raw("NUCPNIC", 4), fx, //
    raw("NICBARO", 1), raw("SIL", 2), raw("NACP", 4), fx, //
    spare(2), raw("SILS", 1), raw("SDA", 2), raw("GVA", 2), fx, //
    raw("PIC", 4), raw("SRC", 1), spare(2), fx, //
    spare(2), group("VALSTATE", item090Valstate), raw("VD", 1), raw("VQ", 1), fx, //
    quantity("VALDISTP1", 7, {128, 1}, "m"), fx, //
    quantity("VALDISTP2", 7, {1, 1}, "m"), fx, //
    quantity("VALDISTQUALP1", 7, {128, 1}, "m"), fx, //
    quantity("VALDISTQUALP2", 7, {1, 1}, "m"), fx, //
};

// I021/200 Target Status
constexpr Field item200[] = {raw("ICF", 1), raw("LNAV", 1), raw("ME", 1), raw("PS", 3), raw("SS", 2)};

// I021/271 Surface Capabilities and Characteristics
constexpr Field item271[] = {
    spare(2), raw("POA", 1), raw("CDTIS", 1), raw("B2LOW", 1), raw("RAS", 1), raw("IDENT", 1), fx, //
    raw("LW", 4), spare(3), fx, //
};

// I021/295 Data Ages
constexpr DataAges item295 = dataAges("SAL");

constexpr Items items = itemsWith(item040, item090, item200, item271, item295.fields);

} // namespace

constexpr Edition cat021Edition27{
    21, "2.7", "ADS-B Target Reports", items.fields, std::size(items.fields), variations, std::size(variations)};

} // namespace korvane::asterix
