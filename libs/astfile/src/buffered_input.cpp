#include "buffered_input.h"

#include <cstring>

namespace korvane::astfile {

namespace {

constexpr std::size_t BufferSize = 2 * BufferedInput::MaxPeek;

} // namespace

BufferedInput::BufferedInput(std::unique_ptr<OctetSource> source)
    : m_source(std::move(source)), m_buffer(BufferSize) { }

void BufferedInput::fill(std::size_t wanted)
{
    if (m_ended) {
        return;
    }
    std::memmove(m_buffer.data(), m_buffer.data() + m_begin, m_end - m_begin);
    m_position += static_cast<qint64>(m_begin);
    m_end -= m_begin;
    m_begin = 0;
    while (m_end < wanted && !m_ended) {
        const qint64 got = m_source->read(std::span(m_buffer).subspan(m_end));
        m_failed = got < 0;
        m_ended = got <= 0;
        m_end += m_ended ? 0 : static_cast<std::size_t>(got);
    }
}

bool BufferedInput::seek(qint64 offset)
{
    m_begin = m_end = 0;
    m_position = offset;
    m_failed = !m_source->seek(offset);
    m_ended = m_failed;
    return !m_failed;
}

} // namespace korvane::astfile
