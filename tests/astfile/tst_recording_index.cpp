#include "recording_files.h"
#include "test_program.h"

#include <QTest>

using namespace korvane::astfile;

namespace {

QByteArray little(quint32 value)
{
    QByteArray octets(4, '\0');
    for (int i = 0; i < 4; ++i) {
        octets[i] = static_cast<char>(value >> 8 * i);
    }
    return octets;
}

constexpr int Packets = 4000;
constexpr int PayloadSize = 1000; // incompressible, so that packed files are long, too

// About noon on 2 May 2023, every other packet 50 ms apart from its neighbours' order.
qint64 timeOf(int packet)
{
    return 1683028800000 + packet * 10 + (packet % 2 ? 0 : 50);
}

QByteArray payloadOf(int packet)
{
    quint32 random = static_cast<quint32>(packet);
    QByteArray payload = QByteArray("\x22\x03\xe8\x80", 4); // one data block, with an FSPEC
    while (payload.size() < PayloadSize) {
        random = random * 1103515245 + 12345;
        payload += static_cast<char>(random >> 16);
    }
    return payload;
}

// An Ethernet frame with one UDP datagram.
QByteArray frameOf(const QByteArray &payload)
{
    const auto big16 = [](qsizetype v) { return QByteArray(1, static_cast<char>(v >> 8)) + static_cast<char>(v); };
    return QByteArray::fromHex("020000000001 020000000002 0800 4500") + big16(payload.size() + 28)
        + QByteArray::fromHex("0000 4000 4011 0000 0a000001 0a000002 0fa0c350") + big16(payload.size() + 8)
        + QByteArray(2, '\0') + payload;
}

QByteArray ngBlock(quint32 type, QByteArray body)
{
    body += QByteArray((4 - body.size() % 4) % 4, '\0');
    const QByteArray size = little(static_cast<quint32>(body.size() + 12));
    return little(type) + size + body + size;
}

QByteArray capture()
{
    QByteArray octets = QByteArray::fromHex("d4c3b2a1 0200 0400 00000000 00000000 00000400 01000000");
    for (int i = 0; i < Packets; ++i) {
        const QByteArray frame = frameOf(payloadOf(i));
        const QByteArray size = little(static_cast<quint32>(frame.size()));
        octets += little(static_cast<quint32>(timeOf(i) / 1000)) + little(static_cast<quint32>(timeOf(i) % 1000 * 1000))
            + size + size + frame;
    }
    return octets;
}

// Two sections; each describes an interface before the packets and another, with milliseconds, half way.
QByteArray captureNg()
{
    QByteArray octets;
    for (int i = 0; i < Packets; ++i) {
        if (i % (Packets / 2) == 0) {
            octets += ngBlock(0x0a0d0d0a, QByteArray::fromHex("4d3c2b1a 0100 0000 ffffffffffffffff"));
            octets += ngBlock(1, QByteArray::fromHex("0100 0000 00000400"));
        }
        if (i % (Packets / 2) == Packets / 4) {
            octets += ngBlock(1, QByteArray::fromHex("0100 0000 00000400 0900 0100 03000000 00000000"));
        }
        const bool second = i % (Packets / 2) >= Packets / 4;
        const auto ticks = static_cast<quint64>(timeOf(i)) * (second ? 1 : 1000);
        const QByteArray frame = frameOf(payloadOf(i));
        const QByteArray size = little(static_cast<quint32>(frame.size()));
        octets += ngBlock(6,
            little(second ? 1 : 0) + little(static_cast<quint32>(ticks >> 32)) + little(static_cast<quint32>(ticks))
                + size + size + frame);
    }
    return octets;
}

QByteArray finalFormat()
{
    QByteArray octets;
    for (int i = 0; i < Packets; ++i) {
        const qint64 hundredths = timeOf(i) % 86400000 / 10;
        octets += QByteArray::fromHex("03f4 0000 00") + static_cast<char>(hundredths >> 16)
            + static_cast<char>(hundredths >> 8) + static_cast<char>(hundredths) + payloadOf(i)
            + QByteArray::fromHex("a5a5a5a5");
    }
    return octets;
}

QByteArray modeS()
{
    QByteArray octets;
    for (int i = 0; i < 20 * Packets; ++i) {
        octets += QStringLiteral("@%1%2;\n")
                      .arg(i * 12000LL + 1, 12, 16, QLatin1Char('0'))
                      .arg(i, 28, 16, QLatin1Char('0'))
                      .toLatin1();
    }
    return octets;
}

} // namespace

// Seeking must end at the packet that reading from the beginning would, with an index and without.
class TestRecordingIndex final : public QObject {
    Q_OBJECT

private:
    RecordingFiles m_files;

    // Of the packets from a seek on: the first three, and how many there are.
    static QString rest(FileReader &reader)
    {
        QString text;
        int count = 0;
        for (DataPacket packet = reader.read(); packet.kind != DataPacket::End; packet = reader.read(), ++count) {
            if (count < 3) {
                text += packet.timeStamp.toString("hh:mm:ss.zzz ") + packet.data.right(8).toHex() + ' '
                    + QString::number(packet.offset) + ' ';
            }
        }
        return text + QString::number(count);
    }

private Q_SLOTS:
    void seekingEndsWhereReadingOnWould_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("octets");
        QTest::addColumn<bool>("packed");
        const QByteArray ng = captureNg();
        QTest::newRow("capture") << "a.pcap" << capture() << false;
        QTest::newRow("capture of the next generation") << "a.pcapng" << ng << false;
        QTest::newRow("the same, packed") << "a.pcapng.gz" << ng << true;
        QTest::newRow("final format") << "a.ff" << finalFormat() << false;
        QTest::newRow("final format, packed") << "a.ff.gz" << finalFormat() << true;
        QTest::newRow("Mode S") << "a.avr" << modeS() << false;
    }

    void seekingEndsWhereReadingOnWould()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, octets);
        QFETCH(bool, packed);
        const QByteArray twoMembers =
            m_files.gzip(octets.left(octets.size() / 2)) + m_files.gzip(octets.mid(octets.size() / 2));
        const QString path = m_files.write(name, packed ? twoMembers : octets);
        const auto plain = m_files.open(path);
        const auto indexed = m_files.open(path);
        QVERIFY(plain && indexed);
        QString error;
        const RecordingIndex index = RecordingIndex::build(path, RecFile::formatFromFileName(path), {}, &error);
        QCOMPARE(error, QString());
        QVERIFY(indexed->setIndex(index));
        QCOMPARE(index.packetCount(), name.endsWith("avr") ? 20 * Packets : Packets);
        const qint64 first = index.first().toMSecsSinceEpoch();
        const qint64 span = index.first().msecsTo(index.last());
        QCOMPARE(span, name.endsWith("avr") ? 20 * Packets - 1 : (Packets - 2) * 10 + 50 - 10);
        int entriesUsed = 0;
        for (const qint64 ms : {span * 3 / 4, span / 4, span - 5, span / 2 + 3, qint64(-5), span + 1, qint64(7)}) {
            const QDateTime time = QDateTime::fromMSecsSinceEpoch(first + ms, Qt::UTC);
            QVERIFY2(plain->seek(time), qPrintable(plain->lastError()));
            QVERIFY2(indexed->seek(time), qPrintable(indexed->lastError()));
            QVERIFY(!indexed->atEnd());
            entriesUsed += index.entryBefore(time.toMSecsSinceEpoch()) != nullptr;
            const QString expected = rest(*plain);
            QCOMPARE(rest(*indexed), expected);
            QCOMPARE(expected == "0", ms > span);
        }
        QVERIFY(entriesUsed >= 4);
        QVERIFY(indexed->reset());
        QCOMPARE(rest(*indexed).section(' ', -1), QString::number(index.packetCount()));
    }

    void aPassTellsItsProgressAndStops()
    {
        const QString path = m_files.write("a.ff", finalFormat());
        std::vector<qint64> steps;
        const auto note = [&steps](qint64 read, qint64 total) {
            steps.push_back(read);
            return read <= total && steps.size() < 4;
        };
        QString error = "old";
        QVERIFY(RecordingIndex::build(path, RecFile::FinalFormat, note, &error).isNull());
        QVERIFY(error.isEmpty() && steps.size() == 4 && std::is_sorted(steps.begin(), steps.end()));
        QVERIFY(RecordingIndex::build(m_files.write("x.ff", {}) + "no", RecFile::FinalFormat, {}, &error).isNull());
        QVERIFY(!error.isEmpty());
    }

    void faultsAndForeignIndexes()
    {
        const QByteArray octets = finalFormat();
        const QString cut = m_files.write("cut.ff", octets.chopped(1));
        const QString whole = m_files.write("whole.ff", octets);
        QString error;
        const RecordingIndex index = RecordingIndex::build(cut, RecFile::FinalFormat, {}, &error);
        QVERIFY(!error.isEmpty());
        QCOMPARE(index.packetCount(), Packets - 1);
        QVERIFY(!m_files.open(whole)->setIndex(index));
        const auto reader = m_files.open(cut);
        QVERIFY(reader->setIndex(index));
        QVERIFY(!reader->seek(index.last().addSecs(1))); // the fault comes first
        QVERIFY(!reader->lastError().isEmpty());
        const auto untimed = m_files.open(m_files.write("untimed.avr", "*5D4840D6000000;"));
        QVERIFY(!untimed->seek(index.first()));
    }

    void damagedPacking_data()
    {
        QTest::addColumn<QByteArray>("packed");
        QTest::addColumn<bool>("faulty");
        const QByteArray packed = RecordingFiles::gzip(finalFormat());
        QTest::newRow("cut short") << packed.chopped(9) << true;
        QTest::newRow("checksum wrong") << QByteArray(packed).replace(packed.size() - 8, 1, "\x00\x01", 1) << true;
        QTest::newRow("damaged inside") << QByteArray(packed).replace(packed.size() / 2, 64, QByteArray(64, '\xff'))
                                        << true;
        QTest::newRow("padded") << packed + QByteArray(512, '\0') << false;
    }

    void damagedPacking()
    {
        QFETCH(QByteArray, packed);
        QFETCH(bool, faulty);
        const auto reader = m_files.open(m_files.write("a.ff.gz", packed));
        QVERIFY(reader);
        const QStringList steps = m_files.steps(*reader);
        QCOMPARE(steps.last().startsWith("error"), faulty);
        QCOMPARE(reader->lastError().isEmpty(), !faulty);
        QVERIFY(faulty || steps.size() == Packets);
    }
};

VYX_TEST(TestRecordingIndex)
#include "tst_recording_index.moc"
