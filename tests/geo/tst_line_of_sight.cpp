#include "geo/line_of_sight.h"
#include "test_program.h"

#include <QTest>

#include <cmath>

class TestLineOfSight : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void seesAlongTheChord_data()
    {
        QTest::addColumn<double>("latitude");
        QTest::addColumn<double>("longitude");
        QTest::addColumn<double>("height");
        QTest::addColumn<double>("range");
        QTest::addColumn<double>("azimuth");
        QTest::addColumn<double>("elevation");

        // From a place at 0 N 180 E on the ellipsoid.
        QTest::newRow("straight up") << 0.0 << 180.0 << 9000.0 << 9000.0 << 0.0 << 90.0;
        QTest::newRow("a degree east, over the date line") << 0.0 << -179.0 << 0.0 << 111318.08 << 90.0 << -0.5;
        QTest::newRow("a degree west") << 0.0 << 179.0 << 0.0 << 111318.08 << 270.0 << -0.5;
        QTest::newRow("a degree north, where the Earth is rounder") << 1.0 << 180.0 << 0.0 << 110572.98 << 0.0 << -0.5;
        QTest::newRow("the pole") << 90.0 << 0.0 << 0.0 << 9004939.29 << 0.0 << -45.096;
    }

    void seesAlongTheChord()
    {
        QFETCH(double, latitude);
        QFETCH(double, longitude);
        QFETCH(double, height);
        QFETCH(double, range);
        QFETCH(double, azimuth);
        QFETCH(double, elevation);
        const auto sight = LineOfSight(0.0, 180.0, 0.0).to(LineOfSight::point(latitude, longitude, height));
        QVERIFY2(std::abs(sight.range - range) < 0.05, qPrintable(QString::number(sight.range, 'f', 3)));
        const bool isUp = elevation == 90.0;
        QVERIFY(isUp || std::abs(std::remainder(sight.azimuth - azimuth, 360.0)) < 1e-6);
        QVERIFY2(std::abs(sight.elevation - elevation) < 0.002, qPrintable(QString::number(sight.elevation, 'f', 5)));
    }
};

VYX_TEST(TestLineOfSight)
#include "tst_line_of_sight.moc"
