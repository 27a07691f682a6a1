#include "recording_files.h"
#include "test_program.h"

#include <QTest>

using namespace korvane::astfile;

namespace {

QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

QByteArray big(qint64 value, int octets)
{
    QByteArray result;
    while (octets-- > 0) {
        result += static_cast<char>(value >> 8 * octets);
    }
    return result;
}

// A north marker block, three octets of contents after the header.
QByteArray block(char contents)
{
    return hex("220006") + QByteArray(3, contents);
}

QByteArray frame(const QByteArray &number, int day, int hundredths, const QByteArray &blocks)
{
    return big(12 + number.size() + blocks.size(), 2) + number + hex("0102") + big(day, 1) + big(hundredths, 3) + blocks
        + hex("a5a5a5a5");
}

QByteArray receiverStamp(double seconds)
{
    return hex("010203040506") + big(static_cast<qint64>(seconds * 128), 3) + '\xcd';
}

QByteArray littleMs(int ms)
{
    QByteArray octets = big(ms, 4);
    std::reverse(octets.begin(), octets.end());
    return octets;
}

QByteArray beast(char kind, qint64 ticks, const QByteArray &body)
{
    QByteArray octets = big(ticks, 6) + '\x1a' + body;
    return QByteArray("\x1a") + kind + octets.replace("\x1a", "\x1a\x1a");
}

// Seconds of the day as the 24 bits of a record.
QByteArray tod(double seconds)
{
    return big(static_cast<qint64>(seconds * 128), 3);
}

} // namespace

// Formats other than captures, octet by octet: what a packet is, when it was, and where reading stops.
class TestRecordFormats final : public QObject {
    Q_OBJECT

private:
    RecordingFiles m_files;

private Q_SLOTS:
    void recordsAreUnwrappedAndStamped_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("octets");
        QTest::addColumn<QStringList>("steps");
        const auto row = [](const char *tag, const char *name, const QByteArray &octets, const QStringList &steps) {
            QTest::newRow(tag) << name << octets << steps;
        };
        const QByteArray a = block('a');
        const QByteArray b = block('b');
        const QString aHex = a.toHex();
        const QString bHex = b.toHex();
        const QByteArray plain = frame({}, 0, 8639999, a) + frame({}, 1, 1, a + b);
        row("final format, midnight", "f.ff", plain, {"1 23:59:59.990 " + aHex, "2 00:00:00.010 " + aHex + bHex});
        row("final format, sequence numbers", "f.ff",
            frame(hex("00000001"), 5, 100, a) + frame(hex("00000002"), 8, 50, b),
            {"2 00:00:01.000 " + aHex, "5 00:00:00.500 " + bHex});
        row("final format, day of the month begins again", "f.ff", frame({}, 31, 8639900, a) + frame({}, 1, 0, b),
            {"1 23:59:59.000 " + aHex, "2 00:00:00.000 " + bHex});
        row("final format, footer missing", "f.ff", QByteArray(plain).replace(14, 1, "x"), {"error@0"});
        row("final format, cut short", "f.ff", plain.chopped(1), {"1 23:59:59.990 " + aHex, "error@18"});
        row("final format, length too small", "f.ff", hex("000b") + plain.mid(2), {"error@0"});

        const QByteArray stamped = a + receiverStamp(86399.5) + b + receiverStamp(0.25);
        const QStringList stampedSteps = {"1 23:59:59.500 " + aHex, "2 00:00:00.250 " + bHex};
        row("gps, old header", "g.gps", QByteArray(2200, '\xcd') + stamped, stampedSteps);
        row("gps, header of blanks", "g.gps", QByteArray(2200, ' ') + stamped, stampedSteps);
        row("gps, without header", "g.gps", a + littleMs(43200001) + b + littleMs(43200002),
            {"2 12:00:00.001 " + aHex, "2 12:00:00.002 " + bHex});
        row("gps, cut in a stamp", "g.gps", QByteArray(2200, ' ') + stamped.chopped(1),
            {stampedSteps[0], "1 23:59:59.500 " + bHex, "error@2222"});
        row("gps, stamp beyond the day", "g.gps", QByteArray(2200, ' ') + stamped + a + receiverStamp(86400),
            stampedSteps + QStringList("2 00:00:00.250 " + aHex));
        row("gps, block length of two", "g.gps", QByteArray(2200, ' ') + stamped + hex("220002 00"),
            stampedSteps + QStringList("error@2232"));

        const QByteArray first = beast('3', 12000 * 5000LL, hex("8d4840d6202cc371c32ce0576098"));
        const QByteArray second = beast('2', 12000 * 5500LL + 0x1a, hex("5d4840d61a1a1a"));
        row("Beast, escapes and garbage", "m.modes",
            "\x1a"
            "2xx"
                + first + "*zz" + second + first.left(9),
            {"2 00:00:00.000 " + first.toHex(), "2 00:00:00.500 " + second.toHex()});
        row("Beast, frame cut short by the next", "m.beast", second.left(12) + first,
            {"2 00:00:00.000 " + first.toHex()});
        row("Beast, counter set anew, no counter", "m.beast",
            first + beast('2', 5, QByteArray(7, 'a')) + beast('1', 0, "aa") + beast('1', 12005, "bb"),
            {"2 00:00:00.000 " + first.toHex(), "2 00:00:00.000 " + beast('2', 5, QByteArray(7, 'a')).toHex(),
                "2 00:00:00.000 " + beast('1', 0, "aa").toHex(), "2 00:00:00.001 " + beast('1', 12005, "bb").toHex()});
        row("AVR", "m.avr", "*5D4840D6000000;\r\n@000000002EE05d4840d6000000;\n<000000005dc0ff5d4840d6000000;\n*5D48;x",
            {"- " + QByteArray("*5D4840D6000000;").toHex(),
                "2 00:00:00.000 " + QByteArray("@000000002EE05d4840d6000000;").toHex(),
                "2 00:00:00.001 " + QByteArray("<000000005dc0ff5d4840d6000000;").toHex(),
                "2 00:00:00.001 " + QByteArray("*5D48;").toHex()});
        row("no frames at all", "m.modes", QByteArray(300, 'x'), {});
    }

    void recordsAreUnwrappedAndStamped()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, octets);
        QFETCH(QStringList, steps);
        const auto reader = m_files.open(m_files.write(name, octets));
        QVERIFY(reader);
        QCOMPARE(m_files.steps(*reader), steps);
        QVERIFY(reader->reset());
        QCOMPARE(m_files.steps(*reader), steps);
        const auto packed = m_files.open(m_files.write(name + ".gz", m_files.gzip(octets)));
        QVERIFY(packed);
        QCOMPARE(m_files.steps(*packed), steps);
        QVERIFY(packed->reset());
        QCOMPARE(m_files.steps(*packed), steps);
    }

    void blocksTellTheirTime_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<QByteArray>("record"); // all of them at noon, less a second
        const QByteArray noon = tod(43199);
        const QByteArray source = hex("1901");
        const auto row = [](const char *tag, int category, const QByteArray &record) {
            QTest::newRow(tag) << category << record;
        };
        row("sector crossing", 2, hex("f0") + source + hex("0210") + noon);
        row("alert, list of recipients", 4, hex("f0") + source + hex("07 02aabb") + noon);
        row("weather, vectors", 8, hex("f980") + source + hex("01 80 01aabbcc 02aabbccddaabbccdd") + noon);
        row("weather, end of picture", 8, hex("e180") + source + hex("fe 0100") + noon);
        row("surface, extended descriptor", 10, hex("f0") + source + hex("01 010100") + noon);
        row("multilateration", 20, hex("e0") + source + hex("0102") + noon);
        row("ADS-B, position received", 21, hex("c118") + source + hex("0100 abcdef") + noon);
        row("ADS-B, position applicable", 21, hex("c910") + source + hex("0100") + noon + hex("abcdef"));
        row("ADS-B, first edition", 21, hex("e8") + source + hex("0000") + noon + hex("abcdef"));
        row("service, FSPEC of two octets", 34, hex("e100") + source + hex("01") + noon);
        row("plot", 48, hex("c0") + source + noon);
        row("system track, service", 62, hex("b0") + source + hex("01") + noon);
        row("video", 240,
            hex("eb48") + source + hex("02 00000001") + QByteArray(12, '\x01') + hex("0008") + hex("01aabbccdd")
                + noon);
    }

    void blocksTellTheirTime()
    {
        QFETCH(int, category);
        QFETCH(QByteArray, record);
        const QByteArray octets = big(category, 1) + big(record.size() + 3, 2) + record;
        const auto reader = m_files.open(m_files.write("one.ast", octets));
        QVERIFY(reader);
        QCOMPARE(reader->read().timeStamp, QDateTime({2023, 5, 2}, {11, 59, 59}, Qt::UTC));
        // A cut record must not be read beyond its end.
        const QByteArray cut = big(category, 1) + big(record.size() - 1, 2) + record.chopped(4);
        QVERIFY(m_files.open(m_files.write("cut.ast", cut))->read().kind == DataPacket::Data);
    }

    void truncatedTimesCrossMidnight()
    {
        QByteArray octets;
        for (const double seconds : {86399.0, 1.0, 86398.0, 20.0}) {
            const QByteArray record = hex("c2 1901 10") + big(static_cast<qint64>(seconds * 128) & 0xffff, 2);
            octets += (octets.isEmpty() ? hex("22000a e0 1901 01") + tod(86390) : QByteArray()) + big(1, 1)
                + big(record.size() + 3, 2) + record;
        }
        const auto reader = m_files.open(m_files.write("plots.ast", octets));
        QStringList times;
        for (DataPacket packet = reader->read(); packet.kind == DataPacket::Data; packet = reader->read()) {
            times += packet.timeStamp.toString("d hh:mm:ss");
        }
        QCOMPARE(times, QStringList({"1 23:59:50", "1 23:59:59", "2 00:00:01", "1 23:59:58", "2 00:00:20"}));
    }

    void truncatedAndMissingTimesFollowTheOthers()
    {
        // A plot 2 s before and one 3 s after a north marker at 512 s times 100; in between a block without a time.
        const auto plotBlock = [](double seconds) {
            const QByteArray record = hex("c2") + hex("1901 10") + big(static_cast<qint64>(seconds * 128) & 0xffff, 2);
            return big(1, 1) + big(record.size() + 3, 2) + record;
        };
        const QByteArray marker = hex("22000a") + hex("e0 1901 01") + tod(51200);
        const QByteArray untimed = hex("020006 80 1901");
        const auto reader =
            m_files.open(m_files.write("mixed.ast", untimed + plotBlock(51198) + marker + untimed + plotBlock(51203)));
        QVERIFY(reader);
        QStringList times;
        for (DataPacket packet = reader->read(); packet.kind == DataPacket::Data; packet = reader->read()) {
            times += packet.timeStamp.toString("d hh:mm:ss");
        }
        QCOMPARE(times, QStringList({"1 14:13:20", "1 14:13:18", "1 14:13:20", "1 14:13:20", "1 14:13:23"}));
    }
};

VYX_TEST(TestRecordFormats)
#include "tst_record_formats.moc"
