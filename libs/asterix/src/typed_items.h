#pragma once

// Which items each typed record reads. The enumerators are indices into Uap::typed.

#include <cstdint>
#include <span>

namespace korvane::asterix {

enum class Item001 : std::uint8_t { I010, I020, I161, I040, I042, I200, I070, I090, I141, I170 };
enum class Item002 : std::uint8_t { I010, I000, I020, I030, I041 };
enum class Item034 : std::uint8_t { I010, I000, I030, I020, I041, I120 };
enum class Item048 : std::uint8_t {
    I010,
    I140,
    I020,
    I040,
    I070,
    I090,
    I220,
    I240,
    I250,
    I161,
    I042,
    I200,
    I170,
    I230,
};
enum class Item062 : std::uint8_t {
    I010,
    I070,
    I105,
    I100,
    I185,
    I060,
    I245,
    I380,
    I040,
    I080,
    I200,
    I136,
    I130,
    I135,
    I220,
};

// The item names in the order of the enumerators above; empty for a category without a typed record.
std::span<const char *const> typedItems(int category);

} // namespace korvane::asterix
