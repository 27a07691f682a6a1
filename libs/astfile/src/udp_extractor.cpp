#include "udp_extractor.h"

#include "octets.h"

#include <algorithm>
#include <cstring>

namespace korvane::astfile {

namespace {

using Octets = std::span<const unsigned char>;

constexpr unsigned ProtocolUdp = 17;
constexpr std::size_t UdpHeaderSize = 8;
constexpr std::size_t Ipv4HeaderSize = 20;
constexpr std::size_t Ipv6HeaderSize = 40;

// IPv6 extension headers that may stand before UDP.
constexpr unsigned HopByHop = 0;
constexpr unsigned Routing = 43;
constexpr unsigned FragmentHeader = 44;
constexpr unsigned Authentication = 51;
constexpr unsigned DestinationOptions = 60;
constexpr unsigned Mobility = 135;
constexpr std::size_t MinExtensionSize = 8;

// A length field of zero is what segmentation by the network card leaves; the capture's own length counts then.
Octets cutTo(Octets octets, std::size_t lengthField)
{
    return lengthField == 0 ? octets : octets.first(std::min(octets.size(), lengthField));
}

UdpExtractor::Result udpPayload(Octets datagram)
{
    if (datagram.size() < UdpHeaderSize) {
        return {};
    }
    const std::size_t length = read16(datagram, 4);
    if (length != 0 && length < UdpHeaderSize) {
        return {};
    }
    return {true, cutTo(datagram, length).subspan(UdpHeaderSize)};
}

// Octets of an extension header, 0 when the number is none.
std::size_t extensionSize(unsigned header, Octets octets)
{
    switch (header) {
    case HopByHop:
    case Routing:
    case DestinationOptions:
    case Mobility:
        return (octets[1] + 1U) * 8U;
    case Authentication:
        return (octets[1] + 2U) * 4U;
    default:
        return 0;
    }
}

} // namespace

UdpExtractor::Result UdpExtractor::extract(Octets packet, qint64 timeMs)
{
    if (packet.empty()) {
        return {};
    }
    switch (packet[0] >> 4) {
    case 4:
        return extractIpv4(packet, timeMs);
    case 6:
        return extractIpv6(packet, timeMs);
    default:
        return {};
    }
}

UdpExtractor::Result UdpExtractor::extractIpv4(Octets packet, qint64 timeMs)
{
    const std::size_t headerSize = (packet[0] & 0x0fU) * 4U;
    if (headerSize < Ipv4HeaderSize || packet.size() < headerSize || packet[9] != ProtocolUdp) {
        return {};
    }
    const std::size_t totalLength = read16(packet, 2);
    if (totalLength != 0 && totalLength < headerSize) {
        return {};
    }
    const Octets body = cutTo(packet, totalLength).subspan(headerSize);
    const unsigned flagsAndOffset = read16(packet, 6);
    const bool moreFragments = flagsAndOffset & 0x2000U;
    const std::size_t offset = (flagsAndOffset & 0x1fffU) * 8U;
    if (!moreFragments && offset == 0) {
        return udpPayload(body);
    }
    FragmentAssembler::Key key;
    std::memcpy(key.source.data(), &packet[12], 4);
    std::memcpy(key.destination.data(), &packet[16], 4);
    key.identification = read16(packet, 4);
    key.protocol = packet[9];
    return udpPayload(m_fragments.add(key, {offset, body, !moreFragments}, timeMs));
}

UdpExtractor::Result UdpExtractor::extractIpv6(Octets packet, qint64 timeMs)
{
    if (packet.size() < Ipv6HeaderSize) {
        return {};
    }
    Octets rest = packet.subspan(Ipv6HeaderSize);
    if (const std::size_t length = read16(packet, 4); length != 0) {
        rest = cutTo(rest, length);
    }
    unsigned header = packet[6];
    while (header != ProtocolUdp) {
        if (rest.size() < MinExtensionSize) {
            return {};
        }
        const unsigned next = rest[0];
        if (header == FragmentHeader) {
            const unsigned offsetAndMore = read16(rest, 2);
            FragmentAssembler::Key key;
            std::memcpy(key.source.data(), &packet[8], 16);
            std::memcpy(key.destination.data(), &packet[24], 16);
            key.identification = read32(rest, 4);
            rest = m_fragments.add(
                key, {offsetAndMore & 0xfff8U, rest.subspan(MinExtensionSize), (offsetAndMore & 1U) == 0}, timeMs);
        } else {
            const std::size_t size = extensionSize(header, rest);
            if (size == 0 || size > rest.size()) {
                return {};
            }
            rest = rest.subspan(size);
        }
        header = next;
    }
    return udpPayload(rest);
}

} // namespace korvane::astfile
