#pragma once

#include <QByteArray>

#include <array>
#include <span>
#include <vector>

namespace korvane::astfile {

// What libpcap must have seen before it can read packets from the middle of a capture: the file header, or in a capture
// of the next generation the section header and the interface descriptions before the place. Fed with the file's octets
// from the beginning, in pieces of any size.
class CapturePrologue {
public:
    void clear() { *this = CapturePrologue(); }

    void feed(std::span<const unsigned char> octets);

    // Null where that is not known: not fed so far, no capture, or more descriptions than any capture needs.
    const QByteArray *at(qint64 offset);

private:
    struct Block {
        qint64 offset = 0; // in the file
        bool section = false; // begins a new section
        QByteArray octets;
    };

    void feedHeader(std::span<const unsigned char> &octets);
    void beginBlock();
    void feedBlock(std::span<const unsigned char> &octets);

    std::array<unsigned char, 24> m_header; // the file's, or the first octets of a block
    std::size_t m_headerSize = 0;
    std::size_t m_blockLeft = 0; // octets of the current block to come
    bool m_keep = false; // the current block is the last of m_blocks
    bool m_nextGeneration = false;
    bool m_bigEndian = false;
    bool m_known = true;
    bool m_started = false;
    qint64 m_position = 0;
    std::vector<Block> m_blocks;
    QByteArray m_last; // the prologue last asked for
    std::size_t m_lastCount = 0; // blocks of it
};

} // namespace korvane::astfile
