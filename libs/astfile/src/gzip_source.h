#pragma once

#include "octet_source.h"

#include <QByteArray>

#include <array>
#include <vector>
#include <zlib.h>

namespace korvane::astfile {

// Where unpacking can be taken up: borders between deflate blocks, with the octets that later ones refer back to.
struct SeekMarks {
    struct Mark {
        qint64 offset = 0; // in the contents
        qint64 fileOffset = 0; // of the first octet that is not used up
        int bits = 0; // not yet used of the octet before
        QByteArray window;
    };

    std::vector<Mark> marks; // by offset
};

// A file packed by gzip, of one member or several. Checksums are checked when reading from the beginning.
class GzipSource final : public OctetSource {
public:
    static constexpr int HeaderSize = 10;

    // Whether the first octets of a file are a gzip header.
    static bool recognises(const QByteArray &head);

    explicit GzipSource(std::unique_ptr<QFile> file);
    ~GzipSource() override;

    qint64 read(std::span<unsigned char> room) override;
    bool seek(qint64 offset) override;
    QDateTime modified() const override;
    void collectMarks() override;
    std::shared_ptr<const SeekMarks> marks() const override { return m_collected ? m_collected : m_marks; }
    void setMarks(const std::shared_ptr<const SeekMarks> &marks) override { m_marks = marks; }

private:
    bool rewind();
    bool resume(const SeekMarks::Mark &mark);
    bool fill();
    bool skip(std::size_t octets);
    bool skipTo(qint64 offset);
    bool step();
    void nextMember();
    void considerMark(qint64 offset);
    bool fault(const QString &reason);

    z_stream m_stream = {};
    std::array<unsigned char, 65536> m_packed;
    qint64 m_offset = 0; // in the contents
    bool m_raw = false; // taken up in the middle: no checksum for this member
    bool m_done = false;
    QDateTime m_packedTime; // from the header; invalid where it has none
    std::shared_ptr<SeekMarks> m_collected;
    qint64 m_markSpacing = 0;
    std::shared_ptr<const SeekMarks> m_marks;
};

} // namespace korvane::astfile
