#include "display/conflict_line_painter.h"
#include "sensors/radar_sensor_info.h"
#include "test_program.h"
#include "track_scope.h"
#include "tracking/conflict_geometry.h"

#include <QTest>

namespace {

const QColor SymbolColor(0, 0, 255);
const QColor LabelColor(250, 250, 250);
const QColor SelectedColor(0, 255, 0);
const QColor AlertColor(255, 0, 0);
const QColor AlertTextColor(1, 2, 3);
const QColor CautionColor(255, 200, 0);
const QColor GroundColor(0, 80, 0);

AlertSnapshot conflict(quint64 track1, quint64 track2)
{
    AlertSnapshot alert;
    alert.id = 5;
    alert.type = Alert::STCA;
    alert.state = Alert::Active;
    alert.track1.incarnationId = track1;
    alert.track2.incarnationId = track2;
    alert.track2Applicable = true;
    return alert;
}

Config pureColors(Config::TrackLabelLayout layout)
{
    Config config;
    config.trackLabelLayout = layout;
    config.trackSymbolColor = SymbolColor;
    config.trackLabelColor = config.trackLabelDetailColor = LabelColor;
    config.trackLabelSelectedColor = SelectedColor;
    config.trackLabelAlertColor = AlertColor;
    config.trackLabelAlertTextColor = AlertTextColor;
    config.trackCautionColor = CautionColor;
    config.trackLabelBackgroundColor = GroundColor;
    config.trackLabelBackgroundOpacity = 100;
    return config;
}

// 100 metres are a pixel.
class Scope : public TrackScope {
public:
    explicit Scope(Config::TrackLabelLayout layout = Config::TrackLabelLayout::Compact) : TrackScope(pureColors(layout))
    {
    }

    PaintedView painted(double rotation = 0.0, bool blinkOn = true)
    {
        display.setBlinkOn(blinkOn);
        return TrackScope::painted(100.0, rotation);
    }
};

} // namespace

// What of the picture must be seen first: alerts, emergencies, the selected track and the one under the pointer.
class TestTrackSalience : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void headsBlinkUntilAcknowledged_data();
    void headsBlinkUntilAcknowledged();
    void headsAreShownWithoutLabels();
    void conflictsAreJoined();
    void tellsOfConflicts();
    void figuresOfConflictsStandFree_data();
    void figuresOfConflictsStandFree();
    void arrowsPointToWhatIsOutside_data();
    void arrowsPointToWhatIsOutside();
    void ringsTellSelectedAndHovered();
    void coastingForTooLongNeedsALook();
    void noSymbolLiesOnTheTextOfAnAlert();
};

void TestTrackSalience::headsBlinkUntilAcknowledged_data()
{
    QTest::addColumn<Config::TrackLabelLayout>("layout");
    QTest::addColumn<bool>("emergency");
    using Layout = Config::TrackLabelLayout;
    QTest::newRow("alert") << Layout::Compact << false;
    QTest::newRow("alert, standard") << Layout::Standard << false;
    QTest::newRow("emergency") << Layout::Compact << true;
    QTest::newRow("emergency, standard") << Layout::Standard << true;
}

void TestTrackSalience::headsBlinkUntilAcknowledged()
{
    QFETCH(Config::TrackLabelLayout, layout);
    QFETCH(bool, emergency);
    Scope scope(layout);
    TrackSnapshot track = flightAt();
    if (emergency) {
        track.emergency = Track::RadioFailure;
        scope.show({track});
    } else {
        track.alertsString = QStringLiteral("STCA");
        scope.show({track}, {conflict(1, 2)});
    }
    const auto picture = [&scope](bool on) { return scope.painted(0.0, on).image(); };
    QVERIFY(picture(true) != picture(false));
    const QColor color = emergency ? CautionColor : AlertColor;
    QVERIFY(scope.painted(0.0, false).count(color) > 10); // never gone altogether
    scope.display.acknowledgeTrack(1);
    QCOMPARE(picture(true), picture(false));
    if (layout == Config::TrackLabelLayout::Compact) {
        // An alert keeps its filled head, an emergency has words alone.
        QCOMPARE(scope.painted().count(AlertTextColor) > 0, !emergency);
    }
    scope.display.showAlertIndicator(false);
    scope.display.setSymbolColor(Qt::transparent);
    QCOMPARE(scope.painted().inkIn(QRect(210, 0, 190, 400)), [&] {
        track.alertsString.clear();
        track.emergency = Track::NoEmergency;
        scope.show({track});
        return scope.painted().inkIn(QRect(210, 0, 190, 400));
    }());
}

void TestTrackSalience::headsAreShownWithoutLabels()
{
    Scope scope;
    TrackSnapshot track = flightAt();
    track.alertsString = QStringLiteral("MSAW");
    scope.display.showLabel(false);
    const auto head = [&] {
        scope.show({track, flightAt({5000.0, -5000.0}, 2)});
        return scope.painted().count(AlertTextColor);
    };
    QVERIFY(head() > 0);
    scope.display.showAlertIndicator(false);
    QCOMPARE(head(), 0);
    scope.display.showAlertIndicator(true);
    track.alertsString.clear();
    QCOMPARE(head(), 0);
}

void TestTrackSalience::conflictsAreJoined()
{
    Scope scope;
    scope.display.showLabel(false);
    const TrackSnapshot one = flightAt({-15000.0, 0.0}, 1);
    const TrackSnapshot other = flightAt({15000.0, 0.0}, 2);
    const auto joins = [&](double rotation) {
        // The text stands in the middle: the line is looked for beside it.
        const PaintedView view = scope.painted(rotation);
        int found = 0;
        for (double x : {-12000.0, -11900.0, -11800.0, -11700.0, -11600.0, -11500.0}) {
            found += view.inkedNear(view.view().toScreen({x, 0.0}));
        }
        return found > 2;
    };
    scope.show({one, other});
    QVERIFY(!joins(0.0));
    scope.show({one, other}, {conflict(1, 2)});
    QVERIFY(joins(0.0));
    QVERIFY(joins(77.0));
    AlertSnapshot ended = conflict(1, 2);
    ended.state = Alert::End;
    scope.show({one, other}, {ended});
    QVERIFY(!joins(0.0));
    scope.show({one}, {conflict(1, 2)}); // one of them is not ours
    QVERIFY(!joins(0.0));
    TrackSnapshot nowhere = other;
    nowhere.carCoordinateValid = false;
    scope.show({one, nowhere}, {conflict(1, 2)});
    QVERIFY(!joins(0.0));
}

void TestTrackSalience::tellsOfConflicts()
{
    ConflictGeometry geometry;
    geometry.distance = 3.24 * 1852.0;
    QCOMPARE(ConflictLinePainter::text(geometry), "3.2 NM");
    geometry.levelDifference = 400;
    geometry.timeToClosestApproach = 44.6;
    QCOMPARE(ConflictLinePainter::text(geometry), "3.2 NM 400 ft 45 s");
    geometry.timeToClosestApproach = 3600.0;
    QCOMPARE(ConflictLinePainter::text(geometry), "3.2 NM 400 ft");
}

void TestTrackSalience::figuresOfConflictsStandFree_data()
{
    QTest::addColumn<bool>("arranged");
    QTest::addColumn<QPointF>("between"); // a third track
    QTest::newRow("labels arrange themselves") << true << QPointF(0.0, 15000.0);
    QTest::newRow("labels stand where they stand") << false << QPointF(0.0, 15000.0);
    QTest::newRow("something is on the line, labels arrange themselves") << true << QPointF(0.0, 0.0);
    QTest::newRow("something is on the line, labels stand where they stand") << false << QPointF(0.0, 0.0);
}

// On neither a symbol nor a label, and no label on them.
void TestTrackSalience::figuresOfConflictsStandFree()
{
    QFETCH(bool, arranged);
    QFETCH(QPointF, between);
    Scope scope;
    Config config;
    config.trackLabelLayout = Config::TrackLabelLayout::Compact;
    config.trackLabelAutoPlace = arranged;
    scope.display.applyConfig(config);
    const QList<TrackSnapshot> tracks{
        flightAt({-6000.0, -2000.0}, 1), flightAt({6000.0, 2000.0}, 2), flightAt(between, 3)};
    scope.show(tracks, {conflict(1, 2)});
    for (int frame = 0; frame < 5; ++frame) {
        scope.painted();
    }
    const TrackFrame &frame = scope.display.frame();
    TrackFrame judged = frame;
    for (ShownTrack &shown : judged.tracks) {
        shown.label = arranged ? nullptr : shown.label;
    }
    ConflictLinePainter figures;
    figures.prepare(
        judged, scope.display.alertBoard().entries(), {{1, &tracks[0]}, {2, &tracks[1]}, {3, &tracks[2]}}, {});
    QCOMPARE(figures.textPlaces().size(), 1);
    const QRect place = figures.textPlaces().first();
    QVERIFY(frame.view.screenRect().contains(place));
    QCOMPARE(frame.tracks.size(), std::size_t(3));
    for (const ShownTrack &shown : frame.tracks) {
        QVERIFY(!place.contains(shown.place));
        QVERIFY(shown.label && !frame.look.padded(shown.labelRect).intersects(place));
    }
}

void TestTrackSalience::arrowsPointToWhatIsOutside_data()
{
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<double>("rotation");
    QTest::addColumn<QRect>("edge"); // where the arrow is; null: nowhere
    const QRect right(380, 185, 20, 30);
    const QRect top(185, 0, 30, 20);
    QTest::newRow("inside") << QPointF(10000.0, 0.0) << 0.0 << QRect();
    QTest::newRow("east") << QPointF(30000.0, 0.0) << 0.0 << right;
    QTest::newRow("far east") << QPointF(3e6, 0.0) << 0.0 << right;
    QTest::newRow("north") << QPointF(0.0, 30000.0) << 0.0 << top;
    QTest::newRow("north, the view turned") << QPointF(0.0, 30000.0) << 90.0 << right;
    QTest::newRow("south-west") << QPointF(-30000.0, -30000.0) << 0.0 << QRect(0, 380, 20, 20);
}

void TestTrackSalience::arrowsPointToWhatIsOutside()
{
    QFETCH(QPointF, place);
    QFETCH(double, rotation);
    QFETCH(QRect, edge);
    Scope scope;
    scope.display.showLabel(false);
    TrackSnapshot track = flightAt(place);
    scope.show({track});
    QCOMPARE(scope.painted(rotation).count(AlertColor), 0);
    track.alertsString = QStringLiteral("STCA");
    scope.show({track}, {conflict(1, 2)});
    const PaintedView view = scope.painted(rotation);
    if (edge.isNull()) {
        QCOMPARE(view.inkIn(QRect(0, 0, 400, 12)) + view.inkIn(QRect(388, 0, 12, 400)), 0);
        return;
    }
    QVERIFY(view.inkIn(edge) > 50);
    // With what it is about and who it is, inside the picture.
    const QRect text = view.extent(AlertColor);
    QVERIFY(text.width() > 60 || text.height() > 20);
    scope.display.acknowledgeAll();
    QVERIFY(scope.painted(rotation).inkIn(edge) > 50); // stays
}

void TestTrackSalience::ringsTellSelectedAndHovered()
{
    for (const auto layout : {Config::TrackLabelLayout::Standard, Config::TrackLabelLayout::Compact}) {
        Scope scope(layout);
        scope.display.showLabel(false);
        scope.show({flightAt({-5000.0, 0.0}, 1), flightAt({5000.0, 0.0}, 2)});
        const int bare = scope.painted().ink();
        scope.display.setSelected(1);
        QVERIFY(scope.painted().count(SelectedColor) > 20);
        QVERIFY(scope.painted().inkIn(QRect(200, 0, 200, 400)) * 2 == bare); // the other is as it was
        scope.display.setSelected(0);
        scope.display.setHovered(2);
        QVERIFY(scope.painted().inkIn(QRect(200, 0, 200, 400)) * 2 > bare);
        scope.display.setHovered(0);
        QCOMPARE(scope.painted().ink(), bare);
    }
}

void TestTrackSalience::coastingForTooLongNeedsALook()
{
    const auto sensor = QSharedPointer<RadarSensorInfo>::create();
    sensor->setRotationPeriod(4.0); // coasting after 5 s, gone after 12 s
    const QDateTime heard = QDateTime::fromMSecsSinceEpoch(1'700'000'000'000, Qt::UTC);
    const auto caution = [&](int silence, bool known) {
        Scope scope;
        scope.display.setSensor(known ? sensor : QSharedPointer<RadarSensorInfo>());
        TrackSnapshot track = flightAt();
        track.coasting = true;
        track.lastUpdate = heard;
        auto snapshot = QSharedPointer<DisplaySnapshot>::create();
        snapshot->tracks = {track};
        snapshot->time = heard.addSecs(silence);
        scope.display.setSnapshot(snapshot);
        return scope.painted().count(CautionColor) > 0;
    };
    QVERIFY(!caution(8, true));
    QVERIFY(caution(9, true));
    QVERIFY(!caution(9, false));
}

void TestTrackSalience::noSymbolLiesOnTheTextOfAnAlert()
{
    for (const auto layout : {Config::TrackLabelLayout::Standard, Config::TrackLabelLayout::Compact}) {
        Scope scope(layout);
        TrackSnapshot track = flightAt();
        track.alertsString = QStringLiteral("STCA");
        scope.display.setLabelOffset(20, 40);
        scope.show({track});
        const PaintedView alone = scope.painted();
        scope.show({track, flightAt({4000.0, 2500.0}, 2)}); // in the middle of its label
        const PaintedView crowded = scope.painted();
        QVERIFY(crowded.count(SymbolColor) > alone.count(SymbolColor)); // the target is seen all the same
        for (int y = 150; y < 200; ++y) {
            for (int x = 215; x < 320; ++x) {
                const QColor text = alone.at({x, y});
                if (text == LabelColor || text == AlertTextColor) {
                    QCOMPARE(crowded.at({x, y}), text);
                }
            }
        }
    }
}

VYX_TEST(TestTrackSalience)
#include "tst_track_salience.moc"
