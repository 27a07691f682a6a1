#pragma once

#include "astfile/file_reader.h"
#include "udp_extractor.h"

struct pcap;
struct pcap_pkthdr;

namespace korvane::astfile {

// Network captures of both kinds: a packet is the payload of one UDP datagram, stamped as its last fragment was.
class CaptureReader final : public FileReader {
public:
    ~CaptureReader() override;

    bool open(const QString &fileName, const RecFile::Format &format) override;
    void close() override;
    using FileReader::read;
    void read(DataPacket *packet) override;
    bool atEnd() const override { return m_atEnd; }
    bool reset() override;

private:
    struct Closer {
        void operator()(pcap *capture) const;
    };

    bool openCapture();
    bool takeDatagram(const pcap_pkthdr &header, const unsigned char *frame, DataPacket *packet);
    qint64 position() const;

    QString m_fileName;
    std::unique_ptr<pcap, Closer> m_capture;
    int m_linkType = 0;
    UdpExtractor m_extractor;
    bool m_broken = false; // after an error nothing can be read
    bool m_atEnd = true;
};

} // namespace korvane::astfile
