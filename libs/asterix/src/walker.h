#pragma once

// Finds the records of a block and the items of a record. All the checks of untrusted octets are here: what has been
// walked over lies within the block, and the other engines rely on that.

#include "asterix/asterix.h"
#include "layout.h"

namespace korvane::asterix {

struct Fault {
    Error error = Error::None;
    const unsigned char *at = nullptr; // the octet that is wrong, or the first one that is missing
};

// Octets of one item or sub-item at at; 0, with fault set, when it does not end by end.
std::size_t itemLength(const Node &node, const unsigned char *at, const unsigned char *end, Fault &fault);

// The octets of a presence field at at; 0, with fault set, when it does not end by end.
std::size_t presenceLength(const unsigned char *at, const unsigned char *end, Fault &fault);

// One record from at on. False, with fault set, when it is malformed; record is then undefined.
bool walkRecord(const CategoryTable &table, const Uap *forced, const unsigned char *at, const unsigned char *end,
    _ast_datarecord_t &record, Fault &fault);

} // namespace korvane::asterix
