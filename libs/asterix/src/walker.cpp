#include "walker.h"

#include "bits.h"

#include <bit>

namespace korvane::asterix {
namespace {

std::size_t fail(Fault &fault, Error error, const unsigned char *at)
{
    fault = {error, at};
    return 0;
}

std::size_t extendedLength(const Node &node, const unsigned char *at, const unsigned char *end, Fault &fault)
{
    const unsigned char *next = at;
    if (!node.octetExtents) {
        unsigned bits = 0; // up to and with the FX bit looked at
        for (const Node &child : node.children) {
            bits += child.bits;
            if (child.kind != Kind::ExtentEnd && &child != &node.children.back()) {
                continue;
            }
            next = at + bits / 8;
            if (next > end) {
                return fail(fault, Error::ItemTruncated, end);
            }
            if (child.kind != Kind::ExtentEnd || !(next[-1] & 1)) {
                return static_cast<std::size_t>(next - at);
            }
        }
    }
    // A later edition of the document may have added extents: they are passed over.
    do {
        if (next == end) {
            return fail(fault, Error::ItemTruncated, end);
        }
    } while (*next++ & 1);
    return static_cast<std::size_t>(next - at);
}

std::size_t repetitiveFxLength(const Node &node, const unsigned char *at, const unsigned char *end, Fault &fault)
{
    const unsigned char *next = at;
    do {
        if (end - next < node.elementOctets) {
            return fail(fault, Error::ItemTruncated, end);
        }
        next += node.elementOctets;
    } while (next[-1] & 1);
    return static_cast<std::size_t>(next - at);
}

std::size_t repetitiveLength(const Node &node, const unsigned char *at, const unsigned char *end, Fault &fault)
{
    if (at == end) {
        return fail(fault, Error::ItemTruncated, end);
    }
    const std::size_t length = 1 + std::size_t{at[0]} * node.elementOctets;
    if (static_cast<std::size_t>(end - at) < length) {
        return fail(fault, Error::RepetitionTruncated, at);
    }
    return length;
}

std::size_t explicitItemLength(const unsigned char *at, const unsigned char *end, Fault &fault)
{
    if (at == end) {
        return fail(fault, Error::ItemTruncated, end);
    }
    if (at[0] == 0) {
        return fail(fault, Error::ExplicitLengthZero, at);
    }
    if (end - at < at[0]) {
        return fail(fault, Error::ExplicitLengthTruncated, at);
    }
    return at[0];
}

std::size_t compoundLength(const Node &node, const unsigned char *at, const unsigned char *end, Fault &fault)
{
    const std::size_t presence = presenceLength(at, end, fault);
    if (presence == 0) {
        return 0;
    }
    const unsigned char *next = at + presence;
    for (std::size_t octet = 0; octet < presence; ++octet) {
        unsigned bits = at[octet] & 0xFEU;
        while (bits) {
            const auto leading = static_cast<std::size_t>(std::countl_zero(static_cast<std::uint8_t>(bits)));
            bits &= ~(0x80U >> leading);
            const std::size_t index = octet * 7 + leading;
            if (index >= node.children.size() || node.children[index].kind == Kind::Vacant) {
                return fail(fault, Error::SparePresenceBit, at + octet);
            }
            const std::size_t length = itemLength(node.children[index], next, end, fault);
            if (length == 0) {
                return 0;
            }
            next += length;
        }
    }
    return static_cast<std::size_t>(next - at);
}

struct Walk {
    const Uap &uap;
    const unsigned char *end;
    _ast_datarecord_t &record;
    Fault &fault;

    // Notes the item of a slot and returns its length, 0 on a fault.
    std::size_t enter(std::size_t slot, const unsigned char *at)
    {
        const Step &step = uap.steps[slot];
        record.itemOffsets[slot] = static_cast<std::uint16_t>(at - record.data);
        if (step.octets > 0) [[likely]] {
            return end - at >= step.octets ? step.octets : fail(fault, Error::ItemTruncated, end);
        }
        // Most descriptors and states have their first extent only.
        if (step.kind == Kind::Extended && at < end && !(*at & 1) && step.node->octetExtents) {
            return 1;
        }
        return step.node ? itemLength(*step.node, at, end, fault) : randomFields(at);
    }

    // A count, then so many items, each after its field reference number.
    std::size_t randomFields(const unsigned char *at)
    {
        if (at == end) {
            return fail(fault, Error::ItemTruncated, end);
        }
        const unsigned char *next = at + 1;
        for (unsigned left = at[0]; left > 0; --left) {
            if (next == end) {
                return fail(fault, Error::ItemTruncated, end);
            }
            const unsigned slot = *next - 1U;
            if (slot >= static_cast<unsigned>(uap.count) || !uap.steps[slot].node) {
                return fail(fault, Error::RandomFieldSequence, next);
            }
            const std::size_t length = enter(slot, next + 1);
            if (length == 0) {
                return 0;
            }
            next += 1 + length;
        }
        return static_cast<std::size_t>(next - at);
    }

    bool items(std::uint64_t present, const unsigned char *at)
    {
        while (present) {
            const int slot = std::countl_zero(present);
            present &= ~(std::uint64_t{1} << (63 - slot));
            const std::size_t length = enter(static_cast<std::size_t>(slot), at);
            if (length == 0) [[unlikely]] {
                return false;
            }
            at += length;
        }
        record.length = static_cast<std::uint16_t>(at - record.data);
        record.valid = true;
        return true;
    }
};

struct Fspec {
    std::uint64_t present = 0; // bit 63 is FRN 1
    const unsigned char *next = nullptr; // the first octet after it; null on a fault
};

constexpr std::size_t FspecOctets = 9; // 63 FRNs

Fspec readFspec(const unsigned char *at, const unsigned char *end, Fault &fault)
{
    Fspec fspec;
    std::size_t octets = 0;
    for (;; ++octets) {
        if (at + octets == end) {
            fail(fault, Error::FspecTruncated, end);
            return fspec;
        }
        const unsigned octet = at[octets];
        if (octets < FspecOctets) {
            fspec.present |= std::uint64_t{octet >> 1} << (57 - 7 * octets);
        } else if (octet & 0xFEU) {
            fail(fault, Error::SpareFspecBit, at + octets);
            return fspec;
        }
        if (!(octet & 1U)) {
            break;
        }
    }
    fspec.next = at + octets + 1;
    return fspec;
}

// The UAP that the record's own selecting field asks for; the first one where the field is not sent.
const Uap *selectUap(const CategoryTable &table, const Fspec &fspec, const unsigned char *end)
{
    const Uap *first = table.uaps.front().get();
    if (table.selectorSlot < 0 || !(fspec.present >> (63 - table.selectorSlot) & 1)) {
        return first;
    }
    const unsigned char *at = fspec.next;
    for (int slot = 0; slot < table.selectorSlot; ++slot) {
        if (fspec.present >> (63 - slot) & 1) {
            at += first->steps[static_cast<std::size_t>(slot)].octets;
        }
        if (at >= end) {
            return first;
        }
    }
    const Node &field = *table.selectorField;
    const std::uint64_t chosen = bitsAt(at, field.bitOffset, field.bits);
    return table.uaps[chosen < table.uaps.size() ? chosen : 0].get();
}

// The items of one record. False, with fault set, when they are malformed; record is then undefined.
bool walkItems(const Uap &uap, const Fspec &fspec, const unsigned char *at, const unsigned char *end,
    _ast_datarecord_t &record, Fault &fault)
{
    if (const std::uint64_t spare = fspec.present & ~uap.defined; spare) [[unlikely]] {
        fail(fault, Error::SpareFspecBit, at + std::countl_zero(spare) / 7);
        return false;
    }
    record.data = at;
    record.uap = &uap;
    return Walk{uap, end, record, fault}.items(fspec.present, fspec.next);
}

// One record from at on. False, with fault set, when it is malformed; record is then undefined.
bool walkRecord(const CategoryTable &table, const Uap *forced, const unsigned char *at, const unsigned char *end,
    _ast_datarecord_t &record, Fault &fault)
{
    const Fspec fspec = readFspec(at, end, fault);
    if (!fspec.next) {
        return false;
    }
    return walkItems(forced ? *forced : *selectUap(table, fspec, end), fspec, at, end, record, fault);
}

} // namespace

bool decodeRecord(_ast_datarecord_t &record, const unsigned char *data, std::size_t length, const Uap &uap)
{
    Fault fault;
    const Fspec fspec = readFspec(data, data + length, fault);
    record = {};
    return fspec.next && walkItems(uap, fspec, data, data + length, record, fault);
}

std::size_t presenceLength(const unsigned char *at, const unsigned char *end, Fault &fault)
{
    const unsigned char *next = at;
    do {
        if (next == end) {
            return fail(fault, Error::ItemTruncated, end);
        }
    } while (*next++ & 1);
    return static_cast<std::size_t>(next - at);
}

bool hasKnownContents(const Node &node, const unsigned char *at)
{
    const unsigned char *const end = at + at[0];
    const std::size_t known = std::min<std::size_t>(node.children.size(), 8);
    if (at[0] < 2 || at[1] == 0 || (known < 8 && (at[1] & (0xFFU >> known)))) {
        return false;
    }
    const Presence presence(node, at);
    const unsigned char *next = presence.contents();
    Fault fault;
    for (std::size_t i = 0; i < presence.positions(); ++i) {
        if (!presence.has(i)) {
            continue;
        }
        const std::size_t length = itemLength(node.children[i], next, end, fault);
        if (length == 0) {
            return false;
        }
        next += length;
    }
    return next == end;
}

std::size_t itemLength(const Node &node, const unsigned char *at, const unsigned char *end, Fault &fault)
{
    if (node.octets > 0) {
        return end - at >= node.octets ? node.octets : fail(fault, Error::ItemTruncated, end);
    }
    switch (node.kind) {
    case Kind::Extended:
        return extendedLength(node, at, end, fault);
    case Kind::Compound:
        return compoundLength(node, at, end, fault);
    case Kind::Repetitive:
        return repetitiveLength(node, at, end, fault);
    case Kind::RepetitiveFx:
        return repetitiveFxLength(node, at, end, fault);
    default:
        return explicitItemLength(at, end, fault);
    }
}

void decodeRecords(_ast_datablock_t &block, const unsigned char *data, const CategoryTable &table, const Uap *forced)
{
    if (forced && forced->layout != &table.layout) {
        forced = nullptr;
    }
    constexpr std::size_t HeaderOctets = 3;
    const unsigned char *at = data + HeaderOctets;
    const unsigned char *const end = data + block.size;
    block.records.clear();
    block.valid = false;
    block.error = Error::None;
    block.errorOffset = 0;
    Fault fault;
    while (at < end) {
        _ast_datarecord_t &record = block.records.emplace_back();
        if (!walkRecord(table, forced, at, end, record, fault)) {
            block.records.pop_back();
            block.error = fault.error;
            block.errorOffset = static_cast<std::uint32_t>(fault.at - data);
            return;
        }
        at += record.length;
    }
    block.valid = true;
}

} // namespace korvane::asterix
