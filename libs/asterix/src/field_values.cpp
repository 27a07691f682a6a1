#include "field_values.h"

#include "icao_text.h"

#include <cmath>

namespace korvane::asterix {
namespace {

std::optional<std::uint64_t> bitsOfOctal(const Node &node, std::string_view text)
{
    if (text.size() != node.bits / 3U) {
        return std::nullopt;
    }
    std::uint64_t bits = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '7') {
            return std::nullopt;
        }
        bits = bits << 3 | static_cast<unsigned>(digit - '0');
    }
    return bits;
}

std::optional<std::uint64_t> bitsOfIcao(const Node &node, std::string_view text)
{
    if (text.size() > node.bits / 6U) {
        return std::nullopt;
    }
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < node.bits / 6U; ++i) {
        const char character = i < text.size() ? text[i] : ' ';
        const std::size_t code = std::string_view(IcaoAlphabet).find(character);
        if (code == std::string_view::npos || character == '\0') {
            return std::nullopt;
        }
        // The blank has a code of its own beside all those that are not assigned.
        bits = bits << 6 | (character == ' ' ? 32 : code);
    }
    return bits;
}

std::optional<std::uint64_t> bitsOfAscii(const Node &node, std::string_view text)
{
    if (text.size() > node.bits / 8U) {
        return std::nullopt;
    }
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < node.bits / 8U; ++i) {
        bits = bits << 8 | static_cast<unsigned char>(i < text.size() ? text[i] : ' ');
    }
    return bits;
}

} // namespace

std::optional<std::uint64_t> bitsOfNumber(const Node &node, double value)
{
    const double scaled = std::round(value * node.denominator / node.numerator);
    const double range = std::ldexp(1.0, node.bits - (node.isSigned ? 1 : 0));
    const double lowest = node.isSigned ? -range : 0;
    // A value that is not a number fails, too.
    if (!(scaled >= lowest && scaled < range) || node.bits > 64) {
        return std::nullopt;
    }
    if (scaled >= 0) {
        return static_cast<std::uint64_t>(scaled);
    }
    const auto bits = static_cast<std::uint64_t>(static_cast<std::int64_t>(scaled));
    return bits & (~std::uint64_t{0} >> (64 - node.bits));
}

std::optional<std::uint64_t> bitsOfText(const Node &node, std::string_view text)
{
    if (node.bits > 64) {
        return std::nullopt;
    }
    switch (node.kind) {
    case Kind::Octal:
        return bitsOfOctal(node, text);
    case Kind::Icao:
        return bitsOfIcao(node, text);
    case Kind::Ascii:
        return bitsOfAscii(node, text);
    default:
        return std::nullopt;
    }
}

} // namespace korvane::asterix
