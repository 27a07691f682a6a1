#include "app/run_config.h"
#include "app/theme.h"
#include "sensors/radar_sensor_info.h"
#include "test_files.h"
#include "test_program.h"
#include "vyxdisplay/command_line.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class TestRunConfig : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void overridesAreNotSaved();
    void everyKeyOfTheCommandLineIsProtected();
    void editedGroupIsStoredWhole_data();
    void editedGroupIsStoredWhole();
    void lookOfTheRunIsNotSaved();
    void recordingsSettingsAreGivenBack();
    void writesOnceAndLater();
    void saysThatTheFileCannotBeWritten();

private:
    QString file() const { return m_directory->filePath("settings.conf"); }
    QByteArray written() const;
    Config stored() const;

    std::unique_ptr<QTemporaryDir> m_directory;
};

namespace {

void override(RunConfig &run, const QString &arguments)
{
    QString error;
    const auto commandLine = CommandLine::parse(QStringLiteral("vyxdisplay %1").arg(arguments).split(' '), &error);
    QVERIFY2(commandLine, qPrintable(error));
    run.overrideWith([&commandLine](Config &config) { commandLine->applyTo(config); });
}

} // namespace

void TestRunConfig::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    Config config;
    config.inputUdpPort1 = 4000;
    config.sensorName = "HOME";
    config.save(file());
}

QByteArray TestRunConfig::written() const
{
    return contentsOf(file());
}

Config TestRunConfig::stored() const
{
    Config config;
    config.load(file());
    return config;
}

void TestRunConfig::overridesAreNotSaved()
{
    RunConfig run(file());
    override(run, "--input udp:9999 --sensor adsb:48,16:DEMO");
    run.edit([](Config &config) { config.mapRangeRingVisible = true; });
    run.edit([](Config &config) { config.inputFileAutoRewind = true; }); // of any recording, no matter which is played
    run.edit([](Config &config) { config.sensorDatabase = "sensors.json"; });
    QVERIFY(run.flush());
    QCOMPARE(run.live().inputUdpPort1, 9999);
    QCOMPARE(stored().inputUdpPort1, 4000);
    QCOMPARE(stored().sensorName, "HOME");
    QVERIFY(stored().mapRangeRingVisible && stored().inputFileAutoRewind && stored().sensorDatabase == "sensors.json");
}

void TestRunConfig::everyKeyOfTheCommandLineIsProtected()
{
    const QByteArray before = written();
    for (const char *arguments : {"--input udp:5001", "--input udp:239.9.9.9:5001@lo", "--input serial:ttyS7:115200",
             "--input file:/tmp/x.pcap", "--sensor adsb:48.1,16.2:OTHER"}) {
        RunConfig run(file());
        override(run, arguments);
        run.edit([](Config &config) { config.mapRangeRingNumber = 6; });
        run.edit([](Config &config) { config.mapRangeRingNumber = 5; });
        QVERIFY(run.flush());
        QVERIFY2(written() == before, arguments);
    }
}

// What the operator edits he sees with the run's own values around it: the file must not mix it with others.
void TestRunConfig::editedGroupIsStoredWhole_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<std::function<void(Config &)>>("edit");
    QTest::addColumn<SettingGroups>("groups"); // in which the file becomes what is in force
    const auto row = [](const char *name, const char *arguments, const std::function<void(Config &)> &edit,
                         SettingGroups groups) { QTest::newRow(name) << arguments << edit << groups; };
    row(
        "other port", "--input udp:30001 --sensor radar:48,16:A", [](Config &config) { config.inputUdpPort1 = 30002; },
        SettingGroup::Input);
    row(
        "other sensor of the same type", "--input udp:30001 --sensor radar:48,16:A",
        [](Config &config) {
            const auto radar = QSharedPointer<RadarSensorInfo>::create();
            radar->setName("B");
            radar->setLocation(GeoCoordinate(47.0, 15.0));
            radar->setRadarType(true, true, false);
            config.setSensor(radar);
        },
        SettingGroup::Sensor);
    row(
        "other profile", "--sensor radar:48,16:A", [](Config &config) { config.processorAsterixUap = 3; },
        SettingGroup::Processor);
}

void TestRunConfig::editedGroupIsStoredWhole()
{
    QFETCH(QString, arguments);
    QFETCH(std::function<void(Config &)>, edit);
    QFETCH(SettingGroups, groups);
    RunConfig run(file());
    override(run, arguments);
    const SettingGroups overridden = Config::changedGroups(stored(), run.live());
    run.edit(edit);
    QVERIFY(run.flush());
    QCOMPARE(Config::changedGroups(stored(), run.live()), overridden & ~groups);
}

// A colour that the operator changes while he sees another theme is all that is stored of it; a theme that he chooses
// is stored whole, also where the run has its values already.
void TestRunConfig::lookOfTheRunIsNotSaved()
{
    const auto theme = [](const QString &name, const QColor &symbols) {
        return [name, symbols](Config &config) {
            config.displayTheme = name;
            config.trackSymbolColor = symbols;
            config.trackLabelLayout = Config::TrackLabelLayout::Compact;
        };
    };
    RunConfig run(file());
    run.overrideWith(theme("Dark", Qt::cyan));
    run.edit([](Config &config) { config.trackLabelColor = Qt::yellow; });
    QVERIFY(run.flush());
    QCOMPARE(stored().trackLabelColor, QColor(Qt::yellow));
    QCOMPARE(stored().displayTheme, Theme::Classic);
    QCOMPARE(stored().trackSymbolColor, Config().trackSymbolColor);

    for (const bool other : {true, false}) {
        RunConfig again(file());
        again.overrideWith(theme("Dark", Qt::cyan));
        Config chosen = again.live();
        theme(other ? "Darker" : "Dark", Qt::cyan)(chosen);
        other ? again.apply(chosen) : again.applyLook(chosen);
        QVERIFY(again.flush());
        QCOMPARE(stored().displayTheme, chosen.displayTheme);
        QCOMPARE(stored().trackLabelLayout, Config::TrackLabelLayout::Compact);
        Config().save(file());
    }
}

// The operator's own changes of other groups, and of a group that a recording has set, are kept.
void TestRunConfig::recordingsSettingsAreGivenBack()
{
    RunConfig run(file());
    Config proposed = run.live();
    proposed.sensorName = "RECORDED";
    proposed.processorAsterixUap = 3;
    proposed.inputUdpPort1 = 1;
    for (int recording = 0; recording < 2; ++recording) {
        run.setAside(proposed, SettingGroup::Processor | SettingGroup::Sensor);
        QCOMPARE(run.live().sensorName, "RECORDED");
        QCOMPARE(run.live().inputUdpPort1, 4000);
        QCOMPARE(run.own().sensorName, "HOME");
    }
    run.edit([](Config &config) { config.processorAsterixUap = 2; });
    run.edit([](Config &config) { config.mapRangeRingNumber = 9; });
    QCOMPARE(run.bringBack(), SettingGroups(SettingGroup::Sensor));
    QCOMPARE(run.live().sensorName, "HOME");
    QCOMPARE(run.live().processorAsterixUap, 2);
    QCOMPARE(run.live().mapRangeRingNumber, 9);
    QVERIFY(run.flush());
    QCOMPARE(stored().sensorName, "HOME");
    QVERIFY(!run.bringBack());
}

void TestRunConfig::writesOnceAndLater()
{
    const QByteArray before = written();
    {
        RunConfig run(file(), std::chrono::milliseconds(60));
        for (int number = 6; number < 30; ++number) {
            run.edit([number](Config &config) { config.mapRangeRingNumber = number; });
        }
        QCOMPARE(written(), before);
        QTRY_COMPARE_WITH_TIMEOUT(stored().mapRangeRingNumber, 29, 2000);
        QVERIFY(QFile::remove(file()));
        QTest::qWait(150);
        QVERIFY2(!QFile::exists(file()), "written once");
        run.edit([](Config &config) { config.mapRangeRingNumber = 30; });
    }
    QCOMPARE(stored().mapRangeRingNumber, 30); // at the latest when the program ends
}

void TestRunConfig::saysThatTheFileCannotBeWritten()
{
    RunConfig run(file() + "/settings.conf", std::chrono::milliseconds(0)); // below a file
    const QSignalSpy failed(&run, &RunConfig::writeFailed);
    run.edit([](Config &config) { config.mapRangeRingNumber = 7; });
    QTRY_COMPARE(failed.size(), 1);
    QVERIFY2(failed.first().first().toString().contains("settings.conf"), "names the file");
    QVERIFY(!run.flush()); // not forgotten
}

VYX_TEST(TestRunConfig)
#include "tst_run_config.moc"
