#include "display/contrast.h"
#include "display/geo_track_display.h"
#include "painted_view.h"

#include "app/config.h"

#include <QTest>

#include <cmath>
#include <memory>

class tst_GeoTrackDisplay : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void detailsEndAtTheirZoom_data();
    void detailsEndAtTheirZoom();
    void vectorReaches_data();
    void vectorReaches();
    void vectorTicks();
    void trailDots_data();
    void trailDots();
    void labelLineColors_data();
    void labelLineColors();
    void labelGround();
    void leaderEnds_data();
    void leaderEnds();
    void defaultPaletteIsLegible();
    void nothingHidesATarget();
    void crowdLooksAsIfPaintedOneByOne_data();
    void crowdLooksAsIfPaintedOneByOne();
    void paintsLabelsOfTracksJustOutside_data();
    void paintsLabelsOfTracksJustOutside();
    void labelFollowsItsContent();
    void hitsSymbol_data();
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

TrackSnapshot aircraft(quint64 id, const QPointF &place = {})
{
    TrackSnapshot track;
    track.incarnationId = id;
    track.type = 8; // the small filled box
    track.carCoordinate = place;
    track.carCoordinateValid = true;
    track.callsign = QStringLiteral("ABC123");
    track.level = 35000;
    track.levelValid = true;
    return track;
}

QSharedPointer<const DisplaySnapshot> picture(const QList<TrackSnapshot> &tracks)
{
    auto snapshot = QSharedPointer<DisplaySnapshot>::create();
    snapshot->tracks = tracks;
    return snapshot;
}

// A display with pure colours that shows tracks as bare symbols.
struct Scope {
    explicit Scope(const QList<TrackSnapshot> &tracks)
    {
        display.setSymbolColor(SymbolColor);
        display.setLabelColor(LabelColor);
        display.setLabelSelectedColor(SelectedColor);
        display.setLabelAlertColor(AlertColor);
        display.setLabelBackgroundColor(GroundColor);
        display.showLabel(false);
        display.showVector(false);
        display.showTrail(false);
        display.setSnapshot(picture(tracks));
    }

    void paint(PaintedView &view)
    {
        view.paint([this](QPainter &painter, const GeoView &) { display.paint(&painter); });
    }

    GeoTrackDisplay display;
};

} // namespace

void tst_GeoTrackDisplay::detailsEndAtTheirZoom_data()
{
    QTest::addColumn<QString>("detail");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<bool>("shown");
    for (const QString &detail : {QStringLiteral("label"), QStringLiteral("vector"), QStringLiteral("trail")}) {
        QTest::addRow("%s at the limit", qPrintable(detail)) << detail << 5000.0 << true;
        QTest::addRow("%s above the limit", qPrintable(detail)) << detail << 5000.1 << false;
    }
}

void tst_GeoTrackDisplay::detailsEndAtTheirZoom()
{
    QFETCH(QString, detail);
    QFETCH(double, zoom);
    QFETCH(bool, shown);
    TrackSnapshot track = aircraft(1);
    track.headingValid = true;
    track.trail = {QPointF(150000.0, 0.0)};
    Scope scope({track});
    scope.display.setVectorTimeMode(false);
    scope.display.setVectorRange(100);
    PaintedView view(zoom);
    scope.paint(view);
    const int symbolInk = view.ink();
    scope.display.showLabel(detail == QStringLiteral("label"));
    scope.display.showVector(detail == QStringLiteral("vector"));
    scope.display.showTrail(detail == QStringLiteral("trail"));
    scope.paint(view);
    QVERIFY(symbolInk > 0);
    QCOMPARE(view.ink() > symbolInk, shown);
}

void tst_GeoTrackDisplay::vectorReaches_data()
{
    QTest::addColumn<bool>("timeMode");
    QTest::addColumn<int>("range");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<double>("rotation");
    QTest::addColumn<QPointF>("tip"); // from the track, x right, y down; null: nothing is drawn
    // 480 knots on heading 090.
    QTest::newRow("one minute is 8 NM") << true << 1 << 185.2 << 0.0 << QPointF(80, 0);
    QTest::newRow("two minutes") << true << 2 << 185.2 << 0.0 << QPointF(160, 0);
    QTest::newRow("range mode") << false << 10 << 185.2 << 0.0 << QPointF(100, 0);
    QTest::newRow("turns with the view") << false << 10 << 185.2 << 90.0 << QPointF(0, 100);
    QTest::newRow("turned the other way")
        << false << 10 << 185.2 << -150.0 << QPointF(-100 * std::cos(M_PI / 6), -100 * std::sin(M_PI / 6));
    QTest::newRow("shorter than a pixel") << false << 1 << 2000.0 << 0.0 << QPointF();
}

void tst_GeoTrackDisplay::vectorReaches()
{
    QFETCH(bool, timeMode);
    QFETCH(int, range);
    QFETCH(double, zoom);
    QFETCH(double, rotation);
    QFETCH(QPointF, tip);
    TrackSnapshot track = aircraft(1);
    track.groundSpeed = 480.0;
    track.groundSpeedValid = track.headingValid = true;
    track.heading = 90.0;
    Scope scope({track});
    PaintedView view(zoom, {}, rotation);
    scope.paint(view);
    const int symbolInk = view.ink();
    scope.display.showVector(true);
    scope.display.showVectorTicks(false);
    scope.display.setVectorTimeMode(timeMode);
    scope.display.setVectorRange(range);
    scope.paint(view);
    QCOMPARE(view.ink() > symbolInk, !tip.isNull());
    if (tip.isNull())
        return;
    QVERIFY(view.inkedNear(PaintedView::Middle + tip));
    QVERIFY(view.inkedNear(PaintedView::Middle + tip * 0.5));
    QVERIFY(!view.inkedNear(PaintedView::Middle + tip * (1.0 + 5.0 / QLineF(QPointF(), tip).length())));

    scope.display.setVectorTimeMode(true);
    track.groundSpeedValid = false;
    scope.display.setSnapshot(picture({track}));
    scope.paint(view);
    QCOMPARE(view.ink(), symbolInk);
}

void tst_GeoTrackDisplay::vectorTicks()
{
    TrackSnapshot track = aircraft(1);
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
        if (view.inked(PaintedView::Middle + QPoint(x, -2)) && !view.inked(PaintedView::Middle + QPoint(x - 1, -2)))
            ticks.append(x);
    }
    QCOMPARE(ticks.size(), 3);
    for (int i = 0; i < 3; ++i)
        QVERIFY(std::abs(ticks[i] - 30 * (i + 1)) <= 1);
}

void tst_GeoTrackDisplay::trailDots_data()
{
    QTest::addColumn<int>("history");
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("drawn");
    QTest::newRow("as many as wanted") << 12 << 5 << 5;
    QTest::newRow("as many as there are") << 3 << 20 << 3;
    QTest::newRow("none wanted") << 12 << 0 << 0;
    QTest::newRow("none there") << 0 << 20 << 0;
}

void tst_GeoTrackDisplay::trailDots()
{
    QFETCH(int, history);
    QFETCH(int, wanted);
    QFETCH(int, drawn);
    TrackSnapshot track = aircraft(1);
    for (int i = 1; i <= history; ++i)
        track.trail.append(QPointF(i * 1000.0, 0.0));
    Scope scope({track});
    scope.display.showTrail(true);
    scope.display.setTrailDots(wanted);
    PaintedView view(100.0, QPointF(-200.0, 0.0)); // ten pixels from dot to dot
    scope.paint(view);
    int dots = 0;
    for (int i = 1; i <= history; ++i)
        dots += view.inkedNear(PaintedView::Middle + QPoint(2 + 10 * i, 0));
    QCOMPARE(dots, drawn);
}

void tst_GeoTrackDisplay::labelLineColors_data()
{
    QTest::addColumn<bool>("alert");
    QTest::addColumn<bool>("selected");
    QTest::newRow("plain") << false << false;
    QTest::newRow("selected") << false << true;
    QTest::newRow("alert") << true << false;
    QTest::newRow("selected with alert") << true << true;
}

void tst_GeoTrackDisplay::labelLineColors()
{
    QFETCH(bool, alert);
    QFETCH(bool, selected);
    TrackSnapshot track = aircraft(7);
    track.alertsString = alert ? QStringLiteral("STCA") : QString();
    Scope scope({track});
    scope.display.showLabel(true);
    scope.display.setSelected(selected ? 7 : 8);
    PaintedView view(100.0);
    scope.paint(view);
    QCOMPARE(view.count(AlertColor) > 0, alert);
    QCOMPARE(view.count(SelectedColor) > 0, selected);
    QCOMPARE(view.count(LabelColor) > 0, !selected);
    if (alert) {
        scope.display.showAlertIndicator(false);
        scope.paint(view);
        QCOMPARE(view.count(AlertColor), 0);
    }
}

// The background is the label and the padding round it, except below; upright however the view is turned.
void tst_GeoTrackDisplay::labelGround()
{
    Scope scope({aircraft(1)});
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

void tst_GeoTrackDisplay::leaderEnds_data()
{
    QTest::addColumn<QPoint>("offset"); // y upwards
    QTest::addColumn<bool>("background");
    QTest::addColumn<bool>("toRightEdge");
    QTest::newRow("up right") << QPoint(30, 70) << true << false;
    QTest::newRow("down right") << QPoint(30, -60) << true << false;
    QTest::newRow("up left") << QPoint(-150, 70) << true << true;
    QTest::newRow("without background") << QPoint(30, 70) << false << false;
    QTest::newRow("left without background") << QPoint(-150, 70) << false << true;
}

void tst_GeoTrackDisplay::leaderEnds()
{
    QFETCH(QPoint, offset);
    QFETCH(bool, background);
    QFETCH(bool, toRightEdge);
    Scope scope({aircraft(1)});
    scope.display.showLabel(true);
    scope.display.showSquawk(false);
    scope.display.setLabelOffset(offset.x(), offset.y());
    scope.display.showBackground(background);
    PaintedView view(100.0);
    scope.paint(view);
    const int padding = background ? scope.display.backgroundPadding() : 0;
    const QFontMetricsF metrics(scope.display.labelFont());
    const int width = int(std::ceil(std::max(
        metrics.horizontalAdvance(QStringLiteral("ABC123")), metrics.horizontalAdvance(QStringLiteral("F350 ---")))));
    const int x = toRightEdge ? offset.x() + width - 1 + padding : offset.x() - padding;
    const QPoint end = PaintedView::Middle + QPoint(x, -offset.y() - padding + 4);
    QCOMPARE(view.at(end), SymbolColor);
    const QPoint outwards(toRightEdge ? 1 : -1, 0);
    QVERIFY(view.at(end - outwards) != SymbolColor);
    QVERIFY(view.inkedNear((QPointF(end) + PaintedView::Middle) / 2.0));
}

// On the brightest and on the darkest map.
void tst_GeoTrackDisplay::defaultPaletteIsLegible()
{
    GeoTrackDisplay display;
    display.applyConfig(Config());
    const auto over = [&display](const QColor &map) {
        const QColor ground = display.labelBackgroundColor();
        const auto mixed = [&ground](int under, int above) {
            return qRound(above * ground.alphaF() + under * (1.0 - ground.alphaF()));
        };
        return QColor(
            mixed(map.red(), ground.red()), mixed(map.green(), ground.green()), mixed(map.blue(), ground.blue()));
    };
    for (const QColor &map : {QColor(Qt::white), QColor(Qt::black), Config().mapBackgroundColor}) {
        QVERIFY(contrastRatio(display.labelColor(), over(map)) >= 4.5);
        QVERIFY(contrastRatio(display.labelSelectedColor(), over(map)) >= 4.5);
    }
    QVERIFY(contrastRatio(display.labelAlertColor(), groundFor(display.labelAlertColor())) >= 4.5);
    QCOMPARE(qRound(contrastRatio(Qt::white, Qt::black)), 21);
}

// The later track's label lies on the earlier track's place.
void tst_GeoTrackDisplay::nothingHidesATarget()
{
    Scope scope({aircraft(1), aircraft(2, QPointF(-8000.0, -3000.0))});
    scope.display.showLabel(true);
    scope.display.setTrackLabelOffset(1, 0, 150);
    scope.display.setTrackLabelOffset(2, 60, 60);
    PaintedView view(100.0);
    scope.paint(view);
    QCOMPARE(scope.display.findTrackByLabelPosition(view.view().screenTransform(), 200, 200), 2ull);
    QCOMPARE(view.at(PaintedView::Middle), SymbolColor);
}

void tst_GeoTrackDisplay::crowdLooksAsIfPaintedOneByOne_data()
{
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<int>("padding");
    QTest::newRow("opaque") << GroundColor << 3;
    QTest::newRow("opaque without padding") << GroundColor << 0;
    QTest::newRow("translucent") << QColor(80, 0, 80, 120) << 3;
}

// What is left out because other labels hide it must not be missed.
void tst_GeoTrackDisplay::crowdLooksAsIfPaintedOneByOne()
{
    QFETCH(QColor, ground);
    QFETCH(int, padding);
    QList<TrackSnapshot> tracks;
    for (int i = 0; i < 60; ++i) {
        tracks.append(aircraft(quint64(i) + 1, QPointF(i * 7919 % 40000 - 22000, i * 5477 % 44000 - 22000)));
        tracks.last().alertsString = i < 5 ? QStringLiteral("STCA") : QString();
    }
    const auto prepared = [&](const QList<TrackSnapshot> &some) {
        auto scope = std::make_unique<Scope>(some);
        scope->display.setSymbolColor(Qt::transparent); // symbols lie above all labels
        scope->display.setLabelBackgroundColor(ground);
        scope->display.setBackgroundPadding(padding);
        scope->display.showLabel(true);
        return scope;
    };
    PaintedView together(100.0);
    prepared(tracks)->paint(together);
    PaintedView oneByOne(100.0);
    oneByOne.paint([&](QPainter &painter, const GeoView &) {
        for (bool alerted : {false, true}) { // alerts lie on top
            for (const TrackSnapshot &track : tracks) {
                if (track.alertsString.isEmpty() != alerted)
                    prepared({track})->display.paint(&painter);
            }
        }
    });
    QCOMPARE(together.image(), oneByOne.image());
}

void tst_GeoTrackDisplay::paintsLabelsOfTracksJustOutside_data()
{
    QTest::addColumn<int>("pixelsLeftOfTheView");
    QTest::addColumn<bool>("shown");
    QTest::newRow("just outside") << 100 << true;
    QTest::newRow("at the end of the margin") << 495 << true;
    QTest::newRow("beyond the margin") << 505 << false;
}

void tst_GeoTrackDisplay::paintsLabelsOfTracksJustOutside()
{
    QFETCH(int, pixelsLeftOfTheView);
    QFETCH(bool, shown);
    Scope scope({aircraft(1, QPointF(-100.0 * (200 + pixelsLeftOfTheView), 0.0))});
    scope.display.showLabel(true);
    scope.display.setLabelOffset(pixelsLeftOfTheView + 20, 20);
    PaintedView view(100.0);
    scope.paint(view);
    QCOMPARE(view.count(LabelColor) > 0, shown);
}

void tst_GeoTrackDisplay::labelFollowsItsContent()
{
    TrackSnapshot track = aircraft(1);
    Scope scope({track});
    scope.display.showLabel(true);
    PaintedView view(100.0);
    const auto groundSize = [&] {
        scope.paint(view);
        return view.extent(GroundColor).size();
    };
    const QSize before = groundSize();
    track.callsign = QStringLiteral("ABCDEFGH");
    scope.display.setSnapshot(picture({track}));
    const QSize longer = groundSize();
    QVERIFY(longer.width() > before.width());
    scope.display.showHeading(true);
    QVERIFY(groundSize().height() > longer.height());
    QFont large = scope.display.labelFont();
    large.setPointSize(20);
    scope.display.showHeading(false);
    scope.display.setLabelFont(large);
    QVERIFY(groundSize().height() > longer.height());
}

void tst_GeoTrackDisplay::hitsSymbol_data()
{
    QTest::addColumn<QPoint>("pixel");
    QTest::addColumn<unsigned long long>("id");
    const QPoint first = PaintedView::Middle;
    const unsigned long long none = 0;
    QTest::newRow("middle, first of two at one place") << first << 1ull;
    QTest::newRow("corner") << first + QPoint(-12, 12) << 1ull;
    QTest::newRow("left of it") << first + QPoint(-13, 0) << none;
    QTest::newRow("below it") << first + QPoint(0, 13) << none;
    QTest::newRow("other place") << first + QPoint(100, -50) << 3ull;
    QTest::newRow("where an unplaced track would be") << QPoint(10, 10) << none;
}

void tst_GeoTrackDisplay::hitsSymbol()
{
    QFETCH(QPoint, pixel);
    QFETCH(unsigned long long, id);
    TrackSnapshot unplaced = aircraft(4, QPointF(-19000.0, 19000.0));
    unplaced.carCoordinateValid = false;
    Scope scope({unplaced, aircraft(1), aircraft(2), aircraft(3, QPointF(10000.0, 5000.0))});
    const QTransform toScreen = PaintedView(100.0).view().screenTransform();
    QCOMPARE(scope.display.findTrackBySymbolPosition(toScreen, pixel.x(), pixel.y()), id);
}

void tst_GeoTrackDisplay::hitsLabelsWhereTheyWerePainted()
{
    Scope scope({aircraft(1), aircraft(2)});
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

void tst_GeoTrackDisplay::forgetsTracksThatAreGone()
{
    Scope scope({aircraft(1), aircraft(2)});
    scope.display.setTrackLabelOffset(1, 5, 6);
    scope.display.setTrackLabelOffset(2, 7, 8);
    scope.display.setSelected(2);
    scope.display.setSnapshot(picture({aircraft(1)}));
    QCOMPARE(scope.display.trackLabelOffset(1), QPoint(5, 6));
    QVERIFY(!scope.display.trackLabelOffsetDefault(1));
    QVERIFY(scope.display.trackLabelOffsetDefault(2));
    QVERIFY(scope.display.hasTrack(1) && !scope.display.hasTrack(2));
    QPointF place(1.0, 2.0);
    QVERIFY(!scope.display.selectedTrackCarCoordinate(place));
    QCOMPARE(place, QPointF(1.0, 2.0));
    scope.display.setSnapshot({});
    QVERIFY(scope.display.trackLabelOffsetDefault(1));
}

QTEST_MAIN(tst_GeoTrackDisplay)
#include "tst_geo_track_display.moc"
