#include "engine_rig.h"
#include "test_program.h"

#include <QTest>

// The three slots and their timers.
class TestDataEnginePublish final : public QObject {
    Q_OBJECT

private:
    static VideoProcessor::Radial radial(double time)
    {
        VideoProcessor::Radial result;
        result.timeOfDay = time;
        return result;
    }

private Q_SLOTS:
    void snapshotsComeAtOnceAndThenEvery200Ms()
    {
        EngineRig rig;
        QCOMPARE(rig.displaySlot.read().counter, 1ULL);
        QVERIFY(rig.displaySlot.read().value->tracks.isEmpty());
        QSignalSpy stats(&rig.engine, &DataEngine::pipelineStats);
        QTRY_COMPARE_WITH_TIMEOUT(rig.displaySlot.read().counter, 3ULL, 2000);
        QCOMPARE(rig.videoSlot.read().counter, 0ULL); // no video, no batch
        QCOMPARE(stats.size(), 0); // not before the first window is over
        QCOMPARE(rig.weatherSlot.read().counter, 0ULL);
        rig.engine.publishWeatherPicture({86399.5, {{3, 10.0, 12.5, 270.0}}});
        QCOMPARE(rig.weatherSlot.read().value->timeOfDay, 86399.5);
    }

    void videoIsBatched()
    {
        EngineRig rig;
        for (const double time : {10.5, 9.0, 11.25}) {
            rig.engine.accumulateVideoRadial(radial(time));
        }
        rig.engine.publishVideoBatch();
        const auto first = rig.videoSlot.read();
        QCOMPARE(first.counter, 1ULL);
        QCOMPARE(first.value->radials.size(), 3);
        QCOMPARE(first.value->radials[1].timeOfDay, 9.0);
        QCOMPARE(first.value->firstTime, 10.5);
        QCOMPARE(first.value->lastTime, 11.25);
        rig.engine.accumulateVideoRadial(radial(-1.0));
        QTRY_COMPARE(rig.videoSlot.read().counter, 2ULL); // by the timer
        QCOMPARE(rig.videoSlot.read().value->radials.size(), 1);
        QCOMPARE(first.value->radials.size(), 3);
    }
};

VYX_TEST(TestDataEnginePublish)
#include "tst_data_engine_publish.moc"
