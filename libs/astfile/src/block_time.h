#pragma once

#include <QtGlobal>

#include <optional>
#include <span>

namespace korvane::astfile {

// A time that a data block tells: milliseconds into a period that begins at midnight UTC.
struct BlockTime {
    qint64 ms = 0;
    qint64 periodMs = 0; // a day, or 512 s where the time of day is sent truncated
};

// The time of day of the block's first record; nothing where it carries none, the category is not known, or the octets
// are no such record.
std::optional<BlockTime> blockTime(std::span<const unsigned char> block);

} // namespace korvane::astfile
