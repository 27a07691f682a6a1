#pragma once

#include "asterix/profile.h"
#include "layout.h"

#include <array>

// Which table decodes each category.
struct _ast_uap_t {
    std::array<const korvane::asterix::CategoryTable *, 256> tables{}; // null: no table
    const korvane::asterix::Uap *forced = nullptr; // takes the place of a choice by record; of one category only
};
