#pragma once

// A field's bits from a number or a text: the inverse of what the JSON writer prints.

#include "layout.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace korvane::asterix {

// None where the value, rounded to the nearest LSB, is out of the field's range.
std::optional<std::uint64_t> bitsOfNumber(const Node &node, double value);

// None where the field holds no text of this kind, or not these characters, or not so many.
std::optional<std::uint64_t> bitsOfText(const Node &node, std::string_view text);

} // namespace korvane::asterix
