#pragma once

#include "astfile/rec_file.h"

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QList>
#include <QString>

#include <cstdint>
#include <memory>

namespace korvane::astfile {

// Writes messages as a recording while they come in. Whole records reach the disk by 64 KiB and at flush(), so that a
// caller who flushes each second loses a second at the most. After a failure, as of a full disk, the file is cut at the
// last whole record that was written, and every further write fails for the same reason. Belongs to one thread.
class FileWriter {
public:
    // IPv4 address in host byte order (as QHostAddress::toIPv4Address() gives it) and UDP port.
    struct Endpoint {
        std::uint32_t address = 0;
        std::uint16_t port = 0;
    };

    // Network capture, raw data blocks and the final format can be written. Null for any other format; error, when
    // given, then says why.
    static std::unique_ptr<FileWriter> create(RecFile::Format format, QString *error = nullptr);
    static QList<RecFile::Format> formats();

    FileWriter() = default;
    FileWriter(const FileWriter &) = delete;
    FileWriter &operator=(const FileWriter &) = delete;
    virtual ~FileWriter();

    // Creates or replaces the file. False, with lastError() set, when that fails.
    virtual bool open(const QString &fileName) = 0;

    // One message. Formats that hold no addresses pass over source and destination; raw data blocks have no time
    // stamps, and of a message only its whole blocks are written. False, with lastError() set, when no file is open,
    // the format cannot hold the message (the file is as it was then, and further messages may be written), or the disk
    // refuses.
    virtual bool write(
        const QDateTime &timeStamp, const Endpoint &source, const Endpoint &destination, const QByteArray &payload) = 0;

    // Hands what is held back to the operating system. False, with lastError() set, when that fails.
    bool flush();

    // Flushes and closes. False, with lastError() set, when that, or an earlier write, failed. Closing a closed writer
    // is no error.
    bool close();

    bool isOpen() const { return m_file.isOpen(); }

    // Of the file, with what is held back.
    qint64 octetsWritten() const { return m_written + m_held.size(); }

    QString lastError() const { return m_lastError; }

protected:
    bool openFile(const QString &fileName);
    // False, with lastError() set, when no record can be added.
    bool writable();
    bool append(const QByteArray &record);
    // Keeps the reason for lastError() and returns false.
    bool fail(const QString &reason);

private:
    QFile m_file;
    QByteArray m_held; // whole records
    qint64 m_written = 0; // octets, up to the end of a record
    bool m_broken = false;
    QString m_lastError;
};

} // namespace korvane::astfile
