#pragma once

#include "capture_prologue.h"
#include "octet_source.h"

#include <cstdio>
#include <memory>

namespace korvane::astfile {

// A capture as the stream of the C library that libpcap reads from: the whole file, or a prologue and then the file
// from some place on.
class CaptureStream {
public:
    explicit CaptureStream(std::unique_ptr<OctetSource> source);

    // The stream, for the caller to close before this object goes or is asked again; null when there is no memory left,
    // or with source()->error() set.
    std::FILE *openWhole();
    std::FILE *openAt(const QByteArray &prologue, qint64 offset);

    // Octets from the start of the file to the stream's position.
    qint64 fileOffset(std::FILE *stream) const;

    const QByteArray *prologueAt(qint64 offset) { return m_prologues.at(offset); }

    OctetSource *source() const { return m_source.get(); }

private:
    std::FILE *openStream();
    static ssize_t readCookie(void *cookie, char *room, std::size_t size);
    static int seekCookie(void *cookie, off64_t *position, int whence);
    ssize_t read(std::span<unsigned char> room);

    std::unique_ptr<OctetSource> m_source;
    CapturePrologue m_prologues;
    QByteArray m_prologue; // before the file's octets
    qint64 m_fileStart = 0; // of the octets after the prologue, in the file
    qint64 m_position = 0; // in the stream
};

} // namespace korvane::astfile
