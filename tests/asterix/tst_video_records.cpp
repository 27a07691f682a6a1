#include "test_program.h"
#include "typed_twins.h"

#include <QTest>

namespace {

const char *const nanoHeader = "40004400 00000010 00000064"; // 90 to 95.625 degrees, from cell 16 on, 100 ns

// A video message of the items with these FSPEC octets.
Octets video(const char *fspec, const QByteArray &items)
{
    return Octets::block(240, QByteArray(fspec) + " 19C9 02 00000007" + items);
}

} // namespace

class TestVideoRecords : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsRecord()
    {
        const Octets octets = video("EBE8 ", QByteArray(nanoHeader) + "0004 0008 000006 02 01020304 05060000 5460C0");
        const auto record = typedRecord<_ast_datarecord_240_t>(octets, ast_datarecord_240_disassemble);
        QVERIFY(!record.valid); // two video blocks are named and one is there
        const Octets good = video("EBC8 ", QByteArray(nanoHeader) + "0004 0008 000006 02 01020304 05060000 54607F");
        const auto row = typedRecord<_ast_datarecord_240_t>(good, ast_datarecord_240_disassemble);
        QVERIFY(row.valid && row.i000.type == 2 && row.i020.sequence == 7 && !row.i030.present && !row.i041.present);
        QVERIFY(row.i040.startAzimuth == 90 && row.i040.endAzimuth == 95.625 && row.i040.startCell == 16);
        QVERIFY(!row.i048.compressed && row.i048.resolution == 4 && row.i049.octets == 8 && row.i049.cells == 6);
        QVERIFY(row.i050.present && row.i050.size == 8 && row.i050.octets[7] == 0 && !row.i052.present);
        QVERIFY(row.i140.hours == 12 && row.i140.minutes == 0 && row.i140.seconds == 0);
        QCOMPARE(row.i140.milliseconds, std::uint16_t{992});
        QVERIFY(!ast_datarecord_240_get_sacsic(_ast_datarecord_t()).present);
        const Octets message = Octets::block(240, "D0 19C9 01 03 414243");
        const auto summary = typedRecord<_ast_datarecord_240_t>(message, ast_datarecord_240_disassemble);
        QCOMPARE(QByteArray(summary.i030.text, summary.i030.length), QByteArray("ABC"));
    }

    void unpacksCells_data()
    {
        QTest::addColumn<QByteArray>("fspec");
        QTest::addColumn<QByteArray>("items");
        QTest::addColumn<int>("capacity");
        QTest::addColumn<int>("error");
        QTest::addColumn<QList<unsigned>>("cells");
        const auto row = [](const char *name, const char *fspec, const QByteArray &items, int capacity, int error,
                             const QList<unsigned> &cells = {}) {
            QTest::newRow(name) << QByteArray(fspec) << items << capacity << error << cells;
        };
        const QByteArray header(nanoHeader);
        row("1 bit", "EBC0", header + "0001 0002 00000A 01 A5C00000", 10, 0, {1, 0, 1, 0, 0, 1, 0, 1, 1, 1});
        row("2 bits", "EBC0", header + "0002 0002 000005 01 1BC00000", 10, 0, {0, 1, 2, 3, 3});
        row("4 bits", "EBC0", header + "0003 0002 000003 01 1BC00000", 10, 0, {1, 11, 12});
        row("8 bits", "EBC0", header + "0004 0003 000003 01 1BFF0000", 10, 0, {27, 255, 0});
        row("16 bits", "EBC0", header + "0005 0004 000002 01 1BFF8000", 10, 0, {0x1BFF, 0x8000});
        row("32 bits", "EBC0", header + "0006 0004 000001 01 FFFFFFFE", 10, 0, {0xFFFFFFFE});
        row("second element of a repetition", "EBC0", header + "0004 0005 000005 02 01020304 05000000", 5, 0,
            {1, 2, 3, 4, 5});
        row("medium volume", "EBA0", header + "0005 0040 000001 01 8001" + QByteArray(124, '0'), 1, 0, {0x8001});
        row("high volume", "EB90", header + "0006 0100 000001 01 80000001" + QByteArray(504, '0'), 1, 0, {0x80000001});
        row("no counters", "EB40", header + "0005 01 00010002", 2, 0, {1, 2});
        row("no cells", "EBC0", header + "0004 0000 000000 01 00000000", 0, 0);
        row("header in femtoseconds", "E7C0", header + "0004 0001 000001 01 09000000", 1, 0, {9});
        row("no block", "EB80", header + "0004 0000 000000", 10, AST_VIDEO_NO_VECTOR);
        row("block of nothing", "EBC0", header + "0004 0000 000000 00", 10, AST_VIDEO_NO_VECTOR);
        row("no header", "E3C0", "0004 0004 000004 01 01020304", 10, AST_VIDEO_NO_HEADER);
        row("no resolution", "E9C0", header + "0004 000004 01 01020304", 10, AST_VIDEO_NO_RESOLUTION);
        row("resolution 0", "EBC0", header + "0000 0004 000004 01 01020304", 10, AST_VIDEO_UNKNOWN_RESOLUTION);
        row("resolution 7", "EBC0", header + "0007 0004 000004 01 01020304", 10, AST_VIDEO_UNKNOWN_RESOLUTION);
        row("compressed", "EBC0", header + "8004 0004 000004 01 01020304", 10, AST_VIDEO_COMPRESSED);
        row("one cell too many", "EBC0", header + "0003 0004 000009 01 01020304", 10, AST_VIDEO_CELLS_MISSING);
        row("more cells than 32 bits count octets", "EBC0", header + "0006 0004 FFFFFF 01 01020304", 10,
            AST_VIDEO_CELLS_MISSING);
        row("buffer too small", "EBC0", header + "0004 0004 000004 01 01020304", 3, AST_VIDEO_BUFFER_TOO_SMALL);
    }

    void unpacksCells()
    {
        QFETCH(QByteArray, fspec);
        QFETCH(QByteArray, items);
        QFETCH(int, capacity);
        QFETCH(int, error);
        QFETCH(QList<unsigned>, cells);
        const Octets octets = video(fspec.constData(), items);
        _ast_datablock_t block;
        QVERIFY(ast_datablock_smart_decode(&block, octets.data(), octets.size()) && block.valid);
        const auto size = static_cast<std::size_t>(capacity);
        const auto buffer = std::make_unique<unsigned[]>(size); // exact, for the sanitizer
        _ast_video_vector_t vector{};
        QCOMPARE(ast_datarecord_240_get_vector(&vector, buffer.get(), size, block.records[0]), error);
        if (error == AST_VIDEO_BUFFER_TOO_SMALL) {
            QCOMPARE(vector.cellCount, 4U);
        }
        if (error == AST_VIDEO_OK) {
            QCOMPARE(QList<unsigned>(buffer.get(), buffer.get() + vector.cellCount), cells);
        }
    }

    void describesVector()
    {
        const auto describe = [](const char *fspec, const QByteArray &items) {
            const Octets octets = video(fspec, items);
            _ast_datablock_t block;
            ast_datablock_smart_decode(&block, octets.data(), octets.size());
            _ast_video_vector_t vector{};
            unsigned cells[8];
            ast_datarecord_240_get_vector(&vector, cells, 8, block.records.at(0));
            return vector;
        };
        const auto nano = describe("EBC0", "FF000100 00000010 00000064 0004 0001 000001 01 09000000");
        QVERIFY(nano.startAzimuth == 358.59375 && nano.endAzimuth == 1.40625 && nano.startCell == 16);
        QCOMPARE(nano.cellSize, 14.9896229);
        const auto femto = describe("E7C0", "FF000100 00000010 05F5E100 0004 0001 000001 01 09000000"); // 1e8 fs
        QCOMPARE(femto.cellSize, 14.9896229);
        QVERIFY(femto.videoMode != nano.videoMode);
        const auto wide = describe("EBC0", "FF000100 00000010 00000064 0005 0001 000001 01 09000000");
        QVERIFY(wide.videoMode != nano.videoMode);
    }
};

VYX_TEST(TestVideoRecords)
#include "tst_video_records.moc"
