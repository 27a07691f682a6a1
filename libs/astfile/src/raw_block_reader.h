#pragma once

#include "astfile/file_reader.h"

#include <QFile>

namespace korvane::astfile {

// ASTERIX data blocks one after the other: a packet is one block. Where a length field cannot be right nothing tells
// where the next block begins, so reading ends there.
class RawBlockReader final : public FileReader {
public:
    bool open(const QString &fileName, const RecFile::Format &format) override;
    void close() override;
    using FileReader::read;
    void read(DataPacket *packet) override;
    bool atEnd() const override { return m_atEnd; }
    bool reset() override;

private:
    void stop(DataPacket *packet, qint64 offset, const QString &reason);

    QFile m_file;
    bool m_stopped = true; // after an error, or closed
    bool m_atEnd = true;
};

} // namespace korvane::astfile
