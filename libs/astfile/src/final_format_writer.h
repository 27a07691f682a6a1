#pragma once

#include "astfile/file_writer.h"

namespace korvane::astfile {

// The final format without sequence numbers: one frame a message, stamped to 0.01 s. The recording day counts from 0 at
// the first message.
class FinalFormatWriter final : public FileWriter {
public:
    bool open(const QString &fileName) override;
    bool write(const QDateTime &timeStamp, const Endpoint &source, const Endpoint &destination,
        const QByteArray &payload) override;

private:
    qint64 m_firstDay = -1; // Julian; -1: no message yet
};

} // namespace korvane::astfile
