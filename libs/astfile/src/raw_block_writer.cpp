#include "raw_block_writer.h"

#include <QtEndian>

namespace korvane::astfile {

bool RawBlockWriter::write(const QDateTime &, const Endpoint &, const Endpoint &, const QByteArray &payload)
{
    constexpr qsizetype HeaderSize = 3;
    // Anything behind the last whole block would be read as the next one.
    qsizetype end = 0;
    while (payload.size() - end >= HeaderSize) {
        const qsizetype length = qFromBigEndian<quint16>(payload.constData() + end + 1);
        if (length < HeaderSize || length > payload.size() - end) {
            break;
        }
        end += length;
    }
    return writable() && append(payload.left(end));
}

} // namespace korvane::astfile
