#include "display/geo_map_display.h"
#include "display/geo_track_display.h"
#include "geo/mercator_projector.h"
#include "orientation/geo_range_ring_map.h"
#include "plan_view/geo_pointer_tool.h"
#include "plan_view/geo_widget.h"
#include "test_program.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <cmath>

class TestGeoWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void setViewKeepsTheLimits();
    void zoomStepsMayPassALimitOnce();
    void rotationIsNormalized();
    void movesTheView();
    void reportsWhatIsVisible();
    void wheelZoomsAboutThePointer();
    void rightDragPans();
    void newsComeAlongWithADrag();
    void aDragEndsWhenTheButtonIsUp();
    void rightDragMovesALabel();
    void labelDragEndsWithItsTrack();
    void leftClickSelects();
    void clicksGoThroughWhatIsStacked();
    void tellsWhichTrackThePointerIsOn();
    void rightClickAsksForTheTracksMenu();
    void placesRangeRings();
    void aToolRestsWhileTheRingsArePlaced();
    void followsTheSelectedTrack();
    void letsGoOfTheTrackWhenDragged();
    void paintsMapBelowTracks();

private:
    QPointF atCentre() const { return m_widget->screenTransform().inverted().map(QPointF(200, 150)); }
    void showTracks(const QList<QPointF> &places);
    void sendMouse(QEvent::Type type, const QPointF &place, Qt::MouseButton button, Qt::MouseButtons buttons);

    MercatorProjector m_projector;
    std::unique_ptr<GeoMapDisplay> m_map;
    std::unique_ptr<GeoTrackDisplay> m_tracks;
    std::unique_ptr<GeoWidget> m_widget;
};

namespace {

bool near(const QPointF &one, const QPointF &other, double reach = 1e-6)
{
    return QLineF(one, other).length() <= reach;
}

// Counts what it is offered, and takes all of it.
class CountingTool final : public GeoPointerTool {
public:
    bool pressed(const QPointF &, const QTransform &) override { return ++events > 0; }
    bool moved(const QPointF &, const QTransform &) override { return ++events > 0; }
    bool released(const QPointF &, const QTransform &) override { return ++events > 0; }
    bool doubleClicked(const QPointF &, const QTransform &) override { return ++events > 0; }
    bool keyPressed(const QKeyEvent &) override { return ++events > 0; }
    Qt::CursorShape cursorShape() const override { return Qt::SizeAllCursor; }

    int events = 0;
};

class PaintCounter final : public QObject {
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int paints = 0;
};

using Pairs = QList<std::pair<double, double>>;

} // namespace

// A view of 400 by 300 pixels at 100 m a pixel round (50000, 20000).
void TestGeoWidget::init()
{
    m_map = std::make_unique<GeoMapDisplay>(&m_projector);
    m_tracks = std::make_unique<GeoTrackDisplay>();
    m_widget = std::make_unique<GeoWidget>();
    m_widget->resize(400, 300);
    m_widget->setMapDisplay(m_map.get());
    m_widget->setTrackDisplay(m_tracks.get());
    m_widget->setView(50000.0, 20000.0, 100.0);
}

void TestGeoWidget::cleanup()
{
    m_widget.reset();
    m_tracks.reset();
    m_map.reset();
}

// Tracks 1, 2, ... at these plane points, painted once so that the labels have their places.
void TestGeoWidget::showTracks(const QList<QPointF> &places)
{
    auto snapshot = QSharedPointer<DisplaySnapshot>::create();
    for (const QPointF &place : places) {
        TrackSnapshot track;
        track.incarnationId = quint64(snapshot->tracks.size()) + 1;
        track.callsign = QStringLiteral("ABC123");
        track.carCoordinate = place;
        track.carCoordinateValid = true;
        snapshot->tracks.append(track);
    }
    m_tracks->setSnapshot(snapshot);
    m_widget->refresh();
    m_widget->grab();
}

void TestGeoWidget::sendMouse(QEvent::Type type, const QPointF &place, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, place, place, button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(m_widget.get(), &event);
}

void TestGeoWidget::setViewKeepsTheLimits()
{
    for (const auto &[wanted, zoom] : Pairs{{250.0, 250.0}, {0.1, 0.3}, {20000.0, 14000.0}}) {
        m_widget->rotate(33.0);
        QSignalSpy zooms(m_widget.get(), &GeoWidget::zoomChanged);
        m_widget->setView(1000.0, -2000.0, wanted);
        QCOMPARE(zooms.last().first().toDouble(), m_widget->currentZoom());
        QVERIFY(qFuzzyCompare(m_widget->currentZoom(), zoom));
        QCOMPARE(m_widget->currentRotation(), 0.0);
        QVERIFY(near(atCentre(), QPointF(1000.0, -2000.0)));
    }
}

void TestGeoWidget::zoomStepsMayPassALimitOnce()
{
    const auto zoomAfter = [this](void (GeoWidget::*step)(), double start) {
        // A whisker inside, so that rounding does not decide.
        m_widget->changeViewPort(QTransform::fromScale(1.0 / start, 1.0 / start));
        (m_widget.get()->*step)();
        const double once = m_widget->currentZoom();
        QSignalSpy zooms(m_widget.get(), &GeoWidget::zoomChanged);
        (m_widget.get()->*step)();
        return QString("%1 %2 %3").arg(once).arg(m_widget->currentZoom()).arg(zooms.size());
    };
    QCOMPARE(zoomAfter(&GeoWidget::zoomIn, 100.0), "80 64 1");
    QCOMPARE(zoomAfter(&GeoWidget::zoomOut, 100.0), "125 156.25 1");
    QCOMPARE(zoomAfter(&GeoWidget::zoomIn, 0.3), "0.24 0.24 0");
    QCOMPARE(zoomAfter(&GeoWidget::zoomOut, 14000.0), "17500 17500 0");
}

void TestGeoWidget::rotationIsNormalized()
{
    for (const auto &[turn, rotation] : Pairs{{-10.0, -10.0}, {190.0, -170.0}, {-180.0, 180.0}, {725.0, 5.0}}) {
        m_widget->rotateNorthUp();
        QSignalSpy rotations(m_widget.get(), &GeoWidget::rotationChanged);
        m_widget->rotate(turn);
        QVERIFY(std::abs(m_widget->currentRotation() - rotation) < 1e-9);
        QCOMPARE(rotations.last().first().toDouble(), m_widget->currentRotation());
        QVERIFY(std::abs(GeoView(m_widget->screenTransform(), m_widget->size()).rotation() - rotation) < 1e-9);
    }
}

void TestGeoWidget::movesTheView()
{
    using Move = void (GeoWidget::*)();
    const QList<std::pair<Move, QPointF>> moves{{&GeoWidget::moveLeft, QPointF(45000, 20000)},
        {&GeoWidget::moveUp, QPointF(45000, 25000)}, {&GeoWidget::moveRight, QPointF(50000, 25000)},
        {&GeoWidget::moveDown, QPointF(50000, 20000)}};
    QSignalSpy rects(m_widget.get(), &GeoWidget::viewRectChanged);
    for (const auto &[move, centre] : moves) {
        (m_widget.get()->*move)();
        QVERIFY(near(atCentre(), centre));
    }
    m_widget->moveTo(210, 120);
    QVERIFY(near(atCentre(), QPointF(51000, 23000)));
    QCOMPARE(rects.size(), 5);
    m_widget->rotate(40.0);
    m_widget->jumpTo(123.0, -456.0);
    QVERIFY(near(atCentre(), QPointF(123.0, -456.0)));
    QVERIFY(qFuzzyCompare(m_widget->currentZoom(), 100.0));
    QVERIFY(std::abs(m_widget->currentRotation() - 40.0) < 1e-9);
    m_widget->rotateNorthUp();
    QVERIFY(near(atCentre(), QPointF(123.0, -456.0)));
    QCOMPARE(m_widget->currentRotation(), 0.0);
    sendMouse(QEvent::MouseButtonDblClick, QPointF(300, 50), Qt::RightButton, Qt::RightButton);
    QVERIFY(near(atCentre(), QPointF(10123, 9544)));
}

void TestGeoWidget::reportsWhatIsVisible()
{
    QSignalSpy rects(m_widget.get(), &GeoWidget::viewRectChanged);
    m_widget->move(0, 0);
    QCOMPARE(rects.first(), QList<QVariant>({QPoint(30000, 35000), QPoint(70000, 5000), 100.0}));
    m_widget->rotate(90.0);
    QCOMPARE(rects.last(), QList<QVariant>({QPoint(35000, 40000), QPoint(65000, 0), 100.0}));
    QVERIFY(near(m_widget->screenTransform().map(QPointF(50000, 25000)), QPointF(250, 150)));
}

void TestGeoWidget::wheelZoomsAboutThePointer()
{
    struct Turn {
        QPoint delta;
        Qt::KeyboardModifier modifier;
        double start;
        double zoom;
    };
    const QPointF pointer(330, 40);
    for (const Turn &turn : {Turn{QPoint(0, -120), Qt::NoModifier, 100.0, 125.0},
             Turn{QPoint(-120, 0), Qt::AltModifier, 100.0, 100.0 / 0.9}, // turned by the window system
             Turn{QPoint(0, 960), Qt::NoModifier, 100.0, 80.0}, // a big turn is one step
             Turn{QPoint(120, 0), Qt::NoModifier, 100.0, 100.0}, Turn{QPoint(0, 120), Qt::NoModifier, 0.25, 0.25},
             Turn{QPoint(0, -120), Qt::NoModifier, 16000.0, 16000.0},
             Turn{QPoint(0, 120), Qt::NoModifier, 16000.0, 12800.0}}) {
        m_widget->changeViewPort(QTransform::fromScale(1.0 / turn.start, 1.0 / turn.start));
        m_widget->rotate(25.0);
        const QPointF before = m_widget->screenTransform().inverted().map(pointer);
        QWheelEvent event(
            pointer, pointer, QPoint(), turn.delta, Qt::NoButton, turn.modifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_widget.get(), &event);
        QVERIFY(std::abs(m_widget->currentZoom() / turn.zoom - 1.0) < 1e-9);
        QVERIFY(near(m_widget->screenTransform().map(before), pointer));
    }
}

void TestGeoWidget::rightDragPans()
{
    QSignalSpy rects(m_widget.get(), &GeoWidget::viewRectChanged);
    QSignalSpy cursors(m_widget.get(), &GeoWidget::cursorMoved);
    sendMouse(QEvent::MouseButtonPress, QPointF(100, 100), Qt::RightButton, Qt::RightButton);
    sendMouse(QEvent::MouseMove, QPointF(120, 105), Qt::NoButton, Qt::RightButton);
    sendMouse(QEvent::MouseMove, QPointF(130, 90), Qt::NoButton, Qt::RightButton);
    QVERIFY(near(atCentre(), QPointF(47000, 19000)));
    QCOMPARE(rects.size() + cursors.size(), 0); // tiles are not asked for while the view is still moving
    sendMouse(QEvent::MouseButtonRelease, QPointF(130, 90), Qt::RightButton, Qt::NoButton);
    QCOMPARE(rects.size(), 1);
}

void TestGeoWidget::newsComeAlongWithADrag()
{
    PaintCounter counter;
    m_widget->installEventFilter(&counter);
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
    sendMouse(QEvent::MouseButtonPress, QPointF(100, 100), Qt::RightButton, Qt::RightButton);
    QElapsedTimer timer;
    do { // until the machine leaves the test alone for so long
        timer.start();
        m_widget->repaint();
        counter.paints = 0;
        m_tracks->setSymbolSize(20);
        QCoreApplication::processEvents();
    } while (timer.elapsed() > 20);
    QCOMPARE(counter.paints, 0); // a moment ago there was a frame
    QTRY_COMPARE(counter.paints, 1); // no move has brought another one
    sendMouse(QEvent::MouseButtonRelease, QPointF(100, 100), Qt::RightButton, Qt::NoButton);
    m_widget->repaint();
    counter.paints = 0;
    m_tracks->setSymbolSize(21);
    QCoreApplication::processEvents();
    QVERIFY(counter.paints > 0);
}

// The release went to a dialog that came up during the drag.
void TestGeoWidget::aDragEndsWhenTheButtonIsUp()
{
    showTracks({QPointF(50000, 20000)});
    const QPointF label(200 + m_tracks->labelOffsetX() + 5, 150 - m_tracks->labelOffsetY() + 5);
    for (const QPointF &grip : {QPointF(20, 20), label}) {
        sendMouse(QEvent::MouseButtonPress, grip, Qt::RightButton, Qt::RightButton);
        const QTransform before = m_widget->screenTransform();
        QSignalSpy cursors(m_widget.get(), &GeoWidget::cursorMoved);
        sendMouse(QEvent::MouseMove, grip + QPointF(40, 40), Qt::NoButton, Qt::NoButton);
        QCOMPARE(m_widget->screenTransform(), before);
        QVERIFY(m_tracks->trackLabelOffsetDefault(1));
        QCOMPARE(m_widget->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(cursors.size(), 1);
    }
}

void TestGeoWidget::rightDragMovesALabel()
{
    showTracks({QPointF(50000, 20000), QPointF(40000, 10000)});
    m_tracks->setLabelOffset(30, 40);
    m_widget->grab();
    const QTransform before = m_widget->screenTransform();
    const QPointF grip(200 + 35, 150 - 35);
    sendMouse(QEvent::MouseButtonPress, grip, Qt::RightButton, Qt::RightButton);
    // Half pixels add up.
    for (double step : {0.5, 1.0, 1.5, 2.0, 10.0}) {
        sendMouse(QEvent::MouseMove, grip + QPointF(step, -2.0 * step), Qt::NoButton, Qt::RightButton);
    }
    sendMouse(QEvent::MouseButtonRelease, grip + QPointF(10, -20), Qt::RightButton, Qt::NoButton);
    QCOMPARE(m_tracks->trackLabelOffset(1), QPoint(40, 60));
    QVERIFY(m_tracks->trackLabelOffsetDefault(2));
    QCOMPARE(m_widget->screenTransform(), before);
}

void TestGeoWidget::labelDragEndsWithItsTrack()
{
    showTracks({QPointF(50000, 20000)});
    const QTransform before = m_widget->screenTransform();
    const QPointF grip(200 + m_tracks->labelOffsetX() + 5, 150 - m_tracks->labelOffsetY() + 5);
    sendMouse(QEvent::MouseButtonPress, grip, Qt::RightButton, Qt::RightButton);
    m_tracks->setSnapshot({});
    m_widget->refresh();
    QCOMPARE(m_widget->cursor().shape(), Qt::ArrowCursor);
    sendMouse(QEvent::MouseMove, grip + QPointF(50, 0), Qt::NoButton, Qt::RightButton);
    QVERIFY(m_tracks->trackLabelOffsetDefault(1));
    QCOMPARE(m_widget->screenTransform(), before);
}

void TestGeoWidget::leftClickSelects()
{
    showTracks({QPointF(40000, 20000), QPointF(50000, 20000)});
    QSignalSpy selected(m_widget.get(), &GeoWidget::trackSelected);
    QTest::mouseClick(m_widget.get(), Qt::LeftButton, {}, QPoint(205, 145));
    QTest::mouseClick(m_widget.get(), Qt::LeftButton, {}, QPoint(20, 20));
    m_widget->refresh();
    QCOMPARE(m_tracks->selectedTrackId(), 2ull);
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.last().first().toULongLong(), 2ull);
    // A track that is gone is selected no longer, and that is said once.
    m_tracks->setSnapshot({});
    m_widget->refresh();
    m_widget->refresh();
    QCOMPARE(m_tracks->selectedTrackId(), 0ull);
    QCOMPARE(selected.size(), 2);
    QCOMPARE(selected.last().first().toULongLong(), 0ull);
}

void TestGeoWidget::clicksGoThroughWhatIsStacked()
{
    showTracks({QPointF(50000, 20000), QPointF(20000, 40000), QPointF(50300, 20000)});
    const auto selectedAfterClickAt = [this](const QPoint &place) {
        QTest::mouseClick(m_widget.get(), Qt::LeftButton, {}, place);
        return m_tracks->selectedTrackId();
    };
    const QPoint symbols(202, 150);
    QCOMPARE(selectedAfterClickAt(symbols), 1ull);
    QCOMPARE(selectedAfterClickAt(symbols), 3ull);
    QCOMPARE(selectedAfterClickAt(symbols), 1ull);
    m_tracks->setSelected(2); // elsewhere: the click begins with the first again
    QCOMPARE(selectedAfterClickAt(symbols), 1ull);
    m_tracks->setSelected(2);
    const QPoint label = symbols + QPoint(m_tracks->labelOffsetX() + 4, 5 - m_tracks->labelOffsetY());
    QCOMPARE(m_tracks->findTrackBySymbolPosition(m_widget->screenTransform(), label.x(), label.y()), 0ull);
    QCOMPARE(selectedAfterClickAt(label), 1ull);
    QCOMPARE(selectedAfterClickAt(label), 3ull);
    QCOMPARE(selectedAfterClickAt(QPoint(10, 290)), 3ull); // nothing there
}

void TestGeoWidget::tellsWhichTrackThePointerIsOn()
{
    showTracks({QPointF(50000, 20000)});
    QSignalSpy hovered(m_widget.get(), &GeoWidget::trackHovered);
    const auto pointAt = [this](const QPointF &place) {
        sendMouse(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton);
        return m_tracks->hoveredTrackId();
    };
    QCOMPARE(pointAt({200, 150}), 1ull);
    QCOMPARE(pointAt({201, 151}), 1ull);
    QCOMPARE(pointAt({20, 20}), 0ull);
    QCOMPARE(hovered, QList<QVariantList>({{1ull}, {0ull}})); // changes alone
    QCOMPARE(pointAt({200 + m_tracks->labelOffsetX() + 4.0, 155.0 - m_tracks->labelOffsetY()}), 1ull);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(m_widget.get(), &leave);
    QCOMPARE(m_tracks->hoveredTrackId(), 0ull);
    pointAt({200, 150});
    showTracks({}); // it goes under the pointer
    QCOMPARE(m_tracks->hoveredTrackId(), 0ull);
}

void TestGeoWidget::rightClickAsksForTheTracksMenu()
{
    showTracks({QPointF(50000, 20000)});
    QSignalSpy asked(m_widget.get(), &GeoWidget::trackMenuRequested);
    QTest::mouseClick(m_widget.get(), Qt::RightButton, {}, QPoint(20, 20));
    sendMouse(QEvent::MouseButtonPress, {200, 150}, Qt::RightButton, Qt::RightButton);
    sendMouse(QEvent::MouseMove, {260, 150}, Qt::NoButton, Qt::RightButton);
    sendMouse(QEvent::MouseButtonRelease, {260, 150}, Qt::RightButton, Qt::NoButton);
    QCOMPARE(asked.size(), 0); // the view was dragged, and the track with it
    QTest::mouseClick(m_widget.get(), Qt::RightButton, {}, QPoint(260, 150));
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked.first().first().toULongLong(), 1ull);
    QCOMPARE(asked.first().last().toPoint(), m_widget->mapToGlobal(QPoint(260, 150)));
}

void TestGeoWidget::placesRangeRings()
{
    showTracks({QPointF(50000, 20000)});
    GeoRangeRingMap *rings = m_map->rangeRingMap();
    rings->setRings(QPointF(0, 0), 3, 12.5);
    QSignalSpy placed(m_widget.get(), &GeoWidget::rangeRingsCenterSet);
    m_widget->startSettingRangeRingsCenter();
    QCOMPARE(m_widget->cursor().shape(), Qt::CrossCursor);
    // Panning to the place does not end the placing.
    QTest::mouseClick(m_widget.get(), Qt::RightButton, {}, QPoint(20, 20));
    QCOMPARE(m_widget->cursor().shape(), Qt::CrossCursor);
    QTest::mouseClick(m_widget.get(), Qt::LeftButton, {}, QPoint(200, 150));
    QCOMPARE(m_tracks->selectedTrackId(), 0ull);
    QVERIFY(near(rings->center(), QPointF(50000, 20000)));
    QTest::mouseClick(m_widget.get(), Qt::LeftButton, {}, QPoint(20, 20));
    QCOMPARE(placed.size(), 1);
}

void TestGeoWidget::aToolRestsWhileTheRingsArePlaced()
{
    CountingTool tool;
    m_widget->setPointerTool(&tool);
    m_widget->startSettingRangeRingsCenter();
    m_widget->setPointerTool(&tool); // as a tool does that has another cursor now
    QCOMPARE(m_widget->cursor().shape(), Qt::CrossCursor);
    QTest::keyClick(m_widget.get(), Qt::Key_Delete);
    QTest::mouseMove(m_widget.get(), QPoint(30, 30));
    QTest::mouseClick(m_widget.get(), Qt::LeftButton, {}, QPoint(20, 20));
    QCOMPARE(tool.events, 0);
    QCOMPARE(m_widget->cursor().shape(), Qt::SizeAllCursor);
    QTest::mouseClick(m_widget.get(), Qt::LeftButton, {}, QPoint(20, 20));
    QCOMPARE(tool.events, 2);
}

void TestGeoWidget::followsTheSelectedTrack()
{
    showTracks({QPointF(50000, 20000)});
    m_tracks->setSelected(1);
    m_widget->setFollowSelectedTrack(true);
    const QTransform before = m_widget->screenTransform();
    showTracks({QPointF(50049, 20000 - 49)}); // less than half a pixel
    QCOMPARE(m_widget->screenTransform(), before);
    QSignalSpy rects(m_widget.get(), &GeoWidget::viewRectChanged);
    showTracks({QPointF(51251, 19949)});
    QCOMPARE(rects.first().first().toPoint(), QPoint(31300, 34900));
    QVERIFY(near(atCentre(), QPointF(51300, 19900), 1.0));
    m_widget->setFollowSelectedTrack(false);
    const QTransform left = m_widget->screenTransform();
    showTracks({QPointF(90000, 90000)});
    QCOMPARE(m_widget->screenTransform(), left);
}

void TestGeoWidget::letsGoOfTheTrackWhenDragged()
{
    showTracks({QPointF(50000, 20000)});
    m_tracks->setSelected(1);
    m_widget->setFollowSelectedTrack(true);
    QSignalSpy changed(m_widget.get(), &GeoWidget::followSelectedTrackChanged);
    sendMouse(QEvent::MouseButtonPress, {20, 20}, Qt::RightButton, Qt::RightButton);
    sendMouse(QEvent::MouseMove, {22, 20}, Qt::NoButton, Qt::RightButton); // a hand that is not quite still
    QVERIFY(m_widget->followsSelectedTrack());
    QVERIFY(near(atCentre(), QPointF(50000, 20000)));
    sendMouse(QEvent::MouseMove, {80, 20}, Qt::NoButton, Qt::RightButton);
    QCOMPARE(changed, QList<QVariantList>({{false}}));
    const QTransform left = m_widget->screenTransform();
    showTracks({QPointF(90000, 90000)});
    QCOMPARE(m_widget->screenTransform(), left);
}

void TestGeoWidget::paintsMapBelowTracks()
{
    m_map->setBackgroundColor(QColor(1, 2, 3));
    m_tracks->setSymbolColor(Qt::red);
    m_tracks->showLabel(false);
    showTracks({QPointF(50000, 20000)});
    const QImage image = m_widget->grab().toImage();
    QCOMPARE(image.pixelColor(0, 0), QColor(1, 2, 3));
    QCOMPARE(image.pixelColor(399, 299), QColor(1, 2, 3));
    QCOMPARE(image.pixelColor(200, 150), QColor(Qt::red));
}

VYX_TEST(TestGeoWidget)
#include "tst_geo_widget.moc"
