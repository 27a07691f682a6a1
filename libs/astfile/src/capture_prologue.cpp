#include "capture_prologue.h"

#include "octets.h"

#include <algorithm>

namespace korvane::astfile {

namespace {

constexpr std::size_t FileHeaderSize = 24;
constexpr std::size_t BlockHeaderSize = 12; // type, length, and the section header's octet order
constexpr std::uint32_t SectionHeader = 0x0a0d0d0a; // the same in both octet orders
constexpr std::uint32_t InterfaceDescription = 1;
constexpr std::uint32_t BigEndianMark = 0x1a2b3c4d;
constexpr std::size_t MaxBlocks = 1024;
constexpr std::size_t MaxBlockSize = 65536;

} // namespace

void CapturePrologue::feed(std::span<const unsigned char> octets)
{
    while (!octets.empty() && m_known) {
        if (m_blockLeft > 0) {
            feedBlock(octets);
        } else if (m_started && !m_nextGeneration) {
            return; // the file header is all
        } else {
            feedHeader(octets);
        }
    }
}

void CapturePrologue::feedHeader(std::span<const unsigned char> &octets)
{
    const bool nextGeneration =
        m_started || (m_headerSize >= 4 && read32(std::span<const unsigned char>(m_header), 0) == SectionHeader);
    const std::size_t wanted = m_headerSize < 4 && !m_started ? 4 : nextGeneration ? BlockHeaderSize : FileHeaderSize;
    const std::size_t step = std::min(octets.size(), wanted - m_headerSize);
    std::copy_n(octets.begin(), step, m_header.begin() + static_cast<std::ptrdiff_t>(m_headerSize));
    m_headerSize += step;
    m_position += static_cast<qint64>(step);
    octets = octets.subspan(step);
    if (m_headerSize < wanted || wanted == 4) {
        return;
    }
    m_started = true;
    m_nextGeneration = nextGeneration;
    if (nextGeneration) {
        beginBlock();
    } else {
        m_blocks.push_back({0, true, QByteArray(reinterpret_cast<const char *>(m_header.data()), FileHeaderSize)});
    }
    m_headerSize = 0;
}

void CapturePrologue::beginBlock()
{
    const std::span<const unsigned char> header(m_header);
    const bool section = read32(header, 0) == SectionHeader;
    if (section) {
        m_bigEndian = read32(header, 8) == BigEndianMark;
    }
    const std::uint32_t type = m_bigEndian ? read32(header, 0) : readLittle32(header, 0);
    const std::size_t length = m_bigEndian ? read32(header, 4) : readLittle32(header, 4);
    m_keep = section || type == InterfaceDescription;
    m_known = length >= BlockHeaderSize && length % 4 == 0
        && !(m_keep && (length > MaxBlockSize || m_blocks.size() == MaxBlocks));
    if (!m_known) {
        return;
    }
    m_blockLeft = length - BlockHeaderSize;
    if (m_keep) {
        const qint64 offset = m_position - static_cast<qint64>(BlockHeaderSize);
        m_blocks.push_back(
            {offset, section, QByteArray(reinterpret_cast<const char *>(m_header.data()), BlockHeaderSize)});
    }
}

void CapturePrologue::feedBlock(std::span<const unsigned char> &octets)
{
    const std::size_t step = std::min(octets.size(), m_blockLeft);
    if (m_keep) {
        m_blocks.back().octets.append(reinterpret_cast<const char *>(octets.data()), static_cast<qsizetype>(step));
    }
    m_blockLeft -= step;
    m_position += static_cast<qint64>(step);
    octets = octets.subspan(step);
}

const QByteArray *CapturePrologue::at(qint64 offset)
{
    // A place beyond what was fed is the end of the file.
    if (!m_known && offset > m_position) {
        return nullptr;
    }
    std::size_t count = 0;
    std::size_t first = 0;
    while (count < m_blocks.size() && m_blocks[count].offset < offset) {
        first = m_blocks[count].section ? count : first;
        ++count;
    }
    if (count == 0) {
        return nullptr;
    }
    if (count != m_lastCount) {
        m_last.clear();
        for (std::size_t i = first; i < count; ++i) {
            m_last += m_blocks[i].octets;
        }
        m_lastCount = count;
    }
    return &m_last;
}

} // namespace korvane::astfile
