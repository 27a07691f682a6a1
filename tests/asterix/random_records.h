#pragma once

#include "asterix/encoder.h"

#include <cstdint>
#include <memory>

// Fills one record after the other with random contents of every item that its table has.
class RandomRecords {
public:
    // variation: null where the category has one UAP only.
    RandomRecords(int category, const char *variation, std::uint32_t seed);
    ~RandomRecords();

    // A block of so many records.
    const korvane::asterix::BlockEncoder &makeBlock(int records);

private:
    struct Filler;
    std::unique_ptr<Filler> m_filler;
};
