#include "asterix/encoder.h"
#include "octets.h"
#include "test_program.h"

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

class TestEncoder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void encodesRecord_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<QByteArray>("hex");
        QTest::addColumn<Fill>("fill");
        const auto row = [](const char *name, int category, const char *hex, const Fill &fill) {
            QTest::newRow(name) << category << QByteArray(hex) << fill;
        };
        using E = BlockEncoder;
        row("range and azimuth", 48, "103d804000",
            [](E &e) { return e.set("040/RHO", 61.5) && e.set("040/THETA", 90); });
        row("half an LSB rounds up", 48, "1000020000", [](E &e) { return e.set("040/RHO", 1.5 / 256); });
        row("less than half an LSB", 48, "1000010000", [](E &e) { return e.set("040/RHO", 1.49 / 256); });
        row("most negative value", 48, "010880000000", [](E &e) { return e.set("042/X", -256); });
        row("octal text", 48, "080e00", [](E &e) { return e.setText("070/MODE3A", "7000"); });
        row("callsign filled with blanks", 48, "0140599631cb3820", [](E &e) { return e.setText("240", "VYX123"); });
        row("first extent alone", 48, "20a0", [](E &e) { return e.set("020/TYP", 5); });
        row("sub-items in their order", 48, "028800c4",
            [](E &e) { return e.set("130/PAM", -60) && e.set("130/SRL", 0); });
        row("second octet of presence", 62, "01100104ff9c", [](E &e) { return e.set("380/BVR", -625); });
        row("repeated elements", 48, "0101400520", [](E &e) { return e.set("030", 2) && e.set("030", 16); });
        row("groups repeated by FX", 62, "01010108010001000002", [](E &e) {
            return e.addRepetition("510") && e.set("510/IDENT", 1) && e.addRepetition("510") && e.set("510/TRACK", 1);
        });
        row("register contents", 48, "0120010102030405060740", [](E &e) {
            const unsigned char mb[] = {1, 2, 3, 4, 5, 6, 7};
            return e.addRepetition("250") && e.setExplicit("250/MBDATA", mb) && e.set("250/BDS1", 4);
        });
        row("unit chosen by another field", 62, "0110108320",
            [](E &e) { return e.set("380/IAS/IM", 1) && e.set("380/IAS/IAS", 0.8); });
        row("sub-items of an expansion", 62, "01010101040730fffc000080",
            [](E &e) { return e.set("RE/TVS/VX", -1) && e.set("RE/STS/FDR", 1) && e.setPresent("RE/STS"); });
        row("contents instead of sub-items", 62, "010101010402aa", [](E &e) {
            const unsigned char contents[] = {0xAA};
            return e.set("RE/TVS/VX", 1) && e.setExplicit("RE", contents);
        });
        row("present though empty", 34, "0400", [](E &e) { return e.setPresent("050"); });
    }

    void encodesRecord()
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

    void refusesValue_data()
    {
        QTest::addColumn<Fill>("refused");
        const auto row = [](const char *name, const Fill &refused) { QTest::newRow(name) << refused; };
        using E = BlockEncoder;
        row("unknown field", [](E &e) { return e.set("040/X", 0); });
        row("spare bits", [](E &e) { return e.set("070/", 0); });
        row("rounded beyond the range", [](E &e) { return e.set("040/RHO", 255.999); });
        row("negative where there is no sign", [](E &e) { return e.set("040/RHO", -1); });
        row("below the least", [](E &e) { return e.set("042/X", -256.01); });
        row("not a number", [](E &e) { return e.set("040/RHO", qQNaN()); });
        row("too many bits", [](E &e) { return e.setRaw("161/TRN", 4096); });
        row("no such octal digit", [](E &e) { return e.setText("070/MODE3A", "7800"); });
        row("callsign too long", [](E &e) { return e.setText("240", "VYX123456"); });
        row("field of no repetition", [](E &e) { return e.set("250/BDS1", 1); });
        row("repetition of a group", [](E &e) { return e.addRepetition("040"); });
        row("register of six octets",
            [](E &e) { return e.addRepetition("250") && e.setExplicit("250/MBDATA", std::vector<unsigned char>(6)); });
        row("explicit item of 255 octets", [](E &e) { return e.setExplicit("SP", std::vector<unsigned char>(255)); });
        row("256 repetitions", [](E &e) {
            for (int i = 0; i < 255; ++i) {
                e.addRepetition("250");
            }
            return e.addRepetition("250");
        });
    }

    void refusesValue()
    {
        QFETCH(Fill, refused);
        BlockEncoder encoder(48);
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

    void fillsBlockToItsLimit()
    {
        BlockEncoder encoder(48);
        const std::vector<unsigned char> contents(252);
        const auto add = [&](std::size_t octets) {
            encoder.beginRecord();
            encoder.setExplicit("SP", std::span(contents).first(octets));
            return encoder.endRecord();
        };
        // Four octets of FSPEC and one of length: 257 a record, 65,281 with the block's header, 254 left.
        for (int i = 0; i < 254; ++i) {
            QVERIFY(add(252));
        }
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

    void refusesExpansionTooLong()
    {
        BlockEncoder encoder(48);
        for (const int links : {125, 126}) {
            encoder.beginBlock();
            encoder.beginRecord();
            for (int i = 0; i < links; ++i) {
                QVERIFY(encoder.set("RE/RTC/ATL", i));
            }
            // Length, the two presence fields and the count: four octets beside the links.
            QCOMPARE(encoder.endRecord(), links == 125);
            QCOMPARE(encoder.block().size(), std::size_t(links == 125 ? 3 + 4 + 254 : 3));
        }
    }

    void choosesUapOfCat001()
    {
        BlockEncoder automatic(1);
        BlockEncoder plots(1, nullptr, "plot");
        BlockEncoder tracks(1, nullptr, "track");
        for (BlockEncoder *encoder : {&automatic, &plots, &tracks}) {
            encoder->beginRecord();
            encoder->set("040/RHO", 1);
            QVERIFY(encoder->endRecord());
        }
        QCOMPARE(recordsOf(plots), QByteArray("600000800000"));
        QCOMPARE(recordsOf(tracks), QByteArray("508000800000"));
        // One block may mix them where each record chooses.
        automatic.beginRecord();
        QVERIFY(automatic.set("020/TYP", 1) && automatic.set("161", 7) && automatic.endRecord());
        QCOMPARE(recordsOf(automatic), QByteArray("200080000060800007"));
        // A track's item has no place in a plot.
        plots.beginRecord();
        plots.set("161", 7);
        QVERIFY(!plots.endRecord());
        QCOMPARE(plots.recordCount(), std::size_t{1});
    }

    void startsAfresh()
    {
        BlockEncoder encoder(48);
        encoder.beginRecord();
        encoder.set("020/IRMACT/VAL", 1);
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
        QCOMPARE(recordsOf(encoder), QByteArray("212020010000000000000000"));
    }

    void knowsItsTables()
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
};

VYX_TEST(TestEncoder)
#include "tst_encoder.moc"
