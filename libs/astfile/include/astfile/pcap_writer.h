#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QString>

#include <cstdint>

namespace korvane::astfile {

// Writes UDP datagrams as a network capture. The octets depend on the arguments alone: the same datagrams give the same
// file. Not thread-safe.
class PcapWriter {
public:
    enum class LinkType {
        Ethernet = 1, // with made-up, constant hardware addresses (the group's own where the destination is multicast)
        RawIp = 101,
    };

    // IPv4 address in host byte order (as QHostAddress::toIPv4Address() gives it) and UDP port.
    struct Endpoint {
        std::uint32_t address = 0;
        std::uint16_t port = 0;
    };

    // Creates or replaces the file and writes its header. False, with lastError() set, when that fails.
    bool open(const QString &fileName, LinkType linkType = LinkType::Ethernet);

    // One datagram, stamped to the millisecond. False when the payload exceeds what UDP over IPv4 carries (65507
    // octets), the time stamp is invalid or outside 1970 to 2106, no file is open, or the disk refuses; lastError()
    // says which. A refused datagram leaves the capture as it was, but for a failed disk.
    bool write(
        const QDateTime &timeStamp, const Endpoint &source, const Endpoint &destination, const QByteArray &payload);

    // Writes what is still held back. False, with lastError() set, when that fails. Closing a closed writer is no
    // error.
    bool close();

    QString lastError() const { return m_lastError; }

private:
    bool fail(const QString &reason);

    QFile m_file;
    LinkType m_linkType = LinkType::Ethernet;
    std::uint16_t m_identification = 0; // of the next IPv4 packet
    QByteArray m_record; // reused from datagram to datagram
    QString m_lastError;
};

} // namespace korvane::astfile
