#include "app/config.h"
#include "display/geo_map_display.h"
#include "static_map_scene.h"
#include "test_program.h"

#include <QTest>

#include <functional>

namespace {

using Check = std::function<bool(const PaintedView &)>;

// Pixels of which much is red or green, as told: smoothed drawings hold few of the very colour.
int tinted(const PaintedView &view, const QColor &color)
{
    int count = 0;
    for (int i = 0; i < PaintedView::Size * PaintedView::Size; ++i) {
        const QColor pixel = view.at(QPoint(i % PaintedView::Size, i / PaintedView::Size));
        count += std::abs(pixel.red() - color.red()) < 128 && std::abs(pixel.green() - color.green()) < 128;
    }
    return count;
}

} // namespace

Q_DECLARE_METATYPE(Check)

class TestGeoStaticMap : public QObject, private StaticMapScene {
    Q_OBJECT

private Q_SLOTS:
    void showsEveryStyleAttribute_data();
    void showsEveryStyleAttribute();
    void showsMapsAsTheirEntriesSay_data();
    void showsMapsAsTheirEntriesSay();
    void goesOnBeyondTheRimOfTheWorld_data();
    void goesOnBeyondTheRimOfTheWorld();
    void labelsGiveWay_data();
    void labelsGiveWay();
    void textsStayUpright();
    void textsHaveARimOfTheGround();
    void tellsWhereItsTextsStand();
    void takesTheConfiguration();
};

// A line, an area, a symbol and a label of one class each, and the others of the default class, which is black on the
// black ground.
void TestGeoStaticMap::showsEveryStyleAttribute_data()
{
    QTest::addColumn<MapElementGroup>("elements");
    QTest::addColumn<MapStyleClass>("style");
    QTest::addColumn<Check>("check");
    const auto row = [](const char *name, const MapElementGroup &elements, const auto &change, const Check &check) {
        MapStyleClass style = styleOf(Green);
        change(style);
        QTest::newRow(name) << elements << style << check;
    };
    const MapElementGroup line = lineGroup({{0.0, -1.0}, {0.0, 1.0}});
    const MapElementGroup area = areaGroup(box(-0.5, -0.5, 0.5, 0.5));
    const MapElementGroup label = labelGroup({{{}, QStringLiteral("HHHH"), {0.0, 0.0}}});
    MapElementGroup symbol = group();
    symbol.symbols = {{{}, QStringLiteral("square"), {0.0, 0.0}}};
    const QPoint middle = PaintedView::Middle;
    const auto penOf = [](Qt::PenStyle penStyle, int width) {
        return [=](MapStyleClass &style) { style.pen = QPen(Red, width, penStyle); };
    };
    const auto inkOfRow = [middle](const PaintedView &view) { return view.inkIn(QRect(0, middle.y(), 400, 1)); };
    const auto gaps = [middle](const PaintedView &view) {
        int count = 0;
        for (int x = 1; x < 400; ++x) {
            count += view.inked(QPoint(x - 1, middle.y())) && !view.inked(QPoint(x, middle.y()));
        }
        return count;
    };
    row("pen colour", line, penOf(Qt::SolidLine, 3),
        [=](const PaintedView &view) { return view.at(middle) == Red && inkOfRow(view) > 200 && gaps(view) <= 1; });
    row("pen width", line, penOf(Qt::SolidLine, 9),
        [](const PaintedView &view) { return std::abs(view.extent(Red).height() - 9) <= 1; });
    row("dashes", line, penOf(Qt::DashLine, 2), [=](const PaintedView &view) { return std::abs(gaps(view) - 33) < 2; });
    row("dots", line, penOf(Qt::DotLine, 2), [=](const PaintedView &view) { return std::abs(gaps(view) - 66) < 2; });
    row("edge of an area", area, penOf(Qt::SolidLine, 5), [=](const PaintedView &view) {
        return view.at(middle) == Green && view.extent(Red).width() > view.extent(Green).width();
    });
    row("no pen", area, penOf(Qt::NoPen, 5), [](const PaintedView &view) { return view.count(Red) == 0; });
    row(
        "brush colour", area, [](MapStyleClass &style) { style.brush.setColor(Red); },
        [=](const PaintedView &view) { return view.at(middle) == Red; });
    row(
        "brush pattern", area, [](MapStyleClass &style) { style.brush = QBrush(Red, Qt::CrossPattern); },
        [](const PaintedView &view) {
            const QRect inner(170, 170, 64, 64);
            return view.inkIn(inner) == 64 * 64 * 15 / 64 && view.extent(Red).contains(inner);
        });
    row(
        "colour of symbols", symbol, [](MapStyleClass &style) { style.color = Red; },
        [](const PaintedView &view) { return tinted(view, Red) > 10 && tinted(view, Green) == 0; });
    row(
        "colour of labels", label, [](MapStyleClass &style) { style.color = Red; },
        [](const PaintedView &view) { return tinted(view, Red) > 10 && tinted(view, Green) == 0; });
    row(
        "size of the font", label, [](MapStyleClass &style) { style.font.setPointSize(36); },
        [](const PaintedView &view) { return view.extent(Green).height() > 25; });
    row(
        "family of the font", label, [](MapStyleClass &style) { style.font.setFamily(QStringLiteral("monospace")); },
        [](const PaintedView &view) { return tinted(view, Green) > 10; });
    row(
        "class unknown to the sheet", area, [](MapStyleClass &style) { style.name = QStringLiteral("other"); },
        [](const PaintedView &view) { return view.ink() > 10 && view.count(Green) == 0; }); // the rim of black
}

void TestGeoStaticMap::showsEveryStyleAttribute()
{
    QFETCH(MapElementGroup, elements);
    QFETCH(MapStyleClass, style);
    QFETCH(Check, check);
    QVERIFY(check(painted({mapOf({elements})}, sheet({style}), 500.0, GeoCoordinate(0.0, 0.0))));
}

// A red map, and after it a green one over the same ground.
void TestGeoStaticMap::showsMapsAsTheirEntriesSay_data()
{
    QTest::addColumn<MapIndexEntry>("red");
    QTest::addColumn<MapIndexEntry>("green");
    QTest::addColumn<QColor>("seen");
    const auto entry = [](std::optional<bool> visible, std::optional<int> priority, std::optional<int> minZoom,
                           std::optional<int> maxZoom) {
        MapIndexEntry result;
        result.visible = visible;
        result.priority = priority;
        result.minZoom = minZoom;
        result.maxZoom = maxZoom;
        return result;
    };
    const MapIndexEntry plain;
    QTest::newRow("later over earlier") << plain << plain << Green;
    QTest::newRow("higher over lower") << entry({}, 2, {}, {}) << entry({}, 1, {}, {}) << Red;
    QTest::newRow("negative under none") << plain << entry({}, -1, {}, {}) << Red;
    QTest::newRow("hidden") << plain << entry(false, {}, {}, {}) << Red;
    QTest::newRow("within limits") << plain << entry({}, {}, 500, 500) << Green;
    QTest::newRow("too far in") << plain << entry({}, {}, 501, {}) << Red;
    QTest::newRow("too far out") << plain << entry({}, {}, {}, 499) << Red;
}

void TestGeoStaticMap::showsMapsAsTheirEntriesSay()
{
    QFETCH(MapIndexEntry, red);
    QFETCH(MapIndexEntry, green);
    QFETCH(QColor, seen);
    MapStyleClass redStyle = styleOf(Red);
    redStyle.name = QStringLiteral("red");
    MapLibrary::Map redMap = mapOf({areaGroup(box(-1, -1, 1, 1), redStyle.name)}, 1);
    MapLibrary::Map greenMap = mapOf({areaGroup(box(-1, -1, 1, 1))}, 2);
    redMap.entry = red;
    greenMap.entry = green;
    MapLibrary::Map failed;
    failed.id = 3;
    const MapStyleSheet styles = sheet({redStyle, styleOf(Green)});
    const PaintedView view = painted({redMap, failed, greenMap}, styles, 500.0, GeoCoordinate(0.0, 0.0));
    QCOMPARE(view.at(PaintedView::Middle), seen);
}

void TestGeoStaticMap::goesOnBeyondTheRimOfTheWorld_data()
{
    QTest::addColumn<QList<GeoCoordinate>>("points");
    QTest::addColumn<bool>("area");
    QTest::addColumn<QList<QPointF>>("inked"); // longitude, latitude
    QTest::addColumn<QList<QPointF>>("bare");
    const QList<QPointF> farAway = {{0, 0}, {90, 0}, {-90, 0}};
    QTest::newRow("line") << QList<GeoCoordinate>{{0, 179}, {0, -179}} << false
                          << QList<QPointF>{{179.5, 0}, {180.5, 0}, {-180.5, 0}, {-179.5, 0}} << farAway;
    QTest::newRow("area") << QList<GeoCoordinate>{{-10, 170}, {-10, -170}, {10, -170}, {10, 170}} << true
                          << QList<QPointF>{{171, 0}, {180, 5}, {189, 0}, {-189, 0}, {-171, 0}} << farAway;
    QTest::newRow("both corners on the rim") << QList<GeoCoordinate>{{10, 170}, {10, 180}, {10, -180}, {10, -170},
        {-10, -170}, {-10, -180}, {-10, 180}, {-10, 170}}
                                             << true << QList<QPointF>{{171, 0}, {-171, 0}} << farAway;
    QTest::newRow("the whole world") << box(-85, -180, 85, 180) << true
                                     << QList<QPointF>{{0, 0}, {179, 80}, {-179, -80}} << QList<QPointF>{};
    QTest::newRow("round the pole") << QList<GeoCoordinate>{{-70, -120}, {-70, 0}, {-70, 120}} << true
                                    << QList<QPointF>{{0, -75}, {179, -75}, {-179, -75}, {100, -85}}
                                    << QList<QPointF>{{0, -60}, {179, -60}, {0, 80}};
    QTest::newRow("round the pole along the rim")
        << QList<GeoCoordinate>{{-70, -180}, {-70, -60}, {-70, 60}, {-70, 180}, {-90, 180}, {-90, -180}} << true
        << QList<QPointF>{{0, -75}, {179, -75}, {-179, -75}} << QList<QPointF>{{0, -60}, {179, -60}};
    QTest::newRow("one point without a place") << QList<GeoCoordinate>{{0, 10}, {}, {0, 20}} << false
                                               << QList<QPointF>{{11, 0}, {19, 0}} << QList<QPointF>{{5, 0}};
    QTest::newRow("nothing") << QList<GeoCoordinate>{{0, 10}, {}} << true << QList<QPointF>{} << farAway;
}

void TestGeoStaticMap::goesOnBeyondTheRimOfTheWorld()
{
    QFETCH(QList<GeoCoordinate>, points);
    QFETCH(bool, area);
    QFETCH(QList<QPointF>, inked);
    QFETCH(QList<QPointF>, bare);
    GeoStaticMap layer(&projector);
    layer.setStyleSheet(sheet({styleOf(Green)}));
    layer.setMaps({mapOf({area ? areaGroup(points) : lineGroup(points)})});
    const auto seenAt = [&](const QPointF &place) {
        double x = 0.0;
        double y = 0.0;
        projector.toCartesian(&x, &y, place.y(), place.x());
        return painted(layer, 250.0, QPointF(x, y)).inkedNear(PaintedView::Middle);
    };
    for (const QPointF &place : inked) {
        QVERIFY2(seenAt(place), qPrintable(QStringLiteral("%1 %2").arg(place.x()).arg(place.y())));
    }
    for (const QPointF &place : bare) {
        QVERIFY2(!seenAt(place), qPrintable(QStringLiteral("%1 %2").arg(place.x()).arg(place.y())));
    }
}

// Labels of several colours round one place: those that must be seen, and those that must not.
void TestGeoStaticMap::labelsGiveWay_data()
{
    QTest::addColumn<int>("redPriority");
    QTest::addColumn<double>("greenAway"); // degrees to the north; a pixel is about 0.0045
    QTest::addColumn<bool>("symbol"); // at the place of the green label
    QTest::addColumn<bool>("redSeen");
    QTest::addColumn<bool>("greenSeen");
    QTest::newRow("far enough apart") << 0 << 0.2 << false << true << true;
    QTest::newRow("the earlier map first") << 0 << 0.01 << false << true << false;
    QTest::newRow("the higher map first") << -1 << 0.01 << false << false << true;
    QTest::newRow("a side of the symbol is free") << 0 << 0.02 << true << false << true;
    QTest::newRow("symbols before any label") << 5 << 0.0 << true << false << true;
}

void TestGeoStaticMap::labelsGiveWay()
{
    QFETCH(int, redPriority);
    QFETCH(double, greenAway);
    QFETCH(bool, symbol);
    QFETCH(bool, redSeen);
    QFETCH(bool, greenSeen);
    MapStyleClass redStyle = styleOf(Red);
    MapElementGroup redLabel = labelGroup({{{}, QStringLiteral("RRR"), {0.0, 0.0}}});
    redLabel.className = redStyle.name = QStringLiteral("red");
    MapElementGroup greenLabel = labelGroup({{{}, QStringLiteral("GGG"), {greenAway, 0.0}}});
    MapLibrary::Map redMap = mapOf({redLabel}, 1);
    redMap.entry.priority = redPriority;
    QList<MapLibrary::Map> maps = {redMap, mapOf({greenLabel}, 2)};
    const MapStyleSheet styles = sheet({redStyle, styleOf(Green)});
    if (symbol) {
        greenLabel.symbols = {{{}, QStringLiteral("dot"), {greenAway, 0.0}}};
        maps[1] = mapOf({greenLabel}, 2);
    }
    const PaintedView view = painted(maps, styles, 500.0, GeoCoordinate(0.0, 0.0));
    const QRect dot = symbol ? QRect(196, 200 - int(greenAway / 0.0045) - 4, 9, 9) : QRect();
    QCOMPARE(tinted(view, Red) > 10, redSeen);
    QCOMPARE(tinted(view, Green) - view.inkIn(dot) > 10, greenSeen);
}

// Also in a view beside that which was painted, as when the view is being dragged.
void TestGeoStaticMap::tellsWhereItsTextsStand()
{
    GeoStaticMap layer(&projector);
    layer.setStyleSheet(sheet({styleOf(Green)}));
    layer.setMaps(
        {mapOf({labelGroup({{{}, QStringLiteral("WWWW"), {0.1, 0.2}}, {{}, QStringLiteral("W"), {9.0, 9.0}}})})});
    const PaintedView before = painted(layer, 500.0, plane({0.0, 0.0}));
    const PaintedView beside(500.0, plane({0.0, 0.0}) + QPointF(20.0, -30.0) * 500.0);
    const auto places = layer.textPlaces(beside.view());
    QCOMPARE(places.size(), 1);
    const QRect ink = painted(layer, 500.0, plane({0.0, 0.0}) + QPointF(20.0, -30.0) * 500.0).extent(Green);
    QVERIFY(!ink.isEmpty() && places[0].adjusted(-1, -1, 1, 1).contains(ink));
    QVERIFY(places[0].width() < 2.0 * ink.width());
    QVERIFY(layer.textPlaces(PaintedView(400.0).view()).isEmpty()); // another scale: not painted yet
    layer.setVisible(false);
    QVERIFY(layer.textPlaces(beside.view()).isEmpty());
}

void TestGeoStaticMap::textsStayUpright()
{
    const QList<MapLibrary::Map> maps = {mapOf({labelGroup({{{}, QStringLiteral("WWWW\nWWWW"), {0.0, 0.0}}})})};
    const MapStyleSheet styles = sheet({styleOf(Green)});
    const QRect north = painted(maps, styles, 500.0, GeoCoordinate(0.0, 0.0)).extent(Green);
    QVERIFY(north.height() > QFontMetrics(QFont()).height());
    QCOMPARE(painted(maps, styles, 500.0, GeoCoordinate(0.0, 0.0), 90.0).extent(Green), north);
}

// The same text over a bright ground and over a dark one: its rim must not set it off from the ground.
void TestGeoStaticMap::textsHaveARimOfTheGround()
{
    const QColor text(0x68, 0x7C, 0x8B);
    GeoStaticMap layer(&projector);
    layer.setStyleSheet(sheet({styleOf(text)}));
    layer.setMaps({mapOf({labelGroup({{{}, QStringLiteral("HHHH"), {0.0, 0.0}}})})});
    for (const QColor ground : {QColor(0xD3, 0xE0, 0xEA), QColor(0x0B, 0x11, 0x18)}) {
        Config config;
        config.mapBackgroundColor = ground;
        layer.applyConfig(config);
        const PaintedView view = painted(layer, 500.0, {});
        int brighter = 0;
        for (int i = 0; i < 100 * 100; ++i) {
            brighter +=
                view.at(PaintedView::Middle + QPoint(i % 100 - 50, i / 100 - 50)).lightness() > text.lightness() + 20;
        }
        QCOMPARE(brighter > 20, ground.lightness() > 128);
    }
}

void TestGeoStaticMap::takesTheConfiguration()
{
    MapElementGroup symbols = group();
    symbols.symbols = {{{}, QStringLiteral("square"), {0.0, 0.0}}};
    Config config;
    config.mapRangeRingVisible = false;
    config.mapSensorVisible = false;
    for (int size : {16, 48}) {
        config.mapStaticSymbolSize = size;
        for (bool visible : {true, false}) {
            config.mapStaticVisible = visible;
            GeoMapDisplay display(&projector);
            display.staticMap()->setStyleSheet(sheet({styleOf(Green)}));
            display.staticMap()->setMaps({mapOf({symbols})});
            display.applyConfig(config);
            PaintedView view(500.0);
            view.paint([&](QPainter &painter, const GeoView &geoView) { display.paint(painter, geoView); });
            const int extent = view.extent(Green).width();
            QVERIFY2(visible ? extent > size / 2 && extent < size : extent == 0, qPrintable(QString::number(extent)));
        }
    }
}

VYX_TEST(TestGeoStaticMap)
#include "tst_geo_static_map.moc"
