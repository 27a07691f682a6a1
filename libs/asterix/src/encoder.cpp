#include "asterix/encoder.h"

#include "bits.h"
#include "field_values.h"
#include "layout.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace korvane::asterix {
namespace {

constexpr std::size_t HeaderOctets = 3;
constexpr std::size_t MaxBlockOctets = 65535;
constexpr std::size_t MaxRepetitions = 255;
constexpr std::size_t MaxExplicitContents = 254;

void putBits(unsigned char *octets, unsigned bitOffset, unsigned bits, std::uint64_t value)
{
    for (unsigned i = 0; i < bits; ++i) {
        const unsigned at = bitOffset + i;
        const auto mask = static_cast<unsigned char>(0x80U >> at % 8);
        if (value >> (bits - 1 - i) & 1) {
            octets[at / 8] |= mask;
        } else {
            octets[at / 8] &= static_cast<unsigned char>(~mask);
        }
    }
}

// What is set of one node in the record at hand.
struct Slot {
    std::uint32_t serial = 0; // of the record that last touched it
    unsigned extentEnd = 0; // extended items: the bit offset of the last field set
    std::size_t count = 0; // repetitions
    std::vector<unsigned char> octets; // of an anchor; all repetitions of a repetitive item
};

} // namespace

struct BlockEncoder::State {
    const CategoryTable *table = nullptr;
    const Uap *forced = nullptr; // null: each record chooses
    std::vector<const Node *> nodes; // by id
    std::map<std::string, int, std::less<>> ids; // by path
    std::vector<Slot> slots; // by node id
    std::vector<const Node *> items; // touched in this record
    std::vector<unsigned char> block;
    std::uint32_t serial = 1;
    std::size_t records = 0;
    bool tooLong = false; // an explicit item of the record at hand has more contents than its length octet can say

    explicit State(const CategoryTable &ofTable) : table(&ofTable)
    {
        slots.resize(static_cast<std::size_t>(table->layout.nodeCount()));
        nodes.resize(slots.size());
        for (const Node &item : table->layout.items()) {
            enrol(item, item.name);
        }
        block.reserve(MaxBlockOctets);
        items.reserve(table->layout.items().size());
        reset();
    }

    void enrol(const Node &node, const std::string &path)
    {
        nodes[static_cast<std::size_t>(node.id)] = &node;
        ids.emplace(path, node.id); // of two alternatives with fields of one name, the first stands for both
        if (node.anchor == &node) {
            slots[static_cast<std::size_t>(node.id)].octets.resize((node.bits + 7U) / 8);
        }
        for (const Node &child : node.children) {
            const bool isTransparent = node.isRepetitive() || node.kind == Kind::Case;
            enrol(child, isTransparent ? path : path + '/' + child.name);
        }
    }

    void reset()
    {
        block.assign(HeaderOctets, 0);
        block[0] = static_cast<unsigned char>(table->layout.edition().category);
        records = 0;
        beginRecord();
    }

    void beginRecord()
    {
        ++serial;
        items.clear();
    }

    Slot &slot(const Node &node) { return slots[static_cast<std::size_t>(node.id)]; }
    const Slot &slot(const Node &node) const { return slots[static_cast<std::size_t>(node.id)]; }
    bool isSet(const Node &node) const { return slot(node).serial == serial; }

    // Makes node and what holds it present, all of it zero where it was not before.
    void touch(const Node &node)
    {
        for (const Node *each = &node; each; each = each->parent) {
            Slot &touched = slot(*each);
            if (touched.serial == serial) {
                return;
            }
            touched.serial = serial;
            touched.extentEnd = 0;
            touched.count = 0;
            if (each->isRepetitive() || each->kind == Kind::Explicit) {
                touched.octets.clear();
            } else {
                std::fill(touched.octets.begin(), touched.octets.end(), static_cast<unsigned char>(0));
            }
            if (!each->parent) {
                items.push_back(each);
            }
        }
    }

    // The octets in which node's bit offset counts; null where it belongs to a repetition of which there is none.
    unsigned char *imageFor(const Node &node)
    {
        const Node &anchor = *node.anchor;
        const Node *repetition = anchor.parent && anchor.parent->isRepetitive() ? anchor.parent : nullptr;
        if (repetition) {
            Slot &repetitions = slot(*repetition);
            if (repetitions.serial != serial || repetitions.count == 0) {
                return nullptr;
            }
            return repetitions.octets.data() + (repetitions.count - 1) * repetition->elementOctets;
        }
        touch(node);
        Slot &image = slot(anchor);
        image.extentEnd = std::max<unsigned>(image.extentEnd, node.bitOffset);
        return image.octets.data();
    }

    bool put(const Node &node, std::uint64_t bits)
    {
        unsigned char *image = imageFor(node);
        if (image) {
            putBits(image, node.bitOffset, node.bits, bits);
        }
        return image != nullptr;
    }

    // What a selecting field is set to; zero where it is not, which is what will be sent.
    std::uint64_t valueOf(const Node &field)
    {
        const Node &anchor = *field.anchor;
        if (anchor.parent && anchor.parent->isRepetitive()) {
            const Slot &repetitions = slot(*anchor.parent);
            const std::size_t octets = anchor.parent->elementOctets;
            return isSet(*anchor.parent) && repetitions.count > 0
                ? bitsAt(repetitions.octets.data() + (repetitions.count - 1) * octets, field.bitOffset, field.bits)
                : 0;
        }
        return isSet(anchor) ? bitsAt(slot(anchor).octets.data(), field.bitOffset, field.bits) : 0;
    }

    // The element that holds the value of node: itself, or the alternative of a case; null where it has none.
    const Node *elementOf(const Node &node)
    {
        if (isElement(node.kind)) {
            return &node;
        }
        if (node.isRepetitive() && node.plainElements) {
            return &node.children[0];
        }
        if (node.kind != Kind::Case) {
            return nullptr;
        }
        for (const Node &alternative : node.children) {
            bool fits = true;
            for (std::size_t i = 0; i < node.selectors.size(); ++i) {
                const Selector &selector = node.selectors[i];
                const Node *field = selector.sibling ? selector.sibling : table->layout.find(selector.path);
                fits = fits && field && valueOf(*field) == alternative.selected[i];
            }
            if (fits) {
                return elementOf(alternative);
            }
        }
        return &node; // one raw value
    }

    bool append(const Node &repetitive)
    {
        if (!repetitive.isRepetitive()) {
            return false;
        }
        touch(repetitive);
        Slot &repetitions = slot(repetitive);
        if (repetitive.kind == Kind::Repetitive && repetitions.count == MaxRepetitions) {
            return false;
        }
        repetitions.octets.resize(repetitions.octets.size() + repetitive.elementOctets);
        ++repetitions.count;
        return true;
    }

    // A plain element of a repetition is a repetition of its own each time that it is set.
    bool openRepetition(const Node &node) { return !node.isRepetitive() || append(node); }

    void emit(const Node &node)
    {
        switch (node.kind) {
        case Kind::Extended:
            emitExtended(node);
            break;
        case Kind::Compound:
            emitCompound(node);
            break;
        case Kind::Repetitive:
            block.push_back(static_cast<unsigned char>(slot(node).count));
            emitOctets(slot(node).octets);
            break;
        case Kind::RepetitiveFx:
            emitRepetitiveFx(node);
            break;
        case Kind::Explicit:
            emitExplicit(node);
            break;
        default:
            emitOctets(slot(node).octets);
        }
    }

    void emitOctets(const std::vector<unsigned char> &octets)
    {
        block.insert(block.end(), octets.begin(), octets.end());
    }

    void emitExtended(const Node &node)
    {
        Slot &image = slot(node);
        for (const Node &child : node.children) {
            if (child.kind != Kind::ExtentEnd) {
                continue;
            }
            const bool more = image.extentEnd > child.bitOffset;
            putBits(image.octets.data(), child.bitOffset, 1, more ? 1 : 0);
            if (!more) {
                block.insert(block.end(), image.octets.begin(), image.octets.begin() + (child.bitOffset + 1) / 8);
                return;
            }
        }
        emitOctets(image.octets);
    }

    bool isSent(const Node &child) const { return child.kind != Kind::Vacant && isSet(child); }

    void emitCompound(const Node &node)
    {
        const std::size_t presence = block.size();
        block.push_back(0);
        for (std::size_t i = 0; i < node.children.size(); ++i) {
            if (isSent(node.children[i])) {
                markPresent(presence, i);
            }
        }
        emitChildren(node);
    }

    void emitChildren(const Node &node)
    {
        for (const Node &child : node.children) {
            if (isSent(child)) {
                emit(child);
            }
        }
    }

    // Contents as they were given, or else the sub-items that were set.
    void emitExplicit(const Node &node)
    {
        const std::size_t start = block.size();
        block.push_back(0);
        emitOctets(slot(node).octets);
        unsigned presence = 0;
        for (std::size_t i = 0; i < node.children.size(); ++i) {
            presence |= isSent(node.children[i]) ? 0x80U >> i : 0U;
        }
        if (slot(node).octets.empty() && presence != 0) {
            block.push_back(static_cast<unsigned char>(presence));
            emitChildren(node);
        }
        tooLong = tooLong || block.size() - start > MaxExplicitContents + 1;
        block[start] = static_cast<unsigned char>(block.size() - start);
    }

    // Sets the bit of a position in the presence field or FSPEC that begins at start and ends the block so far.
    void markPresent(std::size_t start, std::size_t position)
    {
        while (block.size() - start <= position / 7) {
            block.back() |= 1;
            block.push_back(0);
        }
        block[start + position / 7] |= static_cast<unsigned char>(0x80U >> position % 7);
    }

    void emitRepetitiveFx(const Node &node)
    {
        Slot &repetitions = slot(node);
        if (repetitions.count == 0) {
            append(node); // there is no way to send none
        }
        for (std::size_t i = 1; i < repetitions.count; ++i) {
            repetitions.octets[i * node.elementOctets - 1] |= 1;
        }
        emitOctets(repetitions.octets);
    }

    // The UAP of the record at hand.
    const Uap *chooseUap()
    {
        if (forced && table->selectorField) {
            const auto same = [this](const auto &uap) { return uap.get() == forced; };
            const auto index = std::find_if(table->uaps.begin(), table->uaps.end(), same) - table->uaps.begin();
            put(*table->selectorField, static_cast<std::uint64_t>(index));
        }
        if (forced || !table->selectorField) {
            return forced ? forced : table->uaps.front().get();
        }
        const std::uint64_t chosen = valueOf(*table->selectorField);
        return table->uaps[chosen < table->uaps.size() ? chosen : 0].get();
    }

    bool emitRecord(const Uap &uap)
    {
        const std::size_t fspec = block.size();
        tooLong = false;
        block.push_back(0);
        int sent = 0;
        for (int i = 0; i < uap.count; ++i) {
            const Node *item = uap.steps[static_cast<std::size_t>(i)].node;
            if (item && isSet(*item)) {
                markPresent(fspec, static_cast<std::size_t>(i));
                ++sent;
            }
        }
        for (int i = 0; i < uap.count; ++i) {
            const Node *item = uap.steps[static_cast<std::size_t>(i)].node;
            if (item && isSet(*item)) {
                emit(*item);
            }
        }
        // An item that the UAP has no place for is no record that was asked for.
        return sent == static_cast<int>(items.size()) && !tooLong && block.size() <= MaxBlockOctets;
    }
};

BlockEncoder::BlockEncoder(int category, const char *edition, const char *variation)
{
    const CategoryTable *table = findTable(category, edition);
    const Uap *forced = table && variation ? table->variation(variation) : nullptr;
    if (!table || (variation && !forced)) {
        return;
    }
    m_state = std::make_unique<State>(*table);
    m_state->forced = forced;
    beginBlock();
}

BlockEncoder::~BlockEncoder() = default;
BlockEncoder::BlockEncoder(BlockEncoder &&other) noexcept = default;
BlockEncoder &BlockEncoder::operator=(BlockEncoder &&other) noexcept = default;

bool BlockEncoder::valid() const
{
    return m_state != nullptr;
}

int BlockEncoder::category() const
{
    return m_state ? m_state->table->layout.edition().category : 0;
}

void BlockEncoder::beginBlock()
{
    if (!m_state) {
        return;
    }
    m_state->reset();
    m_state->block[2] = HeaderOctets;
}

void BlockEncoder::beginRecord()
{
    if (m_state) {
        m_state->beginRecord();
    }
}

BlockEncoder::Handle BlockEncoder::find(std::string_view path) const
{
    Handle handle;
    if (!m_state) {
        return handle;
    }
    if (const auto found = m_state->ids.find(path); found != m_state->ids.end()) {
        handle.m_node = found->second;
    }
    return handle;
}

bool BlockEncoder::set(std::string_view path, double value)
{
    return set(find(path), value);
}

bool BlockEncoder::set(Handle field, double value)
{
    if (!m_state || !field.valid()) {
        return false;
    }
    const Node &node = *m_state->nodes[static_cast<std::size_t>(field.m_node)];
    const Node *element = m_state->elementOf(node);
    const auto bits = element ? bitsOfNumber(*element, value) : std::nullopt;
    return bits && m_state->openRepetition(node) && m_state->put(*element, *bits);
}

bool BlockEncoder::setRaw(std::string_view path, std::uint64_t value)
{
    return setRaw(find(path), value);
}

bool BlockEncoder::setRaw(Handle field, std::uint64_t value)
{
    if (!m_state || !field.valid()) {
        return false;
    }
    const Node &node = *m_state->nodes[static_cast<std::size_t>(field.m_node)];
    const Node *element = m_state->elementOf(node);
    if (!element || element->bits > 64 || (element->bits < 64 && value >> element->bits != 0)) {
        return false;
    }
    return m_state->openRepetition(node) && m_state->put(*element, value);
}

bool BlockEncoder::setText(std::string_view path, std::string_view text)
{
    return setText(find(path), text);
}

bool BlockEncoder::setText(Handle field, std::string_view text)
{
    if (!m_state || !field.valid()) {
        return false;
    }
    const Node &node = *m_state->nodes[static_cast<std::size_t>(field.m_node)];
    const Node *element = m_state->elementOf(node);
    const auto bits = element ? bitsOfText(*element, text) : std::nullopt;
    return bits && m_state->openRepetition(node) && m_state->put(*element, *bits);
}

bool BlockEncoder::addRepetition(std::string_view path)
{
    return addRepetition(find(path));
}

bool BlockEncoder::addRepetition(Handle repetitive)
{
    return m_state && repetitive.valid()
        && m_state->append(*m_state->nodes[static_cast<std::size_t>(repetitive.m_node)]);
}

bool BlockEncoder::setExplicit(std::string_view path, std::span<const unsigned char> contents)
{
    return setExplicit(find(path), contents);
}

bool BlockEncoder::setExplicit(Handle field, std::span<const unsigned char> contents)
{
    if (!m_state || !field.valid()) {
        return false;
    }
    const Node &node = *m_state->nodes[static_cast<std::size_t>(field.m_node)];
    if (node.kind == Kind::Explicit) {
        if (contents.size() > MaxExplicitContents) {
            return false;
        }
        m_state->touch(node);
        m_state->slot(node).octets.assign(contents.begin(), contents.end());
        return true;
    }
    const Node *element = m_state->elementOf(node);
    if (!element || element->bits != contents.size() * 8 || element->bitOffset % 8 != 0) {
        return false;
    }
    if (!m_state->openRepetition(node)) {
        return false;
    }
    unsigned char *image = m_state->imageFor(*element);
    if (image) {
        std::copy(contents.begin(), contents.end(), image + element->bitOffset / 8);
    }
    return image != nullptr;
}

bool BlockEncoder::setPresent(std::string_view path)
{
    const Handle handle = find(path);
    if (!handle.valid()) {
        return false;
    }
    const Node &node = *m_state->nodes[static_cast<std::size_t>(handle.m_node)];
    if (node.anchor->parent && node.anchor->parent->isRepetitive()) {
        return false;
    }
    m_state->touch(node);
    return true;
}

bool BlockEncoder::endRecord()
{
    if (!m_state) {
        return false;
    }
    const std::size_t before = m_state->block.size();
    const bool fits = m_state->emitRecord(*m_state->chooseUap());
    m_state->beginRecord();
    if (!fits) {
        m_state->block.resize(before);
    }
    m_state->records += fits ? 1 : 0;
    m_state->block[1] = static_cast<unsigned char>(m_state->block.size() >> 8);
    m_state->block[2] = static_cast<unsigned char>(m_state->block.size());
    return fits;
}

std::span<const unsigned char> BlockEncoder::block() const
{
    return m_state ? std::span<const unsigned char>(m_state->block) : std::span<const unsigned char>();
}

std::size_t BlockEncoder::recordCount() const
{
    return m_state ? m_state->records : 0;
}

} // namespace korvane::asterix
