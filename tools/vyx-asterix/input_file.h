#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

// One message as it was received or stored.
struct InputMessage {
    const unsigned char *data = nullptr;
    std::size_t size = 0;
    std::uint64_t number = 0; // of the datagram, from 1; 0: blocks that follow each other in a file
    std::uint64_t offset = 0; // of data in a file of blocks
    bool hasTime = false;
    std::int64_t timeMilliseconds = 0; // since 1970 UTC
};

// Opens a file of blocks or a recording, packed by gzip or not, and hands over its messages: a run of whole blocks of a
// file of blocks, or a datagram of a recording. The octets are valid during the call; false from the handler ends the
// reading. Where a length field cannot be right, or the file ends within a block, the last message of a file of blocks
// ends with what is left of the octets read. False, with one line in error, when the file cannot be read to its end.
bool readInputFile(
    const std::string &fileName, const std::function<bool(const InputMessage &)> &handler, std::string &error);
