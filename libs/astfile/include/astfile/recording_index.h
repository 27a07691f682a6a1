#pragma once

#include "astfile/rec_file.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace korvane::astfile {

struct SeekMarks;

// Where in a recording which time is: made by one pass over the file, then given to any reader of it, so that it seeks
// at once. A value that is cheap to copy; made on one thread, it may be used on another.
class RecordingIndex {
public:
    // A packet from which reading can go on.
    struct Entry {
        qint64 latestBeforeMs = 0; // latest time stamp of all packets before this one, ms since 1970 UTC
        qint64 timeMs = 0; // of the packet, for readers that count on from it
        qint64 offset = 0; // octets from the start of the (unpacked) file
        QByteArray prologue; // what a capture's reader must have seen before; shared among entries
    };

    // Octets of the file passed over, and in all. False stops the pass.
    using Progress = std::function<bool(qint64 octetsRead, qint64 octetsTotal)>;

    RecordingIndex() = default;

    // Reads the whole file, at the speed of its reader. Callable on any thread; progress is called there, before each
    // few hundred KiB that are taken from the disk, however few packets they hold. Null when the file cannot be opened
    // or progress stopped the pass; error, when given, then says why, and is empty for a stopped pass. Where the
    // recording is faulty the index covers what is before the fault, and error says what that is.
    static RecordingIndex build(
        const QString &fileName, RecFile::Format format, const Progress &progress = {}, QString *error = nullptr);

    bool isNull() const { return !m_data; }

    // Earliest and latest time stamp, UTC; invalid where no packet has one.
    QDateTime first() const;
    QDateTime last() const;
    qint64 packetCount() const;

    // The last entry with nothing at or after the time before it: reading on from there meets the first packet that is
    // not earlier. Null: read from the beginning.
    const Entry *entryBefore(qint64 timeMs) const;

    // Size of the file on disk when the index was made, octets: tells an index of another file.
    qint64 fileSize() const;

    // Points at which unpacking a compressed file can be taken up; null for other files.
    std::shared_ptr<const SeekMarks> marks() const;

private:
    struct Data;
    friend class IndexBuilder;

    std::shared_ptr<const Data> m_data;
};

} // namespace korvane::astfile
