#include "app/config.h"
#include "static_map_scene.h"
#include "test_program.h"

#include <QTest>

#include <cmath>

namespace {

// A coast from west to east: the closer one looks the more bends there are. The step is in degrees.
QList<GeoCoordinate> coast(int points, double step)
{
    QList<GeoCoordinate> line;
    for (int i = 0; i < points; ++i) {
        double latitude = 40.0;
        for (int octave = 0; octave < 10; ++octave) {
            latitude += 0.02 * points * step * std::pow(0.6, octave) * std::sin(6.28 * i / points * (1 << octave));
        }
        line.append({latitude, step * i});
    }
    return line;
}

// Pixels that look different. Smoothed lines may be a little brighter here and darker there, since the rasteriser
// itself counts from the picture's edge.
int differing(const QImage &one, const QImage &other)
{
    constexpr int Visible = 80;
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            count += std::abs(a.red() - b.red()) > Visible || std::abs(a.green() - b.green()) > Visible
                || std::abs(a.blue() - b.blue()) > Visible;
        }
    }
    return count;
}

} // namespace

class TestStaticMapPicture : public QObject, private StaticMapScene {
    Q_OBJECT

private Q_SLOTS:
    void movedPictureLooksAsIfDrawnAnew_data();
    void movedPictureLooksAsIfDrawnAnew();
    void imagesLieWhereTheirLatitudesAre();
    void smoothsImagesWhenConfigured();
    void detailIsNotMissedAtAnyScale();
    void areasAndLinesAreSoundCloseUp();
    void whatHasNoStyleIsSeenOnAnyGround();
    void largeMapsArePreparedInTheBackground();
    void leavesTilesInSight();
};

void TestStaticMapPicture::movedPictureLooksAsIfDrawnAnew_data()
{
    QTest::addColumn<double>("metresPerPixel");
    QTest::addColumn<double>("rotation");
    QTest::newRow("north up") << 100.0 << 0.0;
    QTest::newRow("turned") << 100.0 << 33.0;
    QTest::newRow("close up") << 1.0 << 0.0;
    QTest::newRow("far away") << 2000.0 << -70.0;
}

void TestStaticMapPicture::movedPictureLooksAsIfDrawnAnew()
{
    QFETCH(double, metresPerPixel);
    QFETCH(double, rotation);
    MapElementGroup elements = group();
    elements.polygons = {{{}, {{39.9, 0.1}, {40.1, 0.2}, {39.9, 0.35}}}, {{}, box(39.99, 0.0, 40.0, 90.0)}};
    MapElementGroup thin = lineGroup(coast(3000, 0.003));
    thin.className = QStringLiteral("other");
    const GeoCoordinate center = thin.polylines.first().points[100];
    elements.polylines = {{{}, {{39.0, -60.0}, center, {41.0, 70.0}}}};
    for (int i = 0; i < 400; ++i) {
        const GeoCoordinate place(40.0 + 0.003 * (i % 20), 0.003 * i);
        elements.labels.append({{}, QStringLiteral("L%1").arg(i), place});
        if (i % 3 == 0) {
            elements.symbols.append({{}, QStringLiteral("vor"), place});
        }
    }
    MapStyleClass style = styleOf(Green);
    style.brush = QBrush(Red, Qt::CrossPattern);
    style.pen = QPen(Qt::yellow, 2, Qt::DashDotLine);
    MapStyleClass thinStyle = styleOf(Qt::cyan);
    thinStyle.name = thin.className;
    const QList<MapLibrary::Map> maps = {mapOf({elements, thin})};
    const MapStyleSheet styles = sheet({style, thinStyle});

    GeoStaticMap moving(&projector);
    moving.setStyleSheet(styles);
    moving.setMaps(maps);
    PaintedView start(metresPerPixel, plane(center), rotation);
    start.paint([](QPainter &, const GeoView &) {});
    QTransform toScreen = start.view().screenTransform();
    const auto paint = [&](GeoStaticMap &layer) {
        QImage image(400, 400, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::black);
        QPainter painter(&image);
        layer.paint(painter, GeoView(toScreen, image.size()));
        return image;
    };
    QVERIFY(differing(paint(moving), start.image()) > 100);
    for (const QPointF &step : QList<QPointF>{{7, 0}, {0, -3}, {-100, 51}, {390, 0}, {0, 0}, {-30.5, 12}, {600, -20}}) {
        toScreen *= QTransform::fromTranslate(step.x(), step.y());
        GeoStaticMap anew(&projector);
        anew.setStyleSheet(styles);
        anew.setMaps(maps);
        const int different = differing(paint(moving), paint(anew));
        QVERIFY2(different <= 16, qPrintable(QString::number(different)));
    }
}

// A picture of ten stripes, each as high as ten degrees of latitude.
void TestStaticMapPicture::imagesLieWhereTheirLatitudesAre()
{
    QImage stripes(4, 160, QImage::Format_RGB32);
    for (int y = 0; y < 160; ++y) {
        for (int x = 0; x < 4; ++x) {
            stripes.setPixel(x, y, qRgb(255, 10 * (y / 10), x < 2 ? 0 : 255));
        }
    }
    MapElementGroup images = group();
    images.images = {{{}, {}, QPixmap::fromImage(stripes), {80.0, 170.0}, {-80.0, -170.0}}};
    for (int stripe = 0; stripe < 16; ++stripe) {
        for (double offset : {0.5, 9.5}) {
            const GeoCoordinate place(80.0 - 10.0 * stripe - offset, 175.0);
            const PaintedView view = painted({mapOf({images})}, {}, 100.0, place, 20.0);
            QCOMPARE(view.at(PaintedView::Middle), QColor(255, 10 * stripe, 0));
        }
    }
    QCOMPARE(painted({mapOf({images})}, {}, 100.0, {1.0, -175.0}).at(PaintedView::Middle).blue(), 255);
}

void TestStaticMapPicture::smoothsImagesWhenConfigured()
{
    QImage twoColors(2, 1, QImage::Format_RGB32);
    twoColors.setPixelColor(0, 0, Red);
    twoColors.setPixelColor(1, 0, Green);
    MapElementGroup images = group();
    images.images = {{{}, {}, QPixmap::fromImage(twoColors), {0.2, -0.2}, {-0.2, 0.2}}};
    for (bool smooth : {false, true}) {
        Config config;
        config.mapSmoothPixmapTransform = smooth;
        GeoStaticMap layer(&projector);
        layer.applyConfig(config);
        layer.setMaps({mapOf({images})});
        const PaintedView view = painted(layer, 500.0, QPointF(0.0, 0.0));
        const bool twoOnly = view.count(Red) + view.count(Green) == view.ink();
        QCOMPARE(twoOnly, !smooth);
    }
}

// Painted by the layer and with a plain painter: no pixel of the one without one of the other nearby.
void TestStaticMapPicture::detailIsNotMissedAtAnyScale()
{
    QList<GeoCoordinate> shore = coast(4900, 0.01);
    shore << GeoCoordinate(10.0, 49.0) << GeoCoordinate(10.0, 0.0);
    QPolygonF points;
    for (const GeoCoordinate &point : shore) {
        points << plane(point);
    }
    points << points.first();
    for (bool area : {false, true}) {
        MapStyleClass style = styleOf(Green);
        style.brush = area ? QBrush(Green) : QBrush(Qt::NoBrush);
        GeoStaticMap layer(&projector);
        layer.setStyleSheet(sheet({style}));
        layer.setMaps({mapOf({areaGroup(shore)})});
        for (double metresPerPixel : {5.0, 255.0, 1000.0, 14000.0}) {
            const PaintedView layerView = painted(layer, metresPerPixel, points[2600]);
            PaintedView plain(metresPerPixel, points[2600]);
            plain.paint([&](QPainter &painter, const GeoView &view) {
                painter.resetTransform();
                painter.setPen(Qt::white);
                painter.setBrush(area ? QBrush(Qt::white) : QBrush(Qt::NoBrush));
                painter.drawPolygon(view.screenTransform().map(points));
            });
            QVERIFY(plain.ink() > 20 && plain.ink() < 400 * 400);
            for (int i = 0; i < PaintedView::Size * PaintedView::Size; ++i) {
                const QPoint pixel(i % PaintedView::Size, i / PaintedView::Size);
                QVERIFY(!plain.inked(pixel) || layerView.inkedNear(pixel));
                QVERIFY(!layerView.inked(pixel) || plain.inkedNear(pixel));
            }
        }
    }
}

// A continent and a line across the whole world, at a metre per pixel.
void TestStaticMapPicture::areasAndLinesAreSoundCloseUp()
{
    const QList<GeoCoordinate> shore = {{60, -60}, {-50, -60}, {-50, 70}, {60, 70}};
    const auto seen = [&](const MapElementGroup &elements, const GeoCoordinate &center, double rotation) {
        return painted({mapOf({elements})}, sheet({styleOf(Green)}), 1.0, center, rotation);
    };
    for (double rotation : {0.0, 45.0}) {
        QCOMPARE(seen(areaGroup(shore), {10, 10}, rotation).count(Green), 400 * 400);
        QCOMPARE(seen(areaGroup(shore), {10, 70.1}, rotation).ink(), 0);
        const int half = seen(areaGroup(shore), {10, 70}, rotation).count(Green);
        QVERIFY(std::abs(half - 400 * 200) <= 400);
    }
    const GeoCoordinate west(-40, -150);
    const GeoCoordinate east(55, 20);
    const QPointF middle = 0.3 * plane(west) + 0.7 * plane(east);
    GeoStaticMap layer(&projector);
    layer.setStyleSheet(sheet({styleOf(Green)}));
    layer.setMaps({mapOf({lineGroup({west, east})})});
    const PaintedView view = painted(layer, 1.0, middle);
    QVERIFY(view.inkedNear(PaintedView::Middle) && view.ink() < 2000 && view.ink() > 400);
}

// The ground of the picture is black, as is what has no style.
void TestStaticMapPicture::whatHasNoStyleIsSeenOnAnyGround()
{
    const GeoCoordinate place(48.0, 16.0);
    MapElementGroup symbols = group();
    symbols.symbols = {{{}, QStringLiteral("waypoint"), place}};
    const MapElementGroup line = lineGroup({{47.0, 16.0}, {49.0, 16.0}});
    const MapElementGroup area = areaGroup(box(47.9, 15.9, 48.1, 16.1));
    for (const MapElementGroup &element : {symbols, line, area}) {
        QVERIFY(painted({mapOf({element})}, MapStyleSheet(), 200.0, place).ink() > 20);
        const PaintedView styled = painted({mapOf({element})}, sheet({styleOf(Qt::black)}), 200.0, place);
        QCOMPARE(styled.ink(), 0); // whoever chose black wants black
    }
    QVERIFY2(!painted({mapOf({area})}, MapStyleSheet(), 200.0, place).inked(PaintedView::Middle), "it is black itself");
}

void TestStaticMapPicture::largeMapsArePreparedInTheBackground()
{
    GeoStaticMap layer(&projector);
    layer.setStyleSheet(sheet({styleOf(Green)}));
    layer.setMaps({mapOf({areaGroup(box(39, 0, 41, 2))})});
    const QPointF middle = plane({40.0, 1.0});
    const int small = painted(layer, 500.0, middle).count(Green);
    QCOMPARE(small, 400 * 400);
    MapLibrary::Map large = mapOf({lineGroup(coast(30000, 0.001))});
    large.revision = 1;
    layer.setMaps({large});
    QVERIFY(layer.preparing());
    QCOMPARE(painted(layer, 500.0, middle).count(Green), small); // what there was
    QTRY_VERIFY(!layer.preparing());
    const int ink = painted(layer, 500.0, middle).ink();
    QVERIFY(ink > 100 && ink < small);
    large.revision = 2;
    large.data = mapOf({lineGroup(coast(40000, 0.001))}).data;
    layer.setMaps({large}); // and away while it is being prepared
}

// What lets the ground through goes on to be filled.
void TestStaticMapPicture::leavesTilesInSight()
{
    MapStyleClass opaque = styleOf(Red);
    opaque.brush = Red;
    MapStyleClass veil = styleOf(Green);
    veil.name = QStringLiteral("veil");
    veil.brush = QColor(0, 255, 0, 100);
    StaticMapScene scene;
    GeoStaticMap layer(&scene.projector);
    layer.setStyleSheet(sheet({opaque, veil}));
    layer.setMaps({mapOf({areaGroup(box(40.0, 0.0, 41.0, 1.0)), areaGroup(box(40.0, 2.0, 41.0, 3.0), "veil")})});
    const auto colorAt = [&](double longitude) {
        return scene.painted(layer, 100.0, scene.plane({40.5, longitude})).at(PaintedView::Middle);
    };
    QCOMPARE(colorAt(0.5), Red);
    const QColor veiled = colorAt(2.5);
    layer.setOverTiles(true);
    const QColor ground = colorAt(1.5);
    QCOMPARE(colorAt(0.5), ground);
    QCOMPARE(colorAt(2.5), veiled);
    QVERIFY(veiled != ground);
}

VYX_TEST(TestStaticMapPicture)
#include "tst_static_map_picture.moc"
