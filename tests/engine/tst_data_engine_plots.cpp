#include "engine_rig.h"

#include "test_program.h"
#include "written_capture.h"

#include <QTemporaryDir>
#include <QTest>

// The plots in the snapshots: those of every report, for who takes each snapshot and for who misses some.
class TestDataEnginePlots final : public QObject {
    Q_OBJECT

private:
    static constexpr quint8 NoNumber = 0;

    static QList<qint64> times(const PlotHistory &history)
    {
        QList<qint64> result;
        for (const auto &batch : history.batches) {
            for (const Plot &plot : batch->plots) {
                result += plot.timeMs;
            }
        }
        return result;
    }

private Q_SLOTS:
    void everyReportIsThereWhicheverSnapshotIsTaken()
    {
        EngineRig rig;
        rig.config.processorAsterixVerifySacSic = true;
        rig.open();
        QList<qint64> sent;
        for (int i = 0; i < 50; ++i) {
            rig.nowMs += 200;
            const quint8 number = i % 3 == 0 ? 7 : NoNumber;
            rig.engine.procMessage(plotBlock(number, static_cast<quint16>(i * 1000)));
            rig.engine.procMessage(plotBlock(number, 0, 11)); // of another radar
            sent += rig.nowMs;
            rig.engine.publishSnapshot(); // nobody looks
        }
        const auto snapshot = rig.displaySlot.read().value;
        QCOMPARE(times(snapshot->plots), sent);
        QCOMPARE(snapshot->plots.count, 50ULL);
        QCOMPARE(snapshot->plots.batches[49]->first, 49ULL);
        QCOMPARE(snapshot->tracks.size(), 1);
        QCOMPARE(snapshot->time.toMSecsSinceEpoch(), sent.last());
        rig.engine.closeInput();
        QCOMPARE(rig.snapshot()->plots.count, 50ULL); // the last picture stays
        const quint64 run = snapshot->plots.run;
        rig.open(2);
        QVERIFY(rig.snapshot()->plots.run != run && rig.snapshot()->plots.batches.isEmpty());
    }

    void aRecordingsJumpLeavesNone()
    {
        const QTemporaryDir dir;
        const QByteArray plot = plotBlock(NoNumber);
        const QString path = writtenCapture(dir.filePath("plots.pcap"), {{0, plot}, {1000, plot}, {2000, plot}});
        EngineRig rig;
        rig.engine.setReplaySpeed(ReplaySpeed::Max);
        rig.openRecording(path);
        QTRY_COMPARE(rig.closed.size(), 1);
        const qint64 beginMs = captureBegin().toMSecsSinceEpoch();
        const PlotHistory played = rig.snapshot()->plots;
        QCOMPARE(times(played), QList<qint64>({beginMs, beginMs + 1000, beginMs + 2000}));

        rig.config.inputFileAutoRewind = true;
        rig.open(2);
        QTRY_VERIFY(rig.log.count("I Reach end of recording file, restarting replay.") >= 2);
        const auto again = rig.snapshot();
        QVERIFY(again->plots.run > played.run + 1);
        QVERIFY(again->plots.count <= 3);
        rig.engine.closeInput();
    }
};

VYX_TEST(TestDataEnginePlots)
#include "tst_data_engine_plots.moc"
