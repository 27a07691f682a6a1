#include "engine/display_snapshot.h"
#include "health/input_health.h"
#include "silence/geo_last_place_map.h"
#include "test_program.h"

#include <QSignalSpy>
#include <QTest>

class TestInputHealth : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void silenceIsSaid();
    void unheardAlertsAreSaid();
};

namespace {

// What the window would show of an input, a snapshot a second; the sensor's period is 4 seconds.
class Scene {
public:
    Scene()
    {
        QObject::connect(&health, &InputHealth::logMessage, &health,
            [this](LogLevel level, const QString &text) { log += QString("%1 %2").arg(int(level)).arg(text); });
        health.beginInput();
        health.setInput("UDP port 1", true, {});
        snapshot.plots.run = 1;
        snapshot.time = QDateTime({2026, 5, 1}, {21, 29, 37}, Qt::UTC);
        health.look(snapshot);
    }

    void wait(int seconds, bool withData = false)
    {
        for (int i = 0; i < seconds; ++i) {
            snapshot.time = snapshot.time.addSecs(1);
            snapshot.messages += withData;
            snapshot.netsHeard = withData ? snapshot.time : snapshot.netsHeard;
            health.look(snapshot);
        }
    }

    GeoLastPlaceMap layer;
    InputHealth health{&layer};
    DisplaySnapshot snapshot;
    QStringList log;
};

} // namespace

void TestInputHealth::silenceIsSaid()
{
    Scene scene;
    const auto &notice = scene.health.notice();
    QSignalSpy changed(&scene.health, &InputHealth::changed);
    scene.wait(7);
    QVERIFY(!notice && changed.isEmpty());
    scene.wait(1);
    QVERIFY(notice && notice->urgency == Urgency::Caution);
    QCOMPARE(notice->headline, QString("NO DATA since 21:29:37"));
    QVERIFY2(notice->text.contains("Nothing has arrived on UDP port 1 yet"), qPrintable(notice->text));
    scene.wait(4);
    QCOMPARE(notice->urgency, Urgency::Alarm);
    QVERIFY(scene.health.netsUnheard().isEmpty()); // nobody has heard of any
    scene.wait(1, true);
    QVERIFY(!notice);
    scene.snapshot.alertStatus[0] = true;
    scene.wait(12);
    QCOMPARE(notice->headline, QString("NO DATA since 21:29:50"));
    QVERIFY2(notice->text.contains("any more"), qPrintable(notice->text));
    QVERIFY2(scene.health.netsUnheard().contains("21:29:50"), qPrintable(scene.health.netsUnheard()));
    scene.health.setInput("UDP port 1", false, {});
    QVERIFY(!notice && scene.health.netsUnheard().isEmpty());
    const QString log = scene.log.join('\n');
    QCOMPARE(log.count("NO DATA since"), 2);
    QVERIFY2(log.contains("Data again from UDP port 1, after 12 s"), qPrintable(log));

    scene.health.beginInput();
    scene.snapshot.plots.run = 2;
    scene.snapshot.recordedTime = true;
    scene.health.setInput("recording a.pcap", true, {});
    scene.wait(40000);
    QCOMPARE(notice->headline, QString("NO DATA since 2026-05-01 21:30:03")); // it is the next day
    QVERIFY2(notice->text.contains("gap in recording a.pcap"), qPrintable(notice->text));
}

void TestInputHealth::unheardAlertsAreSaid()
{
    Scene scene;
    AlertSnapshot alert;
    alert.id = 7;
    alert.type = Alert::STCA;
    alert.track1.text = "DLH1";
    alert.track2Applicable = true;
    alert.track2.text = "AUA2";
    alert.state = Alert::End;
    scene.snapshot.alerts = {alert};
    scene.wait(2, true);
    QVERIFY2(scene.log.isEmpty(), qPrintable(scene.log.join('\n')));
    scene.snapshot.alerts[0].endedUnheard = true;
    scene.wait(2, true);
    QCOMPARE(scene.log.size(), 1);
    QVERIFY2(scene.log[0].contains("STCA of DLH1 and AUA2 has ended only because"), qPrintable(scene.log[0]));
    scene.snapshot.alerts = {};
    scene.wait(1, true);
    scene.snapshot.alerts = {alert};
    scene.snapshot.alerts[0].endedUnheard = true;
    scene.wait(1, true);
    QCOMPARE(scene.log.size(), 2);
}

VYX_TEST(TestInputHealth)
#include "tst_input_health.moc"
