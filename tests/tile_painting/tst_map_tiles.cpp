#include "app/config.h"
#include "static_map_scene.h"
#include "test_files.h"
#include "test_program.h"
#include "tile_scene.h"
#include "tiles/mb_tiles_reader.h"
#include "tiles/mb_tiles_writer.h"
#include "vyx-map/tiles_command.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

const QColor Coast(0, 255, 0);

// Of the coast at degrees east of its beginning: it has many bends, and goes from west to east.
double coastAt(double along)
{
    return 35.0 + 0.4 * std::sin(along * 2.0) + 0.05 * std::sin(along * 31.0);
}

MapData coastMap()
{
    QList<GeoCoordinate> points;
    for (int i = 0; i < 3000; ++i) {
        const double along = 0.002 * i;
        points.append({coastAt(along), 22.0 + along});
    }
    MapData map;
    map.title = "Coast";
    map.author = "Survey";
    map.groups = {lineGroup(points)};
    return map;
}

bool inkNear(const QImage &image, const QPoint &pixel)
{
    for (int y = pixel.y() - 1; y <= pixel.y() + 1; ++y) {
        for (int x = pixel.x() - 1; x <= pixel.x() + 1; ++x) {
            if (image.rect().contains(x, y) && image.pixelColor(x, y).green() > 40) {
                return true;
            }
        }
    }
    return false;
}

// Clearly inked pixels of the one without any ink within a pixel in the other.
int astray(const QImage &one, const QImage &other)
{
    int count = 0;
    for (int y = 1; y < one.height() - 1; ++y) {
        for (int x = 1; x < one.width() - 1; ++x) {
            count += one.pixelColor(x, y).green() > 120 && !inkNear(other, {x, y});
        }
    }
    return count;
}

} // namespace

class TestMapTiles : public QObject, private StaticMapScene {
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QStringList m_out;
    QStringList m_err;
    std::atomic<bool> m_cancelled = false;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    QString written(const QString &name, const QByteArray &contents) { return writtenTo(path(name), contents); }

    bool writeMap(const QString &name, const MapData &map) const
    {
        const auto file = MapFile::create(MapFile::Map);
        const bool isWritten =
            file->open(QFileInfo(path(name)), MapFile::Map, QIODevice::WriteOnly) && file->write(map);
        file->close();
        return isWritten && file->lastError().isEmpty();
    }

    int run(const QStringList &arguments, const PercentSink &progress = {})
    {
        m_out.clear();
        m_err.clear();
        CommandLine command;
        QString error;
        if (!CommandLine::parse(QStringList("tiles") + arguments, command, error)) {
            m_err.append(error);
            return 2;
        }
        return runTiles(
            command, progress, [this](const QString &line) { m_out.append(line); },
            [this](const QString &line) { m_err.append(line); }, m_cancelled);
    }

private Q_SLOTS:
    void initTestCase();
    void coastsOfTilesAndMapsAgree_data();
    void coastsOfTilesAndMapsAgree();
    void labelsGoOnAcrossTiles();
    void writesAFolder();
    void wholeFileOrNone();
    void saysWhatIsWrong_data();
    void saysWhatIsWrong();
};

void TestMapTiles::initTestCase()
{
    QVERIFY(writeMap("coast.map", coastMap()));
    MapStyleSheet sheet;
    MapStyleClass style = styleOf(Coast);
    style.pen.setWidth(2);
    sheet.setStyle(style);
    QString error;
    QVERIFY2(sheet.save(path("coast.mss"), &error), qPrintable(error));
}

void TestMapTiles::coastsOfTilesAndMapsAgree_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<double>("reduction");
    QTest::addColumn<double>("rotation");
    for (int level = 6; level <= 12; ++level) {
        QTest::addRow("level %d", level) << level << 1.0 << 0.0;
        QTest::addRow("level %d, reduced and turned", level) << level << 1.3 << 37.0;
    }
}

void TestMapTiles::coastsOfTilesAndMapsAgree()
{
    QFETCH(int, level);
    QFETCH(double, reduction);
    QFETCH(double, rotation);
    const double metresPerPixel = reduction * TilePlane::span(level) / 256.0;
    const GeoCoordinate center(coastAt(1.05), 23.05);
    const double reach = 260.0 * metresPerPixel / 111000.0; // degrees, more than the view
    const QString area = QStringLiteral("%1,%2,%3,%4")
                             .arg(center.latitude() - reach)
                             .arg(center.longitude() - reach)
                             .arg(center.latitude() + reach)
                             .arg(center.longitude() + reach);
    const QString file = path(QStringLiteral("coast%1.mbtiles").arg(level));
    QCOMPARE(run({"--levels", QString::number(level), "--style", path("coast.mss"), "--area", area, "--out", file,
                 path("coast.map")}),
        0);
    MbTilesReader reader;
    QVERIFY2(reader.open(file), qPrintable(reader.error()));
    QVERIFY(reader.metadata().name == "Coast" && reader.metadata().attribution == "Survey");
    QVERIFY(reader.metadata().isOverlay);
    TileSupply supply;
    supply.minLevel = level;
    supply.maxLevel = level;
    supply.make = [&reader](const TileIndex &index) { return QImage::fromData(reader.tile(index)); };
    GeoTileMap tiles(GeoTileMap::Layer::Top);
    tiles.setSource(supply.source());

    GeoStaticMap map(&projector);
    MapStyleSheet sheet;
    QVERIFY(sheet.load(path("coast.mss"), nullptr));
    map.setStyleSheet(sheet);
    map.setMaps({mapOf(coastMap().groups)});

    const TileView view(metresPerPixel, center, rotation);
    const QImage asTiles = view.painted(tiles);
    const QImage asMap = view.frame(map);
    QVERIFY(astray(asMap, QImage(asMap.size(), asMap.format())) > 10); // there is a coast
    const int lost = astray(asMap, asTiles);
    const int added = astray(asTiles, asMap);
    QVERIFY2(lost == 0 && added == 0, qPrintable(QStringLiteral("%1 lost, %2 added").arg(lost).arg(added)));
}

// One name on the edge of two tiles in the middle of a block, one between two blocks.
void TestMapTiles::labelsGoOnAcrossTiles()
{
    MapData names;
    names.groups = {labelGroup({{{}, "HHHHHHHH", {1.0, 0.0}}, {{}, "HHHHHHHH", {1.0, 11.25}}})};
    QVERIFY(writeMap("names.map", names));
    QCOMPARE(run({"--levels", "7", "--style", path("coast.mss"), "--area", "-5,-5,5,16", "--out", path("names.mbtiles"),
                 path("names.map")}),
        0);
    MbTilesReader reader;
    QVERIFY(reader.open(path("names.mbtiles")));
    const auto ink = [&reader](int column, bool atLeft) {
        const QImage tile = QImage::fromData(reader.tile({column, 63, 7}));
        int count = 0;
        for (int i = 0; !tile.isNull() && i < 256 * 20; ++i) {
            count += qAlpha(tile.pixel(atLeft ? i % 20 : 255 - i % 20, i / 20)) > 0;
        }
        return count;
    };
    QVERIFY(ink(64, true) > 40 && ink(63, false) > 40);
    QVERIFY(ink(68, true) > 40 && ink(67, false) > 40);
}

void TestMapTiles::writesAFolder()
{
    const QString theme = QStringLiteral("Night");
    QCOMPARE(run({"--levels", "0-2", "--theme", theme, "--out", path("folder"), path("coast.map"), "--area",
                 "-80,-179,80,179"}),
        0);
    QCOMPARE(m_out.value(0), path("folder") + ": 21 tiles of levels 0 to 2");
    for (const char *name : {"0/0/0.png", "2/3/0.png", "2/0/3.png"}) {
        const QImage tile(path(QStringLiteral("folder/") + name));
        QVERIFY2(tile.size() == QSize(256, 256) && !tile.hasAlphaChannel(), name);
        QCOMPARE(tile.pixelColor(0, 0), QColor("#0B1118"));
    }
}

void TestMapTiles::wholeFileOrNone()
{
    const QStringList arguments = {"--levels", "3-9", "--style", path("coast.mss"), "--out", path("c.mbtiles"),
        "--area", "30,20,40,30", path("coast.map")};
    const QByteArray before = "what was there";
    QVERIFY(!written("c.mbtiles", before).isEmpty());
    m_cancelled = false;
    const int status = run(arguments, [this](int percent) { m_cancelled = m_cancelled || percent > 1; });
    QVERIFY(m_cancelled);
    m_cancelled = false;
    QCOMPARE(status, 1);
    QCOMPARE(m_err.value(0), "cancelled");
    QCOMPARE(contentsOf(path("c.mbtiles")), before);
    QVERIFY(!QFile::exists(MbTilesWriter::unfinishedPath(path("c.mbtiles"))));
}

void TestMapTiles::saysWhatIsWrong_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("error"); // part of it
    const QStringList good = {"--out", path("o.mbtiles"), path("coast.map")};
    const auto with = [&good](const QStringList &more) { return good + more; };
    QTest::newRow("no maps") << QStringList{"--out", "o.mbtiles"} << 2 << "which maps";
    QTest::newRow("no output") << QStringList{path("coast.map")} << 2 << "--out";
    QTest::newRow("levels") << with({"--levels", "5-3"}) << 2 << "--levels";
    QTest::newRow("depth") << with({"--levels", "3-40"}) << 2 << "--levels";
    QTest::newRow("area") << with({"--area", "1,2,3"}) << 2 << "--area";
    QTest::newRow("area off the globe") << with({"--area", "1,2,93,4"}) << 2 << "--area";
    QTest::newRow("two looks") << with({"--theme", "Day", "--style", "a.mss"}) << 2 << "not both";
    QTest::newRow("option of convert") << with({"--class", "x"}) << 2 << "unknown option";
    QTest::newRow("theme") << with({"--theme", "Sunset"}) << 1 << "Night";
    QTest::newRow("sheet") << with({"--style", path("absent.mss")}) << 1 << "absent.mss";
    QTest::newRow("map") << QStringList{"--out", path("o.mbtiles"), path("absent.map")} << 1 << "absent.map";
    QTest::newRow("folder") << QStringList{"--out", path("no/folder/o.mbtiles"), path("coast.map")} << 1 << "folder";
}

void TestMapTiles::saysWhatIsWrong()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, error);
    QCOMPARE(run(arguments), status);
    QVERIFY2(m_err.value(0).contains(error), qPrintable(m_err.value(0)));
    QVERIFY(!QFile::exists(path("o.mbtiles")));
}

VYX_TEST(TestMapTiles)
#include "tst_map_tiles.moc"
