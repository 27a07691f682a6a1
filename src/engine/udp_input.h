#pragma once

#include "app/lan_interface.h"
#include "engine/input.h"

#include <QByteArray>
#include <QHostAddress>
#include <QNetworkInterface>
#include <QTimer>

#include <functional>
#include <vector>

class Config;
class InputRecorder;
class QUdpSocket;

// One or two UDP ports. Every datagram is a message. A multicast group is joined again when its network interface has
// come back or has changed its address: the system forgets the membership together with the interface.
class UdpInput final : public Input {
    Q_OBJECT

public:
    // The recorder outlives the input.
    UdpInput(const Config &config, std::unique_ptr<MessageRouter> router, InputRecorder *recorder,
        QObject *parent = nullptr);
    ~UdpInput() override;

    Opening open() override;
    void close() override;
    QStringList endpoints() const override;
    InputBacklog backlog() const override;

    // What the first or second source, from 0, is bound to: the configured port, or the system's choice where that is
    // 0.
    quint16 port(int source) const;

    // Otherwise every two seconds, while there is a group.
    void lookAtInterfaces();

    // Milliseconds of a clock that never goes back, from any origin: by it the backlog warning is limited.
    void setMonotonicClock(std::function<qint64()> clock) { m_monotonicClock = std::move(clock); }

private:
    struct Address {
        quint16 port = 0;
        bool multicast = false;
        QHostAddress group;
        LanInterface lanInterface;
    };
    struct Source {
        Address address;
        std::unique_ptr<QUdpSocket> socket;
        int endpoint = 0;
        bool drainScheduled = false; // continues on the next turn of the event loop
        quint32 drops = 0; // at the last backlog warning
        QNetworkInterface joinedInterface; // as it was then: by it the system knows the membership
        QString joinedOn; // the state of its network interface when its group was joined
        bool interfaceLost = false; // and told so
    };

    bool openSource(Source &source);
    bool bindSocket(Source &source);
    bool joinGroup(Source &source);
    static bool join(Source &source);
    static QString whyNotJoined(const Address &address, const QString &error);
    void lookAtInterface(Source &source);
    void loseInterface(Source &source, const QString &reason);
    void closeSource(Source &source);
    void procReadable(Source &source);
    void drain(Source &source);
    void continueDrain(Source &source);
    bool readDatagram(const Source &source);
    void record(const QByteArray &datagram, const Source &source, const QHostAddress &sender, quint16 senderPort);
    void warnOfBacklog(Source &source);

    InputRecorder *const m_recorder;
    std::vector<Source> m_sources; // as many as are configured, from the start on
    QByteArray m_receiveBuffer; // reused by every datagram
    std::function<qint64()> m_monotonicClock;
    qint64 m_nextBacklogWarningMs;
    QTimer m_interfaceTimer{this}; // a child, so that it is on the thread of the input
};
