#pragma once

#include "asterix/encoder.h"

#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>

namespace korvane::asterix {

// Turns the lines that appendRecordJson() writes back into data blocks. Consecutive lines of one "block" number and
// category become one data block. Members other than "cat", "block" and "items" are passed over.
// The blocks have the encoder's wire form: a block that was received with a longer FSPEC, spare bits, unassigned
// characters or random field sequencing comes back equal in meaning, not in octets.
class JsonEncoder {
public:
    using Sink = std::function<void(std::span<const unsigned char> block)>;

    // sink gets each finished block; the octets are valid during the call.
    explicit JsonEncoder(Sink sink);

    // Encodes the category with that edition from its next block on. False when there is no such table.
    bool select(int category, const std::string &edition);

    // One line. False, with nothing of it encoded, when it is no such object, a field is unknown or a value does not
    // fit: lastError() says why.
    bool addLine(std::string_view line);
    // Hands over the block at hand. Call it after the last line.
    void finish();

    const std::string &lastError() const { return m_lastError; }

private:
    BlockEncoder *encoderFor(int category);

    Sink m_sink;
    std::map<int, std::string> m_editions;
    std::map<int, BlockEncoder> m_encoders; // by category
    BlockEncoder *m_current = nullptr; // has records that the sink has not seen
    std::uint64_t m_block = 0;
    std::string m_lastError;
};

} // namespace korvane::asterix
