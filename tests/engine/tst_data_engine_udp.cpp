#include "engine_rig.h"
#include "test_program.h"

#include <QTest>
#include <QThread>

#include <algorithm>
#include <cstdlib>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <sched.h>
#include <unistd.h>

// In its lifetime this thread, and the programs that it runs, see a network without any interface that works.
class OwnNetwork final {
public:
    OwnNetwork() : m_before(open("/proc/thread-self/ns/net", O_RDONLY | O_CLOEXEC)), m_made(unshare(CLONE_NEWNET) == 0)
    {
    }
    ~OwnNetwork()
    {
        if (m_made) {
            setns(m_before, CLONE_NEWNET);
        }
        close(m_before);
    }

    bool made() const { return m_made; }
    static bool run(const QByteArray &command) { return std::system((command + " 2>/dev/null").constData()) == 0; }

private:
    int m_before;
    bool m_made;
};
#endif

// The sockets, over the loopback interface.
class TestDataEngineUdp final : public QObject {
    Q_OBJECT

private:
    QNetworkInterface m_loopback;
    QUdpSocket m_sender;

    void send(const QByteArray &data, quint16 port, const QHostAddress &to = QHostAddress(QHostAddress::LocalHost))
    {
        QCOMPARE(m_sender.writeDatagram(data, to, port), data.size());
    }

    static void openGroup(EngineRig &rig, const LanInterface &lan)
    {
        rig.config.inputUdpMulticast1 = true;
        rig.config.inputUdpMcastAddress1 = QHostAddress("239.255.77.1");
        rig.config.inputUdpMcastLanInterface1 = lan;
        rig.open(6);
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const QNetworkInterface &candidate : QNetworkInterface::allInterfaces()) {
            if (candidate.flags().testFlag(QNetworkInterface::IsLoopBack)) {
                m_loopback = candidate;
            }
        }
        QVERIFY(m_loopback.isValid());
        QVERIFY(m_sender.bind(QHostAddress::LocalHost, 0));
        m_sender.setMulticastInterface(m_loopback);
    }

    void bothInputsFeedThePicture()
    {
        EngineRig rig;
        rig.config.inputEnable2 = true;
        rig.open();
        send(plotBlock(1), rig.port());
        send(plotBlock(2), rig.port(1));
        send({}, rig.port()); // an empty datagram neither ends the drain nor the input
        send(plotBlock(3), rig.port());
        QTRY_COMPARE(rig.tracks().size(), 3);
        rig.engine.forgetPicture();
        QCOMPARE(rig.tracks().size(), 3); // of an input that is open
        const quint16 port = rig.port();
        rig.engine.closeInput();
        send(plotBlock(4), port);
        EngineRig::turnEventLoop();
        QCOMPARE(rig.tracks().size(), 3);
        rig.engine.forgetPicture();
        QCOMPARE(rig.tracks().size(), 0);
    }

    // Two groups on one port: each input must take its own group alone, or everything comes twice.
    void multicastInputsTakeTheirOwnGroupOnly()
    {
        EngineRig rig;
        openGroup(rig, m_loopback);
        QCOMPARE(rig.opened.size(), 1);
        QUdpSocket neighbour;
        QVERIFY(
            neighbour.bind(QHostAddress::AnyIPv4, rig.port(), QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint));
        QVERIFY(neighbour.joinMulticastGroup(QHostAddress("239.255.77.2"), m_loopback));

        send(northMarkerBlock(), rig.port(), QHostAddress("239.255.77.2"));
        send(plotBlock(1), rig.port(), QHostAddress("239.255.77.1"));
        QTRY_COMPARE(rig.tracks().size(), 1);
        QCOMPARE(rig.northCrossed.size(), 0);
    }

    void lookingAtAnInterfaceThatStaysSaysNothing()
    {
        EngineRig rig;
        openGroup(rig, m_loopback);
        const QStringList before = rig.log;
        for (int time = 0; time < 3; ++time) {
            rig.engine.findChild<UdpInput *>()->lookAtInterfaces();
        }
        QCOMPARE(rig.log, before);
        send(plotBlock(1), rig.port(), QHostAddress("239.255.77.1"));
        QTRY_COMPARE(rig.tracks().size(), 1);
    }

    // In a network of its own, with an interface that is taken away, made anew and given another address.
    void aGroupIsJoinedAgainWhenItsInterfaceIsBack()
    {
#ifdef Q_OS_LINUX
        const OwnNetwork network;
        if (!network.made() || !OwnNetwork::run("ip link add near type veth peer name far")) {
            lookingAtAnInterfaceThatStaysSaysNothing(); // all that can be tried without the right to make one
            return;
        }
        const auto makeInterface = [](const char *address) {
            OwnNetwork::run("ip link add near type veth peer name far");
            return OwnNetwork::run(QByteArray("ip addr add ") + address + "/24 dev near")
                && OwnNetwork::run("ip link set near up && ip link set far up");
        };
        QVERIFY(makeInterface("10.7.7.1"));
        EngineRig rig;
        openGroup(rig, QNetworkInterface::interfaceFromName("near"));
        QCOMPARE(rig.opened.size(), 1);
        auto *input = rig.engine.findChild<UdpInput *>();
        quint8 track = 0;
        const auto received = [&] {
            QUdpSocket sender;
            sender.bind(QHostAddress::AnyIPv4, 0);
            sender.setMulticastInterface(QNetworkInterface::interfaceFromName("near"));
            sender.writeDatagram(plotBlock(++track), QHostAddress("239.255.77.1"), rig.port());
            EngineRig::turnEventLoop();
            return rig.tracks().size();
        };
        QCOMPARE(received(), 1);

        const auto look = [&](int lost, int joined) {
            for (int time = 0; time < 3; ++time) {
                input->lookAtInterfaces();
            }
            return rig.log.filter("W The network interface near brings nothing").size() == lost
                && rig.log.filter("I The multicast group 239.255.77.1 has been joined again").size() == joined;
        };
        QVERIFY(look(0, 0));
        QVERIFY(OwnNetwork::run("ip link del near"));
        QTRY_VERIFY(look(1, 0)); // the kernel tells of each a little later
        QVERIFY(makeInterface("10.7.7.1"));
        QCOMPARE(received(), 1);
        QTRY_VERIFY(look(1, 1));
        QCOMPARE(received(), 2);
        QVERIFY(OwnNetwork::run("ip addr flush dev near && ip addr add 10.8.8.1/24 dev near"));
        QTRY_VERIFY(look(1, 2));
        QCOMPARE(received(), 3);
        QVERIFY(OwnNetwork::run("ip link set far down")); // the cable
        QTRY_VERIFY(look(2, 2));
        QVERIFY(OwnNetwork::run("ip link set far up"));
        QTRY_VERIFY(look(2, 3));
        QCOMPARE(received(), 4);
#endif
    }

    // The second socket fails; the first must not stay bound.
    void openFailsWholeWhenOneSocketDoes()
    {
        for (const bool portTaken : {true, false}) { // or else the group cannot be joined
            EngineRig rig;
            rig.config.inputEnable2 = true;
            rig.config.inputUdpMulticast2 = !portTaken;
            rig.config.inputUdpMcastAddress2 = QHostAddress("10.9.8.7");
            rig.config.inputUdpMcastLanInterface2 = m_loopback;
            QUdpSocket other;
            const auto exclusively = [](QUdpSocket &socket, quint16 port) {
                return socket.bind(QHostAddress::AnyIPv4, port, QUdpSocket::DontShareAddress);
            };
            QVERIFY(!portTaken || exclusively(other, 0));
            rig.config.inputUdpPort2 = other.localPort();
            rig.open(6);
            QCOMPARE(rig.failed, QList<QVariantList>({{6ULL}}));
            QCOMPARE(rig.log.last(),
                portTaken
                    ? QStringLiteral("I Failed to bind UDP port %1.").arg(other.localPort())
                    : "I Failed to join UDP multicast group 10.9.8.7 on interface " + m_loopback.humanReadableName());
            const QString reason = portTaken
                ? QStringLiteral("UDP port %1 is in use by another program that does not share it.")
                      .arg(other.localPort())
                : QStringLiteral("10.9.8.7 is no multicast group.");
            QCOMPARE(rig.faults, QList<QVariantList>({{6ULL, reason}}));
            QVERIFY(rig.log.contains("W " + reason));
            QUdpSocket socket;
            const QString start = QStringLiteral("I Start UDP input :");
            const QStringList started = rig.log.filter(start);
            QCOMPARE(started.size(), 1);
            QVERIFY(exclusively(socket, started.first().mid(start.size()).toUShort()));
        }
    }

    // The system's choice would receive the group from somewhere else.
    void anAbsentInterfaceIsNotReplacedByAnother()
    {
        EngineRig rig;
        openGroup(rig, LanInterface("usb7"));
        const QString reason = "The network interface usb7 for the multicast group 239.255.77.1 is not there.";
        QCOMPARE(rig.faults, QList<QVariantList>({{6ULL, reason}}));
        QCOMPARE(rig.log.last(), "I Failed to join UDP multicast group 239.255.77.1 on interface usb7");
    }

    void pausedInputsAreDrainedAndNotDecoded()
    {
        EngineRig rig;
        rig.open();
        rig.engine.pauseInput(true);
        for (int i = 0; i < 200; ++i) {
            send(plotBlock(1), rig.port());
        }
        EngineRig::turnEventLoop();
        QCOMPARE(rig.tracks().size(), 0);
        rig.engine.pauseInput(false);
        send(plotBlock(9, 100), rig.port());
        QTRY_COMPARE(rig.tracks().size(), 1); // not one from the pause
        QCOMPARE(rig.engine.messagesReceived(), 1ULL);
    }

    // Each datagram takes a while: timers and requests must get their turn in between, and nothing may be lost.
    void floodsAreWorkedOffInShares()
    {
        EngineRig rig;
        rig.open();
        connect(&rig.engine, &DataEngine::antennaNorthCrossed, this, [] { QThread::usleep(1000); });
        constexpr int Datagrams = 300; // fit into the smallest receive buffer
        for (int i = 0; i < Datagrams; ++i) {
            send(northMarkerBlock(), rig.port());
        }
        QList<qsizetype> seenByTimer;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] { seenByTimer += rig.northCrossed.size(); });
        timer.start(0);
        QTRY_COMPARE(rig.northCrossed.size(), Datagrams);
        const auto turns = std::count_if(seenByTimer.begin(), seenByTimer.end(),
            [](qsizetype seen) { return seen > 0 && seen < Datagrams && seen % 64 == 0; });
        QVERIFY2(turns >= 3, QByteArray::number(qlonglong(turns)).constData());
        // The next datagram is noticed too, although the last drain left nothing for the notification on its way.
        send(northMarkerBlock(), rig.port());
        QTRY_COMPARE(rig.northCrossed.size(), Datagrams + 1);
    }

    // Once in ten seconds, by whichever socket; what the granted buffer cannot hold counts, too.
    void backlogIsWarnedOf()
    {
        EngineRig rig;
        rig.open();
        qint64 nowMs = 0;
        rig.engine.findChild<UdpInput *>()->setMonotonicClock([&nowMs] { return nowMs; });
        const auto warnings = [&rig] { return rig.log.filter("W UDP input backlog: ").size(); };
        const auto flood = [&] {
            for (int i = 0; i < 60; ++i) {
                send(QByteArray(60000, '\xff'), rig.port());
            }
            EngineRig::turnEventLoop();
        };
        send(plotBlock(1), rig.port());
        EngineRig::turnEventLoop();
        QCOMPARE(warnings(), 0);
        for (const auto &[second, expected] : {std::pair(1, 1), {2, 1}, {10, 1}, {11, 2}, {20, 2}, {21, 3}}) {
            nowMs = second * 1000;
            flood();
            QVERIFY2(warnings() == expected, qPrintable(QString("second %1: %2").arg(second).arg(warnings())));
        }
        rig.engine.closeInput();
    }

    void inputMayBeClosedByWhatItReads()
    {
        EngineRig rig;
        rig.open();
        connect(&rig.engine, &DataEngine::antennaNorthCrossed, &rig.engine, [&rig] { rig.engine.closeInput(); });
        for (int i = 0; i < 3; ++i) {
            send(northMarkerBlock(), rig.port());
        }
        QTRY_COMPARE(rig.closed.size(), 1);
        EngineRig::turnEventLoop();
        QCOMPARE(rig.northCrossed.size(), 1);
    }
};

VYX_TEST(TestDataEngineUdp)
#include "tst_data_engine_udp.moc"
