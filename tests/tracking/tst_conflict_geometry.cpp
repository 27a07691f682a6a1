#include "test_program.h"
#include "tracking/conflict_geometry.h"

#include <QTest>

namespace {

constexpr double Mile = 1852.0;

// So many nautical miles east and north of 50 degrees north, 8 degrees east.
TrackSnapshot at(double east, double north, double speed, double heading)
{
    TrackSnapshot track;
    const GeoCoordinate origin(50.0, 8.0);
    track.geoCoordinate =
        origin.atDistanceAndAzimuth(north * Mile, 0.0).atDistanceAndAzimuth(std::abs(east) * Mile, east < 0 ? 270 : 90);
    track.geoCoordinateValid = true;
    track.groundSpeed = speed;
    track.heading = heading;
    track.groundSpeedValid = track.headingValid = true;
    track.lastUpdate = QDateTime::fromSecsSinceEpoch(1'800'000'000, Qt::UTC);
    return track;
}

} // namespace

class TestConflictGeometry : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void approach_data()
    {
        QTest::addColumn<TrackSnapshot>("one");
        QTest::addColumn<TrackSnapshot>("other");
        QTest::addColumn<double>("miles");
        QTest::addColumn<double>("seconds"); // 0: they do not approach
        const auto row = [](const char *name, const TrackSnapshot &one, const TrackSnapshot &other, double miles,
                             double seconds) { QTest::newRow(name) << one << other << miles << seconds; };
        row("head-on", at(0, 0, 450, 90), at(10, 0, 450, 270), 10, 40);
        row("overtaking", at(0, 0, 480, 360), at(0, 2, 300, 0), 2, 40);
        row("crossing, past each other", at(0, 0, 360, 90), at(6, -6, 360, 0), std::sqrt(72), 60);
        row("passing at a distance", at(-3, 0, 360, 0), at(3, 10, 360, 180), std::sqrt(136), 50);
        row("diverging", at(0, 0, 450, 270), at(10, 0, 450, 90), 10, 0);
        row("side by side", at(0, 0, 450, 42), at(10, 0, 450, 42), 10, 0);
        row("both stand", at(0, 0, 0, 0), at(1, 0, 0, 90), 1, 0);
        auto unknown = at(10, 0, 450, 270);
        unknown.headingValid = false;
        row("one velocity not known", at(0, 0, 450, 90), unknown, 10, 0);
        auto older = at(10, 0, 450, 270); // half a mile on by now
        older.lastUpdate = older.lastUpdate.addSecs(-4);
        row("seen at different times", at(0, 0, 450, 90), older, 9.5, 38);
        row("the other way round", older, at(0, 0, 450, 90), 9.5, 38);
        auto coasting = at(10, 0, 360, 270); // is not taken along for longer than 15 seconds
        coasting.lastUpdate = coasting.lastUpdate.addSecs(-60);
        row("seen long ago", at(0, 0, 360, 90), coasting, 8.5, 42.5);
    }

    void approach()
    {
        QFETCH(TrackSnapshot, one);
        QFETCH(TrackSnapshot, other);
        QFETCH(double, miles);
        QFETCH(double, seconds);
        const auto geometry = conflictGeometry(one, other);
        QVERIFY(geometry);
        QVERIFY2(std::abs(geometry->distance / Mile - miles) < 0.02, qPrintable(QString::number(geometry->distance)));
        const double actual = geometry->timeToClosestApproach.value_or(0.0);
        QVERIFY2(std::abs(actual - seconds) < 0.2, qPrintable(QString::number(actual)));
    }

    void levels()
    {
        auto one = at(0, 0, 450, 90);
        auto other = at(1, 0, 450, 90);
        one.level = 33000;
        other.level = 33400;
        one.levelValid = true;
        QVERIFY(!conflictGeometry(one, other)->levelDifference);
        other.levelValid = true;
        QCOMPARE(conflictGeometry(one, other)->levelDifference, std::optional(400));
        QCOMPARE(conflictGeometry(other, one)->levelDifference, std::optional(400));
        other.geoCoordinateValid = false;
        QVERIFY(!conflictGeometry(one, other));
    }
};

VYX_TEST(TestConflictGeometry)
#include "tst_conflict_geometry.moc"
