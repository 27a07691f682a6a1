#include "astfile/file_reader.h"

#include "capture_reader.h"
#include "raw_block_reader.h"

#include <QCoreApplication>

namespace korvane::astfile {

std::unique_ptr<FileReader> FileReader::create(const RecFile::Format &format, QString *error)
{
    switch (format) {
    case RecFile::Pcap:
    case RecFile::PcapNg:
        return std::make_unique<CaptureReader>();
    case RecFile::RawAsterix:
        return std::make_unique<RawBlockReader>();
    default:
        if (error) {
            *error = QCoreApplication::translate("FileReader", "%1 (format %2) cannot be read.")
                         .arg(RecFile::formatName(format), QString::number(format));
        }
        return nullptr;
    }
}

DataPacket FileReader::read()
{
    DataPacket packet;
    read(&packet);
    return packet;
}

bool FileReader::fail(const QString &reason)
{
    m_lastError = reason;
    return false;
}

void FileReader::setEnd(DataPacket *packet) const
{
    packet->kind = DataPacket::End;
    packet->timeStamp = {};
    packet->data.resize(0);
    packet->error.clear();
}

void FileReader::setError(DataPacket *packet, qint64 offset, const QString &reason)
{
    setEnd(packet);
    packet->kind = DataPacket::Error;
    packet->offset = offset;
    packet->error = reason;
    m_lastError = reason;
}

} // namespace korvane::astfile
