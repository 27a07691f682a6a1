#include "app/app_identity.h"
#include "app/app_paths.h"
#include "app/run_config.h"
#include "encoded_report.h"
#include "engine/engine_host.h"
#include "first_start/first_start.h"
#include "first_start/first_start_guide.h"
#include "sensors/sensor_manager.h"
#include "settings/input_config_page.h"
#include "test_program.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QUdpSocket>

#include <csignal>

// The guide as a person goes through it, and the demonstration that begins in it.
class TestFirstStart : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void leadsToALiveInput();
    void leavesEverythingAsItWas();
    void asksForWhatTheDataDoNotTell();
    void demonstrationLeavesTheSettingsAlone();
    void recordingEndsTheDemonstration();

private:
    QString generator();
    FirstStartGuide *opened(FirstStart &start);
    FirstStart::Window window()
    {
        return {nullptr, m_config.get(), &m_sensors, m_engine.get(), [] { return true; }};
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<RunConfig> m_config;
    std::unique_ptr<EngineHost> m_engine;
    SensorManager m_sensors;
};

namespace {

constexpr int ArrivalMs = 6000;

quint16 unusedPort()
{
    QUdpSocket socket;
    socket.bind(QHostAddress::AnyIPv4, 0);
    return socket.localPort();
}

void press(FirstStartGuide *guide, const QString &button)
{
    QTest::mouseClick(guide->findChild<QPushButton *>(button), Qt::LeftButton);
}

// As somebody types over what stands in a field.
void type(QWidget *field, const QString &text)
{
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, text);
}

// Sends until the guide has recognised it.
bool isFound(FirstStartGuide *guide, quint16 port, const QString &report)
{
    const auto *page = guide->findChild<InputConfigPage *>();
    QUdpSocket socket;
    for (int waited = 0; waited < ArrivalMs && !page->found().isRecognised(); waited += 50) {
        socket.writeDatagram(encodedReport(48, report), QHostAddress(QHostAddress::LocalHost), port);
        QTest::qWait(50);
    }
    return page->found().isRecognised();
}

void goToLivePort(FirstStartGuide *guide, quint16 port)
{
    press(guide, "live");
    guide->findChild<QCheckBox *>("inputUdpMulticast1")->setChecked(false);
    type(guide->findChild<QSpinBox *>("inputUdpPort1"), QString::number(port));
}

} // namespace

void TestFirstStart::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", m_directory->path().toUtf8());
    qputenv("XDG_DATA_HOME", m_directory->path().toUtf8());
    setApplicationIdentity();
    m_config = std::make_unique<RunConfig>(m_directory->filePath("settings.conf"));
    m_engine = std::make_unique<EngineHost>();
    m_engine->start();
}

// Answers as the generator does, and then runs on until it is ended.
QString TestFirstStart::generator()
{
    QFile file(m_directory->filePath("generator"));
    if (!file.open(QFile::WriteOnly | QFile::Truncate)) {
        return {};
    }
    file.write("#!/bin/sh\ncase \"$*\" in *--sensor-json*) echo '{\"type\":\"radar\",\"name\":\"SHOW\",\"sac\":1,"
               "\"sic\":2,\"location\":\"480000.00N0160000.00E\"}'; exit 0;; esac\n"
               "echo $$ > '"
        + m_directory->filePath("pid").toUtf8() + "'\nexec sleep 60\n");
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return file.fileName();
}

FirstStartGuide *TestFirstStart::opened(FirstStart &start)
{
    start.show();
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *guide = qobject_cast<FirstStartGuide *>(widget); guide && guide->isVisible()) {
            return guide;
        }
    }
    return nullptr;
}

void TestFirstStart::leadsToALiveInput()
{
    const quint16 port = unusedPort();
    FirstStart start(window(), {});
    const QSignalSpy entered(&start, &FirstStart::settingsEntered);
    FirstStartGuide *guide = opened(start);
    QVERIFY(guide);
    QCOMPARE(guide->findChild<QComboBox *>("theme")->currentText(), "Night");
    goToLivePort(guide, port);
    QVERIFY2(isFound(guide, port, "040/RHO=50 040/THETA=90 020/TYP=5 161/TRN=7"), "what arrives is told");
    const QString sentence = guide->findChild<QLabel *>("probeSentence")->text();
    QVERIFY2(sentence.startsWith("CAT048 from 25/0"), qPrintable(sentence));
    press(guide, "next");
    QCOMPARE(guide->findChild<QSpinBox *>("sensorSac")->value(), 25);
    auto *site = guide->findChild<QLineEdit *>("sensorLocation");
    QTRY_VERIFY2(site->hasFocus(), "the one thing that the data do not tell");
    QTest::keyClicks(site, "481530N0162000E");
    press(guide, "next");
    QCOMPARE(entered.size(), 1);
    const auto config = entered.first().first().value<Config>();
    QCOMPARE(config.inputUdpPort1, port);
    QVERIFY(!config.inputUdpMulticast1 && config.sensorSac == 25 && config.sensorType == RadarSensor);
    QCOMPARE(config.sensorLocation.toATCString(), "481530N0162000E");
    QCOMPARE(config.displayTheme, "Night");
    QUdpSocket socket;
    QVERIFY2(socket.bind(QHostAddress::AnyIPv4, port, QUdpSocket::DontShareAddress), "nobody listens any more");
}

void TestFirstStart::leavesEverythingAsItWas()
{
    FirstStart start(window(), {});
    const QSignalSpy entered(&start, &FirstStart::settingsEntered);
    const QSignalSpy themes(&start, &FirstStart::themeChosen);
    FirstStartGuide *guide = opened(start);
    start.show(); // once more is the same one
    guide->findChild<QDialogButtonBox *>()->addButton(QDialogButtonBox::Help);
    QVERIFY2(!guide->findChild<QPushButton *>("next")->isVisible(), "there is nothing to go on from yet");
    goToLivePort(guide, unusedPort());
    QTest::keyClick(guide, Qt::Key_Escape);
    QVERIFY(!guide->isVisible());
    QVERIFY(m_config->flush());
    QVERIFY(entered.isEmpty() && themes.isEmpty() && !QFile::exists(m_directory->filePath("settings.conf")));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    FirstStartGuide *again = opened(start);
    QVERIFY(again);
    const QSignalSpy recordings(&start, &FirstStart::recordingWanted);
    again->findChild<QPushButton *>("recording")->setFocus();
    QTest::keyClick(again->findChild<QPushButton *>("recording"), Qt::Key_Space);
    QCOMPARE(recordings.size(), 1);
    QCOMPARE(themes.size(), 1);
}

void TestFirstStart::asksForWhatTheDataDoNotTell()
{
    FirstStart start(window(), {});
    const QSignalSpy entered(&start, &FirstStart::settingsEntered);
    FirstStartGuide *guide = opened(start);
    goToLivePort(guide, unusedPort());
    press(guide, "next"); // nothing has arrived
    QVERIFY(guide->findChild<QLabel *>("found")->text().startsWith("Nothing was recognised"));
    press(guide, "next");
    QVERIFY(guide->isVisible() && guide->findChild<QLabel *>("problem")->isVisible());
    guide->findChild<QComboBox *>("sensorType")->setCurrentText("Radar");
    press(guide, "next");
    QVERIFY2(guide->isVisible() && entered.isEmpty(), "a radar stands somewhere");
    type(guide->findChild<QLineEdit *>("sensorName"), "NORTH");
    type(guide->findChild<QLineEdit *>("sensorLocation"), "481530N0162000E");
    press(guide, "back");
    press(guide, "next");
    QCOMPARE(guide->findChild<QLineEdit *>("sensorName")->text(), "NORTH");
    press(guide, "next");
    QCOMPARE(entered.size(), 1);
}

// It runs with settings of its own; what the user changes meanwhile is his, unless it is the demonstration's input.
void TestFirstStart::demonstrationLeavesTheSettingsAlone()
{
    m_config->edit([](Config &config) {
        config.inputUdpPort1 = 4000;
        config.sensorName = "HOME";
    });
    FirstStart start(window(), generator());
    QSignalSpy begun(&start, &FirstStart::demoBegun);
    const QSignalSpy ended(&start, &FirstStart::demoEnded);
    press(opened(start), "demo");
    QVERIFY(begun.wait());
    QCOMPARE(m_config->live().sensorName, "SHOW");
    start.setInput(false, false);
    start.onInputOpened();
    QFile pid(m_directory->filePath("pid"));
    QTRY_VERIFY(pid.size() > 0);
    m_config->edit([](Config &config) { config.mapRangeRingNumber = 7; });
    m_config->edit([](Config &config) { config.sensorSac = 99; });
    QVERIFY(m_config->flush());
    Config stored;
    stored.load(m_directory->filePath("settings.conf"));
    QCOMPARE(stored.inputUdpPort1, 4000);
    QCOMPARE(stored.sensorName, "HOME");
    QCOMPARE(stored.mapRangeRingNumber, 7);
    QVERIFY(stored.sensorSac != 99 && stored.mapIndex == Config().mapIndex && !stored.mapRangeRingVisible);

    start.setInput(true, false);
    start.onInputClosed();
    QCOMPARE(ended.size(), 1);
    QCOMPARE(m_config->live().sensorName, "HOME");
    QCOMPARE(m_config->live().mapRangeRingNumber, 7);
    QVERIFY(pid.open(QFile::ReadOnly));
    const pid_t child = pid.readAll().trimmed().toInt();
    QTRY_VERIFY2(kill(child, 0) != 0, "the generator has ended");
}

void TestFirstStart::recordingEndsTheDemonstration()
{
    m_config->edit([](Config &config) { config.sensorName = "HOME"; });
    DemoRun demo(m_config.get(), generator());
    QSignalSpy begun(&demo, &DemoRun::begun);
    demo.begin();
    QVERIFY(begun.wait());
    Config proposed = m_config->live();
    proposed.sensorName = "RECORDED";
    const SettingGroups changed = m_config->setAside(proposed, SettingGroup::Processor | SettingGroup::Sensor);
    QVERIFY(!demo.isActive() && !m_config->onTrial() && changed.testFlag(SettingGroup::Input));
    QCOMPARE(m_config->live().sensorName, "RECORDED");
    m_config->bringBack();
    QCOMPARE(m_config->live().sensorName, "HOME");

    DemoRun missing(m_config.get(), {});
    QSignalSpy refused(&missing, &DemoRun::message);
    missing.begin();
    QVERIFY(refused.wait() && !missing.isActive() && !m_config->onTrial());
}

VYX_TEST(TestFirstStart)
#include "tst_first_start.moc"
