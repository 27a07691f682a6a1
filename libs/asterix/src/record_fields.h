#pragma once

// Single fields of a walked record, found by their place in the table.

#include "asterix/asterix.h"
#include "layout.h"

#include <optional>

namespace korvane::asterix {

// The bits of a field; none where the record does not have it, or where it repeats.
std::optional<std::uint64_t> fieldBits(const _ast_datarecord_t &record, const Node &field);

// The alternative of a case that its selectors choose; null where none fits: the bits are then one raw value.
// base: the octets of the case's anchor.
const Node *chosenAlternative(const Node &node, const _ast_datarecord_t &record, const unsigned char *base);

} // namespace korvane::asterix
