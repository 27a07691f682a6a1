#pragma once

// The vocabulary of the category tables: what an item looks like on the wire, and how its bits become a value. The
// tables are constant data; layout.h turns them into the form that the engines run over.

#include <cstddef>
#include <cstdint>

namespace korvane::asterix {

enum class Kind : std::uint8_t {
    // Elements: so many bits, one value.
    Raw, // bits without arithmetic, code tables included
    Integer,
    Quantity, // bits times LSB in a unit
    Octal, // three bits a digit
    Icao, // six bits a character
    Ascii, // eight bits a character
    // Places without a value.
    Spare,
    ExtentEnd, // the FX bit of an extended item
    Vacant, // a position of a presence field or UAP that belongs to nothing
    // Structures.
    Group, // fields one after the other
    Extended, // fields in extents, an FX bit at the end of each
    Compound, // a presence field, then the sub-items that it names
    Repetitive, // one octet of count, then so many elements or groups
    RepetitiveFx, // elements or groups, an FX bit at the end of each
    // One octet of length (itself included), then contents. Where they are known: one octet of presence bits, all eight
    // of them for sub-items, then those.
    Explicit,
    Case, // the same bits, read by the value of other fields
};

constexpr bool isElement(Kind kind)
{
    return kind <= Kind::Ascii;
}

// A fraction, so that values stay exact: 360/65536 degrees.
struct Lsb {
    std::uint32_t numerator = 1;
    std::uint32_t denominator = 1;
};

// How many other fields one field's meaning may depend on.
inline constexpr int MaxSelectors = 2;

struct Field {
    const char *name = nullptr; // as in the category document; null for what has no value
    const char *title = "";
    Kind kind = Kind::Raw;
    bool isSigned = false;
    std::uint16_t bits = 0;
    Lsb lsb;
    const char *unit = "";
    const Field *fields = nullptr; // of a structure; the alternatives of a case
    std::uint16_t fieldCount = 0;
    const char *selectors[MaxSelectors] = {}; // of a case: paths from the item down; unused ones are null
    std::uint32_t selected[MaxSelectors] = {}; // of an alternative: the selectors' values
};

// ---- elements --------------------------------------------------------------------------------------------------

constexpr Field element(Kind kind, const char *name, int bits)
{
    Field field;
    field.kind = kind;
    field.name = name;
    field.bits = static_cast<std::uint16_t>(bits);
    return field;
}

constexpr Field raw(const char *name, int bits)
{
    return element(Kind::Raw, name, bits);
}

constexpr Field integer(const char *name, int bits)
{
    return element(Kind::Integer, name, bits);
}

// Two's complement.
constexpr Field signedInteger(const char *name, int bits)
{
    Field field = integer(name, bits);
    field.isSigned = true;
    return field;
}

constexpr Field octal(const char *name, int bits)
{
    return element(Kind::Octal, name, bits);
}

constexpr Field icao(const char *name, int bits)
{
    return element(Kind::Icao, name, bits);
}

constexpr Field ascii(const char *name, int bits)
{
    return element(Kind::Ascii, name, bits);
}

constexpr Field quantity(const char *name, int bits, Lsb lsb, const char *unit)
{
    Field field = element(Kind::Quantity, name, bits);
    field.lsb = lsb;
    field.unit = unit;
    return field;
}

constexpr Field signedQuantity(const char *name, int bits, Lsb lsb, const char *unit)
{
    Field field = quantity(name, bits, lsb, unit);
    field.isSigned = true;
    return field;
}

constexpr Field spare(int bits)
{
    return element(Kind::Spare, nullptr, bits);
}

inline constexpr Field fx = element(Kind::ExtentEnd, nullptr, 1);
inline constexpr Field vacant = element(Kind::Vacant, nullptr, 0);

// ---- structures ------------------------------------------------------------------------------------------------

template <std::size_t N>
constexpr Field structure(Kind kind, const char *name, const Field (&fields)[N])
{
    Field field = element(kind, name, 0);
    field.fields = fields;
    field.fieldCount = N;
    return field;
}

template <std::size_t N>
constexpr Field group(const char *name, const Field (&fields)[N])
{
    return structure(Kind::Group, name, fields);
}

template <std::size_t N>
constexpr Field extended(const char *name, const Field (&fields)[N])
{
    return structure(Kind::Extended, name, fields);
}

template <std::size_t N>
constexpr Field compound(const char *name, const Field (&fields)[N])
{
    return structure(Kind::Compound, name, fields);
}

// Of groups, or of plain elements where there is one field without a name.
template <std::size_t N>
constexpr Field repetitive(const char *name, const Field (&fields)[N])
{
    return structure(Kind::Repetitive, name, fields);
}

template <std::size_t N>
constexpr Field repetitiveFx(const char *name, const Field (&fields)[N])
{
    return structure(Kind::RepetitiveFx, name, fields);
}

constexpr Field explicitLength(const char *name)
{
    return element(Kind::Explicit, name, 0);
}

// An explicit field with contents of its own document, the reserved expansion field.
template <std::size_t N>
constexpr Field expansion(const char *name, const Field (&fields)[N])
{
    return structure(Kind::Explicit, name, fields);
}

// A field that the value at selector reads one way or another; a raw value where no alternative fits.
template <std::size_t N>
constexpr Field caseOf(const char *name, const char *selector, const Field (&alternatives)[N])
{
    Field field = structure(Kind::Case, name, alternatives);
    field.selectors[0] = selector;
    return field;
}

template <std::size_t N>
constexpr Field caseOf(const char *name, const char *first, const char *second, const Field (&alternatives)[N])
{
    Field field = caseOf(name, first, alternatives);
    field.selectors[1] = second;
    return field;
}

constexpr Field when(std::uint32_t value, Field alternative)
{
    alternative.selected[0] = value;
    return alternative;
}

constexpr Field when(std::uint32_t first, std::uint32_t second, Field alternative)
{
    alternative.selected[1] = second;
    return when(first, alternative);
}

// A whole item: its title as published.
constexpr Field item(const char *title, Field field)
{
    field.title = title;
    return field;
}

// ---- categories ------------------------------------------------------------------------------------------------

inline constexpr const char *RandomFields = "rfs"; // the random field sequencing indicator's place in a UAP
inline constexpr const char *Unused = "-"; // a place of a UAP that belongs to no item

struct Variation {
    const char *name = ""; // "plot"; empty where the category has one UAP only
    const char *const *order = nullptr; // item names by field reference number, from 1
    std::size_t count = 0;
};

struct Edition {
    int category = 0;
    const char *edition = "";
    const char *title = "";
    const Field *items = nullptr;
    std::size_t itemCount = 0;
    const Variation *variations = nullptr;
    std::size_t variationCount = 0;
    // The one-bit or wider field whose value is the index of a record's variation: it stands in the first octet of an
    // extended item with the same field reference number in all of them. Null where there is one variation.
    const char *selectorItem = nullptr;
    const char *selectorField = nullptr;
};

template <std::size_t N>
constexpr Variation variation(const char *name, const char *const (&order)[N])
{
    return Variation{name, order, N};
}

} // namespace korvane::asterix
