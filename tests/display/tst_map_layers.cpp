#include "app/config.h"
#include "display/geo_map_display.h"
#include "geo/mercator_projector.h"
#include "orientation/antenna_sweep.h"
#include "orientation/geo_range_ring_map.h"
#include "orientation/geo_sensor_map.h"
#include "painted_view.h"
#include "sensors/radar_sensor_info.h"
#include "test_program.h"
#include "view/geo_layer.h"

#include <QSignalSpy>
#include <QTest>

#include <cmath>

namespace {

const GeoCoordinate Site(60.0, 25.0); // far enough north that the plane is twice as large as the ground

QSharedPointer<RadarSensorInfo> radar(unsigned int primary, unsigned int secondary)
{
    auto sensor = QSharedPointer<RadarSensorInfo>::create();
    sensor->setLocation(Site);
    sensor->setRotationPeriod(4.0);
    sensor->setRadarType(primary > 0, secondary > 0, false);
    sensor->setCoveragePrimary(primary);
    sensor->setCoverageSecondary(secondary);
    return sensor;
}

} // namespace

class TestMapLayers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void coverageLiesAtItsTrueDistance();
    void antennaLineTurns();
    void northMarkerFlashes();
    void shortNorthMarkerStaysInView();
    void nameAndRangesOnDemand();
    void sweepMeasuresItsPeriod_data();
    void sweepMeasuresItsPeriod();
    void ringsLieAtTheirTrueDistances();
    void takesTheConfiguration();
    void aLayerPaintsAtItsPlace();

private:
    // The site of the sensor in the plane.
    QPointF plane(const GeoCoordinate &place) { return m_projector.toCartesian(place); }

    QPointF pixel(const PaintedView &view, const GeoCoordinate &from, double miles, double azimuth)
    {
        return view.view().toScreen(plane(from.atDistanceAndAzimuth(miles * 1852.0, azimuth)));
    }

    // What the layer looks like round the site, north up.
    template <typename Layer>
    PaintedView painted(Layer &layer)
    {
        PaintedView view(2500.0, plane(Site));
        view.paint([&](QPainter &painter, const GeoView &geoView) { layer.paint(painter, geoView); });
        return view;
    }

    MercatorProjector m_projector;
};

void TestMapLayers::coverageLiesAtItsTrueDistance()
{
    GeoSensorMap layer(&m_projector);
    layer.setSensor(radar(50, 100));
    PaintedView view(2500.0, plane(Site), 30.0);
    view.paint([&](QPainter &painter, const GeoView &geoView) { layer.paint(painter, geoView); });
    for (double azimuth : {0.0, 45.0, 90.0, 180.0, 305.0}) {
        for (double miles : {50.0, 90.0, 100.0, 110.0}) {
            QCOMPARE(view.inkedNear(pixel(view, Site, miles, azimuth)), miles == 50.0 || miles == 100.0);
        }
    }
}

void TestMapLayers::antennaLineTurns()
{
    qint64 now = 1000;
    GeoSensorMap layer(&m_projector);
    layer.setClock([&now] { return now; });
    layer.setSensor(radar(0, 100));
    layer.showCoverage(false);
    const auto lineAt = [&](double azimuth) {
        const PaintedView view = painted(layer);
        return view.inkedNear(pixel(view, Site, 60.0, azimuth)) && view.inkedNear(pixel(view, Site, 98.0, azimuth))
            && !view.inkedNear(pixel(view, Site, 60.0, azimuth + 20.0))
            && !view.inkedNear(pixel(view, Site, 60.0, azimuth - 20.0));
    };
    QVERIFY(!lineAt(0.0));
    layer.antennaRotated(45.0);
    QVERIFY(lineAt(45.0));
    now += 500; // an eighth of a revolution on
    QVERIFY(lineAt(90.0));
    layer.antennaRotated(112.5);
    QVERIFY(lineAt(112.5));
    now += 12000;
    QVERIFY(lineAt(112.5));
    now += 1; // silent for more than three revolutions
    QVERIFY(!lineAt(112.5));
}

void TestMapLayers::northMarkerFlashes()
{
    qint64 now = 0;
    const QColor markerColor(255, 0, 0);
    GeoSensorMap layer(&m_projector);
    layer.setClock([&now] { return now; });
    layer.setSensor(radar(0, 100));
    QVERIFY(painted(layer).extent(markerColor).isEmpty());
    layer.antennaNorthCrossed();
    const QRect marker = painted(layer).extent(markerColor);
    QVERIFY(marker.right() - marker.left() < 5 && marker.bottom() < 200 && marker.height() > 50);
    now += 2000;
    QVERIFY(painted(layer).extent(markerColor).isEmpty());
}

void TestMapLayers::shortNorthMarkerStaysInView()
{
    Config config;
    config.mapSensorRadarNorthMarkerShort = true;
    config.mapSensorCoverageVisible = false;
    config.mapSensorRadarNorthMarkerColor = Qt::red;
    GeoSensorMap layer(&m_projector);
    layer.applyConfig(config);
    layer.setSensor(radar(0, 100));
    layer.antennaNorthCrossed();
    // The rim of the coverage is in the view, and beyond it.
    for (double metresPerPixel : {2500.0, 500.0}) {
        PaintedView view(metresPerPixel, plane(Site));
        view.paint([&](QPainter &painter, const GeoView &geoView) { layer.paint(painter, geoView); });
        const QRect marker = view.extent(Qt::red);
        const double rim = std::max(0.0, pixel(view, Site, 100.0, 0.0).y());
        QVERIFY(std::abs(marker.top() - rim) < 3.0 && marker.height() > 10 && marker.height() < 22);
    }
}

void TestMapLayers::nameAndRangesOnDemand()
{
    Config config;
    config.mapBackgroundColor = Qt::black;
    auto sensor = radar(50, 100);
    sensor->setName("North Tower");
    GeoMapDisplay display(&m_projector);
    const auto ink = [&](bool named) {
        config.mapSensorNameVisible = named;
        display.applyConfig(config);
        display.setSensor(sensor);
        const PaintedView view = painted(display);
        QRect name(0, 0, 60, 10);
        name.moveCenter(PaintedView::Middle + QPoint(0, 17));
        QRect range(0, 0, 80, 10); // where the ring has its bearing of 45 degrees
        range.moveCenter(pixel(view, Site, 100.0, 45.0).toPoint());
        return std::pair(view.inkIn(name), view.inkIn(range));
    };
    const auto [nameOff, rangeOff] = ink(false);
    const auto [nameOn, rangeOn] = ink(true);
    QVERIFY(nameOff == 0 && nameOn > 60);
    QVERIFY(rangeOn > rangeOff + 60);
}

void TestMapLayers::sweepMeasuresItsPeriod_data()
{
    QTest::addColumn<double>("nominal");
    // x: azimuth, a negative one is a north marker; y: milliseconds.
    QTest::addColumn<QList<QPointF>>("messages");
    QTest::addColumn<double>("period");
    const auto row = [](const char *name, double nominal, const QList<QPointF> &messages, double period) {
        QTest::newRow(name) << nominal << messages << period;
    };
    row("the last revolution counts", 4.0, {{-1, 0}, {-1, 5000}, {-1, 9200}}, 4.2);
    row("sectors without north markers", 4.0, {{350, 0}, {11.25, 200}, {180, 2500}, {11.25, 5000}}, 4.8);
    row("other sector after north", 4.0, {{350, 0}, {0, 100}, {180, 2500}, {90, 6100}}, 4.8);
    row("a lost marker is no long revolution", 4.0, {{-1, 0}, {-1, 8000}}, 4.0);
    row("marker and sector together", 4.0, {{-1, 0}, {0, 0}, {180, 2000}, {-1, 4400}, {0, 4401}}, 4.4);
}

void TestMapLayers::sweepMeasuresItsPeriod()
{
    QFETCH(double, nominal);
    QFETCH(QList<QPointF>, messages);
    QFETCH(double, period);
    AntennaSweep sweep;
    sweep.setNominalPeriod(nominal);
    for (const QPointF &message : messages) {
        if (message.x() < 0.0) {
            sweep.northCrossed(qint64(message.y()));
        } else {
            sweep.sectorCrossed(message.x(), qint64(message.y()));
        }
    }
    QVERIFY2(std::abs(sweep.period() - period) < 0.002, qPrintable(QString::number(sweep.period())));
}

// Far north, south of the equator and across the 180th meridian.
void TestMapLayers::ringsLieAtTheirTrueDistances()
{
    for (const GeoCoordinate &place : {Site, GeoCoordinate(-33.0, -70.0), GeoCoordinate(10.0, 179.5)}) {
        GeoRangeRingMap rings(&m_projector);
        rings.setRings(plane(place), 3, 40.0);
        PaintedView view(2500.0, plane(place));
        view.paint([&](QPainter &painter, const GeoView &geoView) { rings.paint(painter, geoView); });
        for (double miles : {40.0, 60.0, 80.0, 120.0, 160.0}) {
            const bool ring = miles < 150.0 && miles != 60.0;
            const QPointF west = pixel(view, place, miles, 270.0); // the side where longitudes do not jump
            QCOMPARE(view.inkedNear(west), ring);
            QCOMPARE(view.inkedNear(2.0 * PaintedView::Middle - west), ring);
            QCOMPARE(view.inkedNear(pixel(view, place, miles, 180.0)), ring);
        }
    }
}

void TestMapLayers::takesTheConfiguration()
{
    Config config;
    config.mapBackgroundColor = Qt::black;
    config.mapSensorCoverageVisible = false;
    config.mapRangeRingVisible = true;
    config.mapRangeRingColor = Qt::yellow;
    config.mapRangeRingNumber = 2;
    config.mapRangeRingDistance = 30.0;
    GeoMapDisplay display(&m_projector);
    QSignalSpy polluted(&display, &GeoMapDisplay::polluted);
    display.applyConfig(config);
    QVERIFY(!polluted.isEmpty());
    QCOMPARE(display.rangeRingMap()->center(), plane(config.displayCenterCoordinate));
    display.setSensor(radar(0, 50));
    const PaintedView view = painted(display);
    for (double miles : {30.0, 45.0, 50.0, 60.0, 90.0}) {
        QCOMPARE(view.inkedNear(pixel(view, Site, miles, 90.0)), miles == 30.0 || miles == 60.0);
    }
    QVERIFY(view.count(Qt::yellow) > 0);
    // Rings that were put somewhere stay there.
    display.rangeRingMap()->setRings(QPointF(1.0, 2.0), 5, 50.0);
    display.setSensor(radar(0, 100));
    display.applyConfig(config);
    QCOMPARE(display.rangeRingMap()->center(), QPointF(1.0, 2.0));
}

void TestMapLayers::aLayerPaintsAtItsPlace()
{
    class Sheet final : public GeoLayer {
    public:
        explicit Sheet(const QColor &color) : GeoLayer(QStringLiteral("Sheet")), m_color(color) { }
        void paint(QPainter &painter, const GeoView &view) override { painter.fillRect(view.planeRect(), m_color); }

    private:
        QColor m_color;
    };
    const auto shown = [this](MapLayer first, MapLayer second) {
        GeoMapDisplay display(&m_projector);
        display.addLayer<Sheet>(first, Qt::red);
        display.addLayer<Sheet>(second, Qt::blue);
        return painted(display).at(QPoint(10, 10));
    };
    QCOMPARE(shown(MapLayer::RangeRings, MapLayer::StaticMaps), QColor(Qt::red));
    QCOMPARE(shown(MapLayer::StaticMaps, MapLayer::RangeRings), QColor(Qt::blue));
    QCOMPARE(shown(MapLayer::Video, MapLayer::Video), QColor(Qt::blue));
}

VYX_TEST(TestMapLayers)
#include "tst_map_layers.moc"
