#include "vyx-asterix/octet_stream.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

// Large enough that system calls do not show, small enough to stay in the processor's cache.
constexpr std::size_t PieceSize = 1U << 18;

} // namespace

OctetStream::OctetStream(std::size_t room)
    : m_room(room), m_buffer(std::make_unique_for_overwrite<unsigned char[]>(room)) // unused pages are never touched
{
}

OctetStream::~OctetStream()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

bool OctetStream::open(const std::string &fileName)
{
    m_fileName = fileName;
    m_descriptor = fileName == "-" ? ::dup(STDIN_FILENO) : ::open(fileName.c_str(), O_RDONLY | O_CLOEXEC);
    return m_descriptor >= 0 || fail();
}

bool OctetStream::fill()
{
    std::memmove(m_buffer.get(), m_buffer.get() + m_begin, m_end - m_begin);
    m_end -= m_begin;
    m_begin = 0;
    const std::size_t wanted = std::min(PieceSize, m_room - m_end);
    ssize_t got = 0;
    do {
        got = wanted > 0 ? ::read(m_descriptor, m_buffer.get() + m_end, wanted) : 0;
    } while (got < 0 && errno == EINTR);
    if (got < 0) {
        return fail();
    }
    m_end += static_cast<std::size_t>(got);
    return got > 0;
}

void OctetStream::consume(std::size_t octets)
{
    m_begin += octets;
    m_offset += octets;
}

bool OctetStream::fail()
{
    m_error = m_fileName + ": " + std::strerror(errno);
    return false;
}
