#include "geo/mercator_projector.h"
#include "geo/web_mercator_projector.h"
#include "test_program.h"
#include "tile_painting/tile_plane.h"

#include <QTest>

#include <cmath>

class TestTilePlane : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void placesAreTheProjectors();
    void stripsKeepHalfAPixel();
    void coversWhatIsInTheView();
};

void TestTilePlane::placesAreTheProjectors()
{
    MercatorProjector ellipsoid;
    WebMercatorProjector sphere;
    for (double latitude = -85.0; latitude <= 85.0; latitude += 5.0) {
        const QPointF inPlane = ellipsoid.toCartesian(latitude, 25.0);
        const QPointF onSphere = sphere.toCartesian(latitude, 25.0);
        QVERIFY(std::abs(TilePlane::toPlaneY(onSphere.y()) - inPlane.y()) < 1e-5);
        QVERIFY(std::abs(TilePlane::toSphericalY(inPlane.y()) - onSphere.y()) < 1e-5);
        QVERIFY(std::abs(onSphere.x() - inPlane.x()) < 1e-6);
        QVERIFY(std::abs(sphere.toWgs84(onSphere).latitude() - latitude) < 1e-9);
    }
    QCOMPARE(TileGeometry::latLongToPixelXY(48.0, 11.0, 9).y(),
        int((TilePlane::HalfWorld - sphere.toCartesian(48.0, 11.0).y()) / TilePlane::span(9) * 256.0 + 0.5));
}

// Along the edges of every row, for tiles in their own resolution, reduced and far enlarged.
void TestTilePlane::stripsKeepHalfAPixel()
{
    double worst = 0.0;
    for (int level = 1; level <= 8; ++level) {
        for (double enlargement : {0.5, 1.0, 8.0, 64.0, 1024.0}) {
            const double metresPerPixel = TilePlane::span(level) / 256.0 / enlargement;
            const int strips = TilePlane::strips(level, metresPerPixel);
            QVERIFY(enlargement > 1.0 || strips <= (level == 1 ? 2 : 1));
            const double height = TilePlane::span(level) / strips;
            for (int strip = 0; strip < strips * (1 << level); ++strip) {
                const double north = TilePlane::HalfWorld - strip * height;
                const double top = TilePlane::toPlaneY(north);
                const double bottom = TilePlane::toPlaneY(north - height);
                for (double part : {0.25, 0.5, 0.75}) {
                    const double error = TilePlane::toPlaneY(north - part * height) - (top + part * (bottom - top));
                    worst = std::max(worst, std::abs(error) / metresPerPixel);
                }
            }
        }
    }
    QVERIFY2(worst <= 0.5 && worst > 0.4, qPrintable(QString::number(worst)));
}

void TestTilePlane::coversWhatIsInTheView()
{
    for (int row : {0, 100, 255}) {
        const QRectF rect = TilePlane::planeRect(300, row, 8); // a turn to the east
        const TileRange inside = TilePlane::covering(rect.adjusted(1.0, 1.0, -1.0, -1.0), 8);
        QVERIFY(inside.left == 300 && inside.right == 300 && inside.top == row && inside.bottom == row);
        const TileRange around = TilePlane::covering(rect.adjusted(-1.0, -1.0, 1.0, 1.0), 8);
        QVERIFY(around.left == 299 && around.right == 301);
        QVERIFY(around.top == std::max(row - 1, 0) && around.bottom == std::min(row + 1, 255));
    }
}

VYX_TEST(TestTilePlane)
#include "tst_tile_plane.moc"
