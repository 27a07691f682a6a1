#include "astfile/file_reader.h"
#include "astfile/pcap_writer.h"
#include "astfile/rec_file.h"
#include "test_files.h"
#include "test_program.h"
#include "written_capture.h"

#include <QTemporaryDir>
#include <QTest>

using namespace korvane::astfile;

// Formats by name, raw recordings, and what readers of both kinds promise about end, errors and rewinding.
class TestFileReader final : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    QString write(const QString &name, const QByteArray &octets) { return writtenTo(m_dir.filePath(name), octets); }

    // Three datagrams, 10 ms apart.
    QByteArray capture()
    {
        return contentsOf(writtenCapture(m_dir.filePath("whole.pcap"), {{0, "aaaa"}, {10, "bbbb"}, {20, "cccc"}}));
    }

    // "data", "end" or "error", in the order read, until the first end.
    static QStringList readAll(FileReader &reader)
    {
        QStringList steps;
        DataPacket packet;
        do {
            reader.read(&packet);
            steps += packet.kind == DataPacket::Data ? QString::fromLatin1(packet.data)
                : packet.kind == DataPacket::End     ? QStringLiteral("end")
                                                     : QStringLiteral("error@%1").arg(packet.offset);
            if (reader.atEnd() != (packet.kind == DataPacket::End)
                || (packet.kind == DataPacket::Error) == packet.error.isEmpty()) {
                steps += QStringLiteral("inconsistent");
            }
        } while (packet.kind != DataPacket::End);
        return steps;
    }

private Q_SLOTS:
    void formatFollowsTheSuffix()
    {
        QCOMPARE(RecFile::formatFromFileName("/x/A.PCAPNG"), RecFile::PcapNg);
        QCOMPARE(RecFile::formatFromFileName("day.1.ast"), RecFile::RawAsterix);
        QCOMPARE(RecFile::formatFromFileName("a.pcap.txt"), RecFile::Unknown);
        QCOMPARE(RecFile::formatFromFileName("pcap"), RecFile::Unknown);
        QCOMPARE(RecFile::formatFromFileName("day.ff.GZ"), RecFile::FinalFormat);
        QCOMPARE(RecFile::formatFromFileName("day.gz"), RecFile::Unknown);
        QCOMPARE(RecFile::formatNameFilter({RecFile::Pcap, RecFile::Unknown, RecFile::RawAsterix}),
            QStringLiteral("Recording files (*.pcap *.pcap.gz *.cap *.cap.gz *.ast *.ast.gz);;"
                           "Network capture (*.pcap *.pcap.gz *.cap *.cap.gz);;"
                           "Raw ASTERIX data blocks (*.ast *.ast.gz)"));
    }

    void readsToTheEndOrTheFault_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("octets");
        QTest::addColumn<QStringList>("steps");
        const QByteArray blocks("\x61\x00\x04z\x62\x00\x05yy", 9);
        const QStringList both = {QString::fromLatin1(blocks.left(4)), QString::fromLatin1(blocks.mid(4))};
        const auto row = [](const char *tag, const char *name, const QByteArray &octets, const QStringList &steps) {
            QTest::newRow(tag) << name << octets << steps;
        };
        row("raw, whole", "a.ast", blocks, both + QStringList("end"));
        row("raw, header cut short", "a.ast", blocks + "\x30", both + QStringList({"error@9", "end"}));
        row("raw, body cut short", "a.ast", blocks.left(8), {both[0], "error@4", "end"});
        row("raw, length below the header's", "a.ast", QByteArray("\x30\x00\x02\x30\x00\x03", 6), {"error@0", "end"});
        const QByteArray whole = capture();
        QCOMPARE(whole.size(), 24 + 3 * (16 + 46));
        row("capture, whole", "a.pcap", whole, {"aaaa", "bbbb", "cccc", "end"});
        row("capture under the other capture's name", "a.pcapng", whole, {"aaaa", "bbbb", "cccc", "end"});
        row("capture, cut in a packet", "a.pcap", whole.chopped(5), {"aaaa", "bbbb", "error@148", "end"});
        row("capture, cut in a packet's header", "a.pcap", whole.left(24 + 62 + 7), {"aaaa", "error@86", "end"});
    }

    void readsToTheEndOrTheFault()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, octets);
        QFETCH(QStringList, steps);
        const RecFile::Format format = RecFile::formatFromFileName(name);
        const auto reader = FileReader::create(format);
        QVERIFY(reader->open(write(name, octets), format));
        QVERIFY(!reader->atEnd());
        QCOMPARE(readAll(*reader), steps);
        QVERIFY(reader->reset());
        QVERIFY(!reader->atEnd());
        QCOMPARE(readAll(*reader), steps);
        QCOMPARE(reader->lastError().isEmpty(), steps.size() < 2 || !steps[steps.size() - 2].startsWith("error"));
        reader->close();
        QCOMPARE(readAll(*reader), QStringList("end"));
        QVERIFY(!reader->reset());
    }

    void anUnknownLinkTypeDoesNotOpen()
    {
        const auto reader = FileReader::create(RecFile::Pcap);
        QVERIFY(!reader->open(write("wireless.pcap", capture().replace(20, 1, "\x69")), RecFile::Pcap));
        QVERIFY2(reader->lastError().contains("IEEE802_11"), qPrintable(reader->lastError()));
        QCOMPARE(readAll(*reader), QStringList("end"));
    }

    // Megabytes in which there is nothing to give: who waits for a packet must be able to stop waiting.
    void readingIsCancelledByOctets()
    {
        constexpr int Megabytes = 4;
        QByteArray frames = capture();
        // The first record's header, and a frame of its length that is no IP.
        const QByteArray stray = frames.mid(24, 16) + QByteArray(frames.at(24 + 8), '\0');
        while (frames.size() < Megabytes << 20) {
            frames += stray;
        }
        const std::pair<QString, QByteArray> rows[]{
            {"strays.pcap", frames}, {"noise.modes", QByteArray(Megabytes << 20, '\x7f')}};
        for (const auto &[name, octets] : rows) {
            int asked = 0;
            bool cancelled = false;
            const RecFile::Format format = RecFile::formatFromFileName(name);
            const auto reader = FileReader::create(format);
            reader->setCancel([&] { return ++asked > 0 && cancelled; });
            QVERIFY(reader->open(write(name, octets), format));
            const QStringList whole = readAll(*reader);
            QVERIFY2(asked >= 2 * Megabytes, qPrintable(name));
            QCOMPARE(whole.last(), QStringLiteral("end"));

            QVERIFY(reader->reset());
            cancelled = true;
            const QStringList steps = readAll(*reader);
            QVERIFY2(steps.filter("error@").size() == 1, qPrintable(name));
            QVERIFY(reader->octetsRead() < 1 << 20);
            QVERIFY(!reader->seek(QDateTime::currentDateTimeUtc()));
            QCOMPARE(reader->lastError(), QStringLiteral("Reading was cancelled."));
            cancelled = false;
            QVERIFY(reader->reset());
            QCOMPARE(readAll(*reader), whole);
        }
    }
};

VYX_TEST(TestFileReader)
#include "tst_file_reader.moc"
