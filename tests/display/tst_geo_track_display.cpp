#include "test_program.h"
#include "track_scope.h"

#include <QTest>

#include <cmath>
#include <memory>

class TestGeoTrackDisplay : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void detailsEndAtTheirZoom();
    void vectorReaches();
    void vectorTicks();
    void linesOfACoastingTrackAreBroken();
    void trailDots();
    void labelLineColors();
    void labelGround();
    void nothingHidesATarget();
    void crowdLooksAsIfPaintedOneByOne();
    void paintsLabelsOfTracksJustOutside();
    void labelFollowsItsContent();
    void hitsSymbol();
    void hitsLabelsWhereTheyWerePainted();
    void forgetsTracksThatAreGone();
};

namespace {

const QColor SymbolColor(0, 0, 255);
const QColor LabelColor(250, 250, 250);
const QColor SelectedColor(0, 255, 0);
const QColor AlertColor(255, 0, 0);
const QColor GroundColor(80, 0, 80); // no mixture of text and ground looks like it

// A display with pure colours that shows tracks as bare symbols.
struct Scope : TrackScope {
    explicit Scope(const QList<TrackSnapshot> &tracks)
    {
        display.setSymbolColor(SymbolColor);
        display.setLabelColor(LabelColor);
        display.setLabelSelectedColor(SelectedColor);
        display.setLabelAlertColor(AlertColor);
        display.setLabelBackgroundColor(GroundColor);
        display.showLabel(false);
        show(tracks);
    }
};

} // namespace

void TestGeoTrackDisplay::detailsEndAtTheirZoom()
{
    TrackSnapshot track = flightAt();
    track.headingValid = true;
    track.trail = {QPointF(150000.0, 0.0)};
    Scope scope({track});
    scope.display.setVectorTimeMode(false);
    scope.display.setVectorRange(100);
    PaintedView atTheLimit(5000.0);
    PaintedView above(5000.1);
    scope.paint(atTheLimit);
    scope.paint(above);
    const int inkAtTheLimit = atTheLimit.ink();
    const int inkAbove = above.ink();
    for (auto show : {&GeoTrackDisplay::showLabel, &GeoTrackDisplay::showVector, &GeoTrackDisplay::showTrail}) {
        (scope.display.*show)(true);
        scope.paint(atTheLimit);
        scope.paint(above);
        QVERIFY(atTheLimit.ink() > inkAtTheLimit);
        QCOMPARE(above.ink(), inkAbove);
        (scope.display.*show)(false);
    }
}

void TestGeoTrackDisplay::vectorReaches()
{
    struct Reach {
        bool timeMode;
        int range;
        double zoom;
        double rotation;
        QPointF tip; // from the track, x right, y down; null: shorter than a pixel
    };
    TrackSnapshot track = flightAt();
    track.groundSpeed = 480.0;
    track.groundSpeedValid = track.headingValid = true;
    track.heading = 90.0;
    Scope scope({track});
    scope.display.showVectorTicks(false);
    for (const Reach &reach :
        {Reach{true, 2, 185.2, 0.0, QPointF(160, 0)}, Reach{false, 10, 185.2, 0.0, QPointF(100, 0)},
            Reach{false, 10, 185.2, -150.0, QPointF(-100 * std::cos(M_PI / 6), -100 * std::sin(M_PI / 6))},
            Reach{false, 1, 2000.0, 0.0, QPointF()}}) {
        PaintedView view(reach.zoom, {}, reach.rotation);
        scope.display.showVector(false);
        scope.paint(view);
        const int symbolInk = view.ink();
        scope.display.showVector(true);
        scope.display.setVectorTimeMode(reach.timeMode);
        scope.display.setVectorRange(reach.range);
        scope.paint(view);
        QCOMPARE(view.ink() > symbolInk, !reach.tip.isNull());
        if (reach.tip.isNull()) {
            continue;
        }
        const double length = QLineF(QPointF(), reach.tip).length();
        QVERIFY(view.inkedNear(PaintedView::Middle + reach.tip));
        QVERIFY(view.inkedNear(PaintedView::Middle + reach.tip * 0.5));
        QVERIFY(!view.inkedNear(PaintedView::Middle + reach.tip * (1.0 + 5.0 / length)));
    }
}

void TestGeoTrackDisplay::vectorTicks()
{
    TrackSnapshot track = flightAt();
    track.headingValid = true;
    track.heading = 90.0;
    Scope scope({track});
    scope.display.showVector(true);
    scope.display.setVectorTimeMode(false);
    scope.display.setVectorRange(4);
    PaintedView view(1852.0 / 30.0);
    scope.paint(view);
    QList<int> ticks; // pixels from the track, where there is ink beside the vector
    for (int x = 15; x <= 125; ++x) {
        if (view.inked(PaintedView::Middle + QPoint(x, -2)) && !view.inked(PaintedView::Middle + QPoint(x - 1, -2))) {
            ticks.append(x);
        }
    }
    QCOMPARE(ticks.size(), 3);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(std::abs(ticks[i] - 30 * (i + 1)) <= 1);
    }
}

// Vector and leader, each for itself: the one to the right, the other down and to the left.
void TestGeoTrackDisplay::linesOfACoastingTrackAreBroken()
{
    TrackSnapshot track = flightAt();
    track.headingValid = true;
    track.heading = 90.0;
    Scope scope({track});
    scope.display.showVectorTicks(false);
    scope.display.setVectorTimeMode(false);
    scope.display.setVectorRange(8);
    scope.display.showLabel(true);
    scope.display.showBackground(false);
    PaintedView view(185.2);
    for (const bool leader : {false, true}) {
        scope.display.showVector(!leader);
        scope.display.setLabelOffset(leader ? -200 : 20, leader ? 4 : 190);
        const auto gaps = [&](bool coasting) {
            track.coasting = coasting;
            scope.show({track});
            scope.paint(view);
            int empty = 0;
            for (int distance = 15; distance < 60; ++distance) {
                const QPoint place = PaintedView::Middle + QPoint(leader ? -distance : distance, 0);
                empty += view.inkIn(QRect(place - QPoint(0, 2), QSize(1, 5))) == 0;
            }
            return empty;
        };
        QCOMPARE(gaps(false), 0);
        QVERIFY(gaps(true) > 5);
    }
}

void TestGeoTrackDisplay::trailDots()
{
    for (const auto &[history, wanted] : QList<std::pair<int, int>>{{12, 5}, {3, 20}}) {
        TrackSnapshot track = flightAt();
        for (int i = 1; i <= history; ++i) {
            track.trail.append(QPointF(i * 1000.0, 0.0));
        }
        Scope scope({track});
        scope.display.showTrail(true);
        scope.display.setTrailDots(wanted);
        PaintedView view(100.0, QPointF(-200.0, 0.0)); // ten pixels from dot to dot
        scope.paint(view);
        int dots = 0;
        for (int i = 1; i <= history; ++i) {
            dots += view.inkedNear(PaintedView::Middle + QPoint(2 + 10 * i, 0));
        }
        QCOMPARE(dots, std::min(history, wanted));
    }
}

void TestGeoTrackDisplay::labelLineColors()
{
    TrackSnapshot track = flightAt({}, 7);
    Scope scope({track});
    scope.display.showLabel(true);
    PaintedView view(100.0);
    for (int mask = 0; mask < 4; ++mask) {
        const bool alert = mask & 1;
        const bool selected = mask & 2;
        track.alertsString = alert ? QStringLiteral("STCA") : QString();
        scope.show({track});
        scope.display.setSelected(selected ? 7 : 8);
        scope.paint(view);
        QCOMPARE(view.count(AlertColor) > 0, alert);
        QCOMPARE(view.count(SelectedColor) > 0, selected);
        QCOMPARE(view.count(LabelColor) > 0, !selected);
    }
    scope.display.showAlertIndicator(false);
    scope.paint(view);
    QCOMPARE(view.count(AlertColor), 0);
}

// The background is the label and the padding round it, except below; upright however the view is turned.
void TestGeoTrackDisplay::labelGround()
{
    Scope scope({flightAt()});
    scope.display.showLabel(true);
    scope.display.setLabelOffset(30, 100);
    scope.display.setBackgroundPadding(6);
    PaintedView view(100.0, {}, 77.0);
    scope.paint(view);
    const QRect ground = view.extent(GroundColor);
    const QPoint corner = PaintedView::Middle + QPoint(30, -100);
    QCOMPARE(ground.topLeft(), corner - QPoint(6, 6));
    const QFontMetricsF metrics(scope.display.labelFont());
    QCOMPARE(ground.width(), int(std::ceil(metrics.horizontalAdvance(QStringLiteral("ABC123 ----")))) + 12);
    QCOMPARE(ground.height(), int(std::ceil(metrics.lineSpacing() + metrics.height())) + 6);

    scope.display.showBackground(false);
    scope.paint(view);
    QCOMPARE(view.count(GroundColor), 0);
    QVERIFY(view.count(LabelColor) > 0);
}

// The later track's label lies on the earlier track's place.
void TestGeoTrackDisplay::nothingHidesATarget()
{
    Scope scope({flightAt(), flightAt(QPointF(-8000.0, -3000.0), 2)});
    scope.display.showLabel(true);
    scope.display.setTrackLabelOffset(1, 0, 150);
    scope.display.setTrackLabelOffset(2, 60, 60);
    PaintedView view(100.0);
    scope.paint(view);
    QCOMPARE(scope.display.findTrackByLabelPosition(view.view().screenTransform(), 200, 200), 2ull);
    QCOMPARE(view.at(PaintedView::Middle), SymbolColor);
}

// What is left out because other labels hide it must not be missed.
void TestGeoTrackDisplay::crowdLooksAsIfPaintedOneByOne()
{
    QList<TrackSnapshot> tracks;
    for (int i = 0; i < 60; ++i) {
        tracks.append(flightAt(QPointF(i * 7919 % 40000 - 22000, i * 5477 % 44000 - 22000), quint64(i) + 1));
        tracks.last().alertsString = i < 5 ? QStringLiteral("STCA") : QString();
    }
    QColor ground;
    const auto prepared = [&](const QList<TrackSnapshot> &some) {
        auto scope = std::make_unique<Scope>(some);
        scope->display.setSymbolColor(Qt::transparent); // symbols lie above all labels
        scope->display.setLabelBackgroundColor(ground);
        scope->display.setBackgroundPadding(3);
        scope->display.showLabel(true);
        return scope;
    };
    for (const QColor &color : {GroundColor, QColor(80, 0, 80, 120)}) {
        ground = color;
        PaintedView together(100.0);
        prepared(tracks)->paint(together);
        PaintedView oneByOne(100.0);
        oneByOne.paint([&](QPainter &painter, const GeoView &) {
            for (bool alerted : {false, true}) { // alerts lie on top
                for (const TrackSnapshot &track : tracks) {
                    if (track.alertsString.isEmpty() != alerted) {
                        prepared({track})->display.paint(&painter);
                    }
                }
            }
        });
        QCOMPARE(together.image(), oneByOne.image());
    }
}

void TestGeoTrackDisplay::paintsLabelsOfTracksJustOutside()
{
    for (int pixelsLeftOfTheView : {100, 495, 505}) { // the margin is 500 wide
        Scope scope({flightAt(QPointF(-100.0 * (200 + pixelsLeftOfTheView), 0.0), 1)});
        scope.display.showLabel(true);
        scope.display.setLabelOffset(pixelsLeftOfTheView + 20, 20);
        PaintedView view(100.0);
        scope.paint(view);
        QCOMPARE(view.count(LabelColor) > 0, pixelsLeftOfTheView < 500);
    }
}

void TestGeoTrackDisplay::labelFollowsItsContent()
{
    TrackSnapshot track = flightAt();
    Scope scope({track});
    scope.display.showLabel(true);
    PaintedView before(100.0);
    scope.paint(before);
    track.callsign = QStringLiteral("ABCDEFGH");
    scope.show({track});
    scope.display.showHeading(true);
    PaintedView after(100.0);
    scope.paint(after);
    QVERIFY(after.extent(GroundColor).width() > before.extent(GroundColor).width());
    QVERIFY(after.extent(GroundColor).height() > before.extent(GroundColor).height());
}

void TestGeoTrackDisplay::hitsSymbol()
{
    TrackSnapshot unplaced = flightAt(QPointF(-19000.0, 19000.0), 4);
    unplaced.carCoordinateValid = false;
    Scope scope({unplaced, flightAt(), flightAt({}, 2), flightAt(QPointF(10000.0, 5000.0), 3)});
    const QTransform toScreen = PaintedView(100.0).view().screenTransform();
    const QList<std::pair<QPoint, quint64>> hits{// from the middle, where the first of two is hit
        {QPoint(0, 0), 1}, {QPoint(-12, 12), 1}, {QPoint(-13, 0), 0}, {QPoint(0, 13), 0}, {QPoint(100, -50), 3},
        {QPoint(-190, -190), 0}};
    for (const auto &[fromMiddle, id] : hits) {
        const QPoint pixel = PaintedView::Middle + fromMiddle;
        QCOMPARE(quint64(scope.display.findTrackBySymbolPosition(toScreen, pixel.x(), pixel.y())), id);
    }
}

void TestGeoTrackDisplay::hitsLabelsWhereTheyWerePainted()
{
    Scope scope({flightAt(), flightAt({}, 2)});
    scope.display.showLabel(true);
    scope.display.setBackgroundPadding(5);
    scope.display.setTrackLabelOffset(2, -120, -20);
    PaintedView view(100.0);
    const auto hit = [&](const QPoint &fromTrack) {
        const QPoint pixel = PaintedView::Middle + fromTrack;
        return scope.display.findTrackByLabelPosition(view.view().screenTransform(), pixel.x(), pixel.y());
    };
    QCOMPARE(hit(QPoint(-120, 20)), 0ull); // nothing was painted yet
    scope.paint(view);
    QCOMPARE(hit(QPoint(-120, 20)), 2ull);
    QCOMPARE(hit(QPoint(-121, 20)), 0ull); // the padding does not count
    QCOMPARE(hit(QPoint(scope.display.labelOffsetX(), -scope.display.labelOffsetY())), 1ull);
    scope.display.showLabel(false);
    scope.paint(view);
    QCOMPARE(hit(QPoint(-120, 20)), 0ull);
}

void TestGeoTrackDisplay::forgetsTracksThatAreGone()
{
    Scope scope({flightAt(), flightAt({}, 2)});
    scope.display.setTrackLabelOffset(1, 5, 6);
    scope.display.setTrackLabelOffset(2, 7, 8);
    scope.display.setSelected(2);
    scope.show({flightAt()});
    QCOMPARE(scope.display.trackLabelOffset(1), QPoint(5, 6));
    QVERIFY(!scope.display.trackLabelOffsetDefault(1));
    QVERIFY(scope.display.trackLabelOffsetDefault(2));
    QPointF place;
    QVERIFY(!scope.display.selectedTrackCarCoordinate(place));
}

VYX_TEST(TestGeoTrackDisplay)
#include "tst_geo_track_display.moc"
