#include "app/run_config.h"
#include "test_program.h"
#include "vyxdisplay/command_line.h"

#include <QTemporaryDir>
#include <QTest>

class TestRunConfig : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void overridesAreNotSaved();
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
    run.overrideWith([](Config &config) {
        config.inputUdpPort1 = 9999;
        config.sensorName = "DEMO";
    });
    run.edit([](Config &config) { config.mapRangeRingVisible = true; });
    run.edit([](Config &config) { config.mapRangeRingNumber = 8; });
    QCOMPARE(run.live().inputUdpPort1, 9999);
    const Config next = RunConfig(file()).live();
    QCOMPARE(next.inputUdpPort1, 4000);
    QCOMPARE(next.sensorName, "HOME");
    QVERIFY(next.mapRangeRingVisible && next.mapRangeRingNumber == 8);
    // Unless the user changes the very key.
    run.edit([](Config &config) { config.inputUdpPort1 = 7000; });
    QCOMPARE(RunConfig(file()).live().inputUdpPort1, 7000);
    QCOMPARE(RunConfig(file()).live().sensorName, "HOME");
}

void TestRunConfig::everyKeyOfTheCommandLineIsProtected()
{
    RunConfig(file()).edit([](Config &) {});
    const QByteArray before = written();
    for (const char *arguments : {"--input udp:5001", "--input udp:239.9.9.9:5001@lo", "--input serial:ttyS7:115200",
             "--input file:/tmp/x.pcap", "--sensor adsb:48.1,16.2:OTHER"}) {
        QString error;
        const auto commandLine = CommandLine::parse(QString("vyxdisplay %1").arg(arguments).split(' '), &error);
        QVERIFY2(commandLine, qPrintable(error));
        RunConfig run(file());
        run.overrideWith([&commandLine](Config &config) { commandLine->applyTo(config); });
        run.edit([](Config &) {});
        QVERIFY2(written() == before, arguments);
    }
}

VYX_TEST(TestRunConfig)
#include "tst_run_config.moc"
