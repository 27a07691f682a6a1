#include "number_text.h"

#include "bits.h"

#include <array>
#include <charconv>
#include <cstring>

namespace korvane::asterix {
namespace {

// Even the smallest fraction of so many binary digits shows within 14 decimal ones.
constexpr int MaxBinaryPower = 46;

constexpr std::array<char, 200> DigitPairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char>('0' + i / 10);
        pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return pairs;
}();

char *writePair(char *out, std::size_t value)
{
    std::memcpy(out, &DigitPairs[2 * value], 2);
    return out + 2;
}

// value / 2^power, every product below 2^64. A fraction in binary digits ends after as many decimal digits; those
// beyond the precision of a double are left away.
char *writeBinaryFraction(char *out, std::uint64_t value, int power)
{
    const std::uint64_t whole = value >> power;
    const std::uint64_t mask = (std::uint64_t{1} << power) - 1;
    std::uint64_t fraction = value & mask;
    out = writeUnsigned(out, whole);
    if (fraction == 0) {
        return out;
    }
    *out++ = '.';
    // Half a unit in the last place is more than 1e-14 from 128 on, and more than 1e-16 from 1 on.
    int pairs = whole >= 128 ? 7 : whole >= 1 ? 8 : 32;
    while (fraction != 0 && pairs-- > 0) {
        fraction *= 100;
        out = writePair(out, fraction >> power);
        fraction &= mask;
    }
    while (out[-1] == '0') {
        --out;
    }
    return out;
}

// value / 10^digits, digits of 1 to 4.
char *writeDecimalFraction(char *out, std::uint64_t value, int digits)
{
    constexpr std::uint64_t Powers[] = {1, 10, 100, 1000, 10000};
    const std::uint64_t power = Powers[digits];
    out = writeUnsigned(out, value / power);
    std::uint64_t fraction = value % power;
    if (fraction == 0) {
        return out;
    }
    *out++ = '.';
    for (int i = digits; i-- > 0; fraction /= 10) {
        out[i] = static_cast<char>('0' + fraction % 10);
    }
    out += digits;
    while (out[-1] == '0') {
        --out;
    }
    return out;
}

} // namespace

char *writeUnsigned(char *out, std::uint64_t value)
{
    if (value < 10) {
        *out = static_cast<char>('0' + value);
        return out + 1;
    }
    if (value < 100) {
        return writePair(out, value);
    }
    if (value < 10000) {
        const std::size_t upper = value / 100;
        if (upper >= 10) {
            out = writePair(out, upper);
        } else {
            *out++ = static_cast<char>('0' + upper);
        }
        return writePair(out, value % 100);
    }
    return std::to_chars(out, out + 20, value).ptr;
}

char *writeScaled(char *out, const Node &node, std::uint64_t bits)
{
    std::uint64_t magnitude = bits;
    if (node.isSigned) {
        const std::int64_t value = signExtended(bits, node.bits);
        magnitude = static_cast<std::uint64_t>(value);
        if (value < 0) {
            *out++ = '-';
            magnitude = 0 - magnitude;
        }
    }
    // 32 bits times 32 bits fit; wider quantities than that go the long way.
    const bool fits = node.bits <= 32;
    if (fits && node.denominatorPower >= 0 && node.denominatorPower <= MaxBinaryPower) {
        return writeBinaryFraction(out, magnitude * node.numerator, node.denominatorPower);
    }
    if (fits && node.denominatorDigits > 0) {
        return writeDecimalFraction(out, magnitude * node.decimalNumerator, node.denominatorDigits);
    }
    return std::to_chars(out, out + 40, static_cast<double>(magnitude) * node.numerator / node.denominator).ptr;
}

} // namespace korvane::asterix
