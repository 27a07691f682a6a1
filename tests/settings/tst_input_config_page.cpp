#include "encoded_report.h"
#include "input_probe/device_watch.h"
#include "settings/config_window.h"
#include "settings/input_config_page.h"
#include "settings/udp_input_fields.h"
#include "test_program.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>
#include <QUdpSocket>

// What the page says of the input before it is set, and what it offers.
class TestInputConfigPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void whatWasFoundFillsTheOtherPages();
    void whatIsGoneStaysChosen();
};

void TestInputConfigPage::whatWasFoundFillsTheOtherPages()
{
    QUdpSocket search;
    QVERIFY(search.bind(QHostAddress::AnyIPv4, 0));
    Config config;
    config.inputUdpMulticast1 = false;
    config.inputUdpPort1 = search.localPort();
    config.processorType = Config::ProcessorType::ModeS;
    search.close();
    ConfigWindow window(config, nullptr);
    const QSignalSpy applied(&window, &ConfigWindow::configApplied);
    auto *page = window.findChild<InputConfigPage *>();
    auto *use = window.findChild<QPushButton *>("useFound");
    window.show();
    QVERIFY2(page->found().state == ProbeResult::State::Idle, "nobody looks at the page");
    window.findChild<QListWidget *>()->setCurrentRow(static_cast<int>(window.pages().indexOf(page)));
    QUdpSocket radar;
    for (int waited = 0; waited < 6000 && !use->isEnabled(); waited += 50) {
        radar.writeDatagram(encodedReport(48, "040/RHO=50 040/THETA=90 020/TYP=5 161/TRN=7"),
            QHostAddress(QHostAddress::LocalHost), config.inputUdpPort1);
        QTest::qWait(50);
    }
    QVERIFY(window.findChild<QLabel *>("probeSentence")->text().startsWith("CAT048 from 25/0"));
    QTest::mouseClick(use, Qt::LeftButton);
    QVERIFY2(applied.isEmpty() && !page->isVisible(), "it is seen before it is applied");
    QVERIFY2(page->found().state == ProbeResult::State::Idle, "nobody looks at the page any more");
    QTest::keyClicks(window.findChild<QLineEdit *>("sensorLocation"), "481530N0162000E");
    QVERIFY(window.apply());
    QVERIFY(window.config().processorType == Config::ProcessorType::Asterix);
    QVERIFY(window.config().sensorType == RadarSensor && window.config().sensorSac == 25);

    window.setInputRunning(true);
    QVERIFY2(!use->isEnabled(), "these pages are locked now");
}

void TestInputConfigPage::whatIsGoneStaysChosen()
{
    Config config;
    config.inputUdpMcastLanInterface1 = QNetworkInterface::interfaceFromName("lo");
    InputConfigPage page(nullptr);
    page.load(config);
    auto *fields = page.findChild<UdpInputFields *>();
    const auto *box = page.findChild<QComboBox *>("inputUdpMcastLanInterface1");
    fields->setInterfaces({});
    QCOMPARE(box->currentText(), "lo (not there)");
    Config stored;
    page.store(&stored);
    QCOMPARE(stored.inputUdpMcastLanInterface1.name(), "lo");

    config.inputUdpMcastLanInterface1 = LanInterface("usb7"); // not there when the settings were read
    page.load(config);
    QCOMPARE(box->currentText(), "usb7 (not there)");
    page.store(&stored);
    QCOMPARE(stored.inputUdpMcastLanInterface1.name(), "usb7");
    config.inputUdpMcastLanInterface1 = LanInterface("lo");
    page.load(config);
    fields->setInterfaces(QNetworkInterface::allInterfaces());
    QVERIFY2(box->currentText().startsWith("lo (127."), qPrintable(box->currentText()));

    DeviceWatch watch;
    DeviceWatch::Devices devices{{}, {"ttyUSB0"}};
    watch.setSource([&devices] { return devices; });
    QSignalSpy changes(&watch, &DeviceWatch::changed);
    watch.start();
    QVERIFY(changes.wait());
    devices.serialPorts.clear();
    watch.start(); // looks at once
    QVERIFY(changes.wait());
    QCOMPARE(changes.size(), 2);
}

VYX_TEST(TestInputConfigPage)
#include "tst_input_config_page.moc"
