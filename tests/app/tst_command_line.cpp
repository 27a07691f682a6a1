#include "app/command_line.h"

#include <QTest>

class tst_CommandLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsInputs_data();
    void readsInputs();
    void readsSensors_data();
    void readsSensors();
    void readsTheRest();
    void demoTakesNoOptionForItsScenario_data();
    void demoTakesNoOptionForItsScenario();
    void refuses_data();
    void refuses();
    void overridesWhatWasGiven();
};

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
    if (!commandLine)
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    return commandLine.value_or(CommandLine());
}

} // namespace

void tst_CommandLine::readsInputs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("comm");
    QTest::addColumn<QString>("group or path");
    QTest::addColumn<int>("port or baud rate");
    QTest::addColumn<QString>("interface");
    QTest::newRow("unicast") << "udp:8600" << int(Comm::Udp) << "" << 8600 << "";
    QTest::newRow("multicast") << "udp:239.1.2.3:65535" << int(Comm::Udp) << "239.1.2.3" << 65535 << "";
    QTest::newRow("on an interface") << "udp:239.1.2.3:8600@lo" << int(Comm::Udp) << "239.1.2.3" << 8600 << "lo";
    QTest::newRow("IPv6 group") << "udp:ff02::5:8600" << int(Comm::Udp) << "ff02::5" << 8600 << "";
    QTest::newRow("serial") << "serial:/dev/ttyS0" << int(Comm::Serial) << "/dev/ttyS0" << 0 << "";
    QTest::newRow("serial with rate") << "serial:ttyUSB1:115200" << int(Comm::Serial) << "ttyUSB1" << 115200 << "";
    QTest::newRow("device with colons") << "serial:/dev/serial/by-path/pci-0:1.0-port0:9600" << int(Comm::Serial)
                                        << "/dev/serial/by-path/pci-0:1.0-port0" << 9600 << "";
    QTest::newRow("file") << "file:a b:c.pcap" << int(Comm::File) << "a b:c.pcap" << 0 << "";
}

void tst_CommandLine::readsInputs()
{
    QFETCH(const QString, text);
    const auto input = parsed({"--input", text}).input.value_or(CommandLine::Input());
    QTEST(int(input.comm), "comm");
    QTEST(input.comm == Comm::Udp ? input.group.toString() : input.path, "group or path");
    QTEST(input.comm == Comm::Udp ? int(input.port) : input.baudRate, "port or baud rate");
    QTEST(input.interface.name(), "interface");
}

void tst_CommandLine::readsSensors_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("location");
    QTest::addColumn<QString>("name");
    QTest::newRow("named") << "radar:48.5,16.25:Schwechat" << 1 << "483000N0161500E"
                           << "Schwechat";
    QTest::newRow("nameless") << "adsb:-33.5,-70.25" << 2 << "333000S0701500W"
                              << "ADS-B";
    QTest::newRow("other name of a type") << "wam:0,0" << 3 << "000000N0000000E"
                                          << "MLAT";
    QTest::newRow("colon in the name") << "sdps:90,-180:a:b c" << 4 << "900000N1800000W"
                                       << "a:b c";
    QTest::newRow("sexagesimal") << "smr:395427n1162317e:S" << 5 << "395427N1162317E"
                                 << "S";
    QTest::newRow("sexagesimal with comma") << "radar:395427.99S,1162317.00W" << 1 << "395427S1162317W"
                                            << "Radar";
}

void tst_CommandLine::readsSensors()
{
    QFETCH(const QString, text);
    const auto sensor = parsed({"--sensor", text}).sensor.value_or(CommandLine::Sensor());
    QTEST(int(sensor.type), "type");
    QTEST(sensor.location.toATCString(), "location");
    QTEST(sensor.name, "name");
}

void tst_CommandLine::readsTheRest()
{
    const auto nothing = parsed({});
    QVERIFY(!nothing.help && !nothing.version && !nothing.start && !nothing.demo && !nothing.input && !nothing.sensor);
    QVERIFY(!nothing.exitAfter && nothing.screenshot.isEmpty() && nothing.snapshot.isEmpty());

    const auto all = parsed({"--start", "--exit-after=2.5", "--screenshot", "a=b.png", "--snapshot=c.json"});
    QVERIFY(all.start);
    QCOMPARE(all.exitAfter->count(), 2500);
    QCOMPARE(all.screenshot, QStringLiteral("a=b.png"));
    QCOMPARE(all.snapshot, QStringLiteral("c.json"));
    QVERIFY(parsed({"-platform", "offscreen", "--style=fusion", "-reverse", "--start"}).start); // the toolkit's own
    QVERIFY(parsed({"--help"}).help);
    QVERIFY(parsed({"--version"}).version);
}

void tst_CommandLine::demoTakesNoOptionForItsScenario_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("scenario");
    QTest::newRow("alone") << QStringList{"--demo"} << "";
    QTest::newRow("with a scenario") << QStringList{"--demo", "busy.json"} << "busy.json";
    QTest::newRow("after an equals sign") << QStringList{"--demo=busy.json"} << "busy.json";
    QTest::newRow("before an option") << QStringList{"--demo", "--exit-after", "3"} << "";
    QTest::newRow("before the toolkit's option") << QStringList{"--demo", "-platform", "offscreen"} << "";
    QTest::newRow("in the middle") << QStringList{"--start", "--demo", "busy.json", "--start"} << "busy.json";
}

void tst_CommandLine::demoTakesNoOptionForItsScenario()
{
    QFETCH(const QStringList, arguments);
    const auto commandLine = parsed(arguments);
    QVERIFY(commandLine.demo);
    QTEST(*commandLine.demo, "scenario");
    QCOMPARE(commandLine.exitAfter.has_value(), arguments.contains("--exit-after"));
}

void tst_CommandLine::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("about"); // what the line names
    const auto row = [](const char *name, const QStringList &arguments, const char *about) {
        QTest::newRow(name) << arguments << about;
    };
    row("unknown option", {"--frobnicate"}, "'--frobnicate'");
    row("one dash too few", {"-start"}, "'-start'");
    row("positional argument", {"file.pcap"}, "'file.pcap'");
    row("positional argument with equals", {"a=b"}, "'a=b'");
    row("dashes only", {"--"}, "'--'");
    row("second scenario", {"--demo", "a", "b"}, "'b'");
    row("value for a switch", {"--start=yes"}, "--start");
    for (const auto *option : {"--input", "--sensor", "--exit-after", "--screenshot", "--snapshot"}) {
        row(qPrintable(QString("%1 at the end").arg(option)), {option}, option);
        row(qPrintable(QString("%1 before an option").arg(option)), {option, "--start"}, option);
        row(qPrintable(QString("%1 empty").arg(option)), {option, ""}, option);
    }
    row("unknown input", {"--input", "tcp:8600"}, "'tcp'");
    row("no port", {"--input", "udp"}, "port");
    row("port 0", {"--input", "udp:0"}, "'0'");
    row("port too large", {"--input", "udp:65536"}, "'65536'");
    row("unicast group", {"--input", "udp:192.168.1.1:8600"}, "'192.168.1.1'");
    row("group without port", {"--input", "udp:239.1.2.3"}, "'239.1.2.3'");
    row("interface without group", {"--input", "udp:8600@lo"}, "multicast group");
    row("no such interface", {"--input", "udp:239.1.2.3:8600@nosuch0"}, "'nosuch0'");
    row("no device", {"--input", "serial:"}, "device");
    row("baud rate 0", {"--input", "serial:ttyS0:0"}, "'0'");
    row("no path", {"--input", "file:"}, "path");
    row("unknown sensor", {"--sensor", "sonar:1,2"}, "'sonar'");
    row("no location", {"--sensor", "radar"}, "location");
    row("half a location", {"--sensor", "radar:48.5"}, "'48.5'");
    row("location out of range", {"--sensor", "radar:91,0"}, "'91,0'");
    row("location that is no number", {"--sensor", "radar:north,east"}, "'north,east'");
    for (const auto *seconds : {"soon", "0", "-1", "nan", "inf", "1e9"})
        row(qPrintable(QString("seconds: %1").arg(seconds)), {QString("--exit-after=%1").arg(seconds)}, seconds);
    row("demo with an input", {"--demo", "--input", "udp:8600"}, "--demo");
}

void tst_CommandLine::refuses()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, about);
    QString error;
    QVERIFY(!parse(arguments, &error));
    QVERIFY2(error.contains(about), qPrintable(error));
    QVERIFY(!error.contains('\n'));
}

void tst_CommandLine::overridesWhatWasGiven()
{
    const Config before;
    Config config;
    parsed({"--start"}).applyTo(config);
    QCOMPARE(config.inputUdpPort1, before.inputUdpPort1);
    QCOMPARE(config.sensorType, before.sensorType);

    config.inputEnable2 = true;
    config.inputComm = Comm::File;
    parsed({"--input", "udp:8600", "--sensor", "radar:48.5,16.25:S"}).applyTo(config);
    QCOMPARE(config.inputComm, Comm::Udp);
    QCOMPARE(config.inputUdpPort1, 8600);
    QVERIFY(!config.inputUdpMulticast1);
    QVERIFY(!config.inputEnable2);
    QCOMPARE(config.sensorType, RadarSensor);
    QCOMPARE(config.sensorName, QStringLiteral("S"));
    QCOMPARE(config.sensorLocation.toATCString(), QStringLiteral("483000N0161500E"));

    parsed({"--input", "udp:239.1.2.3:8601@lo"}).applyTo(config);
    QVERIFY(config.inputUdpMulticast1);
    QCOMPARE(config.inputUdpMcastAddress1, QHostAddress("239.1.2.3"));
    QCOMPARE(config.inputUdpMcastLanInterface1.name(), QStringLiteral("lo"));

    parsed({"--input", "serial:ttyS1"}).applyTo(config);
    QCOMPARE(config.inputComm, Comm::Serial);
    QCOMPARE(config.inputSerialDevice, QStringLiteral("ttyS1"));
    QCOMPARE(config.inputSerialBaudRate, before.inputSerialBaudRate);
    parsed({"--input", "file:x.pcap"}).applyTo(config);
    QCOMPARE(config.inputComm, Comm::File);
    QCOMPARE(config.inputFileName.filePath(), QStringLiteral("x.pcap"));
}

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_command_line.moc"
