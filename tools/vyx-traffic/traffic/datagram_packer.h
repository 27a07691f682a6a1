#pragma once

#include "asterix/encoder.h"

#include <QByteArray>

#include <vector>

// Puts data blocks into datagrams that pass every link in one piece.
class DatagramPacker {
public:
    static constexpr qsizetype LargestDatagram = 1400; // octets

    // largestRecord: octets that a record of the blocks has at most.
    explicit DatagramPacker(std::size_t largestRecord) : m_largestRecord(largestRecord) { }

    // Forgets the datagrams that it has made.
    void begin();
    // To be called after each record of a block: ends the block when another record might not fit beside it.
    void recordWritten(korvane::asterix::BlockEncoder &encoder);
    // Takes the encoder's block, if there is a record in it, and begins another.
    void endBlock(korvane::asterix::BlockEncoder &encoder);
    // A message of another kind; stands in one datagram with what was added before, if that has room.
    void append(const char *octets, std::size_t size);

    const std::vector<QByteArray> &datagrams() const { return m_datagrams; }

private:
    std::size_t m_largestRecord;
    bool m_isFull = false; // what comes next begins a datagram
    std::vector<QByteArray> m_datagrams;
};
