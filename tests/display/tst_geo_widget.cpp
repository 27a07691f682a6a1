#include "display/geo_map_display.h"
#include "display/geo_range_ring_map.h"
#include "display/geo_track_display.h"
#include "display/geo_widget.h"
#include "geo/mercator_projector.h"

#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <cmath>
#include <functional>

using Step = std::function<void(GeoWidget &)>;
Q_DECLARE_METATYPE(Step)

class tst_GeoWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void setViewKeepsTheLimits_data();
    void setViewKeepsTheLimits();
    void zoomStepsMayPassALimitOnce_data();
    void zoomStepsMayPassALimitOnce();
    void rotationIsNormalized_data();
    void rotationIsNormalized();
    void northIsWhereRotationSays();
    void movesTheView_data();
    void movesTheView();
    void northUpKeepsTheCentre();
    void reportsWhatIsVisible();
    void restoresAViewport();
    void wheelZoomsAboutThePointer_data();
    void wheelZoomsAboutThePointer();
    void rightDragPans();
    void rightDragMovesALabel();
    void labelDragEndsWithItsTrack();
    void leftClickSelects();
    void lostSelectionIsDropped();
    void doubleClickCentres();
    void placesRangeRings();
    void followsTheSelectedTrack();
    void reportsTheCursor();
    void keysRotate();
    void paintsMapBelowTracks();
    void statisticsCoverTenSeconds();

private:
    QPointF toScreen(double x, double y) const { return m_widget->screenTransform().map(QPointF(x, y)); }
    QPointF atCentre() const { return m_widget->screenTransform().inverted().map(QPointF(200, 150)); }
    void showTracks(const QList<QPointF> &places);
    void sendMouse(QEvent::Type type, const QPointF &place, Qt::MouseButton button, Qt::MouseButtons buttons);
    void sendWheel(const QPointF &place, const QPoint &delta, Qt::KeyboardModifiers modifiers);

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

} // namespace

// A view of 400 by 300 pixels at 100 m a pixel round (50000, 20000).
void tst_GeoWidget::init()
{
    m_map = std::make_unique<GeoMapDisplay>(&m_projector);
    m_tracks = std::make_unique<GeoTrackDisplay>();
    m_widget = std::make_unique<GeoWidget>();
    m_widget->resize(400, 300);
    m_widget->setMapDisplay(m_map.get());
    m_widget->setTrackDisplay(m_tracks.get());
    m_widget->setView(50000.0, 20000.0, 100.0);
}

void tst_GeoWidget::cleanup()
{
    m_widget.reset();
    m_tracks.reset();
    m_map.reset();
}

// Tracks 1, 2, ... at these plane points, painted once so that the labels have their places.
void tst_GeoWidget::showTracks(const QList<QPointF> &places)
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

void tst_GeoWidget::sendMouse(QEvent::Type type, const QPointF &place, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, place, place, button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(m_widget.get(), &event);
}

void tst_GeoWidget::sendWheel(const QPointF &place, const QPoint &delta, Qt::KeyboardModifiers modifiers)
{
    QWheelEvent event(place, place, QPoint(), delta, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_widget.get(), &event);
}

void tst_GeoWidget::setViewKeepsTheLimits_data()
{
    QTest::addColumn<double>("wanted");
    QTest::addColumn<double>("zoom");
    QTest::newRow("inside") << 250.0 << 250.0;
    QTest::newRow("too near") << 0.1 << 0.3;
    QTest::newRow("too far") << 20000.0 << 14000.0;
}

void tst_GeoWidget::setViewKeepsTheLimits()
{
    QFETCH(double, wanted);
    QFETCH(double, zoom);
    m_widget->rotate(33.0);
    QSignalSpy zooms(m_widget.get(), &GeoWidget::zoomChanged);
    QSignalSpy rotations(m_widget.get(), &GeoWidget::rotationChanged);
    m_widget->setView(1000.0, -2000.0, wanted);
    QCOMPARE(zooms.last().first().toDouble(), m_widget->currentZoom());
    QVERIFY(qFuzzyCompare(m_widget->currentZoom(), zoom));
    QCOMPARE(rotations.last().first().toDouble(), 0.0);
    QVERIFY(near(atCentre(), QPointF(1000.0, -2000.0)));
}

void tst_GeoWidget::zoomStepsMayPassALimitOnce_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<Step>("step");
    QTest::addColumn<double>("afterOne");
    QTest::addColumn<double>("afterTwo");
    const Step in = [](GeoWidget &widget) { widget.zoomIn(); };
    const Step out = [](GeoWidget &widget) { widget.zoomOut(); };
    QTest::newRow("in") << 100.0 << in << 80.0 << 64.0;
    QTest::newRow("out") << 100.0 << out << 125.0 << 156.25;
    QTest::newRow("in at the limit") << 0.3 << in << 0.24 << 0.24;
    QTest::newRow("out at the limit") << 14000.0 << out << 17500.0 << 17500.0;
}

void tst_GeoWidget::zoomStepsMayPassALimitOnce()
{
    QFETCH(double, start);
    QFETCH(Step, step);
    QFETCH(double, afterOne);
    QFETCH(double, afterTwo);
    // A whisker inside, so that rounding does not decide.
    m_widget->changeViewPort(QTransform::fromScale(1.0 / start, 1.0 / start));
    step(*m_widget);
    QVERIFY2(std::abs(m_widget->currentZoom() / afterOne - 1.0) < 1e-9,
        qPrintable(QString::number(m_widget->currentZoom())));
    QSignalSpy zooms(m_widget.get(), &GeoWidget::zoomChanged);
    step(*m_widget);
    QVERIFY(std::abs(m_widget->currentZoom() / afterTwo - 1.0) < 1e-9);
    QCOMPARE(zooms.size(), afterOne == afterTwo ? 0 : 1);
}

void tst_GeoWidget::rotationIsNormalized_data()
{
    QTest::addColumn<double>("turn");
    QTest::addColumn<double>("rotation");
    QTest::newRow("right") << 10.0 << 10.0;
    QTest::newRow("left") << -10.0 << -10.0;
    QTest::newRow("past the bottom") << 190.0 << -170.0;
    QTest::newRow("half a turn back") << -180.0 << 180.0;
    QTest::newRow("more than a turn") << 725.0 << 5.0;
}

void tst_GeoWidget::rotationIsNormalized()
{
    QFETCH(double, turn);
    QFETCH(double, rotation);
    QSignalSpy rotations(m_widget.get(), &GeoWidget::rotationChanged);
    m_widget->rotate(turn);
    QVERIFY(std::abs(m_widget->currentRotation() - rotation) < 1e-9);
    QCOMPARE(rotations.first().first().toDouble(), m_widget->currentRotation());
    QVERIFY(std::abs(GeoView(m_widget->screenTransform(), m_widget->size()).rotation() - rotation) < 1e-9);
}

void tst_GeoWidget::northIsWhereRotationSays()
{
    QVERIFY(near(toScreen(50000.0, 25000.0), QPointF(200, 100)));
    m_widget->rotate(90.0);
    QVERIFY(near(toScreen(50000.0, 25000.0), QPointF(250, 150)));
}

void tst_GeoWidget::movesTheView_data()
{
    QTest::addColumn<Step>("step");
    QTest::addColumn<QPointF>("centre");
    const auto row = [](const char *name, Step step, const QPointF &centre) { QTest::newRow(name) << step << centre; };
    row(
        "left", [](GeoWidget &w) { w.moveLeft(); }, QPointF(45000, 20000));
    row(
        "right", [](GeoWidget &w) { w.moveRight(); }, QPointF(55000, 20000));
    row(
        "up", [](GeoWidget &w) { w.moveUp(); }, QPointF(50000, 25000));
    row(
        "down", [](GeoWidget &w) { w.moveDown(); }, QPointF(50000, 15000));
    row(
        "to a pixel", [](GeoWidget &w) { w.moveTo(210, 120); }, QPointF(51000, 23000));
    row(
        "jump", [](GeoWidget &w) { w.jumpTo(-700.0, 900.0); }, QPointF(-700, 900));
}

void tst_GeoWidget::movesTheView()
{
    QFETCH(Step, step);
    QFETCH(QPointF, centre);
    QSignalSpy rects(m_widget.get(), &GeoWidget::viewRectChanged);
    step(*m_widget);
    QVERIFY(near(atCentre(), centre));
    QCOMPARE(rects.size(), 1);
    // A jump keeps zoom and rotation.
    m_widget->rotate(40.0);
    m_widget->jumpTo(123.0, -456.0);
    QVERIFY(near(atCentre(), QPointF(123.0, -456.0)));
    QVERIFY(qFuzzyCompare(m_widget->currentZoom(), 100.0));
    QVERIFY(std::abs(m_widget->currentRotation() - 40.0) < 1e-9);
}

void tst_GeoWidget::northUpKeepsTheCentre()
{
    m_widget->rotate(70.0);
    m_widget->move(33, -21);
    const QPointF before = atCentre();
    m_widget->rotateNorthUp();
    QVERIFY(near(atCentre(), before));
    QCOMPARE(m_widget->currentRotation(), 0.0);
    QVERIFY(qFuzzyCompare(m_widget->currentZoom(), 100.0));
}

void tst_GeoWidget::reportsWhatIsVisible()
{
    QSignalSpy rects(m_widget.get(), &GeoWidget::viewRectChanged);
    m_widget->move(0, 0);
    QCOMPARE(rects.first(), QList<QVariant>({QPoint(30000, 35000), QPoint(70000, 5000), 100.0}));
    m_widget->rotate(90.0);
    QCOMPARE(rects.last(), QList<QVariant>({QPoint(35000, 40000), QPoint(65000, 0), 100.0}));
}

void tst_GeoWidget::restoresAViewport()
{
    m_widget->rotate(15.0);
    QTransform saved;
    m_widget->saveViewport(saved);
    const QTransform before = m_widget->screenTransform();
    m_widget->setView(0.0, 0.0, 5.0);
    m_widget->changeViewPort(saved);
    QCOMPARE(m_widget->screenTransform(), before);
    m_widget->changeViewPort(QTransform(0, 0, 0, 0, 1, 1));
    QCOMPARE(m_widget->screenTransform(), before);
}

void tst_GeoWidget::wheelZoomsAboutThePointer_data()
{
    QTest::addColumn<QPoint>("delta");
    QTest::addColumn<bool>("alt");
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("zoom");
    QTest::newRow("in") << QPoint(0, 120) << false << 100.0 << 80.0;
    QTest::newRow("out") << QPoint(0, -120) << false << 100.0 << 125.0;
    QTest::newRow("fine in") << QPoint(0, 120) << true << 100.0 << 90.0;
    QTest::newRow("fine out, wheel turned by the window system") << QPoint(-120, 0) << true << 100.0 << 100.0 / 0.9;
    QTest::newRow("big turn is one step") << QPoint(0, 960) << false << 100.0 << 80.0;
    QTest::newRow("no turn") << QPoint(0, 0) << false << 100.0 << 100.0;
    QTest::newRow("sideways") << QPoint(120, 0) << false << 100.0 << 100.0;
    QTest::newRow("in beyond the limit") << QPoint(0, 120) << false << 0.25 << 0.25;
    QTest::newRow("out beyond the limit") << QPoint(0, -120) << false << 16000.0 << 16000.0;
    QTest::newRow("back from beyond the limit") << QPoint(0, 120) << false << 16000.0 << 12800.0;
}

void tst_GeoWidget::wheelZoomsAboutThePointer()
{
    QFETCH(QPoint, delta);
    QFETCH(bool, alt);
    QFETCH(double, start);
    QFETCH(double, zoom);
    m_widget->changeViewPort(QTransform::fromScale(1.0 / start, 1.0 / start));
    m_widget->rotate(25.0);
    const QPointF pointer(330, 40);
    const QPointF before = m_widget->screenTransform().inverted().map(pointer);
    sendWheel(pointer, delta, alt ? Qt::AltModifier : Qt::NoModifier);
    QVERIFY(std::abs(m_widget->currentZoom() / zoom - 1.0) < 1e-9);
    QVERIFY(near(m_widget->screenTransform().map(before), pointer));
}

void tst_GeoWidget::rightDragPans()
{
    QSignalSpy rects(m_widget.get(), &GeoWidget::viewRectChanged);
    QSignalSpy cursors(m_widget.get(), &GeoWidget::cursorMoved);
    sendMouse(QEvent::MouseButtonPress, QPointF(100, 100), Qt::RightButton, Qt::RightButton);
    QCOMPARE(m_widget->cursor().shape(), Qt::ClosedHandCursor);
    sendMouse(QEvent::MouseMove, QPointF(120, 105), Qt::NoButton, Qt::RightButton);
    sendMouse(QEvent::MouseMove, QPointF(130, 90), Qt::NoButton, Qt::RightButton);
    QVERIFY(near(atCentre(), QPointF(47000, 19000)));
    QCOMPARE(rects.size() + cursors.size(), 0); // tiles are not asked for while the view is still moving
    sendMouse(QEvent::MouseButtonRelease, QPointF(130, 90), Qt::RightButton, Qt::NoButton);
    QCOMPARE(rects.size(), 1);
    QCOMPARE(m_widget->cursor().shape(), Qt::ArrowCursor);
    sendMouse(QEvent::MouseMove, QPointF(10, 10), Qt::NoButton, Qt::NoButton);
    QVERIFY(near(atCentre(), QPointF(47000, 19000)));
}

void tst_GeoWidget::rightDragMovesALabel()
{
    showTracks({QPointF(50000, 20000), QPointF(40000, 10000)});
    m_tracks->setLabelOffset(30, 40);
    m_widget->grab();
    const QTransform before = m_widget->screenTransform();
    const QPointF grip(200 + 35, 150 - 35);
    sendMouse(QEvent::MouseButtonPress, grip, Qt::RightButton, Qt::RightButton);
    // Half pixels add up.
    for (double step : {0.5, 1.0, 1.5, 2.0, 10.0})
        sendMouse(QEvent::MouseMove, grip + QPointF(step, -2.0 * step), Qt::NoButton, Qt::RightButton);
    sendMouse(QEvent::MouseButtonRelease, grip + QPointF(10, -20), Qt::RightButton, Qt::NoButton);
    QCOMPARE(m_tracks->trackLabelOffset(1), QPoint(40, 60));
    QVERIFY(m_tracks->trackLabelOffsetDefault(2));
    QCOMPARE(m_widget->screenTransform(), before);
}

void tst_GeoWidget::labelDragEndsWithItsTrack()
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

void tst_GeoWidget::leftClickSelects()
{
    showTracks({QPointF(40000, 20000), QPointF(50000, 20000)});
    QSignalSpy selected(m_widget.get(), &GeoWidget::trackSelected);
    QTest::mouseClick(m_widget.get(), Qt::LeftButton, {}, QPoint(205, 145));
    QCOMPARE(m_tracks->selectedTrackId(), 2ull);
    QCOMPARE(selected.last().first().toULongLong(), 2ull);
    QTest::mouseClick(m_widget.get(), Qt::LeftButton, {}, QPoint(20, 20));
    QCOMPARE(m_tracks->selectedTrackId(), 2ull);
    QCOMPARE(selected.size(), 1);
}

void tst_GeoWidget::lostSelectionIsDropped()
{
    showTracks({QPointF(40000, 20000)});
    m_tracks->setSelected(1);
    QSignalSpy selected(m_widget.get(), &GeoWidget::trackSelected);
    m_widget->refresh();
    QCOMPARE(selected.size(), 0);
    m_tracks->setSnapshot({});
    m_widget->refresh();
    m_widget->refresh();
    QCOMPARE(m_tracks->selectedTrackId(), 0ull);
    QCOMPARE(selected, QList<QList<QVariant>>({{QVariant::fromValue(0ull)}}));
}

void tst_GeoWidget::doubleClickCentres()
{
    sendMouse(QEvent::MouseButtonDblClick, QPointF(300, 50), Qt::RightButton, Qt::RightButton);
    QVERIFY(near(atCentre(), QPointF(60000, 30000)));
}

void tst_GeoWidget::placesRangeRings()
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
    QCOMPARE(rings->number(), 3);
    QCOMPARE(rings->distance(), 12.5);
    QCOMPARE(m_widget->cursor().shape(), Qt::ArrowCursor);
    QTest::mouseClick(m_widget.get(), Qt::LeftButton, {}, QPoint(20, 20));
    QCOMPARE(placed.size(), 1);
}

void tst_GeoWidget::followsTheSelectedTrack()
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

void tst_GeoWidget::reportsTheCursor()
{
    QSignalSpy cursors(m_widget.get(), &GeoWidget::cursorMoved);
    sendMouse(QEvent::MouseMove, QPointF(210.4, 99.6), Qt::NoButton, Qt::NoButton);
    QCOMPARE(cursors.first().last().toPoint(), QPoint(210, 100));
    QVERIFY(near(cursors.first().first().toPointF(), QPointF(51000, 25000)));
}

void tst_GeoWidget::keysRotate()
{
    const QList<std::pair<Qt::Key, Qt::KeyboardModifiers>> keys{{Qt::Key_F12, Qt::NoModifier},
        {Qt::Key_F12, Qt::NoModifier}, {Qt::Key_F12, Qt::AltModifier}, {Qt::Key_F11, Qt::NoModifier},
        {Qt::Key_F11, Qt::AltModifier}, {Qt::Key_F11, Qt::AltModifier}, {Qt::Key_F10, Qt::NoModifier}};
    const QList<double> rotations{1.0, 2.0, 2.1, 1.1, 1.0, 0.9, 0.9};
    for (int i = 0; i < keys.size(); ++i) {
        QTest::keyClick(m_widget.get(), keys[i].first, keys[i].second);
        QVERIFY(std::abs(m_widget->currentRotation() - rotations[i]) < 1e-9);
    }
}

void tst_GeoWidget::paintsMapBelowTracks()
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

void tst_GeoWidget::statisticsCoverTenSeconds()
{
    PaintStatsCollector collector;
    QVERIFY(!collector.addFrame(1.0, 2.0, 4.0, 50000)); // starts the interval only, but counts
    QVERIFY(!collector.addFrame(3.0, 2.0, 5.0, 59999));
    const auto stats = collector.addFrame(2.0, 8.0, 12.0, 60000);
    QVERIFY(stats);
    QCOMPARE(stats->frameCount, 3ull);
    QCOMPARE(stats->mapAverage, 2.0);
    QCOMPARE(stats->mapMaximum, 3.0);
    QCOMPARE(stats->trackAverage, 4.0);
    QCOMPARE(stats->trackMaximum, 8.0);
    QCOMPARE(stats->paintAverage, 7.0);
    QCOMPARE(stats->paintMaximum, 12.0);
    QVERIFY(!collector.addFrame(1.0, 1.0, 2.0, 69999));
    const auto next = collector.addFrame(1.0, 1.0, 2.0, 70000);
    QVERIFY(next);
    QCOMPARE(next->frameCount, 2ull);
    QCOMPARE(next->mapMaximum, 1.0);
}

QTEST_MAIN(tst_GeoWidget)
#include "tst_geo_widget.moc"
