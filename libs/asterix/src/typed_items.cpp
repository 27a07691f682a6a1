#include "typed_items.h"

namespace korvane::asterix {
namespace {

constexpr const char *items001[] = {"010", "020", "161", "040", "042", "200", "070", "090", "141", "170"};
constexpr const char *items002[] = {"010", "000", "020", "030", "041"};
constexpr const char *items034[] = {"010", "000", "030", "020", "041", "120"};
constexpr const char *items048[] = {
    "010", "140", "020", "040", "070", "090", "220", "240", "250", "161", "042", "200", "170", "230"};
constexpr const char *items062[] = {
    "010", "070", "105", "100", "185", "060", "245", "380", "040", "080", "200", "136", "130", "135", "220"};

} // namespace

std::span<const char *const> typedItems(int category)
{
    switch (category) {
    case 1:
        return items001;
    case 2:
        return items002;
    case 34:
        return items034;
    case 48:
        return items048;
    case 62:
        return items062;
    default:
        return {};
    }
}

} // namespace korvane::asterix
