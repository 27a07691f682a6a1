#include "map_import/ring_shape.h"
#include "test_program.h"

#include <QPainterPath>
#include <QTest>

static QPainterPath filled(const LonLatLine &ring)
{
    QPolygonF polygon;
    for (const LonLat &point : ring) {
        polygon.append(QPointF(point.longitude, point.latitude));
    }
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    path.addPolygon(polygon);
    path.closeSubpath();
    return path;
}

class TestRingShape : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void unwinds_data()
    {
        QTest::addColumn<LonLatLine>("line");
        QTest::addColumn<LonLatLine>("unwound");
        QTest::newRow("does not cross") << LonLatLine{{10, 50}, {-10, 40}} << LonLatLine{{10, 50}, {-10, 40}};
        QTest::newRow("there and back") << LonLatLine{{170, 0}, {-170, 1}, {170, 2}}
                                        << LonLatLine{{170, 0}, {190, 1}, {170, 2}};
        QTest::newRow("to the west and on")
            << LonLatLine{{-179, 0}, {179, 5}, {178, 10}} << LonLatLine{{-179, 0}, {-181, 5}, {-182, 10}};
    }

    void unwinds()
    {
        QFETCH(LonLatLine, line);
        QTEST(RingShape::unwound(line), "unwound");
    }

    void leavesHolesOut()
    {
        const LonLatArea area{
            {{0, 0}, {20, 0}, {20, 20}, {0, 20}}, {{2, 2}, {2, 8}, {8, 8}, {8, 2}}, {{12, 12}, {18, 12}, {18, 18}}};
        const QPainterPath path = filled(RingShape::withHoles(area));
        for (const auto &[place, isLand] : {std::pair{QPointF(5, 5), false}, {QPointF(17, 14), false},
                 {QPointF(13, 17), true}, {QPointF(10, 10), true}, {QPointF(1, 1), true}, {QPointF(21, 5), false}}) {
            QCOMPARE(path.contains(place), isLand);
        }
    }

    void simplifies()
    {
        const double metre = 1.0 / 111'195;
        const LonLatLine line{{0, 0}, {1, 90 * metre}, {2, 0}, {3, 300 * metre}, {4, 0}};
        QCOMPARE(RingShape::simplified(line, 0), line);
        QCOMPARE(RingShape::simplified(line, 150), (LonLatLine{{0, 0}, {2, 0}, {3, 300 * metre}, {4, 0}}));
        const LonLatLine islet{{0, 0}, {metre, 0}, {metre, metre}, {0, metre}};
        QCOMPARE(RingShape::simplifiedRing(islet, 1000), islet);
        const LonLatLine crossing{{179, 0}, {180, 0}, {-179, 0}};
        QCOMPARE(RingShape::simplified(crossing, 10).size(), 2);
        // A degree of longitude is short in the north.
        const LonLatLine northern{{0, 89}, {0.01, 89.5}, {0, 90}};
        QCOMPARE(RingShape::simplified(northern, 100).size(), 2);
    }

    void placesLabelsInside()
    {
        const LonLatLine horseshoe{{0, 0}, {10, 0}, {10, 20}, {8, 20}, {8, 2}, {3, 2}, {3, 20}, {0, 20}};
        const LonLatLine crescent{{0, 0}, {5, 4}, {10, 0}, {5, 5}};
        for (const LonLatLine &ring : {horseshoe, crescent}) {
            const LonLat place = RingShape::labelPlace(ring);
            QVERIFY(filled(ring).contains(QPointF(place.longitude, place.latitude)));
        }
    }
};

VYX_TEST(TestRingShape)
#include "tst_ring_shape.moc"
