#pragma once

#include "sample_blocks.h"

// Blocks of one category as its senders fill them, ten records a block (video: one). edition: of CAT021; null for the
// standard one. Nothing where the category has no sample.
SampleBlocks makeCategoryBlocks(int category, const char *edition, std::size_t records);
