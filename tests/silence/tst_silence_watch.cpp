#include "engine/display_snapshot.h"
#include "sensors/adsb_sensor_info.h"
#include "sensors/radar_sensor_info.h"
#include "sensors/sdps_sensor_info.h"
#include "silence/silence_watch.h"
#include "test_program.h"

#include <QTest>

class TestSilenceWatch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void levels_data();
    void levels();
    void periods();
    void anotherInput();
};

namespace {

// A watch and the snapshots that it sees, half a second apart; the sensor turns once in two seconds.
class Scene {
public:
    Scene()
    {
        RadarSensorInfo radar;
        radar.setRotationPeriod(2.0);
        watch.setSensor(&radar);
        watch.setExpecting(true);
        snapshot.time = QDateTime::fromSecsSinceEpoch(1000, Qt::UTC);
        snapshot.plots.run = 1;
        watch.look(snapshot);
    }

    // One letter each half second: "." nothing, "m" a message, "|" pause, "-" paused, ">" goes on after a minute, "<"
    // a recording begins anew. Gives the level after each: H, O, S.
    QString play(const QString &halves)
    {
        QString levels;
        for (const QChar what : halves) {
            const bool paused = what == u'|' || what == u'-';
            watch.setExpecting(!paused);
            const qint64 step = what == u'>' ? 60000 : paused ? 0 : 500;
            snapshot.time = snapshot.time.addMSecs(what == u'<' ? -100000 : step);
            snapshot.plots.run += what == u'<';
            snapshot.messages += what == u'm';
            const auto before = watch.level();
            const bool changed = watch.look(snapshot);
            levels += QStringLiteral("HOS")[static_cast<int>(watch.level())];
            consistent &= changed == (before != watch.level());
        }
        return levels;
    }

    SilenceWatch watch;
    DisplaySnapshot snapshot;
    bool consistent = true;
};

} // namespace

void TestSilenceWatch::levels_data()
{
    QTest::addColumn<QString>("halves");
    QTest::addColumn<QString>("expected");
    QTest::newRow("two, then three periods") << "m............m"
                                             << "HHHHHHHHOOOOSH";
    QTest::newRow("never anything") << "............"
                                    << "HHHHHHHOOOOS";
    QTest::newRow("just in time") << "m.......m.......m"
                                  << "HHHHHHHHHHHHHHHHH";
    QTest::newRow("paused") << "m......|-------->......."
                            << "HHHHHHHHHHHHHHHHHHHHHHHH";
    QTest::newRow("silent after a pause") << "m|-->........"
                                          << "HHHHHHHHHHHHO";
    QTest::newRow("pause of a silent input") << "m........|->m"
                                             << "HHHHHHHHOHHHH";
    QTest::newRow("a recording begins anew") << "m..........<......."
                                             << "HHHHHHHHOOOHHHHHHHH";
}

void TestSilenceWatch::levels()
{
    QFETCH(QString, halves);
    Scene scene;
    QTEST(scene.play(halves), "expected");
    QVERIFY(scene.consistent);
    QCOMPARE(scene.watch.everHeard(), halves.contains('m'));
}

void TestSilenceWatch::periods()
{
    SilenceWatch watch;
    QCOMPARE(watch.period(), SilenceWatch::AssumedPeriod);
    AdsbSensorInfo adsb;
    SdpsSensorInfo sdps;
    for (const auto &[interval, ofAdsb, ofSdps] :
        QList<std::tuple<double, double, double>>{{0.0, 4.0, 4.0}, {0.5, 1.0, 4.0}, {1.0, 1.0, 4.0}, {5.0, 5.0, 5.0}}) {
        adsb.setUpdateInterval(interval);
        watch.setSensor(&adsb);
        QCOMPARE(watch.period(), ofAdsb);
        sdps.setUpdateInterval(interval);
        watch.setSensor(&sdps);
        QCOMPARE(watch.period(), ofSdps);
    }
    watch.setMeasuredPeriod(4.5); // shorter than what is configured: one turn may have been missed
    QCOMPARE(watch.period(), 5.0);
    watch.setMeasuredPeriod(12.0);
    QCOMPARE(watch.period(), 12.0);
    watch.beginInput();
    QCOMPARE(watch.period(), 5.0);
}

void TestSilenceWatch::anotherInput()
{
    Scene scene;
    scene.play("m....");
    scene.watch.beginInput();
    scene.play("............"); // these are the old input's
    QCOMPARE(scene.watch.level(), SilenceWatch::Level::Heard);
    ++scene.snapshot.plots.run;
    scene.snapshot.messages = 0;
    QCOMPARE(scene.play("........."), QString("HHHHHHHHO"));
    QVERIFY(!scene.watch.everHeard());
    QCOMPARE(scene.watch.since(), scene.snapshot.time.addMSecs(-scene.watch.silentMs()));
    scene.watch.setExpecting(false); // closed
    QCOMPARE(scene.watch.level(), SilenceWatch::Level::Heard);
}

VYX_TEST(TestSilenceWatch)
#include "tst_silence_watch.moc"
