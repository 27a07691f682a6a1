#include "app/config.h"
#include "display/geo_map_display.h"
#include "display/geo_track_display.h"
#include "geo/mercator_projector.h"
#include "orientation/geo_map_key.h"
#include "orientation/geo_range_ring_map.h"
#include "orientation/geo_scale_bar.h"
#include "orientation/ring_labels.h"
#include "painted_view.h"
#include "radar_painting/geo_weather_map.h"
#include "sensors/radar_sensor_info.h"
#include "test_program.h"
#include "view/map_text.h"
#include "view/text_room.h"

#include <QLineF>
#include <QTest>

#include <cmath>

namespace {

const GeoCoordinate Site(50.0, 15.0);
const QColor TextColor(0, 255, 0);

QPolygonF circle(const QPointF &middle, double radius)
{
    QPolygonF ring;
    for (int i = 0; i <= 180; ++i) {
        const double angle = i * M_PI / 90.0;
        ring.append(middle + QPointF(std::sin(angle), -std::cos(angle)) * radius);
    }
    return ring;
}

GeoView viewOf(const QPointF &center, double metresPerPixel, const QSize &size, double rotation, double ratio)
{
    QTransform toScreen = QTransform::fromTranslate(size.width() / 2.0, size.height() / 2.0);
    toScreen.rotate(rotation);
    toScreen.scale(1.0 / metresPerPixel, -1.0 / metresPerPixel);
    toScreen.translate(-center.x(), -center.y());
    return GeoView(toScreen, size, ratio);
}

// What a display shows in a view, on black.
QImage picture(GeoMapDisplay &display, const GeoView &view)
{
    const QSize size = view.screenRect().size();
    QImage image(size * view.devicePixelRatio(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(view.devicePixelRatio());
    QPainter painter(&image);
    painter.setWorldTransform(view.screenTransform());
    display.paint(painter, view);
    return image;
}

int inkIn(const QImage &image, const QRectF &logical)
{
    const double ratio = image.devicePixelRatio();
    const QRect rect = QRectF(logical.topLeft() * ratio, logical.size() * ratio).toAlignedRect() & image.rect();
    int count = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            count += image.pixelColor(x, y) != QColor(Qt::black);
        }
    }
    return count;
}

} // namespace

class TestOrientationLayers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void distancesStayInView_data();
    void distancesStayInView();
    void textsKeepClearOfEachOther();
    void roseTellsTrueBearings();
    void northArrowInTurnedViewsOnly();
    void scaleBarIsTrue();
    void scaleBarIsRound();
    void keyShowsWhatIsThere();
    void keyTakesTheSymbolsInView();
    void survivesOddViews();

private:
    QPointF plane(const GeoCoordinate &place) { return m_projector.toCartesian(place); }
    QImage shown(const Config &config, const GeoView &view)
    {
        GeoMapDisplay display(&m_projector);
        display.applyConfig(config);
        return picture(display, view);
    }

    MercatorProjector m_projector;
    Config m_config; // nothing but the ground
};

void TestOrientationLayers::init()
{
    m_config = Config();
    m_config.sensorLocation = Site;
    m_config.mapStaticVisible = false;
    m_config.mapSensorVisible = false;
    m_config.mapBackgroundColor = Qt::black;
    m_config.mapRangeRingLabelColor = TextColor;
    m_config.mapRangeRingColor = QColor(60, 60, 60);
}

void TestOrientationLayers::distancesStayInView_data()
{
    QTest::addColumn<QPointF>("middle");
    QTest::addColumn<double>("radius");
    QTest::addColumn<qsizetype>("texts");
    // In a view of 800 by 600 pixels.
    QTest::newRow("whole ring") << QPointF(400, 300) << 250.0 << qsizetype(4);
    QTest::newRow("cut off above and below") << QPointF(400, 300) << 380.0 << qsizetype(4);
    QTest::newRow("a corner of the ring") << QPointF(-100, 700) << 300.0 << qsizetype(1);
    QTest::newRow("nearly a straight line") << QPointF(400, 60000) << 59700.0 << qsizetype(2);
    QTest::newRow("too small for four") << QPointF(400, 300) << 70.0 << qsizetype(1);
    QTest::newRow("around the view") << QPointF(400, 300) << 900.0 << qsizetype(0);
    QTest::newRow("elsewhere") << QPointF(4000, 300) << 100.0 << qsizetype(0);
}

void TestOrientationLayers::distancesStayInView()
{
    QFETCH(QPointF, middle);
    QFETCH(double, radius);
    QFETCH(qsizetype, texts);
    const QRectF screen(0, 0, 800, 600);
    TextRoom room;
    room.begin(screen);
    const auto labels = placeOnRing(circle(middle, radius), "50 NM", room);
    QCOMPARE(qsizetype(labels.size()), texts);
    for (const RingLabel &label : labels) {
        QVERIFY(screen.contains(mapTextRect(label.center, label.text)));
        QVERIFY(std::abs(QLineF(middle, label.center).length() - radius) < 0.002 * radius + 0.1);
        QVERIFY(!room.isFree(mapTextRect(label.center, label.text)));
    }
    if (radius == 250.0) { // where nothing is in the way, on its bearing
        const double along = radius * M_SQRT1_2;
        QVERIFY(QLineF(labels[0].center, middle + QPointF(along, -along)).length() < 1.0);
        QVERIFY(QLineF(labels[1].center, middle + QPointF(along, along)).length() < 1.0);
    }
    // Moved a little, the same places of the ring have them.
    TextRoom moved;
    moved.begin(screen);
    const auto again = placeOnRing(circle(middle + QPointF(1, 1), radius), "50 NM", moved);
    QVERIFY(labels.empty() || (!again.empty() && QLineF(again[0].center, labels[0].center).length() < 14.0));
}

// A note of the window and rings so close that the texts of all would not find room.
void TestOrientationLayers::textsKeepClearOfEachOther()
{
    m_config.mapRangeRingVisible = true;
    m_config.mapRangeRingLabelVisible = true;
    m_config.mapCompassRoseVisible = true;
    m_config.mapScaleBarVisible = true;
    m_config.mapRangeRingColor = Qt::black;
    m_config.mapRangeRingNumber = 20;
    m_config.mapRangeRingDistance = 10.0;
    GeoMapDisplay display(&m_projector);
    display.applyConfig(m_config);
    const GeoView view = viewOf(plane(Site), 800.0, {600, 400}, 0.0, 1.0);
    const QRect note(150, 16, 300, 40);
    QVERIFY(inkIn(picture(display, view), note) > 0);
    display.setCovered({note});
    const QImage image = picture(display, view);
    QCOMPARE(inkIn(image, note), 0);
    QVERIFY(inkIn(image, image.rect()) > 500);
}

void TestOrientationLayers::roseTellsTrueBearings()
{
    m_config.mapCompassRoseVisible = true;
    m_config.mapRangeRingVisible = true;
    m_config.mapRangeRingNumber = 2;
    struct Case {
        double metresPerPixel;
        QPointF offset; // of the view's middle from the site, pixels
        double rotation;
    };
    // At the ring; at the rim; turned; and with the site beside the view.
    for (const Case &shown : {Case{1500.0, {}, 0.0}, Case{400.0, {}, 0.0}, Case{1500.0, {}, 30.0},
             Case{400.0, {}, -75.0}, Case{400.0, {600, 60}, 0.0}}) {
        const QPointF middle = plane(Site) + shown.offset * shown.metresPerPixel;
        const GeoView view = viewOf(middle, shown.metresPerPixel, {800, 600}, shown.rotation, 1.0);
        const QImage image = this->shown(m_config, view);
        const bool onRing = shown.metresPerPixel == 1500.0;
        const QRectF inside = QRectF(view.screenRect()).adjusted(1.5, 1.5, -1.5, -1.5);
        int ticks = 0;
        for (int bearing = 10; bearing <= 360; bearing += 10) {
            // Where the tick is: just inside of the ring, or the last place along the bearing in the view.
            QPointF tick;
            for (double miles = onRing ? 98.0 : 0.5; miles < (onRing ? 98.4 : 400.0); miles += 0.1) {
                const QPointF pixel = view.toScreen(plane(Site.atDistanceAndAzimuth(miles * 1852.0, bearing)));
                tick = inside.contains(pixel) ? pixel : tick;
            }
            if (tick.isNull()) {
                continue;
            }
            ++ticks;
            QVERIFY2(
                inkIn(image, QRectF(tick - QPointF(3, 3), QSizeF(6, 6))) > 0, qPrintable(QString::number(bearing)));
        }
        QVERIFY(ticks >= (shown.offset.isNull() ? 36 : 6));
    }
}

void TestOrientationLayers::northArrowInTurnedViewsOnly()
{
    m_config.mapScaleBarVisible = true;
    const QRectF corner(700, 0, 100, 100);
    for (double rotation : {0.0, 1e-9, 45.0, -120.0, 180.0}) {
        const QImage image = shown(m_config, viewOf(plane(Site), 500.0, {800, 600}, rotation, 1.0));
        QCOMPARE(inkIn(image, corner) > 50, std::abs(rotation) > 1.0);
        // The letter is where north is.
        const QPointF middle(744, 56);
        const double angle = rotation * M_PI / 180.0;
        const QPointF north = middle + QPointF(std::sin(angle), -std::cos(angle)) * 19.0;
        const QPointF south = middle - QPointF(std::sin(angle), -std::cos(angle)) * 19.0;
        const QSizeF box(8, 8);
        QCOMPARE(inkIn(image, QRectF(north - QPointF(4, 4), box)) > inkIn(image, QRectF(south - QPointF(4, 4), box)),
            std::abs(rotation) > 1.0);
    }
}

// Far north the plane is longer than the ground.
void TestOrientationLayers::scaleBarIsTrue()
{
    m_config.mapScaleBarVisible = true;
    for (const GeoCoordinate &place : {GeoCoordinate(0.0, 20.0), GeoCoordinate(60.0, 20.0)}) {
        const double zoom = 37.04 / std::cos(place.latitude() * M_PI / 180.0); // 50 pixels a nautical mile
        const QImage image = shown(m_config, viewOf(plane(place), zoom, {800, 600}, 20.0, 1.0));
        int first = 800;
        int last = 0;
        for (int y = 560; y < 600; ++y) {
            int run = 0;
            for (int x = 0; x < 400; ++x) {
                run = image.pixelColor(x, y) == TextColor ? run + 1 : 0;
                if (run > 60) { // the bar, not a letter
                    first = std::min(first, x - run + 1);
                    last = std::max(last, x);
                }
            }
        }
        QVERIFY2(std::abs(last - first - 100) <= 3, qPrintable(QString::number(last - first))); // two miles
    }
}

void TestOrientationLayers::scaleBarIsRound()
{
    for (const auto &[value, round] : {std::pair(1.0, 1.0), {1.99, 1.0}, {2.0, 2.0}, {4.9, 2.0}, {5.0, 5.0}, {9.9, 5.0},
             {10.0, 10.0}, {730.0, 500.0}, {0.034, 0.02}, {0.5, 0.5}}) {
        QVERIFY(qFuzzyCompare(GeoScaleBar::roundBelow(value), round));
    }
}

void TestOrientationLayers::keyShowsWhatIsThere()
{
    const QColor level3(200, 40, 40);
    m_config.mapKeyVisible = true;
    m_config.mapWeatherVisible = true;
    m_config.mapWeatherOpacity = 255;
    m_config.mapWeatherColor[3] = level3;
    GeoMapDisplay display(&m_projector);
    display.applyConfig(m_config);
    const GeoView view = viewOf(plane(Site), 500.0, {400, 300}, 0.0, 1.0);
    const auto swatch = [&] {
        const QImage image = picture(display, view);
        int count = 0;
        for (int y = 150; y < 300; ++y) {
            for (int x = 0; x < 200; ++x) {
                count += image.pixelColor(x, y) == level3;
            }
        }
        return count;
    };
    QCOMPARE(inkIn(picture(display, view), view.screenRect()), 0);
    auto radar = QSharedPointer<RadarSensorInfo>::create();
    radar->setLocation(Site);
    display.setSensor(radar);
    WeatherProcessor::Picture weather;
    weather.vectors = {{3, 200.0, 210.0, 90.0}}; // outside of the view
    display.weatherMap()->setPicture(weather);
    const int filled = swatch();
    QVERIFY(filled > 100);
    display.weatherMap()->setLevelVisible(3, false);
    QVERIFY(swatch() > 0 && swatch() < filled / 2);
    display.weatherMap()->clear();
    QCOMPARE(inkIn(picture(display, view), view.screenRect()), 0);
    // More symbols than half of the height has rows for.
    QPixmap mark(10, 10);
    mark.fill(Qt::blue);
    display.mapKey()->addSymbolSource([&mark](double) {
        return std::vector<GeoMapKey::Symbol>(11, GeoMapKey::Symbol{"Mode S", mark});
    });
    const QImage image = picture(display, view);
    int marks = 0;
    for (int y = 0; y < 300; ++y) {
        for (int x = 0; x < 400; ++x) {
            marks += image.pixelColor(x, y) == QColor(Qt::blue);
        }
    }
    QCOMPARE(marks, 11 * 100);
    QCOMPARE(inkIn(image, QRectF(0, 0, 400, 110)), 0);
}

void TestOrientationLayers::keyTakesTheSymbolsInView()
{
    auto snapshot = QSharedPointer<DisplaySnapshot>::create();
    quint64 id = 0;
    for (const auto &[type, x] : {std::pair(Track::ModeS, 0.0), {Track::ModeS, 1000.0}, {Track::Psr, 0.0},
             {Track::Adsb, 1e7}}) { // the last is out of the view
        TrackSnapshot track;
        track.incarnationId = ++id;
        track.type = type;
        track.carCoordinate = QPointF(x, 0.0);
        track.carCoordinateValid = true;
        snapshot->tracks.append(track);
    }
    GeoTrackDisplay tracks;
    tracks.setSnapshot(snapshot);
    const auto meanings = [&tracks] {
        PaintedView view(500.0);
        view.paint([&](QPainter &painter, const GeoView &geoView) { tracks.paint(&painter, geoView); });
        QStringList result;
        for (const auto &symbol : tracks.shownSymbols(1.0)) {
            result.append(symbol.picture.isNull() ? QString() : symbol.meaning);
        }
        return result;
    };
    QCOMPARE(meanings(), QStringList({"PSR", "Mode S"}));
    tracks.setSnapshot(QSharedPointer<DisplaySnapshot>::create());
    QCOMPARE(meanings(), QStringList());
}

void TestOrientationLayers::survivesOddViews()
{
    m_config.mapRangeRingVisible = m_config.mapRangeRingLabelVisible = true;
    m_config.mapCompassRoseVisible = m_config.mapScaleBarVisible = m_config.mapKeyVisible = true;
    for (double ratio : {1.0, 1.5, 2.0}) {
        const QImage image = shown(m_config, viewOf(plane(Site), 500.0, {400, 300}, 33.0, ratio));
        QVERIFY(inkIn(image, QRectF(0, 0, 400, 300)) > 500 * ratio);
    }
    // Off the globe, around all of it, without extent, next to the centre.
    for (const QPointF &center : {QPointF(1e12, -1e12), QPointF(0, 0), plane(Site)}) {
        for (double scale : {0.3, 14000.0, 1e6}) {
            shown(m_config, viewOf(center, scale, {400, 300}, 10.0, 1.0));
            shown(m_config, viewOf(center, scale, {1, 1}, 10.0, 1.0));
        }
    }
    m_config.mapRangeRingDistance = 0.0;
    m_config.mapRangeRingNumber = 100;
    shown(m_config, viewOf(plane(Site), 500.0, {400, 300}, 0.0, 1.0));
}

VYX_TEST(TestOrientationLayers)
#include "tst_orientation_layers.moc"
