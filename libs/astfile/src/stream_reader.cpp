#include "stream_reader.h"

#include <QCoreApplication>

#include <cstring>

namespace korvane::astfile {

StreamReader::~StreamReader() = default;

bool StreamReader::openFile(const QString &fileName, RecFile::Format format)
{
    m_framing = Framing::create(format);
    if (!m_framing) {
        return fail(QCoreApplication::translate("StreamReader", "This reader reads no network captures."));
    }
    auto source = openSource(fileName);
    if (!source) {
        return false;
    }
    m_input = std::make_unique<BufferedInput>(std::move(source));
    m_framing->begin(*m_input, m_input->source()->modified());
    m_stopped = false;
    return true;
}

void StreamReader::closeFile()
{
    m_input.reset();
    m_stopped = true;
}

bool StreamReader::rewindFile()
{
    if (!m_input->seek(0)) {
        return fail(m_input->source()->error());
    }
    m_framing->begin(*m_input, m_input->source()->modified());
    m_stopped = false;
    return true;
}

bool StreamReader::resumeAt(const RecordingIndex::Entry &entry)
{
    if (!m_input->seek(entry.offset)) {
        return fail(m_input->source()->error());
    }
    m_framing->resume(entry.timeMs);
    m_stopped = false;
    return true;
}

void StreamReader::readNext(DataPacket *packet)
{
    if (m_stopped) {
        return;
    }
    m_framing->next(*m_input, &m_record);
    if (m_record.kind == DataPacket::Data) {
        packet->kind = DataPacket::Data;
        packet->offset = m_record.offset;
        packet->data.resize(static_cast<qsizetype>(m_record.data.size()));
        std::memcpy(packet->data.data(), m_record.data.data(), m_record.data.size());
        if (m_record.timeMs) {
            packet->timeStamp = QDateTime::fromMSecsSinceEpoch(*m_record.timeMs, Qt::UTC);
        }
        return;
    }
    m_stopped = true;
    // What looks like an end, or a record cut short, may be where the disk or the unpacking failed.
    if (m_input->failed()) {
        setError(packet, m_record.offset, m_input->source()->error());
    } else if (m_record.kind == DataPacket::Error) {
        setError(packet, m_record.offset, m_record.error);
    }
}

} // namespace korvane::astfile
