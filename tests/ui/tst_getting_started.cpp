#include "window_fixture.h"

#include "first_start/first_start_guide.h"
#include "plan_view/geo_widget.h"
#include "settings/input_config_page.h"
#include "test_program.h"
#include "ui/actions.h"
#include "ui/input_session.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QLineF>
#include <QPushButton>
#include <QSpinBox>

// From an empty window to a running input.
class TestGettingStarted : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leadsToARunningInput();
    void theDemonstrationLeavesNothingBehind();
};

namespace {

constexpr int RecognitionMs = 6000;

FirstStartGuide *guideOf(MainWindow &window)
{
    action(window, ActionId::GettingStarted)->trigger();
    return window.findChild<FirstStartGuide *>();
}

void click(const QDialog *guide, const QString &button)
{
    QTest::mouseClick(guide->findChild<QPushButton *>(button), Qt::LeftButton);
}

// One CAT048 report of SAC/SIC 25/10 at 10 NM.
QByteArray trackReport()
{
    return QByteArray::fromHex("30000d 9110 190a 0a00 0000 0007");
}

} // namespace

void TestGettingStarted::leadsToARunningInput()
{
    WindowFixture fixture;
    QVERIFY(QFile::remove(AppPaths::configFile()));
    const auto window = fixture.makeWindow();
    FirstStartGuide *guide = guideOf(*window);
    QVERIFY(guide && guide->isVisible());
    click(guide, "live");
    guide->findChild<QCheckBox *>("inputUdpMulticast1")->setChecked(false);
    // The fixture's own socket would have it refused.
    QUdpSocket search;
    QVERIFY(search.bind(QHostAddress::AnyIPv4, 0));
    const quint16 port = search.localPort();
    search.close();
    guide->findChild<QSpinBox *>("inputUdpPort1")->setValue(port);
    const auto *page = guide->findChild<InputConfigPage *>();
    QUdpSocket radar;
    for (int waited = 0; waited < RecognitionMs && !page->found().isRecognised(); waited += 50) {
        radar.writeDatagram(trackReport(), QHostAddress(QHostAddress::LocalHost), port);
        QTest::qWait(50);
    }
    click(guide, "next");
    QTest::keyClicks(guide->findChild<QLineEdit *>("sensorLocation"), "481530N0162000E");
    click(guide, "next");
    QTRY_VERIFY(window->inputOpen());
    QCOMPARE(window->config().sensorSac, 25);
    Config stored;
    stored.load(AppPaths::configFile());
    QCOMPARE(stored.displayTheme, "Night");
    QCOMPARE(stored.mapBackgroundColor, window->config().mapBackgroundColor);
    QVERIFY(stored.inputUdpPort1 == port && stored.sensorSic == 10 && stored.sensorType == RadarSensor);
    const GeoWidget *plan = window->geoWidget();
    const QPointF place = window->engineHost().shared().projector.toCartesian(stored.sensorLocation);
    QVERIFY(QLineF(plan->screenTransform().map(place), QRectF(plan->rect()).center()).length() < 2.0);
    radar.writeDatagram(trackReport(), QHostAddress(QHostAddress::LocalHost), port);
    QTRY_VERIFY((window->pullSlots(), !window->newestSnapshot()->tracks.isEmpty()));

    // Called again while it runs, it tells what the input brings and takes the fields as they are.
    QTRY_VERIFY(!window->findChild<FirstStartGuide *>());
    guide = guideOf(*window);
    QCOMPARE(guide->findChild<QComboBox *>("theme")->currentText(), "Night");
    click(guide, "live");
    QVERIFY(!guide->findChild<QSpinBox *>("inputUdpPort1")->isEnabled());
    QTRY_VERIFY(guide->findChild<InputConfigPage *>()->found().ofRunningInput);
    click(guide, "next");
    auto *name = guide->findChild<QLineEdit *>("sensorName");
    name->setText("NORTH");
    click(guide, "next");
    QTRY_VERIFY(window->inputOpen() && window->config().sensorName == "NORTH");
    QVERIFY(WindowFixture::close(*window));
}

void TestGettingStarted::theDemonstrationLeavesNothingBehind()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    click(guideOf(*window), "demo");
    const auto tracks = [&window] {
        window->pullSlots();
        return window->newestSnapshot() ? window->newestSnapshot()->tracks.size() : 0;
    };
    QTRY_VERIFY_WITH_TIMEOUT(tracks() > 0, 20000);
    window->closeInput();
    QTRY_COMPARE(tracks(), 0);
    QVERIFY(window->session().notice().startsWith("No input is running."));
    QVERIFY(WindowFixture::close(*window));
}

VYX_TEST(TestGettingStarted)
#include "tst_getting_started.moc"
