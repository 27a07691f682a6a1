#include "test_program.h"
#include "tiles/tile_geometry.h"

#include <QTest>

class TestTileGeometry : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void quadKeys_data();
    void quadKeys();
    void refusesWhatIsNoQuadKey();
    void pixels_data();
    void pixels();
    void pixelsAndBack();
    void levels_data();
    void levels();
    void covers_data();
    void covers();
    void nearestFirst();
};

void TestTileGeometry::quadKeys_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addRow("first") << "0" << 0 << 0;
    QTest::addRow("south-east") << "3" << 1 << 1;
    QTest::addRow("x is the low bit") << "1" << 1 << 0;
    QTest::addRow("most significant first") << "213" << 3 << 5;
    QTest::addRow("deepest") << QString(23, u'3') << (1 << 23) - 1 << (1 << 23) - 1;
}

void TestTileGeometry::quadKeys()
{
    QFETCH(QString, key);
    QFETCH(int, x);
    QFETCH(int, y);
    const TileIndex index{x, y, static_cast<quint8>(key.size())};
    QCOMPARE(index.toQuadKey(), key);
    QCOMPARE(quadKeyToTileIndex(key).toString(), index.toString());
    QCOMPARE(index.toString(), QStringLiteral("(%1, %2, %3)").arg(x).arg(y).arg(key.size()));
}

void TestTileGeometry::refusesWhatIsNoQuadKey()
{
    for (const QString &key : {QString(), QStringLiteral("4"), QStringLiteral("0a"), QString(24, u'0')}) {
        QVERIFY2(!quadKeyToTileIndex(key).valid(), qPrintable(key));
    }
    QVERIFY(!(TileIndex{0, 0, 0}.valid()));
    QVERIFY(!(TileIndex{0, 0, 24}.valid()));
    QVERIFY(!(TileIndex{8, 0, 3}.onMap()));
    QVERIFY(!(TileIndex{0, -1, 3}.onMap()));
    QCOMPARE((TileIndex{8, 0, 3}.toQuadKey()), QString());
}

// From the published formula, at a latitude beyond the map too.
void TestTileGeometry::pixels_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<int>("level");
    QTest::addColumn<QPoint>("pixel");
    QTest::addRow("middle") << 0.0 << 0.0 << 1 << QPoint(256, 256);
    QTest::addRow("north-west corner") << 85.05112878 << -180.0 << 3 << QPoint(0, 0);
    QTest::addRow("beyond the north") << 89.0 << -180.0 << 3 << QPoint(0, 0);
    QTest::addRow("beyond the south-east") << -89.0 << 200.0 << 3 << QPoint(2047, 2047);
    QTest::addRow("city") << 47.61 << -122.33 << 3 << QPoint(328, 715);
    QTest::addRow("deepest corner") << -89.0 << 180.0 << 23 << QPoint(2147483647, 2147483647);
}

void TestTileGeometry::pixels()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(int, level);
    QTEST(TileGeometry::latLongToPixelXY(latitude, longitude, level), "pixel");
}

void TestTileGeometry::pixelsAndBack()
{
    for (const QPoint pixel : {QPoint(0, 0), QPoint(100'000, 7), QPoint(65'535, 262'143)}) {
        const GeoCoordinate place = TileGeometry::pixelXYToLatLong(pixel.x(), pixel.y(), 10);
        QCOMPARE(TileGeometry::latLongToPixelXY(place.latitude(), place.longitude(), 10), pixel);
    }
}

void TestTileGeometry::levels_data()
{
    QTest::addColumn<double>("resolution");
    QTest::addColumn<int>("level");
    const double ofLevel5 = TileGeometry::Circumference / (256 << 5);
    QTest::addRow("exactly") << ofLevel5 * 1.0000001 << 5;
    QTest::addRow("a little finer") << ofLevel5 * 0.99 << 6;
    QTest::addRow("whole world in a point") << 1e9 << 1;
    QTest::addRow("millimetres") << 0.001 << 23;
    QTest::addRow("nothing") << 0.0 << 23;
    QTest::addRow("nonsense") << -1.0 << 1;
}

void TestTileGeometry::levels()
{
    QFETCH(double, resolution);
    QTEST(TileGeometry::groundResolutionToLevel(resolution), "level");
}

void TestTileGeometry::covers_data()
{
    QTest::addColumn<QRectF>("box"); // west, north, width to the east, height to the south
    QTest::addColumn<QStringList>("tiles");
    QTest::addRow("within one") << QRectF(10, 60, 20, 5) << QStringList{"(2, 1, 2)"};
    QTest::addRow("four about the middle")
        << QRectF(-10, 10, 20, 20) << QStringList{"(1, 1, 2)", "(1, 2, 2)", "(2, 1, 2)", "(2, 2, 2)"};
    QTest::addRow("across the 180th meridian") << QRectF(170, 60, 20, 5) << QStringList{"(0, 1, 2)", "(3, 1, 2)"};
    QTest::addRow("across it from the west") << QRectF(-190, 60, 20, 5) << QStringList{"(0, 1, 2)", "(3, 1, 2)"};
    QTest::addRow("many turns away") << QRectF(3.6e12 - 10, 10, 20, 20)
                                     << QStringList{"(1, 1, 2)", "(1, 2, 2)", "(2, 1, 2)", "(2, 2, 2)"};
    QTest::addRow("round the world") << QRectF(-300, 60, 700, 5)
                                     << QStringList{"(0, 1, 2)", "(1, 1, 2)", "(2, 1, 2)", "(3, 1, 2)"};
    QTest::addRow("nearly round, each once")
        << QRectF(-170, 60, 355, 5) << QStringList{"(0, 1, 2)", "(1, 1, 2)", "(2, 1, 2)", "(3, 1, 2)"};
}

void TestTileGeometry::covers()
{
    QFETCH(QRectF, box);
    const TileRange range =
        TileGeometry::tilesCovering(box.top(), box.left(), box.top() - box.height(), box.right(), 2);
    QStringList found;
    for (const TileIndex &index : range.tiles()) {
        QVERIFY(index.onMap());
        found.append(index.toString());
    }
    found.sort();
    QTEST(found, "tiles");
}

void TestTileGeometry::nearestFirst()
{
    const std::vector<TileIndex> tiles = TileRange{10, 10, 14, 12, 6}.tiles();
    QCOMPARE(tiles.size(), std::size_t(15));
    QCOMPARE(tiles.front().toString(), QStringLiteral("(12, 11, 6)"));
    QVERIFY(tiles.back().x == 10 || tiles.back().x == 14);
}

VYX_TEST(TestTileGeometry)

#include "tst_tile_geometry.moc"
