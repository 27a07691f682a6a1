#include "played_scenario.h"

#include "traffic/command_line.h"
#include "traffic/earth.h"
#include "traffic/load_generator.h"
#include "traffic/paced_clock.h"
#include "traffic/traffic_run.h"

#include <QFile>
#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QTemporaryDir>
#include <QUdpSocket>

#include <atomic>
#include <set>
#include <thread>

namespace {

const std::atomic<bool> NeverStop{false};

Scenario demo()
{
    ScenarioReader reader;
    return *reader.read(QStringLiteral("demo"));
}

QByteArray contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Runs vyx-traffic with the arguments; the text is its last line.
bool run(const QStringList &arguments, QString &text)
{
    TrafficCommandLine commandLine;
    if (!commandLine.parse(QStringList{QStringLiteral("vyx-traffic")} + arguments)) {
        text = commandLine.error();
        return false;
    }
    TrafficRun run(commandLine.options(), demo(), NeverStop);
    const bool done = run.run();
    text = run.text();
    return done;
}

QByteArray receivedBy(QUdpSocket &socket)
{
    QByteArray received;
    while (socket.hasPendingDatagrams() || socket.waitForReadyRead(50))
        received += socket.receiveDatagram().data();
    return received;
}

} // namespace

class TestTrafficRun : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void filesDependOnSeedAlone();
    void pictureStaysPopulated();
    void sendsInRealTime();
    void sendsToMulticastGroup();
    void otherCategory();
    void loadHasAllAircraft();
    void stopsWhenTold();
    void commandLine_data();
    void commandLine();
};

void TestTrafficRun::filesDependOnSeedAlone()
{
    QTemporaryDir folder;
    QString text;
    const auto written = [&](const QString &name, const QStringList &more) {
        const QString file = folder.filePath(name);
        const bool done =
            run(QStringList{QStringLiteral("--pcap"), file + QStringLiteral(".pcap"), QStringLiteral("--ast"),
                    file + QStringLiteral(".ast"), QStringLiteral("--duration"), QStringLiteral("40")}
                    + more,
                text);
        return done ? contents(file + QStringLiteral(".pcap")) + contents(file + QStringLiteral(".ast")) : QByteArray();
    };
    const QByteArray first = written(QStringLiteral("a"), {});
    QVERIFY2(first.size() > 20000, qPrintable(text));
    QVERIFY(first == written(QStringLiteral("b"), {}));
    QVERIFY(first != written(QStringLiteral("c"), {QStringLiteral("--seed"), QStringLiteral("7")}));
    QVERIFY(first
        != written(QStringLiteral("d"), {QStringLiteral("--start-time"), QStringLiteral("2025-01-01T00:00:00Z")}));
}

void TestTrafficRun::pictureStaysPopulated()
{
    const Scenario scenario = demo();
    const ScenarioRadar &radar = scenario.radars.front();
    AirTraffic traffic(scenario, 3, 10);
    std::set<std::uint64_t> seen;
    for (double time = 0; time < 2 * 3600; time += 20) {
        traffic.advanceTo(time);
        int inCoverage = 0;
        for (const AirTarget &target : traffic.targets()) {
            const Aircraft::State &state = target.aircraft.state();
            const double metres = Earth::distance(radar.latitude, radar.longitude, state.latitude, state.longitude);
            inCoverage += metres < radar.coverageSecondary * Earth::MetresPerNauticalMile ? 1 : 0;
            seen.insert(target.id);
        }
        QVERIFY2(inCoverage >= 45 && inCoverage <= 62, qPrintable(QString::number(inCoverage)));
    }
    QVERIFY(seen.size() > 120);
}

void TestTrafficRun::sendsInRealTime()
{
    QUdpSocket socket;
    QVERIFY(socket.bind(QHostAddress(QHostAddress::LocalHost), 0));
    QString text;
    const QString to = QStringLiteral("udp:127.0.0.1:%1").arg(socket.localPort());
    QElapsedTimer timer;
    timer.start();
    const bool done = run({QStringLiteral("--to"), to, QStringLiteral("--duration"), QStringLiteral("4"),
                              QStringLiteral("--speed"), QStringLiteral("20")},
        text);
    QVERIFY2(done, qPrintable(text));
    QVERIFY(timer.elapsed() >= 190); // the last sector begins after 3.875 s
    QVERIFY(receivedBy(socket) == PlayedScenario(demo(), 4).octets);
    QVERIFY(text.startsWith(QLatin1String("demo: 32 datagrams, ")));
}

void TestTrafficRun::sendsToMulticastGroup()
{
    QUdpSocket socket;
    QVERIFY(socket.bind(QHostAddress::AnyIPv4, 0, QUdpSocket::ShareAddress));
    const QHostAddress group(QStringLiteral("239.1.2.3"));
    QVERIFY(socket.joinMulticastGroup(group, QNetworkInterface::interfaceFromName(QStringLiteral("lo"))));
    const QString to = QStringLiteral("udp:239.1.2.3:%1@lo").arg(socket.localPort());
    QString text;
    QVERIFY2(
        run({QStringLiteral("--to"), to, QStringLiteral("--duration"), QStringLiteral("4"), QStringLiteral("--fast")},
            text),
        qPrintable(text));
    QVERIFY(receivedBy(socket) == PlayedScenario(demo(), 4).octets);
    QVERIFY(!run(
        {QStringLiteral("--to"), to + QStringLiteral("x"), QStringLiteral("--duration"), QStringLiteral("1")}, text));
    QCOMPARE(text, QStringLiteral("there is no network interface lox"));
}

void TestTrafficRun::otherCategory()
{
    Scenario scenario = demo();
    scenario.radars.front().category = ScenarioRadar::TargetCategory::Cat001;
    TrafficSource source(scenario, 1);
    int north = 0;
    int sectors = 0;
    int levels = 0;
    _ast_datablock_t block;
    while (source.nextTime() < 4) {
        const QByteArray datagram = source.next().datagrams->front();
        const auto *data = reinterpret_cast<const unsigned char *>(datagram.constData());
        for (std::size_t at = 0; at < static_cast<std::size_t>(datagram.size()); at += block.size) {
            QVERIFY(ast_datablock_smart_decode(&block, data + at, static_cast<std::size_t>(datagram.size()) - at));
            QVERIFY(block.valid && (block.category == 1 || block.category == 2));
            for (const _ast_datarecord_t &record : block.records) {
                if (block.category == 2) {
                    _ast_datarecord_002_t service;
                    ast_datarecord_002_disassemble(&service, record);
                    north += service.i000.type == 1 ? 1 : 0;
                    sectors += service.i000.type == 2 ? 1 : 0;
                    continue;
                }
                _ast_datarecord_001_t target;
                ast_datarecord_001_disassemble(&target, record);
                QVERIFY(target.i020.typ == 1 && target.i161.trackNumber > 0 && target.i040.present);
                QVERIFY(target.i042.present && target.i200.present && target.i141.present && target.i170.con);
                QCOMPARE(target.i070.present, target.i020.ssrpsr >= 2);
                levels += target.i090.present ? 1 : 0;
            }
        }
    }
    QCOMPARE(north, 1);
    QCOMPARE(sectors, 32);
    QVERIFY(levels > 40);
}

void TestTrafficRun::loadHasAllAircraft()
{
    const Scenario scenario = demo();
    LoadGenerator load(scenario.radars.front(), scenario.startTime, 300, 1000, 1);
    std::set<std::uint32_t> addresses;
    _ast_datablock_t block;
    for (int i = 0; i < 600; ++i) {
        const std::span<const unsigned char> octets = load.next();
        QVERIFY(ast_datablock_decode(&block, octets.data(), octets.size(), AST_UAP_STANDARD));
        QVERIFY(block.valid && block.records.size() == 1 && block.size == octets.size());
        _ast_datarecord_048_t record;
        ast_datarecord_048_disassemble(&record, block.records.front());
        QVERIFY(record.i040.present && record.i161.present && record.i250.present);
        addresses.insert(record.i220.address);
    }
    QCOMPARE(addresses.size(), std::size_t(300));
}

void TestTrafficRun::stopsWhenTold()
{
    std::atomic<bool> stop{false};
    PacedClock clock(1, stop);
    QVERIFY(clock.waitFor(0));
    std::thread stopper([&stop] { stop = true; });
    QVERIFY(!clock.waitFor(3600));
    stopper.join();
}

void TestTrafficRun::commandLine_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("error"); // empty: accepted

    QTest::newRow("all of a run") << "demo --to udp:239.0.0.1:50000@lo --seed 7 --speed=2 --duration 10 --category 001"
                                  << "";
    QTest::newRow("IPv6") << "--to udp:[::1]:50000 --fast"
                          << "";
    QTest::newRow("load") << "--aircraft 100 --rate 20000 --to udp:localhost:50000"
                          << "";
    QTest::newRow("nothing to do") << "demo"
                                   << "nothing to do";
    QTest::newRow("unknown option") << "--quick"
                                    << "unknown option --quick";
    QTest::newRow("value missing") << "--seed"
                                   << "--seed needs a value";
    QTest::newRow("negative seed") << "--seed -1"
                                   << "--seed must be";
    QTest::newRow("speed of nothing") << "--speed 0"
                                      << "--speed must be a number above 0";
    QTest::newRow("no port") << "--to udp:127.0.0.1"
                             << "is not of the form";
    QTest::newRow("port too high") << "--to udp:127.0.0.1:65536"
                                   << "is not of the form";
    QTest::newRow("other protocol") << "--to tcp:127.0.0.1:50000"
                                    << "is not of the form";
    QTest::newRow("category") << "--category 062 --ast a"
                              << "--category must be";
    QTest::newRow("rate alone") << "--rate 10 --to udp:127.0.0.1:5"
                                << "go together";
    QTest::newRow("load into a file") << "--rate 10 --aircraft 5 --pcap f"
                                      << "need --to";
    QTest::newRow("two scenarios") << "a b"
                                   << "more than one scenario: b";
    QTest::newRow("two start times") << "--wall-clock --start-time 2025-01-01T00:00:00Z --ast a"
                                     << "exclude each other";
}

void TestTrafficRun::commandLine()
{
    QFETCH(QString, arguments);
    QFETCH(QString, error);
    TrafficCommandLine commandLine;
    const bool accepted =
        commandLine.parse(QStringList{QStringLiteral("vyx-traffic")} + arguments.split(QLatin1Char(' ')));
    QCOMPARE(accepted, error.isEmpty());
    QVERIFY2(commandLine.error().contains(error), qPrintable(commandLine.error()));
}

QTEST_GUILESS_MAIN(TestTrafficRun)
#include "tst_traffic_run.moc"
