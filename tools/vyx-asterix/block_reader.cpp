#include "vyx-asterix/block_reader.h"

#include <utility>

using korvane::asterix::Error;
using korvane::asterix::errorText;

namespace {

std::string categoryName(std::uint32_t category)
{
    char text[8];
    return ast_category_to_str(text, sizeof text, category);
}

} // namespace

BlockReader::BlockReader(std::string fileName, const _ast_uap_t *uap, BlockHandler onBlock, FaultHandler onFault)
    : m_fileName(std::move(fileName)), m_uap(uap), m_onBlock(std::move(onBlock)), m_onFault(std::move(onFault))
{
}

void BlockReader::read(const InputMessage &message)
{
    const bool isDatagram = message.number > 0;
    std::size_t offset = 0;
    while (offset < message.size) {
        const bool isWhole =
            ast_datablock_decode(&m_block, message.data + offset, message.size - offset, m_uap) && m_block.size > 0;
        if (!isWhole && isDatagram && isTrailer(message, offset)) {
            ++m_trailers;
            return;
        }
        if (!isWhole) {
            fault(message, offset);
            return; // without its length field there is no way to the next block
        }
        ++m_number;
        if (m_block.error == Error::UnknownCategory) {
            ++m_unknown[m_block.category];
        } else {
            m_onBlock({m_block, message, offset, m_number});
        }
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
    return !ast_datablock_decode(&probe, empty, sizeof empty, m_uap) || probe.error == Error::UnknownCategory;
}

void BlockReader::fault(const InputMessage &message, std::size_t offset)
{
    ++m_faults;
    std::string place = m_fileName + ": ";
    if (message.number > 0) {
        place += "datagram " + std::to_string(message.number) + ", ";
    }
    m_onFault(place + "octet " + std::to_string(offset + m_block.errorOffset) + ": " + categoryName(m_block.category)
        + ": " + errorText(m_block.error));
}

void BlockReader::reportPassedOver()
{
    for (const auto &[category, count] : m_unknown) {
        m_onFault(m_fileName + ": " + std::to_string(count) + " of " + categoryName(category)
            + " passed over: " + errorText(Error::UnknownCategory));
    }
    if (m_trailers > 0) {
        m_onFault(m_fileName + ": " + std::to_string(m_trailers) + " datagrams end in octets that are no data block");
    }
}
