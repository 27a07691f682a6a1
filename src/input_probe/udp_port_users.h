#pragma once

#include <QByteArray>
#include <QList>
#include <QSet>
#include <QString>
#include <QtGlobal>

// A socket of another program that takes what is sent to a UDP port of this machine.
struct UdpPortUser {
    quint16 port = 0;
    quint64 inode = 0; // by which the system knows the socket
    unsigned int uid = 0;
    QString user; // the name, or the number where there is none
    qint64 pid = 0; // these two where the system tells: 0 and empty otherwise
    QString program;

    bool operator==(const UdpPortUser &other) const = default;
};

// Who else listens on a port. Of several sockets that share a port, the system hands a datagram that is no multicast to
// one only. On systems without /proc nobody is found.
namespace UdpPortUsers {

// The sockets in the text of /proc/net/udp or udp6 that get unicast datagrams sent to one of the ports, but for those
// of our own. Users and programs are not looked up. Lines that are none are passed over.
QList<UdpPortUser> inTable(const QByteArray &table, const QSet<quint16> &ports, const QSet<quint64> &ownInodes);

// Those of the whole system, with all that it tells of them; takes some milliseconds, more with many processes.
QList<UdpPortUser> find(const QSet<quint16> &ports, const QSet<quint64> &ownInodes);

// The inodes of this process's sockets.
QSet<quint64> ownSockets();

// "python3" (process 4711, user bob), as much of it as is known.
QString describe(const UdpPortUser &user);

} // namespace UdpPortUsers
