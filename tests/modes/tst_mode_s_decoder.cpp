#include "hex_frame.h"
#include "modes/codes.h"
#include "modes/encoder.h"
#include "modes/mode_s_decoder.h"
#include "modes/parity.h"
#include "test_program.h"

#include <QTest>

#include <bit>
#include <map>

using namespace korvane::modes;
using Fault = ModeSMessage::Fault;

namespace {

const QByteArray squitter = "8d406b902015a678d4d220aa4bda";

ModeSMessage decode(const ModeSFrame &frame, bool isCheckingAddress = false)
{
    ModeSDecoder decoder;
    ModeSMessage message;
    decoder.setAddressCheck(isCheckingAddress);
    decoder.decode(ModeSMessage::AnyDownlink, frame, message);
    return message;
}

} // namespace

class TestModeSDecoder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void decodesFormats_data()
    {
        QTest::addColumn<QByteArray>("head"); // all octets before the parity
        QTest::addColumn<int>("overlay"); // on the parity
        QTest::addColumn<QString>("decoded");
        const auto row = [](const char *name, const char *head, int overlay, const char *decoded) {
            QTest::newRow(name) << QByteArray(head) << overlay << QString(decoded);
        };
        // Format, address ('?' for other kinds), ground, status, altitude, squawk.
        row("DF 0 airborne", "00 00 1838", 0x4B1800, "0 4b1800 air 0 38000 -");
        row("DF 0 on the ground", "04 00 0000", 0x4B1800, "0 4b1800 ground 1 - -");
        row("DF 4 alert on the ground", "23 00 1838", 0x4B1800, "4 4b1800 ground 3 38000 -");
        row("DF 4 metric", "20 00 1040", 0x4B1800, "4 4b1800 air 0 6719 -");
        row("DF 5 emergency", "2A 00 0AA2", 0x4B1800, "5 4b1800 air 2 - 7500");
        row("DF 5 anywhere", "2C 00 0808", 0x4B1800, "5 4b1800 - 4 - 1200");
        row("DF 11 to an interrogator", "5D 4B1800", 9, "11 4b1800 air 5 - -");
        row("DF 11 on the ground", "5C 4B1800", 0, "11 4b1800 ground 4 - -");
        row("DF 16", "80 00 1838 30000000000000", 0x4B1800, "16 4b1800 air 0 38000 -");
        row("DF 17 of unknown capability", "8F 4B1800 20000000000000", 0, "17 4b1800 - 7 - -");
        row("DF 18 with an ICAO address", "90 4B1800 58C38000000000", 0, "18 4b1800 - 0 - -");
        row("DF 18 anonymous", "91 4B1800 58C38000000000", 0, "18 4b1800? - 1 - -");
        row("DF 18 TIS-B", "92 4B1800 58C38000000000", 0, "18 4b1800 - 2 - -");
        row("DF 18 TIS-B of a track file", "92 4B1800 59C38000000000", 0, "18 4b1800? - 2 - -");
        row("DF 18 TIS-B coarse of a track file", "93 4B1800 80C38000000000", 0, "18 4b1800? - 3 - -");
        row("DF 18 rebroadcast, other address", "96 4B1800 99C40994083817", 0, "18 4b1800? - 6 - -");
        row("DF 20", "A0 00 1838 00000000000000", 0x4B1800, "20 4b1800 air 0 38000 -");
        row("DF 21", "A9 00 0AA2 00000000000000", 0x4B1800, "21 4b1800 ground 1 - 7500");
        row("DF 24 segment", "D3 00000000000000000000", 0x4B1800, "24 4b1800 - 3 - -");
    }

    void decodesFormats()
    {
        QFETCH(QByteArray, head);
        QFETCH(int, overlay);
        ModeSFrame frame = frameFromHex(head + "000000");
        setParity(frame, static_cast<std::uint32_t>(overlay));
        const ModeSMessage message = decode(frame);
        QVERIFY(message.valid());
        const QString ground = !message.isOnGround() ? "-" : *message.isOnGround() ? "ground" : "air";
        const QString kind = message.addressKind() == ModeSMessage::AddressKind::Other ? "?" : "";
        const QString altitude = message.altitude() ? QString::number(*message.altitude()) : "-";
        const QString squawk = message.squawk() ? QString("%1").arg(*message.squawk(), 4, 8, QChar('0')) : "-";
        const QString decoded = QString("%1 %2%3 %4 %5 %6 %7")
                                    .arg(message.downlinkFormat())
                                    .arg(message.icaoAddr(), 6, 16)
                                    .arg(kind, ground)
                                    .arg(message.status())
                                    .arg(altitude, squawk);
        QTEST(decoded, "decoded");
        QCOMPARE(message.interrogator(), message.downlinkFormat() == 11 ? overlay : 0);
    }

    void refuses_data()
    {
        QTest::addColumn<QByteArray>("frame");
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("fault");
        const auto row = [](const char *name, const QByteArray &frame, Fault fault,
                             ModeSMessage::ModeSMsgType type = ModeSMessage::AnyDownlink) {
            QTest::newRow(name) << frame << int(type) << int(fault);
        };
        row("squitter", squitter, Fault::None, ModeSMessage::ExtendedSquitter);
        row("Mode A/C reply", "0620", Fault::NotModeS);
        row("nothing", "", Fault::Length);
        row("long format in a short frame", squitter.left(14), Fault::Length);
        row("short format in a long frame", "5d" + squitter.mid(2), Fault::Length);
        row("reserved format", "0800000000000000", Fault::DownlinkFormat);
        row("wrong parity", squitter.chopped(1) + "b", Fault::Parity);
        row("wrong parity of an all-call reply", "5d484fdea24875", Fault::Parity);
        row("other than squitter", "5d484fdea248f5", Fault::MessageType, ModeSMessage::ExtendedSquitter);
        row("reply of a stranger", "a000083e202cc371c31de0aa1ccf", Fault::UnknownAddress);
    }

    void refuses()
    {
        QFETCH(int, type);
        QFETCH(QByteArray, frame);
        ModeSDecoder decoder;
        const auto encapsulation = std::make_shared<ModeSEncapsulation>(frameFromHex(frame), ModeSEncapsulation::Raw);
        const auto message = decoder.decode(ModeSMessage::ModeSMsgType(type), encapsulation);
        QTEST(int(message->fault()), "fault");
        QCOMPARE(message->valid(), message->fault() == Fault::None);
        QVERIFY(!decoder.decode(ModeSMessage::AnyDownlink, nullptr)->valid());
        QTEST(int(message->fault()), "fault"); // held here, and so not reused
    }

    // Every single bit of squitters and all-call replies: noticed, put right when asked to, and never another message.
    void correctsSingleBits()
    {
        for (const ModeSFrame &good : {frameFromHex(squitter), encodeAllCall(0x484FDE)}) {
            for (int position = 1; position <= 8 * good.length; ++position) {
                ModeSFrame wrong = good;
                wrong.octets[(position - 1) / 8] ^= static_cast<unsigned char>(0x80 >> (position - 1) % 8);
                const bool isInterrogator = good.length == 7 && position > 49;
                QCOMPARE(decode(wrong, true).valid(), isInterrogator);
                ModeSDecoder decoder;
                ModeSMessage message;
                decoder.setErrorCorrection(true);
                decoder.decode(ModeSMessage::AnyDownlink, wrong, message);
                QCOMPARE(message.valid(), position > 5);
                if (message.valid() && !isInterrogator) {
                    QCOMPARE(hexOf(message.frame()), hexOf(good));
                    QCOMPARE(message.correctedBit(), position);
                }
            }
        }
    }

    void correctsNoReplies()
    {
        ModeSDecoder decoder;
        ModeSMessage message;
        decoder.setErrorCorrection(true);
        decoder.decode(ModeSMessage::AnyDownlink, encodeAllCall(0x4B1800), message);
        ModeSFrame wrong = encodeIdentityReply(0x4B1800, 01200);
        wrong.octets[3] ^= 1;
        decoder.decode(ModeSMessage::AnyDownlink, wrong, message);
        QCOMPARE(message.fault(), Fault::UnknownAddress);
    }

    void remembersAddressesForAMinute()
    {
        ModeSDecoder decoder;
        ModeSMessage message;
        const auto isValidAt = [&](ModeSFrame frame, unsigned long long time) {
            frame.timeStamp = time;
            decoder.decode(ModeSMessage::AnyDownlink, frame, message);
            return message.valid();
        };
        const ModeSFrame reply = encodeAltitudeReply(0x4B1800, 5000);
        QVERIFY(!isValidAt(reply, 1000));
        QVERIFY(!isValidAt(reply, 1001)); // a reply is no proof for the next
        QVERIFY(isValidAt(encodeAllCall(0x4B1800), 2000));
        QVERIFY(isValidAt(reply, 62000));
        QVERIFY(!isValidAt(reply, 62001));
        QVERIFY(isValidAt(reply, 0)); // a recording that starts over
        QVERIFY(!isValidAt(encodeAltitudeReply(0x4B1801, 5000), 2000));
        // Many others do not push a fresh one out.
        for (std::uint32_t address = 0; address < 3000; ++address) {
            isValidAt(encodeAllCall(0x100000 + 7 * address), 3000);
        }
        QVERIFY(isValidAt(reply, 3000));
    }

    // Neighbours in steps of 100 feet differ in one pulse, from the lowest to the highest, and each has one code.
    void decodesGillhamAltitudes()
    {
        std::map<int, unsigned> codes;
        for (unsigned code = 1; code < 0x2000; ++code) {
            const std::optional<int> altitude = code & 0x50 ? std::nullopt : altitudeFromCode(code);
            if (altitude) {
                QVERIFY(codes.emplace(*altitude, code).second);
            }
        }
        for (int altitude = -1100; altitude <= codes.rbegin()->first; altitude += 100) {
            QCOMPARE(std::popcount(codes.at(altitude - 100) ^ codes.at(altitude)), 1);
        }
        QCOMPARE(codes.begin()->first, -1200);
        QCOMPARE(codes[0], codeFromSquawk(00620));
        QCOMPARE(codes[-1000], codeFromSquawk(00020));
    }

    void codesThereAndBack()
    {
        for (int altitude = -1000; altitude <= 50175; altitude += 25) {
            QCOMPARE(altitudeFromCode(codeFromAltitude(altitude)), std::optional<int>(altitude));
        }
        QCOMPARE(altitudeFromCode(codeFromAltitude(99999)), std::optional<int>(50175));
        for (std::uint16_t squawk = 0; squawk < 010000; ++squawk) {
            QCOMPARE(squawkFromCode(codeFromSquawk(squawk)), squawk);
        }
        char text[9];
        for (const auto &[given, expected] : {std::pair{"SWR1 23", "SWR1 23"}, {"LX-ABC", "LX ABC"}, {"", ""},
                 {"ABCDEFGHIJ", "ABCDEFGH"}, {"?", ""}, {"  X", "  X"}}) {
            QVERIFY(callsignFromCode(codeFromCallsign(given), text));
            QCOMPARE(text, expected);
        }
    }
};

VYX_TEST(TestModeSDecoder)
#include "tst_mode_s_decoder.moc"
