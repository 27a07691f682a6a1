#pragma once

#include "asterix/asterix.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::asterix {

// A category and an edition of its document, for which a table is built in.
struct EditionName {
    int category = 0;
    std::string edition; // "1.32"
    std::string title; // "Monoradar Target Reports"
};

// All tables; of several editions of a category the standard one comes first.
std::vector<EditionName> editions();

// The edition of the table that decoded the record, such as "2.7"; never invalid. Empty for a record of no table.
std::string_view editionOf(const _ast_datarecord_t &record);

// A user application profile of one's own: the standard tables, some of them exchanged. Keep it for as long as blocks
// are decoded with it; the records that it decoded may outlive it.
class Profile {
public:
    Profile();
    ~Profile();
    Profile(Profile &&other) noexcept;
    Profile &operator=(Profile &&other) noexcept;

    // Decodes the category with that edition from now on. False, with nothing changed, when there is no such table.
    bool select(int category, std::string_view edition);

    const _ast_uap_t *uap() const { return m_uap.get(); }

private:
    std::unique_ptr<_ast_uap_t> m_uap;
};

} // namespace korvane::asterix
