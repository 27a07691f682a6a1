#include "hex_frame.h"
#include "modes/encoder.h"
#include "modes/mode_s_encapsulation.h"
#include "modes/receiver_clock.h"
#include "test_program.h"

#include <QTest>

#include <random>

using namespace korvane::modes;
using Format = ModeSEncapsulation::Format;

namespace {

const QByteArray squitter = "8d406b902015a678d4d220aa4bda";
const QByteArray allCall = "5d484fdea248f5";
const QByteArray reply = "a000083e202cc371c31de0aa1ccf"; // of an address

QByteArray octets(const QByteArray &hex)
{
    return QByteArray::fromHex(hex);
}

QByteArray listOf(const std::vector<std::shared_ptr<ModeSEncapsulation>> &frames)
{
    QByteArrayList list;
    for (const auto &frame : frames) {
        list.append(hexOf(frame->frame()));
    }
    return list.join(' ');
}

// Frames of every length, with octets that need escaping everywhere.
std::string randomStream(Format format, std::vector<ModeSFrame> &frames)
{
    std::mt19937 random(7);
    std::string stream;
    for (unsigned i = 0; i < 60; ++i) {
        const std::uint64_t me = i % 3 ? random() * 0x1000193ULL & 0xFFFFFFFFFFFFFF : 0x1A1A1A1A1A1A1A;
        ModeSFrame frame = i % 2 ? encodeSquitter(random() & 0xFFFFFF, me) : encodeAllCall(0x1A1A00 + i);
        frame.ticks = i % 5 ? random() * 16ULL : 0x1A1A1A1A1A1A;
        frame.signalLevel = i % 4 ? 0x1A : 0x31;
        frames.push_back(frame);
        appendEncapsulated(stream, frame, format);
    }
    return stream;
}

} // namespace

class TestModeSEncapsulation : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void extracts_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<QByteArray>("received");
        QTest::addColumn<QByteArray>("frames");
        QTest::addColumn<int>("left"); // octets in the buffer
        const auto row = [](const char *name, Format format, const QByteArray &received, const QByteArray &frames,
                             int left = 0) { QTest::newRow(name) << int(format) << received << frames << left; };
        const QByteArray both = squitter + ' ' + allCall;

        row("avr: frames of all kinds", ModeSEncapsulation::Avr,
            "*" + squitter + ";\r\n@0000000F4240" + allCall.toUpper() + ";<0000000F424080" + allCall + ";*0620;",
            both + ' ' + allCall + " 0620");
        row("avr: noise between frames", ModeSEncapsulation::Avr,
            "8d;;*" + squitter + ";no*5d48 frame;*" + allCall + ';', both);
        row("avr: frame broken off by the next", ModeSEncapsulation::Avr,
            "*8d406b*" + squitter + ";@00*" + allCall + ';', both);
        row("avr: wrong numbers of digits", ModeSEncapsulation::Avr,
            "*;*5d484fdea248f;@" + squitter.left(24) + ";*" + squitter + "00;*" + squitter + ';', squitter);
        row("avr: digits without end", ModeSEncapsulation::Avr, '*' + QByteArray(200, '0') + ";*" + allCall + ';',
            allCall);
        row("avr: incomplete", ModeSEncapsulation::Avr, '*' + allCall + ";xx*" + allCall, allCall, 15);

        const QByteArray head = octets("0000000F4240 80");
        const QByteArray kind3 = octets("1A33") + head + octets(squitter);
        const QByteArray kind2 = octets("1A32") + head + octets(allCall);
        row("beast: all kinds", ModeSEncapsulation::Beast, kind3 + octets("1A31") + head + octets("0620") + kind2,
            squitter + " 0620 " + allCall);
        row("beast: receiver state passed over", ModeSEncapsulation::Beast,
            octets("1A34") + head + octets(squitter) + kind2, allCall);
        row("beast: noise and doubled escapes before", ModeSEncapsulation::Beast,
            octets("33AA1A1A33001A1A") + kind3 + kind2, both);
        row("beast: frame broken off by the next", ModeSEncapsulation::Beast, kind3.left(15) + kind3 + kind2, both);
        row("beast: unknown kind", ModeSEncapsulation::Beast, octets("1A35") + head + kind3, squitter);
        row("beast: incomplete", ModeSEncapsulation::Beast, kind2 + kind3.chopped(1), allCall, 22);
        row("beast: escape at the end", ModeSEncapsulation::Beast, kind2 + octets("1A"), allCall, 1);

        const QByteArray all = octets(squitter) + octets(reply) + octets(allCall);
        row("raw: back to back", ModeSEncapsulation::Raw, all, squitter + ' ' + reply + ' ' + allCall);
        row("raw: noise before and between", ModeSEncapsulation::Raw,
            octets("11") + all + octets("FF8D") + octets(squitter),
            squitter + ' ' + reply + ' ' + allCall + ' ' + squitter);
        QByteArray damaged = octets(squitter);
        damaged[6] = static_cast<char>(damaged[6] ^ 4);
        row("raw: damaged frame keeps its place", ModeSEncapsulation::Raw, damaged + octets(allCall),
            damaged.toHex() + ' ' + allCall);
        row("raw: replies alone after noise", ModeSEncapsulation::Raw, octets("11") + octets(reply).repeated(4),
            reply + ' ' + reply + ' ' + reply + ' ' + reply);
        row("raw: incomplete", ModeSEncapsulation::Raw, all + octets(squitter).chopped(1),
            squitter + ' ' + reply + ' ' + allCall, 13);
        row("raw with level: level is no frame", ModeSEncapsulation::RawRssi,
            octets(squitter) + octets("5D") + octets(allCall) + octets("8D"), both);
        row("raw with level: level is missing yet", ModeSEncapsulation::RawRssi, octets(allCall), "", 7);
    }

    void extracts()
    {
        QFETCH(int, format);
        QFETCH(QByteArray, received);
        std::string buffer = received.toStdString();
        const QByteArray frames = listOf(ModeSEncapsulation::extract(buffer, Format(format)));
        QTEST(frames, "frames");
        QTEST(int(buffer.size()), "left");
    }

    // Whatever the pieces, the frames that went in come out, with what the format carries beside them.
    void survivesEverySplit()
    {
        for (std::size_t step = 1; step < 160; ++step) {
            const auto format = Format(step % 4);
            const bool hasTicks = format == ModeSEncapsulation::Avr || format == ModeSEncapsulation::Beast;
            std::vector<ModeSFrame> sent;
            const std::string stream = randomStream(format, sent);
            std::string buffer;
            std::vector<ModeSFrame> got;
            for (std::size_t offset = 0; offset < stream.size(); offset += 1 + step / 4) {
                buffer.append(stream, offset, 1 + step / 4);
                for (const auto &frame : ModeSEncapsulation::extract(buffer, format)) {
                    got.push_back(frame->frame());
                }
            }
            QCOMPARE(got.size(), sent.size());
            for (std::size_t i = 0; i < got.size(); ++i) {
                QCOMPARE(hexOf(got[i]), hexOf(sent[i]));
                QCOMPARE(got[i].signalLevel, format == ModeSEncapsulation::Raw ? std::uint8_t(0) : sent[i].signalLevel);
                QCOMPARE(got[i].ticks, hasTicks ? sent[i].ticks : ModeSFrame::NoTicks);
                QCOMPARE(got[i].timeStamp, hasTicks ? sent[i].ticks / 12000 : 0);
            }
        }
    }

    void framesOutliveTheirExtraction()
    {
        std::string buffer = ('*' + squitter + ";*" + allCall + ';').toStdString();
        std::shared_ptr<ModeSEncapsulation> kept = ModeSEncapsulation::extract(buffer, ModeSEncapsulation::Avr)[1];
        kept->setTimeStamp(1700000000000);
        QCOMPARE(hexOf(kept->frame()), allCall);
        QCOMPARE(kept->timeStamp(), 1700000000000ULL);
    }

    void namesFormats()
    {
        QSet<QString> names;
        for (int format = 0; format < 4; ++format) {
            names.insert(QString::fromStdString(ModeSEncapsulation::name(Format(format))));
            QCOMPARE(int(ModeSEncapsulation::fromIdentifier(ModeSEncapsulation::identifier(Format(format)))), format);
        }
        QCOMPARE(names.size(), 4);
        QCOMPARE(ModeSEncapsulation::fromIdentifier("unknown"), ModeSEncapsulation::Beast);
        QCOMPARE(ModeSEncapsulation::identifier(Format(9)), std::string("beast"));
    }

    void tiesReceiverClockToUtc()
    {
        ReceiverClock clock;
        ModeSFrame frame;
        QCOMPARE(clock.toUtc(frame, 5000000), 5000000ULL); // no counter
        const auto at = [&](unsigned long long milliseconds, unsigned long long arrival) {
            frame.ticks = milliseconds * ModeSFrame::TicksPerMillisecond;
            return clock.toUtc(frame, arrival);
        };
        QCOMPARE(at(700, 5000000), 5000000ULL);
        QCOMPARE(at(900, 5001000), 5000200ULL); // late by the network
        QCOMPARE(at(100, 5010000), 5010000ULL); // the receiver was started again
        QCOMPARE(at(150, 5010300), 5010050ULL);
    }
};

VYX_TEST(TestModeSEncapsulation)
#include "tst_mode_s_encapsulation.moc"
