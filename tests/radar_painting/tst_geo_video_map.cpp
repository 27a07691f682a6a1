#include "radar_painting/geo_video_map.h"
#include "radar_scope.h"
#include "test_program.h"

#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <limits>

using Radial = VideoProcessor::Radial;

namespace {

constexpr double CellSize = 50.0;
constexpr int Cells = 1000; // 27 nautical miles

QSharedPointer<SensorInfo> radar(unsigned char sac, unsigned char sic, const GeoCoordinate &place = Site)
{
    const auto sensor = radarAt(place);
    sensor->setSacSic(sac, sic);
    return sensor;
}

Radial radialOf(double start, double end, const QList<unsigned char> &amplitudes, quint32 startCell = 0)
{
    Radial radial;
    radial.sac = 1;
    radial.sic = 2;
    radial.startAzimuth = start;
    radial.endAzimuth = end;
    radial.cellSize = CellSize;
    radial.startCell = startCell;
    radial.cellCount = quint32(amplitudes.size());
    radial.amplitudes = amplitudes;
    return radial;
}

Radial filled(double start, double end, unsigned char amplitude = 255)
{
    return radialOf(start, end, QList<unsigned char>(Cells, amplitude));
}

// Whether a pixel or one beside it has the colour: where the edge of a radial runs may differ by rounding.
bool seenNear(const PaintedView &view, const QPoint &at, const QColor &color)
{
    for (int i = 0; i < 9; ++i) {
        const QPoint pixel = at + QPoint(i % 3 - 1, i / 3 - 1);
        if (view.image().rect().contains(pixel) && view.at(pixel) == color) {
            return true;
        }
    }
    return false;
}

// A radial around the azimuth with one echo.
Radial echoAt(double azimuth, int cell, double width = 0.1)
{
    QList<unsigned char> amplitudes(Cells, 0);
    amplitudes[cell] = 255;
    const auto turned = [](double degrees) { return std::fmod(degrees + 360.0, 360.0); };
    return radialOf(turned(azimuth - width / 2.0), turned(azimuth + width / 2.0), amplitudes);
}

double metres(int cell)
{
    return (cell + 0.5) * CellSize;
}

} // namespace

class TestGeoVideoMap : public QObject, private RadarScope<GeoVideoMap> {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void echoesLieWhereTheyAre();
    void coversTheGroundWithoutHoles();
    void losesNoEchoAtAnyScale();
    void amplitudeDecidesTheColor();
    void fadesUntilItsValidityEnds();
    void newRadialsReplaceOldOnes();
    void movesWithTheView();
    void newsComeWhileTheViewIsDragged();
    void joinsPartsOfARadial();
    void drawsOnlyKnownSources();
    void survivesNonsense();

private:
    PaintedView painted(double groundMetresPerPixel, const QPointF &center, double rotation = 0.0)
    {
        return RadarScope::painted(groundMetresPerPixel * 2.0, center, rotation);
    }

    // How far a pixel lies inside the range of the radar.
    double pixelsInside(const PaintedView &view, const QPoint &at, double scale)
    {
        const QPointF point = view.view().toPlane(QPointF(at) + QPointF(0.5, 0.5));
        double latitude = 0.0;
        double longitude = 0.0;
        m_projector.toWgs84(&latitude, &longitude, point.x(), point.y());
        return (Cells * CellSize - Site.distanceTo(QGeoCoordinate(latitude, longitude))) / scale;
    }

    // Everything around the site.
    PaintedView painted() { return painted(300.0, plane(Site)); }
};

void TestGeoVideoMap::init()
{
    m_config = Config();
    m_config.mapVideoVisible = true;
    m_config.mapVideoHighColor = Qt::white;
    m_config.mapVideoLowColor = Qt::blue;
    makeLayer(1000);
    m_layer->setSensor(radar(1, 2));
    m_layer->applyConfig(m_config);
}

void TestGeoVideoMap::echoesLieWhereTheyAre()
{
    struct Case {
        double azimuth;
        int cell;
        double scale; // metres a pixel
        double rotation;
    };
    // All around, across north, in a turned view, near the site, and with cells of several pixels.
    for (const auto &[azimuth, cell, scale, rotation] : {Case{90.0, 900, 300.0, 0.0}, Case{0.0, 700, 300.0, 0.0},
             Case{359.97, 500, 300.0, 0.0}, Case{315.0, 999, 300.0, 0.0}, Case{200.0, 600, 300.0, 40.0},
             Case{130.0, 10, 20.0, 0.0}, Case{225.0, 800, 5.0, 0.0}}) {
        m_layer->clear();
        m_layer->addRadial(echoAt(azimuth, cell));
        const QPointF place = plane(Site.atDistanceAndAzimuth(metres(cell), azimuth));
        const PaintedView view = painted(scale, scale > 100.0 ? plane(Site) : place, rotation);
        QVERIFY2(view.inkedNear(view.view().toScreen(place)), qPrintable(QString::number(azimuth)));
        // The echo has the extent of its cell, and a pixel more on each side.
        const double size = std::max(CellSize, metres(cell) * 0.13 * 0.01745) / scale;
        QVERIFY2(view.ink() <= (size + 3.0) * (size + 3.0), qPrintable(QString::number(azimuth)));
        const auto echo = m_layer->echoAt(place, 1.0);
        QVERIFY(echo && echo->cell == quint64(cell) && echo->sac == 1 && echo->sic == 2);
        QVERIFY(std::abs(std::remainder(echo->azimuth - azimuth, 360.0)) < 0.1);
        QVERIFY(!m_layer->echoAt(plane(Site.atDistanceAndAzimuth(metres(cell) + 5.0 * CellSize, azimuth)), 1.0));
    }
}

void TestGeoVideoMap::coversTheGroundWithoutHoles()
{
    struct Case {
        int radials;
        double offset; // degrees
        double part; // of the way to the next radial that a radial states as its width
        double scale; // metres a pixel
    };
    // As many as usual, afar and close up; between bins; narrower than bins; ending early; without a width; a few.
    for (const auto &[radials, offset, part, scale] : {Case{4096, 0.0, 1.0, 300.0}, Case{4096, 0.0, 1.0, 4.0},
             Case{1000, 0.123, 1.0, 300.0}, Case{40000, 0.01, 1.0, 300.0}, Case{3600, 0.05, 0.94, 4.0},
             Case{720, 0.0, 0.0, 300.0}, Case{12, 5.0, 1.0, 300.0}}) {
        m_layer->clear();
        for (int i = 0; i <= radials; ++i) {
            const double start = std::fmod(offset + i * 360.0 / radials, 360.0);
            m_layer->addRadial(filled(start, std::fmod(start + part * 360.0 / radials, 360.0)));
        }
        // All around the site, or its edge in the east.
        const PaintedView view =
            painted(scale, plane(Site.atDistanceAndAzimuth(scale > 100.0 ? 0.0 : Cells * CellSize, 90.0)));
        for (int i = 0; i < PaintedView::Size * PaintedView::Size; ++i) {
            const QPoint at(i % PaintedView::Size, i / PaintedView::Size);
            const bool covered = view.at(at) == QColor(Qt::white);
            if (covered && i % 3 > 0) {
                continue; // a third of them will do to find echoes where there is nothing
            }
            const double inside = pixelsInside(view, at, scale);
            QVERIFY2(covered ? inside > -1.5 : inside < 0.5, qPrintable(QString::number(radials)));
        }
    }
}

// Cells of a pixel, of a sixth and of a fiftieth of one, at all places between pixels.
void TestGeoVideoMap::losesNoEchoAtAnyScale()
{
    for (int i = 0; i < 150; ++i) {
        const double scale = i % 3 == 0 ? 50.0 : i % 3 == 1 ? 300.0 : 2500.0;
        const double azimuth = std::fmod(i * 77.7, 360.0);
        const int cell = 20 + (i * 37) % 960;
        m_layer->clear();
        m_layer->addRadial(echoAt(azimuth, cell, 0.088));
        const QPointF place = plane(Site.atDistanceAndAzimuth(metres(cell), azimuth));
        const PaintedView view = painted(scale, place + QPointF(i % 7 + 0.4, i % 11 + 0.4) * scale / 5.0);
        const QPointF at = view.view().toScreen(place);
        QVERIFY2(view.inked(QPoint(int(at.x()), int(at.y()))), qPrintable(QString::number(i)));
    }
}

void TestGeoVideoMap::amplitudeDecidesTheColor()
{
    m_config.mapVideoThreshold = 55;
    m_config.mapVideoLowOpacity = 51;
    m_config.mapVideoHighOpacity = 255;
    m_config.mapVideoLowColor = QColor(0, 0, 255);
    m_config.mapVideoHighColor = QColor(200, 100, 255);
    m_layer->applyConfig(m_config);
    // On black, so the opacity dims: a fifth at the threshold, three fifths halfway.
    const QList<std::pair<int, QColor>> expected{{0, Qt::black}, {55, Qt::black}, {56, QColor(0, 0, 52)},
        {155, QColor(60, 30, 153)}, {255, QColor(200, 100, 255)}};
    for (const auto &[amplitude, color] : expected) {
        m_layer->addRadial(filled(80.0, 100.0, static_cast<unsigned char>(amplitude)));
        const PaintedView view = painted();
        const QColor seen = view.at(pixel(view, 20000.0, 90.0).toPoint());
        QVERIFY2(std::abs(seen.red() - color.red()) <= 2 && std::abs(seen.green() - color.green()) <= 2
                && std::abs(seen.blue() - color.blue()) <= 2,
            qPrintable(QStringLiteral("%1: %2").arg(amplitude).arg(seen.name())));
    }
}

void TestGeoVideoMap::fadesUntilItsValidityEnds()
{
    m_config.mapVideoValidity = 4;
    m_layer->applyConfig(m_config);
    m_layer->addRadial(filled(80.0, 100.0));
    PaintedView view = painted();
    int before = 256;
    const auto brightness = [&](double azimuth) {
        repaint(view);
        return view.at(pixel(view, 20000.0, azimuth).toPoint()).green();
    };
    for (int second = 0; second < 4; ++second) {
        QVERIFY(brightness(90.0) < before && brightness(90.0) > 255 / 4);
        before = brightness(90.0);
        m_now += 1000;
    }
    m_layer->addRadial(filled(180.0, 200.0)); // the other direction shows its own age
    m_now += 1;
    QCOMPARE(brightness(90.0), 0);
    QCOMPARE(brightness(190.0), 255);
    m_now += 10000;
    QCOMPARE(brightness(190.0), 0);
    QVERIFY(!m_layer->echoAt(plane(Site.atDistanceAndAzimuth(20000.0, 190.0)), 1.0));
    m_layer->addRadial(filled(80.0, 100.0));
    QCOMPARE(brightness(90.0), 255);
}

void TestGeoVideoMap::newRadialsReplaceOldOnes()
{
    struct Case {
        Radial second; // after one from 80 to 100 degrees
        bool oldStays; // at 95 degrees
        bool newShows; // at 85 degrees
    };
    // Weaker of the same direction; of part of it; of another one; of an antenna that turns the other way; then with
    // another cell size and another video mode, which start anew; and of another source, which touches nothing.
    QList<Case> cases{{filled(80.0, 100.0, 0), false, false}, {filled(80.0, 90.0, 0), true, false},
        {filled(180.0, 190.0), true, true}, {filled(90.0, 80.0, 0), true, false}, {filled(80.0, 90.0), false, true},
        {filled(80.0, 90.0), false, true}, {filled(80.0, 90.0, 0), true, true}};
    cases[4].second.cellSize = 2.0 * CellSize;
    cases[5].second.videoMode = 7;
    cases[6].second.sac = cases[6].second.sic = 0;
    for (const Case &one : cases) {
        m_layer->clear();
        m_layer->addRadial(filled(80.0, 100.0));
        PaintedView view = painted();
        m_layer->addRadial(one.second);
        repaint(view);
        QCOMPARE(view.inkedNear(pixel(view, 30000.0, 95.0)), one.oldStays);
        QCOMPARE(view.inkedNear(pixel(view, 30000.0, 85.0)), one.newShows);
    }
}

// What is moved on the screen must look as if it had been drawn there.
void TestGeoVideoMap::movesWithTheView()
{
    for (int i = 0; i < 360; ++i) {
        m_layer->addRadial(filled(i, (i + 1) % 360, static_cast<unsigned char>(90 + i % 100)));
    }
    QPointF center = plane(Site);
    painted(300.0, center);
    for (const QPoint &shift : {QPoint(30, 0), QPoint(-70, 20), QPoint(0, -45), QPoint(11, 200), QPoint(390, 0)}) {
        center += QPointF(shift) * 600.0;
        const PaintedView moved = painted(300.0, center);
        painted(500.0, center); // forgets what was drawn
        const PaintedView drawn = painted(300.0, center);
        int different = 0;
        for (int i = 0; i < PaintedView::Size * PaintedView::Size; ++i) {
            const QPoint at(i % PaintedView::Size, i / PaintedView::Size);
            different += !seenNear(drawn, at, moved.at(at));
        }
        // Next to the site, where a pixel spans several radials.
        QVERIFY2(different <= 100, qPrintable(QString::number(different)));
    }
}

// Not all of it in each frame, but before long.
void TestGeoVideoMap::newsComeWhileTheViewIsDragged()
{
    const auto frame = [this](int number) { return painted(300.0, plane(Site) + QPointF(number * 600.0, 0.0)); };
    m_layer->addRadial(filled(0, 1));
    frame(0);
    for (int azimuth = 0; azimuth < 360; ++azimuth) {
        m_layer->addRadial(filled(azimuth, (azimuth + 1) % 360));
    }
    constexpr int Frames = 8;
    for (int i = 1; i < Frames; ++i) {
        frame(i);
    }
    const PaintedView dragged = frame(Frames);
    const PaintedView atRest = frame(Frames);
    QVERIFY(atRest.ink() > 10000);
    QCOMPARE(dragged.ink(), atRest.ink());
}

void TestGeoVideoMap::joinsPartsOfARadial()
{
    const QList<unsigned char> part(300, 255);
    m_layer->addRadial(radialOf(85.0, 95.0, part, 100));
    m_layer->addRadial(radialOf(85.0, 95.0, part, 600));
    const PaintedView view = painted();
    for (int cell : {50, 110, 390, 450, 610, 890, 950}) {
        const bool inPart = (cell > 100 && cell < 400) || (cell > 600 && cell < 900);
        QVERIFY2(view.inkedNear(pixel(view, metres(cell), 90.0)) == inPart, qPrintable(QString::number(cell)));
    }
    m_layer->addRadial(radialOf(85.0, 95.0, part, 100)); // the next turn
    const PaintedView next = painted();
    QVERIFY(!next.inkedNear(pixel(next, metres(750), 90.0)));
}

void TestGeoVideoMap::drawsOnlyKnownSources()
{
    struct Case {
        int ownSac;
        int sac;
        const char *shown; // where
    };
    const GeoCoordinate other(60.2, 25.2);
    for (const auto &[ownSac, sac, shown] : {Case{1, 1, "own"}, Case{1, 0, "own"}, Case{1, 9, "known"},
             Case{1, 8, "no place"}, Case{1, 7, "unknown"}, Case{0, 7, "own"}}) {
        const QSignalSpy unknown(m_layer.get(), &GeoVideoMap::siteUnknown);
        m_layer->setSensor(radar(static_cast<unsigned char>(ownSac), static_cast<unsigned char>(2 * ownSac)));
        m_layer->setKnownSensors({radar(9, 18, other), radar(8, 16, GeoCoordinate())});
        Radial radial = filled(80.0, 100.0);
        radial.sac = static_cast<unsigned char>(sac);
        radial.sic = static_cast<unsigned char>(2 * sac);
        m_layer->addRadial(radial);
        m_layer->addRadial(radial);
        const PaintedView view = painted();
        const bool own = view.inkedNear(pixel(view, 5000.0, 90.0));
        const bool known = view.inkedNear(pixel(view, 5000.0, 90.0, other));
        QCOMPARE(own, QLatin1String(shown) == QLatin1String("own"));
        QCOMPARE(known, QLatin1String(shown) == QLatin1String("known"));
        QCOMPARE(unknown.size(), own || known ? 0 : 1);
    }
}

void TestGeoVideoMap::survivesNonsense()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QList<Radial> nonsense{filled(nan, 10.0), filled(0.0, std::numeric_limits<double>::infinity()),
        radialOf(80.0, 90.0, {}), radialOf(80.0, 90.0, {9, 9}, std::numeric_limits<quint32>::max())};
    for (double size : {0.0, -5.0, nan}) {
        nonsense.append(filled(80.0, 90.0));
        nonsense.last().cellSize = size;
    }
    for (const Radial &radial : nonsense) {
        m_layer->clear();
        m_layer->addRadial(filled(0.0, 20.0));
        m_layer->addRadial(radial);
        m_layer->addRadial(radial);
        const PaintedView view = painted();
        QVERIFY(view.inkedNear(pixel(view, 30000.0, 10.0)));
        QVERIFY(!view.inkedNear(pixel(view, 30000.0, 85.0)));
    }
}

VYX_TEST(TestGeoVideoMap)
#include "tst_geo_video_map.moc"
