#include "recording_files.h"
#include "test_program.h"

#include "astfile/pcap_writer.h"

#include <QTest>
#include <sys/stat.h>

#include <algorithm>

using namespace korvane::astfile;

namespace {

QByteArray big(qint64 value, int octets)
{
    QByteArray result;
    while (octets-- > 0) {
        result += static_cast<char>(value >> 8 * octets);
    }
    return result;
}

// Plots of some radar, every one different.
QByteArray block(int number)
{
    return QByteArray::fromHex("300010 f0 1901") + big(number * 37, 3) + big(number * 7919, 4) + big(number, 3);
}

// So many blocks, each in what makes it a record of the recording.
template <typename Wrap>
QByteArray records(int count, Wrap wrap)
{
    QByteArray octets;
    for (int i = 0; i < count; ++i) {
        octets += wrap(block(i), i);
    }
    return octets;
}

QByteArray raw(int count)
{
    return records(count, [](const QByteArray &octets, int) { return octets; });
}

} // namespace

// Which format a recording has, whatever its name says.
class TestFormatRecognition final : public QObject {
    Q_OBJECT

private:
    RecordingFiles m_files;

private Q_SLOTS:
    void contentsTellTheFormat_data()
    {
        QTest::addColumn<QByteArray>("octets");
        QTest::addColumn<int>("format");
        const auto stamped = [](const QByteArray &octets, int i) {
            return octets + QByteArray::fromHex("010203040506") + big(i * 128, 3) + '\xcd';
        };
        const auto milliseconds = [](const QByteArray &octets, int i) {
            QByteArray ms = big(43200000 + i * 100, 4);
            std::reverse(ms.begin(), ms.end());
            return octets + ms;
        };
        const auto framed = [](qsizetype extra) {
            return [extra](const QByteArray &octets, int i) {
                return big(12 + extra + octets.size(), 2) + QByteArray(extra, '\x01') + big(0x010200, 3)
                    + big(4320000 + i, 3) + octets + QByteArray(4, '\xa5');
            };
        };
        QTest::newRow("raw blocks") << raw(200) << int(RecFile::RawAsterix);
        QTest::newRow("one raw block") << raw(1) << int(RecFile::RawAsterix);
        QTest::newRow("raw, cut short") << raw(20).chopped(3) << int(RecFile::RawAsterix);
        QTest::newRow("raw, longer than what is looked at") << raw(50000) << int(RecFile::RawAsterix);
        QTest::newRow("final format") << records(20, framed(0)) << int(RecFile::FinalFormat);
        QTest::newRow("final format, numbered") << records(20, framed(4)) << int(RecFile::FinalFormat);
        QTest::newRow("gps") << QByteArray(2200, '\xcd') + records(20, stamped) << int(RecFile::Gps);
        QTest::newRow("gps, blank header") << QByteArray(2200, ' ') + records(2, stamped) << int(RecFile::Gps);
        QTest::newRow("gps without header") << records(20, milliseconds) << int(RecFile::Gps);
        QTest::newRow("Mode S text") << QByteArray("*8d4840d6202cc371c32ce0576098;\r\n*5d4840d6000000;\r\n")
                                     << int(RecFile::ModeS);
        QTest::newRow("Mode S binary") << QByteArray::fromHex("1a32000000002ee0105d4840d6000000"
                                                              "1a32000000005dc0105d4840d6000000")
                                       << int(RecFile::ModeS);
        QTest::newRow("capture, next generation")
            << QByteArray::fromHex("0a0d0d0a1c0000004d3c2b1a") + raw(20) << int(RecFile::PcapNg);
        QTest::newRow("text") << QByteArray("A log of the day, in several lines.\n").repeated(400) << 0;
        QTest::newRow("zeros") << QByteArray(300000, '\0') << 0;
        QTest::newRow("picture") << QByteArray::fromHex("89504e470d0a1a0a0000000d49484452") + QByteArray(9000, '\x21')
                                 << 0;
        QTest::newRow("empty") << QByteArray() << 0;
    }

    void contentsTellTheFormat()
    {
        QFETCH(QByteArray, octets);
        QFETCH(int, format);
        for (const QByteArray &contents : {octets, RecordingFiles::gzip(octets)}) {
            for (const char *name : {"recording", "day.dat", "wrong.ff", "wrong.pcap"}) {
                QString error;
                QCOMPARE(int(RecFile::formatOfFile(m_files.write(name, contents), &error)), format);
                QCOMPARE(error.isEmpty(), format != 0);
            }
        }
    }

    void capturesOfEitherOctetOrder()
    {
        const QString path = m_files.write("x", {});
        PcapWriter writer;
        QVERIFY(writer.open(path) && writer.write(QDateTime::currentDateTimeUtc(), {}, {}, block(1)) && writer.close());
        QCOMPARE(int(RecFile::formatOfFile(path)), int(RecFile::Pcap));
        QCOMPARE(int(RecFile::formatOfFile(m_files.write("y", QByteArray::fromHex("a1b23c4d00020004")))),
            int(RecFile::Pcap));
    }

    // A fault looks like the stamp behind the first of two records, here.
    void theNameDecidesWhereContentsLeaveAChoice()
    {
        const QByteArray octets = block(1) + block(2) + QByteArray::fromHex("220007e0 190101 300002") + block(3);
        QCOMPARE(int(RecFile::formatOfFile(m_files.write("fault.ast", octets))), int(RecFile::RawAsterix));
    }

    void whatCannotBeReadSaysWhy()
    {
        QString error;
        QCOMPARE(int(RecFile::formatOfFile(m_files.write("a.ast", {}) + "no", &error)), int(RecFile::Unknown));
        QVERIFY(!error.isEmpty());
        // Opening a pipe would wait for whoever writes into it.
        const QString pipe = m_files.write("b", {}) + ".ast";
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QCOMPARE(int(RecFile::formatOfFile(pipe, &error)), int(RecFile::Unknown));
        QCOMPARE(error, QStringLiteral("It is no regular file."));
        QCOMPARE(int(RecFile::formatOfFile(m_files.write("c.ast", raw(9)), &error, [] { return true; })),
            int(RecFile::Unknown));
        QCOMPARE(error, QStringLiteral("Reading was cancelled."));
    }
};

VYX_TEST(TestFormatRecognition)
#include "tst_format_recognition.moc"
