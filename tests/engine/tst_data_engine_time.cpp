#include "engine_rig.h"

#include "test_files.h"
#include "test_program.h"
#include "written_capture.h"

#include <QTemporaryDir>
#include <QTest>

// Which time it is in the picture, and what ages by it.
class TestDataEngineTime final : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    using Message = std::pair<qint64, QByteArray>; // milliseconds after the beginning

    QString capture(const QList<Message> &messages) { return writtenCapture(m_dir.filePath("time.pcap"), messages); }

    // A radar that turns once a second: tracks coast after 1.25 s and end after 3 s.
    void open(EngineRig &rig, const QString &path, const QDateTime &start = {})
    {
        rig.openRecording(path, start, EngineRig::radar(1.0));
    }

    // "place state" of each track; coasting is state 2.
    static QStringList described(const QList<TrackSnapshot> &tracks)
    {
        QStringList texts;
        for (const TrackSnapshot &track : tracks) {
            texts += QStringLiteral("%1 %2").arg(qRound(track.carCoordinate.x())).arg(static_cast<int>(track.state));
        }
        texts.sort();
        return texts;
    }

private Q_SLOTS:
    // Six seconds of traffic in which aircraft come, fall silent and go.
    void aRecordingEndsWithTheSameTracksHoweverItIsPlayed()
    {
        QList<Message> messages;
        for (int turn = 0; turn < 12; ++turn) {
            for (int number = 1; number <= 24; ++number) {
                if (turn <= number) {
                    messages += {turn * 500 + number * 20, plotBlock(quint8(number), quint16(number * 2000))};
                }
            }
        }
        const QString path = capture(messages);
        const std::tuple<ReplaySpeed::Speed, int> plays[]{
            {ReplaySpeed::Max, 0}, {ReplaySpeed::Octuple, 0}, {ReplaySpeed::Max, 2000}, {ReplaySpeed::Octuple, 2000}};
        QStringList first;
        for (const auto &[speed, start] : plays) {
            EngineRig rig;
            rig.engine.setReplaySpeed(speed);
            open(rig, path, start > 0 ? captureBegin().addMSecs(start) : QDateTime());
            QTRY_COMPARE(rig.closed.size(), 1);
            const QStringList tracks = described(rig.tracks());
            first = first.isEmpty() ? tracks : first;
            QVERIFY(tracks.filter(" 2").size() >= 2); // that coast
            QCOMPARE(tracks.size(), 21);
            QCOMPARE(tracks, first);
            QCOMPARE(rig.snapshot()->time, captureBegin().addMSecs(messages.last().first));
            QVERIFY(rig.snapshot()->recordedTime);
        }
    }

    void theRecordingsTimeRunsAtTheReplaysSpeedAndStandsWhilePaused()
    {
        EngineRig rig;
        rig.engine.setReplaySpeed(ReplaySpeed::Octuple);
        open(rig, capture({{0, plotBlock(1)}, {3'600'000, plotBlock(2, 500)}}));
        QTRY_COMPARE(rig.tracks().size(), 1);
        QTRY_VERIFY(rig.snapshot()->time >= captureBegin().addMSecs(800)); // after a tenth of a second
        rig.engine.pauseInput(true);
        const QDateTime paused = rig.snapshot()->time;
        QTest::qWait(50);
        QCOMPARE(rig.snapshot()->time, paused);
        rig.engine.pauseInput(false);
        QTRY_COMPARE(rig.tracks().size(), 0); // at 3 s
        QVERIFY(rig.snapshot()->time < captureBegin().addMSecs(60'000));
    }

    void alertsCarryTheDaysTimes()
    {
        EngineRig rig;
        rig.engine.setReplaySpeed(ReplaySpeed::Max);
        const QByteArray conflict = QByteArray::fromHex("04000d 498140 07 004d 0065 0066");
        open(rig, capture({{0, plotBlock(101) + plotBlock(102)}, {500, conflict}, {9500, plotBlock(101)}}));
        QTRY_COMPARE(rig.closed.size(), 1);
        const auto alerts = rig.snapshot()->alerts;
        QCOMPARE(alerts.size(), 1);
        QCOMPARE(alerts.first().startTime, captureBegin().addMSecs(500));
        QCOMPARE(alerts.first().endTime, captureBegin().addMSecs(9000)); // without a refresh for 8 s
    }

    // Nobody can tell an aircraft that is gone from a picture that is not kept up.
    void thePictureStandsStillWithALiveInput()
    {
        EngineRig rig;
        rig.open();
        rig.engine.procMessage(plotBlock(1));
        const QDateTime opened = rig.snapshot()->time;
        QCOMPARE(opened.toMSecsSinceEpoch(), rig.nowMs);
        QVERIFY(!rig.snapshot()->recordedTime);
        rig.engine.pauseInput(true);
        rig.nowMs += 60'000;
        QCOMPARE(rig.snapshot()->time, opened);
        rig.engine.pauseInput(false);
        QCOMPARE(rig.snapshot()->time, opened.addMSecs(60'000)); // what has been missed has aged
        rig.engine.closeInput();
        rig.nowMs += 60'000;
        rig.engine.pauseInput(false); // of nothing
        QCOMPARE(rig.snapshot()->time, opened.addMSecs(60'000));
        rig.open(2);
        QCOMPARE(rig.snapshot()->time, opened.addMSecs(120'000));
    }

    // Blocks without an envelope are stamped by who sends them, here by two radars whose clocks are two seconds apart.
    // Waiting from one's time to the other's again and again would take fifty times as long.
    void sourcesInDisorderDoNotSlowDownARawRecording()
    {
        QByteArray octets;
        for (int turn = 0; turn < 100; ++turn) {
            const int time = 43200 * 128 + turn + (turn % 2) * 256; // 1/128 s
            octets += QByteArray::fromHex("300009 c0 190a");
            for (const int shift : {16, 8, 0}) {
                octets += static_cast<char>(time >> shift);
            }
        }
        EngineRig rig;
        rig.engine.setReplaySpeed(ReplaySpeed::Octuple);
        open(rig, writtenTo(m_dir.filePath("two.ast"), octets));
        QTRY_COMPARE_WITH_TIMEOUT(rig.closed.size(), 1, 4000); // takes 0.4 s
        QCOMPARE(rig.engine.messagesReceived(), 100ULL);
    }
};

VYX_TEST(TestDataEngineTime)
#include "tst_data_engine_time.moc"
