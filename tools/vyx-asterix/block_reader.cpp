#include "vyx-asterix/block_reader.h"

#include <utility>

using korvane::asterix::Error;
using korvane::asterix::errorText;

namespace {

// Its editions differ in layout, and nothing in a block names the edition.
constexpr int ChosenCategory = 21;

std::string categoryName(std::uint32_t category)
{
    char text[8];
    return ast_category_to_str(text, sizeof text, category);
}

} // namespace

BlockReader::BlockReader(const CommandLine &command, BlockHandler onBlock, LineHandler onLine)
    : m_fileName(command.fileName), m_onBlock(std::move(onBlock)), m_onLine(std::move(onLine))
{
    for (const auto &[category, edition] : command.editions) {
        m_profile.select(category, edition);
        m_isChoosingEdition = m_isChoosingEdition && category != ChosenCategory;
    }
}

void BlockReader::read(const InputMessage &message)
{
    const bool isDatagram = message.number > 0;
    std::size_t offset = 0;
    while (offset < message.size) {
        const bool isWhole = decode(message.data + offset, message.size - offset) && m_block.size > 0;
        if (!isWhole && isDatagram && isTrailer(message, offset)) {
            ++m_trailers;
            return;
        }
        if (!isWhole) {
            fault(message, offset);
            return; // without its length field there is no way to the next block
        }
        deliver(message);
        const bool isMalformed = !m_block.valid && m_block.error != Error::UnknownCategory;
        if (isMalformed) {
            fault(message, offset);
            if (isDatagram) {
                return;
            }
        }
        offset += m_block.size;
    }
}

bool BlockReader::decode(const unsigned char *data, std::size_t length)
{
    if (m_isChoosingEdition && data[0] == ChosenCategory) {
        return ast_datablock_smart_decode(&m_block, data, length);
    }
    return ast_datablock_decode(&m_block, data, length, m_profile.uap());
}

void BlockReader::deliver(const InputMessage &message)
{
    ++m_number;
    if (m_block.error == Error::UnknownCategory) {
        ++m_unknown[m_block.category];
        return;
    }
    if (m_isChoosingEdition && m_block.category == ChosenCategory && !m_block.records.empty()) {
        ++m_chosen[korvane::asterix::editionOf(m_block.records.front())];
    }
    m_onBlock({m_block, message, m_number});
}

// Recorders put octets of their own after the last block. What could be the beginning of a block of a known category
// is not taken for those.
bool BlockReader::isTrailer(const InputMessage &message, std::size_t offset) const
{
    if (offset == 0) {
        return false;
    }
    if (m_block.error != Error::BlockTruncated) {
        return true;
    }
    const unsigned char empty[] = {message.data[offset], 0, 3};
    _ast_datablock_t probe;
    return !ast_datablock_decode(&probe, empty, sizeof empty, m_profile.uap()) || probe.error == Error::UnknownCategory;
}

void BlockReader::fault(const InputMessage &message, std::size_t offset)
{
    ++m_faults;
    std::string place = m_fileName + ": ";
    if (message.number > 0) {
        place += "datagram " + std::to_string(message.number) + ", ";
    }
    m_onLine(place + "octet " + std::to_string(message.offset + offset + m_block.errorOffset) + ": "
        + categoryName(m_block.category) + ": " + errorText(m_block.error));
}

void BlockReader::reportAtEnd()
{
    for (const auto &[edition, count] : m_chosen) {
        m_onLine(m_fileName + ": " + std::to_string(count) + " of " + categoryName(ChosenCategory) + " read as edition "
            + std::string(edition) + ", which suits them best; --uap 21=EDITION names one");
    }
    for (const auto &[category, count] : m_unknown) {
        m_onLine(m_fileName + ": " + std::to_string(count) + " of " + categoryName(category)
            + " passed over: " + errorText(Error::UnknownCategory));
    }
    if (m_trailers > 0) {
        m_onLine(m_fileName + ": " + std::to_string(m_trailers) + " datagrams end in octets that are no data block");
    }
}
