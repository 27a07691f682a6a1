#include "capture_stream.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace korvane::astfile {

namespace {

constexpr std::size_t BufferSize = 256 * 1024;

} // namespace

CaptureStream::CaptureStream(std::unique_ptr<OctetSource> source) : m_source(std::move(source)) { }

std::FILE *CaptureStream::openWhole()
{
    m_prologues.clear();
    return m_source->octetsRead() == 0 || m_source->seek(0) ? openAt({}, -1) : nullptr;
}

std::FILE *CaptureStream::openAt(const QByteArray &prologue, qint64 offset)
{
    if (offset >= 0 && !m_source->seek(offset)) {
        return nullptr;
    }
    m_prologue = prologue;
    m_fileStart = std::max<qint64>(offset, 0);
    m_position = 0;
    return openStream();
}

std::FILE *CaptureStream::openStream()
{
    const cookie_io_functions_t functions = {&CaptureStream::readCookie, nullptr, &CaptureStream::seekCookie, nullptr};
    std::FILE *stream = ::fopencookie(this, "r", functions);
    if (stream) {
        std::setvbuf(stream, nullptr, _IOFBF, BufferSize);
    }
    return stream;
}

ssize_t CaptureStream::readCookie(void *cookie, char *room, std::size_t size)
{
    return static_cast<CaptureStream *>(cookie)->read({reinterpret_cast<unsigned char *>(room), size});
}

// Streams are only asked where they are.
int CaptureStream::seekCookie(void *cookie, off64_t *position, int whence)
{
    if (whence != SEEK_CUR || *position != 0) {
        errno = EINVAL;
        return -1;
    }
    *position = static_cast<CaptureStream *>(cookie)->m_position;
    return 0;
}

ssize_t CaptureStream::read(std::span<unsigned char> room)
{
    if (m_position < m_prologue.size()) {
        const auto step = std::min<qint64>(m_prologue.size() - m_position, static_cast<qint64>(room.size()));
        std::memcpy(room.data(), m_prologue.constData() + m_position, static_cast<std::size_t>(step));
        m_position += step;
        return static_cast<ssize_t>(step);
    }
    const qint64 got = m_source->read(room);
    if (got < 0) {
        errno = EIO;
        return -1;
    }
    if (m_prologue.isEmpty()) {
        m_prologues.feed(room.first(static_cast<std::size_t>(got)));
    }
    m_position += got;
    return static_cast<ssize_t>(got);
}

qint64 CaptureStream::fileOffset(std::FILE *stream) const
{
    const qint64 position = ::ftello(stream);
    return position < m_prologue.size() ? 0 : m_fileStart + position - m_prologue.size();
}

} // namespace korvane::astfile
