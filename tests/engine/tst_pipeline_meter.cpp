#include "engine/pipeline_meter.h"
#include "test_program.h"

#include <QTest>

class TestPipelineMeter final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ratesAreOfTheirWindowAlone()
    {
        PipelineMeter meter;
        QVERIFY(!meter.takeStats(0, 0, 0)); // the first window begins
        QVERIFY(!meter.takeStats(9999, 0, 0));
        for (int window = 1; window <= 2; ++window) {
            for (int i = 0; i < 100 * window; ++i) {
                meter.countMessage(1024);
                meter.countRadial();
            }
            meter.countSnapshot(3 * window);
            meter.countSnapshot(8 * window);
            const auto stats = meter.takeStats(12500LL * window, 41, 2);
            QCOMPARE(stats->generationAverageMs, 11 * window / 2);
            QCOMPARE(stats->generationMaximumMs, 8 * window);
            QCOMPARE(stats->inputPacketsPerSecond, 8.0 * window);
            QCOMPARE(stats->inputKilobytesPerSecond, 8.0 * window);
            QCOMPARE(stats->videoRadialsPerSecond, 8.0 * window);
        }
        QVERIFY(!meter.takeStats(34999, 0, 0)); // ten seconds from the last, late ones
        QCOMPARE(meter.takeStats(40000, 0, 0)->generationAverageMs, 0); // nothing to divide by
    }

    void newInputStartsAtZeroWithinTheWindow()
    {
        PipelineMeter meter;
        meter.takeStats(0, 0, 0);
        meter.countMessage(10);
        meter.countWeatherPicture(1000, 7);
        QVERIFY(!meter.takeStats(10000, 0, 0)->weatherIntervalValid); // that takes two pictures
        meter.countWeatherPicture(13500, 9);
        QCOMPARE(meter.takeStats(20000, 0, 0)->weatherSecondsPerPicture, 12.5);
        meter.reset();
        meter.countMessage(1024);
        meter.countWeatherPicture(21000, 1);
        const auto after = meter.takeStats(30000, 0, 0); // the window's clock has gone on
        QCOMPARE(after->inputPacketsPerSecond, 0.1);
        QVERIFY(!after->weatherIntervalValid); // not the time between two sensors' pictures
    }
};

VYX_TEST(TestPipelineMeter)
#include "tst_pipeline_meter.moc"
