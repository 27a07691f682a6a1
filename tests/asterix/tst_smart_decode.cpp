#include "adsb_blocks.h"
#include "edition_choice.h"
#include "random_records.h"
#include "test_program.h"

#include <QTest>

#include <functional>

using korvane::asterix::BlockEncoder;

namespace {

using Fill = std::function<bool(BlockEncoder &)>;

QString editionOf(const _ast_datablock_t &block)
{
    return block.records.empty() ? "none" : QString::fromUtf8(block.records[0].uap->layout->edition().edition);
}

// A block of one record with what every edition has, and something else.
QByteArray blockOf(const char *edition, const Fill &fill, int sic = 1)
{
    BlockEncoder encoder(21, edition);
    encoder.beginRecord();
    encoder.set("010/SAC", 25);
    encoder.set("010/SIC", sic);
    encoder.set("040/ATP", 0);
    encoder.set("080", 0x4CA123);
    if (!fill(encoder) || !encoder.endRecord()) {
        return {};
    }
    return bytesOf(encoder.block());
}

QString choose(_ast_datablock_t &memory, const QByteArray &bytes)
{
    const Octets octets(bytes);
    ast_datablock_smart_decode(&memory, octets.data(), octets.size());
    return memory.valid ? editionOf(memory) : "fault";
}

} // namespace

class TestSmartDecode : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsBlocksOfEveryEdition_data()
    {
        QTest::addColumn<QByteArray>("edition");
        QTest::addColumn<bool>("isRandom");
        QTest::addColumn<int>("records");
        QTest::addColumn<int>("most"); // wrong ones of 400
        for (const char *edition : {"0.23", "0.26", "2.1", "2.7"}) {
            for (const int records : {1, 3, 10}) {
                QTest::addRow("%s, %d records of a station", edition, records)
                    << QByteArray(edition) << false << records << 0;
            }
            QTest::addRow("%s, random", edition) << QByteArray(edition) << true << 3 << 2;
        }
    }

    void readsBlocksOfEveryEdition()
    {
        QFETCH(QByteArray, edition);
        QFETCH(bool, isRandom);
        QFETCH(int, records);
        QFETCH(int, most);
        AdsbBlocks stations(edition.constData(), 7);
        RandomRecords random(21, edition.constData(), nullptr, 7);
        int wrong = 0;
        for (int i = 0; i < 400; ++i) {
            const BlockEncoder &encoder = isRandom ? random.makeBlock(records) : stations.makeBlock(records);
            const Octets octets(bytesOf(encoder.block()));
            _ast_datablock_t block;
            wrong += choiceFor({octets.data(), octets.size()}, edition.toStdString(), block) == EditionChoice::Wrong;
        }
        QVERIFY2(wrong <= most, qPrintable(QString("%1 of 400").arg(wrong)));
    }

    void tellsEditionsApart_data()
    {
        QTest::addColumn<QByteArray>("block");
        QTest::addColumn<QString>("edition");
        const auto row = [](const char *name, const char *encoded, const char *chosen, const Fill &fill) {
            QTest::newRow(name) << blockOf(encoded, fill) << QString(chosen);
        };
        using E = BlockEncoder;
        row("nothing of any edition's own", "2.1", "2.7", [](E &) { return true; });
        row("length and width without an extent bit", "2.1", "2.1", [](E &e) { return e.set("271/LW", 6); });
        row("length and width with one", "2.7", "2.7", [](E &e) { return e.set("271/LW", 6); });
        row("list look-up bit", "2.7", "2.7", [](E &e) { return e.set("040/LLC", 1); });
        row("extents that came later", "2.7", "2.7", [](E &e) { return e.set("090/VALDISTP1", 128); });
        row("position of 24 bits after a time", "0.23", "0.23",
            [](E &e) { return e.set("030", 4000) && e.set("130/LAT", 48.2) && e.set("130/LON", 16.5); });
        row("position of 32 bits after a time", "0.26", "0.26",
            [](E &e) { return e.set("030", 4000) && e.set("130/LAT", 48.2) && e.set("130/LON", 16.5); });
        row("only the newer of two has the item", "0.26", "0.26",
            [](E &e) { return e.set("030", 4000) && e.setText("070/MODE3A", "7000"); });
    }

    void tellsEditionsApart()
    {
        QFETCH(QByteArray, block);
        _ast_datablock_t memory;
        QTEST(choose(memory, block), "edition");
    }

    void remembersTheSource()
    {
        const Fill clear = [](BlockEncoder &e) {
            return e.set("030", 4000) && e.set("130/LAT", 48) && e.set("130/LON", 9);
        };
        const Fill unclear = [](BlockEncoder &e) { return e.set("030", 4000) && e.set("145", 300); };
        _ast_datablock_t memory;
        QCOMPARE(choose(memory, blockOf("0.23", unclear)), QString("0.26"));
        QCOMPARE(choose(memory, blockOf("0.23", clear)), QString("0.23"));
        QCOMPARE(choose(memory, blockOf("0.23", unclear)), QString("0.23"));
        QCOMPARE(choose(memory, blockOf("0.23", unclear, 2)), QString("0.26"));
        QCOMPARE(choose(memory, blockOf("0.23", unclear)), QString("0.23"));
        // The station is upgraded.
        QCOMPARE(choose(memory, blockOf("0.26", clear)), QString("0.26"));
        QCOMPARE(choose(memory, blockOf("0.23", unclear)), QString("0.26"));
    }

    void reportsWhatNoEditionReads()
    {
        const QByteArray whole = blockOf("2.7", [](BlockEncoder &e) { return e.set("271/POA", 1); });
        QByteArray cut = whole + whole.mid(3).chopped(1);
        cut[2] = static_cast<char>(cut.size());
        _ast_datablock_t memory;
        choose(memory, whole);
        QCOMPARE(choose(memory, cut), QString("fault"));
        QCOMPARE(memory.records.size(), std::size_t{1});
        QCOMPARE(static_cast<int>(memory.errorOffset), static_cast<int>(cut.size()));
        QVERIFY(memory.error == korvane::asterix::Error::ItemTruncated);
        // It has not been taken for a sign of anything.
        QCOMPARE(choose(memory, whole), QString("2.7"));
    }

    void profilesNameTheirEditions_data()
    {
        QTest::addColumn<const void *>("profile");
        QTest::addColumn<QString>("edition"); // of CAT021
        QTest::newRow("standard") << static_cast<const void *>(AST_UAP_STANDARD) << "2.7";
        QTest::newRow("CAT001 plots") << static_cast<const void *>(AST_UAP_CAT001_PLOT) << "2.7";
        QTest::newRow("0.23") << static_cast<const void *>(AST_UAP_CAT021_VER023) << "0.23";
        QTest::newRow("0.26") << static_cast<const void *>(AST_UAP_CAT021_VER026) << "0.26";
        QTest::newRow("2.1") << static_cast<const void *>(AST_UAP_CAT021_VER21) << "2.1";
        QTest::newRow("2.7") << static_cast<const void *>(AST_UAP_CAT021_VER27) << "2.7";
        QTest::newRow("ASR10SS") << static_cast<const void *>(AST_UAP_ASR10SS) << "2.7";
        QTest::newRow("THALES") << static_cast<const void *>(AST_UAP_THALES) << "2.7";
    }

    void profilesNameTheirEditions()
    {
        QFETCH(const void *, profile);
        const auto *const uap = static_cast<const _ast_uap_t *>(profile); // opaque: no type that Qt could know
        _ast_datablock_t block;
        const Octets octets(blockOf("0.26", [](BlockEncoder &) { return true; }));
        ast_datablock_decode(&block, octets.data(), octets.size(), uap);
        QTEST(editionOf(block), "edition");
        for (const korvane::asterix::EditionName &name : korvane::asterix::editions()) {
            const Octets empty = Octets::block(name.category, "80 19C9");
            ast_datablock_decode(&block, empty.data(), empty.size(), uap);
            QVERIFY2(block.valid, name.title.c_str());
        }
    }
};

VYX_TEST(TestSmartDecode)
#include "tst_smart_decode.moc"
