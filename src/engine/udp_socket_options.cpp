#include "engine/udp_socket_options.h"

#include <QUdpSocket>

#ifdef Q_OS_LINUX
#include <linux/sock_diag.h>
#include <netinet/in.h>
#include <sys/socket.h>
#endif

namespace {

#ifdef Q_OS_LINUX
bool setOption(const QUdpSocket *socket, int level, int name, int value)
{
    return setsockopt(static_cast<int>(socket->socketDescriptor()), level, name, &value, sizeof value) == 0;
}
#endif

} // namespace

void UdpSocketOptions::setReceiveBuffer(QUdpSocket *socket, int octets)
{
#ifdef Q_OS_LINUX
    // Not bound to the system's limit, but takes a privilege.
    if (setOption(socket, SOL_SOCKET, SO_RCVBUFFORCE, octets)) {
        return;
    }
#endif
    socket->setSocketOption(QAbstractSocket::ReceiveBufferSizeSocketOption, octets);
}

int UdpSocketOptions::receiveBuffer(QUdpSocket *socket)
{
    return socket->socketOption(QAbstractSocket::ReceiveBufferSizeSocketOption).toInt();
}

void UdpSocketOptions::receiveJoinedGroupsOnly([[maybe_unused]] QUdpSocket *socket)
{
#ifdef Q_OS_LINUX
    setOption(socket, IPPROTO_IP, IP_MULTICAST_ALL, 0);
#endif
}

UdpSocketOptions::Queue UdpSocketOptions::queue(const QUdpSocket *socket)
{
#ifdef Q_OS_LINUX
    quint32 memory[SK_MEMINFO_VARS] = {};
    socklen_t size = sizeof memory;
    if (getsockopt(static_cast<int>(socket->socketDescriptor()), SOL_SOCKET, SO_MEMINFO, memory, &size) == 0) {
        return {memory[SK_MEMINFO_RMEM_ALLOC], memory[SK_MEMINFO_DROPS]};
    }
#endif
    return {socket->bytesAvailable(), 0};
}
