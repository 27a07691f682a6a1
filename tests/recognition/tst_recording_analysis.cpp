#include "encoded_report.h"
#include "test_files.h"
#include "test_program.h"
#include "written_capture.h"

#include "engine/recording_scan.h"
#include "recognition/recording_analysis.h"

#include <fcntl.h>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>

using korvane::astfile::RecFile;
using korvane::astfile::RecordingIndex;

class TestRecordingAnalysis final : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    QString write(const QString &name, const QByteArray &octets) { return writtenTo(m_dir.filePath(name), octets); }

    QString capture(const QString &name, const QByteArray &message, int count)
    {
        QList<std::pair<qint64, QByteArray>> messages;
        for (int i = 0; i < count; ++i) {
            messages.append({100 * i, message});
        }
        return writtenCapture(m_dir.filePath(name), messages);
    }

private Q_SLOTS:
    void beginningTellsWhatItIs()
    {
        const QByteArray plot = encodedReport(48, "161/TRN=7 040/RHO=50");
        const RecordingFindings found = analyseRecording(capture("no ending", plot, 50));
        QVERIFY2(found.playable(), qPrintable(found.fault));
        QCOMPARE(int(found.format), int(RecFile::Pcap));
        QVERIFY(found.whole && found.damage.isEmpty());
        QCOMPARE(found.stream.sources.value(0).trackable(RadarSensor), 50);
        QCOMPARE(found.stream.first, captureBegin());
        QCOMPARE(found.stream.first.msecsTo(found.stream.last), 4900);

        const RecordingFindings cut = analyseRecording(write("cut.ast", plot.repeated(9).chopped(1)));
        QVERIFY(cut.playable() && cut.whole);
        QVERIFY2(cut.damage.contains(QString::number(8 * plot.size())), qPrintable(cut.damage));
        // Long recordings are not read to their end.
        const RecordingFindings day = analyseRecording(write("day.ast", plot.repeated(30 * 1024 * 1024 / plot.size())));
        QVERIFY(day.playable() && !day.whole);
        QVERIFY(day.stream.octets < 20 * 1024 * 1024);
    }

    void whatCannotBePlayedSaysWhy_data()
    {
        QTest::addColumn<QByteArray>("octets");
        QTest::addColumn<QString>("reason");
        QTest::newRow("text") << QByteArray("dear diary\n").repeated(100) << "none of the known recording formats";
        QTest::newRow("empty") << QByteArray() << "empty";
        QTest::newRow("capture of nothing")
            << QByteArray::fromHex("d4c3b2a1020004000000000000000000ffff000001000000") << "no UDP datagrams";
        QTest::newRow("damaged capture") << QByteArray::fromHex("d4c3b2a102000400") << "truncated";
    }

    void whatCannotBePlayedSaysWhy()
    {
        QFETCH(QByteArray, octets);
        QFETCH(QString, reason);
        const RecordingFindings found = analyseRecording(write("x.pcap", octets));
        QVERIFY(!found.playable());
        QVERIFY2(found.fault.contains(reason), qPrintable(found.fault));
        QVERIFY(!analyseRecording(capture("other.pcap", "GET / HTTP/1.1\r\n", 20)).playable());
        QVERIFY(!analyseRecording(m_dir.filePath("none.pcap")).playable());
        QVERIFY(!analyseRecording(m_dir.path()).playable());
    }

    void answersOnTheOwnersThread()
    {
        RecordingAnalysis analysis;
        QSignalSpy finished(&analysis, &RecordingAnalysis::finished);
        QSignalSpy progressed(&analysis, &RecordingAnalysis::progressed);
        RecordingFindings found;
        connect(&analysis, &RecordingAnalysis::finished, this, [&found](const RecordingFindings &f) { found = f; });
        analysis.start(m_dir.filePath("none.pcap")); // given up by the next one
        analysis.start(capture("a.pcap", encodedReport(48, "161/TRN=7 040/RHO=50"), 20000));
        QVERIFY(analysis.running());
        QTRY_COMPARE(finished.size(), 1);
        QVERIFY(!analysis.running() && found.playable() && progressed.size() > 1);
        analysis.start(found.fileName);
        analysis.cancel();
        QVERIFY(!analysis.running());
    }

    // A capture of megabytes in which there is no datagram: giving up must not wait for one.
    void givesUpByOctetsRead()
    {
        QByteArray octets = QByteArray::fromHex("d4c3b2a1020004000000000000000000ffff000001000000");
        const QByteArray stray = QByteArray::fromHex("00000000000000004000000040000000") + QByteArray(64, '\0');
        octets += stray.repeated(6 * 1024 * 1024 / stray.size());
        const QString path = write("strays.pcap", octets);
        QVERIFY(!analyseRecording(path).playable());
        int asked = 0;
        analyseRecording(path, [&asked](qint64, qint64) { return ++asked < 5; });
        QCOMPARE(asked, 5);
        asked = 0;
        QString error = "old";
        const auto stop = [&asked](qint64, qint64) { return ++asked < 5; };
        QVERIFY(RecordingIndex::build(path, RecFile::Pcap, stop, &error).isNull());
        QVERIFY(asked == 5 && error.isEmpty());
    }

    // A disk that does not answer, here a file in a pipe's place that nobody writes: who gives up does not wait.
    void aStalledDiskHoldsNobodyUp()
    {
        const QString pipe = m_dir.filePath("stalled.pcap");
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        // Through a packed file's reader, which does not ask what kind of file it is.
        BackgroundPass pass;
        QSignalSpy progressed(&pass, &BackgroundPass::progressed);
        auto begun = std::make_shared<std::atomic<bool>>(false);
        pass.start(
            [pipe, begun](const BackgroundPass::Token &token) {
                *begun = true;
                return RecordingIndex::build(
                    pipe, RecFile::Pcap, [token](qint64 read, qint64 total) { return token.report(read, total); });
            },
            [](const RecordingIndex &) { QFAIL("given up"); });
        QTRY_VERIFY(*begun);
        QElapsedTimer clock;
        clock.start();
        pass.cancel();
        {
            RecordingScan scan;
            RecordingAnalysis analysis;
            scan.start(pipe);
            analysis.start(pipe);
        } // destroyed while they look
        QVERIFY(clock.elapsed() < 1000);
        const int writer = ::open(QFile::encodeName(pipe).constData(), O_WRONLY | O_NONBLOCK);
        QVERIFY(writer >= 0); // the reader had been waiting for it all the time
        ::close(writer);
    }
};

VYX_TEST(TestRecordingAnalysis)
#include "tst_recording_analysis.moc"
