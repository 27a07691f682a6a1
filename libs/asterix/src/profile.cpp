#include "profile.h"

#include "categories/categories.h"

namespace korvane::asterix {
namespace {

// A category that a profile decodes otherwise than the standard one.
struct Exchange {
    int category;
    const char *edition; // null: the standard one
    const char *variation; // forced on every record; null: each record chooses
};

_ast_uap_t standardProfile()
{
    _ast_uap_t profile;
    for (const Edition *edition : allEditions())
        profile.tables[static_cast<std::size_t>(edition->category)] = findTable(edition->category);
    return profile;
}

_ast_uap_t makeProfile(std::initializer_list<Exchange> exchanges)
{
    _ast_uap_t profile = standardProfile();
    for (const Exchange &exchange : exchanges) {
        const CategoryTable *table = findTable(exchange.category, exchange.edition);
        if (!table)
            continue;
        profile.tables[static_cast<std::size_t>(exchange.category)] = table;
        if (exchange.variation)
            profile.forced = table->variation(exchange.variation);
    }
    return profile;
}

const _ast_uap_t standard = makeProfile({});
const _ast_uap_t cat001Plot = makeProfile({{1, nullptr, "plot"}});

} // namespace

std::vector<EditionName> editions()
{
    std::vector<EditionName> names;
    for (const Edition *edition : allEditions())
        names.push_back({edition->category, edition->edition, edition->title});
    return names;
}

Profile::Profile() : m_uap(std::make_unique<_ast_uap_t>(standardProfile())) { }

Profile::~Profile() = default;
Profile::Profile(Profile &&other) noexcept = default;
Profile &Profile::operator=(Profile &&other) noexcept = default;

bool Profile::select(int category, std::string_view edition)
{
    const CategoryTable *table = findTable(category, std::string(edition).c_str());
    if (table)
        m_uap->tables[static_cast<std::size_t>(category)] = table;
    return table != nullptr;
}

} // namespace korvane::asterix

// Editions that a profile names and that have no table of their own are decoded with the standard one.
const _ast_uap_t *const AST_UAP_STANDARD = &korvane::asterix::standard;
const _ast_uap_t *const AST_UAP_CAT001_PLOT = &korvane::asterix::cat001Plot;
const _ast_uap_t *const AST_UAP_ASR10SS = &korvane::asterix::standard;
const _ast_uap_t *const AST_UAP_CAT021_VER023 = &korvane::asterix::standard;
const _ast_uap_t *const AST_UAP_CAT021_VER026 = &korvane::asterix::standard;
const _ast_uap_t *const AST_UAP_CAT021_VER21 = &korvane::asterix::standard;
const _ast_uap_t *const AST_UAP_CAT021_VER27 = &korvane::asterix::standard;
const _ast_uap_t *const AST_UAP_THALES = &korvane::asterix::standard;
