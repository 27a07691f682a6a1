#pragma once

// Finds the records of a block and the items of a record. All the checks of untrusted octets are here: what has been
// walked over lies within the block, and the other engines rely on that.

#include "asterix/asterix.h"
#include "layout.h"

#include <algorithm>

namespace korvane::asterix {

struct Fault {
    Error error = Error::None;
    const unsigned char *at = nullptr; // the octet that is wrong, or the first one that is missing
};

// Octets of one item or sub-item at at; 0, with fault set, when it does not end by end.
std::size_t itemLength(const Node &node, const unsigned char *at, const unsigned char *end, Fault &fault);

// Which sub-items of a compound item, or of the known contents of an explicit one, are sent.
class Presence {
public:
    // The presence field's octets lie within the record.
    Presence(const Node &node, const unsigned char *at)
        : m_at(node.kind == Kind::Explicit ? at + 1 : at), m_bitsAnOctet(node.kind == Kind::Explicit ? 8 : 7)
    {
        const unsigned char *last = m_at;
        while (m_bitsAnOctet == 7 && (*last & 1)) {
            ++last;
        }
        m_contents = last + 1;
        m_positions = std::min(static_cast<std::size_t>(m_contents - m_at) * m_bitsAnOctet, node.children.size());
    }

    std::size_t positions() const { return m_positions; }
    bool has(std::size_t i) const { return m_at[i / m_bitsAnOctet] >> (7 - i % m_bitsAnOctet) & 1; }
    const unsigned char *contents() const { return m_contents; }

private:
    const unsigned char *m_at;
    std::size_t m_bitsAnOctet;
    const unsigned char *m_contents;
    std::size_t m_positions;
};

// The octets of a presence field at at; 0, with fault set, when it does not end by end.
std::size_t presenceLength(const unsigned char *at, const unsigned char *end, Fault &fault);

// All records of a block whose header is good: block.size octets are at data. forced: takes the place of the choice by
// record where it is of that table; null otherwise.
void decodeRecords(
    _ast_datablock_t &block, const unsigned char *data, const CategoryTable &table, const Uap *forced = nullptr);

// One record at data, of that UAP; octets may follow it. False where it is malformed or runs past length; record is
// then undefined.
bool decodeRecord(_ast_datarecord_t &record, const unsigned char *data, std::size_t length, const Uap &uap);

// Whether the contents of an explicit item at at, which has been walked over, are what the table says of them: at least
// one sub-item, each whole, and nothing after the last.
bool hasKnownContents(const Node &node, const unsigned char *at);

} // namespace korvane::asterix
