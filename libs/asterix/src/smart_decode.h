#pragma once

// Which edition of CAT021 a block is of: they share a category number, and nothing in the block names its edition.

#include "asterix/asterix.h"

namespace korvane::asterix {

// Decodes the records of a block whose header is good; block->size and block->category are set, the octets are there.
// Faults are those of the edition that gets furthest.
void decodeCat021(_ast_datablock_t &block, const unsigned char *data);

// Makes what the choice needs now rather than with the first block.
void prepareSmartDecoding();

} // namespace korvane::asterix
