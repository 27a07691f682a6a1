#include "map_painting/map_editor_layer.h"
#include "painted_view.h"
#include "test_program.h"

#include <QTest>

#include <limits>

class TestMapEditorLayer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void paintsJoinsAndHandles_data();
    void paintsJoinsAndHandles();
    void paintsWhatCrossesTheView();
    void hidesItsBackdropBehindTheShape();
    void findsHandlesAndSegments();
};

namespace {

using Join = MapEditorLayer::Join;
constexpr double MetresPerPixel = 100.0;
const double nowhere = std::numeric_limits<double>::quiet_NaN();

// Plane points of pixels from the middle of the picture, y down.
QPolygonF plane(const QPolygonF &pixels)
{
    QPolygonF points;
    for (const QPointF &pixel : pixels) {
        points.append(QPointF(pixel.x(), -pixel.y()) * MetresPerPixel);
    }
    return points;
}

PaintedView painted(MapEditorLayer &layer)
{
    PaintedView picture(MetresPerPixel);
    picture.paint([&layer](QPainter &painter, const GeoView &view) { layer.paint(painter, view); });
    return picture;
}

bool inkedAt(const PaintedView &picture, const QPoint &fromMiddle)
{
    return picture.inked(PaintedView::Middle + fromMiddle);
}

} // namespace

void TestMapEditorLayer::paintsJoinsAndHandles_data()
{
    QTest::addColumn<Join>("join");
    QTest::addColumn<QPolygonF>("pixels");
    QTest::addColumn<QList<QPoint>>("inked");
    QTest::addColumn<QList<QPoint>>("empty");
    const QPolygonF corner = {{-100, -100}, {100, -100}, {100, 100}};
    QTest::newRow("line") << Join::Line << corner << QList<QPoint>{{0, -100}, {100, 0}, {-100, -97}}
                          << QList<QPoint>{{0, 0}};
    QTest::newRow("ring") << Join::Ring << corner << QList<QPoint>{{0, -100}, {100, 0}, {0, 0}}
                          << QList<QPoint>{{-50, 50}};
    QTest::newRow("box") << Join::Box << QPolygonF{{-100, -100}, {100, 100}}
                         << QList<QPoint>{{0, -100}, {100, 0}, {0, 100}, {-100, 0}, {-97, -97}}
                         << QList<QPoint>{{0, 0}, {97, -95}};
    QTest::newRow("points alone") << Join::None << corner << QList<QPoint>{{-100, -97}, {97, 100}}
                                  << QList<QPoint>{{0, -100}};
    QTest::newRow("a point without a place parts the line")
        << Join::Line << QPolygonF{{-100, 0}, {-50, 0}, {nowhere, nowhere}, {50, 0}, {100, 0}}
        << QList<QPoint>{{-75, 0}, {75, 0}} << QList<QPoint>{{0, 0}};
}

void TestMapEditorLayer::paintsJoinsAndHandles()
{
    QFETCH(Join, join);
    QFETCH(QPolygonF, pixels);
    QFETCH(QList<QPoint>, inked);
    QFETCH(QList<QPoint>, empty);
    MapEditorLayer layer;
    layer.setShape({plane(pixels), join});
    const PaintedView picture = painted(layer);
    for (const QPoint &place : std::as_const(inked)) {
        QVERIFY2(inkedAt(picture, place), qPrintable(QString("%1 %2").arg(place.x()).arg(place.y())));
    }
    for (const QPoint &place : std::as_const(empty)) {
        QVERIFY2(!inkedAt(picture, place), qPrintable(QString("%1 %2").arg(place.x()).arg(place.y())));
    }
}

// Its ends are thousands of kilometres away, and on the way it has many points on one pixel.
void TestMapEditorLayer::paintsWhatCrossesTheView()
{
    QPolygonF line = {{-1e7, 0.0}};
    for (int i = 0; i < 1000; ++i) {
        line.append(QPointF(-5000.0 + i * 0.01, 0.0));
    }
    line.append({{5000.0, 0.0}, {5000.0, 1e7}});
    MapEditorLayer layer;
    layer.setShape({line, Join::Line});
    const PaintedView picture = painted(layer);
    for (const QPoint &place : {QPoint(-150, 0), QPoint(-20, 0), QPoint(50, -100), QPoint(50, -199)}) {
        QVERIFY(inkedAt(picture, place));
    }
    QVERIFY(!inkedAt(picture, QPoint(150, 0)));
    QVERIFY(!inkedAt(picture, QPoint(50, 100)));
}

void TestMapEditorLayer::hidesItsBackdropBehindTheShape()
{
    MapEditorLayer layer;
    layer.setBackdrop({{{plane({{-100, 0}, {100, 0}}), Join::Line}}, plane({{0, 50}, {nowhere, 0}})});
    const PaintedView faint = painted(layer);
    QVERIFY(inkedAt(faint, QPoint(30, 0)) && faint.inkedNear(PaintedView::Middle + QPoint(3, 50)));
    layer.setShape({plane({{-100, 0}, {100, 0}}), Join::Line});
    const PaintedView strong = painted(layer);
    const QPoint place = PaintedView::Middle + QPoint(30, 0);
    QVERIFY(strong.at(place).value() > faint.at(place).value());
}

void TestMapEditorLayer::findsHandlesAndSegments()
{
    const QTransform toScreen = PaintedView(MetresPerPixel).view().screenTransform();
    MapEditorLayer layer;
    layer.setShape({plane({{0, 0}, {100, 0}, {nowhere, nowhere}, {0, 100}, {0, 0}}), Join::Line});
    const auto handle = [&](double x, double y) {
        return layer.handleAt(PaintedView::Middle + QPointF(x, y), toScreen);
    };
    const auto segment = [&](double x, double y) {
        return layer.segmentAt(PaintedView::Middle + QPointF(x, y), toScreen);
    };
    QCOMPARE(handle(102, 3), 1);
    QCOMPARE(handle(50, 0), -1);
    QCOMPARE(handle(0, 93), -1); // out of reach
    QCOMPARE(handle(0, 94), 3);
    QCOMPARE(handle(0, 0), 0);
    layer.setCurrentPoint(4); // in the same place
    QCOMPARE(handle(0, 0), 4);
    QCOMPARE(segment(50, 4), 0);
    QCOMPARE(segment(50, 50), -1); // to and from the point that has no place
    QCOMPARE(segment(-3, 40), 3);
    QCOMPARE(segment(-30, 0), -1);
    layer.setShape({plane({{0, 0}, {100, 0}, {100, 100}}), Join::Ring});
    QCOMPARE(segment(50, 50), 2);
    layer.setShape({plane({{0, 0}, {100, 100}}), Join::Box});
    QCOMPARE(segment(50, 0), -1);
}

VYX_TEST(TestMapEditorLayer)
#include "tst_map_editor_layer.moc"
