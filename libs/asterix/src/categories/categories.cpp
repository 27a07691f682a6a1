#include "categories/categories.h"

namespace korvane::asterix {

std::span<const Edition *const> allEditions()
{
    static constexpr const Edition *editions[] = {
        &cat001Edition14,
        &cat002Edition12,
        &cat034Edition129,
        &cat048Edition132,
        &cat062Edition121,
        &cat065Edition16,
    };
    return editions;
}

} // namespace korvane::asterix
