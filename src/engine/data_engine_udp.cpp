#include "engine/data_engine.h"
#include "engine/udp_socket_options.h"

#include <QUdpSocket>

namespace {

constexpr int ReceiveBufferOctets = 8 * 1024 * 1024;
constexpr qint64 BacklogOctets = 512 * 1024;
constexpr qint64 BacklogWarningPeriodMs = 10000;
constexpr int DatagramsPerClockLook = 64;
constexpr qint64 DrainBudgetMs = 50;

} // namespace

DataEngine::UdpInput DataEngine::udpInput1() const
{
    return {m_config.inputUdpPort1, m_config.inputUdpMulticast1, m_config.inputUdpMcastAddress1,
        m_config.inputUdpMcastLanInterface1};
}

DataEngine::UdpInput DataEngine::udpInput2() const
{
    return {m_config.inputUdpPort2, m_config.inputUdpMulticast2, m_config.inputUdpMcastAddress2,
        m_config.inputUdpMcastLanInterface2};
}

bool DataEngine::openInputUdp()
{
    const bool opened = openUdpSocket(m_udpSocket1, udpInput1())
        && (!m_config.inputEnable2 || openUdpSocket(m_udpSocket2, udpInput2()));
    if (!opened) {
        closeUdpSocket(m_udpSocket1, udpInput1());
        closeUdpSocket(m_udpSocket2, udpInput2());
    }
    return opened;
}

bool DataEngine::openUdpSocket(QPointer<QUdpSocket> &socket, const UdpInput &input)
{
    socket = new QUdpSocket(this);
    if (!socket->bind(QHostAddress::AnyIPv4, input.port, QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint)) {
        Q_EMIT logMessage(LogLevel::Info, tr("Failed to bind UDP port %1.").arg(input.port));
        return false;
    }
    UdpSocketOptions::setReceiveBuffer(socket, ReceiveBufferOctets);
    UdpSocketOptions::receiveJoinedGroupsOnly(socket);
    Q_EMIT logMessage(
        LogLevel::Debug, tr("UDP socket receive buffer size: %1 bytes").arg(UdpSocketOptions::receiveBuffer(socket)));
    if (input.multicast) {
        if (!joinUdpGroup(socket, input)) {
            return false;
        }
    } else {
        Q_EMIT logMessage(LogLevel::Info, tr("Start UDP input :%1").arg(input.port));
    }
    connect(socket, &QUdpSocket::readyRead, this, [this, opened = socket.data()] { procInputUdp(opened); });
    return true;
}

bool DataEngine::joinUdpGroup(QUdpSocket *socket, const UdpInput &input)
{
    const QString group = input.group.toString();
    const QString lanInterface = input.lanInterface.humanReadableName();
    if (!socket->joinMulticastGroup(input.group, input.lanInterface)) {
        Q_EMIT logMessage(
            LogLevel::Info, tr("Failed to join UDP multicast group %1 on interface %2").arg(group, lanInterface));
        return false;
    }
    Q_EMIT logMessage(LogLevel::Info,
        tr("Start UDP multicast input %1:%2 on interface %3").arg(group).arg(input.port).arg(lanInterface));
    return true;
}

// Runs when the socket becomes readable. While a drain is to be continued anyway there is nothing to do: a second one
// would be queued on top of it, then a third, and timers would starve.
void DataEngine::procInputUdp(QUdpSocket *socket)
{
    if (!m_scheduledDrains.contains(socket)) {
        drainUdpSocket(socket);
    }
}

// Reads until a read finds nothing. Asking whether something is pending, and not reading when nothing is, would leave
// the socket's notification switched off for good: it may be on its way while a continued drain empties the socket.
void DataEngine::drainUdpSocket(QUdpSocket *socket)
{
    warnOfBacklog(socket);
    QElapsedTimer budget;
    budget.start();
    int datagrams = 0;
    while (readUdpDatagram(socket)) {
        if (++datagrams % DatagramsPerClockLook == 0 && budget.elapsed() >= DrainBudgetMs) {
            continueDrain(socket);
            return;
        }
    }
}

// On the next turn of the event loop, if the socket lives to see it.
void DataEngine::continueDrain(QUdpSocket *socket)
{
    m_scheduledDrains.insert(socket);
    const auto drain = [this, socket] {
        m_scheduledDrains.remove(socket);
        drainUdpSocket(socket);
    };
    QMetaObject::invokeMethod(socket, drain, Qt::QueuedConnection);
}

// One datagram is one message. False when there is none, and when what the last one led to has closed the input: the
// socket is unbound then and will be deleted.
bool DataEngine::readUdpDatagram(QUdpSocket *socket)
{
    if (socket->state() != QAbstractSocket::BoundState) {
        return false;
    }
    QHostAddress sender;
    quint16 senderPort = 0;
    // Addresses cost time and are wanted by recordings only.
    const qint64 size = m_recorder.active()
        ? socket->readDatagram(m_receiveBuffer.data(), m_receiveBuffer.size(), &sender, &senderPort)
        : socket->readDatagram(m_receiveBuffer.data(), m_receiveBuffer.size());
    if (size < 0) {
        return false;
    }
    const QByteArray datagram = QByteArray::fromRawData(m_receiveBuffer.constData(), size);
    if (m_recorder.active()) {
        recordDatagram(datagram, socket, sender, senderPort);
    }
    if (!m_inputPaused) {
        procMessage(datagram);
    }
    return true;
}

void DataEngine::warnOfBacklog(QUdpSocket *socket)
{
    if (m_backlogTimer.isValid() && !m_backlogTimer.hasExpired(BacklogWarningPeriodMs)) {
        return;
    }
    const UdpSocketOptions::Queue queue = UdpSocketOptions::queue(socket);
    quint32 &knownDrops = m_udpDrops[socket == m_udpSocket1 ? 0 : 1];
    // Where the granted buffer is small the backlog cannot grow that large; what was lost tells the same.
    if (queue.pendingOctets <= BacklogOctets && queue.drops == knownDrops) {
        return;
    }
    knownDrops = queue.drops;
    m_backlogTimer.start();
    Q_EMIT logMessage(LogLevel::Warning,
        tr("UDP input backlog: %1 KB pending, decoding cannot keep up, datagrams may be dropped by the OS.")
            .arg(queue.pendingOctets / 1024));
}

void DataEngine::closeInputUdp()
{
    Q_EMIT logMessage(LogLevel::Info, tr("Stop UDP input"));
    closeUdpSocket(m_udpSocket1, udpInput1());
    closeUdpSocket(m_udpSocket2, udpInput2());
}

void DataEngine::closeUdpSocket(QPointer<QUdpSocket> &socket, const UdpInput &input)
{
    if (!socket) {
        return;
    }
    if (m_inputOpen && input.multicast) {
        socket->leaveMulticastGroup(input.group, input.lanInterface);
    }
    m_scheduledDrains.remove(socket);
    socket->disconnect(this);
    socket->close();
    socket->deleteLater();
    socket = nullptr;
}
