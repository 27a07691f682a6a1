#include "app/config.h"
#include "display/antenna_sweep.h"
#include "display/geo_map_display.h"
#include "display/geo_range_ring_map.h"
#include "display/geo_sensor_map.h"
#include "geo/mercator_projector.h"
#include "painted_view.h"
#include "tracking/adsb_sensor_info.h"
#include "tracking/radar_sensor_info.h"

#include <QSignalSpy>
#include <QTest>

#include <cmath>

class tst_MapLayers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void coverageLiesAtItsTrueDistance();
    void antennaLineTurns();
    void northMarkerFlashes();
    void sensorThatDoesNotTurnHasNoAntenna();
    void hiddenPartsAreNotPainted();
    void sweepMeasuresItsPeriod_data();
    void sweepMeasuresItsPeriod();
    void ringsLieAtTheirTrueDistances_data();
    void ringsLieAtTheirTrueDistances();
    void ringsStandWhereTheyWerePut();
    void displayLeavesThePainterAsItWas();
    void takesTheConfiguration();

private:
    // The site of the sensor in the plane.
    QPointF plane(const GeoCoordinate &place)
    {
        double x = 0.0;
        double y = 0.0;
        m_projector.toCartesian(&x, &y, place.latitude(), place.longitude());
        return QPointF(x, y);
    }

    QPointF pixel(const PaintedView &view, const GeoCoordinate &from, double miles, double azimuth)
    {
        return view.view().toScreen(plane(from.atDistanceAndAzimuth(miles * 1852.0, azimuth)));
    }

    MercatorProjector m_projector;
};

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

void tst_MapLayers::coverageLiesAtItsTrueDistance()
{
    GeoSensorMap layer(&m_projector);
    layer.setSensor(radar(50, 100));
    PaintedView view(2500.0, plane(Site), 30.0);
    view.paint([&](QPainter &painter, const GeoView &geoView) { layer.paint(painter, geoView); });
    for (double azimuth : {0.0, 45.0, 90.0, 180.0, 305.0}) {
        for (double miles : {50.0, 90.0, 100.0, 110.0})
            QCOMPARE(view.inkedNear(pixel(view, Site, miles, azimuth)), miles == 50.0 || miles == 100.0);
    }
}

void tst_MapLayers::antennaLineTurns()
{
    qint64 now = 1000;
    GeoSensorMap layer(&m_projector);
    layer.setClock([&now] { return now; });
    layer.setSensor(radar(0, 100));
    layer.showCoverage(false);
    PaintedView view(2500.0, plane(Site));
    const auto lineAt = [&](double azimuth) {
        view.paint([&](QPainter &painter, const GeoView &geoView) { layer.paint(painter, geoView); });
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

void tst_MapLayers::northMarkerFlashes()
{
    qint64 now = 0;
    const QColor markerColor(255, 0, 0);
    GeoSensorMap layer(&m_projector);
    layer.setClock([&now] { return now; });
    layer.setSensor(radar(0, 100));
    PaintedView view(2500.0, plane(Site));
    const auto flashes = [&] {
        view.paint([&](QPainter &painter, const GeoView &geoView) { layer.paint(painter, geoView); });
        return view.count(markerColor) > 0;
    };
    QVERIFY(!flashes());
    layer.antennaNorthCrossed();
    QVERIFY(flashes());
    const QRect marker = view.extent(markerColor);
    QVERIFY(marker.right() - marker.left() < 5 && marker.bottom() < 200 && marker.height() > 50);
    now += 2000;
    QVERIFY(!flashes());
}

void tst_MapLayers::sensorThatDoesNotTurnHasNoAntenna()
{
    GeoSensorMap layer(&m_projector);
    auto sensor = QSharedPointer<AdsbSensorInfo>::create();
    sensor->setLocation(Site);
    layer.setSensor(sensor);
    PaintedView view(2500.0, plane(Site));
    const auto ink = [&] {
        view.paint([&](QPainter &painter, const GeoView &geoView) { layer.paint(painter, geoView); });
        return view.ink();
    };
    const int site = ink();
    QVERIFY(site > 0);
    layer.antennaNorthCrossed();
    QCOMPARE(ink(), site);
    sensor->setName(QStringLiteral("Hill"));
    layer.setSensor(sensor);
    QVERIFY(ink() > site);
    layer.setSensor({});
    QCOMPARE(ink(), 0);
    layer.setSensor(QSharedPointer<AdsbSensorInfo>::create()); // a sensor without a place
    QCOMPARE(ink(), 0);
}

void tst_MapLayers::hiddenPartsAreNotPainted()
{
    GeoMapDisplay display(&m_projector);
    display.setSensor(radar(0, 100));
    display.sensorMap()->antennaNorthCrossed();
    display.setBackgroundColor(Qt::black);
    PaintedView view(2500.0, plane(Site));
    const auto ink = [&] {
        view.paint([&](QPainter &painter, const GeoView &geoView) { display.paint(painter, geoView); });
        return view.ink();
    };
    QList<int> inks{ink()};
    GeoSensorMap *layer = display.sensorMap();
    for (auto hide : {&GeoSensorMap::showCoverage, &GeoSensorMap::showNorthMarker, &GeoSensorMap::showAntennaLine}) {
        (layer->*hide)(false);
        inks << ink();
    }
    layer->setVisible(false);
    inks << ink();
    QCOMPARE(inks.last(), 0);
    QVERIFY(inks[0] > inks[1] && inks[1] >= inks[2] && inks[2] > inks[3] && inks[3] > 0);
}

void tst_MapLayers::sweepMeasuresItsPeriod_data()
{
    QTest::addColumn<double>("nominal");
    // x: azimuth, a negative one is a north marker; y: milliseconds.
    QTest::addColumn<QList<QPointF>>("messages");
    QTest::addColumn<double>("period");
    const auto row = [](const char *name, double nominal, const QList<QPointF> &messages, double period) {
        QTest::newRow(name) << nominal << messages << period;
    };
    row("nothing heard", 4.0, {}, 4.0);
    row("north markers", 4.0, {{-1, 0}, {-1, 5000}}, 5.0);
    row("the last revolution counts", 4.0, {{-1, 0}, {-1, 5000}, {-1, 9200}}, 4.2);
    row("sectors without north markers", 4.0, {{350, 0}, {11.25, 200}, {180, 2500}, {11.25, 5000}}, 4.8);
    row("other sector after north", 4.0, {{350, 0}, {0, 100}, {180, 2500}, {90, 6100}}, 4.8);
    row("a lost marker is no long revolution", 4.0, {{-1, 0}, {-1, 8000}}, 4.0);
    row("marker and sector together", 4.0, {{-1, 0}, {0, 0}, {180, 2000}, {-1, 4400}, {0, 4401}}, 4.4);
    row("no nominal period", 0.0, {{-1, 0}, {-1, 1000}}, 1.0);
    row("nothing known", 0.0, {{10, 0}, {20, 100}}, 0.0);
}

void tst_MapLayers::sweepMeasuresItsPeriod()
{
    QFETCH(double, nominal);
    QFETCH(QList<QPointF>, messages);
    QFETCH(double, period);
    AntennaSweep sweep;
    sweep.setNominalPeriod(nominal);
    for (const QPointF &message : messages) {
        if (message.x() < 0.0)
            sweep.northCrossed(qint64(message.y()));
        else
            sweep.sectorCrossed(message.x(), qint64(message.y()));
    }
    QVERIFY2(std::abs(sweep.period() - period) < 0.002, qPrintable(QString::number(sweep.period())));
}

void tst_MapLayers::ringsLieAtTheirTrueDistances_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::newRow("far north") << 60.0 << 25.0;
    QTest::newRow("south of the equator") << -33.0 << -70.0;
    QTest::newRow("across the 180th meridian") << 10.0 << 179.5;
}

void tst_MapLayers::ringsLieAtTheirTrueDistances()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    const GeoCoordinate place(latitude, longitude);
    GeoRangeRingMap rings(&m_projector);
    rings.setRings(plane(place), 3, 40.0);
    PaintedView view(2500.0, plane(place));
    view.paint([&](QPainter &painter, const GeoView &geoView) { rings.paint(painter, geoView); });
    for (double azimuth : {90.0, 180.0, 270.0}) {
        const QPointF axis = azimuth == 180.0 ? QPointF(0, 1) : QPointF(azimuth == 90.0 ? 1 : -1, 0);
        for (double miles : {40.0, 80.0, 120.0, 160.0}) {
            // Measured on the near side of the meridian, where longitudes do not jump.
            const double reach =
                QLineF(PaintedView::Middle, pixel(view, place, miles, azimuth == 180.0 ? 180.0 : 270.0)).length();
            QCOMPARE(view.inkedNear(PaintedView::Middle + axis * reach), miles < 150.0);
        }
        const double between =
            QLineF(PaintedView::Middle, pixel(view, place, 60.0, azimuth == 180.0 ? 180.0 : 270.0)).length();
        QVERIFY(!view.inkedNear(PaintedView::Middle + axis * between));
    }
}

void tst_MapLayers::ringsStandWhereTheyWerePut()
{
    GeoMapDisplay display(&m_projector);
    GeoRangeRingMap *rings = display.rangeRingMap();
    Config config;
    display.applyConfig(config);
    QCOMPARE(rings->center(), plane(config.displayCenterCoordinate));
    display.setSensor(radar(0, 100));
    QCOMPARE(rings->center(), plane(Site));
    rings->setRings(QPointF(1.0, 2.0), 5, 50.0);
    display.setSensor(radar(0, 100));
    display.applyConfig(config);
    QCOMPARE(rings->center(), QPointF(1.0, 2.0));
}

void tst_MapLayers::displayLeavesThePainterAsItWas()
{
    GeoMapDisplay display(&m_projector);
    display.setSensor(radar(50, 100));
    display.rangeRingMap()->setVisible(true);
    PaintedView view(2500.0, plane(Site), 12.0);
    view.paint([&](QPainter &painter, const GeoView &geoView) {
        const QPen pen = painter.pen();
        display.paint(painter, geoView);
        QCOMPARE(painter.worldTransform(), geoView.screenTransform());
        QCOMPARE(painter.pen(), pen);
        QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
    });
    QCOMPARE(view.at(QPoint(0, 0)), display.backgroundColor());
    for (const GeoMapDisplay::LayerTime &time : display.layerTimes())
        QVERIFY2(time.milliseconds > 0.0, qPrintable(time.name));
}

void tst_MapLayers::takesTheConfiguration()
{
    Config config;
    config.sensorLocation = Site;
    config.mapBackgroundColor = Qt::black;
    config.mapSensorVisible = false;
    config.mapRangeRingVisible = true;
    config.mapRangeRingColor = Qt::yellow;
    config.mapRangeRingNumber = 2;
    config.mapRangeRingDistance = 30.0;
    GeoMapDisplay display(&m_projector);
    QSignalSpy polluted(&display, &GeoMapDisplay::polluted);
    display.setSensor(radar(0, 100));
    display.applyConfig(config);
    QVERIFY(!polluted.isEmpty());
    PaintedView view(2500.0, plane(Site));
    view.paint([&](QPainter &painter, const GeoView &geoView) { display.paint(painter, geoView); });
    QVERIFY(view.inkedNear(pixel(view, Site, 60.0, 90.0)));
    QVERIFY(!view.inkedNear(pixel(view, Site, 45.0, 90.0)));
    QVERIFY(!view.inkedNear(pixel(view, Site, 90.0, 90.0)));
    QVERIFY(view.count(Qt::yellow) > 0);
    QVERIFY(!display.sensorMap()->visible());
}

QTEST_MAIN(tst_MapLayers)
#include "tst_map_layers.moc"
