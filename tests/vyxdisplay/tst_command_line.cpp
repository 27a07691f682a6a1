#include "app/setting.h"
#include "test_program.h"
#include "vyxdisplay/command_line.h"
#include "vyxdisplay/restart.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace {

using Comm = Config::InputComm;

std::optional<CommandLine> parse(const QStringList &arguments, QString *error)
{
    return CommandLine::parse(QStringList{"vyxdisplay"} + arguments, error);
}

CommandLine parsed(const QStringList &arguments)
{
    QString error;
    const auto commandLine = parse(arguments, &error);
    if (!commandLine) {
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    }
    return commandLine.value_or(CommandLine());
}

} // namespace

class TestCommandLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theNextRunIsAsThisOneWas()
    {
        const QStringList arguments{"vyxdisplay", "--profile", "tower", "--start", "--theme=Day"};
        const QStringList without{"vyxdisplay", "--profile", "tower", "--theme=Day"};
        QCOMPARE(restartArguments(arguments, false), without);
        QCOMPARE(restartArguments(arguments, true), without + QStringList("--start"));
    }

    void readsInputs_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("comm");
        QTest::addColumn<QString>("group or path");
        QTest::addColumn<int>("port or baud rate");
        QTest::addColumn<QString>("interface");
        QTest::newRow("on an interface") << "udp:239.1.2.3:8600@lo" << int(Comm::Udp) << "239.1.2.3" << 8600 << "lo";
        QTest::newRow("IPv6 group") << "udp:ff02::5:8600" << int(Comm::Udp) << "ff02::5" << 8600 << "";
        QTest::newRow("serial with rate") << "serial:ttyUSB1:115200" << int(Comm::Serial) << "ttyUSB1" << 115200 << "";
        QTest::newRow("device with colons") << "serial:/dev/serial/by-path/pci-0:1.0-port0:9600" << int(Comm::Serial)
                                            << "/dev/serial/by-path/pci-0:1.0-port0" << 9600 << "";
        QTest::newRow("file") << "file:a b:c.pcap" << int(Comm::File) << "a b:c.pcap" << 0 << "";
    }

    void readsInputs()
    {
        QFETCH(const QString, text);
        const auto input = parsed({"--input", text}).input.value_or(CommandLine::Input());
        QTEST(int(input.comm), "comm");
        QTEST(input.comm == Comm::Udp ? input.group.toString() : input.path, "group or path");
        QTEST(input.comm == Comm::Udp ? int(input.port) : input.baudRate, "port or baud rate");
        QTEST(input.interface.name(), "interface");
    }

    void readsSensors_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("location");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *name, const char *text, int type, const char *location,
                             const char *sensorName) { QTest::newRow(name) << text << type << location << sensorName; };
        row("named", "radar:48.5,16.25:Schwechat", 1, "483000N0161500E", "Schwechat");
        row("nameless", "adsb:-33.5,-70.25", 2, "333000S0701500W", "ADS-B");
        row("other name of a type", "wam:0,0", 3, "000000N0000000E", "MLAT");
        row("colon in the name", "sdps:90,-180:a:b c", 4, "900000N1800000W", "a:b c");
        row("sexagesimal", "smr:395427n1162317e:S", 5, "395427N1162317E", "S");
    }

    void readsSensors()
    {
        QFETCH(const QString, text);
        const auto sensor = parsed({"--sensor", text}).sensor.value_or(CommandLine::Sensor());
        QTEST(int(sensor.type), "type");
        QTEST(sensor.location.toATCString(), "location");
        QTEST(sensor.name, "name");
    }

    void readsProcessors_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QString>("changed"); // what comes to differ from the settings' defaults
        const auto row = [](const char *arguments, const char *changed) {
            QTest::newRow(arguments) << arguments << changed;
        };
        row("--processor asterix --uap auto", "");
        row("--processor asterix:managair", "processorAsterixFormat=2");
        row("--processor modes", "processorType=1");
        row("--processor modes:raw-rssi", "processorType=1 processorModeSEncapsulation=raw-rssi");
        row("--processor=sirm", "processorType=2");
        row("--processor SIRM:HDLC", "processorType=2 processorAleniaSirMFormat=1");
        row("--uap cat021-0.26", "processorAsterixUap=5");
        row("--uap=thales", "processorAsterixUap=8");
        row("--ignore-cartesian", "processorAsterixIgnoreCartesianCoordinates=true");
        row("--ignore-wgs84", "processorAsterixIgnoreWgs84Coordinates=true");
        row("--sensor auto", "");
    }

    void readsProcessors()
    {
        QFETCH(const QString, arguments);
        Config config;
        parsed(arguments.split(' ')).applyTo(config);
        const QTemporaryDir directory;
        config.save(directory.filePath("changed.conf"));
        Config().save(directory.filePath("defaults.conf"));
        const QSettings after(directory.filePath("changed.conf"), QSettings::IniFormat);
        const QSettings before(directory.filePath("defaults.conf"), QSettings::IniFormat);
        QStringList changed;
        for (const Setting &setting : Setting::all()) {
            if (after.value(setting.key()) != before.value(setting.key())) {
                changed += setting.key() + '=' + after.value(setting.key()).toString();
            }
        }
        QTEST(changed.join(' '), "changed");
        QCOMPARE(parsed(arguments.split(' ')).sensorAuto, arguments.endsWith("auto") && arguments.contains("sensor"));
    }

    void readsTheRest()
    {
        const auto all = parsed({"--start", "--exit-after=2.5", "--screenshot", "a=b.png", "--snapshot=c.json"});
        QVERIFY(all.start);
        QCOMPARE(all.exitAfter->count(), 2500);
        QCOMPARE(parsed({"--theme", "My Night", "--size=1280X720"}).size, QSize(1280, 720));
        QCOMPARE(parsed({"--size=400x300"}).size, QSize(400, 300));
        QCOMPARE(all.screenshot + ' ' + all.snapshot, QStringLiteral("a=b.png c.json"));
        for (const char *option : {"--start", "--exit-after=2.5", "--screenshot=a.png", "--demo", "--input=udp:9999"}) {
            QVERIFY2(parsed({option}).saysWhatToDo(), option); // nobody waits for a guide
        }
        QVERIFY(!parsed({"--theme=Night", "--size=800x600"}).saysWhatToDo());
        QVERIFY(parsed({"-platform", "offscreen", "--style=fusion", "-reverse", "--start"}).start); // the toolkit's own
    }

    void playsARecordingThatIsNamedByItself()
    {
        const auto replay = parsed({"--replay-speed", "max", "a.pcap", "--exit-at-end"});
        QVERIFY(replay.start && replay.exitAtEnd);
        QCOMPARE(replay.replaySpeed, QStringLiteral("Max"));
        QCOMPARE(replay.input.value_or(CommandLine::Input()).path, QStringLiteral("a.pcap"));
        QVERIFY(replay.sensorAuto);
        QVERIFY(!parsed({"a.pcap", "--sensor", "radar:48,16"}).sensorAuto);
        QVERIFY(!parsed({"--input", "file:a.pcap"}).sensorAuto);
    }

    void opensWhatADesktopHandsOver()
    {
        const auto map = parsed({"charts/area.map"});
        QCOMPARE(map.map, QStringLiteral("charts/area.map"));
        QVERIFY(!map.input && !map.start);
        const auto chosen = parsed({"--input", "file"});
        QVERIFY(chosen.chooseRecording && !chosen.input);
    }

    void readsWhatRunsByItself()
    {
        const auto service = parsed(
            {"--headless", "--profile=tower", "--control", "/run/c", "--snapshot", "s.json", "--snapshot-every", "10"});
        QVERIFY(service.headless && service.snapshotEvery == std::chrono::seconds(10));
        QCOMPARE(service.profile + service.control, QStringLiteral("tower/run/c"));
        QCOMPARE(parsed({"--ask", "/run/c", "status"}).ask->request, (QJsonObject{{"command", "status"}}));
        const auto view = parsed({"--ask", "/run/c", "view", R"({"rotation":-5,"command":"stop"})"});
        QCOMPARE(view.ask->path, QStringLiteral("/run/c"));
        QCOMPARE(view.ask->request, (QJsonObject{{"command", "view"}, {"rotation", -5}}));
    }

    void demoTakesNoOptionForItsScenario()
    {
        for (const char *scenario : {"--demo busy.json", "--demo=busy.json", "--start --demo busy.json --start"}) {
            QCOMPARE(parsed(QString(scenario).split(' ')).demo, QStringLiteral("busy.json"));
        }
        for (const char *none : {"--demo", "--demo -platform offscreen", "--demo --exit-after 3"}) {
            QCOMPARE(parsed(QString(none).split(' ')).demo, QString());
        }
        QVERIFY(parsed({"--demo", "--exit-after", "3"}).exitAfter);
    }

    void refuses_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("about"); // what the line names
        const auto row = [](const char *name, const QStringList &arguments, const char *about) {
            QTest::newRow(name) << arguments << about;
        };
        row("unknown option", {"--frobnicate"}, "'--frobnicate'");
        row("one dash too few", {"-start"}, "'-start'");
        row("second recording", {"a.pcap", "b.pcap"}, "'b.pcap'");
        row("recording behind a map", {"a.map", "b.pcap"}, "'b.pcap'");
        row("recording beside a demo", {"--demo", "a", "b.pcap"}, "--demo");
        row("no speed", {"--replay-speed", "3x"}, "'3x'");
        row("no size", {"--size", "800"}, "'800'");
        row("size of nothing", {"--size", "0x0"}, "'0x0'");
        row("size beyond any screen", {"--size", "99999x800"}, "'99999x800'");
        row("value for a switch", {"--start=yes"}, "--start");
        for (const auto *option : {"--input", "--sensor", "--processor", "--uap", "--theme", "--size", "--exit-after",
                 "--screenshot", "--snapshot", "--profile", "--control", "--snapshot-every", "--ask"}) {
            row(qPrintable(QString("%1 at the end").arg(option)), {option}, option);
            row(qPrintable(QString("%1 before an option").arg(option)), {option, "--start"}, option);
            row(qPrintable(QString("%1 empty").arg(option)), {option, ""}, option);
        }
        row("unknown input", {"--input", "tcp:8600"}, "'tcp'");
        row("port 0", {"--input", "udp:0"}, "'0'");
        row("port too large", {"--input", "udp:65536"}, "'65536'");
        row("unicast group", {"--input", "udp:192.168.1.1:8600"}, "'192.168.1.1'");
        row("group without port", {"--input", "udp:239.1.2.3"}, "'239.1.2.3'");
        row("interface without group", {"--input", "udp:8600@lo"}, "multicast group");
        row("no such interface", {"--input", "udp:239.1.2.3:8600@nosuch0"}, "'nosuch0'");
        row("no device", {"--input", "serial:"}, "device");
        row("no location", {"--sensor", "radar"}, "location");
        row("location out of range", {"--sensor", "radar:91,0"}, "'91,0'");
        row("location that is no number", {"--sensor", "radar:north,east"}, "'north,east'");
        for (const auto *seconds : {"soon", "0", "-1", "nan", "1e9"}) {
            row(qPrintable(QString("seconds: %1").arg(seconds)), {QString("--exit-after=%1").arg(seconds)}, seconds);
        }
        row("unknown processor", {"--processor", "tvt2"}, "'tvt2' is not a processor (asterix, modes, sirm)");
        row("unknown encapsulation", {"--processor", "modes:hex"}, "'hex' is not an encapsulation (raw, avr, beast,");
        row("no encapsulation", {"--processor", "modes:"}, "(raw, avr, beast, raw-rssi)");
        row("unknown format", {"--processor", "sirm:beast"}, "'beast' is not a format (raw, hdlc, managair)");
        row("unknown profile", {"--uap", "48=1.32"}, "'48=1.32' is not a user application profile (auto, standard,");
        row("demo with a processor", {"--demo", "--processor", "modes"}, "--demo");
        row("profile outside", {"--profile", "../x"}, "'../x'");
        row("demo with a profile", {"--demo", "--profile", "x"}, "--demo");
        row("map without a window", {"--headless", "a.map"}, "--headless");
        row("question without a window", {"--headless", "--input", "file"}, "--headless");
        row("demo with a question", {"--demo", "--input", "file"}, "--demo");
        row("picture of no window", {"--headless", "--screenshot", "a.png"}, "--screenshot");
        row("snapshots of a window", {"--snapshot-every", "5", "--snapshot", "a"}, "--headless");
        row("snapshots into nothing", {"--snapshot-every", "5", "--headless"}, "--snapshot");
        row("nothing asked", {"--ask", "/run/c"}, "command");
        row("parameters that are none", {"--ask", "/run/c", "view", "{rotation"}, "JSON");
        row("parameters in an array", {"--ask", "/run/c", "view", "[1]"}, "JSON");
        row("more than a question", {"--ask", "/run/c", "view", "{}", "--headless"}, "unexpected");
        row("demo with an input", {"--demo", "--input", "udp:8600"}, "--demo");
    }

    void refuses()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, about);
        QString error;
        QVERIFY(!parse(arguments, &error));
        QVERIFY2(error.contains(about), qPrintable(error));
    }

    void overridesWhatWasGiven()
    {
        Config config;
        config.inputEnable2 = true;
        config.inputComm = Comm::File;
        parsed({"--input", "udp:8600", "--sensor", "radar:48.5,16.25:S"}).applyTo(config);
        QCOMPARE(config.inputComm, Comm::Udp);
        QCOMPARE(config.inputUdpPort1, 8600);
        QVERIFY(!config.inputUdpMulticast1);
        QVERIFY(!config.inputEnable2);
        QCOMPARE(config.sensorType, RadarSensor);
        QCOMPARE(config.sensorLocation.toATCString(), QStringLiteral("483000N0161500E"));

        parsed({"--input", "udp:239.1.2.3:8601@lo"}).applyTo(config);
        QVERIFY(config.inputUdpMulticast1);
        QCOMPARE(config.inputUdpMcastAddress1, QHostAddress("239.1.2.3"));
        QCOMPARE(config.inputUdpMcastLanInterface1.name(), QStringLiteral("lo"));

        parsed({"--input", "serial:ttyS1"}).applyTo(config);
        QCOMPARE(config.inputSerialDevice, QStringLiteral("ttyS1"));
        QCOMPARE(config.inputSerialBaudRate, Config().inputSerialBaudRate);
        parsed({"--input", "file:x.pcap"}).applyTo(config);
        QCOMPARE(config.inputFileName.filePath(), QStringLiteral("x.pcap"));
    }
};

VYX_TEST(TestCommandLine)
#include "tst_command_line.moc"
