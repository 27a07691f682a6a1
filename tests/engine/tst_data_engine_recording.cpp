#include "engine_rig.h"

#include "astfile/file_reader.h"
#include "test_program.h"

#include <QTemporaryDir>
#include <QTest>

using korvane::astfile::DataPacket;
using korvane::astfile::FileReader;
using korvane::astfile::RecFile;

// Recording the input while it is shown.
class TestDataEngineRecording final : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QUdpSocket m_sender;

    void send(const EngineRig &rig, const QByteArray &data)
    {
        QCOMPARE(m_sender.writeDatagram(data, QHostAddress::LocalHost, rig.port()), data.size());
    }

    static void openLive(EngineRig &rig)
    {
        rig.open();
        QCOMPARE(rig.opened.size(), 1);
    }

    static QByteArrayList messagesIn(const QString &path)
    {
        QByteArrayList messages;
        const auto reader = FileReader::create(RecFile::Pcap);
        if (reader->open(path, RecFile::Pcap)) {
            for (DataPacket packet = reader->read(); packet.kind == DataPacket::Data; packet = reader->read()) {
                messages += packet.data;
            }
        }
        return messages;
    }

    // Everything of the tracks but when it arrived.
    static QStringList described(const QList<TrackSnapshot> &tracks)
    {
        QStringList texts;
        for (const TrackSnapshot &track : tracks) {
            texts += QString("%1 type %2 state %3 at %4, %5 (%6 dots)")
                         .arg(track.trackNumber)
                         .arg(track.type)
                         .arg(track.state)
                         .arg(track.carCoordinate.x(), 0, 'f', 3)
                         .arg(track.carCoordinate.y(), 0, 'f', 3)
                         .arg(track.trail.size());
        }
        texts.sort();
        return texts;
    }

private Q_SLOTS:
    void recordingGivesTheSameTracksAsTheLiveInput()
    {
        const QString path = m_dir.filePath("live.pcap");
        EngineRig live;
        live.engine.setSnapshotTrailDots(10);
        openLive(live);
        live.engine.startRecording(path);
        QByteArrayList sent;
        for (int turn = 0; turn < 4; ++turn) {
            for (int number = 1; number <= 40; ++number) {
                sent += plotBlock(static_cast<quint8>(number), static_cast<quint16>(number * 1500 + turn * 40));
                if (number % 10 == 0) {
                    sent += number % 20 == 0 ? northMarkerBlock() : QByteArray("no surveillance data");
                }
            }
        }
        for (const QByteArray &datagram : std::as_const(sent)) {
            send(live, datagram);
        }
        QTRY_COMPARE(live.engine.messagesReceived(), quint64(sent.size()));
        live.engine.stopRecording();
        QVERIFY(messagesIn(path) == sent);

        EngineRig replay;
        replay.engine.setSnapshotTrailDots(10);
        replay.engine.setReplaySpeed(ReplaySpeed::Max);
        replay.openRecording(path);
        QTRY_COMPARE(replay.closed.size(), 1);
        QCOMPARE(live.tracks().size(), 40);
        QCOMPARE(described(replay.tracks()), described(live.tracks()));
    }

    // A folder that goes, a disk that is full, a place that cannot be written: the input goes on.
    void troubleEndsTheRecordingAlone_data()
    {
        QTest::addColumn<QString>("trouble");
        for (const char *trouble : {"folder removed", "disk full", "no such folder"}) {
            QTest::newRow(trouble) << QString(trouble);
        }
    }

    void troubleEndsTheRecordingAlone()
    {
        QFETCH(QString, trouble);
        QTemporaryDir dir;
        QString path = dir.filePath("input.pcap");
        if (trouble == "disk full") {
            QVERIFY(QFile::link("/dev/full", path));
        }
        if (trouble == "no such folder") {
            path = dir.filePath("nowhere/input.pcap");
        }
        EngineRig rig;
        QSignalSpy stopped(&rig.engine, &DataEngine::recordingStopped);
        openLive(rig);
        rig.engine.startRecording(path);
        send(rig, plotBlock(1));
        QTRY_COMPARE(rig.engine.messagesReceived(), 1ULL);
        dir.remove();
        QTRY_COMPARE(stopped.size(), 1);
        QVERIFY2(rig.log.last().startsWith("W Recording " + path + " stopped after "), qPrintable(rig.log.last()));
        QVERIFY(rig.log.last().size() > QString("W Recording  stopped after 1 messages: ").size() + path.size());
        send(rig, plotBlock(2, 20000));
        QTRY_COMPARE(rig.tracks().size(), 2);
    }

    void onlyALiveInputIsRecorded()
    {
        EngineRig rig;
        QSignalSpy stopped(&rig.engine, &DataEngine::recordingStopped);
        rig.engine.startRecording(m_dir.filePath("nothing.pcap"));
        QCOMPARE(stopped.size(), 1);
        QCOMPARE(rig.log, QStringList("W There is no live input to record."));
        QVERIFY(!QFile::exists(m_dir.filePath("nothing.pcap")));
    }
};

VYX_TEST(TestDataEngineRecording)
#include "tst_data_engine_recording.moc"
