#pragma once

#include "traffic/udp_destination.h"

#include <QCoreApplication>
#include <QString>

#include <span>
#include <vector>

#include <sys/socket.h>

// Sends datagrams. It uses the system's socket calls directly, which send many datagrams at once.
class UdpSender {
    Q_DECLARE_TR_FUNCTIONS(UdpSender)

public:
    using Octets = std::span<const unsigned char>;

    UdpSender() = default;
    ~UdpSender();
    UdpSender(const UdpSender &) = delete;
    UdpSender &operator=(const UdpSender &) = delete;

    // False, with lastError() set, for an unknown host or interface.
    bool open(const UdpDestination &destination);
    // False when the system refuses it; the next one may pass. portOffset is added to the destination's port.
    bool send(Octets datagram, int portOffset = 0);
    // How many of them were sent, from the first on; waits for room in the socket's buffer.
    std::size_t sendMany(std::span<const Octets> datagrams);

    QString lastError() const { return m_lastError; }

private:
    bool resolve(const UdpDestination &destination);
    bool selectInterface(const QString &name);
    bool fail(const QString &what);
    bool failBySystem(const QString &what);

    int m_socket = -1;
    sockaddr_storage m_address{};
    socklen_t m_addressLength = 0;
    std::vector<iovec> m_pieces; // of sendMany, kept for their memory
    std::vector<mmsghdr> m_messages;
    QString m_lastError;
};
