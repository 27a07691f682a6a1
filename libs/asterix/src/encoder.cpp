#include "asterix/encoder.h"

#include "encoder_state.h"
#include "field_values.h"
#include "layout.h"

#include <algorithm>

namespace korvane::asterix {

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
    m_state->block[2] = BlockHeaderOctets;
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
