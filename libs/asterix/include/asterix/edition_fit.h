#pragma once

#include "asterix/asterix.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace korvane::asterix {

// How well the octets of a data block agree with one edition of its category.
struct EditionFit {
    std::string_view edition; // such as "2.7"; never invalid
    bool isWhole = false; // every record of the block decodes
    unsigned records = 0; // decoded
    // Of them, records in which a value is out of its range, or bits are set that the edition leaves unused.
    unsigned oddRecords = 0;
};

// Reads data blocks in every edition of their category for which a table is built in. Costs as many times more than
// decoding as there are editions: for looking at a stream rather than for showing it. For one thread.
class EditionJudge {
public:
    EditionJudge();
    ~EditionJudge();
    EditionJudge(const EditionJudge &) = delete;
    EditionJudge &operator=(const EditionJudge &) = delete;

    // A block whose header is good and whose size octets are there. In the order of editions(); empty for a category
    // without a table. Valid until the next call.
    std::span<const EditionFit> judge(const unsigned char *data, std::size_t size);

private:
    struct Candidate;

    const std::vector<Candidate> &candidatesFor(int category);
    EditionFit judge(const Candidate &candidate, const unsigned char *data);

    std::map<int, std::vector<Candidate>> m_candidates; // by category
    _ast_datablock_t m_block;
    std::vector<EditionFit> m_fits;
};

} // namespace korvane::asterix
