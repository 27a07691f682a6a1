#include "engine/udp_input.h"

#include "engine/input_recorder.h"
#include "engine/udp_socket_options.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QUdpSocket>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr int ReceiveBufferOctets = 8 * 1024 * 1024;
constexpr qsizetype LargestDatagram = 65536;
constexpr qint64 BacklogOctets = 512 * 1024;
constexpr qint64 BacklogWarningPeriodMs = 10000;
constexpr int DatagramsPerClockLook = 64;
constexpr qint64 DrainBudgetMs = 50;
constexpr int InterfaceIntervalMs = 2000;

bool isUsable(const QNetworkInterface &candidate)
{
    constexpr QNetworkInterface::InterfaceFlags Needed = QNetworkInterface::IsUp | QNetworkInterface::IsRunning;
    return (candidate.flags() & Needed) == Needed;
}

// Number and IPv4 addresses of an interface, of all of them without a name; empty while there is none that a group
// could be received on. Where this has changed, a membership may be lost.
QString interfaceState(const LanInterface &chosen)
{
    const QList<QNetworkInterface> candidates =
        chosen.isChosen() ? QList{chosen.now()} : QNetworkInterface::allInterfaces();
    QStringList parts;
    for (const QNetworkInterface &candidate : candidates) {
        for (const QNetworkAddressEntry &entry : candidate.addressEntries()) {
            if (isUsable(candidate) && entry.ip().protocol() == QAbstractSocket::IPv4Protocol) {
                parts += QStringLiteral("%1/%2").arg(candidate.index()).arg(entry.ip().toString());
            }
        }
    }
    return parts.join(' ');
}

} // namespace

UdpInput::UdpInput(
    const Config &config, std::unique_ptr<MessageRouter> router, InputRecorder *recorder, QObject *parent)
    : Input(std::move(router), parent), m_recorder(recorder), m_receiveBuffer(LargestDatagram, '\0'),
      m_monotonicClock([] { return QDeadlineTimer::current().deadline(); }),
      m_nextBacklogWarningMs(std::numeric_limits<qint64>::min())
{
    m_sources.resize(config.inputEnable2 ? 2 : 1);
    m_sources.front().address = {config.inputUdpPort1, config.inputUdpMulticast1, config.inputUdpMcastAddress1,
        config.inputUdpMcastLanInterface1};
    if (config.inputEnable2) {
        m_sources.back().address = {config.inputUdpPort2, config.inputUdpMulticast2, config.inputUdpMcastAddress2,
            config.inputUdpMcastLanInterface2};
        m_sources.back().endpoint = 1;
    }
}

UdpInput::~UdpInput() = default;

Input::Opening UdpInput::open()
{
    if (!std::all_of(m_sources.begin(), m_sources.end(), [this](Source &source) { return openSource(source); })) {
        return Opening::Failed;
    }
    if (std::any_of(
            m_sources.begin(), m_sources.end(), [](const Source &source) { return source.address.multicast; })) {
        connect(&m_interfaceTimer, &QTimer::timeout, this, &UdpInput::lookAtInterfaces);
        m_interfaceTimer.start(InterfaceIntervalMs);
    }
    return Opening::Opened;
}

quint16 UdpInput::port(int source) const
{
    return m_sources.at(static_cast<std::size_t>(source)).address.port;
}

QStringList UdpInput::endpoints() const
{
    QStringList names;
    for (const Source &source : m_sources) {
        const QString group = source.address.multicast ? source.address.group.toString() : QString();
        names += QStringLiteral("%1:%2").arg(group).arg(source.address.port);
    }
    return names;
}

InputBacklog UdpInput::backlog() const
{
    InputBacklog sum;
    for (const Source &source : m_sources) {
        if (source.socket && source.socket->state() == QAbstractSocket::BoundState) {
            const UdpSocketOptions::Queue queue = UdpSocketOptions::queue(source.socket.get());
            sum.octets += queue.pendingOctets;
            sum.kernelDrops += queue.drops;
        }
    }
    return sum;
}

bool UdpInput::openSource(Source &source)
{
    source.socket = std::make_unique<QUdpSocket>();
    if (!bindSocket(source)) {
        return false;
    }
    QUdpSocket *socket = source.socket.get();
    UdpSocketOptions::setReceiveBuffer(socket, ReceiveBufferOctets);
    UdpSocketOptions::receiveJoinedGroupsOnly(socket);
    Q_EMIT message(
        LogLevel::Debug, tr("UDP socket receive buffer size: %1 bytes").arg(UdpSocketOptions::receiveBuffer(socket)));
    if (source.address.multicast) {
        if (!joinGroup(source)) {
            return false;
        }
    } else {
        Q_EMIT message(LogLevel::Info, tr("Start UDP input :%1").arg(source.address.port));
    }
    connect(socket, &QUdpSocket::readyRead, this, [this, &source] { procReadable(source); });
    return true;
}

bool UdpInput::bindSocket(Source &source)
{
    QUdpSocket &socket = *source.socket;
    const quint16 port = source.address.port;
    if (socket.bind(QHostAddress::AnyIPv4, port, QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint)) {
        source.address.port = socket.localPort();
        return true;
    }
    switch (socket.error()) {
    case QAbstractSocket::AddressInUseError:
        reportFault(tr("UDP port %1 is in use by another program that does not share it.").arg(port));
        break;
    case QAbstractSocket::SocketAccessError:
        reportFault(tr("There is no right to receive on UDP port %1.").arg(port));
        break;
    default:
        reportFault(tr("UDP port %1 cannot be opened: %2").arg(port).arg(socket.errorString()));
    }
    Q_EMIT message(LogLevel::Info, tr("Failed to bind UDP port %1.").arg(port));
    return false;
}

// One that is chosen and absent is no leave for the system to choose another.
bool UdpInput::join(Source &source)
{
    const LanInterface &chosen = source.address.lanInterface;
    source.joinedInterface = chosen.now();
    return chosen.isChosen() == source.joinedInterface.isValid()
        && source.socket->joinMulticastGroup(source.address.group, source.joinedInterface);
}

bool UdpInput::joinGroup(Source &source)
{
    const Address &address = source.address;
    source.joinedOn = interfaceState(address.lanInterface);
    if (join(source)) {
        Q_EMIT message(LogLevel::Info,
            tr("Start UDP multicast input %1:%2 on interface %3")
                .arg(address.group.toString())
                .arg(address.port)
                .arg(address.lanInterface.humanReadableName()));
        return true;
    }
    reportFault(whyNotJoined(address, source.socket->errorString()));
    Q_EMIT message(LogLevel::Info,
        tr("Failed to join UDP multicast group %1 on interface %2")
            .arg(address.group.toString(), address.lanInterface.humanReadableName()));
    return false;
}

QString UdpInput::whyNotJoined(const Address &address, const QString &error)
{
    const QString group = address.group.toString();
    const QString lanInterface = address.lanInterface.humanReadableName();
    if (!address.group.isMulticast()) {
        return tr("%1 is no multicast group.").arg(group);
    }
    if (!address.lanInterface.isChosen()) {
        return tr("The multicast group %1 cannot be joined: %2").arg(group, error);
    }
    return address.lanInterface.isValid()
        ? tr("The multicast group %1 cannot be joined on interface %2: %3").arg(group, lanInterface, error)
        : tr("The network interface %1 for the multicast group %2 is not there.").arg(lanInterface, group);
}

void UdpInput::lookAtInterfaces()
{
    for (Source &source : m_sources) {
        if (source.address.multicast) {
            lookAtInterface(source);
        }
    }
}

// An interface that goes and comes between two looks keeps its memberships, unless it is another one by then.
void UdpInput::lookAtInterface(Source &source)
{
    const Address &address = source.address;
    const QString state = interfaceState(address.lanInterface);
    if (state.isEmpty()) {
        loseInterface(source, tr("it is down"));
        return;
    }
    if (state == source.joinedOn && !source.interfaceLost) {
        return;
    }
    source.socket->leaveMulticastGroup(address.group, source.joinedInterface); // where the system still knows of it
    if (!join(source)) {
        loseInterface(source, source.socket->errorString());
        return;
    }
    source.joinedOn = state;
    source.interfaceLost = false;
    Q_EMIT message(LogLevel::Info,
        tr("The multicast group %1 has been joined again on interface %2.")
            .arg(address.group.toString(), address.lanInterface.humanReadableName()));
}

void UdpInput::loseInterface(Source &source, const QString &reason)
{
    if (std::exchange(source.interfaceLost, true)) {
        return;
    }
    Q_EMIT message(LogLevel::Warning,
        tr("The network interface %1 brings nothing: %2. The multicast group %3 is joined again when it is back.")
            .arg(source.address.lanInterface.humanReadableName(), reason, source.address.group.toString()));
}

// Runs when the socket becomes readable. While a drain is to be continued anyway there is nothing to do: a second one
// would be queued on top of it, then a third, and timers would starve.
void UdpInput::procReadable(Source &source)
{
    if (!source.drainScheduled) {
        drain(source);
    }
}

// Reads until a read finds nothing. Asking whether something is pending, and not reading when nothing is, would leave
// the socket's notification switched off for good: it may be on its way while a continued drain empties the socket.
void UdpInput::drain(Source &source)
{
    warnOfBacklog(source);
    QElapsedTimer budget;
    budget.start();
    int datagrams = 0;
    while (readDatagram(source)) {
        if (++datagrams % DatagramsPerClockLook == 0 && budget.elapsed() >= DrainBudgetMs) {
            continueDrain(source);
            return;
        }
    }
}

void UdpInput::continueDrain(Source &source)
{
    source.drainScheduled = true;
    const auto next = [this, &source] {
        source.drainScheduled = false;
        drain(source);
    };
    QMetaObject::invokeMethod(this, next, Qt::QueuedConnection);
}

// One datagram is one message. False when there is none, and when what the last one led to has closed the input.
bool UdpInput::readDatagram(const Source &source)
{
    QUdpSocket &socket = *source.socket;
    if (socket.state() != QAbstractSocket::BoundState) {
        return false;
    }
    QHostAddress sender;
    quint16 senderPort = 0;
    // Addresses cost time and are wanted by recordings only.
    const bool recording = m_recorder->active();
    const qint64 size = recording
        ? socket.readDatagram(m_receiveBuffer.data(), m_receiveBuffer.size(), &sender, &senderPort)
        : socket.readDatagram(m_receiveBuffer.data(), m_receiveBuffer.size());
    if (size < 0) {
        return false;
    }
    const QByteArray datagram = QByteArray::fromRawData(m_receiveBuffer.constData(), size);
    if (recording) {
        record(datagram, source, sender, senderPort);
    }
    if (!m_paused) {
        router().procMessage(datagram, source.endpoint);
    }
    return true;
}

void UdpInput::record(const QByteArray &datagram, const Source &source, const QHostAddress &sender, quint16 senderPort)
{
    const Address &address = source.address;
    const QHostAddress receiver = address.multicast ? address.group : QHostAddress(QHostAddress::LocalHost);
    m_recorder->record(
        datagram, InputRecorder::endpoint(sender, senderPort), InputRecorder::endpoint(receiver, address.port));
}

void UdpInput::warnOfBacklog(Source &source)
{
    const qint64 nowMs = m_monotonicClock();
    if (nowMs < m_nextBacklogWarningMs || source.socket->state() != QAbstractSocket::BoundState) {
        return;
    }
    const UdpSocketOptions::Queue queue = UdpSocketOptions::queue(source.socket.get());
    // Where the granted buffer is small the backlog cannot grow that large; what was lost tells the same.
    if (queue.pendingOctets <= BacklogOctets && queue.drops == source.drops) {
        return;
    }
    source.drops = queue.drops;
    m_nextBacklogWarningMs = nowMs + BacklogWarningPeriodMs;
    Q_EMIT message(LogLevel::Warning,
        tr("UDP input backlog: %1 KB pending, decoding cannot keep up, datagrams may be dropped by the OS.")
            .arg(queue.pendingOctets / 1024));
}

void UdpInput::close()
{
    m_interfaceTimer.stop();
    Q_EMIT message(LogLevel::Info, tr("Stop UDP input"));
    for (Source &source : m_sources) {
        closeSource(source);
    }
}

void UdpInput::closeSource(Source &source)
{
    if (source.address.multicast) {
        source.socket->leaveMulticastGroup(source.address.group, source.joinedInterface);
    }
    source.socket->disconnect(this);
    source.socket->close();
}
