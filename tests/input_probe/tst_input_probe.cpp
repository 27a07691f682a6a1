#include "encoded_report.h"
#include "engine/data_engine.h"
#include "engine/engine_host.h"
#include "input_probe/found_settings.h"
#include "input_probe/input_probe.h"
#include "input_probe/probe_text.h"
#include "recognition/input_proposal.h"
#include "sensors/sensor_info.h"
#include "sensors/sensor_manager.h"
#include "test_program.h"

#include <QSignalSpy>
#include <QTest>
#include <QUdpSocket>

#include <pty.h>
#include <unistd.h>

// What is found out by listening, on real sockets of this machine.
class TestInputProbe : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void saysWhatArrivesOnAPort();
    void joinsAGroupBesideOthers();
    void leavesATakenPortAlone_data();
    void leavesATakenPortAlone();
    void listensToALine();
    void isToldByTheRunningInput();
    void saysWhatToLookAt_data();
    void saysWhatToLookAt();
};

namespace {

constexpr int WaitMs = 5000;

const QString Plot = QStringLiteral("040/RHO=50 040/THETA=90 020/TYP=2 070/MODE3A=07421");

quint16 freePort()
{
    QUdpSocket socket;
    socket.bind(QHostAddress::AnyIPv4, 0);
    return socket.localPort();
}

Config unicast(quint16 port)
{
    Config config;
    config.inputUdpMulticast1 = false;
    config.inputUdpPort1 = port;
    return config;
}

// Sends a plot now and then until the probe says what it is.
bool isRecognised(InputProbe &probe, const std::function<void(const QByteArray &)> &send)
{
    for (int waited = 0; waited < WaitMs && !probe.result().isRecognised(); waited += 50) {
        send(encodedReport(48, Plot));
        QTest::qWait(50);
    }
    return probe.result().isRecognised();
}

std::function<void(const QByteArray &)> sendingTo(QUdpSocket &socket, const QHostAddress &to, quint16 port)
{
    return [&socket, to, port](const QByteArray &message) { socket.writeDatagram(message, to, port); };
}

} // namespace

void TestInputProbe::saysWhatArrivesOnAPort()
{
    const quint16 port = freePort();
    InputProbe probe;
    QSignalSpy changes(&probe, &InputProbe::changed);
    probe.listen(unicast(port));
    QVERIFY(ProbeText::sentence(probe.result()).contains(QString::number(port)));
    QUdpSocket socket;
    QVERIFY(isRecognised(probe, sendingTo(socket, QHostAddress(QHostAddress::LocalHost), port)));
    const QString sentence = ProbeText::sentence(probe.result());
    QVERIFY2(sentence.startsWith("CAT048 from 25/0, ") && sentence.endsWith(" plots a second, no track numbers."),
        qPrintable(sentence));
    QTRY_VERIFY_WITH_TIMEOUT(probe.result().messageRate > 0.0, WaitMs);
    QVERIFY2(ProbeText::figures(probe.result()).endsWith("ASTERIX"), qPrintable(ProbeText::figures(probe.result())));
    const auto rows = ProbeText::rows(probe.result());
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.first().source + ' ' + rows.first().category + ' ' + rows.first().contents,
        "25/0 CAT048 polar positions, no track numbers");
    const InputProposal proposal(probe.result().findings, SensorManager());
    QVERIFY(proposal.sensor()->type() == RadarSensor);
    QVERIFY(ProbeText::proposal(proposal).contains("enter its location"));
    Config mine;
    applyFound(proposal, &mine);
    QVERIFY(!mine.sensorLocation.isValid() && mine.sensorSac == 25);
    QCOMPARE(mine.sensorRadarRotationPeriod, Config().sensorRadarRotationPeriod);
    mine.sensorName = "HOME";
    mine.sensorLocation = GeoCoordinate(48.0, 16.0);
    mine.sensorRadarCoverageSecondary = 120;
    applyFound(proposal, &mine);
    QVERIFY2(mine.sensorName == "HOME" && mine.sensorLocation.isValid() && mine.sensorRadarCoverageSecondary == 120,
        "what was surveyed is not given up for what the data do not tell");

    probe.stop();
    QUdpSocket next;
    QVERIFY2(next.bind(QHostAddress::AnyIPv4, port, QUdpSocket::DontShareAddress), "the port is free again");
    const auto count = changes.size();
    QTest::qWait(600);
    QCOMPARE(changes.size(), count);
}

void TestInputProbe::joinsAGroupBesideOthers()
{
    const QHostAddress group("239.77.1.2");
    const auto loopback = QNetworkInterface::interfaceFromName("lo");
    QUdpSocket other;
    QVERIFY(other.bind(QHostAddress::AnyIPv4, 0, QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint));
    QVERIFY(other.joinMulticastGroup(group, loopback));
    Config config;
    config.inputUdpPort1 = other.localPort();
    config.inputUdpMcastAddress1 = group;
    config.inputUdpMcastLanInterface1 = loopback;
    InputProbe probe;
    probe.listen(config);
    QUdpSocket socket;
    QVERIFY(socket.bind(QHostAddress::AnyIPv4, 0));
    socket.setMulticastInterface(loopback);
    QVERIFY(isRecognised(probe, sendingTo(socket, group, other.localPort())));
    QVERIFY2(other.hasPendingDatagrams(), "nothing is taken from whoever listens too");
    QVERIFY(probe.result().endpoint.startsWith("239.77.1.2:"));
}

void TestInputProbe::leavesATakenPortAlone_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("kept for itself") << int(QUdpSocket::DontShareAddress);
    QTest::newRow("shared") << int(QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint);
}

void TestInputProbe::leavesATakenPortAlone()
{
    QFETCH(int, mode);
    QUdpSocket owner;
    QVERIFY(owner.bind(QHostAddress::AnyIPv4, 0, QUdpSocket::BindMode(mode)));
    InputProbe probe;
    probe.listen(unicast(owner.localPort()));
    QCOMPARE(probe.result().state, ProbeResult::State::Refused);
    QVERIFY(ProbeText::sentence(probe.result()).contains(QString::number(owner.localPort())));
    QUdpSocket socket;
    sendingTo(socket, QHostAddress(QHostAddress::LocalHost), owner.localPort())("x");
    QVERIFY(owner.waitForReadyRead(WaitMs));
}

void TestInputProbe::listensToALine()
{
    int far = -1;
    int near = -1;
    char name[128] = {};
    QCOMPARE(openpty(&far, &near, name, nullptr, nullptr), 0);
    ::close(near);
    Config config;
    config.inputComm = Config::InputComm::Serial;
    config.inputSerialDevice = QString::fromLocal8Bit(name);
    InputProbe probe;
    probe.listen(config);
    QTRY_COMPARE_WITH_TIMEOUT(probe.result().state, ProbeResult::State::Listening, WaitMs);
    QVERIFY(isRecognised(probe, [far](const QByteArray &message) {
        const auto written = ::write(far, message.constData(), static_cast<std::size_t>(message.size()));
        QCOMPARE(written, message.size());
    }));
    ::close(far);
    probe.listen(config); // what is not there any more
    QTRY_COMPARE_WITH_TIMEOUT(probe.result().state, ProbeResult::State::Refused, WaitMs);
    QVERIFY(ProbeText::sentence(probe.result()).contains(name));
}

// Every datagram reaches the input: a second socket on its port would have taken them.
void TestInputProbe::isToldByTheRunningInput()
{
    const Config config = unicast(freePort());
    EngineHost host;
    const QSignalSpy opened(host.engine(), &DataEngine::inputOpened);
    host.start();
    host.openInput(config, nullptr, {}, 1);
    QTRY_COMPARE_WITH_TIMEOUT(opened.size(), 1, WaitMs);
    InputProbe probe;
    probe.watch(&host, config);
    quint64 sent = 0;
    QUdpSocket socket;
    const auto send = sendingTo(socket, QHostAddress(QHostAddress::LocalHost), config.inputUdpPort1);
    QVERIFY(isRecognised(probe, [&send, &sent](const QByteArray &message) {
        send(message);
        ++sent;
    }));
    QTRY_COMPARE_WITH_TIMEOUT(probe.result().messages, sent, WaitMs);
    QVERIFY(probe.result().ofRunningInput);
    host.pauseInput(true);
    QTRY_VERIFY_WITH_TIMEOUT(ProbeText::sentence(probe.result()).contains("paused"), WaitMs);
    probe.stop();
    QVERIFY(ProbeText::sentence(probe.result()).isEmpty());
}

void TestInputProbe::saysWhatToLookAt_data()
{
    using Comm = Config::InputComm;
    QTest::addColumn<Config>("config");
    QTest::addColumn<qint64>("listenedMs");
    QTest::addColumn<QByteArray>("beginning"); // of what arrived
    QTest::addColumn<QString>("words"); // of the advice, "|" between them; empty: there is none
    Config group;
    group.inputUdpMcastLanInterface1 = QNetworkInterface::interfaceFromName("lo");
    Config line;
    line.inputComm = Comm::Serial;
    line.inputSerialDevice = "ttyS7";
    QTest::newRow("too early") << unicast(4711) << 2000LL << QByteArray() << QString();
    QTest::newRow("unicast") << unicast(4711) << 6000LL << QByteArray() << "4711|firewall|cable";
    QTest::newRow("group") << group << 6000LL << QByteArray() << "239.0.0.1|interface lo|firewall|IGMP";
    QTest::newRow("any interface") << Config() << 6000LL << QByteArray() << "Choose the interface";
    QTest::newRow("line") << line << 6000LL << QByteArray() << "ttyS7|plugged in";
    QTest::newRow("line with a wrong rate") << line << 6000LL << QByteArray("\x80\xfe") << "baud rate";
    QTest::newRow("no surveillance data") << unicast(4711) << 6000LL << QByteArray("GET /") << "something else";
}

void TestInputProbe::saysWhatToLookAt()
{
    QFETCH(Config, config);
    QFETCH(qint64, listenedMs);
    QFETCH(QByteArray, beginning);
    QFETCH(QString, words);
    ProbeResult result;
    result.state = ProbeResult::State::Listening;
    result.comm = config.inputComm;
    result.listenedMs = result.silentMs = listenedMs;
    result.messages = static_cast<quint64>(result.findings.messages = beginning.isEmpty() ? 0 : 1);
    result.findings.beginning = beginning;
    const QString advice = ProbeText::advice(result, config).join('\n');
    QCOMPARE(advice.isEmpty(), words.isEmpty());
    for (const QString &word : words.split('|')) {
        QVERIFY2(advice.contains(word), qPrintable(advice));
    }
    if (!beginning.isEmpty()) {
        QVERIFY(ProbeText::sentence(result).contains(QString::fromLatin1(beginning.toHex(' ')).toUpper()));
    }
}

VYX_TEST(TestInputProbe)
#include "tst_input_probe.moc"
