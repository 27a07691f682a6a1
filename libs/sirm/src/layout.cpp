#include "layout.h"

#include <algorithm>
#include <cmath>

namespace sirm_layout {

namespace {

std::uint32_t maskOf(const Field &field)
{
    return static_cast<std::uint32_t>((std::uint64_t{1} << field.bits) - 1);
}

std::uint32_t wordOf(const unsigned char *octets, const Field &field)
{
    std::uint32_t word = 0;
    for (unsigned i = 0; i < field.octets; ++i) {
        word = word << 8 | octets[field.offset + i];
    }
    return word;
}

} // namespace

std::uint32_t bitsOf(const unsigned char *octets, const Field &field)
{
    return wordOf(octets, field) >> field.shift & maskOf(field);
}

void setBits(unsigned char *octets, const Field &field, std::uint32_t value)
{
    const std::uint32_t mask = maskOf(field);
    std::uint32_t word = (wordOf(octets, field) & ~(mask << field.shift)) | (value & mask) << field.shift;
    for (unsigned i = field.octets; i-- > 0; word >>= 8) {
        octets[field.offset + i] = static_cast<unsigned char>(word);
    }
}

double valueOf(const unsigned char *octets, const Field &field)
{
    const std::uint32_t bits = bitsOf(octets, field);
    const bool isNegative = field.isSigned && bits >> (field.bits - 1) != 0;
    return (isNegative ? bits - std::ldexp(1.0, static_cast<int>(field.bits)) : bits) * field.lsb;
}

void setValue(unsigned char *octets, const Field &field, double value)
{
    const double span = std::ldexp(1.0, static_cast<int>(field.bits));
    const double lowest = field.isSigned ? -span / 2 : 0;
    const double steps = std::isnan(value) ? 0 : std::clamp(std::round(value / field.lsb), lowest, lowest + span - 1);
    setBits(octets, field, static_cast<std::uint32_t>(static_cast<std::int64_t>(steps)));
}

} // namespace sirm_layout
