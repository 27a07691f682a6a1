#pragma once

// The values of elements as JSON: numbers, and texts in their quotes. Each function returns the end of what it wrote;
// Node::jsonSize is room enough. Inline, since the JSON writer spends its time here.

#include "icao_text.h"
#include "number_text.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace korvane::asterix {

inline constexpr char HexDigits[] = "0123456789abcdef";

template <std::size_t N>
char *writeLiteral(char *out, const char (&text)[N])
{
    std::memcpy(out, text, N - 1);
    return out + N - 1;
}

inline char *writeHex(char *out, std::uint64_t bits, unsigned count)
{
    for (unsigned digit = (count + 3) / 4; digit-- > 0;) {
        *out++ = HexDigits[bits >> (4 * digit) & 15];
    }
    return out;
}

inline char *writeHexOctets(char *out, const unsigned char *at, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        *out++ = HexDigits[at[i] >> 4];
        *out++ = HexDigits[at[i] & 15];
    }
    return out;
}

// One octet of Latin-1 text.
inline char *writeCharacter(char *out, unsigned char character)
{
    if (character == '"' || character == '\\') {
        *out++ = '\\';
        *out++ = static_cast<char>(character);
        return out;
    }
    if (character >= 0x20 && character < 0x7F) {
        *out++ = static_cast<char>(character);
        return out;
    }
    out = writeLiteral(out, "\\u00");
    *out++ = HexDigits[character >> 4];
    *out++ = HexDigits[character & 15];
    return out;
}

inline char *writeAscii(char *out, std::uint64_t bits, unsigned count)
{
    unsigned left = count / 8;
    unsigned last = 0; // characters that are neither blank nor zero at the end are not sent
    while (last < left && ((bits >> (8 * last) & 0xFF) == ' ' || (bits >> (8 * last) & 0xFF) == 0)) {
        ++last;
    }
    while (left-- > last) {
        out = writeCharacter(out, static_cast<unsigned char>(bits >> (8 * left)));
    }
    return out;
}

inline char *writeIcao(char *out, std::uint64_t bits, unsigned count)
{
    const char *const start = out;
    for (unsigned left = count / 6; left-- > 0;) {
        *out++ = IcaoAlphabet[bits >> (6 * left) & 63];
    }
    while (out > start && out[-1] == ' ') {
        --out;
    }
    return out;
}

inline char *writeOctal(char *out, std::uint64_t bits, unsigned count)
{
    for (unsigned left = count / 3; left-- > 0;) {
        *out++ = static_cast<char>('0' + (bits >> (3 * left) & 7));
    }
    return out;
}

inline char *writeText(char *out, const Node &node, std::uint64_t bits)
{
    *out++ = '"';
    if (node.kind == Kind::Octal) {
        out = writeOctal(out, bits, node.bits);
    } else if (node.kind == Kind::Icao) {
        out = writeIcao(out, bits, node.bits);
    } else if (node.kind == Kind::Ascii) {
        out = writeAscii(out, bits, node.bits);
    } else {
        out = writeHex(out, bits, node.bits);
    }
    *out++ = '"';
    return out;
}

inline char *writeRaw(char *out, const Node &node, std::uint64_t bits)
{
    return node.bits <= 32 ? writeUnsigned(out, bits) : writeText(out, node, bits);
}

inline char *writeElement(char *out, const Node &node, std::uint64_t bits)
{
    switch (node.kind) {
    case Kind::Raw:
        return writeRaw(out, node, bits);
    case Kind::Integer:
    case Kind::Quantity:
        return writeScaled(out, node, bits);
    default:
        return writeText(out, node, bits);
    }
}

} // namespace korvane::asterix
