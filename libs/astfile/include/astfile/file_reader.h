#pragma once

#include "astfile/data_packet.h"
#include "astfile/rec_file.h"
#include "astfile/recording_index.h"

#include <functional>
#include <memory>

namespace korvane::astfile {

class OctetSource;

// Reads one recording packet by packet, from its beginning or from a time. Files packed by gzip are unpacked on the
// way, whatever their names. A reader belongs to one thread at a time and reads one file at a time; it never throws.
class FileReader {
public:
    FileReader() = default;
    FileReader(const FileReader &) = delete;
    FileReader &operator=(const FileReader &) = delete;
    virtual ~FileReader();

    // Null when the format is none that can be read; error, when given, then says why.
    static std::unique_ptr<FileReader> create(const RecFile::Format &format, QString *error = nullptr);

    // Asked on the reading thread each time that a few hundred KiB more are to be taken from the disk, however few
    // packets these hold: true ends open(), reset(), seek() or read() there, as a fault of the disk would. Holds from
    // the next open() on.
    void setCancel(std::function<bool()> cancel) { m_cancel = std::move(cancel); }

    // Closes the file read so far and opens another, in the format of create(); the two capture formats stand for each
    // other, since a capture is recognised by its contents. False, with lastError() set, when that fails.
    bool open(const QString &fileName, const RecFile::Format &format);
    void close();

    // The next message into packet, whose memory is reused. Packets of a capture that are no UDP datagrams are passed
    // over. After the end, after an error and on a closed reader: kind End.
    void read(DataPacket *packet);
    DataPacket read();

    // True once read() has given End, not before: after the last message atEnd() is still false.
    bool atEnd() const { return m_atEnd; }

    // Back to the first packet. False, with lastError() set, when the file cannot be read again.
    bool reset();

    // The next read() gives the first packet, in the order of the file, that is stamped at or after the time, or the
    // end where none is. With an index this takes milliseconds; without, the file is read from its beginning. False,
    // with lastError() set, when the recording has no time stamps or cannot be read up to there.
    bool seek(const QDateTime &time);

    // Lends the open file's index to seek(), until the file is closed. False when it is another file's.
    bool setIndex(const RecordingIndex &index);

    // Octets of the file as it lies on disk: taken from it so far, which runs ahead of the packets by a buffer, and in
    // all. Zero while closed.
    qint64 octetsRead() const;
    qint64 octetsTotal() const;

    // Reason of the last failure of open(), reset(), seek() or read(); empty when there was none.
    QString lastError() const { return m_lastError; }

protected:
    virtual bool openFile(const QString &fileName, RecFile::Format format) = 0;
    virtual void closeFile() = 0;
    virtual bool rewindFile() = 0;
    virtual void readNext(DataPacket *packet) = 0;
    // Goes on from an entry of the file's index.
    virtual bool resumeAt(const RecordingIndex::Entry &entry) = 0;
    // What an entry for the packet at the offset must keep; null where reading cannot be taken up there.
    virtual const QByteArray *prologueAt(qint64 offset) = 0;
    // The open file; null while closed.
    virtual OctetSource *source() const = 0;

    // Null, with lastError() set, when the file cannot be opened.
    std::unique_ptr<OctetSource> openSource(const QString &fileName);
    // Keeps the reason for lastError() and returns false.
    bool fail(const QString &reason);
    void setEnd(DataPacket *packet) const;
    void setError(DataPacket *packet, qint64 offset, const QString &reason);

    QString m_lastError;

private:
    friend class IndexBuilder;

    bool positionBefore(qint64 timeMs);

    std::function<bool()> m_cancel; // null: never
    RecordingIndex m_index;
    DataPacket m_held; // found by seek(), given by the next read()
    bool m_isHeld = false;
    bool m_open = false;
    bool m_atEnd = true;
};

} // namespace korvane::astfile
