#include "display/geo_track_display.h"
#include "lists/alert_list_model.h"
#include "lists/list_view.h"
#include "lists/track_list_model.h"
#include "plan_view/geo_widget.h"
#include "test_program.h"
#include "ui/actions.h"
#include "ui/track_commands.h"
#include "widgets/scope_chip.h"
#include "window_fixture.h"

#include <QAction>
#include <QMenu>

// What can be done with a track from plan view, lists, menus and keys, in a window with two tracks in conflict.
class TestTrackCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }

    void hoverGoesBothWays();
    void doubleClickInAListShowsTheTrack();
    void followingSaysWhomAndLetsGo();
    void alertsAreAcknowledgedEverywhere();
    void menuLeavesTheDoubleClickToTheScope();

private:
    ListView *list(const char *name) const { return m_window->findChild<ListView *>(name); }
    QAction *action(ActionId id) const { return ::action(*m_window, id); }
    // The entry of the menu that has come up, triggered; null when there is none or it is switched off.
    QAction *choose(const QString &text) const;
    QPoint cell(ListView *view, int row) const { return view->visualRect(view->model()->index(row, 0)).center(); }

    WindowFixture m_fixture;
    std::unique_ptr<MainWindow> m_window;
    GeoTrackDisplay *m_tracks = nullptr;
};

void TestTrackCommands::init()
{
    m_window = m_fixture.makeWindow();
    m_tracks = m_window->geoWidget()->trackDisplay();
    QVERIFY(m_fixture.openInput(*m_window));
    // CAT048 tracks 0x65 and 0x66 at 10 NM, east and south; a conflict of the two.
    QUdpSocket server;
    for (const char *datagram :
        {"30000d91100102 0a00 4000 0065", "30000d91100102 0a00 8000 0066", "04000d 498140 07 004d 0065 0066"}) {
        server.writeDatagram(QByteArray::fromHex(datagram), QHostAddress::LocalHost, m_fixture.port);
    }
    QTRY_VERIFY(m_window->newestSnapshot() && m_window->newestSnapshot()->tracks.size() == 2
        && m_window->newestSnapshot()->alerts.size() == 1);
    QTRY_COMPARE(m_tracks->alertBoard().askingCount(), 1);
    m_window->updateTrackList();
    m_window->updateAlertList();
}

QAction *TestTrackCommands::choose(const QString &text) const
{
    const auto menus = m_window->geoWidget()->findChildren<QMenu *>();
    for (QMenu *menu : menus) {
        const auto actions = menu->isVisible() ? menu->actions() : QList<QAction *>();
        for (QAction *action : actions) {
            if (action->text() == text && action->isEnabled()) {
                action->trigger();
                menu->close();
                return action;
            }
        }
    }
    return nullptr;
}

void TestTrackCommands::hoverGoesBothWays()
{
    auto *view = list("trackList");
    const auto *model = m_window->findChild<TrackListModel *>();
    QTest::mouseMove(view->viewport(), cell(view, 0));
    QTRY_VERIFY(m_tracks->hoveredTrackId() != 0);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(view, &leave);
    QCOMPARE(m_tracks->hoveredTrackId(), 0ull);
    Q_EMIT m_window->geoWidget()->trackHovered(model->trackId(1));
    int lit = 0;
    for (int row = 0; row < 2; ++row) {
        lit += view->isLit(view->model()->index(row, 0));
    }
    QCOMPARE(lit, 1);
    auto *alerts = list("alertList");
    QVERIFY(alerts->isLit(alerts->model()->index(0, 0))); // the conflict is also that of the second track
    Q_EMIT m_window->geoWidget()->trackHovered(0);
    QVERIFY(!view->isLit(view->model()->index(0, 0)) && !view->isLit(view->model()->index(1, 0)));
    QVERIFY(!alerts->isLit(alerts->model()->index(0, 0)));
}

void TestTrackCommands::doubleClickInAListShowsTheTrack()
{
    auto *view = list("trackList");
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, cell(view, 1));
    const auto selected = m_tracks->selectedTrackId();
    QVERIFY(selected != 0);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, cell(view, 1));
    const GeoWidget *plan = m_window->geoWidget();
    const QPointF place = plan->screenTransform().map(m_tracks->findTrack(selected)->carCoordinate);
    QVERIFY(QLineF(place, plan->rect().center()).length() < 2.0);
}

void TestTrackCommands::followingSaysWhomAndLetsGo()
{
    const auto *chip = m_window->findChild<ScopeChip *>();
    GeoWidget *plan = m_window->geoWidget();
    QVERIFY(!chip->isVisible());
    const auto id = m_window->newestSnapshot()->tracks[0].incarnationId;
    Q_EMIT plan->trackMenuRequested(id, plan->mapToGlobal(QPoint(5, 5)));
    QVERIFY(choose("Follow"));
    QCOMPARE(m_tracks->selectedTrackId(), id);
    QVERIFY(action(ActionId::FollowSelectedTrack)->isChecked());
    QVERIFY(chip->isVisible());
    QCOMPARE(chip->text(), "Following " + trackName(*m_tracks->findTrack(id)));
    QVERIFY(plan->rect().contains(chip->geometry()));
    m_tracks->setTrackLabelOffset(id, 70, 80);
    Q_EMIT plan->trackMenuRequested(id, plan->mapToGlobal(QPoint(5, 5)));
    QVERIFY(choose("Reset Label"));
    QVERIFY(m_tracks->trackLabelOffsetDefault(id));
    action(ActionId::FollowSelectedTrack)->setChecked(false);
    QVERIFY(!plan->followsSelectedTrack() && !chip->isVisible());
}

void TestTrackCommands::alertsAreAcknowledgedEverywhere()
{
    const auto &board = m_tracks->alertBoard();
    const auto *model = m_window->findChild<AlertListModel *>();
    const auto state = [model] { return model->index(0, AlertListModel::State).data().toString(); };
    // Asks again, as after a new message.
    const auto askAgain = [this] {
        m_tracks->setSnapshot({});
        m_tracks->setSnapshot(m_window->newestSnapshot());
        m_window->updateAlertList();
    };
    QVERIFY(!action(ActionId::AcknowledgeAlert)->isEnabled()); // nothing selected
    QCOMPARE(state(), "Active");
    auto *alerts = list("alertList");
    alerts->selectRow(0);
    QTest::keyClick(alerts, Qt::Key_Space);
    QCOMPARE(board.askingCount(), 0);
    QCOMPARE(state(), "Acknowledged"); // at once

    askAgain();
    Q_EMIT m_window->geoWidget()->trackSelected(m_tracks->selectedTrackId());
    action(ActionId::AcknowledgeAlert)->trigger();
    QCOMPARE(board.askingCount(), 0);
    QVERIFY(!action(ActionId::AcknowledgeAlert)->isEnabled());

    askAgain();
    const auto other = board.entries().constFirst().track2;
    Q_EMIT m_window->geoWidget()->trackMenuRequested(other, QPoint(5, 5));
    QVERIFY(choose("Acknowledge"));
    QCOMPARE(board.askingCount(), 0);
    Q_EMIT m_window->geoWidget()->trackMenuRequested(other, QPoint(5, 5));
    QVERIFY(!choose("Acknowledge")); // nothing left

    askAgain();
    Q_EMIT m_window->geoWidget()->trackSelected(0);
    action(ActionId::AcknowledgeAllAlerts)->trigger();
    QCOMPARE(board.askingCount(), 0);
}

void TestTrackCommands::menuLeavesTheDoubleClickToTheScope()
{
    GeoWidget *plan = m_window->geoWidget();
    const QPointF pixel = plan->screenTransform().map(m_window->newestSnapshot()->tracks[0].carCoordinate);
    QTest::mouseClick(plan, Qt::RightButton, {}, pixel.toPoint());
    QPointer<QMenu> menu = plan->findChild<QMenu *>();
    QVERIFY(menu && menu->isVisible());
    QTest::mousePress(menu, Qt::RightButton, {}, menu->mapFromGlobal(plan->mapToGlobal(pixel.toPoint())));
    QTRY_VERIFY(!menu);
    const QPointF place = plan->screenTransform().map(m_window->newestSnapshot()->tracks[0].carCoordinate);
    QVERIFY(QLineF(place, plan->rect().center()).length() < 3.0);
}

VYX_TEST(TestTrackCommands)
#include "tst_track_commands.moc"
