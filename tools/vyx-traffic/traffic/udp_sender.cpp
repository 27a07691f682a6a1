#include "traffic/udp_sender.h"

#include <QtEndian>

#include <cerrno>
#include <cstring>

#include <net/if.h>
#include <netdb.h>
#include <netinet/in.h>
#include <unistd.h>

namespace {

constexpr int SendBuffer = 1 << 20; // octets

// The port field of either family of addresses stands at the same place.
in_port_t &portOf(sockaddr_storage &address)
{
    static_assert(offsetof(sockaddr_in, sin_port) == offsetof(sockaddr_in6, sin6_port));
    return reinterpret_cast<sockaddr_in *>(&address)->sin_port;
}

// The socket calls never write to what is sent, but their structures cannot say so.
iovec piece(UdpSender::Octets octets)
{
    return {const_cast<unsigned char *>(octets.data()), octets.size()};
}

} // namespace

UdpSender::~UdpSender()
{
    if (m_socket >= 0) {
        ::close(m_socket);
    }
}

bool UdpSender::open(const UdpDestination &destination)
{
    if (!resolve(destination)) {
        return false;
    }
    m_socket = ::socket(m_address.ss_family, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (m_socket < 0) {
        return failBySystem(tr("no socket"));
    }
    // Best effort: the system may grant less.
    ::setsockopt(m_socket, SOL_SOCKET, SO_SNDBUF, &SendBuffer, sizeof SendBuffer);
    return destination.interfaceName.isEmpty() || selectInterface(destination.interfaceName);
}

bool UdpSender::send(Octets datagram, int portOffset)
{
    sockaddr_storage address = m_address;
    portOf(address) = qToBigEndian(static_cast<in_port_t>(qFromBigEndian(portOf(m_address)) + portOffset));
    const auto *to = reinterpret_cast<const sockaddr *>(&address);
    if (::sendto(m_socket, datagram.data(), datagram.size(), 0, to, m_addressLength) >= 0) {
        return true;
    }
    return failBySystem(tr("sending failed"));
}

std::size_t UdpSender::sendMany(std::span<const Octets> datagrams)
{
    m_pieces.clear();
    for (const Octets &datagram : datagrams) {
        m_pieces.push_back(piece(datagram));
    }
    m_messages.assign(datagrams.size(), mmsghdr{});
    for (std::size_t i = 0; i < datagrams.size(); ++i) {
        m_messages[i].msg_hdr.msg_name = &m_address;
        m_messages[i].msg_hdr.msg_namelen = m_addressLength;
        m_messages[i].msg_hdr.msg_iov = &m_pieces[i];
        m_messages[i].msg_hdr.msg_iovlen = 1;
    }
    std::size_t sent = 0;
    while (sent < datagrams.size()) {
        const auto left = static_cast<unsigned int>(datagrams.size() - sent);
        const int count = ::sendmmsg(m_socket, m_messages.data() + sent, left, 0);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            failBySystem(tr("sending failed"));
            break;
        }
        sent += static_cast<std::size_t>(count);
    }
    return sent;
}

bool UdpSender::resolve(const UdpDestination &destination)
{
    addrinfo hints{};
    hints.ai_family = AF_UNSPEC;
    hints.ai_socktype = SOCK_DGRAM;
    addrinfo *found = nullptr;
    const QByteArray host = destination.host.toUtf8();
    const int status = ::getaddrinfo(host.constData(), nullptr, &hints, &found);
    if (status != 0) {
        return fail(QStringLiteral("%1: %2").arg(destination.host, QString::fromLocal8Bit(::gai_strerror(status))));
    }
    std::memcpy(&m_address, found->ai_addr, found->ai_addrlen);
    m_addressLength = found->ai_addrlen;
    portOf(m_address) = qToBigEndian(destination.port);
    ::freeaddrinfo(found);
    return true;
}

bool UdpSender::selectInterface(const QString &name)
{
    const unsigned int index = ::if_nametoindex(name.toUtf8().constData());
    if (index == 0) {
        return fail(tr("there is no network interface %1").arg(name));
    }
    int status = 0;
    if (m_address.ss_family == AF_INET6) {
        status = ::setsockopt(m_socket, IPPROTO_IPV6, IPV6_MULTICAST_IF, &index, sizeof index);
    } else {
        ip_mreqn choice{};
        choice.imr_ifindex = static_cast<int>(index);
        status = ::setsockopt(m_socket, IPPROTO_IP, IP_MULTICAST_IF, &choice, sizeof choice);
    }
    return status == 0 || failBySystem(tr("interface %1").arg(name));
}

bool UdpSender::fail(const QString &what)
{
    m_lastError = what;
    return false;
}

bool UdpSender::failBySystem(const QString &what)
{
    return fail(QStringLiteral("%1: %2").arg(what, QString::fromLocal8Bit(std::strerror(errno))));
}
