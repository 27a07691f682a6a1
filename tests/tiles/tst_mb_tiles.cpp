#include "test_program.h"
#include "tiles/mb_tiles_reader.h"
#include "tiles/mb_tiles_writer.h"
#include "tiles/sqlite_connection.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace {

QByteArray picture(int value)
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(qRgb(value & 255, value >> 8, 7));
    QBuffer buffer;
    image.save(&buffer, "png");
    return buffer.data();
}

const QByteArray VectorTile("\x1f\x8b\x08\x00 not a picture");

} // namespace

class TestMbTiles : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    // A file made by another program: statements, and a tile where "?" stands.
    QString foreign(const QString &name, const QStringList &statements, const QByteArray &tile = {})
    {
        SqliteConnection connection(path(name), SqliteConnection::Access::ReadWrite);
        for (const QString &statement : statements) {
            QSqlQuery query = connection.query();
            query.prepare(statement);
            if (statement.contains(QLatin1Char('?'))) {
                query.addBindValue(tile);
            }
            if (!query.exec()) {
                return {};
            }
        }
        return path(name);
    }

private Q_SLOTS:
    void readsWhatIsWritten();
    void readsOtherProgramsFiles();
    void refusesWhatHoldsNoPictures_data();
    void refusesWhatHoldsNoPictures();
    void severalThreadsRead();
    void goesOnAfterItWasKilled();
    void leavesTheOldFileUntilFinished();
    void beginsAnewWhereTheRestIsDamaged();
    void oneWriterAtATime();
};

void TestMbTiles::readsWhatIsWritten()
{
    MbTilesWriter writer;
    QVERIFY2(
        writer.open(path("a.mbtiles"), {"Site", "of the site", "Us", {}, true, 0, 0, {}}, MbTilesWriter::Start::Anew),
        qPrintable(writer.error()));
    const TileIndex north{2, 0, 2};
    const TileIndex south{2, 3, 2};
    QVERIFY(writer.put(north, picture(1)) && writer.put(south, picture(2)) && writer.put({0, 0, 1}, picture(3)));
    QVERIFY(writer.put(south, picture(4))); // in place of the other
    QVERIFY(!writer.put({1, 1, 2}, VectorTile) && !writer.put({1, 1, 2}, "<html>"));
    QVERIFY(writer.contains(south) && !writer.contains({1, 1, 2}));
    QVERIFY2(writer.finish(), qPrintable(writer.error()));

    MbTilesReader reader;
    QVERIFY2(reader.open(path("a.mbtiles")), qPrintable(reader.error()));
    QCOMPARE(reader.tile(north), picture(1));
    QCOMPARE(reader.tile(south), picture(4));
    QVERIFY(reader.tile({2, 1, 2}).isEmpty() && reader.tile({-5, 9000, 40}).isEmpty());
    const MbTilesMetadata &said = reader.metadata();
    QCOMPARE(said.name + said.description + said.attribution + said.format, "Siteof the siteUspng");
    QVERIFY(said.isOverlay && said.minLevel == 1 && said.maxLevel == 2);
    QVERIFY(std::abs(said.bounds.bottom() - 85.0511288) < 1e-6 && std::abs(said.bounds.top() + 85.0511288) < 1e-6);
    QCOMPARE(said.bounds.left(), 0.0);
    QCOMPARE(said.bounds.right(), 90.0);
    // Rows from the south, as other programs expect them.
    SqliteConnection connection(path("a.mbtiles"), SqliteConnection::Access::ReadOnly);
    QSqlQuery query = connection.query();
    QVERIFY(query.exec("SELECT tile_row FROM tiles WHERE zoom_level = 2 ORDER BY tile_row") && query.next());
    QCOMPARE(query.value(0).toInt(), 0);
    QVERIFY(query.next() && query.value(0).toInt() == 3);
}

// Tiles as a view of two tables, and hardly any metadata, which say the wrong levels.
void TestMbTiles::readsOtherProgramsFiles()
{
    const QString file = foreign("other.mbtiles",
        {"CREATE TABLE map (z INTEGER, x INTEGER, y INTEGER, id TEXT)", "CREATE TABLE images (id TEXT, d BLOB)",
            "CREATE VIEW tiles AS SELECT z AS zoom_level, x AS tile_column, y AS tile_row, d AS tile_data FROM map "
            "JOIN "
            "images ON map.id = images.id",
            "CREATE TABLE metadata (name TEXT, value TEXT)",
            "INSERT INTO metadata VALUES ('bounds', '1,2,x,4'), ('minzoom', '-7'), ('maxzoom', '99'), ('format', "
            "'pbf')",
            "INSERT INTO images VALUES ('sea', ?)", "INSERT INTO map VALUES (5, 3, 30, 'sea'), (6, 3, 30, 'sea')"},
        picture(9));
    MbTilesReader reader;
    QVERIFY2(reader.open(file), qPrintable(reader.error()));
    QCOMPARE(reader.tile({3, 1, 5}), picture(9));
    QVERIFY(reader.metadata().minLevel == 5 && reader.metadata().maxLevel == 6);
    QVERIFY(reader.metadata().bounds.isNull() && !reader.metadata().isOverlay);
}

void TestMbTiles::refusesWhatHoldsNoPictures_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    const QString tiles =
        "CREATE TABLE tiles (zoom_level INTEGER, tile_column INTEGER, tile_row INTEGER, tile_data BLOB)";
    const QString insert = "INSERT INTO tiles VALUES (0, 0, 0, ?)";
    QFile text(path("text.mbtiles"));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("SQLite? No. This is a text of more than a few octets.") > 0);
    text.close();
    QTest::newRow("absent") << path("absent.mbtiles") << "does not exist";
    QTest::newRow("folder") << m_folder.path() << "does not exist";
    QTest::newRow("text") << text.fileName() << "not an MBTiles file";
    QTest::newRow("other tables") << foreign("tables", {"CREATE TABLE birds (name TEXT)"}) << "not an MBTiles file";
    QTest::newRow("no tiles") << foreign("none", {tiles}) << "no tiles";
    QTest::newRow("vector tiles") << foreign("vector", {tiles, insert}, VectorTile) << "vector tiles";
    QTest::newRow("other octets") << foreign("octets", {tiles, insert}, "<html>") << "not pictures";
}

void TestMbTiles::refusesWhatHoldsNoPictures()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    MbTilesReader reader;
    QVERIFY(!reader.open(file) && !reader.isOpen());
    QVERIFY2(reader.error().contains(reason) && reader.error().startsWith(file), qPrintable(reader.error()));
    QVERIFY(reader.tile({0, 0, 0}).isEmpty());
}

void TestMbTiles::severalThreadsRead()
{
    MbTilesWriter writer;
    QVERIFY(writer.open(path("t.mbtiles"), {}, MbTilesWriter::Start::Anew));
    for (int i = 0; i < 64; ++i) {
        QVERIFY(writer.put({i, 5, 6}, picture(i)));
    }
    QVERIFY(writer.finish());
    MbTilesReader reader;
    QVERIFY(reader.open(path("t.mbtiles")));
    std::atomic<int> right = 0;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&reader, &right] {
            for (int i = 0; i < 64; ++i) {
                right += reader.tile({i, 5, 6}) == picture(i);
            }
        });
    }
    std::for_each(threads.begin(), threads.end(), [](std::thread &thread) { thread.join(); });
    QCOMPARE(right.load(), 4 * 64);
}

// What is on the disk while a transaction is open is what a killed program leaves.
void TestMbTiles::goesOnAfterItWasKilled()
{
    MbTilesWriter killed;
    QVERIFY(killed.open(path("k.mbtiles"), {}, MbTilesWriter::Start::Anew));
    for (int i = 0; i < 20; ++i) {
        QVERIFY(killed.put({i, 1, 8}, picture(i)));
    }
    QVERIFY(killed.flush());
    for (int i = 20; i < 40; ++i) {
        QVERIFY(killed.put({i, 1, 8}, picture(i)));
    }
    for (const char *ending : {"", "-journal"}) {
        QFile::copy(MbTilesWriter::unfinishedPath(path("k.mbtiles")) + ending,
            MbTilesWriter::unfinishedPath(path("l.mbtiles")) + ending);
    }
    MbTilesWriter next;
    QVERIFY2(next.open(path("l.mbtiles"), {}, MbTilesWriter::Start::Continue), qPrintable(next.error()));
    QCOMPARE(next.count(), 20);
    QVERIFY(next.contains({19, 1, 8}) && !next.contains({20, 1, 8}));
    QVERIFY(next.put({20, 1, 8}, picture(20)) && next.finish());
    MbTilesReader reader;
    QVERIFY2(reader.open(path("l.mbtiles")), qPrintable(reader.error()));
    QCOMPARE(reader.tile({7, 1, 8}), picture(7));
    QCOMPARE(reader.metadata().format, "png");
}

void TestMbTiles::leavesTheOldFileUntilFinished()
{
    const auto write = [this](int value, bool isFinished) {
        MbTilesWriter writer;
        return writer.open(path("o.mbtiles"), {}, MbTilesWriter::Start::Anew) && writer.put({0, 0, 3}, picture(value))
            && (isFinished ? writer.finish() : (writer.discard(), true));
    };
    const auto read = [this] {
        MbTilesReader reader;
        return reader.open(path("o.mbtiles")) ? reader.tile({0, 0, 3}) : QByteArray();
    };
    QVERIFY(write(1, false) && read().isEmpty());
    QVERIFY(write(2, true) && read() == picture(2));
    QVERIFY(write(3, false) && read() == picture(2));
    QVERIFY(write(4, true) && read() == picture(4));
    QCOMPARE(QDir(m_folder.path()).entryList({"o.mbtiles*"}), QStringList("o.mbtiles"));
}

void TestMbTiles::beginsAnewWhereTheRestIsDamaged()
{
    QFile rest(MbTilesWriter::unfinishedPath(path("d.mbtiles")));
    QVERIFY(rest.open(QIODevice::WriteOnly) && rest.write(QByteArray(5000, 'x')) == 5000);
    rest.close();
    MbTilesWriter writer;
    QVERIFY2(writer.open(path("d.mbtiles"), {}, MbTilesWriter::Start::Continue), qPrintable(writer.error()));
    QVERIFY(!writer.finish()); // without a tile there is no file
    QVERIFY(writer.put({0, 0, 3}, picture(1)) && writer.finish());
}

void TestMbTiles::oneWriterAtATime()
{
    MbTilesWriter first;
    QVERIFY(first.open(path("w.mbtiles"), {}, MbTilesWriter::Start::Anew) && first.put({1, 1, 3}, picture(1)));
    {
        MbTilesWriter second;
        QVERIFY(!second.open(path("w.mbtiles"), {}, MbTilesWriter::Start::Anew));
        QVERIFY2(second.error().contains("Another program"), qPrintable(second.error()));
        second.discard();
    }
    QVERIFY(first.finish());
    MbTilesWriter nowhere;
    QVERIFY(!nowhere.open(path("no/such/folder.mbtiles"), {}, MbTilesWriter::Start::Anew));
    QVERIFY(nowhere.error().contains("folder"));
}

VYX_TEST(TestMbTiles)
#include "tst_mb_tiles.moc"
