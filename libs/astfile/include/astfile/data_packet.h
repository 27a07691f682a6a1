#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace korvane::astfile {

// One step through a recording: a recorded message, the end of the recording, or the reason why reading stopped.
struct DataPacket {
    enum Kind {
        Data = 0,
        End = 1, // nothing left to read
        Error = 2, // the recording cannot be read from offset on; the next packet is End
    };

    Kind kind = End;
    // UTC, milliseconds; invalid where the recording tells none. Formats that store a time of day alone begin on the
    // day on which the file was last modified (the day before, where its time of day had not come by then); midnights
    // are counted up. Mode S recordings count from midnight of that day.
    QDateTime timeStamp;
    QByteArray
        data; // payload of one datagram or frame, or one data block of a raw recording; empty unless kind is Data
    qint64 offset = 0; // octets from the start of the (unpacked) file to the record (of the last fragment) or fault
    QString error; // reason, for Error only
};

} // namespace korvane::astfile
