#include "app/config.h"
#include "display/geo_plot_map.h"
#include "engine/display_snapshot.h"
#include "painted_view.h"
#include "sensors/radar_sensor_info.h"
#include "test_program.h"
#include "tracking/plot_store.h"

#include <QTest>

namespace {

constexpr double MetresPerPixel = 100.0;
constexpr qint64 Start = 1'700'000'000'000; // milliseconds since 1970

Config configured(double seconds)
{
    Config config;
    config.mapPlotVisible = true;
    config.mapPlotSeconds = seconds;
    config.mapPlotColor = Qt::white;
    return config;
}

// A layer, and the engine's end of its plots.
class Scene {
public:
    explicit Scene(double seconds) { layer.applyConfig(configured(seconds)); }

    void add(const QPointF &place, Track::Type type, double second) { store.add(place, type, ms(second)); }

    DisplaySnapshot snapshot(double second)
    {
        DisplaySnapshot result;
        result.time = QDateTime::fromMSecsSinceEpoch(ms(second), Qt::UTC);
        result.plots = store.publish();
        return result;
    }

    void show(double second) { layer.setSnapshot(snapshot(second)); }

    PaintedView painted(double rotation = 0.0)
    {
        PaintedView view(MetresPerPixel, {}, rotation);
        view.paint([this](QPainter &painter, const GeoView &geoView) { layer.paint(painter, geoView); });
        return view;
    }

    int shownAt(double second)
    {
        show(second);
        return int(layer.shownPlots());
    }

    PlotStore store;
    GeoPlotMap layer;

private:
    static qint64 ms(double second) { return Start + qRound64(second * 1000.0); }
};

} // namespace

class TestGeoPlotMap : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void marksTellTheKindsApart()
    {
        QList<QImage> marks;
        for (int type = Track::Unknown; type <= Track::Smr; ++type) {
            Scene scene(10.0);
            scene.add({}, static_cast<Track::Type>(type), 0.0);
            scene.show(0.0);
            const PaintedView view = scene.painted();
            const QRect around(PaintedView::Middle - QPoint(6, 6), QSize(13, 13));
            QVERIFY(view.ink() > 0);
            QCOMPARE(view.ink(), view.inkIn(around));
            const QImage mark = view.image().copy(around);
            for (const QImage &other : marks) {
                int different = 0;
                for (int i = 0; i < 13 * 13; ++i) {
                    const int one = qGray(mark.pixel(i % 13, i / 13));
                    different += std::abs(one - qGray(other.pixel(i % 13, i / 13))) > 100;
                }
                QVERIFY2(different >= 6, qPrintable(QString::number(type)));
            }
            marks += mark;
        }
    }

    void theKeyGetsWhatIsShown()
    {
        Scene scene(10.0);
        scene.add({}, Track::Psr, 0.0);
        scene.add({1000.0, 0.0}, Track::ModeS, 0.0);
        scene.add({1e7, 0.0}, Track::Ssr, 0.0); // far outside
        scene.show(0.0);
        scene.painted();
        const auto marks = scene.layer.shownMarks();
        QCOMPARE(marks.size(), std::size_t(2));
        QCOMPARE(marks[0].meaning, "PSR plot");
        QCOMPARE(marks[1].meaning, "Mode S plot");
        QVERIFY(marks[0].picture.toImage() != marks[1].picture.toImage());
        scene.layer.setVisible(false);
        QVERIFY(scene.layer.shownMarks().empty());
    }

    // By the picture's time: while that stands still, so do the plots.
    void plotsFadeAndGo()
    {
        Scene scene(10.0);
        scene.add({}, Track::Smr, 0.0);
        int before = 256;
        for (const double second : {0.0, 3.0, 6.0, 9.9}) {
            QCOMPARE(scene.shownAt(second), 1);
            const int strength = scene.painted().at(PaintedView::Middle).red();
            QVERIFY(strength < before && strength > 30);
            before = strength;
        }
        QCOMPARE(scene.shownAt(10.0), 0);
        QVERIFY(!scene.layer.plotAt({}, 1.0));
        QCOMPARE(scene.painted().ink(), 0);
        QCOMPARE(scene.layer.lostPlots(), 0ULL);
    }

    void theyAreSeenForThreeReportPeriods()
    {
        Scene scene(0.0);
        const auto sensor = QSharedPointer<RadarSensorInfo>::create();
        for (const auto &[period, life] : {std::pair(10.0, 30.0), {4.8, 14.4}, {0.0, 12.0}}) {
            scene.store.restart();
            sensor->setRotationPeriod(period);
            scene.layer.setSensor(sensor);
            scene.add({}, Track::Psr, 0.0);
            QCOMPARE(scene.shownAt(life - 0.1), 1);
            QCOMPARE(scene.shownAt(life), 0);
        }
        scene.layer.setVisible(false);
        scene.add({}, Track::Psr, 20.0);
        QCOMPARE(scene.shownAt(20.0), 0);
        scene.layer.setVisible(true); // what came meanwhile is there
        QCOMPARE(scene.layer.shownPlots(), std::size_t(1));
    }

    void noneIsLostWithASnapshot()
    {
        Scene scene(100.0);
        scene.show(0.0);
        for (int i = 1; i <= 40; ++i) {
            scene.add({}, Track::Psr, i);
            const DisplaySnapshot dropped = scene.snapshot(i);
            scene.add({}, Track::Ssr, i);
            QCOMPARE(scene.shownAt(i), 2 * i);
            QCOMPARE(scene.shownAt(i), 2 * i); // nor is one shown twice
        }
        scene.store.restart();
        scene.add({}, Track::Psr, 3.0); // a recording has been turned back
        QCOMPARE(scene.shownAt(4.0), 1);
        QCOMPARE(scene.layer.lostPlots(), 0ULL);
    }

    void tooManyGoAndAreCounted()
    {
        Scene scene(1000.0);
        const auto add = [&scene](std::size_t count) {
            for (std::size_t i = 0; i < count; ++i) {
                scene.add({}, Track::Psr, 1.0);
            }
        };
        add(PlotStore::MaximumPlots);
        QCOMPARE(scene.shownAt(1.0), int(PlotStore::MaximumPlots));
        add(PlotStore::MaximumPlots + PlotStore::MaximumBatchPlots); // more than the engine keeps
        const auto shown = std::size_t(scene.shownAt(1.0));
        QVERIFY(shown <= GeoPlotMap::MaximumPlots);
        QVERIFY(shown > GeoPlotMap::MaximumPlots - PlotStore::MaximumBatchPlots);
        const std::size_t all = 2 * PlotStore::MaximumPlots + PlotStore::MaximumBatchPlots;
        QCOMPARE(scene.layer.lostPlots(), quint64(all - shown));
    }

    void marksStandAtTheirPlaces()
    {
        Scene scene(10.0);
        const QPointF place(5000.0, 10000.0); // 50 pixels east, 100 north
        scene.add(place, Track::Psr, 0.0);
        scene.add({1e7, 0.0}, Track::PsrSsr, 0.0); // far outside
        scene.show(0.0);
        QCOMPARE(scene.layer.plotAt(place + QPointF(30.0, 40.0), 50.1)->place, place);
        QVERIFY(!scene.layer.plotAt(place + QPointF(30.0, 40.0), 49.9));
        for (const double rotation : {0.0, 37.0}) {
            const PaintedView view = scene.painted(rotation);
            const QPoint pixel = view.view().toScreen(place).toPoint();
            QVERIFY(view.inkedNear(pixel));
            QCOMPARE(view.inkIn(QRect(pixel - QPoint(7, 7), QSize(15, 15))), view.ink());
        }
        for (const double ratio : {1.5, 2.0}) {
            QImage image(QSize(400, 400) * ratio, QImage::Format_ARGB32_Premultiplied);
            image.setDevicePixelRatio(ratio);
            image.fill(Qt::black);
            QPainter painter(&image);
            const PaintedView north(MetresPerPixel);
            const GeoView view(north.view().screenTransform(), QSize(400, 400), ratio);
            painter.setWorldTransform(view.screenTransform());
            scene.layer.paint(painter, view);
            painter.end();
            const QPoint pixel = (view.toScreen(place) * ratio).toPoint();
            int inked = 0;
            for (int x = -20; x <= 20; ++x) { // along the bar of the cross
                const bool ink = qGray(image.pixel(pixel + QPoint(x, 0))) > 100;
                inked += ink;
                QVERIFY(!ink || std::abs(x) <= 5 * ratio);
            }
            QVERIFY(inked >= 7 * ratio); // as large as it is at a ratio of one
        }
    }
};

VYX_TEST(TestGeoPlotMap)
#include "tst_geo_plot_map.moc"
