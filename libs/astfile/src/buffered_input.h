#pragma once

#include "octet_source.h"

#include <vector>

namespace korvane::astfile {

// Looks ahead in a file: what is peeked at lies in one piece and stays until the next call.
class BufferedInput {
public:
    static constexpr std::size_t MaxPeek = 128 * 1024;

    explicit BufferedInput(std::unique_ptr<OctetSource> source);

    // At least the wanted octets, up to MaxPeek, or all that are left; never fewer than are at hand anyway.
    std::span<const unsigned char> peek(std::size_t wanted)
    {
        if (m_end - m_begin < wanted) {
            fill(wanted);
        }
        return {m_buffer.data() + m_begin, m_end - m_begin};
    }

    // No more than was peeked at.
    void consume(std::size_t octets) { m_begin += octets; }

    // Octets from the start of the contents to the next one.
    qint64 position() const { return m_position + static_cast<qint64>(m_begin); }

    bool seek(qint64 offset);

    // Reading failed; source()->error() says why. What was read before is still given.
    bool failed() const { return m_failed; }

    OctetSource *source() const { return m_source.get(); }

private:
    void fill(std::size_t wanted);

    std::unique_ptr<OctetSource> m_source;
    std::vector<unsigned char> m_buffer;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    qint64 m_position = 0; // of the buffer's first octet
    bool m_ended = false;
    bool m_failed = false;
};

} // namespace korvane::astfile
