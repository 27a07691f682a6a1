#pragma once

#include "asterix/profile.h"
#include "layout.h"

#include <array>
#include <span>

// Which table decodes each category.
struct _ast_uap_t {
    std::array<const korvane::asterix::CategoryTable *, 256> tables{}; // null: no table
    const korvane::asterix::Uap *forced = nullptr; // takes the place of a choice by record; of one category only
};

namespace korvane::asterix {

// A category of a profile that is a table of its own.
struct ProfileRow {
    int category;
    const char *edition;
    const char *variation = nullptr; // forced on every record; null: each record chooses
};

// The makers' profiles, each in the source file of its name. They are the standard editions; what a site knows to be
// different is a changed row, with an edition of its own in categories/ where a layout differs.
std::span<const ProfileRow> asr10ssProfile();
std::span<const ProfileRow> thalesProfile();

} // namespace korvane::asterix
