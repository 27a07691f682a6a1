#include "astfile/file_reader.h"
#include "test_files.h"
#include "test_program.h"

#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace korvane::astfile;

namespace {

QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

QByteArray big16(int value)
{
    return QByteArray(1, static_cast<char>(value >> 8)) + static_cast<char>(value);
}

QByteArray little32(quint32 value)
{
    QByteArray octets = big16(static_cast<int>(value >> 16)) + big16(static_cast<int>(value & 0xffff));
    std::reverse(octets.begin(), octets.end());
    return octets;
}

QByteArray udp(const QByteArray &payload)
{
    return hex("0fa0c350") + big16(static_cast<int>(payload.size()) + 8) + hex("0000") + payload;
}

// flagsAndOffset as in the header: 0x2000 more fragments, the rest the offset in units of eight octets.
QByteArray ipv4(const QByteArray &body, int flagsAndOffset = 0, int identification = 7, const QByteArray &options = {})
{
    const int headerSize = 20 + static_cast<int>(options.size());
    return QByteArray(1, static_cast<char>(0x40 | headerSize / 4)) + '\0'
        + big16(static_cast<int>(body.size()) + headerSize) + big16(identification) + big16(flagsAndOffset)
        + hex("4011 0000 0a000001 0a000002") + options + body;
}

QByteArray ipv6(const QByteArray &body, int nextHeader = 17)
{
    return hex("60000000") + big16(static_cast<int>(body.size())) + static_cast<char>(nextHeader) + "\x40"
        + QByteArray(16, '\x11') + QByteArray(16, '\x22') + body;
}

// An IPv6 fragment header and its share of the datagram.
QByteArray ipv6Fragment(const QByteArray &share, int offset, bool more)
{
    return ipv6(hex("1100") + big16(offset | (more ? 1 : 0)) + hex("0000abcd") + share, 44);
}

QByteArray ethernet(const QByteArray &tags, const QByteArray &packet)
{
    return hex("020000000001 020000000002") + tags + packet;
}

constexpr int Ethernet = 1;
constexpr int RawIp = 101;
constexpr int CookedV1 = 113;
constexpr int CookedV2 = 276;

} // namespace

// What stands between a capture's frame and the datagram: link, IP and UDP headers, assembled octet by octet.
class TestCaptureLayers final : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    // The payloads read from a capture of these frames, one second apart (or as given).
    QByteArrayList payloads(int linkType, const QByteArrayList &frames, quint32 secondsApart = 1)
    {
        QByteArray octets =
            hex("d4c3b2a1 0200 0400 00000000 00000000 00000400") + little32(static_cast<quint32>(linkType));
        quint32 seconds = 1000;
        for (const QByteArray &frame : frames) {
            const QByteArray size = little32(static_cast<quint32>(frame.size()));
            octets += little32(seconds) + little32(0) + size + size + frame;
            seconds += secondsApart;
        }
        const QString path = writtenTo(m_dir.filePath("frames.pcap"), octets);
        const auto reader = FileReader::create(RecFile::Pcap);
        QByteArrayList result;
        if (!reader->open(path, RecFile::Pcap)) {
            return {"not opened"};
        }
        for (DataPacket packet = reader->read(); packet.kind != DataPacket::End; packet = reader->read()) {
            result += packet.kind == DataPacket::Data ? packet.data : QByteArray("error");
        }
        return result;
    }

private Q_SLOTS:
    void framesAreUnpacked_data()
    {
        QTest::addColumn<int>("linkType");
        QTest::addColumn<QByteArray>("frame");
        QTest::addColumn<bool>("found");
        const QByteArray v4 = ipv4(udp("hello"));
        const QByteArray v6 = ipv6(udp("hello"));
        const auto row = [](const char *tag, int linkType, const QByteArray &frame, bool found = true) {
            QTest::newRow(tag) << linkType << frame << found;
        };
        row("Ethernet, IPv4", Ethernet, ethernet(hex("0800"), v4));
        row("Ethernet, IPv4, padded to the shortest frame", Ethernet, ethernet(hex("0800"), v4) + QByteArray(13, '\0'));
        row("IPv4 with options", Ethernet, ethernet(hex("0800"), ipv4(udp("hello"), 0, 7, hex("94040000 01010100"))));
        row("IPv4, TCP beside it", Ethernet, ethernet(hex("0800"), QByteArray(v4).replace(9, 1, "\x06")), false);
        row("IPv6, TCP beside it", RawIp, ipv6(udp("hello"), 6), false);
        row("Ethernet, two VLAN tags", Ethernet, ethernet(hex("88a8 0002 8100 0064 86dd"), v6));
        row("Ethernet, VLAN tag cut short", Ethernet, ethernet(hex("8100 00"), {}), false);
        row("cooked, first version", CookedV1, hex("0000 0001 0006 020000000001 0000 0800") + v4);
        row("cooked, second version", CookedV2, hex("86dd 0000 00000002 0001 00 06 0200000000010000") + v6);
        row("loopback, IPv6, family in the other octet order", 0, hex("0000001e") + v6);
        row("loopback of the other kind, IPv4", 108, hex("00000002") + v4);
        row("raw, neither", RawIp, hex("55") + v4, false);
        row("IPv4 header shorter than can be", RawIp, QByteArray(v4).replace(0, 1, "\x44"), false);
        row("IPv4 length shorter than its header", RawIp, QByteArray(v4).replace(2, 2, hex("0013")), false);
        row("IPv4 length left to the network card", RawIp, QByteArray(v4).replace(2, 2, hex("0000")));
        row("UDP length below its header", RawIp, QByteArray(v4).replace(24, 2, hex("0007")), false);
        row("IPv6, hop-by-hop, routing and destination options", RawIp,
            ipv6(
                hex("2b01") + QByteArray(14, '\0') + hex("3c00 000000000000") + hex("1100 000000000000") + udp("hello"),
                0));
        row("IPv6, authentication header", RawIp, ipv6(hex("1104") + QByteArray(22, '\0') + udp("hello"), 51));
    }

    void framesAreUnpacked()
    {
        QFETCH(int, linkType);
        QFETCH(QByteArray, frame);
        QFETCH(bool, found);
        // A frame that holds nothing of use must not disturb the next one.
        const QByteArrayList list = payloads(linkType, {frame, frame});
        QCOMPARE(list, found ? QByteArrayList({"hello", "hello"}) : QByteArrayList());
    }

    void payloadIsCutAtTheLengthFieldAndAtTheCapture()
    {
        QCOMPARE(payloads(RawIp, {ipv4(udp("hello") + "trailer")}), QByteArrayList{"hello"});
        QCOMPARE(payloads(RawIp, {ipv4(udp("hello")).chopped(2)}), QByteArrayList{"hel"});
        QCOMPARE(payloads(RawIp, {ipv4(udp({}))}), QByteArrayList{""});
    }

    void fragmentsArePutTogether_data()
    {
        QTest::addColumn<QByteArrayList>("frames");
        QTest::addColumn<int>("datagrams");
        const QByteArray whole = udp(QByteArray(40, 'x')); // 48 octets: fragments at 0, 16, 32
        const QByteArray a = ipv4(whole.left(16), 0x2000);
        const QByteArray b = ipv4(whole.mid(16, 16), 0x2002);
        const QByteArray c = ipv4(whole.mid(32), 0x0004);
        const auto row = [](const char *tag, const QByteArrayList &frames, int datagrams) {
            QTest::newRow(tag) << frames << datagrams;
        };
        row("in order", {a, b, c}, 1);
        row("last first", {c, b, a}, 1);
        row("overlapping", {a, ipv4(whole.mid(8, 24), 0x2001), c}, 1);
        row("hole", {a, c}, 0);
        row("two datagrams interleaved", {a, ipv4(whole.left(16), 0x2000, 8), b, c, ipv4(whole.mid(16), 0x0002, 8)}, 2);
        row("the same identification again", {a, b, c, a, b, c}, 2);
        row("fragment of odd size before the last", {ipv4(whole.left(17), 0x2000), b, c}, 0);
        row("end beyond the largest datagram", {a, ipv4(whole.mid(16), 0x1fff), b}, 0);
        row("IPv6", {ipv6Fragment(whole.left(16), 0, true), ipv6Fragment(whole.mid(16), 16, false)}, 1);
        row("IPv6 and IPv4 do not mix", {ipv6Fragment(whole.left(16), 0, true), ipv4(whole.mid(16), 0x0002)}, 0);
    }

    void fragmentsArePutTogether()
    {
        QFETCH(QByteArrayList, frames);
        QFETCH(int, datagrams);
        QCOMPARE(payloads(RawIp, frames), QByteArrayList(datagrams, QByteArray(40, 'x')));
    }

    void incompleteDatagramsAreForgotten()
    {
        const QByteArray whole = udp(QByteArray(40, 'x'));
        const QByteArray first = ipv4(whole.left(16), 0x2000);
        const QByteArray rest = ipv4(whole.mid(16), 0x0002);
        QCOMPARE(payloads(RawIp, {first, rest}, 30).size(), 1);
        QCOMPARE(payloads(RawIp, {first, rest}, 31).size(), 0);
        // By number: a flood of beginnings pushes the oldest out, and only that.
        QByteArrayList flood = {first};
        for (int identification = 100; identification < 164; ++identification) {
            flood += ipv4(whole.left(16), 0x2000, identification);
        }
        QCOMPARE(payloads(RawIp, flood + QByteArrayList{rest}, 0).size(), 0);
        QCOMPARE(payloads(RawIp, flood + QByteArrayList{ipv4(whole.mid(16), 0x0002, 100)}, 0).size(), 1);
    }
};

VYX_TEST(TestCaptureLayers)
#include "tst_capture_layers.moc"
