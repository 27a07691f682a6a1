#include "example/busiest_minute.h"
#include "recording_files.h"

#include "astfile/file_writer.h"
#include "test_files.h"
#include "test_program.h"

#include <QTest>

using namespace korvane::astfile;

// Writers of every format: what was written is read back, while the file is still open and after failures.
class TestFileWriter final : public QObject {
    Q_OBJECT

private:
    RecordingFiles m_files;

private Q_SLOTS:
    void whatWasWrittenIsReadBack_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("steps");
        QTest::newRow("capture") << "a.pcap"
                                 << QStringList({"31 23:59:59.999 220004aa220005bbcc", "1 00:00:00.014 220004ddee"});
        QTest::newRow("final format") << "a.ff"
                                      << QStringList(
                                             {"1 23:59:59.990 220004aa220005bbcc", "2 00:00:00.010 220004ddee"});
        QTest::newRow("raw") << "a.ast"
                             << QStringList({"- 220004aa", "- 220005bbcc", "- 220004dd"}); // less the appendix
    }

    void whatWasWrittenIsReadBack()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, steps);
        const QString path = m_files.write(name, "old contents");
        const auto writer = FileWriter::create(RecFile::formatFromFileName(name));
        QVERIFY(writer && writer->open(path));
        const QDateTime time({2023, 12, 31}, {23, 59, 59, 999}, Qt::UTC);
        QVERIFY(writer->write(time, {}, {}, QByteArray::fromHex("220004aa220005bbcc")));
        QVERIFY(writer->write(time.addMSecs(15), {}, {}, QByteArray::fromHex("220004ddee")));
        QVERIFY(writer->flush());
        QCOMPARE(QFileInfo(path).size(), writer->octetsWritten());
        QCOMPARE(m_files.steps(*m_files.open(m_files.write("copy" + name, contentsOf(path)))), steps);
        QVERIFY(writer->close());
    }

    void aFullDiskIsReportedAndStaysSo_data()
    {
        QTest::addColumn<int>("format");
        QTest::newRow("capture") << int(RecFile::Pcap);
        QTest::newRow("raw") << int(RecFile::RawAsterix);
        QTest::newRow("final format") << int(RecFile::FinalFormat);
    }

    void aFullDiskIsReportedAndStaysSo()
    {
        QFETCH(int, format);
        const auto writer = FileWriter::create(static_cast<RecFile::Format>(format));
        QVERIFY(writer->open("/dev/full"));
        const QDateTime time({2023, 12, 31}, {23, 59, 59}, Qt::UTC);
        QVERIFY(writer->write(time, {}, {}, QByteArray::fromHex("220004aa")));
        QVERIFY(!writer->flush());
        const QString reason = writer->lastError();
        QVERIFY(!reason.isEmpty());
        QVERIFY(!writer->write(time, {}, {}, QByteArray::fromHex("220004aa")));
        QVERIFY(!writer->close());
        QCOMPARE(writer->lastError(), reason);
    }

    void refusesWhatAFrameCannotHold()
    {
        const auto writer = FileWriter::create(RecFile::FinalFormat);
        QVERIFY(writer->open(m_files.write("big.ff", {})));
        const QDateTime time({2023, 12, 31}, {23, 59, 59}, Qt::UTC);
        QVERIFY(writer->write(time, {}, {}, QByteArray(65523, 'x')));
        QVERIFY(!writer->write(time, {}, {}, QByteArray(65524, 'x')));
        QVERIFY(!writer->write({}, {}, {}, "x"));
        QVERIFY(writer->close());
        QCOMPARE(writer->octetsWritten(), 65535);
        QString error;
        QVERIFY(!FileWriter::create(RecFile::Gps, &error) && error.contains("GPS"));
    }

    void theExampleIsTheReadmes()
    {
        const QByteArray header(2200, ' ');
        const QByteArray block = QByteArray::fromHex("220004aa 000000000000 384100 cd");
        QCOMPARE(busiestMinute(m_files.write("e.gps", header + block + block)), "08:00: 2 messages");
        QVERIFY(busiestMinute(m_files.write("e.gps", header + block + "xx")).startsWith("octet 2214: "));
        QVERIFY(readmeShows(ASTFILE_FOLDER, "busiest_minute.cpp", "QString busiestMinute"));
    }
};

VYX_TEST(TestFileWriter)
#include "tst_file_writer.moc"
