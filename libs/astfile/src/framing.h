#pragma once

#include "astfile/data_packet.h"
#include "astfile/rec_file.h"
#include "buffered_input.h"

#include <memory>
#include <optional>
#include <span>

namespace korvane::astfile {

// How a recording file wraps and stamps its messages.
class Framing {
public:
    struct Record {
        DataPacket::Kind kind = DataPacket::End;
        qint64 offset = 0;
        std::span<const unsigned char> data; // valid until the next call
        std::optional<qint64> timeMs; // since 1970 UTC
        QString error;
    };

    // Null for the capture formats.
    static std::unique_ptr<Framing> create(RecFile::Format format);

    Framing() = default;
    Framing(const Framing &) = delete;
    Framing &operator=(const Framing &) = delete;
    virtual ~Framing() = default;

    // At the start of the file: finds out its variant and takes the input to the first record.
    virtual void begin(BufferedInput &input, const QDateTime &modified) = 0;

    virtual void next(BufferedInput &input, Record *record) = 0;

    // The input has been taken to a record that is stamped so.
    virtual void resume(qint64 timeMs) = 0;

protected:
    static void setError(Record *record, const QString &reason)
    {
        record->kind = DataPacket::Error;
        record->error = reason;
    }

    // Octets of the data block that begins there, 0 when its length cannot be.
    static std::size_t blockLength(std::span<const unsigned char> octets);
};

} // namespace korvane::astfile
