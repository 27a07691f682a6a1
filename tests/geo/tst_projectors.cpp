#include "geo/mercator_projector.h"
#include "geo/simple_projector.h"
#include "geo/stereographic_projector.h"
#include "test_program.h"

#include <QTest>

#include <cmath>
#include <memory>

using Shared = std::shared_ptr<Projector>;
Q_DECLARE_METATYPE(Shared)

namespace {

const Shared mercator = std::make_shared<MercatorProjector>();
const Shared simple = std::make_shared<SimpleProjector>();
const Shared stereographicNorth = std::make_shared<StereographicProjector>(48.0, 16.0);
const Shared stereographicSouth = std::make_shared<StereographicProjector>(-33.9, 151.2);

constexpr double Micrometre = 1e-6;

} // namespace

class TestProjectors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void projects_data()
    {
        QTest::addColumn<Shared>("projector");
        QTest::addColumn<double>("latitude");
        QTest::addColumn<double>("longitude");
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");

        // Reckoned apart from the code: Mercator by the inverse hyperbolic form of the isometric latitude, the
        // stereographic plane by turning conformal points on the sphere to the centre and projecting them from its
        // antipode.
        QTest::newRow("Mercator south") << mercator << -33.8688 << 151.2093 << 16832542.279207 << -3987387.019597;
        QTest::newRow("stereographic north") << stereographicNorth << 50.0 << 19.0 << 215143.464196 << 226695.160804;
        QTest::newRow("stereographic south")
            << stereographicSouth << -35.5 << 149.1 << -190586.114663 << -179495.095683;
        QTest::newRow("stereographic centre") << stereographicNorth << 48.0 << 16.0 << 0.0 << 0.0;
        QTest::newRow("simple") << simple << 1.0 << -2.0 << -222240.0 << 111120.0;
    }

    void projects()
    {
        QFETCH(const Shared, projector);
        QFETCH(const double, latitude);
        QFETCH(const double, longitude);
        QFETCH(const double, x);
        QFETCH(const double, y);
        double actualX = 0.0;
        double actualY = 0.0;
        QVERIFY(projector->toCartesian(&actualX, &actualY, latitude, longitude));
        QVERIFY2(std::abs(actualX - x) < Micrometre, qPrintable(QString::number(actualX, 'f', 7)));
        QVERIFY2(std::abs(actualY - y) < Micrometre, qPrintable(QString::number(actualY, 'f', 7)));
    }

    void comesBack_data()
    {
        QTest::addColumn<Shared>("projector");
        QTest::addColumn<double>("reach"); // degrees around (latitude, longitude)
        QTest::addColumn<double>("latitude");
        QTest::addColumn<double>("longitude");
        QTest::newRow("Mercator, the whole world") << mercator << 89.0 << 0.0 << 0.0;
        QTest::newRow("simple") << simple << 90.0 << 0.0 << 0.0;
        QTest::newRow("stereographic north") << stereographicNorth << 8.0 << 48.0 << 16.0;
        QTest::newRow("stereographic south, over the date line") << stereographicSouth << 30.0 << -33.9 << 151.2;
    }

    void comesBack()
    {
        QFETCH(const Shared, projector);
        QFETCH(const double, reach);
        QFETCH(const double, latitude);
        QFETCH(const double, longitude);
        for (const double up : {-1.0, -0.6, -0.01, 0.3, 1.0}) {
            for (const double right : {-1.0, -0.2, 0.001, 0.5, 1.0}) {
                const QPointF before(longitude + right * reach, latitude + up * reach);
                double x = 0.0;
                double y = 0.0;
                QPointF after;
                QVERIFY(projector->toCartesian(&x, &y, before.y(), before.x()));
                QVERIFY(projector->toWgs84(&after.ry(), &after.rx(), x, y));
                QVERIFY2((after - before).manhattanLength() < 2e-9, qPrintable(QString::number(before.y(), 'g', 15)));
                QCOMPARE(projector->toCartesian(before.y(), before.x()), QPointF(x, y));
                const GeoCoordinate place = projector->toWgs84(QPointF(x, y));
                QCOMPARE(place, GeoCoordinate(after.y(), after.x())); // none beyond 180 degrees
            }
        }
    }

    void mercatorEndsAtItsLimits()
    {
        MercatorProjector projector;
        double x = 0.0;
        for (const double sign : {-1.0, 1.0}) {
            double atLimit = 0.0;
            projector.toCartesian(&x, &atLimit, sign * 89.5, 0.0);
            for (const double latitude : {89.50001, 89.9, 90.0, 1000.0}) {
                double beyond = 0.0;
                projector.toCartesian(&x, &beyond, sign * latitude, 0.0);
                QCOMPARE(beyond, atLimit);
            }
            double latitude = 0.0;
            double longitude = 0.0;
            QVERIFY(projector.toWgs84(&latitude, &longitude, sign * 2.0e7, 3.0e7));
            QVERIFY(!projector.toWgs84(&latitude, &longitude, sign * 2.1e7, 0.0));
            QVERIFY(!projector.toWgs84(QPointF(sign * 2.1e7, 0.0)).isValid());
            QVERIFY(sign * longitude > 180.0 && sign * longitude < 189.0); // written all the same
        }
    }
};

VYX_TEST(TestProjectors)
#include "tst_projectors.moc"
