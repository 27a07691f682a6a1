#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

// Reads a file or standard input piece by piece. What is read and not consumed lies in one piece of memory, no larger
// than the room, so that files of any size take the same memory.
class OctetStream {
public:
    // room: the most octets that a caller needs in one piece.
    explicit OctetStream(std::size_t room);
    OctetStream(const OctetStream &) = delete;
    OctetStream &operator=(const OctetStream &) = delete;
    ~OctetStream();

    // "-" is standard input. False, with error() set, when the file cannot be opened.
    bool open(const std::string &fileName);

    // Reads more behind the pending octets; they move. False at the end of the file, when the room is full, and with
    // error() set when reading fails.
    bool fill();

    // Valid until the next fill().
    std::span<const unsigned char> pending() const { return {m_buffer.get() + m_begin, m_end - m_begin}; }
    void consume(std::size_t octets);
    bool isFull() const { return m_end - m_begin == m_room; }

    // Octets from the beginning of the file to the first pending one.
    std::uint64_t offset() const { return m_offset; }

    // "FILE: reason"; empty as long as nothing failed.
    const std::string &error() const { return m_error; }

private:
    bool fail();

    std::size_t m_room;
    std::unique_ptr<unsigned char[]> m_buffer;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    std::uint64_t m_offset = 0;
    int m_descriptor = -1;
    std::string m_fileName;
    std::string m_error;
};
