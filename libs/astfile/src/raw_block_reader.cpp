#include "raw_block_reader.h"

#include <QCoreApplication>

#include <array>
#include <cstring>

namespace korvane::astfile {

namespace {

constexpr int HeaderSize = 3; // category, length

QString tr(const char *text)
{
    return QCoreApplication::translate("RawBlockReader", text);
}

} // namespace

bool RawBlockReader::open(const QString &fileName, const RecFile::Format &format)
{
    close();
    m_lastError.clear();
    if (format != RecFile::RawAsterix) {
        return fail(tr("This reader reads raw data blocks only."));
    }
    m_file.setFileName(fileName);
    if (!m_file.open(QIODevice::ReadOnly)) {
        return fail(m_file.errorString());
    }
    m_stopped = m_atEnd = false;
    return true;
}

void RawBlockReader::close()
{
    m_file.close();
    m_stopped = m_atEnd = true;
}

bool RawBlockReader::reset()
{
    m_lastError.clear();
    if (!m_file.isOpen()) {
        return fail(tr("No file is open."));
    }
    if (!m_file.seek(0)) {
        return fail(m_file.errorString());
    }
    m_stopped = m_atEnd = false;
    return true;
}

void RawBlockReader::read(DataPacket *packet)
{
    setEnd(packet);
    if (m_stopped) {
        m_atEnd = true;
        return;
    }
    const qint64 offset = m_file.pos();
    std::array<unsigned char, HeaderSize> header;
    const qint64 headerOctets = m_file.read(reinterpret_cast<char *>(header.data()), HeaderSize);
    if (headerOctets == 0) {
        m_stopped = m_atEnd = true;
        return;
    }
    if (headerOctets < HeaderSize) {
        stop(packet, offset,
            headerOctets < 0 ? m_file.errorString() : tr("The file ends within a data block's header."));
        return;
    }
    const int length = header[1] << 8 | header[2];
    if (length < HeaderSize) {
        stop(packet, offset, tr("A data block's length field says %1.").arg(length));
        return;
    }
    packet->data.resize(length);
    std::memcpy(packet->data.data(), header.data(), HeaderSize);
    if (m_file.read(packet->data.data() + HeaderSize, length - HeaderSize) != length - HeaderSize) {
        stop(packet, offset, tr("The file ends within a data block of %1 octets.").arg(length));
        return;
    }
    packet->kind = DataPacket::Data;
    packet->offset = offset;
}

void RawBlockReader::stop(DataPacket *packet, qint64 offset, const QString &reason)
{
    m_stopped = true;
    setError(packet, offset, reason);
}

} // namespace korvane::astfile
