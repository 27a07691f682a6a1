#pragma once

#include "astfile/file_writer.h"

namespace korvane::astfile {

// Writes UDP datagrams as a network capture. The octets depend on the arguments alone: the same datagrams give the same
// file.
class PcapWriter final : public FileWriter {
public:
    enum class LinkType {
        Ethernet = 1, // with made-up, constant hardware addresses (the group's own where the destination is multicast)
        RawIp = 101,
    };

    // Creates or replaces the file and begins it with its header. False, with lastError() set, when that fails.
    bool open(const QString &fileName) override { return open(fileName, LinkType::Ethernet); }
    bool open(const QString &fileName, LinkType linkType);

    // One datagram, stamped to the millisecond. Refused are payloads of more than what UDP over IPv4 carries (65507
    // octets), and time stamps that are invalid or outside 1970 to 2106.
    bool write(const QDateTime &timeStamp, const Endpoint &source, const Endpoint &destination,
        const QByteArray &payload) override;

private:
    LinkType m_linkType = LinkType::Ethernet;
    std::uint16_t m_identification = 0; // of the next IPv4 packet
    QByteArray m_record; // reused from datagram to datagram
};

} // namespace korvane::astfile
