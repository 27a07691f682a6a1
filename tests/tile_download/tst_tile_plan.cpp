#include "test_program.h"
#include "tile_download/tile_plan.h"

#include <QTest>

#include <set>

class TestTilePlan : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void coversAnAreaOnce_data();
    void coversAnAreaOnce();
    void refusesWhatIsNoArea();
};

void TestTilePlan::coversAnAreaOnce_data()
{
    QTest::addColumn<TileArea>("area");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<qint64>("count");
    QTest::newRow("a point's tile at each level") << TileArea{50.001, 8.0, 50.0, 8.001} << 1 << 10 << qint64(10);
    QTest::newRow("the whole earth") << TileArea{90.0, -180.0, -90.0, 180.0} << 1 << 3 << qint64(4 + 16 + 64);
    QTest::newRow("across 180 degrees") << TileArea{10.0, 170.0, -10.0, -170.0} << 4 << 4 << qint64(4);
    QTest::newRow("round the earth and on") << TileArea{10.0, 0.1, -10.0, 0.0} << 3 << 3 << qint64(16);
}

void TestTilePlan::coversAnAreaOnce()
{
    QFETCH(const TileArea, area);
    QFETCH(const int, first);
    QFETCH(const int, last);
    const TilePlan plan(area, first, last);
    QTEST(plan.count(), "count");
    std::set<TileIndex> seen;
    int level = first;
    for (qint64 position = 0; position < plan.count(); ++position) {
        const TileIndex index = plan.at(position);
        QVERIFY2(index.onMap(), qPrintable(index.toString()));
        QVERIFY2(seen.insert(index).second, qPrintable(index.toString()));
        QVERIFY(index.level >= level);
        level = index.level;
    }
    QCOMPARE(level, last);
}

void TestTilePlan::refusesWhatIsNoArea()
{
    const TileArea good{50.0, 8.0, 49.0, 9.0};
    QVERIFY(TilePlan(good, 5, 5).count() > 0);
    QCOMPARE(TilePlan(good, 0, 5).count(), 0);
    QCOMPARE(TilePlan(good, 5, 24).count(), 0);
    QCOMPARE(TilePlan(good, 6, 5).count(), 0);
    QCOMPARE(TilePlan({49.0, 8.0, 50.0, 9.0}, 5, 5).count(), 0);
    QCOMPARE(TilePlan({50.0, 8.0, 49.0, 181.0}, 5, 5).count(), 0);
    // All levels of the whole earth count without being made.
    QCOMPARE(TilePlan({90.0, -180.0, -90.0, 180.0}, 1, 23).count(), ((qint64(1) << 48) - 4) / 3);
}

VYX_TEST(TestTilePlan)
#include "tst_tile_plan.moc"
