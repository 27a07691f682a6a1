#include "asterix/encoder.h"
#include "octets.h"

#include <QTest>

#include <functional>

using korvane::asterix::BlockEncoder;

namespace {

using Fill = std::function<bool(BlockEncoder &)>;

// Octets of a block in hexadecimal, without its header.
QByteArray recordsOf(const BlockEncoder &encoder)
{
    return bytesOf(encoder.block()).mid(3).toHex();
}

} // namespace

Q_DECLARE_METATYPE(Fill)

class TestEncoder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void encodesRecord_data();
    void encodesRecord();
    void refusesValue_data();
    void refusesValue();
    void fillsBlockToItsLimit();
    void choosesUapOfCat001();
    void startsAfresh();
    void knowsItsTables();
};

void TestEncoder::encodesRecord_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<Fill>("fill");
    QTest::addColumn<QByteArray>("hex");
    const auto row = [](const char *name, int category, const Fill &fill, const char *hex) {
        QTest::newRow(name) << category << fill << QByteArray(hex);
    };
    row(
        "no items", 48, [](BlockEncoder &) { return true; }, "00");
    row(
        "range and azimuth", 48, [](BlockEncoder &e) { return e.set("040/RHO", 61.5) && e.set("040/THETA", 90); },
        "103d804000");
    row(
        "field not set is zero", 48, [](BlockEncoder &e) { return e.set("040/THETA", 90); }, "1000004000");
    row(
        "half an LSB rounds up", 48, [](BlockEncoder &e) { return e.set("040/RHO", 1.5 / 256); }, "1000020000");
    row(
        "less than half an LSB", 48, [](BlockEncoder &e) { return e.set("040/RHO", 1.49 / 256); }, "1000010000");
    row(
        "negative level", 48, [](BlockEncoder &e) { return e.set("090/FL", -2.5); }, "043ff6");
    row(
        "most negative value", 48, [](BlockEncoder &e) { return e.set("042/X", -256); }, "010880000000");
    row(
        "octal text", 48, [](BlockEncoder &e) { return e.setText("070/MODE3A", "7000"); }, "080e00");
    row(
        "callsign filled with blanks", 48, [](BlockEncoder &e) { return e.setText("240", "VYX123"); },
        "0140599631cb3820");
    row(
        "first extent alone", 48, [](BlockEncoder &e) { return e.set("020/TYP", 5); }, "20a0");
    row(
        "extents up to the highest set", 48, [](BlockEncoder &e) { return e.set("020/POXPR/VAL", 0); }, "2001010100");
    row(
        "extended, last bit of all", 48, [](BlockEncoder &e) { return e.set("020/IRMACT/VAL", 1); }, "20010101010110");
    row(
        "sub-items in their order", 48, [](BlockEncoder &e) { return e.set("130/PAM", -60) && e.set("130/SRL", 0); },
        "02"
        "8800c4");
    row(
        "second octet of presence", 62, [](BlockEncoder &e) { return e.set("380/BVR", -625); },
        "0110"
        "0104ff9c");
    row(
        "repetitions", 34,
        [](BlockEncoder &e) {
            return e.addRepetition("070") && e.set("070/TYP", 1) && e.addRepetition("070") && e.set("070/COUNT", 257);
        },
        "018002"
        "08000101");
    row(
        "repeated elements", 48, [](BlockEncoder &e) { return e.set("030", 2) && e.set("030", 16); }, "0101400520");
    row(
        "groups repeated by FX", 62,
        [](BlockEncoder &e) {
            return e.addRepetition("510") && e.set("510/IDENT", 1) && e.addRepetition("510") && e.set("510/TRACK", 1);
        },
        "01010108"
        "010001000002");
    row(
        "register contents", 48,
        [](BlockEncoder &e) {
            const unsigned char mb[] = {1, 2, 3, 4, 5, 6, 7};
            return e.addRepetition("250") && e.setExplicit("250/MBDATA", mb) && e.set("250/BDS1", 4);
        },
        "012001"
        "0102030405060740");
    row(
        "explicit item", 48,
        [](BlockEncoder &e) {
            const unsigned char contents[] = {0xAB, 0xCD};
            return e.setExplicit("SP", contents);
        },
        "01010104"
        "03abcd");
    row(
        "unit chosen by another field", 62,
        [](BlockEncoder &e) { return e.set("380/IAS/IM", 1) && e.set("380/IAS/IAS", 0.8); },
        "0110"
        "108320");
    row(
        "unit chosen by a field not set", 62, [](BlockEncoder &e) { return e.set("380/IAS/IAS", 0.125); },
        "0110"
        "100800");
    row(
        "last set wins", 34, [](BlockEncoder &e) { return e.set("000", 1) && e.set("000", 2); }, "4002");
    row(
        "present though empty", 34, [](BlockEncoder &e) { return e.setPresent("050"); }, "0400");
}

void TestEncoder::encodesRecord()
{
    QFETCH(int, category);
    QFETCH(Fill, fill);
    BlockEncoder encoder(category);
    encoder.beginRecord();
    QVERIFY(fill(encoder));
    QVERIFY(encoder.endRecord());
    QTEST(recordsOf(encoder), "hex");
    QCOMPARE(bytesOf(encoder.block()).left(3).toHex(),
        QString::asprintf("%02x%04x", category, int(encoder.block().size())).toLatin1());
}

void TestEncoder::refusesValue_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<Fill>("refused");
    const auto row = [](const char *name, int category, const Fill &refused) {
        QTest::newRow(name) << category << refused;
    };
    row("unknown item", 48, [](BlockEncoder &e) { return e.set("999", 0); });
    row("unknown field", 48, [](BlockEncoder &e) { return e.set("040/X", 0); });
    row("group as a value", 48, [](BlockEncoder &e) { return e.set("040", 0); });
    row("spare bits", 48, [](BlockEncoder &e) { return e.set("070/", 0); });
    row("beyond the range", 48, [](BlockEncoder &e) { return e.set("040/RHO", 256); });
    row("rounded beyond the range", 48, [](BlockEncoder &e) { return e.set("040/RHO", 255.999); });
    row("negative where there is no sign", 48, [](BlockEncoder &e) { return e.set("040/RHO", -1); });
    row("below the least", 48, [](BlockEncoder &e) { return e.set("042/X", -256.01); });
    row("not a number", 48, [](BlockEncoder &e) { return e.set("040/RHO", qQNaN()); });
    row("infinite", 48, [](BlockEncoder &e) { return e.set("042/X", qInf()); });
    row("too many bits", 48, [](BlockEncoder &e) { return e.setRaw("161/TRN", 4096); });
    row("no such octal digit", 48, [](BlockEncoder &e) { return e.setText("070/MODE3A", "7800"); });
    row("too few octal digits", 48, [](BlockEncoder &e) { return e.setText("070/MODE3A", "700"); });
    row("lower case callsign", 48, [](BlockEncoder &e) { return e.setText("240", "vyx123"); });
    row("callsign too long", 48, [](BlockEncoder &e) { return e.setText("240", "VYX123456"); });
    row("text for a number", 48, [](BlockEncoder &e) { return e.setText("040/RHO", "1"); });
    row("field of no repetition", 34, [](BlockEncoder &e) { return e.set("070/TYP", 1); });
    row("repetition of a group", 34, [](BlockEncoder &e) { return e.addRepetition("120"); });
    row("register of six octets", 48, [](BlockEncoder &e) {
        const unsigned char mb[6] = {};
        e.addRepetition("250");
        return e.setExplicit("250/MBDATA", mb);
    });
    row("explicit item of 255 octets", 48, [](BlockEncoder &e) {
        const std::vector<unsigned char> contents(255);
        return e.setExplicit("SP", contents);
    });
    row("256 repetitions", 34, [](BlockEncoder &e) {
        for (int i = 0; i < 255; ++i)
            e.addRepetition("070");
        return e.addRepetition("070");
    });
}

void TestEncoder::refusesValue()
{
    QFETCH(int, category);
    QFETCH(Fill, refused);
    BlockEncoder encoder(category);
    encoder.beginRecord();
    QVERIFY(!refused(encoder));
    // Nothing else came of it: the record with what was set before is still a good one.
    encoder.set("010/SIC", 5);
    QVERIFY(encoder.endRecord());
    _ast_datablock_t block;
    const Octets octets(bytesOf(encoder.block()));
    QVERIFY(ast_datablock_smart_decode(&block, octets.data(), octets.size()));
    QVERIFY(block.valid);
    QVERIFY(!itemsOf(block.records[0]).contains("040"));
    QVERIFY(!itemsOf(block.records[0]).contains("042"));
}

void TestEncoder::fillsBlockToItsLimit()
{
    BlockEncoder encoder(48);
    const std::vector<unsigned char> contents(252);
    const auto add = [&](std::size_t octets) {
        encoder.beginRecord();
        encoder.setExplicit("SP", std::span(contents).first(octets));
        return encoder.endRecord();
    };
    // Four octets of FSPEC and one of length: 257 a record, 65,281 with the block's header, 254 left.
    for (int i = 0; i < 254; ++i)
        QVERIFY(add(252));
    QVERIFY(!add(250));
    QCOMPARE(encoder.block().size(), std::size_t{65281});
    QVERIFY(add(249));
    QCOMPARE(encoder.block().size(), std::size_t{65535});
    QVERIFY(!add(0));
    // A block that refused a record is as it was, and whole.
    const Octets octets(bytesOf(encoder.block()));
    _ast_datablock_t block;
    QVERIFY(ast_datablock_smart_decode(&block, octets.data(), octets.size()));
    QVERIFY(block.valid);
    QCOMPARE(block.records.size(), std::size_t{255});
}

void TestEncoder::choosesUapOfCat001()
{
    BlockEncoder automatic(1);
    BlockEncoder plots(1, nullptr, "plot");
    BlockEncoder tracks(1, nullptr, "track");
    for (BlockEncoder *encoder : {&automatic, &plots, &tracks}) {
        encoder->beginRecord();
        encoder->set("040/RHO", 1);
        QVERIFY(encoder->endRecord());
    }
    QCOMPARE(recordsOf(automatic), QByteArray("2000800000"));
    QCOMPARE(recordsOf(plots),
        QByteArray("60"
                   "00"
                   "00800000"));
    QCOMPARE(recordsOf(tracks),
        QByteArray("50"
                   "80"
                   "00800000"));
    // One block may mix them where each record chooses.
    automatic.beginRecord();
    QVERIFY(automatic.set("020/TYP", 1) && automatic.set("161", 7));
    QVERIFY(automatic.endRecord());
    QCOMPARE(recordsOf(automatic),
        QByteArray("2000800000"
                   "60800007"));
    // A track's item has no place in a plot.
    plots.beginRecord();
    plots.set("161", 7);
    QVERIFY(!plots.endRecord());
    QCOMPARE(plots.recordCount(), std::size_t{1});
}

void TestEncoder::startsAfresh()
{
    BlockEncoder encoder(48);
    encoder.beginRecord();
    encoder.set("020/IRMACT/VAL", 1);
    encoder.addRepetition("250");
    encoder.set("030", 5);
    QVERIFY(encoder.endRecord());
    encoder.beginBlock();
    QCOMPARE(bytesOf(encoder.block()).toHex(), QByteArray("300003"));
    // Nothing is left over of the first record, nor of one that was begun and not ended.
    encoder.beginRecord();
    encoder.set("040/RHO", 1);
    encoder.beginRecord();
    encoder.set("020/TYP", 1);
    encoder.addRepetition("250");
    QVERIFY(encoder.endRecord());
    QCOMPARE(recordsOf(encoder),
        QByteArray("212020"
                   "01"
                   "0000000000000000"));
}

void TestEncoder::knowsItsTables()
{
    QVERIFY(BlockEncoder(48, "1.32").valid());
    QVERIFY(!BlockEncoder(48, "9.99").valid());
    QVERIFY(!BlockEncoder(200).valid());
    QVERIFY(!BlockEncoder(48, nullptr, "plot").valid());
    BlockEncoder none(200);
    none.beginBlock();
    none.beginRecord();
    QVERIFY(!none.set("010/SAC", 1) && !none.addRepetition("250") && !none.setPresent("010") && !none.endRecord());
    QVERIFY(none.block().empty());
}

QTEST_GUILESS_MAIN(TestEncoder)
#include "tst_encoder.moc"
