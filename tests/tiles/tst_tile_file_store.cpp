#include "test_program.h"
#include "tile_server.h"
#include "tiles/tile_disk_cache.h"
#include "tiles/tile_file_store.h"
#include "tiles/tile_image.h"

#include <QBuffer>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace {

void put(const QString &path, const QByteArray &octets)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(octets);
}

QByteArray encoded(const QImage &image, const char *format)
{
    QByteArray octets;
    QBuffer buffer(&octets);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return octets;
}

} // namespace

class TestTileFileStore : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsTiles();
    void neverLeavesItsDirectory_data();
    void neverLeavesItsDirectory();
    void followsNoLinkOut();
    void removesWhatIsNoTile_data();
    void removesWhatIsNoTile();
    void refusesBombs();
    void decodesForPainting();
    void saysWhyItCannotWrite();
    void cacheShrinksOldestFirst();
};

void TestTileFileStore::keepsTiles()
{
    const QTemporaryDir directory;
    const TileFileStore store(directory.filePath(QStringLiteral("tiles/")));
    const QByteArray tile = TileServer::tile({1, 2, 3});
    QVERIFY(!store.contains(QStringLiteral("/3/1/2.png")));
    QVERIFY(store.write(QStringLiteral("/3/1/2.png"), tile));
    QCOMPARE(store.read(QStringLiteral("/3/1/2.png")), tile);
    QVERIFY(QFile::exists(directory.filePath(QStringLiteral("tiles/3/1/2.png"))));
}

void TestTileFileStore::neverLeavesItsDirectory_data()
{
    QTest::addColumn<QString>("path");
    for (const char *path : {"../secret.png", "/../secret.png", "a/../../secret.png", "a/..", "..", "", "/",
             "a\\..\\..\\secret.png", "//../secret.png"}) {
        QTest::addRow("\"%s\"", path) << path;
    }
}

void TestTileFileStore::neverLeavesItsDirectory()
{
    QFETCH(QString, path);
    const QTemporaryDir directory;
    const QString secret = directory.filePath(QStringLiteral("secret.png"));
    const QByteArray tile = TileServer::tile({0, 0, 1});
    put(secret, "cut off");
    const TileFileStore store(directory.filePath(QStringLiteral("tiles")));
    QVERIFY(!store.write(path, tile));
    QCOMPARE(store.read(path), QByteArray());
    store.remove(path);
    QVERIFY(QFile::exists(secret));
    QCOMPARE(TileFileStore(QString()).absolutePath(QStringLiteral("etc/passwd")), QString());
}

void TestTileFileStore::followsNoLinkOut()
{
    const QTemporaryDir directory;
    const QString outside = directory.filePath(QStringLiteral("outside"));
    put(outside + QStringLiteral("/1.png"), "foreign");
    QDir(directory.path()).mkdir(QStringLiteral("tiles"));
    QVERIFY(QFile::link(outside, directory.filePath(QStringLiteral("tiles/3"))));
    QVERIFY(QFile::link(outside + QStringLiteral("/1.png"), directory.filePath(QStringLiteral("tiles/1.png"))));
    const TileFileStore store(directory.filePath(QStringLiteral("tiles")));
    for (const QString &path : {QStringLiteral("/3/1.png"), QStringLiteral("/1.png"), QStringLiteral("/3/new/1.png")}) {
        QVERIFY(!store.write(path, TileServer::tile({0, 0, 1})));
        QCOMPARE(store.read(path), QByteArray());
        store.remove(path);
    }
    QCOMPARE(QDir(outside).entryList(QDir::Files), QStringList{QStringLiteral("1.png")});
}

void TestTileFileStore::removesWhatIsNoTile_data()
{
    QTest::addColumn<QByteArray>("octets");
    const QByteArray png = TileServer::tile({1, 1, 1});
    QImage picture(64, 64, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    const QByteArray jpeg = encoded(picture, "JPG");
    QTest::addRow("empty") << QByteArray();
    QTest::addRow("half a PNG") << png.first(png.size() / 2);
    QTest::addRow("PNG without its last octets") << png.chopped(9);
    QTest::addRow("half a JPEG") << jpeg.first(jpeg.size() / 2);
    QTest::addRow("a page") << QByteArray("<html>Please log in</html>");
    QTest::addRow("zeros of a crash") << QByteArray(png.size(), '\0');
    QTest::addRow("far too large") << png + QByteArray(MaxTileOctets, 'x') + png;
}

void TestTileFileStore::removesWhatIsNoTile()
{
    QFETCH(QByteArray, octets);
    const QTemporaryDir directory;
    const TileFileStore store(directory.path());
    put(directory.filePath(QStringLiteral("1/0/0.png")), octets);
    QCOMPARE(store.read(QStringLiteral("/1/0/0.png")), QByteArray());
    QVERIFY(!store.contains(QStringLiteral("/1/0/0.png")));
}

void TestTileFileStore::refusesBombs()
{
    QString error;
    QVERIFY(isWholeTileImage(TileServer::bomb()));
    QVERIFY(decodeTileImage(TileServer::bomb(), &error).isNull());
    QVERIFY2(error.contains(QLatin1String("30000 x 30000")), qPrintable(error));
    QVERIFY(decodeTileImage(TileServer::bomb(4097), &error).isNull());
    QVERIFY2(error.contains(QLatin1String("4097")), qPrintable(error));
}

void TestTileFileStore::decodesForPainting()
{
    QImage clear(32, 32, QImage::Format_ARGB32);
    clear.fill(QColor(255, 0, 0, 128));
    QCOMPARE(decodeTileImage(encoded(clear, "PNG")).format(), QImage::Format_ARGB32_Premultiplied);
    const QImage opaque = decodeTileImage(encoded(clear.convertToFormat(QImage::Format_RGB888), "JPG"));
    QCOMPARE(opaque.format(), QImage::Format_RGB32);
    QCOMPARE(opaque.size(), QSize(32, 32));
}

void TestTileFileStore::saysWhyItCannotWrite()
{
    const QTemporaryDir directory;
    put(directory.filePath(QStringLiteral("tiles")), "a file where the directory should be");
    QString error;
    QVERIFY(!TileFileStore(directory.filePath(QStringLiteral("tiles"))).write(QStringLiteral("/1/0.png"), "x", &error));
    QVERIFY(!error.isEmpty());
}

void TestTileFileStore::cacheShrinksOldestFirst()
{
    const QTemporaryDir directory;
    for (int age = 0; age < 10; ++age) {
        const QString path = directory.filePath(QStringLiteral("data8/%1/%1.d").arg(age));
        put(path, QByteArray(1000, 'x'));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        file.setFileTime(QDateTime::currentDateTime().addDays(-age), QFileDevice::FileModificationTime);
    }
    put(directory.filePath(QStringLiteral("other.txt")), QByteArray(1000, 'x'));
    shrinkTileCache(directory.path(), 5000);
    for (int age = 0; age < 10; ++age) {
        QCOMPARE(QFile::exists(directory.filePath(QStringLiteral("data8/%1/%1.d").arg(age))), age < 4);
    }
    TileDiskCache(directory.path()).clear();
    QTRY_VERIFY(!QFile::exists(directory.filePath(QStringLiteral("data8/0/0.d"))));
    QVERIFY(QFile::exists(directory.filePath(QStringLiteral("other.txt"))));
}

VYX_TEST(TestTileFileStore)

#include "tst_tile_file_store.moc"
