#include "categories/categories.h"

namespace korvane::asterix {

std::span<const Edition *const> allEditions()
{
    static constexpr const Edition *editions[] = {
        &cat001Edition14,
        &cat002Edition12,
        &cat004Edition113,
        &cat008Edition13,
        &cat010Edition11,
        &cat019Edition13,
        &cat020Edition111,
        &cat021Edition27,
        &cat021Edition21,
        &cat021Edition026,
        &cat021Edition023,
        &cat023Edition13,
        &cat034Edition129,
        &cat048Edition132,
        &cat062Edition121,
        &cat063Edition17,
        &cat065Edition16,
        &cat240Edition13,
    };
    return editions;
}

} // namespace korvane::asterix
