#include "played_scenario.h"

#include "test_files.h"
#include "test_program.h"
#include "traffic/command_line.h"
#include "traffic/earth.h"
#include "traffic/load_generator.h"
#include "traffic/paced_clock.h"
#include "traffic/traffic_run.h"

#include <QCryptographicHash>
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
    return *ScenarioReader().read(QStringLiteral("demo"));
}

// Runs vyx-traffic with the arguments; the text is its last line.
bool run(const QString &arguments, QString &text)
{
    TrafficCommandLine commandLine;
    if (!commandLine.parse(("vyx-traffic " + arguments).split(' '))) {
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
    while (socket.hasPendingDatagrams() || socket.waitForReadyRead(50)) {
        received += socket.receiveDatagram().data();
    }
    return received;
}

} // namespace

class TestTrafficRun : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void filesDependOnSeedAlone()
    {
        QTemporaryDir folder;
        QString text;
        const auto written = [&](const QString &more) {
            const QString file = folder.filePath("a");
            const bool done = run(QString("--pcap %1.pcap --ast %1.ast --duration 40").arg(file) + more, text);
            return done ? contentsOf(file + ".pcap") + contentsOf(file + ".ast") : QByteArray();
        };
        const QByteArray first = written("");
        QVERIFY2(first.size() > 20000, qPrintable(text));
        QVERIFY(first == written(""));
        QVERIFY(first != written(" --seed 7"));
        QVERIFY(first != written(" --start-time 2025-01-01T00:00:00Z"));
    }

    void everyScenarioPlaysTheSameAgain_data()
    {
        QTest::addColumn<QString>("name");
        const QStringList names = ScenarioReader::builtInNames();
        for (const QString &name : names) {
            QTest::newRow(qPrintable(name)) << name;
        }
    }

    void everyScenarioPlaysTheSameAgain()
    {
        QFETCH(QString, name);
        ScenarioReader reader;
        const std::optional<Scenario> scenario = reader.read(name);
        QVERIFY2(scenario, qPrintable(reader.error()));
        QVERIFY(scenario->name == name && !scenario->description.isEmpty() && !scenario->description.contains('\n'));
        const auto hash = [&scenario](std::uint64_t seed) {
            QCryptographicHash octets(QCryptographicHash::Md5);
            TrafficSource source(*scenario, seed);
            while (source.nextTime() < 6) {
                const TrafficSource::Sending sending = source.next();
                for (const QByteArray &datagram : *sending.datagrams) {
                    octets.addData(datagram);
                }
            }
            return octets.result();
        };
        QCOMPARE(hash(1), hash(1));
        const bool isDrawn = scenario->random.count > 0 || !scenario->radars.empty();
        QCOMPARE(hash(1) != hash(2), isDrawn);
    }

    void pictureStaysPopulated()
    {
        const Scenario scenario = demo();
        const ScenarioRadar &radar = scenario.radars.front();
        AirTraffic traffic(scenario, 3);
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
            QVERIFY2(inCoverage >= 30 && inCoverage <= 45, qPrintable(QString::number(inCoverage)));
        }
        QVERIFY(seen.size() > 120);
    }

    void sendsInRealTime()
    {
        QUdpSocket socket;
        QVERIFY(socket.bind(QHostAddress(QHostAddress::LocalHost), 0));
        QString text;
        QElapsedTimer timer;
        timer.start();
        const QString arguments = QString("--to udp:127.0.0.1:%1 --duration 4 --speed 20").arg(socket.localPort());
        QVERIFY2(run(arguments, text), qPrintable(text));
        QVERIFY(timer.elapsed() >= 190); // the last sector begins after 3.875 s
        QVERIFY(receivedBy(socket) == PlayedScenario(demo(), 4).octets);
        QVERIFY(text.startsWith("demo: 32 datagrams, "));
    }

    void sendsToMulticastGroup()
    {
        QUdpSocket socket;
        QVERIFY(socket.bind(QHostAddress::AnyIPv4, 0, QUdpSocket::ShareAddress));
        QVERIFY(socket.joinMulticastGroup(QHostAddress("239.1.2.3"), QNetworkInterface::interfaceFromName("lo")));
        const QString to = QString("--to udp:239.1.2.3:%1@lo").arg(socket.localPort());
        QString text;
        QVERIFY2(run(to + " --duration 4 --fast", text), qPrintable(text));
        QVERIFY(receivedBy(socket) == PlayedScenario(demo(), 4).octets);
        QVERIFY(!run(to + "x --duration 1", text));
        QCOMPARE(text, "there is no network interface lox");
    }

    void otherCategory()
    {
        Scenario scenario = demo();
        scenario.radars.front().category = ScenarioRadar::TargetCategory::Cat001;
        TrafficSource source(scenario, 1);
        int services[3] = {}; // north, sectors
        int levels = 0;
        _ast_datablock_t block;
        while (source.nextTime() < 4) {
            const QByteArray datagram = source.next().datagrams->front();
            const auto *data = reinterpret_cast<const unsigned char *>(datagram.constData());
            for (std::size_t at = 0; at < static_cast<std::size_t>(datagram.size()); at += block.size) {
                QVERIFY(ast_datablock_smart_decode(&block, data + at, static_cast<std::size_t>(datagram.size()) - at));
                QVERIFY(block.valid && (block.category == 1 || block.category == 2));
                for (const _ast_datarecord_t &record : block.records) {
                    _ast_datarecord_002_t service;
                    ast_datarecord_002_disassemble(&service, record);
                    if (service.valid) {
                        ++services[service.i000.type % 3];
                        continue;
                    }
                    _ast_datarecord_001_t target;
                    ast_datarecord_001_disassemble(&target, record);
                    QVERIFY(target.i020.typ == 1 && target.i161.trackNumber > 0 && target.i040.present);
                    QCOMPARE(target.i070.present, target.i020.ssrpsr >= 2);
                    levels += target.i090.present ? 1 : 0;
                }
            }
        }
        QVERIFY(services[1] == 1 && services[2] == 32 && levels > 40);
    }

    void loadHasAllAircraft()
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

    void stopsWhenTold()
    {
        std::atomic<bool> stop{false};
        PacedClock clock(1, stop);
        QVERIFY(clock.waitFor(0));
        std::thread stopper([&stop] { stop = true; });
        QVERIFY(!clock.waitFor(3600));
        stopper.join();
    }

    void commandLine_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QString>("error"); // empty: accepted

        const auto row = [](const char *name, const char *arguments, const char *error) {
            QTest::newRow(name) << arguments << error;
        };
        row("all of a run", "demo --to udp:239.0.0.1:50000@lo --seed 7 --speed=2 --duration 10 --category 001", "");
        row("IPv6", "--to udp:[::1]:50000 --fast", "");
        row("nothing to do", "demo", "nothing to do");
        row("value missing", "--seed", "--seed needs a value");
        row("speed of nothing", "--speed 0", "--speed must be a number above 0");
        row("port too high", "--to udp:127.0.0.1:65536", "is not of the form");
        row("category", "--category 062 --ast a", "--category must be");
        row("rate alone", "--rate 10 --to udp:127.0.0.1:5", "go together");
        row("load into a file", "--rate 10 --aircraft 5 --pcap f", "need --to");
        row("two start times", "--wall-clock --start-time 2025-01-01T00:00:00Z --ast a", "exclude each other");
    }

    void commandLine()
    {
        QFETCH(QString, arguments);
        QFETCH(QString, error);
        TrafficCommandLine commandLine;
        QCOMPARE(commandLine.parse(("vyx-traffic " + arguments).split(' ')), error.isEmpty());
        QVERIFY2(commandLine.error().contains(error), qPrintable(commandLine.error()));
    }
};

VYX_TEST(TestTrafficRun)
#include "tst_traffic_run.moc"
