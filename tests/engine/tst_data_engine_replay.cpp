#include "engine_rig.h"

#include "test_files.h"
#include "test_program.h"
#include "written_capture.h"

#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

// Playing recordings. Times in a recording are milliseconds after its beginning.
class TestDataEngineReplay final : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    // A capture with plot i+1 (and so track i+1) at the i-th time.
    QString capture(const QList<int> &times)
    {
        QList<std::pair<qint64, QByteArray>> plots;
        for (const int time : times) {
            plots.append({time, plotBlock(static_cast<quint8>(plots.size() + 1))});
        }
        return writtenCapture(m_dir.filePath("times.pcap"), plots);
    }

    QString file(const QString &name, const QByteArray &octets) { return writtenTo(m_dir.filePath(name), octets); }

private Q_SLOTS:
    void delayFollowsTheSpeed()
    {
        const QList<QList<qint64>> delays{{2000, 1000, 500, 250, 125, 0}, {14, 7, 3, 1, 0, 0}, {0, 0, 0, 0, 0, 0},
            {5356800000, 2678400000, 1339200000, 669600000, 334800000, 0}}; // at 0.5x, 1x, 2x, 4x, 8x, Max
        const QList<qint64> recorded{1000, 7, -1000, 2678400000}; // the last one a month
        for (qsizetype i = 0; i < recorded.size(); ++i) {
            QList<qint64> seen;
            for (const ReplaySpeed::Speed speed : ReplaySpeed::values()) {
                seen += ReplaySpeed::delay(recorded[i], speed);
            }
            QCOMPARE(seen, delays[i]);
        }
    }

    void playsEveryPacketAndCloses()
    {
        EngineRig rig;
        rig.engine.setReplaySpeed(ReplaySpeed::Max);
        QSignalSpy progress(&rig.engine, &DataEngine::replayProgress);
        const QString path = capture({0, 3600000, 7200000});
        rig.openRecording(path);
        QCOMPARE(rig.opened.size(), 1);
        QCOMPARE(rig.log, QStringList({"I Open recording file: " + path, "I Replay start from 2024-05-01 12:00:00"}));
        QTRY_COMPARE(rig.closed.size(), 1);
        QCOMPARE(rig.log.last(), QStringLiteral("I Reach end of recording file."));
        QCOMPARE(rig.tracks().size(), 1); // an hour apart: the first two are long gone when the third comes
        QCOMPARE(rig.engine.messagesReceived(), 3ULL);
        QCOMPARE(progress, QList<QVariantList>({{captureBegin()}})); // the other two came within 200 ms
    }

    void pauseHoldsThePosition()
    {
        EngineRig rig;
        rig.engine.setReplaySpeed(ReplaySpeed::Max);
        rig.openRecording(capture({0, 1, 2}));
        rig.engine.pauseInput(true);
        EngineRig::turnEventLoop();
        QCOMPARE(rig.tracks().size(), 0);
        rig.engine.pauseInput(false);
        QTRY_COMPARE(rig.closed.size(), 1);
        QCOMPARE(rig.tracks().size(), 3);
    }

    void startTimeIsSought_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<QStringList>("log"); // after the line that names the file
        QTest::addColumn<int>("played");
        const QStringList seeking = {"I Replay start time: 2024-05-01 12:00:0%1", "I Seeking replay start time."};
        const auto row = [&](const char *tag, int start, const QStringList &log, int played) {
            QTest::newRow(tag) << start << seeking + log + QStringList("I Reach end of recording file.") << played;
        };
        row("on a packet", 2000, {"I Replay start from 2024-05-01 12:00:02"}, 2);
        row("between two packets", 2001, {"I Replay start from 2024-05-01 12:00:04"}, 1);
        row("before the first", -3600000, {"I Replay start from 2024-05-01 12:00:00"}, 3);
        row("after the last", 9000, {}, 0);
    }

    void startTimeIsSought()
    {
        QFETCH(int, start);
        QFETCH(QStringList, log);
        EngineRig rig;
        rig.engine.setReplaySpeed(ReplaySpeed::Max);
        rig.openRecording(capture({0, 2000, 4000}), captureBegin().addMSecs(start));
        log.first() =
            start < 0 ? QStringLiteral("I Replay start time: 2024-05-01 11:00:00") : log.first().arg(start / 1000);
        QTRY_COMPARE(rig.closed.size(), 1);
        QCOMPARE(rig.log.mid(1), log);
        QTEST(int(rig.tracks().size()), "played");
    }

    void autoRewindStartsAgainAtTheStartTime()
    {
        EngineRig rig;
        rig.config.inputFileAutoRewind = true;
        rig.engine.setReplaySpeed(ReplaySpeed::Max);
        rig.openRecording(capture({0, 1, 2}), captureBegin().addMSecs(1));
        QTRY_VERIFY(rig.log.count("I Reach end of recording file, restarting replay.") >= 3);
        QVERIFY(rig.engine.messagesReceived() >= 6);
        // The first packet stays out every time, and what the run before has left is gone.
        const auto picture = rig.snapshot();
        QVERIFY(picture->tracks.size() <= 2);
        for (const TrackSnapshot &track : picture->tracks) {
            QVERIFY(track.lastUpdate <= picture->time);
            QVERIFY(track.trackNumber <= 2);
        }
        rig.engine.closeInput();
        QCOMPARE(rig.closed.size(), 1);
        const quint64 played = rig.engine.messagesReceived();
        EngineRig::turnEventLoop();
        QCOMPARE(rig.engine.messagesReceived(), played);
    }

    void nothingToRepeatEndsTheReplay()
    {
        for (const QList<int> &times : {QList<int>{}, QList<int>{0, 1}}) { // all before the start time
            EngineRig rig;
            rig.config.inputFileAutoRewind = true;
            rig.openRecording(capture(times), captureBegin().addMSecs(5000));
            QTRY_COMPARE(rig.closed.size(), 1);
            QCOMPARE(rig.log.last(), QStringLiteral("W Recording file contains no replayable data."));
            QCOMPARE(rig.engine.messagesReceived(), 0ULL);
        }
    }

    // In their recorded time, the third packet, stamped before the second, at once. A chain of timers that outlived its
    // input would play the next one faster.
    void packetsComeInTheirTimeHoweverOftenReopened()
    {
        EngineRig rig;
        for (int i = 0; i < 4; ++i) {
            rig.engine.closeInput();
            rig.openRecording(capture({0, 50, 30, 130}));
        }
        QElapsedTimer timer;
        timer.start();
        QTRY_COMPARE(rig.tracks().size(), 3);
        QVERIFY(timer.elapsed() >= 49);
        QTRY_COMPARE(rig.closed.size(), 4);
        QVERIFY(timer.elapsed() >= 149);
        QCOMPARE(rig.engine.messagesReceived(), 4ULL);
    }

    void whatCannotBePlayedFails()
    {
        file("text.pcap", "this is no capture");
        file("short.ast", "\x30");
        file("raw.ast", plotBlock(1));
        QCOMPARE(::mkfifo(QFile::encodeName(m_dir.filePath("pipe.pcap")).constData(), 0600), 0);
        const std::tuple<QString, QDateTime, QString> rows[]{{"a.txt", {}, "C Recording file format is not supported."},
            {"none.ast", {}, "W Failed to open recording file: " + m_dir.filePath("none.ast")},
            {"pipe.pcap", {}, "W " + m_dir.filePath("pipe.pcap") + " is no file."},
            {"text.pcap", {}, "W Failed to open recording file: " + m_dir.filePath("text.pcap")},
            {"short.ast", {}, "W The file ends within a data block's header. (at octet 0)"},
            {"raw.ast", captureBegin(), "W The recording contains no timestamp, its start time cannot be sought."}};
        for (const auto &[name, start, line] : rows) {
            EngineRig rig;
            rig.openRecording(m_dir.filePath(name), start);
            QCOMPARE(rig.failed.size(), 1);
            QVERIFY2(rig.log.contains(line), qPrintable(rig.log.join('\n')));
            QCOMPARE(rig.faults.size(), 1);
            QVERIFY(rig.log.contains("W " + rig.faults.first().at(1).toString()));
            rig.engine.closeInput();
            QCOMPARE(rig.opened.size() + rig.closed.size(), 0);
        }
    }

    void theContentsTellWhatIsPlayed()
    {
        const QString path = capture({0, 10, 20});
        for (const char *name : {"day", "day.ast", "day.txt"}) {
            EngineRig rig;
            rig.engine.setReplaySpeed(ReplaySpeed::Max);
            QVERIFY(QFile::copy(path, m_dir.filePath(name)));
            rig.openRecording(m_dir.filePath(name));
            QTRY_COMPARE(rig.closed.size(), 1);
            QCOMPARE(rig.tracks().size(), 3);
        }
    }

    void rawRecordingsPlayWithoutTimesUpToAFault()
    {
        EngineRig rig;
        rig.openRecording(
            file("fault.ast", plotBlock(1) + northMarkerBlock() + QByteArray::fromHex("300002") + plotBlock(2)));
        QTRY_COMPARE(rig.closed.size(), 1);
        QCOMPARE(rig.log.mid(1),
            QStringList({"I Recording file contains no timestamp, replay from the beginning.",
                "W Error occured when reading recording file.",
                "W A data block's length field says 2. (at octet 20)"}));
        QCOMPARE(rig.tracks().size() + rig.northCrossed.size(), 2);
    }
};

VYX_TEST(TestDataEngineReplay)
#include "tst_data_engine_replay.moc"
