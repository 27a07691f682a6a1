#include "app/command_line.h"
#include "ui/run_config.h"

#include <QTemporaryDir>
#include <QTest>

class TestRunConfig : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void overridesAreNotSaved();
    void userMayChangeAnOverriddenKey();
    void everyKeyOfTheCommandLineIsProtected_data();
    void everyKeyOfTheCommandLineIsProtected();

private:
    QString file() const { return m_directory->filePath("settings.conf"); }
    QByteArray written() const;

    std::unique_ptr<QTemporaryDir> m_directory;
};

void TestRunConfig::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    Config stored;
    stored.inputUdpPort1 = 4000;
    stored.sensorName = "HOME";
    stored.save(file());
}

QByteArray TestRunConfig::written() const
{
    QFile settings(file());
    return settings.open(QFile::ReadOnly) ? settings.readAll() : QByteArray();
}

void TestRunConfig::overridesAreNotSaved()
{
    RunConfig run(file());
    run.overrideWith([](Config &config) { config.inputUdpPort1 = 9999; });
    QCOMPARE(run.live().inputUdpPort1, 9999);
    run.edit([](Config &config) { config.mapRangeRingVisible = true; });
    run.edit([](Config &config) { config.mapRangeRingNumber = 8; });
    QCOMPARE(run.live().inputUdpPort1, 9999);

    const RunConfig next(file());
    QCOMPARE(next.live().inputUdpPort1, 4000);
    QCOMPARE(next.live().sensorName, "HOME");
    QCOMPARE(next.live().mapRangeRingVisible, true);
    QCOMPARE(next.live().mapRangeRingNumber, 8);
}

void TestRunConfig::userMayChangeAnOverriddenKey()
{
    RunConfig run(file());
    run.overrideWith([](Config &config) {
        config.inputUdpPort1 = 9999;
        config.sensorName = "DEMO";
    });
    run.edit([](Config &config) { config.inputUdpPort1 = 7000; });
    const RunConfig next(file());
    QCOMPARE(next.live().inputUdpPort1, 7000);
    QCOMPARE(next.live().sensorName, "HOME");
}

void TestRunConfig::everyKeyOfTheCommandLineIsProtected_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("unicast") << QStringList({"--input", "udp:5001"});
    QTest::newRow("multicast") << QStringList({"--input", "udp:239.9.9.9:5001@lo"});
    QTest::newRow("serial line") << QStringList({"--input", "serial:ttyS7:115200"});
    QTest::newRow("recording") << QStringList({"--input", "file:/tmp/x.pcap"});
    QTest::newRow("sensor") << QStringList({"--sensor", "adsb:48.1,16.2:OTHER"});
}

void TestRunConfig::everyKeyOfTheCommandLineIsProtected()
{
    QFETCH(QStringList, arguments);
    QString error;
    const auto commandLine = CommandLine::parse(QStringList{"vyxdisplay"} + arguments, &error);
    QVERIFY2(commandLine, qPrintable(error));
    RunConfig(file()).edit([](Config &) {});
    const QByteArray before = written();

    RunConfig run(file());
    run.overrideWith([&commandLine](Config &config) { commandLine->applyTo(config); });
    run.edit([](Config &) {});
    QCOMPARE(written(), before);
}

QTEST_MAIN(TestRunConfig)
#include "tst_run_config.moc"
