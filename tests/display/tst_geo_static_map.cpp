#include "app/config.h"
#include "display/geo_map_display.h"
#include "display/geo_static_map.h"
#include "geo/mercator_projector.h"
#include "painted_view.h"

#include <QTest>

#include <cmath>
#include <functional>

namespace {

const QColor Red(255, 0, 0);
const QColor Green(0, 255, 0);

using Check = std::function<bool(const PaintedView &)>;

MapStyleClass styleOf(const QColor &color)
{
    MapStyleClass style = defaultStyleClass(QStringLiteral("style"));
    style.color = color;
    style.pen.setColor(color);
    style.brush.setColor(color);
    return style;
}

MapStyleSheet sheet(std::initializer_list<MapStyleClass> styles)
{
    MapStyleSheet result;
    for (const MapStyleClass &style : styles)
        result.setStyle(style);
    return result;
}

QList<GeoCoordinate> box(double south, double west, double north, double east)
{
    return {{south, west}, {south, east}, {north, east}, {north, west}};
}

MapElementGroup group(const QString &className = QStringLiteral("style"))
{
    MapElementGroup result;
    result.className = className;
    return result;
}

MapElementGroup lineGroup(const QList<GeoCoordinate> &points)
{
    MapElementGroup result = group();
    result.polylines = {{{}, points}};
    return result;
}

MapElementGroup areaGroup(const QList<GeoCoordinate> &points, const QString &className = QStringLiteral("style"))
{
    MapElementGroup result = group(className);
    result.polygons = {{{}, points}};
    return result;
}

MapElementGroup labelGroup(const QList<MapLabelElement> &labels)
{
    MapElementGroup result = group();
    result.labels = labels;
    return result;
}

MapLibrary::Map mapOf(const QList<MapElementGroup> &groups, quint64 id = 1)
{
    auto data = QSharedPointer<MapData>::create();
    data->groups = groups;
    MapLibrary::Map map;
    map.id = id;
    map.data = data;
    return map;
}

// A coast from west to east: the closer one looks the more bends there are. The step is in degrees.
QList<GeoCoordinate> coast(int points, double step)
{
    QList<GeoCoordinate> line;
    for (int i = 0; i < points; ++i) {
        double latitude = 40.0;
        for (int octave = 0; octave < 10; ++octave)
            latitude += 0.02 * points * step * std::pow(0.6, octave) * std::sin(6.28 * i / points * (1 << octave));
        line.append({latitude, step * i});
    }
    return line;
}

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

Q_DECLARE_METATYPE(Check)

class tst_GeoStaticMap : public QObject {
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
    void movedPictureLooksAsIfDrawnAnew_data();
    void movedPictureLooksAsIfDrawnAnew();
    void imagesLieWhereTheirLatitudesAre();
    void smoothsImagesWhenConfigured();
    void detailIsNotMissedAtAnyScale();
    void areasAndLinesAreSoundCloseUp();
    void largeMapsArePreparedInTheBackground();
    void takesTheConfiguration();

private:
    QPointF plane(const GeoCoordinate &place)
    {
        double x = 0.0;
        double y = 0.0;
        m_projector.toCartesian(&x, &y, place.latitude(), place.longitude());
        return QPointF(x, y);
    }

    PaintedView painted(GeoStaticMap &layer, double metresPerPixel, const QPointF &center, double rotation = 0.0)
    {
        PaintedView view(metresPerPixel, center, rotation);
        view.paint([&](QPainter &painter, const GeoView &geoView) { layer.paint(painter, geoView); });
        return view;
    }

    PaintedView painted(const QList<MapLibrary::Map> &maps, const MapStyleSheet &styles, double metresPerPixel,
        const GeoCoordinate &center, double rotation = 0.0)
    {
        GeoStaticMap layer(&m_projector);
        layer.setStyleSheet(styles);
        layer.setMaps(maps);
        layer.setSymbolSize(20);
        return painted(layer, metresPerPixel, plane(center), rotation);
    }

    MercatorProjector m_projector;
};

// A line, an area, a symbol and a label of one class each, and the others of the default class, which is black on the
// black ground.
void tst_GeoStaticMap::showsEveryStyleAttribute_data()
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
        for (int x = 1; x < 400; ++x)
            count += view.inked(QPoint(x - 1, middle.y())) && !view.inked(QPoint(x, middle.y()));
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
        [](const PaintedView &view) { return view.ink() == 0; });
}

void tst_GeoStaticMap::showsEveryStyleAttribute()
{
    QFETCH(MapElementGroup, elements);
    QFETCH(MapStyleClass, style);
    QFETCH(Check, check);
    QVERIFY(check(painted({mapOf({elements})}, sheet({style}), 500.0, GeoCoordinate(0.0, 0.0))));
}

// A red map, and after it a green one over the same ground.
void tst_GeoStaticMap::showsMapsAsTheirEntriesSay_data()
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

void tst_GeoStaticMap::showsMapsAsTheirEntriesSay()
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

void tst_GeoStaticMap::goesOnBeyondTheRimOfTheWorld_data()
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

void tst_GeoStaticMap::goesOnBeyondTheRimOfTheWorld()
{
    QFETCH(QList<GeoCoordinate>, points);
    QFETCH(bool, area);
    QFETCH(QList<QPointF>, inked);
    QFETCH(QList<QPointF>, bare);
    GeoStaticMap layer(&m_projector);
    layer.setStyleSheet(sheet({styleOf(Green)}));
    layer.setMaps({mapOf({area ? areaGroup(points) : lineGroup(points)})});
    const auto seenAt = [&](const QPointF &place) {
        double x = 0.0;
        double y = 0.0;
        m_projector.toCartesian(&x, &y, place.y(), place.x());
        return painted(layer, 250.0, QPointF(x, y)).inkedNear(PaintedView::Middle);
    };
    for (const QPointF &place : inked)
        QVERIFY2(seenAt(place), qPrintable(QStringLiteral("%1 %2").arg(place.x()).arg(place.y())));
    for (const QPointF &place : bare)
        QVERIFY2(!seenAt(place), qPrintable(QStringLiteral("%1 %2").arg(place.x()).arg(place.y())));
}

// Labels of several colours round one place: those that must be seen, and those that must not.
void tst_GeoStaticMap::labelsGiveWay_data()
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

void tst_GeoStaticMap::labelsGiveWay()
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

void tst_GeoStaticMap::textsStayUpright()
{
    const QList<MapLibrary::Map> maps = {mapOf({labelGroup({{{}, QStringLiteral("WWWW\nWWWW"), {0.0, 0.0}}})})};
    const MapStyleSheet styles = sheet({styleOf(Green)});
    const QRect north = painted(maps, styles, 500.0, GeoCoordinate(0.0, 0.0)).extent(Green);
    QVERIFY(north.height() > QFontMetrics(QFont()).height());
    QCOMPARE(painted(maps, styles, 500.0, GeoCoordinate(0.0, 0.0), 90.0).extent(Green), north);
}

void tst_GeoStaticMap::movedPictureLooksAsIfDrawnAnew_data()
{
    QTest::addColumn<double>("metresPerPixel");
    QTest::addColumn<double>("rotation");
    QTest::newRow("north up") << 100.0 << 0.0;
    QTest::newRow("turned") << 100.0 << 33.0;
    QTest::newRow("close up") << 1.0 << 0.0;
    QTest::newRow("far away") << 2000.0 << -70.0;
}

void tst_GeoStaticMap::movedPictureLooksAsIfDrawnAnew()
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
        if (i % 3 == 0)
            elements.symbols.append({{}, QStringLiteral("vor"), place});
    }
    MapStyleClass style = styleOf(Green);
    style.brush = QBrush(Red, Qt::CrossPattern);
    style.pen = QPen(Qt::yellow, 2, Qt::DashDotLine);
    MapStyleClass thinStyle = styleOf(Qt::cyan);
    thinStyle.name = thin.className;
    const QList<MapLibrary::Map> maps = {mapOf({elements, thin})};
    const MapStyleSheet styles = sheet({style, thinStyle});

    GeoStaticMap moving(&m_projector);
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
        GeoStaticMap anew(&m_projector);
        anew.setStyleSheet(styles);
        anew.setMaps(maps);
        const int different = differing(paint(moving), paint(anew));
        QVERIFY2(different <= 16, qPrintable(QString::number(different)));
    }
}

// A picture of ten stripes, each as high as ten degrees of latitude.
void tst_GeoStaticMap::imagesLieWhereTheirLatitudesAre()
{
    QImage stripes(4, 160, QImage::Format_RGB32);
    for (int y = 0; y < 160; ++y) {
        for (int x = 0; x < 4; ++x)
            stripes.setPixel(x, y, qRgb(255, 10 * (y / 10), x < 2 ? 0 : 255));
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

void tst_GeoStaticMap::smoothsImagesWhenConfigured()
{
    QImage twoColors(2, 1, QImage::Format_RGB32);
    twoColors.setPixelColor(0, 0, Red);
    twoColors.setPixelColor(1, 0, Green);
    MapElementGroup images = group();
    images.images = {{{}, {}, QPixmap::fromImage(twoColors), {0.2, -0.2}, {-0.2, 0.2}}};
    for (bool smooth : {false, true}) {
        Config config;
        config.mapSmoothPixmapTransform = smooth;
        GeoStaticMap layer(&m_projector);
        layer.applyConfig(config);
        layer.setMaps({mapOf({images})});
        const PaintedView view = painted(layer, 500.0, QPointF(0.0, 0.0));
        const bool twoOnly = view.count(Red) + view.count(Green) == view.ink();
        QCOMPARE(twoOnly, !smooth);
    }
}

// Painted by the layer and with a plain painter: no pixel of the one without one of the other nearby.
void tst_GeoStaticMap::detailIsNotMissedAtAnyScale()
{
    QList<GeoCoordinate> shore = coast(4900, 0.01);
    shore << GeoCoordinate(10.0, 49.0) << GeoCoordinate(10.0, 0.0);
    QPolygonF points;
    for (const GeoCoordinate &point : shore)
        points << plane(point);
    points << points.first();
    for (bool area : {false, true}) {
        MapStyleClass style = styleOf(Green);
        style.brush = area ? QBrush(Green) : QBrush(Qt::NoBrush);
        GeoStaticMap layer(&m_projector);
        layer.setStyleSheet(sheet({style}));
        layer.setMaps({mapOf({areaGroup(shore)})});
        for (double metresPerPixel : {5.0, 127.0, 255.0, 1000.0, 5000.0, 14000.0}) {
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
void tst_GeoStaticMap::areasAndLinesAreSoundCloseUp()
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
    GeoStaticMap layer(&m_projector);
    layer.setStyleSheet(sheet({styleOf(Green)}));
    layer.setMaps({mapOf({lineGroup({west, east})})});
    const PaintedView view = painted(layer, 1.0, middle);
    QVERIFY(view.inkedNear(PaintedView::Middle) && view.ink() < 2000 && view.ink() > 400);
}

void tst_GeoStaticMap::largeMapsArePreparedInTheBackground()
{
    GeoStaticMap layer(&m_projector);
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

void tst_GeoStaticMap::takesTheConfiguration()
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
            GeoMapDisplay display(&m_projector);
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

QTEST_MAIN(tst_GeoStaticMap)
#include "tst_geo_static_map.moc"
