#include "app/ui_state.h"
#include "display/geo_map_display.h"
#include "display/geo_track_display.h"
#include "map_painting/geo_static_map.h"
#include "orientation/geo_range_ring_map.h"
#include "plan_view/geo_widget.h"
#include "second_view/plan_view_window.h"
#include "test_program.h"
#include "ui/actions.h"
#include "widgets/scope_notice.h"
#include "window_fixture.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

// Further plan views beside the main window, with two tracks in conflict.
class TestSecondViews : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }

    void showsThePictureInItsOwnWay();
    void sharesSelectionAndAcknowledgement();
    void comesBackAtTheNextStart();
    void closesAloneAndWithTheMainWindow();

private:
    static QList<PlanViewWindow *> views()
    {
        QList<PlanViewWindow *> found;
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (auto *view = qobject_cast<PlanViewWindow *>(widget)) {
                found.append(view);
            }
        }
        return found;
    }
    PlanViewWindow *openView() const
    {
        const auto before = views();
        action(*m_window, ActionId::NewPlanView)->trigger();
        for (PlanViewWindow *view : views()) {
            if (!before.contains(view)) {
                view->activateWindow();
                return QTest::qWaitForWindowActive(view) ? view : nullptr;
            }
        }
        return nullptr;
    }
    // With the mouse, by its text.
    static void press(PlanViewWindow *view, const QString &text)
    {
        auto *bar = view->findChild<QToolBar *>();
        for (QAction *action : bar->actions()) {
            if (action->text() == text) {
                auto *button = qobject_cast<QToolButton *>(bar->widgetForAction(action));
                QTest::mouseClick(button, Qt::LeftButton);
            }
        }
    }

    std::unique_ptr<WindowFixture> m_fixture;
    std::unique_ptr<MainWindow> m_window;
    GeoTrackDisplay *m_tracks = nullptr;
};

void TestSecondViews::init()
{
    m_fixture = std::make_unique<WindowFixture>();
    m_window = m_fixture->makeWindow();
    m_tracks = m_window->geoWidget()->trackDisplay();
    QVERIFY(m_fixture->openInput(*m_window));
    QUdpSocket server;
    for (const char *datagram :
        {"30000d91100102 0a00 4000 0065", "30000d91100102 0a00 8000 0066", "04000d 498140 07 004d 0065 0066"}) {
        server.writeDatagram(QByteArray::fromHex(datagram), QHostAddress::LocalHost, m_fixture->port);
    }
    QTRY_VERIFY(m_window->newestSnapshot() && m_window->newestSnapshot()->tracks.size() == 2
        && m_window->newestSnapshot()->alerts.size() == 1);
    QTRY_COMPARE(m_tracks->alertBoard().askingCount(), 1);
}

void TestSecondViews::showsThePictureInItsOwnWay()
{
    PlanViewWindow *view = openView();
    QVERIFY(view && view->isVisible());
    GeoWidget *plan = view->plan()->widget();
    const double mainZoom = m_window->geoWidget()->currentZoom();
    QVERIFY(qFuzzyCompare(plan->currentZoom(), mainZoom)); // begins where the main view is
    QCOMPARE(view->plan()->tracks()->findTrack(m_window->newestSnapshot()->tracks[0].incarnationId) != nullptr, true);
    QTest::keyClick(plan, Qt::Key_Equal);
    QTest::keyClick(plan, Qt::Key_BracketRight);
    QVERIFY(plan->currentZoom() < mainZoom && qAbs(plan->currentRotation() - 10.0) < 1e-6);
    QVERIFY(qFuzzyCompare(m_window->geoWidget()->currentZoom(), mainZoom));
    QCOMPARE(m_window->geoWidget()->currentRotation(), 0.0);

    const bool rings = m_window->config().mapRangeRingVisible;
    press(view, "Rings");
    QCOMPARE(view->plan()->map()->rangeRingMap()->visible(), !rings);
    QCOMPARE(m_window->geoWidget()->mapDisplay()->rangeRingMap()->visible(), rings);
    press(view, "Labels");
    QVERIFY(!view->plan()->tracks()->labelVisible() && m_tracks->labelVisible());
    // The look is the main window's, the layers stay the view's own.
    m_tracks->setSymbolSize(37);
    QTRY_COMPARE(view->plan()->tracks()->symbolSize(), 37);
    action(*m_window, ActionId::ToggleScaleBar)->trigger();
    QCOMPARE(view->plan()->map()->rangeRingMap()->visible(), !rings);
    QVERIFY(!view->plan()->tracks()->labelVisible());
    m_window->geoWidget()->mapDisplay()->rangeRingMap()->setRings(QPointF(1000, 2000), 4, 7.0);
    QCOMPARE(view->plan()->map()->rangeRingMap()->center(), QPointF(1000, 2000));
    QCOMPARE(view->plan()->map()->rangeRingMap()->number(), 4);

    // New pictures come, and it is said here too when none do any more.
    QUdpSocket radar;
    radar.writeDatagram(QByteArray::fromHex("30000d91100102 0a00 c000 0067"), QHostAddress::LocalHost, m_fixture->port);
    QTRY_COMPARE(m_window->newestSnapshot()->tracks.size(), 3);
    QTRY_VERIFY(view->plan()->tracks()->hasTrack(m_window->newestSnapshot()->tracks[2].incarnationId));
    QVERIFY(!view->notice()->isVisible());
    m_window->closeInput();
    QTRY_VERIFY(view->notice()->isVisible());
}

void TestSecondViews::sharesSelectionAndAcknowledgement()
{
    PlanViewWindow *view = openView();
    GeoTrackDisplay *tracks = view->plan()->tracks();
    const auto first = m_window->newestSnapshot()->tracks[0].incarnationId;
    const auto second = m_window->newestSnapshot()->tracks[1].incarnationId;
    m_tracks->setSelected(first);
    QCOMPARE(tracks->selectedTrackId(), first);
    GeoWidget *plan = view->plan()->widget();
    plan->showTrack(second);
    QTest::mouseClick(plan, Qt::LeftButton, {}, plan->rect().center());
    QCOMPARE(tracks->selectedTrackId(), second);
    QCOMPARE(m_tracks->selectedTrackId(), second);

    QCOMPARE(tracks->alertBoard().askingCount(), 1);
    QTest::mouseClick(plan, Qt::RightButton, {}, plan->rect().center());
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    for (QAction *action : menu->actions()) {
        if (action->text() == "Acknowledge") {
            action->trigger();
        }
    }
    menu->close();
    QCOMPARE(m_tracks->alertBoard().askingCount(), 0);
    QCOMPARE(tracks->alertBoard().askingCount(), 0);
    QCOMPARE(openView()->plan()->tracks()->alertBoard().askingCount(), 0);
}

void TestSecondViews::comesBackAtTheNextStart()
{
    PlanViewWindow *view = openView();
    view->resize(555, 444);
    view->plan()->widget()->setView(12000.0, 34000.0, 88.0);
    view->plan()->widget()->rotate(30.0);
    press(view, "Labels");
    press(view, "Maps");
    const bool maps = view->plan()->map()->staticMap()->visible();
    QVERIFY(m_fixture->close(*m_window));
    m_window = m_fixture->makeWindow();
    QCOMPARE(views().size(), 1);
    view = views().constFirst();
    QCOMPARE(view->size(), QSize(555, 444));
    const GeoWidget *plan = view->plan()->widget();
    QVERIFY(qAbs(plan->currentZoom() - 88.0) < 0.01 && qAbs(plan->currentRotation() - 30.0) < 0.01);
    const QPointF middle = plan->screenTransform().inverted().map(QPointF(plan->width() / 2, plan->height() / 2));
    QVERIFY(QLineF(middle, QPointF(12000.0, 34000.0)).length() < 100.0);
    QVERIFY(!view->plan()->tracks()->labelVisible());
    QCOMPARE(view->plan()->map()->staticMap()->visible(), maps);

    // What makes no sense there leaves a view of what the main one shows.
    QVERIFY(m_fixture->close(*m_window));
    UiState::saveValue("planViews", "views", "[{\"layers\":7,\"metresPerPixel\":-1}]");
    m_window = m_fixture->makeWindow();
    QCOMPARE(views().size(), 1);
    QVERIFY(qFuzzyCompare(views().constFirst()->plan()->widget()->currentZoom(), m_window->geoWidget()->currentZoom()));
}

void TestSecondViews::closesAloneAndWithTheMainWindow()
{
    PlanViewWindow *first = openView();
    PlanViewWindow *second = openView();
    QVERIFY(first->windowTitle() != second->windowTitle());
    first->close();
    QTRY_COMPARE(views().size(), 1);
    QVERIFY(m_window->isVisible());
    QVERIFY(m_fixture->close(*m_window));
    QVERIFY(!second->isVisible());
    m_window = m_fixture->makeWindow();
    QCOMPARE(views().size(), 1); // the one that was closed does not come back
}

VYX_TEST(TestSecondViews)
#include "tst_second_views.moc"
