#pragma once

#include "asterix/asterix.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace korvane::asterix {

// Text that grows at its end and keeps its memory when cleared; not zero-filled while it grows.
class TextBuffer {
public:
    TextBuffer() = default;

    std::string_view text() const { return {m_data.get(), m_size}; }
    std::size_t size() const { return m_size; }
    void clear() { m_size = 0; }

    // Room for so many more characters; write there, then commit() what was written.
    char *reserve(std::size_t room);
    void commit(const char *end) { m_size = static_cast<std::size_t>(end - m_data.get()); }

private:
    std::unique_ptr<char[]> m_data;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
};

// Where a record was found: further members of its JSON object.
struct RecordPlace {
    std::uint64_t block = 0; // serial number of its data block, from 1
    std::uint64_t offset = 0; // of the record's first octet in the file
    bool hasTime = false;
    std::int64_t timeMilliseconds = 0; // of reception, since 1970 UTC, not negative
};

// How a reserved expansion field is written.
enum class Expansion : std::uint8_t {
    AsHexText, // like any explicit item
    // As an object of its sub-items, where its contents have a table (CAT021 from edition 2.1 on, CAT048, CAT062) and
    // fit it to the last octet; as hexadecimal text otherwise.
    AsObject,
};

// Appends one line
//     {"cat":48,"block":3,"offset":31,"length":17,"time":1700000000.125,"items":{"010":{"SAC":25,"SIC":201},...}}
// with every sub-field of the record in the order of its UAP. A value is
//     element             a number or text: raw bits unsigned, those wider than 32 bits as hexadecimal text; integers
//                         and quantities in their unit; ICAO and ASCII text without trailing blanks and zero octets;
//                         octal codes as text
//     group, extended     an object of the fields, those of all sent extents in one; spare bits left out
//     compound            an object of the sub-items that are present
//     repetitive          an array
//     explicit            the contents without their length, as hexadecimal text
// Numbers read back as the same double that the typed records have. The record must be valid.
void appendRecordJson(TextBuffer &out, const _ast_datarecord_t &record, const RecordPlace &place,
    Expansion expansion = Expansion::AsHexText);

} // namespace korvane::asterix
