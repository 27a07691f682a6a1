#include "geo/polar_origin.h"
#include "test_program.h"

#include <QGeoCoordinate>
#include <QTest>

#include <cmath>

class TestPolarOrigin : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void measuresAsCoordinatesDo()
    {
        for (const QGeoCoordinate &origin :
            {QGeoCoordinate(50.0, 8.0), QGeoCoordinate(-33.9, 179.9), QGeoCoordinate(89.9, -120.0)}) {
            const PolarOrigin polar(origin);
            for (const double distance : {0.0, 1.0, 18520.0, 463000.0, 9e6}) {
                for (const double bearing : {-90.0, 0.0, 37.5, 90.0, 180.0, 269.0}) {
                    const auto [latitude, longitude] = polar.at(distance, bearing);
                    const QGeoCoordinate expected = origin.atDistanceAndAzimuth(distance, bearing);
                    QVERIFY(std::abs(latitude - expected.latitude()) < 1e-9);
                    QVERIFY(std::abs(std::remainder(longitude - expected.longitude(), 360.0)) < 1e-9);
                    QVERIFY(std::abs(longitude) <= 180.0);
                }
            }
        }
        QVERIFY(std::isnan(PolarOrigin(QGeoCoordinate()).at(1000.0, 90.0).latitude));
    }
};

VYX_TEST(TestPolarOrigin)
#include "tst_polar_origin.moc"
