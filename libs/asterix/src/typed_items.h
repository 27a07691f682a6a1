#pragma once

// Which items each typed record reads. The enumerators are indices into Uap::typed.

#include <cstdint>
#include <span>

namespace korvane::asterix {

// clang-format off
enum class Item001 : std::uint8_t { I010, I020, I161, I040, I042, I200, I070, I090, I141, I170 };
enum class Item002 : std::uint8_t { I010, I000, I020, I030, I041 };
enum class Item004 : std::uint8_t {
    I010, I000, I020, I040, I045, I060, I030, I170, I120, I070, I076, I074, I075, I100, I035, I171 };
enum class Item008 : std::uint8_t { I010, I000, I020, I036, I034, I040, I050, I090, I100, I120, I038 };
enum class Item010 : std::uint8_t {
    I010, I000, I020, I140, I041, I040, I042, I200, I202, I161, I170, I060, I220, I245, I250, I300, I090, I091, I270,
    I550, I310, I500, I131, I210 };
enum class Item020 : std::uint8_t {
    I010, I020, I140, I041, I042, I161, I170, I070, I202, I090, I220, I245, I110, I105, I210, I300, I310, I250, I230,
    I260 };
enum class Item034 : std::uint8_t { I010, I000, I030, I020, I041, I120 };
enum class Item048 : std::uint8_t {
    I010, I140, I020, I040, I070, I090, I220, I240, I250, I161, I042, I200, I170, I230 };
enum class Item062 : std::uint8_t {
    I010, I070, I105, I100, I185, I060, I245, I380, I040, I080, I200, I136, I130, I135, I220, I390, I290, I340 };
enum class Item240 : std::uint8_t { I010, I000, I020, I030, I040, I041, I048, I049, I050, I051, I052, I140 };
// clang-format on

// The item names in the order of the enumerators above; empty for a category without a typed record.
std::span<const char *const> typedItems(int category);

} // namespace korvane::asterix
