#include "astfile/pcap_writer.h"

#include <QCoreApplication>
#include <QtEndian>

#include <limits>

namespace korvane::astfile {

namespace {

constexpr std::uint32_t Magic = 0xa1b2c3d4; // microseconds
constexpr std::uint32_t SnapLength = 262144;
constexpr qsizetype MaxPayload = 65507;
constexpr std::uint16_t Ipv4HeaderSize = 20;
constexpr std::uint16_t UdpHeaderSize = 8;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(PcapWriter)
};

template <typename T>
void appendLittle(QByteArray &octets, T value)
{
    const T swapped = qToLittleEndian(value);
    octets.append(reinterpret_cast<const char *>(&swapped), sizeof swapped);
}

template <typename T>
void appendBig(QByteArray &octets, T value)
{
    const T swapped = qToBigEndian(value);
    octets.append(reinterpret_cast<const char *>(&swapped), sizeof swapped);
}

void putBig16(QByteArray &octets, qsizetype position, std::uint16_t value)
{
    qToBigEndian(value, octets.data() + position);
}

// Sum of 16-bit words in network order, an odd last octet padded with zero.
std::uint32_t wordSum(const QByteArray &octets, qsizetype begin)
{
    std::uint32_t sum = 0;
    for (qsizetype i = begin; i < octets.size(); ++i) {
        const auto octet = static_cast<unsigned char>(octets[i]);
        sum += (i - begin) % 2 == 0 ? static_cast<std::uint32_t>(octet) << 8 : octet;
    }
    return sum;
}

std::uint16_t checksum(std::uint32_t sum)
{
    while (sum >> 16) {
        sum = (sum & 0xffff) + (sum >> 16);
    }
    return static_cast<std::uint16_t>(~sum);
}

// Locally administered addresses made of the IP address, and the group's own for multicast.
void appendHardwareAddress(QByteArray &octets, std::uint32_t address)
{
    if (address >> 28 == 0xe) {
        octets.append("\x01\x00\x5e", 3);
        octets.append(static_cast<char>(address >> 16 & 0x7f));
        appendBig<std::uint16_t>(octets, static_cast<std::uint16_t>(address));
        return;
    }
    octets.append("\x02\x00", 2);
    appendBig(octets, address);
}

void appendEthernetHeader(QByteArray &octets, std::uint32_t source, std::uint32_t destination)
{
    appendHardwareAddress(octets, destination);
    appendHardwareAddress(octets, source);
    appendBig<std::uint16_t>(octets, 0x0800);
}

void appendIpv4Header(QByteArray &octets, std::uint16_t identification, std::uint16_t udpLength,
    const PcapWriter::Endpoint &source, const PcapWriter::Endpoint &destination)
{
    const qsizetype begin = octets.size();
    appendBig<std::uint16_t>(octets, 0x4500);
    appendBig<std::uint16_t>(octets, static_cast<std::uint16_t>(Ipv4HeaderSize + udpLength));
    appendBig(octets, identification);
    appendBig<std::uint16_t>(octets, 0x4000); // don't fragment
    appendBig<std::uint16_t>(octets, 0x4011); // time to live 64, UDP
    appendBig<std::uint16_t>(octets, 0); // checksum
    appendBig(octets, source.address);
    appendBig(octets, destination.address);
    putBig16(octets, begin + 10, checksum(wordSum(octets, begin)));
}

void appendUdp(QByteArray &octets, std::uint16_t length, const PcapWriter::Endpoint &source,
    const PcapWriter::Endpoint &destination, const QByteArray &payload)
{
    const qsizetype begin = octets.size();
    appendBig(octets, source.port);
    appendBig(octets, destination.port);
    appendBig(octets, length);
    appendBig<std::uint16_t>(octets, 0); // checksum
    octets.append(payload);
    const std::uint32_t pseudoHeader = (source.address >> 16) + (source.address & 0xffff) + (destination.address >> 16)
        + (destination.address & 0xffff) + 17 + length;
    const std::uint16_t sum = checksum(pseudoHeader + wordSum(octets, begin));
    putBig16(octets, begin + 6, sum == 0 ? 0xffff : sum); // zero would mean: no checksum
}

} // namespace

bool PcapWriter::open(const QString &fileName, LinkType linkType)
{
    if (!openFile(fileName)) {
        return false;
    }
    m_linkType = linkType;
    m_identification = 0;
    QByteArray header;
    appendLittle(header, Magic);
    appendLittle<std::uint16_t>(header, 2);
    appendLittle<std::uint16_t>(header, 4);
    appendLittle<std::uint64_t>(header, 0); // time zone and accuracy, unused
    appendLittle(header, SnapLength);
    appendLittle(header, static_cast<std::uint32_t>(linkType));
    return append(header);
}

bool PcapWriter::write(
    const QDateTime &timeStamp, const Endpoint &source, const Endpoint &destination, const QByteArray &payload)
{
    if (!writable()) {
        return false;
    }
    if (payload.size() > MaxPayload) {
        return fail(Text::tr("A payload of %1 octets does not fit into a datagram.").arg(payload.size()));
    }
    const qint64 timeMs = timeStamp.isValid() ? timeStamp.toMSecsSinceEpoch() : -1;
    if (timeMs < 0 || timeMs / 1000 > std::numeric_limits<std::uint32_t>::max()) {
        return fail(Text::tr("The time stamp cannot be stored."));
    }
    const auto udpLength = static_cast<std::uint16_t>(UdpHeaderSize + payload.size());
    const std::uint32_t frameLength =
        (m_linkType == LinkType::Ethernet ? 14U : 0U) + std::uint32_t{Ipv4HeaderSize} + udpLength;
    m_record.resize(0);
    appendLittle(m_record, static_cast<std::uint32_t>(timeMs / 1000));
    appendLittle(m_record, static_cast<std::uint32_t>(timeMs % 1000 * 1000));
    appendLittle(m_record, frameLength); // captured
    appendLittle(m_record, frameLength); // as sent
    if (m_linkType == LinkType::Ethernet) {
        appendEthernetHeader(m_record, source.address, destination.address);
    }
    appendIpv4Header(m_record, m_identification++, udpLength, source, destination);
    appendUdp(m_record, udpLength, source, destination, payload);
    return append(m_record);
}

} // namespace korvane::astfile
