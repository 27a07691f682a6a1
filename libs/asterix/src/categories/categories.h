#pragma once

#include "field.h"

#include <iterator>
#include <span>

namespace korvane::asterix {

// One constant a category edition, each in the source file of its category.
extern const Edition cat001Edition14;
extern const Edition cat002Edition12;
extern const Edition cat034Edition129;
extern const Edition cat048Edition132;
extern const Edition cat062Edition121;
extern const Edition cat065Edition16;

// All of them; of several editions of a category the standard one comes first.
std::span<const Edition *const> allEditions();

} // namespace korvane::asterix
