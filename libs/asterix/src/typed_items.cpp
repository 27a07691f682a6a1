#include "typed_items.h"

#include "layout.h"

#include <iterator>

namespace korvane::asterix {
namespace {

constexpr const char *Items001[] = {"010", "020", "161", "040", "042", "200", "070", "090", "141", "170"};
constexpr const char *Items002[] = {"010", "000", "020", "030", "041"};
constexpr const char *Items004[] = {
    "010", "000", "020", "040", "045", "060", "030", "170", "120", "070", "076", "074", "075", "100", "035", "171"};
constexpr const char *Items008[] = {"010", "000", "020", "036", "034", "040", "050", "090", "100", "120", "038"};
constexpr const char *Items010[] = {"010", "000", "020", "140", "041", "040", "042", "200", "202", "161", "170", "060",
    "220", "245", "250", "300", "090", "091", "270", "550", "310", "500", "131", "210"};
constexpr const char *Items020[] = {"010", "020", "140", "041", "042", "161", "170", "070", "202", "090", "220", "245",
    "110", "105", "210", "300", "310", "250", "230", "260"};
constexpr const char *Items034[] = {"010", "000", "030", "020", "041", "120"};
constexpr const char *Items048[] = {
    "010", "140", "020", "040", "070", "090", "220", "240", "250", "161", "042", "200", "170", "230"};
constexpr const char *Items062[] = {"010", "070", "105", "100", "185", "060", "245", "380", "040", "080", "200", "136",
    "130", "135", "220", "390", "290", "340"};
constexpr const char *Items240[] = {"010", "000", "020", "030", "040", "041", "048", "049", "050", "051", "052", "140"};

static_assert(std::size(Items010) <= MaxTypedItems && std::size(Items020) <= MaxTypedItems, "the longest ones");

} // namespace

std::span<const char *const> typedItems(int category)
{
    switch (category) {
    case 1:
        return Items001;
    case 2:
        return Items002;
    case 4:
        return Items004;
    case 8:
        return Items008;
    case 10:
        return Items010;
    case 20:
        return Items020;
    case 34:
        return Items034;
    case 48:
        return Items048;
    case 62:
        return Items062;
    case 240:
        return Items240;
    default:
        return {};
    }
}

} // namespace korvane::asterix
