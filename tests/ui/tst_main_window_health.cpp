#include "window_fixture.h"

#include "engine/data_engine.h"
#include "health/health_dock.h"
#include "health/health_lamp.h"
#include "health/health_pane.h"
#include "test_program.h"

class TestMainWindowHealth : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anotherSourceIsToldAndCured();
};

void TestMainWindowHealth::anotherSourceIsToldAndCured()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow([](Config &config) { config.processorAsterixVerifySacSic = true; });
    QVERIFY(fixture.openInput(*window));
    const auto *dock = window->findChild<HealthDock *>();
    QVERIFY(dock->isHidden());
    window->findChild<HealthLamp *>()->click();
    QVERIFY(dock->isVisible());

    QUdpSocket radar; // a plot of SAC 9, SIC 9
    radar.writeDatagram(
        QByteArray::fromHex("30000e f0 0909 000000 40 1e00 0000"), QHostAddress::LocalHost, fixture.port);
    const auto look = [&window] {
        QMetaObject::invokeMethod(
            window->engineHost().engine(), &DataEngine::publishStatistics, Qt::BlockingQueuedConnection);
        window->pullSlots();
        return window->engineHost().shared().statistics.read().value;
    };
    auto *pane = window->findChild<HealthPane *>();
    const auto *model = pane->findChild<SourceTableModel *>();
    QTRY_VERIFY((look(), model->rowCount() == 1));
    QCOMPARE(model->source(0).judgement.whyNotUsed, QString("This source is 9/9, the sensor is set to 1/2."));

    Q_EMIT pane->cureRequested(model->source(0));
    QVERIFY(window->config().sensorSac == 9 && window->config().sensorSic == 9);
    QTRY_COMPARE(look()->requestId, 2u); // opened anew
    QTRY_VERIFY(window->inputOpen());
    QVERIFY(fixture.close(*window));
}

VYX_TEST(TestMainWindowHealth)
#include "tst_main_window_health.moc"
