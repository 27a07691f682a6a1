#include "record_fields.h"

#include "bits.h"
#include "walker.h"

#include <algorithm>

namespace korvane::asterix {
namespace {

// The octets of a sub-item of the compound at at; null where it is not present.
const unsigned char *subItem(
    const Node &compound, const Node &wanted, const unsigned char *at, const unsigned char *end)
{
    Fault fault;
    const Presence presence(compound, at);
    const unsigned char *next = presence.contents();
    for (std::size_t i = 0; i < presence.positions(); ++i) {
        if (!presence.has(i)) {
            continue;
        }
        if (&compound.children[i] == &wanted) {
            return next;
        }
        next += itemLength(compound.children[i], next, end, fault);
    }
    return nullptr;
}

// Whether the extent that holds field is sent.
bool extentSent(const Node &extended, const Node &field, const unsigned char *at)
{
    for (const Node &child : extended.children) {
        if (child.bitOffset >= field.bitOffset) {
            return true;
        }
        if (child.kind == Kind::ExtentEnd && bitsAt(at, child.bitOffset, 1) == 0) {
            return false;
        }
    }
    return true;
}

const unsigned char *anchorOctets(const _ast_datarecord_t &record, const Node &anchor)
{
    if (anchor.parent) {
        if (anchor.parent->kind != Kind::Compound) {
            return nullptr;
        }
        const unsigned char *outer = anchorOctets(record, *anchor.parent);
        return outer ? subItem(*anchor.parent, anchor, outer, record.data + record.length) : nullptr;
    }
    const int slot = record.uap->slotOf(&anchor);
    const unsigned offset = slot < 0 ? 0U : record.itemOffsets[slot];
    return offset > 0 ? record.data + offset : nullptr;
}

} // namespace

std::optional<std::uint64_t> fieldBits(const _ast_datarecord_t &record, const Node &field)
{
    const Node &anchor = *field.anchor;
    const unsigned char *at = anchorOctets(record, anchor);
    if (!at || !isElement(field.kind) || field.bits > 64) {
        return std::nullopt;
    }
    if (anchor.kind == Kind::Extended && !extentSent(anchor, field, at)) {
        return std::nullopt;
    }
    return bitsAt(at, field.bitOffset, field.bits);
}

const Node *chosenAlternative(const Node &node, const _ast_datarecord_t &record, const unsigned char *base)
{
    std::uint64_t values[MaxSelectors] = {};
    for (std::size_t i = 0; i < node.selectors.size(); ++i) {
        const Selector &selector = node.selectors[i];
        if (selector.sibling) {
            values[i] = bitsAt(base, selector.sibling->bitOffset, selector.sibling->bits);
            continue;
        }
        const Node *field = record.uap->layout->find(selector.path);
        const std::optional<std::uint64_t> bits = field ? fieldBits(record, *field) : std::nullopt;
        if (!bits) {
            return nullptr;
        }
        values[i] = *bits;
    }
    const auto fits = [&](const Node &alternative) {
        for (std::size_t i = 0; i < node.selectors.size(); ++i) {
            if (alternative.selected[i] != values[i]) {
                return false;
            }
        }
        return true;
    };
    const auto found = std::find_if(node.children.begin(), node.children.end(), fits);
    return found == node.children.end() ? nullptr : &*found;
}

} // namespace korvane::asterix
