#include "profile.h"

namespace korvane::asterix {

// AST_UAP_THALES
std::span<const ProfileRow> thalesProfile()
{
    static constexpr ProfileRow Rows[] = {
        {1, "1.4"},
        {2, "1.2"},
        {4, "1.13"},
        {8, "1.3"},
        {10, "1.1"},
        {19, "1.3"},
        {20, "1.11"},
        {21, "2.7"},
        {23, "1.3"},
        {34, "1.29"},
        {48, "1.32"},
        {62, "1.21"},
        {63, "1.7"},
        {65, "1.6"},
        {240, "1.3"},
    };
    return Rows;
}

} // namespace korvane::asterix
