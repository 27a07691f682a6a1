#include "display/geo_map_display.h"
#include "display/geo_track_display.h"
#include "geo/mercator_projector.h"
#include "orientation/geo_range_ring_map.h"
#include "plan_view/geo_widget.h"
#include "plan_view/gestures.h"
#include "test_program.h"

#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

// What the cheat sheet says of the plan view is so.
class TestGestures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void mouse_data();
    void mouse();
    void keys_data();
    void keys();
};

namespace {

constexpr QPoint OnTrack(200, 150);
constexpr QPoint Nowhere(60, 60);

// A view of 400 by 300 pixels with two tracks in its middle.
struct Trial {
    Trial() : map(&projector)
    {
        widget.resize(400, 300);
        widget.setMapDisplay(&map);
        widget.setTrackDisplay(&tracks);
        widget.setView(0, 0, 100);
        auto snapshot = QSharedPointer<DisplaySnapshot>::create();
        for (const quint64 id : {1, 2}) {
            TrackSnapshot track;
            track.incarnationId = id;
            track.callsign = QStringLiteral("GESTURE");
            track.carCoordinateValid = true; // at the origin
            snapshot->tracks.append(track);
        }
        tracks.setSnapshot(snapshot);
        tracks.showLabel(true);
        widget.refresh();
        widget.grab();
    }

    bool performs(Gestures::Mouse gesture);
    bool drags(const QPoint &from)
    {
        QTest::mousePress(&widget, Qt::RightButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, from + QPoint(40, 20), from + QPoint(40, 20), Qt::NoButton, Qt::RightButton,
            Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &move);
        QTest::mouseRelease(&widget, Qt::RightButton, {}, from + QPoint(40, 20));
        return true;
    }
    double turns(Qt::KeyboardModifiers modifiers)
    {
        const double before = widget.currentZoom();
        QWheelEvent wheel(Nowhere, Nowhere, {}, QPoint(0, 120), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&widget, &wheel);
        return widget.currentZoom() / before;
    }
    QPoint label();

    MercatorProjector projector;
    GeoMapDisplay map;
    GeoTrackDisplay tracks;
    GeoWidget widget;
};

QPoint Trial::label()
{
    for (int y = 0; y < 300; y += 4) {
        for (int x = 0; x < 400; x += 4) {
            if (tracks.findTrackByLabelPosition(widget.screenTransform(), x, y) != 0) {
                return {x, y};
            }
        }
    }
    return {};
}

bool Trial::performs(Gestures::Mouse gesture)
{
    using Mouse = Gestures::Mouse;
    QSignalSpy trackMenu(&widget, &GeoWidget::trackMenuRequested);
    QSignalSpy placeMenu(&widget, &GeoWidget::placeMenuRequested);
    const QTransform before = widget.screenTransform();
    switch (gesture) {
    case Mouse::SelectTrack:
        QTest::mouseClick(&widget, Qt::LeftButton, {}, OnTrack);
        return tracks.selectedTrackId() != 0;
    case Mouse::SelectNextTrack: {
        QTest::mouseClick(&widget, Qt::LeftButton, {}, OnTrack);
        const auto first = tracks.selectedTrackId();
        QTest::mouseClick(&widget, Qt::LeftButton, {}, OnTrack);
        return first != 0 && tracks.selectedTrackId() == 3 - first;
    }
    case Mouse::TrackMenu:
        QTest::mouseClick(&widget, Qt::RightButton, {}, OnTrack);
        return trackMenu.size() == 1;
    case Mouse::PlaceMenu:
        QTest::mouseClick(&widget, Qt::RightButton, {}, Nowhere);
        return placeMenu.size() == 1;
    case Mouse::MoveView:
        return drags(Nowhere) && before.map(QPointF()) + QPointF(40, 20) == widget.screenTransform().map(QPointF());
    case Mouse::MoveLabel: {
        const QPoint place = label();
        const auto id = tracks.findTrackByLabelPosition(before, place.x(), place.y());
        return drags(place) && before == widget.screenTransform() && !tracks.trackLabelOffsetDefault(id);
    }
    case Mouse::CentreView:
        QTest::mouseDClick(&widget, Qt::RightButton, {}, Nowhere);
        return (widget.screenTransform().map(before.inverted().map(QPointF(Nowhere))) - QPointF(200, 150))
                   .manhattanLength()
            < 1.5;
    case Mouse::Zoom:
        return turns(Qt::NoModifier) < 0.85;
    case Mouse::ZoomFinely: {
        const double factor = turns(Qt::AltModifier);
        return factor > 0.85 && factor < 1.0;
    }
    case Mouse::PlaceRings: {
        QSignalSpy placed(&widget, &GeoWidget::rangeRingsCenterSet);
        widget.startSettingRangeRingsCenter();
        QTest::mouseClick(&widget, Qt::LeftButton, {}, Nowhere);
        return placed.size() == 1;
    }
    }
    return false;
}

} // namespace

void TestGestures::mouse_data()
{
    QTest::addColumn<Gestures::Mouse>("gesture");
    for (const Gestures::MouseRow &row : Gestures::mouse()) {
        QTest::newRow(row.input) << row.gesture;
    }
}

void TestGestures::mouse()
{
    QFETCH(Gestures::Mouse, gesture);
    QVERIFY(Trial().performs(gesture));
}

void TestGestures::keys_data()
{
    QTest::addColumn<QKeyCombination>("key");
    QTest::addColumn<double>("degrees");
    for (const Gestures::KeyRow &row : Gestures::keys()) {
        QTest::newRow(row.effect) << row.key << row.degrees;
    }
    QTest::newRow("the other fine pair") << QKeyCombination(Qt::ALT, Qt::Key_F11) << -0.1;
}

void TestGestures::keys()
{
    QFETCH(QKeyCombination, key);
    QFETCH(double, degrees);
    Trial trial;
    QTest::keyClick(&trial.widget, key.key(), key.keyboardModifiers());
    QVERIFY(qAbs(trial.widget.currentRotation() - degrees) < 1e-9);
}

VYX_TEST(TestGestures)
#include "tst_gestures.moc"
