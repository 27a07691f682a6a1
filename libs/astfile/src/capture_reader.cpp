#include "capture_reader.h"

#include "link_layer.h"

#include <QCoreApplication>
#include <QFile>

#include <pcap/pcap.h>

#include <cstdio>
#include <cstring>

namespace korvane::astfile {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("CaptureReader", text);
}

} // namespace

CaptureReader::~CaptureReader() = default;

void CaptureReader::Closer::operator()(pcap *capture) const
{
    pcap_close(capture);
}

bool CaptureReader::open(const QString &fileName, const RecFile::Format &format)
{
    close();
    m_lastError.clear();
    if (format != RecFile::Pcap && format != RecFile::PcapNg) {
        return fail(tr("This reader reads network captures only."));
    }
    m_fileName = fileName;
    return openCapture();
}

void CaptureReader::close()
{
    m_capture.reset();
    m_extractor.clear();
    m_broken = false;
    m_atEnd = true;
}

bool CaptureReader::reset()
{
    m_lastError.clear();
    if (!m_capture) {
        return fail(tr("No file is open."));
    }
    close();
    return openCapture();
}

bool CaptureReader::openCapture()
{
    char reason[PCAP_ERRBUF_SIZE] = {};
    m_capture.reset(pcap_open_offline(QFile::encodeName(m_fileName).constData(), reason));
    if (!m_capture) {
        return fail(QString::fromLocal8Bit(reason));
    }
    m_linkType = pcap_datalink(m_capture.get());
    if (!linkTypeKnown(m_linkType)) {
        const char *name = pcap_datalink_val_to_name(m_linkType);
        close();
        return fail(
            tr("Link type %1 is not supported.").arg(name ? QString::fromLatin1(name) : QString::number(m_linkType)));
    }
    m_atEnd = false;
    return true;
}

void CaptureReader::read(DataPacket *packet)
{
    setEnd(packet);
    m_atEnd = m_atEnd || m_broken;
    while (!m_atEnd) {
        const qint64 offset = position();
        pcap_pkthdr *header = nullptr;
        const unsigned char *frame = nullptr;
        const int result = pcap_next_ex(m_capture.get(), &header, &frame);
        if (result == 1) {
            if (takeDatagram(*header, frame, packet)) {
                packet->offset = offset;
                return;
            }
        } else if (result == PCAP_ERROR_BREAK) {
            m_atEnd = true;
        } else {
            m_broken = true;
            setError(packet, offset, QString::fromLocal8Bit(pcap_geterr(m_capture.get())));
            return;
        }
    }
}

bool CaptureReader::takeDatagram(const pcap_pkthdr &header, const unsigned char *frame, DataPacket *packet)
{
    const auto network = networkPacket(m_linkType, {frame, header.caplen});
    if (!network) {
        return false;
    }
    const qint64 timeMs = static_cast<qint64>(header.ts.tv_sec) * 1000 + header.ts.tv_usec / 1000;
    const UdpExtractor::Result datagram = m_extractor.extract(*network, timeMs);
    if (!datagram.found) {
        return false;
    }
    packet->kind = DataPacket::Data;
    packet->timeStamp = QDateTime::fromMSecsSinceEpoch(timeMs, Qt::UTC);
    packet->data.resize(static_cast<qsizetype>(datagram.payload.size()));
    std::memcpy(packet->data.data(), datagram.payload.data(), datagram.payload.size());
    return true;
}

qint64 CaptureReader::position() const
{
    return ftello(pcap_file(m_capture.get()));
}

} // namespace korvane::astfile
