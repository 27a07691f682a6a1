#include "layout.h"

#include "categories/categories.h"
#include "typed_items.h"

#include <algorithm>
#include <bit>

namespace korvane::asterix {
namespace {

// Numbers up to 64 bits with sign, 24 digits of fraction and separators.
constexpr std::uint32_t NumberJsonSize = 48;
// A character that JSON needs escaped: backslash, u, four digits.
constexpr std::uint32_t EscapeJsonSize = 6;

void compileLsb(Node &node, Lsb lsb)
{
    node.numerator = lsb.numerator;
    node.denominator = lsb.denominator;
    while (node.numerator % 2 == 0 && node.denominator % 2 == 0) {
        node.numerator /= 2;
        node.denominator /= 2;
    }
    if (std::has_single_bit(node.denominator)) {
        node.denominatorPower = std::countr_zero(node.denominator);
    }
    std::uint32_t power = 1;
    for (int digits = 0; digits <= 4; ++digits, power *= 10) {
        if (power % node.denominator == 0) {
            node.denominatorDigits = digits;
            node.decimalNumerator = node.numerator * (power / node.denominator);
            break;
        }
    }
}

class Compiler {
public:
    int nodeCount() const { return m_nextId; }

    void compileItem(Node &node, const Field &field) { compile(node, field, nullptr, nullptr, 0); }

private:
    // bitOffset: from the anchor's start; an anchor (null given) starts anew.
    void compile(Node &node, const Field &field, const Node *parent, const Node *anchor, int bitOffset)
    {
        node.id = m_nextId++;
        node.kind = field.kind;
        node.isSigned = field.isSigned;
        node.bits = field.bits;
        node.parent = parent;
        node.anchor = anchor ? anchor : &node;
        node.bitOffset = static_cast<std::uint16_t>(bitOffset);
        node.title = field.title;
        node.unit = field.unit;
        node.name = field.name ? field.name : "";
        node.key = '"' + node.name + "\":";
        node.keySize = static_cast<std::uint8_t>(node.key.size());
        node.key.resize(std::max(node.key.size(), KeyRoom));
        std::copy(std::begin(field.selected), std::end(field.selected), node.selected);
        compileLsb(node, field.lsb);
        node.children.resize(field.fieldCount);
        compileBody(node, field);
        if (!anchor && node.bits > 0 && !node.isRepetitive() && node.kind != Kind::Extended) {
            node.octets = static_cast<std::uint16_t>(node.bits / 8);
        }
        node.jsonSize += static_cast<std::uint32_t>(node.key.size()) + 4; // brackets and comma
    }

    void compileBody(Node &node, const Field &field)
    {
        switch (field.kind) {
        case Kind::Group:
        case Kind::Extended:
            compileSequence(node, field);
            break;
        case Kind::Case:
            compileCase(node, field);
            break;
        case Kind::Compound:
        case Kind::Explicit:
            for (std::size_t i = 0; i < node.children.size(); ++i) {
                compile(node.children[i], field.fields[i], &node, nullptr, 0);
                node.jsonSize += node.children[i].jsonSize;
            }
            break;
        case Kind::Repetitive:
        case Kind::RepetitiveFx:
            compileRepetition(node, field);
            break;
        default:
            node.jsonSize = node.bits <= 64 ? std::max(NumberJsonSize, node.bits / 8 * EscapeJsonSize) : node.bits;
        }
    }

    void compileSequence(Node &node, const Field &field)
    {
        int offset = node.bitOffset;
        int extentBits = 0;
        node.octetExtents = field.kind == Kind::Extended;
        for (std::size_t i = 0; i < node.children.size(); ++i) {
            Node &child = node.children[i];
            compile(child, field.fields[i], &node, node.anchor, offset);
            offset += child.bits;
            extentBits += child.bits;
            if (child.kind == Kind::ExtentEnd) {
                node.octetExtents = node.octetExtents && extentBits == 8;
                extentBits = 0;
            }
            node.jsonSize += child.jsonSize;
        }
        node.octetExtents = node.octetExtents && extentBits == 0;
        node.bits = static_cast<std::uint16_t>(offset - node.bitOffset);
    }

    void compileCase(Node &node, const Field &field)
    {
        for (std::size_t i = 0; i < node.children.size(); ++i) {
            compile(node.children[i], field.fields[i], &node, node.anchor, node.bitOffset);
            node.bits = node.children[i].bits;
            node.jsonSize = std::max(node.jsonSize, node.children[i].jsonSize);
        }
        for (const char *path : field.selectors) {
            if (path) {
                node.selectors.push_back({path, nullptr});
            }
        }
        node.jsonSize += NumberJsonSize;
    }

    // The element is the first child's anchor: a group of its own around all fields.
    void compileRepetition(Node &node, const Field &field)
    {
        node.plainElements = field.fieldCount == 1 && !field.fields[0].name;
        node.children.assign(1, {});
        Field inner;
        inner.kind = Kind::Group;
        inner.fields = field.fields;
        inner.fieldCount = field.fieldCount;
        compile(node.children[0], node.plainElements ? field.fields[0] : inner, &node, nullptr, 0);
        const int fxBit = field.kind == Kind::RepetitiveFx ? 1 : 0;
        node.elementOctets = static_cast<std::uint16_t>((node.children[0].bits + fxBit) / 8);
        node.children[0].octets = node.elementOctets;
    }

    int m_nextId = 0;
};

// A case beside the field that it looks at is the rule: found once here, read without a search later.
void linkSelectors(Node &node)
{
    for (Selector &selector : node.selectors) {
        const std::string_view path = selector.path;
        const std::size_t slash = path.rfind('/');
        if (!node.parent || slash == std::string_view::npos) {
            continue;
        }
        const std::string_view owner = path.substr(0, slash);
        if (owner.substr(owner.rfind('/') + 1) == node.parent->name) {
            selector.sibling = node.parent->child(path.substr(slash + 1));
        }
    }
    for (Node &child : node.children) {
        linkSelectors(child);
    }
}

Step makeStep(const Node &node)
{
    return Step{node.octets, node.octets > 0 ? Kind::Group : node.kind, &node};
}

std::unique_ptr<Uap> makeUap(const Layout &layout, const Variation &variation)
{
    auto uap = std::make_unique<Uap>();
    uap->layout = &layout;
    uap->variation = variation.name;
    uap->count = static_cast<int>(std::min<std::size_t>(variation.count, MaxUapItems));
    uap->typed.fill(NoSlot);
    for (int slot = 0; slot < uap->count; ++slot) {
        const std::string_view name = variation.order[slot];
        if (name == Unused) {
            continue;
        }
        uap->defined |= std::uint64_t{1} << (63 - slot);
        if (const Node *node = name == RandomFields ? nullptr : layout.find(name)) {
            uap->steps[static_cast<std::size_t>(slot)] = makeStep(*node);
        }
        if (name == "010") {
            uap->sacSic = static_cast<std::uint8_t>(slot);
        }
    }
    const std::span<const char *const> typed = typedItems(layout.edition().category);
    for (std::size_t i = 0; i < typed.size(); ++i) {
        if (const int slot = uap->slotOf(layout.find(typed[i])); slot >= 0) {
            uap->typed[i] = static_cast<std::uint8_t>(slot);
        }
    }
    uap->reportFields = findReportFields(*uap);
    return uap;
}

} // namespace

const Node *Node::child(std::string_view childName) const
{
    // The fields of a repetition and of a case's alternatives are addressed without naming those.
    if (isRepetitive()) {
        return plainElements ? nullptr : children[0].child(childName);
    }
    if (kind == Kind::Case) {
        for (const Node &alternative : children) {
            if (const Node *found = alternative.child(childName)) {
                return found;
            }
        }
        return nullptr;
    }
    for (const Node &node : children) {
        if (node.name == childName && !node.name.empty()) {
            return &node;
        }
    }
    return nullptr;
}

Layout::Layout(const Edition &edition) : m_edition(&edition)
{
    // The items stay where they are from here on: nodes point at each other.
    m_items.resize(edition.itemCount);
    Compiler compiler;
    for (std::size_t i = 0; i < edition.itemCount; ++i) {
        compiler.compileItem(m_items[i], edition.items[i]);
    }
    for (Node &item : m_items) {
        linkSelectors(item);
    }
    m_nodeCount = compiler.nodeCount();
}

const Node *Layout::find(std::string_view path) const
{
    std::size_t slash = path.find('/');
    const std::string_view item = path.substr(0, slash);
    const auto found =
        std::find_if(m_items.begin(), m_items.end(), [&](const Node &node) { return node.name == item; });
    const Node *node = found == m_items.end() ? nullptr : &*found;
    while (node && slash != std::string_view::npos) {
        path.remove_prefix(slash + 1);
        slash = path.find('/');
        node = node->child(path.substr(0, slash));
    }
    return node;
}

int Uap::slotOf(const Node *item) const
{
    for (int slot = 0; item && slot < count; ++slot) {
        if (steps[static_cast<std::size_t>(slot)].node == item) {
            return slot;
        }
    }
    return -1;
}

CategoryTable::CategoryTable(const Edition &edition) : layout(edition)
{
    for (std::size_t i = 0; i < edition.variationCount; ++i) {
        uaps.push_back(makeUap(layout, edition.variations[i]));
    }
    if (edition.selectorItem) {
        const Node *item = layout.find(edition.selectorItem);
        selectorField = item->child(edition.selectorField);
        selectorSlot = uaps.front()->slotOf(item);
    }
}

const Uap *CategoryTable::variation(std::string_view name) const
{
    for (const std::unique_ptr<Uap> &uap : uaps) {
        if (uap->variation == name) {
            return uap.get();
        }
    }
    return nullptr;
}

const CategoryTable *findTable(int category, const char *edition)
{
    static const std::vector<std::unique_ptr<CategoryTable>> tables = [] {
        std::vector<std::unique_ptr<CategoryTable>> made;
        for (const Edition *each : allEditions()) {
            made.push_back(std::make_unique<CategoryTable>(*each));
        }
        return made;
    }();
    for (const std::unique_ptr<CategoryTable> &table : tables) {
        if (table->layout.edition().category == category && (!edition || table->edition() == edition)) {
            return table.get();
        }
    }
    return nullptr;
}

} // namespace korvane::asterix
