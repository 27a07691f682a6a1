#include "astfile/file_reader.h"
#include "astfile/pcap_writer.h"
#include "test_files.h"
#include "test_program.h"

#include <QTemporaryDir>
#include <QTest>

using namespace korvane::astfile;

class TestPcapWriter final : public QObject {
    Q_OBJECT

private:
    static constexpr PcapWriter::Endpoint Source = {0x0a010203, 4000};
    static constexpr PcapWriter::Endpoint Group = {0xefaa0102, 50000};
    const QDateTime m_time = QDateTime::fromMSecsSinceEpoch(1700000000123, Qt::UTC);
    QTemporaryDir m_dir;

    QByteArray writeOne(PcapWriter::LinkType linkType, const QByteArray &payload)
    {
        const QString path = m_dir.filePath(QStringLiteral("one.pcap"));
        PcapWriter writer;
        const bool done = writer.open(path, linkType) && writer.write(m_time, Source, Group, payload) && writer.close();
        return done ? contentsOf(path) : QByteArray();
    }

private Q_SLOTS:
    // Checksums worked out apart, so that other programs can read what is written.
    void octetsAreThoseOfTheFormat()
    {
        const QByteArray header = QByteArray::fromHex("d4c3b2a1 0200 0400 00000000 00000000 00000400");
        const QByteArray times = QByteArray::fromHex("00f15365 78e00100"); // 1700000000 s, 123000 us
        const QByteArray packet = QByteArray::fromHex("4500 001f 0000 4000 4011 3e1e 0a010203 efaa0102"
                                                      "0fa0 c350 000b 6c34 610263");
        QCOMPARE(writeOne(PcapWriter::LinkType::RawIp, QByteArray("a\x02\x63")).toHex(' '),
            (header + QByteArray::fromHex("65000000") + times + QByteArray::fromHex("1f000000 1f000000") + packet)
                .toHex(' '));
        QCOMPARE(writeOne(PcapWriter::LinkType::Ethernet, QByteArray("a\x02\x63")).toHex(' '),
            (header + QByteArray::fromHex("01000000") + times + QByteArray::fromHex("2d000000 2d000000")
                + QByteArray::fromHex("01005e2a0102 02000a010203 0800") + packet)
                .toHex(' '));
    }

    void whatWasWrittenIsReadBack()
    {
        for (const int size : {0, 1, 1472, 65507}) {
            const QByteArray payload(size, '\x30');
            QVERIFY(!writeOne(PcapWriter::LinkType::Ethernet, payload).isEmpty());
            const auto reader = FileReader::create(RecFile::Pcap);
            QVERIFY(reader->open(m_dir.filePath(QStringLiteral("one.pcap")), RecFile::Pcap));
            const DataPacket packet = reader->read();
            QCOMPARE(packet.kind, DataPacket::Data);
            QCOMPARE(packet.data, payload);
            QCOMPARE(packet.timeStamp, m_time);
            QCOMPARE(packet.timeStamp.timeSpec(), Qt::UTC);
            QCOMPARE(reader->read().kind, DataPacket::End);
        }
    }

    void refusesWhatItCannotStore()
    {
        PcapWriter writer;
        QVERIFY(!writer.write(m_time, Source, Group, "x")); // not open
        QVERIFY(!writer.open(m_dir.filePath(QStringLiteral("no/such/folder.pcap"))));
        QVERIFY(!writer.lastError().isEmpty());
        const QString path = m_dir.filePath(QStringLiteral("refused.pcap"));
        QVERIFY(writer.open(path));
        QVERIFY(!writer.write(m_time, Source, Group, QByteArray(65508, 'x')));
        QVERIFY(!writer.write(QDateTime(), Source, Group, "x"));
        QVERIFY(!writer.write(QDateTime::fromMSecsSinceEpoch(-1, Qt::UTC), Source, Group, "x"));
        QVERIFY(!writer.lastError().isEmpty());
        QVERIFY(writer.close());
        QCOMPARE(QFileInfo(path).size(), 24);
    }
};

VYX_TEST(TestPcapWriter)
#include "tst_pcap_writer.moc"
