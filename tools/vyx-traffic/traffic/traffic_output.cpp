#include "traffic/traffic_output.h"

#include <QHostAddress>

namespace {

// Of a range that is kept for documentation: a capture must not name machines that exist.
constexpr std::uint32_t FirstSenderAddress = 0xC0000201; // 192.0.2.1
constexpr std::uint16_t SenderPort = 50000;
constexpr std::uint32_t DefaultGroup = 0xEF000001; // 239.0.0.1
constexpr std::uint16_t DefaultPort = 50000;

} // namespace

bool TrafficOutput::open(const TrafficOptions &options)
{
    if (options.destination) {
        m_sender = std::make_unique<UdpSender>();
        if (!m_sender->open(*options.destination)) {
            return fail(m_sender->lastError());
        }
    }
    if (!options.pcapFile.isEmpty() && !openPcap(options.pcapFile, options.destination)) {
        return false;
    }
    return options.blockFile.isEmpty() || openBlocks(options.blockFile);
}

bool TrafficOutput::openPcap(const QString &fileName, const std::optional<UdpDestination> &destination)
{
    bool isIpv4 = false;
    const std::uint32_t address = QHostAddress(destination ? destination->host : QString()).toIPv4Address(&isIpv4);
    m_pcapDestination.address = isIpv4 ? address : DefaultGroup;
    m_pcapDestination.port = destination ? destination->port : DefaultPort;
    m_pcap = std::make_unique<korvane::astfile::PcapWriter>();
    return m_pcap->open(fileName) || fail(QStringLiteral("%1: %2").arg(fileName, m_pcap->lastError()));
}

bool TrafficOutput::openBlocks(const QString &fileName)
{
    m_blocks = std::make_unique<QFile>(fileName);
    return m_blocks->open(QIODevice::WriteOnly | QIODevice::Truncate)
        || fail(QStringLiteral("%1: %2").arg(fileName, m_blocks->errorString()));
}

bool TrafficOutput::write(const QByteArray &datagram, const QDateTime &time, std::size_t station, int portOffset)
{
    const auto *octets = reinterpret_cast<const unsigned char *>(datagram.constData());
    const bool sent = !m_sender || m_sender->send({octets, static_cast<std::size_t>(datagram.size())}, portOffset);
    count(sent ? 1 : 0, sent ? static_cast<std::uint64_t>(datagram.size()) : 0, sent ? 0 : 1);
    if (m_pcap) {
        auto destination = m_pcapDestination;
        destination.port = static_cast<std::uint16_t>(destination.port + portOffset);
        const auto sender = static_cast<std::uint32_t>(FirstSenderAddress + station);
        if (!m_pcap->write(time, {sender, SenderPort}, destination, datagram)) {
            return fail(m_pcap->lastError());
        }
    }
    if (m_blocks && m_blocks->write(datagram) != datagram.size()) {
        return fail(QStringLiteral("%1: %2").arg(m_blocks->fileName(), m_blocks->errorString()));
    }
    return true;
}

bool TrafficOutput::close()
{
    if (m_pcap && !m_pcap->close()) {
        return fail(m_pcap->lastError());
    }
    if (m_blocks && !m_blocks->flush()) {
        return fail(QStringLiteral("%1: %2").arg(m_blocks->fileName(), m_blocks->errorString()));
    }
    return true;
}

void TrafficOutput::count(std::uint64_t datagrams, std::uint64_t octets, std::uint64_t refused)
{
    m_datagrams += datagrams;
    m_octets += octets;
    m_refused += refused;
}

QString TrafficOutput::summary() const
{
    const QString sent = tr("%1 datagrams, %2 octets").arg(m_datagrams).arg(m_octets);
    if (m_refused == 0) {
        return sent;
    }
    return sent + tr(", %1 refused (%2)").arg(m_refused).arg(m_sender->lastError());
}

bool TrafficOutput::fail(const QString &error)
{
    m_lastError = error;
    return false;
}
