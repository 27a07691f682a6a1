#include "encoder_state.h"

#include "bits.h"

#include <algorithm>

namespace korvane::asterix {
namespace {

constexpr std::size_t MaxBlockOctets = 65535;
constexpr std::size_t MaxRepetitions = 255;

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

} // namespace

BlockEncoder::State::State(const CategoryTable &ofTable) : table(&ofTable)
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

void BlockEncoder::State::enrol(const Node &node, const std::string &path)
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

void BlockEncoder::State::reset()
{
    block.assign(BlockHeaderOctets, 0);
    block[0] = static_cast<unsigned char>(table->layout.edition().category);
    records = 0;
    beginRecord();
}

void BlockEncoder::State::beginRecord()
{
    ++serial;
    items.clear();
}

void BlockEncoder::State::touch(const Node &node)
{
    for (const Node *each = &node; each; each = each->parent) {
        NodeImage &touched = slot(*each);
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

unsigned char *BlockEncoder::State::imageFor(const Node &node)
{
    const Node &anchor = *node.anchor;
    const Node *repetition = anchor.parent && anchor.parent->isRepetitive() ? anchor.parent : nullptr;
    if (repetition) {
        NodeImage &repetitions = slot(*repetition);
        if (repetitions.serial != serial || repetitions.count == 0) {
            return nullptr;
        }
        return repetitions.octets.data() + (repetitions.count - 1) * repetition->elementOctets;
    }
    touch(node);
    NodeImage &image = slot(anchor);
    image.extentEnd = std::max<unsigned>(image.extentEnd, node.bitOffset);
    return image.octets.data();
}

bool BlockEncoder::State::put(const Node &node, std::uint64_t bits)
{
    unsigned char *image = imageFor(node);
    if (image) {
        putBits(image, node.bitOffset, node.bits, bits);
    }
    return image != nullptr;
}

std::uint64_t BlockEncoder::State::valueOf(const Node &field)
{
    const Node &anchor = *field.anchor;
    if (anchor.parent && anchor.parent->isRepetitive()) {
        const NodeImage &repetitions = slot(*anchor.parent);
        const std::size_t octets = anchor.parent->elementOctets;
        return isSet(*anchor.parent) && repetitions.count > 0
            ? bitsAt(repetitions.octets.data() + (repetitions.count - 1) * octets, field.bitOffset, field.bits)
            : 0;
    }
    return isSet(anchor) ? bitsAt(slot(anchor).octets.data(), field.bitOffset, field.bits) : 0;
}

const Node *BlockEncoder::State::elementOf(const Node &node)
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

bool BlockEncoder::State::append(const Node &repetitive)
{
    if (!repetitive.isRepetitive()) {
        return false;
    }
    touch(repetitive);
    NodeImage &repetitions = slot(repetitive);
    if (repetitive.kind == Kind::Repetitive && repetitions.count == MaxRepetitions) {
        return false;
    }
    repetitions.octets.resize(repetitions.octets.size() + repetitive.elementOctets);
    ++repetitions.count;
    return true;
}

void BlockEncoder::State::emit(const Node &node)
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

void BlockEncoder::State::emitOctets(const std::vector<unsigned char> &octets)
{
    block.insert(block.end(), octets.begin(), octets.end());
}

void BlockEncoder::State::emitExtended(const Node &node)
{
    NodeImage &image = slot(node);
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

void BlockEncoder::State::emitCompound(const Node &node)
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

void BlockEncoder::State::emitChildren(const Node &node)
{
    for (const Node &child : node.children) {
        if (isSent(child)) {
            emit(child);
        }
    }
}

void BlockEncoder::State::emitExplicit(const Node &node)
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

void BlockEncoder::State::markPresent(std::size_t start, std::size_t position)
{
    while (block.size() - start <= position / 7) {
        block.back() |= 1;
        block.push_back(0);
    }
    block[start + position / 7] |= static_cast<unsigned char>(0x80U >> position % 7);
}

void BlockEncoder::State::emitRepetitiveFx(const Node &node)
{
    NodeImage &repetitions = slot(node);
    if (repetitions.count == 0) {
        append(node); // there is no way to send none
    }
    for (std::size_t i = 1; i < repetitions.count; ++i) {
        repetitions.octets[i * node.elementOctets - 1] |= 1;
    }
    emitOctets(repetitions.octets);
}

const Uap *BlockEncoder::State::chooseUap()
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

bool BlockEncoder::State::emitRecord(const Uap &uap)
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
} // namespace korvane::asterix
