#include "astfile/file_reader.h"

#include "capture_reader.h"
#include "octet_source.h"
#include "stream_reader.h"

#include <QCoreApplication>

namespace korvane::astfile {

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(FileReader)
};

} // namespace

FileReader::~FileReader() = default;

std::unique_ptr<FileReader> FileReader::create(const RecFile::Format &format, QString *error)
{
    switch (format) {
    case RecFile::Pcap:
    case RecFile::PcapNg:
        return std::make_unique<CaptureReader>();
    case RecFile::RawAsterix:
    case RecFile::FinalFormat:
    case RecFile::Gps:
    case RecFile::ModeS:
        return std::make_unique<StreamReader>();
    case RecFile::Unknown:
        break;
    }
    if (error) {
        *error = Text::tr("%1 (format %2) cannot be read.").arg(RecFile::formatName(format), QString::number(format));
    }
    return nullptr;
}

bool FileReader::open(const QString &fileName, const RecFile::Format &format)
{
    close();
    m_lastError.clear();
    m_open = openFile(fileName, format);
    m_atEnd = !m_open;
    return m_open;
}

void FileReader::close()
{
    closeFile();
    m_index = {};
    m_isHeld = false;
    m_open = false;
    m_atEnd = true;
}

void FileReader::read(DataPacket *packet)
{
    setEnd(packet);
    if (m_isHeld) {
        std::swap(*packet, m_held);
        m_isHeld = false;
    } else if (m_open && !m_atEnd) {
        readNext(packet);
    }
    m_atEnd = packet->kind == DataPacket::End;
}

DataPacket FileReader::read()
{
    DataPacket packet;
    read(&packet);
    return packet;
}

bool FileReader::reset()
{
    m_lastError.clear();
    if (!m_open) {
        return fail(Text::tr("No file is open."));
    }
    m_isHeld = false;
    m_atEnd = !rewindFile();
    return !m_atEnd;
}

bool FileReader::seek(const QDateTime &time)
{
    const qint64 timeMs = time.toMSecsSinceEpoch();
    if (!positionBefore(timeMs)) {
        return false;
    }
    bool anyTime = false;
    do {
        setEnd(&m_held);
        readNext(&m_held);
        anyTime = anyTime || m_held.timeStamp.isValid();
    } while (m_held.kind == DataPacket::Data
        && (!m_held.timeStamp.isValid() || m_held.timeStamp.toMSecsSinceEpoch() < timeMs));
    if (m_held.kind == DataPacket::Error) {
        return false;
    }
    m_isHeld = true;
    return anyTime || (!m_index.isNull() && m_index.first().isValid())
        || fail(Text::tr("The recording has no time stamps."));
}

bool FileReader::positionBefore(qint64 timeMs)
{
    const RecordingIndex::Entry *entry = m_open ? m_index.entryBefore(timeMs) : nullptr;
    if (!entry) {
        return reset();
    }
    m_lastError.clear();
    m_isHeld = false;
    m_atEnd = !resumeAt(*entry);
    return !m_atEnd;
}

bool FileReader::setIndex(const RecordingIndex &index)
{
    if (!m_open || index.isNull() || index.fileSize() != octetsTotal()) {
        return false;
    }
    m_index = index;
    source()->setMarks(index.marks());
    return true;
}

qint64 FileReader::octetsRead() const
{
    return m_open ? source()->octetsRead() : 0;
}

qint64 FileReader::octetsTotal() const
{
    return m_open ? source()->octetsTotal() : 0;
}

std::unique_ptr<OctetSource> FileReader::openSource(const QString &fileName)
{
    return OctetSource::open(fileName, m_cancel, &m_lastError);
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
