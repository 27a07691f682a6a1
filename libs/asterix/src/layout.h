#pragma once

// The form of a category edition that the engines run over: the table with every offset, length and key worked out
// once.

#include "field.h"
#include "report_fields.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::asterix {

struct Node;

// Another field that a case looks at.
struct Selector {
    std::string path;
    // Where it is in the same group as the case itself, which is the rule; null otherwise.
    const Node *sibling = nullptr;
};

// Keys are copied in pieces of this size whatever their length: shorter than a call.
inline constexpr std::size_t KeyRoom = 16;

struct Node {
    Kind kind = Kind::Raw;
    bool isSigned = false;
    // In octets: the whole item or sub-item where its length is always the same, else 0. One element (and its FX bit)
    // of a repetition.
    std::uint16_t octets = 0;
    std::uint16_t elementOctets = 0;
    std::uint16_t bits = 0;
    // From the first bit of the anchor. Fields of extents that are not sent have their place, too.
    std::uint16_t bitOffset = 0;
    std::uint32_t numerator = 1;
    std::uint32_t denominator = 1;
    int denominatorPower = -1; // the denominator is 2 to this; -1: it is no power of two
    int denominatorDigits = -1; // the denominator divides 10 to this, decimal numbers are exact; -1: it does not
    std::uint32_t decimalNumerator = 1; // the numerator for that power of ten
    bool plainElements = false; // a repetition of one nameless element: an array of values
    bool octetExtents = false; // an extended item whose extents all have one octet
    int id = 0; // within the layout
    const Node *parent = nullptr;
    // The item, sub-item or repetition element that starts at an octet and holds this field. An anchor is its own.
    const Node *anchor = nullptr;
    const char *title = ""; // of an item
    const char *unit = "";
    std::string name;
    std::string key; // "TYP": with its quotes and colon, then filled up to KeyRoom
    std::uint8_t keySize = 0; // without the filling
    std::uint32_t jsonSize = 0; // the most characters that it takes in JSON, repetitions and contents not counted
    std::uint32_t selected[MaxSelectors] = {};
    std::vector<Selector> selectors;
    std::vector<Node> children;

    bool isRepetitive() const { return kind == Kind::Repetitive || kind == Kind::RepetitiveFx; }
    const Node *child(std::string_view childName) const;
};

class Layout {
public:
    explicit Layout(const Edition &edition);
    Layout(const Layout &) = delete;
    Layout &operator=(const Layout &) = delete;

    const Edition &edition() const { return *m_edition; }
    const std::vector<Node> &items() const { return m_items; }
    int nodeCount() const { return m_nodeCount; }
    // Null where there is none. path: ITEM/FIELD/FIELD; alternatives of a case are one field.
    const Node *find(std::string_view path) const;

private:
    const Edition *m_edition;
    std::vector<Node> m_items;
    int m_nodeCount = 0;
};

// The slots of Uap::typed for an item that the UAP does not hold: a place of itemOffsets that is never filled.
inline constexpr std::uint8_t NoSlot = 69;
// FRNs that fit the walker's 64-bit set of present items.
inline constexpr int MaxUapItems = 63;
inline constexpr int MaxTypedItems = 24;

// How the walker passes over one item.
struct Step {
    std::uint16_t octets = 0; // where the length is fixed
    Kind kind = Kind::Vacant; // Group for anything of fixed length
    const Node *node = nullptr; // null: random field sequencing
};

struct Uap {
    const Layout *layout = nullptr;
    std::string_view variation;
    int count = 0;
    std::uint64_t defined = 0; // bit 63 is FRN 1
    std::array<Step, MaxUapItems> steps;
    // FRN minus 1 of the items that the category's typed record reads, in its own order; NoSlot where absent.
    std::array<std::uint8_t, MaxTypedItems> typed;
    std::uint8_t sacSic = NoSlot; // of item 010
    ReportFields reportFields; // of categories of target reports

    // FRN minus 1 of an item, -1 where this UAP does not have it.
    int slotOf(const Node *item) const;
};

// One edition as decoders use it: its UAPs, and how a record chooses among them.
struct CategoryTable {
    explicit CategoryTable(const Edition &edition);

    std::string_view edition() const { return layout.edition().edition; }
    const Uap *variation(std::string_view name) const;

    Layout layout;
    std::vector<std::unique_ptr<Uap>> uaps;
    int selectorSlot = -1; // FRN minus 1 of the item that holds the selecting field; -1: one UAP only
    const Node *selectorField = nullptr;
};

// The tables that are built in, made at first use and kept. edition: null for the standard one. Null: no such table.
const CategoryTable *findTable(int category, const char *edition = nullptr);

} // namespace korvane::asterix
