#include "test_program.h"
#include "tracking/alert_manager.h"
#include "tracking/track.h"

#include <QTest>

namespace {

const QDateTime Start = QDateTime::fromSecsSinceEpoch(1'800'000'000, Qt::UTC);

QDateTime second(int seconds)
{
    return Start.addSecs(seconds);
}

// An alert in the given state: created at second 0, made active at 1, ended at 2, terminated at 3.
QSharedPointer<Alert> alertIn(Alert::State state)
{
    const auto alert = QSharedPointer<Alert>::create(1, second(0));
    for (int step = Alert::Active; step <= state; ++step) {
        alert->setState(static_cast<Alert::State>(step), second(step));
    }
    return alert;
}

} // namespace

class TestAlertManager : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void transition_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("requested");
        QTest::addColumn<int>("result");
        // Seconds of the time stamps after the request at second 9; -1 for invalid.
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("end");
        QTest::addColumn<int>("update");
        const auto row = [](const char *name, int from, int requested, int result, int start, int end, int update) {
            QTest::newRow(name) << from << requested << result << start << end << update;
        };
        row("initial becomes active", Alert::Initial, Alert::Active, Alert::Active, 9, -1, 9);
        row("active is refreshed", Alert::Active, Alert::Active, Alert::Active, 1, -1, 9);
        row("ended becomes active again", Alert::End, Alert::Active, Alert::Active, 9, 2, 9);
        row("active ends", Alert::Active, Alert::End, Alert::End, 1, 9, 9);
        row("ended ends only once", Alert::End, Alert::End, Alert::End, 1, 2, 2);
        row("terminated does not end", Alert::Terminated, Alert::End, Alert::Terminated, 1, 2, 2);
        row("ended terminates without a new end", Alert::End, Alert::Terminated, Alert::Terminated, 1, 2, 2);
        row("active terminates and ends", Alert::Active, Alert::Terminated, Alert::Terminated, 1, 9, 9);
        row("no such state", Alert::Active, 9, Alert::Active, 1, -1, 1);
    }

    void transition()
    {
        QFETCH(int, from);
        QFETCH(int, requested);
        const auto alert = alertIn(static_cast<Alert::State>(from));
        alert->setState(static_cast<Alert::State>(requested), second(9));
        const auto seconds = [](const QDateTime &time) { return time.isValid() ? int(Start.secsTo(time)) : -1; };
        QTEST(int(alert->state()), "result");
        QTEST(seconds(alert->startTime()), "start");
        QTEST(seconds(alert->endTime()), "end");
        QTEST(seconds(alert->lastUpdate()), "update");
    }

    void life()
    {
        AlertManager manager;
        manager.setAlertLifeSpan(8000, 3000);
        const auto waiting = manager.createAlert(6);
        const auto alert = manager.createAlert(5);
        QCOMPARE(manager.createAlert(5), alert);
        const auto clock = std::make_shared<Clock>();
        manager.setClock(clock);
        const auto tick = [&](int now) {
            clock->startRecorded(second(now));
            manager.checkLife();
        };
        for (int now = 0; now <= 37; ++now) {
            if (now % 5 == 0 && now <= 30) {
                alert->setState(Alert::Active, second(now));
            }
            tick(now);
            QVERIFY(alert->active());
        }
        tick(50); // long past both spans: ends first, and its end counts from here
        QVERIFY(alert->end());
        tick(52);
        QVERIFY(manager.hasAlert(5));
        tick(53);
        QVERIFY(alert->terminated());
        QVERIFY(!manager.findAlertById(5));
        QVERIFY(waiting->initial()); // never ages
    }

    // Two alerts are last refreshed at second 10; what else the safety nets send decides how it looks when they end.
    void endsUnheard()
    {
        for (const bool netsGoOn : {false, true}) {
            AlertManager manager;
            const auto clock = std::make_shared<Clock>();
            manager.setClock(clock);
            const auto left = manager.createAlert(1);
            const auto ended = manager.createAlert(2);
            for (int now = 0; now <= 20; ++now) {
                clock->startRecorded(second(now));
                if (now == 10 || (netsGoOn && now > 10)) {
                    manager.noteHeard();
                }
                if (now == 10) {
                    left->setState(Alert::Active, second(now));
                    ended->setState(Alert::Active, second(now));
                }
                if (now == 12) {
                    ended->setState(Alert::End, second(now));
                }
                manager.checkLife();
            }
            QVERIFY(left->end());
            QCOMPARE(left->endedUnheard(), !netsGoOn);
            QVERIFY(!ended->endedUnheard());
            QCOMPARE(manager.snapshotAlerts().first().endedUnheard, !netsGoOn);
            left->setState(Alert::Active, second(21));
            QVERIFY(!left->endedUnheard());
        }
    }

    void removalUnlinksTracks()
    {
        AlertManager manager;
        const auto track1 = QSharedPointer<Track>::create(1);
        const auto track2 = QSharedPointer<Track>::create(2);
        const auto alert = manager.createAlert(5);
        alert->setTrack1(track1);
        alert->setTrack2(track2);
        const auto other = manager.createAlert(6);
        for (const auto &track : {track1, track2}) {
            track->addAlert(alert);
            track->addAlert(other);
        }
        manager.removeAlert(alert);
        QCOMPARE(track1->alerts(), QSet{other});
        QCOMPARE(track2->alerts(), QSet{other});
        QCOMPARE(manager.allAlerts(), QList{other});
    }

    void alertsDoNotKeepTracks()
    {
        auto track = QSharedPointer<Track>::create(8);
        track->setIncarnationId(99);
        AlertManager manager;
        manager.createAlert(5)->setTrack1(track);
        const auto side = [&manager] { return manager.snapshotAlerts().first().track1; };
        QCOMPARE(side().incarnationId, 99u);
        track.reset();
        QCOMPARE(side().incarnationId, 0u);
        QCOMPARE(side().text, QStringLiteral("[#0000]"));
    }
};

VYX_TEST(TestAlertManager)
#include "tst_alert_manager.moc"
