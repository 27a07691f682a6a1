#include "sensors/radar_sensor_info.h"
#include "sensors/sensor_manager.h"
#include "settings/config_window.h"
#include "test_program.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using Edits = QList<std::pair<QString, QString>>; // field and what the operator enters

class TestConfigWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void applyWithoutEditsChangesNothing();
    void appliesWhatWasEntered_data();
    void appliesWhatWasEntered();
    void refusesInWords_data();
    void refusesInWords();
    void takesTheSensorChosenFromTheFile();

private:
    QStringList changedKeys(const Config &before, const Config &after);

    QTemporaryDir m_dir;
};

namespace {

// A record without a single default among the keys that the window shows.
Config unusualConfig(SensorType type)
{
    using C = Config;
    Config config;
    for (bool C::*flag : {&C::displayToolbarText, &C::inputUdpMulticast1, &C::inputEnable2, &C::inputFileAutoRewind,
             &C::processorAsterixVerifySacSic, &C::processorAsterixIgnoreWgs84Coordinates,
             &C::processorAsterixIgnoreCartesianCoordinates, &C::mapSensorVisible, &C::mapSensorCoverageVisible,
             &C::mapSensorRadarNorthMarkerVisible, &C::mapSensorRadarAntennaLineVisible, &C::mapRangeRingVisible,
             &C::mapWeatherVisible, &C::mapWeatherAutoVectorWidth, &C::mapWeatherIgnoreEmptyPicture,
             &C::mapVideoVisible}) {
        config.*flag = !(config.*flag);
    }
    int red = 0;
    for (QColor C::*color : {&C::mapBackgroundColor, &C::mapSensorColor, &C::mapSensorRadarNorthMarkerColor,
             &C::mapSensorRadarAntennaLineColor, &C::mapRangeRingColor, &C::trackSymbolColor, &C::trackLabelColor,
             &C::mapVideoHighColor, &C::mapVideoLowColor, &C::trackLabelSelectedColor, &C::trackLabelAlertColor,
             &C::trackLabelBackgroundColor}) {
        config.*color = QColor(++red, 2, 3);
    }
    config.displayCenterCoordinate = GeoCoordinate(-33.5, -70.25);
    config.displayLocalTimeZoneName = QStringLiteral("LCL");
    config.displayStyle = QStringLiteral("fusion");
    config.inputComm = Config::InputComm::Serial;
    config.inputUdpMcastLanInterface1 = QNetworkInterface::interfaceFromName(QStringLiteral("lo"));
    config.inputUdpMcastAddress1 = QHostAddress(QStringLiteral("10.1.2.3"));
    config.inputUdpPort1 = 1;
    config.inputUdpPort2 = 65535;
    config.inputSerialDevice = QStringLiteral("ttyNoSuch7");
    config.inputSerialBaudRate = 31250;
    config.inputSerialDataBits = 7;
    config.inputSerialParity = 2;
    config.inputSerialStopBits = 3;
    config.inputFileName.setFile(QStringLiteral("/no/such/file.pcap"));
    config.processorType = Config::ProcessorType::ModeS;
    config.processorAsterixFormat = Config::AsterixFormat::ManagAir;
    config.processorAsterixUap = 7;
    config.mapWeatherOpacity = 0;
    config.mapWeatherValidity = 86400;
    config.mapWeatherVectorWidth = 0.352;
    config.mapWeatherColor[3] = QColor();
    config.mapWeatherColor[7] = QColor(1, 2, 3);
    config.mapVideoHighOpacity = 254;
    config.mapVideoLowOpacity = 0;
    config.mapVideoThreshold = 255;
    config.mapVideoValidity = 3600;
    config.mapRangeRingNumber = 50;
    config.mapRangeRingDistance = 0.25;
    config.trackLabelBackgroundOpacity = 255;
    config.sensorType = type;
    if (type == UnknownSensor) {
        return config;
    }
    config.sensorName = QStringLiteral("West");
    config.sensorSac = 255;
    config.sensorSic = 7;
    config.sensorLocation = GeoCoordinate::fromATCString(QStringLiteral("010203S0040506W"));
    config.sensorRadarAntennaAltitude = -12;
    config.sensorRadarRotationPeriod = 9.875;
    config.sensorRadarIsPrimary = true;
    config.sensorRadarIsModeS = false;
    config.sensorRadarCoveragePrimary = 61;
    config.sensorRadarCoverageSecondary = 201;
    config.sensorAdsbCoverage = 199;
    config.sensorAdsbUpdateInterval = 0.5;
    config.sensorMlatCoverage = 31;
    config.sensorSdpsCoverage = 800;
    config.sensorSdpsUpdateInterval = 5.0;
    config.sensorSmrAntennaAltitude = 88;
    config.sensorSmrRotationPeriod = 0.9;
    config.sensorSmrCoverage = 2.75;
    return config;
}

void enter(const ConfigWindow &window, const Edits &edits)
{
    for (const auto &[name, value] : edits) {
        auto *field = window.findChild<QWidget *>(name);
        QVERIFY2(field, qPrintable(name));
        if (auto *line = qobject_cast<QLineEdit *>(field)) {
            line->setText(value);
        } else if (auto *combo = qobject_cast<QComboBox *>(field)) {
            combo->setCurrentText(value);
        } else if (auto *number = qobject_cast<QSpinBox *>(field)) {
            number->setValue(value.toInt());
        } else if (auto *box = qobject_cast<QCheckBox *>(field)) {
            box->setChecked(value == QLatin1String("on"));
        }
    }
}

bool shows(const ConfigWindow &window, const QString &text)
{
    const QList<QLabel *> labels = window.findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(),
        [&](const QLabel *label) { return label->text() == text && label->isVisibleTo(label->parentWidget()); });
}

} // namespace

void TestConfigWindow::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

QStringList TestConfigWindow::changedKeys(const Config &before, const Config &after)
{
    const QString first = m_dir.filePath(QStringLiteral("before.conf"));
    const QString second = m_dir.filePath(QStringLiteral("after.conf"));
    QFile::remove(first);
    QFile::remove(second);
    before.save(first);
    after.save(second);
    const QSettings a(first, QSettings::IniFormat);
    const QSettings b(second, QSettings::IniFormat);
    QStringList changed;
    const QStringList keys = a.allKeys();
    for (const QString &key : keys) {
        if (a.value(key) != b.value(key)) {
            changed.append(key);
        }
    }
    return changed;
}

void TestConfigWindow::applyWithoutEditsChangesNothing()
{
    QList<Config> configs{Config()};
    for (const SensorType type : {UnknownSensor, RadarSensor, AdsbSensor, MlatSensor, SdpsSensor, SmrSensor}) {
        configs.append(unusualConfig(type));
    }
    for (const Config &config : configs) {
        ConfigWindow window(config, nullptr);
        QVERIFY(window.apply());
        QCOMPARE(changedKeys(config, window.config()).join(u' '), QString());
    }
}

void TestConfigWindow::appliesWhatWasEntered_data()
{
    QTest::addColumn<Edits>("edits");
    QTest::addColumn<QString>("changed");
    const auto row = [](const char *name, const Edits &edits, const char *changed) {
        QTest::newRow(name) << edits << QString::fromLatin1(changed);
    };
    row("centre in lower case", {{"displayCenter", "395427n1162317w"}}, "displayCenterCoordinate");
    row("lowest and highest group",
        {{"udpGroup1", "224.0.0.0"}, {"udpEnable2", "on"}, {"udpGroup2", "239.255.255.255"}},
        "inputEnable2 inputUdpMcastAddress1 inputUdpMcastAddress2");
    row("unicast needs no group", {{"udpMulticast1", "off"}, {"udpGroup1", "1.2."}}, "inputUdpMulticast1");
    row("input that is off needs no group", {{"udpGroup2", "1.2.3.4"}}, "");
    row("what a hidden input holds is not asked for",
        {{"udpGroup1", "nonsense"}, {"inputComm", "Async Serial"}, {"serialDevice", "ttyS1"}},
        "inputComm inputSerialDevice");
    row("typed-in radar",
        {{"sensorType", "Radar"}, {"sensorName", " North "}, {"sensorSac", "25"},
            {"sensorLocation", "401020n0203040e"}},
        "sensorLocation sensorName sensorSac sensorType");
}

void TestConfigWindow::appliesWhatWasEntered()
{
    QFETCH(Edits, edits);
    QFETCH(QString, changed);
    ConfigWindow window(Config(), nullptr);
    const QSignalSpy applied(&window, &ConfigWindow::configApplied);
    enter(window, edits);
    window.accept();
    QCOMPARE(applied.size(), 1);
    QCOMPARE(window.result(), static_cast<int>(QDialog::Accepted));
    QCOMPARE(changedKeys(Config(), applied.first().first().value<Config>()).join(u' '), changed);
}

void TestConfigWindow::refusesInWords_data()
{
    QTest::addColumn<Edits>("edits");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *name, const Edits &edits, const QString &words) {
        QTest::newRow(name) << edits << words;
    };
    const QString range = QStringLiteral("A multicast group lies between 224.0.0.0 and 239.255.255.255.");
    row("incomplete centre", {{"displayCenter", "3954"}}, "INVALID COORDINATE");
    row("unknown time zone", {{"displayTimeZone", "Mars/Olympus"}}, "There is no time zone \"Mars/Olympus\".");
    row("group above the range", {{"udpGroup1", "240.0.0.0"}}, range);
    row("group of the second input", {{"udpEnable2", "on"}, {"udpGroup2", "10.0.0.1"}}, range);
    row("incomplete group", {{"udpGroup1", "239.0.0"}}, "This is no IP address.");
    row("same group and port", {{"udpEnable2", "on"}, {"udpGroup2", "239.0.0.1"}, {"udpPort2", "50000"}},
        "Both inputs have the same group and port.");
    row("same port for unicast", {{"udpEnable2", "on"}, {"udpMulticast2", "off"}, {"udpPort2", "50000"}},
        "Both inputs have the same port.");
    row("baud rate of zero", {{"inputComm", "Async Serial"}, {"serialDevice", "x"}, {"serialBaudRate", "0"}},
        "Enter a rate in bits per second.");
    row("no recording", {{"inputComm", "Recording File"}}, "Choose a recording file.");
    row("sensor without a name", {{"sensorType", "Radar"}, {"sensorLocation", "401020N0203040E"}},
        "A sensor needs a name.");
}

void TestConfigWindow::refusesInWords()
{
    QFETCH(Edits, edits);
    QFETCH(QString, words);
    ConfigWindow window(Config(), nullptr);
    const QSignalSpy applied(&window, &ConfigWindow::configApplied);
    // A good edit beside the bad one must not slip through.
    enter(window, edits + Edits{{"labelOpacity", "3"}});
    window.accept();
    QVERIFY(shows(window, words));
    QCOMPARE(applied.size(), 0);
    QCOMPARE(changedKeys(Config(), window.config()), QStringList());
    QVERIFY(window.result() != QDialog::Accepted);
}

void TestConfigWindow::takesTheSensorChosenFromTheFile()
{
    const GeoCoordinate location = GeoCoordinate::fromATCString(QStringLiteral("395427.35N1162317.08E"));
    const auto radar = QSharedPointer<RadarSensorInfo>::create();
    radar->setName(QStringLiteral("R1"));
    radar->setLocation(location);
    radar->setRadarType(false, true, false);
    radar->setRotationPeriod(11.5);
    SensorManager sensors;
    sensors.addSensor(radar);
    ConfigWindow window(Config(), &sensors);
    auto *choice = window.findChild<QComboBox *>(QStringLiteral("sensorChoice"));
    choice->setCurrentIndex(choice->findText(QStringLiteral("R1")));
    Q_EMIT choice->activated(choice->currentIndex());
    QVERIFY(window.apply());
    QCOMPARE(window.config().sensorType, RadarSensor);
    QCOMPARE(window.config().sensorName, QStringLiteral("R1"));
    QCOMPARE(window.config().sensorRadarRotationPeriod, 11.5);
    QCOMPARE(window.config().sensorRadarIsModeS, false);
    // The page shows whole seconds; the hundredths come through all the same.
    QCOMPARE(window.config().sensorLocation, location);
}

VYX_TEST(TestConfigWindow)
#include "tst_config_window.moc"
