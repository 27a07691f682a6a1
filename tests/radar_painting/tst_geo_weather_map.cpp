#include "radar_painting/geo_weather_map.h"
#include "radar_scope.h"
#include "sensors/adsb_sensor_info.h"
#include "test_program.h"

#include <QHash>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <limits>

using Vector = WeatherProcessor::PolarVector;
using Picture = WeatherProcessor::Picture;

namespace {

Picture picture(const QList<Vector> &vectors)
{
    Picture made;
    made.vectors = vectors;
    return made;
}

QColor levelColor(int level)
{
    return QColor(30 * (level + 1), 255 - 20 * level, 10);
}

} // namespace

class TestGeoWeatherMap : public QObject, private RadarScope<GeoWeatherMap> {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void vectorsCoverTheirSectors();
    void widthTouchesTheNeighbour();
    void neighboursShowNoSeams();
    void strongerLevelsLieOnTop();
    void hiddenLevelsAreHatched();
    void movesWithTheView();
    void keepsUpWithItsCauses();
    void picturesComeAndGo();
    void ignoresNonsense();

private:
    QPoint pixel(const PaintedView &view, double miles, double azimuth)
    {
        return RadarScope::pixel(view, miles * 1852.0, azimuth).toPoint();
    }

    // Everything around the site.
    PaintedView painted(double metresPerPixel = 2500.0, double rotation = 0.0)
    {
        return RadarScope::painted(metresPerPixel, plane(Site), rotation);
    }
};

void TestGeoWeatherMap::init()
{
    m_config = Config();
    m_config.mapWeatherVisible = true;
    m_config.mapWeatherOpacity = 255;
    m_config.mapWeatherValidity = 60;
    m_config.mapWeatherAutoVectorWidth = false;
    m_config.mapWeatherVectorWidth = 10.0;
    for (int level = 0; level < GeoWeatherMap::LevelCount; ++level) {
        m_config.mapWeatherColor[level] = levelColor(level);
    }
    makeLayer(0);
    m_layer->setSensor(radarAt(Site));
    m_layer->applyConfig(m_config);
}

void TestGeoWeatherMap::vectorsCoverTheirSectors()
{
    struct Case {
        double azimuth;
        double width;
        double rotation;
    };
    for (const auto &[azimuth, width, rotation] :
        {Case{90.0, 4.0, 0.0}, Case{0.0, 4.0, 0.0}, Case{210.0, 4.0, 25.0}, Case{135.0, 40.0, 0.0}}) {
        m_config.mapWeatherVectorWidth = width;
        m_layer->applyConfig(m_config);
        m_layer->setPicture(picture({{3, 60.0, 120.0, azimuth}}));
        const PaintedView view = painted(2500.0, rotation);
        for (double miles : {55.0, 64.0, 90.0, 116.0, 125.0}) {
            for (double part : {-0.7, -0.3, 0.0, 0.3, 0.7}) {
                const bool inside = miles > 60.0 && miles < 120.0 && std::abs(part) < 0.5;
                QCOMPARE(view.at(pixel(view, miles, azimuth + part * width)) == levelColor(3), inside);
                const auto place = plane(Site.atDistanceAndAzimuth(miles * 1852.0, azimuth + part * width));
                QCOMPARE(m_layer->vectorAt(place).has_value(), inside);
            }
        }
    }
}

void TestGeoWeatherMap::widthTouchesTheNeighbour()
{
    const QList<std::pair<QList<double>, double>> cases{// 9 is the fallback
        {{}, 9.0}, {{10.0}, 9.0}, {{10.0, 70.0, 130.0}, 9.0}, {{10.0, 12.0, 11.0, 9.0, 13.0}, 1.0},
        {{10.0, 10.0, 10.5, 10.5, 11.0, 11.0}, 0.5}, {{10.0, 11.0, 12.0, 70.0, 71.0, 72.0}, 1.0},
        {{10.0, 10.0055, 11.0, 11.0055, 12.0}, 1.0}};
    for (const auto &[azimuths, width] : cases) {
        QList<Vector> vectors;
        for (double azimuth : azimuths) {
            vectors.append({1, 10.0, 20.0, azimuth});
        }
        QVERIFY(std::abs(touchingWidth(vectors, 9.0) - width) < 0.01);
    }
}

// The whole ring has one colour, at every scale and also where vectors are much narrower than a pixel.
void TestGeoWeatherMap::neighboursShowNoSeams()
{
    m_config.mapWeatherOpacity = 100;
    m_config.mapWeatherAutoVectorWidth = true;
    m_layer->applyConfig(m_config);
    QList<Vector> vectors;
    for (int i = 0; i < 1024; ++i) {
        vectors.append({4, 5.0, 60.0, i * 360.0 / 1024.0});
        vectors.append({4, 58.0, 120.0, i * 360.0 / 1024.0});
    }
    m_layer->setPicture(picture(vectors));
    for (double scale : {2500.0, 9000.0}) {
        const PaintedView view = painted(scale);
        const QColor color = view.at(pixel(view, 40.0, 77.0));
        QVERIFY(color != QColor(Qt::black) && color != levelColor(4));
        for (double azimuth = 0.0; azimuth < 360.0; azimuth += 0.7) {
            for (double miles = 8.0; miles < 115.0; miles += 3.0) {
                QCOMPARE(view.at(pixel(view, miles, azimuth)), color);
            }
        }
    }
}

void TestGeoWeatherMap::strongerLevelsLieOnTop()
{
    m_config.mapWeatherColor[6] = QColor();
    m_layer->applyConfig(m_config);
    // The strongest has no colour.
    m_layer->setPicture(
        picture({{5, 40.0, 80.0, 90.0}, {0, 40.0, 80.0, 90.0}, {6, 40.0, 80.0, 90.0}, {2, 40.0, 80.0, 90.0}}));
    // Most of what is there: hatching hides less than half.
    const auto shown = [this] {
        const PaintedView view = painted();
        const QPoint middle = pixel(view, 60.0, 90.0);
        QHash<QRgb, int> colors;
        for (int i = 0; i < 64; ++i) {
            ++colors[view.at(middle + QPoint(i % 8 - 4, i / 8 - 4)).rgb()];
        }
        return QColor(*std::max_element(
            colors.keyBegin(), colors.keyEnd(), [&](QRgb one, QRgb other) { return colors[one] < colors[other]; }));
    };
    const QPointF place = plane(Site.atDistanceAndAzimuth(60.0 * 1852.0, 90.0));
    QCOMPARE(m_layer->vectorAt(place)->vector.intensity, 5);
    for (int level : {5, 2, 0}) {
        QCOMPARE(shown(), levelColor(level));
        m_layer->setLevelVisible(level, false);
    }
    QCOMPARE(shown(), QColor(Qt::black));
    m_layer->setLevelVisible(2, true);
    QCOMPARE(shown(), levelColor(2));
}

void TestGeoWeatherMap::hiddenLevelsAreHatched()
{
    m_layer->setPicture(picture({{3, 40.0, 120.0, 90.0}}));
    const int filled = painted().ink();
    m_layer->setLevelVisible(3, false);
    const PaintedView hatched = painted();
    QVERIFY(hatched.count(levelColor(3)) > filled / 20 && hatched.ink() < filled / 4);
    // It lies on the ground: a view that has moved shows the same lines elsewhere.
    const PaintedView moved = RadarScope::painted(2500.0, plane(Site) + QPointF(3 * 2500.0, -2 * 2500.0));
    QCOMPARE(moved.image().copy(50, 50, 300, 300), hatched.image().copy(53, 52, 300, 300));
}

// What is moved on the screen must look as if it had been drawn there.
void TestGeoWeatherMap::movesWithTheView()
{
    m_layer->setPicture(picture({{1, 0.0, 90.0, 45.0}, {3, 20.0, 100.0, 135.0}, {5, 30.0, 120.0, 290.0}}));
    m_layer->setLevelVisible(3, false); // hatched
    const auto paintedAt = [this](const QPointF &pixels) {
        return RadarScope::painted(2500.0, plane(Site) + pixels * 2500.0).image();
    };
    for (const QPointF pixels : {QPointF(0, 0), QPointF(9, -5), QPointF(75, -5), QPointF(40, 120), QPointF(-300, 90)}) {
        const QImage moved = paintedAt(pixels);
        m_layer->applyConfig(m_config); // all is drawn anew
        QCOMPARE(moved, paintedAt(pixels));
    }
}

// What was drawn is kept; nothing of it may survive its cause.
void TestGeoWeatherMap::keepsUpWithItsCauses()
{
    m_layer->setPicture(picture({{1, 40.0, 80.0, 90.0}}));
    const auto ink = [this](double scale = 2500.0) { return painted(scale).count(levelColor(1)); };
    const int all = ink();
    QVERIFY(all > 0);
    QCOMPARE(ink(), all);
    QVERIFY(ink(1600.0) > 2 * all);
    m_config.mapWeatherVectorWidth = 5.0;
    m_layer->applyConfig(m_config);
    QVERIFY(ink() < all * 2 / 3);
    m_config.mapWeatherOpacity = 128;
    m_layer->applyConfig(m_config);
    QCOMPARE(ink(), 0);
    QVERIFY(painted().ink() > 0);
    m_config.mapWeatherColor[1] = Qt::magenta;
    m_config.mapWeatherOpacity = 255;
    m_layer->applyConfig(m_config);
    QVERIFY(painted().count(Qt::magenta) > 0);
    m_layer->setPicture(picture({{2, 40.0, 80.0, 270.0}}));
    QVERIFY(painted().count(Qt::magenta) == 0 && painted().count(levelColor(2)) > 0);
}

void TestGeoWeatherMap::picturesComeAndGo()
{
    const QSignalSpy changed(m_layer.get(), &GeoWeatherMap::pictureChanged);
    const Picture some = picture({{1, 40.0, 80.0, 90.0}, {1, 40.0, 80.0, 91.0}});
    m_layer->setPicture(some);
    m_now += 60000;
    QVERIFY(painted().ink() > 0);
    QCOMPARE(m_layer->vectorCount(1), 2);
    m_layer->setPicture(Picture()); // ignored, and does not prolong the validity
    m_now += 1;
    QCOMPARE(m_layer->vectorCount(1), 0);
    QCOMPARE(painted().ink(), 0);
    QCOMPARE(changed.size(), 2);

    m_config.mapWeatherIgnoreEmptyPicture = false;
    m_layer->applyConfig(m_config);
    m_layer->setPicture(some);
    m_layer->setPicture(Picture());
    QCOMPARE(painted().ink(), 0);
    QCOMPARE(m_layer->emptyPictures(), quint64(2));

    // A picture has no place of its own.
    auto station = QSharedPointer<AdsbSensorInfo>::create();
    station->setLocation(Site);
    for (const QSharedPointer<SensorInfo> &sensor :
        {QSharedPointer<SensorInfo>(), QSharedPointer<SensorInfo>(station)}) {
        m_layer->setSensor(sensor);
        m_layer->setPicture(some);
        QCOMPARE(painted().ink(), 0);
    }
    QCOMPARE(m_layer->placelessPictures(), quint64(2));
    m_layer->setSensor(radarAt(Site));
    m_layer->setPicture(some);
    QVERIFY(painted().ink() > 0);
}

void TestGeoWeatherMap::ignoresNonsense()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    m_layer->setPicture(picture({{1, 80.0, 40.0, 90.0}, {1, 40.0, 40.0, 90.0}, {1, nan, 80.0, 90.0},
        {1, 40.0, nan, 90.0}, {1, 40.0, infinite, 90.0}, {1, 40.0, 80.0, nan}, {-1, 40.0, 80.0, 90.0},
        {8, 40.0, 80.0, 90.0}, {1, -5.0, 80.0, 90.0}}));
    QCOMPARE(painted().ink(), 0);
    m_layer->setLevelVisible(8, false);
    m_layer->setLevelVisible(-1, false);
}

VYX_TEST(TestGeoWeatherMap)
#include "tst_geo_weather_map.moc"
