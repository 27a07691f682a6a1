#pragma once

#include <QtGlobal>

class QUdpSocket;

// What a bound UDP socket can be told and asked beyond the framework's own options. On systems without the option these
// do the next best thing.
class UdpSocketOptions {
public:
    struct Queue {
        qint64 pendingOctets = 0; // waiting to be read, as the system counts them against the receive buffer
        quint32 drops = 0; // datagrams that did not fit, since the socket was made; 0 where it is not told
    };

    // Asks for a receive buffer; the system may grant less.
    static void setReceiveBuffer(QUdpSocket *socket, int octets);
    // In octets, as the system counts.
    static int receiveBuffer(QUdpSocket *socket);

    // Keeps out groups that only other sockets of this machine have joined. Without this two inputs on one port see
    // each other's groups.
    static void receiveJoinedGroupsOnly(QUdpSocket *socket);

    static Queue queue(const QUdpSocket *socket);
};
