#pragma once

#include "astfile/file_writer.h"

namespace korvane::astfile {

class RawBlockWriter final : public FileWriter {
public:
    bool open(const QString &fileName) override { return openFile(fileName); }
    bool write(const QDateTime &timeStamp, const Endpoint &source, const Endpoint &destination,
        const QByteArray &payload) override;
};

} // namespace korvane::astfile
