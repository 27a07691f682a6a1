#include "gzip_source.h"

#include <QCoreApplication>
#include <QtEndian>

#include <algorithm>

namespace korvane::astfile {

namespace {

constexpr int GzipWindowBits = 15 + 16; // with gzip's header and checksum
constexpr int RawWindowBits = -15;
constexpr std::size_t TrailerSize = 8;
constexpr std::size_t WindowSize = 32768;
constexpr qint64 FirstMarkSpacing = 1 << 20; // octets of contents: unpacked in a few milliseconds
constexpr std::size_t MaxMarks = 512; // 16 MiB; with more, every other one goes

struct Text {
    Q_DECLARE_TR_FUNCTIONS(GzipSource)
};

} // namespace

bool GzipSource::recognises(const QByteArray &head)
{
    // Method 8 is the only one there is, and three flags are reserved.
    return head.size() == HeaderSize && head.startsWith("\x1f\x8b\x08") && (head[3] & 0xe0) == 0;
}

GzipSource::GzipSource(std::unique_ptr<QFile> file) : OctetSource(std::move(file))
{
    const QByteArray head = m_file->peek(HeaderSize);
    if (const quint32 seconds = qFromLittleEndian<quint32>(head.constData() + 4); seconds != 0) {
        m_packedTime = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    }
    m_done = inflateInit2(&m_stream, GzipWindowBits) != Z_OK && !fault(Text::tr("Unpacking cannot be set up."));
}

GzipSource::~GzipSource()
{
    inflateEnd(&m_stream);
}

QDateTime GzipSource::modified() const
{
    return m_packedTime.isValid() ? m_packedTime : m_modified;
}

void GzipSource::collectMarks()
{
    m_collected = std::make_shared<SeekMarks>();
    m_markSpacing = FirstMarkSpacing;
}

qint64 GzipSource::read(std::span<unsigned char> room)
{
    m_stream.next_out = room.data();
    m_stream.avail_out = static_cast<uInt>(room.size());
    while (m_stream.avail_out > 0 && !m_done && m_error.isEmpty()) {
        if (step() && m_collected) {
            considerMark(m_offset + static_cast<qint64>(room.size()) - m_stream.avail_out);
        }
    }
    const qint64 got = static_cast<qint64>(room.size()) - m_stream.avail_out;
    m_offset += got;
    return got == 0 && !m_error.isEmpty() ? -1 : got;
}

// Unpacks up to the end of the input, the output or a deflate block; false when there is nothing more.
bool GzipSource::step()
{
    if (m_stream.avail_in == 0 && !fill()) {
        return m_error.isEmpty() && fault(Text::tr("The compressed file ends early."));
    }
    switch (inflate(&m_stream, m_collected ? Z_BLOCK : Z_NO_FLUSH)) {
    case Z_OK:
    case Z_BUF_ERROR:
        return true;
    case Z_STREAM_END:
        nextMember();
        return false;
    default:
        return fault(Text::tr("The compressed file is damaged: %1.")
                         .arg(m_stream.msg ? QString::fromLatin1(m_stream.msg) : Text::tr("out of memory")));
    }
}

void GzipSource::nextMember()
{
    const bool trailed = !m_raw || skip(TrailerSize);
    m_raw = false;
    // What follows the last member and is none itself is padding, as gzip holds it, too.
    m_done = !trailed || (m_stream.avail_in == 0 && !fill()) || *m_stream.next_in != 0x1f;
    if (!m_done) {
        inflateReset2(&m_stream, GzipWindowBits);
    }
}

bool GzipSource::fill()
{
    const qint64 got = readFile(m_packed);
    m_stream.next_in = m_packed.data();
    m_stream.avail_in = static_cast<uInt>(std::max<qint64>(got, 0));
    return got > 0;
}

bool GzipSource::skip(std::size_t octets)
{
    while (octets > 0) {
        if (m_stream.avail_in == 0 && !fill()) {
            return false;
        }
        const uInt step = std::min(m_stream.avail_in, static_cast<uInt>(octets));
        m_stream.next_in += step;
        m_stream.avail_in -= step;
        octets -= step;
    }
    return true;
}

void GzipSource::considerMark(qint64 offset)
{
    constexpr int BlockBorder = 128;
    constexpr int LastBlock = 64;
    auto &marks = m_collected->marks;
    const bool atBorder = (m_stream.data_type & BlockBorder) && !(m_stream.data_type & LastBlock);
    if (!atBorder || offset < (marks.empty() ? 0 : marks.back().offset) + m_markSpacing) {
        return;
    }
    SeekMarks::Mark mark = {offset, m_octetsRead - m_stream.avail_in, m_stream.data_type & 7, {}};
    mark.window.resize(WindowSize);
    uInt size = 0;
    if (inflateGetDictionary(&m_stream, reinterpret_cast<Bytef *>(mark.window.data()), &size) != Z_OK) {
        return;
    }
    mark.window.resize(static_cast<qsizetype>(size));
    marks.push_back(std::move(mark));
    if (marks.size() > MaxMarks) {
        bool odd = false;
        std::erase_if(marks, [&odd](const SeekMarks::Mark &) { return odd = !odd; });
        m_markSpacing *= 2;
    }
}

bool GzipSource::seek(qint64 offset)
{
    m_error.clear();
    if (m_marks) {
        const auto after = std::upper_bound(m_marks->marks.begin(), m_marks->marks.end(), offset,
            [](qint64 wanted, const SeekMarks::Mark &mark) { return wanted < mark.offset; });
        if (after != m_marks->marks.begin() && (offset < m_offset || std::prev(after)->offset > m_offset)) {
            return resume(*std::prev(after)) && skipTo(offset);
        }
    }
    return (offset >= m_offset || rewind()) && skipTo(offset);
}

bool GzipSource::rewind()
{
    m_stream.avail_in = 0;
    m_offset = 0;
    m_raw = m_done = false;
    return seekFile(0)
        && (inflateReset2(&m_stream, GzipWindowBits) == Z_OK || fault(Text::tr("Unpacking cannot be set up.")));
}

bool GzipSource::resume(const SeekMarks::Mark &mark)
{
    m_stream.avail_in = 0;
    m_offset = mark.offset;
    m_raw = true;
    m_done = false;
    if (!seekFile(mark.fileOffset - (mark.bits ? 1 : 0)) || inflateReset2(&m_stream, RawWindowBits) != Z_OK) {
        return fault(Text::tr("Unpacking cannot be taken up."));
    }
    if (mark.bits != 0) {
        if (!fill()) {
            return fault(Text::tr("The compressed file ends early."));
        }
        inflatePrime(&m_stream, mark.bits, *m_stream.next_in >> (8 - mark.bits));
        ++m_stream.next_in;
        --m_stream.avail_in;
    }
    const auto *window = reinterpret_cast<const Bytef *>(mark.window.constData());
    return inflateSetDictionary(&m_stream, window, static_cast<uInt>(mark.window.size())) == Z_OK
        || fault(Text::tr("Unpacking cannot be taken up."));
}

bool GzipSource::skipTo(qint64 offset)
{
    std::array<unsigned char, 65536> scratch;
    while (m_offset < offset) {
        const std::size_t step = std::min<std::size_t>(scratch.size(), static_cast<std::size_t>(offset - m_offset));
        if (read(std::span(scratch).first(step)) <= 0) {
            return m_error.isEmpty() ? fault(Text::tr("The compressed file ends early.")) : false;
        }
    }
    return true;
}

bool GzipSource::fault(const QString &reason)
{
    m_error = reason;
    return false;
}

} // namespace korvane::astfile
