#include "astfile/rec_file.h"
#include "sensors/radar_sensor_info.h"
#include "sensors/sensor_manager.h"
#include "settings/config_page.h"
#include "settings/config_window.h"
#include "settings/password_field.h"
#include "test_program.h"
#include "widgets/color_button.h"
#include "widgets/field_form.h"
#include "widgets/file_edit.h"

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
    void pagesShowAndTakeEverySetting();
    void fieldsChangeTheirOwnSettingAlone();
    void locksWhatTheInputWasOpenedWith();
    void staysOpenWhenTheFileCannotBeWritten();
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

// For settings whose values are not free.
const QHash<QString, QVariant> ChosenValues{{"displayCenterCoordinate", "335130S0702500W"},
    {"displayLocalTimeZoneName", "Asia/Tokyo"}, {"inputUdpMcastLanInterface1", "lo"},
    {"inputUdpMcastLanInterface2", "lo"}, {"inputUdpMcastAddress1", "224.1.2.3"},
    {"inputUdpMcastAddress2", "239.7.7.7"}, {"processorModeSEncapsulation", "avr"},
    {"sensorLocation", "010203S0040506W"}, {"displayFontScale", 120}, {"sensorRadarIsModeS", false},
    {"sensorRadarIsSecondary", true}};

QVariant otherValue(const QString &key, const QVariant &value)
{
    if (ChosenValues.contains(key)) {
        return ChosenValues[key];
    }
    switch (value.typeId()) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::Double:
        return value.toDouble() + 0.5;
    case QMetaType::Int:
    case QMetaType::UInt:
        return value.toInt() < 100 ? value.toInt() + 1 : value.toInt() - 1;
    case QMetaType::QColor:
        return QColor(1, int(key.size()), int(qHash(key, 1) % 200));
    default:
        return key;
    }
}

// Another value than the default for every setting but those of the type of the sensor.
Config otherConfig(const QTemporaryDir &directory, SensorType type)
{
    const QString path = directory.filePath(QStringLiteral("other.conf"));
    QFile::remove(path);
    Config config;
    {
        QSettings file(path, QSettings::IniFormat);
        for (const Setting &setting : Setting::all()) {
            setting.save(file, Config());
        }
        const QStringList keys = file.allKeys();
        for (const QString &key : keys) {
            file.setValue(key, otherValue(key, file.value(key)));
        }
    }
    config.load(path);
    config.sensorType = type;
    return config;
}

// What the operator does to a field, whatever it is.
void change(QWidget *field)
{
    if (auto *box = qobject_cast<QCheckBox *>(field)) {
        box->toggle();
    } else if (auto *number = qobject_cast<QAbstractSpinBox *>(field)) {
        const QString before = number->text();
        number->stepBy(1);
        number->stepBy(number->text() == before ? -1 : 0); // it stood at the end of its range
    } else if (auto *color = qobject_cast<ColorButton *>(field)) {
        color->setColor(QColor(1, 2, 3));
    } else if (auto *file = qobject_cast<FileEdit *>(field)) {
        file->setPath(QStringLiteral("/other/file"));
    } else if (auto *line = qobject_cast<QLineEdit *>(field)) {
        line->setText(line->text().contains(u'.') ? QStringLiteral("224.7.7.7") : QStringLiteral("335130S0702500W"));
    } else if (auto *combo = qobject_cast<QComboBox *>(field)) {
        combo->setCurrentIndex((combo->currentIndex() + 1) % combo->count());
    } else if (auto *password = qobject_cast<PasswordField *>(field)) {
        password->setStored(QStringLiteral("another"));
    }
}

void enter(const ConfigWindow &window, const Edits &edits)
{
    for (const auto &[name, value] : edits) {
        auto *field = window.findChild<QWidget *>(name);
        QVERIFY2(field, qPrintable(name));
        if (auto *line = qobject_cast<QLineEdit *>(field)) {
            line->setText(value);
        } else if (auto *file = qobject_cast<FileEdit *>(field)) {
            file->setPath(value);
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
    return std::any_of(labels.begin(), labels.end(), [&](const QLabel *label) {
        return label->text().startsWith(text) && label->isVisibleTo(label->parentWidget());
    });
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
    Config odd = otherConfig(m_dir, SmrSensor);
    odd.trackLabelBackgroundOpacity = 200; // beyond what the field takes
    odd.mapWeatherVectorWidth = 0.123456789; // finer than it shows
    odd.displayStyle = QStringLiteral("fUsIoN");
    odd.inputComm = Config::InputComm::Serial;
    for (const Config &config : {Config(), odd}) {
        ConfigWindow window(config, nullptr);
        QVERIFY(window.apply());
        QCOMPARE(changedKeys(config, window.config()).join(u' '), QString());
    }
}

void TestConfigWindow::pagesShowAndTakeEverySetting()
{
    for (const SensorType type : {UnknownSensor, RadarSensor, AdsbSensor, MlatSensor, SdpsSensor, SmrSensor}) {
        const Config config = otherConfig(m_dir, type);
        const ConfigWindow window(config, nullptr);
        Config expected;
        expected.setSensor(config.sensor(nullptr));
        for (const ConfigPage *page : window.pages()) {
            Config taken;
            page->store(&taken);
            for (const Setting *setting : page->settings()) {
                const bool ofSensor(setting->groups() & SettingGroup::Sensor);
                QVERIFY2(setting->same(taken, ofSensor ? expected : config), qPrintable(setting->key()));
            }
        }
    }
}

void TestConfigWindow::fieldsChangeTheirOwnSettingAlone()
{
    const ConfigWindow window(Config(), nullptr);
    for (ConfigPage *page : window.pages()) {
        for (const Setting *setting : page->settings()) {
            if (setting->groups() & SettingGroup::Sensor || setting->key().startsWith("mapWeatherColor")) {
                continue; // one widget stands for several values
            }
            page->load(Config());
            auto *field = page->findChild<QWidget *>(setting->key());
            QVERIFY2(field, qPrintable(setting->key()));
            change(field);
            Config before;
            Config after;
            page->store(&after);
            before.displayStyle = after.displayStyle = QString(); // the default may be a style of another system
            const QStringList expected(setting->key() == "displayStyle" ? QStringList() : QStringList(setting->key()));
            QVERIFY2(changedKeys(before, after) == expected, qPrintable(setting->key()));
        }
    }
}

void TestConfigWindow::locksWhatTheInputWasOpenedWith()
{
    Config config;
    config.inputComm = Config::InputComm::File;
    config.inputFileName.setFile(QStringLiteral("/gone/since.pcap"));
    ConfigWindow window(config, nullptr);
    window.setInputRunning(true);
    QStringList locked;
    for (const ConfigPage *page : window.pages()) {
        locked += page->findChild<QLabel *>("lock")->isHidden() ? QStringList() : QStringList(page->title());
        for (const Setting *setting : page->settings()) {
            const auto *field = page->findChild<QWidget *>(setting->key());
            QVERIFY2(!field || !field->isEnabled() || !(setting->groups() & RunGroups), qPrintable(setting->key()));
        }
    }
    QCOMPARE(locked, QStringList({"Input", "Processor", "Sensor"}));
    window.findChild<QCheckBox *>("inputUdpMulticast1")->toggle(); // as it comes from a file
    QVERIFY2(!window.findChild<QLineEdit *>("inputUdpMcastAddress1")->isEnabled(), "fields do not unlock each other");
    window.findChild<QCheckBox *>("inputUdpMulticast1")->toggle();
    enter(window, {{"mapRangeRingNumber", "9"}});
    window.findChild<QCheckBox *>("inputAutoStart")->click();
    QVERIFY2(window.apply(), "what is locked is not in the way of the rest");
    QCOMPARE(changedKeys(config, window.config()), QStringList({"inputAutoStart", "mapRangeRingNumber"}));
    window.setInputRunning(false);
    QVERIFY(window.findChild<QWidget *>("inputComm")->isEnabled() && !window.apply());
}

void TestConfigWindow::staysOpenWhenTheFileCannotBeWritten()
{
    ConfigWindow window(Config(), nullptr);
    bool writable = false;
    connect(&window, &ConfigWindow::configApplied, &window, [&window, &writable] {
        if (!writable) {
            window.showSaveProblem("Cannot write x");
        }
    });
    window.show();
    window.accept();
    QVERIFY(window.isVisible() && shows(window, "Cannot write x. The settings hold until the program ends."));
    writable = true;
    window.accept();
    QVERIFY(!window.isVisible());
}

void TestConfigWindow::appliesWhatWasEntered_data()
{
    QTest::addColumn<Edits>("edits");
    QTest::addColumn<QString>("changed");
    const auto row = [](const char *name, const Edits &edits, const char *changed) {
        QTest::newRow(name) << edits << QString::fromLatin1(changed);
    };
    row("centre in lower case", {{"displayCenterCoordinate", "395427n1162317w"}}, "displayCenterCoordinate");
    row("lowest and highest group",
        {{"inputUdpMcastAddress1", "224.0.0.0"}, {"inputEnable2", "on"}, {"inputUdpMcastAddress2", "239.255.255.255"}},
        "inputEnable2 inputUdpMcastAddress1 inputUdpMcastAddress2");
    row("unicast needs no group", {{"inputUdpMulticast1", "off"}, {"inputUdpMcastAddress1", "1.2."}},
        "inputUdpMulticast1");
    row("input that is off needs no group", {{"inputUdpMcastAddress2", "1.2.3.4"}}, "");
    row("what a hidden input holds is not asked for",
        {{"inputUdpMcastAddress1", "nonsense"}, {"inputComm", "Async Serial"}, {"inputSerialDevice", "ttyS1"}},
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
    row("incomplete centre", {{"displayCenterCoordinate", "3954"}}, "INVALID COORDINATE");
    row("unknown time zone", {{"displayLocalTimeZoneName", "Mars/Olympus"}}, "There is no time zone \"Mars/Olympus\".");
    row("group above the range", {{"inputUdpMcastAddress1", "240.0.0.0"}}, range);
    row("group of the second input", {{"inputEnable2", "on"}, {"inputUdpMcastAddress2", "10.0.0.1"}}, range);
    row("incomplete group", {{"inputUdpMcastAddress1", "239.0.0"}}, "This is no IP address.");
    row("same group and port",
        {{"inputEnable2", "on"}, {"inputUdpMcastAddress2", "239.0.0.1"}, {"inputUdpPort2", "50000"}},
        "Both inputs have the same group and port.");
    row("same port for unicast", {{"inputEnable2", "on"}, {"inputUdpMulticast2", "off"}, {"inputUdpPort2", "50000"}},
        "Both inputs have the same port.");
    row("baud rate of zero", {{"inputComm", "Async Serial"}, {"inputSerialDevice", "x"}, {"inputSerialBaudRate", "0"}},
        "Enter a rate in bits per second.");
    row("no recording", {{"inputComm", "Recording File"}}, "Choose a recording file.");
    row("no file", {{"inputComm", "Recording File"}, {"inputFileName", "/no/such.pcap"}}, "This file does not exist.");
    QString reason;
    QCOMPARE(korvane::astfile::RecFile::formatOfFile("/etc/passwd", &reason), korvane::astfile::RecFile::Unknown);
    row("no recording by its contents", {{"inputComm", "Recording File"}, {"inputFileName", "/etc/passwd"}}, reason);
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
    enter(window, edits + Edits{{"trackLabelBackgroundOpacity", "3"}});
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
