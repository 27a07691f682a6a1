#pragma once

#include "astfile/data_packet.h"
#include "astfile/rec_file.h"

#include <memory>

namespace korvane::astfile {

// Reads one recording packet by packet, from its beginning. A reader belongs to one thread at a time and reads one file
// at a time; it never throws.
class FileReader {
public:
    FileReader() = default;
    FileReader(const FileReader &) = delete;
    FileReader &operator=(const FileReader &) = delete;
    virtual ~FileReader() = default;

    // Null when the format is none that can be read; error, when given, then says why.
    static std::unique_ptr<FileReader> create(const RecFile::Format &format, QString *error = nullptr);

    // Closes the file read so far and opens another, in the format of create(); the two capture formats stand for each
    // other, since a capture is recognised by its contents. False, with lastError() set, when that fails.
    virtual bool open(const QString &fileName, const RecFile::Format &format) = 0;
    virtual void close() = 0;

    // The next message into packet, whose memory is reused. Packets of a capture that are no UDP datagrams are passed
    // over. After the end, after an error and on a closed reader: kind End.
    virtual void read(DataPacket *packet) = 0;
    DataPacket read();

    // True once read() has given End, not before: after the last message atEnd() is still false.
    virtual bool atEnd() const = 0;

    // Back to the first packet. False, with lastError() set, when the file cannot be read again.
    virtual bool reset() = 0;

    // Reason of the last failure of open(), reset() or read(); empty when there was none.
    QString lastError() const { return m_lastError; }

protected:
    // Keeps the reason for lastError() and returns false.
    bool fail(const QString &reason);
    void setEnd(DataPacket *packet) const;
    void setError(DataPacket *packet, qint64 offset, const QString &reason);

    QString m_lastError;
};

} // namespace korvane::astfile
