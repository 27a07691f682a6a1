#include "profile.h"

#include "categories/categories.h"

namespace korvane::asterix {
namespace {

_ast_uap_t standardProfile()
{
    _ast_uap_t profile;
    for (const Edition *edition : allEditions()) {
        profile.tables[static_cast<std::size_t>(edition->category)] = findTable(edition->category);
    }
    return profile;
}

void place(_ast_uap_t &profile, const ProfileRow &row)
{
    const CategoryTable *table = findTable(row.category, row.edition);
    if (!table) {
        return;
    }
    profile.tables[static_cast<std::size_t>(row.category)] = table;
    if (row.variation) {
        profile.forced = table->variation(row.variation);
    }
}

// The standard profile with one category exchanged.
_ast_uap_t standardBut(const ProfileRow &row)
{
    _ast_uap_t profile = standardProfile();
    place(profile, row);
    return profile;
}

_ast_uap_t profileOf(std::span<const ProfileRow> rows)
{
    _ast_uap_t profile;
    for (const ProfileRow &row : rows) {
        place(profile, row);
    }
    return profile;
}

const _ast_uap_t standard = standardProfile();
const _ast_uap_t cat001Plot = standardBut({1, nullptr, "plot"});
const _ast_uap_t asr10ss = profileOf(asr10ssProfile());
const _ast_uap_t cat021Edition023Profile = standardBut({21, "0.23"});
const _ast_uap_t cat021Edition026Profile = standardBut({21, "0.26"});
const _ast_uap_t cat021Edition21Profile = standardBut({21, "2.1"});
const _ast_uap_t cat021Edition27Profile = standardBut({21, "2.7"});
const _ast_uap_t thales = profileOf(thalesProfile());

} // namespace

std::vector<EditionName> editions()
{
    std::vector<EditionName> names;
    for (const Edition *edition : allEditions()) {
        names.push_back({edition->category, edition->edition, edition->title});
    }
    return names;
}

std::string_view editionOf(const _ast_datarecord_t &record)
{
    return record.uap ? record.uap->layout->edition().edition : std::string_view();
}

Profile::Profile() : m_uap(std::make_unique<_ast_uap_t>(standardProfile())) { }

Profile::~Profile() = default;
Profile::Profile(Profile &&other) noexcept = default;
Profile &Profile::operator=(Profile &&other) noexcept = default;

bool Profile::select(int category, std::string_view edition)
{
    const CategoryTable *table = findTable(category, std::string(edition).c_str());
    if (table) {
        m_uap->tables[static_cast<std::size_t>(category)] = table;
    }
    return table != nullptr;
}

} // namespace korvane::asterix

const _ast_uap_t *const AST_UAP_STANDARD = &korvane::asterix::standard;
const _ast_uap_t *const AST_UAP_CAT001_PLOT = &korvane::asterix::cat001Plot;
const _ast_uap_t *const AST_UAP_ASR10SS = &korvane::asterix::asr10ss;
const _ast_uap_t *const AST_UAP_CAT021_VER023 = &korvane::asterix::cat021Edition023Profile;
const _ast_uap_t *const AST_UAP_CAT021_VER026 = &korvane::asterix::cat021Edition026Profile;
const _ast_uap_t *const AST_UAP_CAT021_VER21 = &korvane::asterix::cat021Edition21Profile;
const _ast_uap_t *const AST_UAP_CAT021_VER27 = &korvane::asterix::cat021Edition27Profile;
const _ast_uap_t *const AST_UAP_THALES = &korvane::asterix::thales;
