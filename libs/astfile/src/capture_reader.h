#pragma once

#include "astfile/file_reader.h"
#include "capture_stream.h"
#include "udp_extractor.h"

struct pcap;
struct pcap_pkthdr;

namespace korvane::astfile {

// Network captures of both kinds: a packet is the payload of one UDP datagram, stamped as its last fragment was.
class CaptureReader final : public FileReader {
public:
    CaptureReader() = default;
    ~CaptureReader() override;

protected:
    bool openFile(const QString &fileName, RecFile::Format format) override;
    void closeFile() override;
    bool rewindFile() override;
    void readNext(DataPacket *packet) override;
    bool resumeAt(const RecordingIndex::Entry &entry) override;
    const QByteArray *prologueAt(qint64 offset) override;
    OctetSource *source() const override { return m_stream ? m_stream->source() : nullptr; }

private:
    struct Closer {
        void operator()(pcap *capture) const;
    };

    bool openCapture(std::FILE *stream);
    bool takeDatagram(const pcap_pkthdr &header, const unsigned char *frame, DataPacket *packet);
    QString reasonOf(const char *libraryReason) const;

    std::unique_ptr<CaptureStream> m_stream; // outlives the capture that reads from it
    std::unique_ptr<pcap, Closer> m_capture;
    std::FILE *m_file = nullptr; // the capture's
    int m_linkType = 0;
    UdpExtractor m_extractor;
    bool m_stopped = true; // after an error
};

} // namespace korvane::astfile
