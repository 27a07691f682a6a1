#include "traffic/datagram_packer.h"

void DatagramPacker::begin()
{
    m_datagrams.clear();
    m_isFull = true;
}

void DatagramPacker::recordWritten(korvane::asterix::BlockEncoder &encoder)
{
    const std::size_t before = m_isFull ? 0 : static_cast<std::size_t>(m_datagrams.back().size());
    if (before + encoder.block().size() + m_largestRecord <= LargestDatagram) {
        return;
    }
    endBlock(encoder);
    m_isFull = true;
}

void DatagramPacker::endBlock(korvane::asterix::BlockEncoder &encoder)
{
    if (encoder.recordCount() == 0) {
        return;
    }
    append(reinterpret_cast<const char *>(encoder.block().data()), encoder.block().size());
    encoder.beginBlock();
}

void DatagramPacker::append(const char *octets, std::size_t size)
{
    const auto added = static_cast<qsizetype>(size);
    if (m_isFull || m_datagrams.back().size() + added > LargestDatagram) {
        m_datagrams.emplace_back();
    }
    m_isFull = false;
    m_datagrams.back().append(octets, added);
}
