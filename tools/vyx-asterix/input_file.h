#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

// One message as it was received or stored.
struct InputMessage {
    const unsigned char *data = nullptr;
    std::size_t size = 0;
    std::uint64_t number = 0; // of the datagram, from 1; 0: the whole of a file of blocks
    bool hasTime = false;
    std::int64_t timeMilliseconds = 0; // since 1970 UTC
};

// Opens a file of blocks or a recording, packed by gzip or not, and hands over its messages: one for a file of blocks,
// one a datagram for a recording. The octets are valid during the call; false from the handler ends the reading. False,
// with one line in error, when the file cannot be read to its end.
bool readInputFile(
    const std::string &fileName, const std::function<bool(const InputMessage &)> &handler, std::string &error);

// The whole of a file, or of standard input for "-".
bool readWholeFile(const std::string &fileName, std::string &contents, std::string &error);
