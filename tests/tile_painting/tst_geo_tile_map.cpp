#include "app/config.h"
#include "app/theme_library.h"
#include "test_program.h"
#include "tile_scene.h"
#include "view/contrast.h"
#include "view/text_room.h"

#include <QSignalSpy>
#include <QTest>

class TestGeoTileMap : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everythingIsInItsPlace_data();
    void everythingIsInItsPlace();
    void noSeams();
    void movedPictureLooksAsIfDrawnAnew();
    void newViewIsSketchedAtOnce();
    void drawingOfALeftViewIsNoHarm();
    void nothingIsDoneWhileNothingChanges();
    void densityTakesADeeperLevel();
    void toneIsOfTheBottomLayer();
    void trafficStandsOutFromTonedTiles();
    void saysWhoseTheTilesAre();
    void viewsThatNeedTooManyTilesShowNone();
};

void TestGeoTileMap::everythingIsInItsPlace_data()
{
    QTest::addColumn<double>("metresPerPixel");
    QTest::addColumn<GeoCoordinate>("center");
    for (const double metresPerPixel : {14000.0, 2300.0, 300.0, 40.0, 1.5}) {
        QTest::addRow("%g m", metresPerPixel) << metresPerPixel << Steep;
    }
    QTest::newRow("south") << 900.0 << GeoCoordinate(-61.0, -70.0);
    QTest::newRow("180th meridian") << 2000.0 << GeoCoordinate(35.0, 179.9);
    QTest::newRow("end of the map") << 9000.0 << GeoCoordinate(84.0, 10.0);
}

void TestGeoTileMap::everythingIsInItsPlace()
{
    QFETCH(double, metresPerPixel);
    QFETCH(GeoCoordinate, center);
    TileSupply supply;
    supply.make = TileWaves::tile;
    Config config = brightConfig();
    config.mapSmoothPixmapTransform = true;
    for (const double ratio : {1.0, 2.0}) {
        const int level = supply.source().levelFor(metresPerPixel / ratio);
        for (const double rotation : {0.0, 33.0, 90.0}) {
            GeoTileMap layer(GeoTileMap::Layer::Bottom);
            layer.applyConfig(config);
            layer.setSource(supply.source());
            const TileView view(metresPerPixel, center, rotation, ratio);
            const QImage image = view.painted(layer);
            for (int i = 0; i < image.width() * image.height(); i += 7) {
                const QPoint pixel(i % image.width(), i / image.width());
                const QPointF place = view.mapPixel(pixel, level);
                const QColor color = image.pixelColor(pixel);
                if (place.y() < 2.0) {
                    QVERIFY(place.y() > -2.0 || color == QColor(Qt::black));
                    continue;
                }
                // A pixel is ten steps of colour where the waves are steepest.
                const double error = std::max(std::abs(color.red() - TileWaves::at(place.x())),
                    std::abs(color.green() - TileWaves::at(place.y())));
                QVERIFY2(
                    error < 9.0, qPrintable(QStringLiteral("%1, %2: %3").arg(pixel.x()).arg(pixel.y()).arg(error)));
            }
        }
    }
}

void TestGeoTileMap::noSeams()
{
    const QColor green(10, 190, 30);
    TileSupply supply;
    supply.make = [green](const TileIndex &) { return plainTile(green); };
    GeoTileMap layer(GeoTileMap::Layer::Bottom);
    showBright(layer, supply);
    for (const double metresPerPixel : {11000.0, 700.0, 87.3, 4.1, 0.3}) {
        for (const double ratio : {1.0, 1.5, 2.0}) {
            for (const double rotation : {0.0, 1.0, 33.0, 45.0, 90.0, -127.3}) {
                const TileView view(metresPerPixel, Steep, rotation, ratio, QSize(500, 300));
                QCOMPARE(differing(view.painted(layer), green), 0);
            }
        }
    }
}

void TestGeoTileMap::movedPictureLooksAsIfDrawnAnew()
{
    TileSupply supply;
    supply.make = TileWaves::tile;
    GeoTileMap moving(GeoTileMap::Layer::Bottom);
    showBright(moving, supply);
    for (const double ratio : {1.0, 1.5, 2.0}) {
        for (const double rotation : {0.0, 20.0}) {
            TileView view(500.0, Steep, rotation, ratio);
            view.painted(moving);
            for (const QPoint step : {QPoint(40, 0), QPoint(-8, 20), QPoint(-10, 130), QPoint(0, -300)}) {
                view.pan(step.x(), step.y());
                GeoTileMap anew(GeoTileMap::Layer::Bottom);
                showBright(anew, supply);
                const bool isSmall = std::abs(step.y()) <= 20; // what comes into sight then is drawn at once
                const QImage moved = isSmall ? view.frame(moving) : view.painted(moving);
                QCOMPARE(differing(moved, view.painted(anew), 3), 0);
                QVERIFY(!moving.drawing());
            }
        }
    }
}

// Until the drawing is there: everything within three pixels of its place, and no gaps.
void TestGeoTileMap::newViewIsSketchedAtOnce()
{
    for (const bool standIns : {false, true}) {
        for (const double ratio : {1.0, 1.5, 2.0}) {
            for (const double rotation : {0.0, 33.0, 90.0}) {
                TileSupply supply;
                const TileView view(900.0, Steep, rotation, ratio);
                const int level = supply.source().levelFor(900.0 / ratio) - (standIns ? 1 : 0);
                supply.make = [level](const TileIndex &index) {
                    return index.level == level ? TileWaves::tile(index) : QImage();
                };
                GeoTileMap layer(GeoTileMap::Layer::Bottom);
                showBright(layer, supply);
                const QImage image = view.frame(layer);
                QVERIFY(layer.drawing());
                for (int i = 0; i < image.width() * image.height(); i += 7) {
                    const QPoint pixel(i % image.width(), i / image.width());
                    const QPointF place = view.mapPixel(pixel, level);
                    const QColor color = image.pixelColor(pixel);
                    const double error = std::max(std::abs(color.red() - TileWaves::at(place.x())),
                        std::abs(color.green() - TileWaves::at(place.y())));
                    QVERIFY2(color.blue() == 60 && error < 30.0, qPrintable(QString::number(error)));
                }
            }
        }
    }
}

// It comes when the view has been dragged on, or shows another scale.
void TestGeoTileMap::drawingOfALeftViewIsNoHarm()
{
    TileSupply supply;
    supply.make = TileWaves::tile;
    for (const double rotation : {0.0, 20.0}) {
        for (const double metresPerPixel : {500.0, 350.0}) {
            GeoTileMap layer(GeoTileMap::Layer::Bottom);
            showBright(layer, supply);
            TileView view(500.0, Steep, rotation);
            view.frame(layer);
            view = TileView(metresPerPixel, Steep, rotation);
            view.pan(21, -13);
            GeoTileMap anew(GeoTileMap::Layer::Bottom);
            showBright(anew, supply);
            QCOMPARE(differing(view.painted(layer), view.painted(anew), 3), 0);
        }
    }
}

void TestGeoTileMap::nothingIsDoneWhileNothingChanges()
{
    TileSupply supply;
    supply.make = TileWaves::tile;
    GeoTileMap layer(GeoTileMap::Layer::Bottom);
    showBright(layer, supply);
    TileView view(500.0, Steep, 10.0);
    const QImage first = view.painted(layer);
    supply.asked = 0;
    QSignalSpy polluted(&layer, &GeoLayer::polluted);
    QCOMPARE(view.painted(layer), first);
    QCOMPARE(supply.asked, 0);
    QVERIFY(polluted.isEmpty());
    layer.tilesChanged();
    QCOMPARE(view.painted(layer), first);
    QVERIFY(supply.asked > 0);
}

void TestGeoTileMap::densityTakesADeeperLevel()
{
    TileSupply supply;
    supply.make = TileWaves::tile;
    GeoTileMap layer(GeoTileMap::Layer::Bottom);
    layer.setSource(supply.source());
    TileView(2000.0, Steep, 0.0, 1.0).painted(layer);
    const int single = supply.deepestAsked;
    TileView(2000.0, Steep, 0.0, 2.0).painted(layer);
    QCOMPARE(supply.deepestAsked, single + 1);
}

void TestGeoTileMap::toneIsOfTheBottomLayer()
{
    Config config = brightConfig();
    config.mapBackgroundColor = QColor(0, 0, 100);
    config.mapTileDimming = 50;
    config.mapTileDesaturation = 100;
    TileSupply supply;
    supply.make = [](const TileIndex &index) {
        QImage image = plainTile(QColor(0, 200, 0)).convertToFormat(QImage::Format_ARGB32_Premultiplied);
        if (index.y % 2 == 1) {
            image.fill(Qt::transparent);
        }
        return image;
    };
    const TileView view(300.0, {0.0, 0.0}, 0.0, 1.0, QSize(200, 200));
    const auto seen = [&](GeoTileMap &layer, int y) { return view.painted(layer, Qt::red).pixelColor(100, y); };
    GeoTileMap bottom(GeoTileMap::Layer::Bottom);
    bottom.applyConfig(config);
    bottom.setSource(supply.source());
    QSignalSpy polluted(&bottom, &GeoLayer::polluted);
    QCOMPARE(seen(bottom, 150), QColor(Qt::red)); // never bright first
    QTRY_VERIFY(!polluted.isEmpty());
    // Half the brightness of the green, and half the ground.
    const auto isToned = [&](const QColor &color, int grey) {
        return std::abs(color.red() - grey) <= 3 && std::abs(color.green() - grey) <= 3
            && std::abs(color.blue() - grey - 50) <= 3;
    };
    QTRY_VERIFY(isToned(seen(bottom, 150), 59));
    QCOMPARE(seen(bottom, 50), QColor(Qt::red)); // what is transparent stays so
    config.mapTileDesaturation = 0;
    bottom.applyConfig(config);
    QVERIFY(isToned(view.frame(bottom, Qt::red).pixelColor(100, 150), 59)); // until the new ones are there
    QTRY_COMPARE(seen(bottom, 150), QColor(0, 100, 50));

    GeoTileMap top(GeoTileMap::Layer::Top);
    top.applyConfig(config);
    top.setSource(supply.source());
    QCOMPARE(seen(top, 150), QColor(0, 200, 0));
}

// From street maps, which are nearly white, and from pictures from the air, which are dark.
void TestGeoTileMap::trafficStandsOutFromTonedTiles()
{
    const ThemeLibrary themes;
    for (const char *name : {"Night", "Dusk", "Day"}) {
        Config config;
        themes.find(name)->applyTo(config);
        const TileTone tone{config.mapTileDimming, config.mapTileDesaturation, config.mapBackgroundColor};
        for (const int grey : {255, 180, 70}) {
            const QColor tile = tone.applied(plainTile(QColor(grey, grey, grey))).pixelColor(0, 0);
            QVERIFY2(contrastRatio(config.trackLabelColor, tile) >= 4.5, name);
            QVERIFY2(contrastRatio(config.trackSymbolColor, tile) >= 3.0, name);
        }
    }
}

void TestGeoTileMap::saysWhoseTheTilesAre()
{
    TileSupply supply;
    supply.make = [](const TileIndex &) { return plainTile(QColor(200, 200, 180)); };
    TileSource source = supply.source();
    source.copyright = "Copyright 2026 Site.";
    source.logo = [](TileProvider::LogoStyle style) {
        return plainTile(style == TileProvider::LogoStyle::Light ? Qt::white : Qt::darkBlue);
    };
    const TileView view(500.0, Steep, 30.0, 1.0, QSize(500, 300));
    for (const QColor &ground : {QColor(10, 16, 24), QColor(240, 240, 235)}) {
        Config config = brightConfig();
        config.mapBackgroundColor = ground;
        // Neither the service's own nor the map's stand out enough from the bright one.
        config.mapRangeRingLabelColor = ground.lightness() < 128 ? QColor(210, 220, 230) : QColor(130, 145, 160);
        source.copyrightColor = ground.lightness() < 128 ? Qt::black : Qt::white;
        GeoTileMap layer(GeoTileMap::Layer::Top);
        layer.applyConfig(config);
        layer.setSource(source);
        TextRoom room;
        room.begin(QRectF(0.0, 0.0, 500.0, 300.0));
        const QRectF scale(380.0, 270.0, 120.0, 30.0); // another read-out in that corner
        room.take(scale);
        layer.placeTexts(view.view(), room);
        QVERIFY(layer.readOutPlace().isEmpty()); // nobody's as long as there are none
        view.painted(layer);
        layer.placeTexts(view.view(), room);
        const QRectF place = layer.readOutPlace();
        QVERIFY(!place.intersects(scale) && place.right() > 480.0 && place.top() > 200.0);
        QVERIFY(!room.isFree(place));
        const QImage image = view.painted(layer);
        // A veil under text that stands out from it, and the logo for such a ground.
        int legible = 0;
        int ofLogo = 0;
        const bool isDark = ground.lightness() < 128;
        for (int y = static_cast<int>(place.top()) + 1; y < static_cast<int>(place.bottom()); ++y) {
            for (int x = static_cast<int>(place.left()) + 1; x < int(place.right()); ++x) {
                const int lightness = image.pixelColor(x, y).lightness();
                legible += isDark ? lightness > 150 : lightness < 100;
                ofLogo += image.pixelColor(x, y) == QColor(isDark ? Qt::white : Qt::darkBlue);
            }
        }
        QVERIFY2(legible > 200 && ofLogo > 100, qPrintable(QString::number(legible)));
        layer.setSource({});
        room.begin(QRectF(0.0, 0.0, 500.0, 300.0));
        layer.placeTexts(view.view(), room);
        QVERIFY(layer.readOutPlace().isEmpty());
    }
}

// A service without coarse levels, on a view of a continent.
void TestGeoTileMap::viewsThatNeedTooManyTilesShowNone()
{
    TileSupply supply;
    supply.minLevel = 12;
    supply.make = [](const TileIndex &) { return plainTile(Qt::red); };
    GeoTileMap layer(GeoTileMap::Layer::Bottom);
    showBright(layer, supply);
    QCOMPARE(differing(TileView(14000.0, Steep).painted(layer), Qt::black), 0);
    QCOMPARE(supply.asked, 0);
    QCOMPARE(differing(TileView(30.0, Steep).painted(layer), Qt::red), 0);
}

VYX_TEST(TestGeoTileMap)
#include "tst_geo_tile_map.moc"
