#include "test_program.h"
#include "tile_scene.h"

#include <QSignalSpy>
#include <QTest>

// What is seen while tiles come.
class TestTileFading : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tilesThatComeLookAsIfDrawnAnew();
    void coarserAndFinerTilesStandIn();
    void tilesFadeIn();
    void transparentTilesFadeToo();
    void equalTilesFadeUnseen();
};

// Tiles that come here and there, over stand-ins, until all are there.
void TestTileFading::tilesThatComeLookAsIfDrawnAnew()
{
    for (const double rotation : {0.0, 20.0}) {
        qint64 now = 10'000;
        TileSupply supply;
        supply.make = [](const TileIndex &index) { return index.level == 7 ? TileWaves::tile(index) : QImage(); };
        GeoTileMap layer(GeoTileMap::Layer::Bottom);
        showBright(layer, supply);
        layer.setClock([&now] { return now; });
        const TileView view(350.0, Steep, rotation, 1.0, QSize(600, 400));
        view.painted(layer);
        for (int parts = 0; parts < 3; ++parts) {
            supply.make = [parts](const TileIndex &index) {
                return index.level == 7 || (index.x + 3 * index.y) % 4 <= parts + 1 ? TileWaves::tile(index) : QImage();
            };
            supply.tiles.removeIf([](const auto &entry) { return entry.value().isNull(); });
            layer.tilesChanged();
            for (int frame = 0; frame < 5; ++frame, now += 70) {
                view.painted(layer);
            }
            now += 400;
            const QImage one = view.painted(layer);
            GeoTileMap anew(GeoTileMap::Layer::Bottom);
            showBright(anew, supply);
            QVERIFY(differing(one, view.painted(anew), 8) < 20); // here and there a pixel where parts meet
        }
    }
}

void TestTileFading::coarserAndFinerTilesStandIn()
{
    const TileView view(2000.0, {4.2, 4.2}, 0.0, 1.0, QSize(200, 200));
    QCOMPARE(TileGeometry::groundResolutionToLevel(2000.0), 7);
    TileSupply supply;
    GeoTileMap layer(GeoTileMap::Layer::Bottom);
    showBright(layer, supply);
    const TileIndex middle = {65, 62, 7}; // the tile of the view's middle
    const QRectF rect = view.view().screenTransform().mapRect(TilePlane::planeRect(65, 62, 7));
    const auto seen = [&](double x, double y) {
        layer.tilesChanged();
        const QPointF at = rect.topLeft() + QPointF(x * rect.width(), y * rect.height());
        return view.painted(layer).pixelColor(at.toPoint());
    };
    QCOMPARE(seen(0.5, 0.5), QColor(Qt::black));
    // The ancestor two levels up has this tile in the second column and the third row of sixteen.
    QImage patched = plainTile(Qt::red);
    QPainter(&patched).fillRect(QRect(64, 128, 64, 64), Qt::cyan);
    supply.tiles[{16, 15, 5}] = patched;
    QCOMPARE(seen(0.5, 0.5), QColor(Qt::cyan));
    QCOMPARE(seen(0.1, 0.9), QColor(Qt::cyan));
    supply.tiles[{131, 124, 8}] = plainTile(Qt::yellow); // the northeastern quarter
    QCOMPARE(seen(0.75, 0.25), QColor(Qt::yellow));
    QCOMPARE(seen(0.25, 0.25), QColor(Qt::cyan));
    supply.tiles[middle] = plainTile(Qt::white);
    QTRY_COMPARE(seen(0.75, 0.25), QColor(Qt::white));
    QCOMPARE(seen(0.25, 0.75), QColor(Qt::white));
}

void TestTileFading::tilesFadeIn()
{
    qint64 now = 10000;
    TileSupply supply;
    for (int x = 14; x < 18; ++x) {
        for (int y = 14; y < 18; ++y) {
            supply.tiles[{x, y, 5}] = plainTile(QColor(0, 0, 200));
        }
    }
    GeoTileMap layer(GeoTileMap::Layer::Bottom);
    showBright(layer, supply);
    layer.setClock([&now] { return now; });
    TileView view(2000.0, {0.0, 0.0}, 0.0, 1.0, QSize(200, 200));
    const auto blue = [&] { return view.painted(layer).pixelColor(150, 150).blue(); };
    QCOMPARE(blue(), 200);
    supply.make = [](const TileIndex &index) { return index.level == 7 ? plainTile(QColor(0, 0, 100)) : QImage(); };
    QSignalSpy polluted(&layer, &GeoLayer::polluted);
    layer.tilesChanged();
    QVERIFY(polluted.wait());
    const int first = blue();
    now += 200; // frames come by themselves
    const int second = blue();
    QVERIFY2(first > 150 && first < 195, qPrintable(QString::number(first)));
    QVERIFY2(second > 105 && second < first - 20, qPrintable(QString::number(second)));
    now += 200;
    QCOMPARE(blue(), 100);
    view.pan(-120, 0); // what is there when it comes into view does not fade
    QCOMPARE(view.painted(layer).pixelColor(199, 150).blue(), 100);
}

// Of two half transparent tiles no more is ever seen than of one.
void TestTileFading::transparentTilesFadeToo()
{
    qint64 now = 0;
    const QColor veil(255, 255, 255, 128);
    QImage image(256, 256, QImage::Format_ARGB32_Premultiplied);
    image.fill(veil);
    TileSupply supply;
    supply.tiles[{16, 15, 5}] = image;
    GeoTileMap layer(GeoTileMap::Layer::Top);
    showBright(layer, supply);
    layer.setClock([&now] { return now; });
    const TileView view(2000.0, {2.8, 2.8}, 0.0, 1.0, QSize(60, 60));
    QCOMPARE(view.painted(layer).pixelColor(30, 30).red(), 128);
    supply.make = [&image](const TileIndex &) { return image; };
    layer.tilesChanged();
    for (; now < 600; now += 100) {
        const int red = view.painted(layer).pixelColor(30, 30).red();
        QVERIFY2(std::abs(red - 128) <= 2, qPrintable(QString::number(red)));
    }
}

// Nothing is seen of bright tiles that come and look as what stood in for them.
void TestTileFading::equalTilesFadeUnseen()
{
    const QColor bright(180, 200, 240);
    qint64 now = 1000;
    int here = 0;
    TileSupply supply;
    supply.make = [&](const TileIndex &index) {
        return index.level <= 5 || (index.x + index.y) % 4 < here ? plainTile(bright) : QImage();
    };
    GeoTileMap layer(GeoTileMap::Layer::Bottom);
    showBright(layer, supply);
    layer.setClock([&now] { return now; });
    QImage even(QSize(300, 200), QImage::Format_RGB32);
    even.fill(bright);
    const TileView view(1200.0, Steep);
    for (; here <= 4; ++here) {
        supply.tiles.removeIf([](const auto &entry) { return entry.value().isNull(); });
        layer.tilesChanged();
        for (int frame = 0; frame < 3; ++frame, now += 70) {
            QCOMPARE(differing(view.painted(layer), even, 1), 0);
        }
    }
}

VYX_TEST(TestTileFading)
#include "tst_tile_fading.moc"
