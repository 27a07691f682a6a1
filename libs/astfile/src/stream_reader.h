#pragma once

#include "astfile/file_reader.h"
#include "framing.h"

#include <memory>

namespace korvane::astfile {

// Recordings that are a row of records, in whatever framing.
class StreamReader final : public FileReader {
public:
    StreamReader() = default;
    ~StreamReader() override;

protected:
    bool openFile(const QString &fileName, RecFile::Format format) override;
    void closeFile() override;
    bool rewindFile() override;
    void readNext(DataPacket *packet) override;
    bool resumeAt(const RecordingIndex::Entry &entry) override;
    const QByteArray *prologueAt(qint64) override { return &m_noPrologue; }
    OctetSource *source() const override { return m_input ? m_input->source() : nullptr; }

private:
    std::unique_ptr<BufferedInput> m_input;
    std::unique_ptr<Framing> m_framing;
    Framing::Record m_record;
    bool m_stopped = true; // after an error
    const QByteArray m_noPrologue;
};

} // namespace korvane::astfile
