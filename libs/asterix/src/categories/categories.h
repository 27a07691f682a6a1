#pragma once

#include "field.h"

#include <iterator>
#include <span>

namespace korvane::asterix {

// One constant a category edition, each in the source file of its category.
extern const Edition cat001Edition14;
extern const Edition cat002Edition12;
extern const Edition cat004Edition113;
extern const Edition cat008Edition13;
extern const Edition cat010Edition11;
extern const Edition cat019Edition13;
extern const Edition cat020Edition111;
extern const Edition cat021Edition27;
extern const Edition cat021Edition21;
extern const Edition cat021Edition026;
extern const Edition cat021Edition023;
extern const Edition cat023Edition13;
extern const Edition cat034Edition129;
extern const Edition cat048Edition132;
extern const Edition cat062Edition121;
extern const Edition cat063Edition17;
extern const Edition cat065Edition16;
extern const Edition cat240Edition13;

// Contents of the reserved expansion fields, which have documents and editions of their own.
extern const Field cat021Expansion[8];
extern const Field cat048Expansion[8];
extern const Field cat062Expansion[5];

// All of them; of several editions of a category the standard one comes first.
std::span<const Edition *const> allEditions();

} // namespace korvane::asterix
