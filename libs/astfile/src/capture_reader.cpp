#include "capture_reader.h"

#include "link_layer.h"

#include <QCoreApplication>

#include <pcap/pcap.h>

#include <cstdio>
#include <cstring>

namespace korvane::astfile {

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(CaptureReader)
};

} // namespace

CaptureReader::~CaptureReader() = default;

void CaptureReader::Closer::operator()(pcap *capture) const
{
    pcap_close(capture);
}

bool CaptureReader::openFile(const QString &fileName, RecFile::Format format)
{
    if (format != RecFile::Pcap && format != RecFile::PcapNg) {
        return fail(Text::tr("This reader reads network captures only."));
    }
    auto source = openSource(fileName);
    if (!source) {
        return false;
    }
    m_stream = std::make_unique<CaptureStream>(std::move(source));
    if (openCapture(m_stream->openWhole())) {
        return true;
    }
    closeFile();
    return false;
}

void CaptureReader::closeFile()
{
    m_capture.reset();
    m_file = nullptr;
    m_stream.reset();
    m_extractor.clear();
    m_stopped = true;
}

bool CaptureReader::rewindFile()
{
    m_capture.reset();
    return openCapture(m_stream->openWhole());
}

bool CaptureReader::resumeAt(const RecordingIndex::Entry &entry)
{
    m_capture.reset();
    return openCapture(m_stream->openAt(entry.prologue, entry.offset));
}

bool CaptureReader::openCapture(std::FILE *stream)
{
    m_extractor.clear();
    m_stopped = true;
    if (!stream) {
        return fail(reasonOf(std::strerror(errno)));
    }
    char reason[PCAP_ERRBUF_SIZE] = {};
    m_file = stream;
    m_capture.reset(pcap_fopen_offline(stream, reason));
    if (!m_capture) {
        std::fclose(stream);
        return fail(reasonOf(reason));
    }
    m_linkType = pcap_datalink(m_capture.get());
    if (!linkTypeKnown(m_linkType)) {
        const char *name = pcap_datalink_val_to_name(m_linkType);
        return fail(Text::tr("Link type %1 is not supported.")
                        .arg(name ? QString::fromLatin1(name) : QString::number(m_linkType)));
    }
    m_stopped = false;
    return true;
}

// Of two the cause: why the file could not be read, or what libpcap made of it.
QString CaptureReader::reasonOf(const char *libraryReason) const
{
    const QString cause = m_stream->source()->error();
    return cause.isEmpty() ? QString::fromLocal8Bit(libraryReason) : cause;
}

void CaptureReader::readNext(DataPacket *packet)
{
    while (!m_stopped) {
        const qint64 offset = m_stream->fileOffset(m_file);
        pcap_pkthdr *header = nullptr;
        const unsigned char *frame = nullptr;
        const int result = pcap_next_ex(m_capture.get(), &header, &frame);
        if (result == 1) {
            if (takeDatagram(*header, frame, packet)) {
                packet->offset = offset;
                return;
            }
            continue;
        }
        m_stopped = true;
        if (result != PCAP_ERROR_BREAK) {
            setError(packet, offset, reasonOf(pcap_geterr(m_capture.get())));
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

const QByteArray *CaptureReader::prologueAt(qint64 offset)
{
    return m_stream->prologueAt(offset);
}

} // namespace korvane::astfile
