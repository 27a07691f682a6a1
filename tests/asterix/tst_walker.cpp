#include "asterix/asterix.h"
#include "asterix/profile.h"
#include "octets.h"
#include "test_program.h"

#include <QTest>

#include <atomic>
#include <cstdlib>
#include <new>

using korvane::asterix::Error;

namespace {

std::atomic<int> allocations{0};
QString loggedText;

// Two plots of item 010 alone, for what stands before a fault.
constexpr const char *TwoPlots = "80 19C9  80 19CA ";

} // namespace

// A sanitizer has its own; its builds see only that the records stay where they are.
#ifndef __SANITIZE_ADDRESS__
void *operator new(std::size_t size)
{
    ++allocations;
    if (void *memory = std::malloc(size > 0 ? size : 1)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}
#endif

class TestWalker : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void refusesWhatIsNoWholeBlock_data()
    {
        QTest::addColumn<QByteArray>("hex");
        QTest::addColumn<bool>("whole");
        QTest::addColumn<Error>("error");
        QTest::addColumn<int>("size");
        QTest::newRow("nothing") << QByteArray() << false << Error::BlockHeaderTruncated << 0;
        QTest::newRow("length zero") << QByteArray("30000080") << true << Error::BlockLengthZero << 0;
        QTest::newRow("length two") << QByteArray("30000280") << false << Error::BlockLengthTooShort << 2;
        QTest::newRow("one octet short") << QByteArray("3000068019") << false << Error::BlockTruncated << 6;
        QTest::newRow("octets after it") << QByteArray("3000068019C93000") << true << Error::None << 6;
        QTest::newRow("unknown category") << QByteArray("FE0004FF") << true << Error::UnknownCategory << 4;
        QTest::newRow("unknown category cut short") << QByteArray("FE0009FF") << false << Error::BlockTruncated << 9;
    }

    void refusesWhatIsNoWholeBlock()
    {
        QFETCH(QByteArray, hex);
        QFETCH(Error, error);
        const Octets octets = Octets::fromHex(hex.constData());
        _ast_datablock_t block;
        block.valid = true;
        QTEST(ast_datablock_smart_decode(&block, octets.data(), octets.size()), "whole");
        QCOMPARE(block.error, error);
        QTEST(static_cast<int>(block.size), "size");
        QCOMPARE(block.valid, error == Error::None);
        QVERIFY(error == Error::None || block.records.empty());
    }

    void stopsAtFault_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<QByteArray>("records"); // after two good ones
        QTest::addColumn<Error>("error");
        QTest::addColumn<int>("offset"); // from the first octet of records
        const auto row = [](const char *name, int category, const char *records, Error error, int offset) {
            QTest::newRow(name) << category << QByteArray(records) << error << offset;
        };
        row("FSPEC without end", 48, "81 01", Error::FspecTruncated, 2);
        row("FSPEC bit of a vacant place", 62, "40", Error::SpareFspecBit, 0);
        row("FSPEC bit beyond any item", 48, "01 01 01 01 01 01 01 01 01 02", Error::SpareFspecBit, 9);
        row("descriptor that chooses the UAP missing", 1, "E0 19C9", Error::ItemTruncated, 3);
        row("extended item without end", 48, "20 ABABAB", Error::ItemTruncated, 4);
        row("repetition by FX without end", 48, "01 01 40 0503", Error::ItemTruncated, 5);
        row("group repetition by FX cut short", 62, "01 01 01 08 01 0203 04", Error::ItemTruncated, 8);
        row("presence field without end", 34, "04 81", Error::ItemTruncated, 2);
        row("sub-item", 34, "04 80", Error::ItemTruncated, 2);
        row("presence bit of a vacant place", 34, "04 C0 00", Error::SparePresenceBit, 1);
        row("presence bit after the last sub-item", 34, "04 81 01 80 00", Error::SparePresenceBit, 3);
        row("repetition count", 34, "01 80 02 0801 08", Error::RepetitionTruncated, 2);
        row("explicit length zero", 34, "01 02 00 00", Error::ExplicitLengthZero, 2);
        row("explicit length", 34, "01 02 05 010203", Error::ExplicitLengthTruncated, 2);
        row("random field missing", 2, "01 02 02 02 01", Error::ItemTruncated, 5);
        row("random field zero", 2, "01 02 01 00 01", Error::RandomFieldSequence, 3);
        row("random field within itself", 2, "01 02 01 0E 01", Error::RandomFieldSequence, 3);
        row("random field beyond the UAP", 2, "01 02 01 0F 01", Error::RandomFieldSequence, 3);
        row("random field cut short", 2, "01 02 01 01 19", Error::ItemTruncated, 5);
    }

    void stopsAtFault()
    {
        QFETCH(int, category);
        QFETCH(QByteArray, records);
        QFETCH(int, offset);
        const Octets octets = Octets::block(category, QByteArray(TwoPlots) + records);
        _ast_datablock_t block;
        QVERIFY(ast_datablock_smart_decode(&block, octets.data(), octets.size()));
        QVERIFY(!block.valid);
        QTEST(block.error, "error");
        QCOMPARE(static_cast<int>(block.errorOffset), 3 + 6 + offset);
        QCOMPARE(static_cast<std::size_t>(block.size), octets.size());
        QCOMPARE(block.records.size(), std::size_t{2});
        QVERIFY(block.records[1].valid);
        QCOMPARE(int(ast_datarecord_get_sacsic(block.records[1]).sic), 0xCA);
    }

    void passesOverItems_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<QByteArray>("record");
        QTest::newRow("FSPEC longer than needed") << 48 << QByteArray("81 01 01 01 01 01 01 01 01 01 00 19C9");
        QTest::newRow("extents of a later edition") << 48 << QByteArray("20 01 01 01 01 01 01 01 00");
        QTest::newRow("presence field longer than needed") << 34 << QByteArray("04 81 00 55");
        QTest::newRow("no repetitions") << 34 << QByteArray("01 80 00");
        QTest::newRow("explicit length of itself alone") << 34 << QByteArray("01 02 01");
        QTest::newRow("repeated sub-item") << 48 << QByteArray("01 01 04 C0 8001 02 000100020003 000400050006");
        QTest::newRow("no random fields") << 2 << QByteArray("01 02 00");
        QTest::newRow("random fields of any kind") << 2 << QByteArray("01 02 03 01 19C9 06 0302 08 01 8001");
    }

    void passesOverItems()
    {
        QFETCH(int, category);
        QFETCH(QByteArray, record);
        // The record after it shows that its end was found.
        const Octets octets = Octets::block(category, record + " 80 19C9");
        _ast_datablock_t block;
        QVERIFY(ast_datablock_smart_decode(&block, octets.data(), octets.size()));
        QVERIFY2(block.valid, korvane::asterix::errorText(block.error));
        QCOMPARE(block.records.size(), std::size_t{2});
        QCOMPARE(block.records[0].length + 3, static_cast<int>(octets.size()) - 3);
        QCOMPARE(block.records[1].data, octets.data() + octets.size() - 3);
        QVERIFY(ast_datarecord_get_sacsic(block.records[1]).present);
    }

    void choosesUapOfCat001_data()
    {
        QTest::addColumn<QByteArray>("record");
        QTest::addColumn<bool>("isTrack"); // where each record chooses
        // FRN 3 is the polar position of a plot (four octets) and the track number of a track (two).
        QTest::newRow("plot") << QByteArray("E0 19C9 00 12344000") << false;
        QTest::newRow("track") << QByteArray("F0 19C9 80 1234 01004000") << true;
        QTest::newRow("no descriptor") << QByteArray("A0 19C9 12344000") << false;
    }

    void choosesUapOfCat001()
    {
        QFETCH(QByteArray, record);
        QFETCH(bool, isTrack);
        const Octets octets = Octets::block(1, record);
        _ast_datablock_t block;
        for (const bool isSmart : {true, false}) {
            QVERIFY(isSmart ? ast_datablock_smart_decode(&block, octets.data(), octets.size())
                            : ast_datablock_decode(&block, octets.data(), octets.size(), AST_UAP_STANDARD));
            QVERIFY(block.valid);
            QCOMPARE(itemsOf(block.records[0]).contains("161"), isTrack);
            QVERIFY(itemsOf(block.records[0]).contains("040"));
        }
        // A track read with the plot's UAP ends amid its position, or has another item in its place.
        QVERIFY(ast_datablock_decode(&block, octets.data(), octets.size(), AST_UAP_CAT001_PLOT));
        QVERIFY(block.records.empty() || !itemsOf(block.records[0]).contains("161"));
    }

    void reusesItsMemory_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<QByteArray>("record");
        QTest::newRow("plots") << 48 << QByteArray("F0 19C9 546000 A0 3D804000");
        QTest::newRow("an edition is chosen") << 21 << QByteArray("C110 19C9 00 4CA123");
    }

    void reusesItsMemory()
    {
        QFETCH(int, category);
        QFETCH(QByteArray, record);
        const Octets large = Octets::block(category, record.repeated(300));
        const Octets small = Octets::block(category, "80 19C9");
        _ast_datablock_t block;
        ast_datablock_smart_decode(&block, large.data(), large.size());
        QCOMPARE(block.records.size(), std::size_t{300});
        const _ast_datarecord_t *const first = block.records.data();
        const int before = allocations;
        _ast_datarecord_048_t typed;
        for (int i = 0; i < 10; ++i) {
            const Octets &octets = i % 2 ? large : small;
            ast_datablock_smart_decode(&block, octets.data(), octets.size());
            for (const _ast_datarecord_t &decoded : block.records) {
                ast_datarecord_048_disassemble(&typed, decoded);
            }
        }
        QCOMPARE(allocations - before, 0);
        QCOMPARE(block.records.data(), first);
    }

    void logsFaultsToTheHandler()
    {
        const Octets octets = Octets::block(48, "80 19");
        _ast_datablock_t block;
        ast_log_handler_reg([](int level, const char *text) { loggedText = QString("%1 %2").arg(level).arg(text); });
        ast_datablock_smart_decode(&block, octets.data(), octets.size());
        QCOMPARE(loggedText, QString("0 CAT048: item runs past the end of the block (octet 5)"));
        loggedText.clear();
        ast_log_handler_reg(nullptr);
        ast_datablock_smart_decode(&block, octets.data(), octets.size());
        QVERIFY(loggedText.isEmpty());
    }
};

VYX_TEST(TestWalker)
#include "tst_walker.moc"
