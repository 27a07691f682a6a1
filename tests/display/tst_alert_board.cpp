#include "display/alert_board.h"
#include "test_program.h"

#include <QTest>

namespace {

TrackSnapshot aircraft(quint64 id, double longitude = 8.0)
{
    TrackSnapshot track;
    track.incarnationId = id;
    track.trackNumber = static_cast<unsigned int>(id);
    track.geoCoordinate = GeoCoordinate(0.0, longitude);
    track.geoCoordinateValid = true;
    return track;
}

AlertSnapshot alert(unsigned int id, Alert::Type type, quint64 track1, quint64 track2 = 0)
{
    AlertSnapshot alert;
    alert.id = id;
    alert.type = type;
    alert.state = Alert::Active;
    alert.track1.incarnationId = track1;
    alert.track2.incarnationId = track2;
    alert.track2Applicable = type == Alert::STCA;
    return alert;
}

// A conflict of tracks 1 and 2, and a board that knows it.
struct Situation {
    Situation()
    {
        picture.tracks = {aircraft(1), aircraft(2, 8.1), aircraft(3)};
        picture.alerts = {alert(7, Alert::STCA, 1, 2)};
        board.take(&picture);
    }

    // Whether anything asks after the change.
    template <typename Change>
    bool asksAfter(Change change)
    {
        change(picture);
        board.take(&picture);
        return board.askingCount() > 0;
    }

    DisplaySnapshot picture;
    AlertBoard board;
};

using Change = void (*)(DisplaySnapshot &);

} // namespace

Q_DECLARE_METATYPE(Change)

class TestAlertBoard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void asksUntilAcknowledged()
    {
        using Attention = AlertBoard::Attention;
        Situation now;
        QCOMPARE(now.board.attention(1), Attention::Asked);
        QCOMPARE(now.board.attention(2), Attention::Asked);
        QCOMPARE(now.board.attention(3), Attention::None);
        QVERIFY(!now.board.acknowledgeTrack(3));
        QVERIFY(!now.board.acknowledgeTrack(0)); // not the tracks that the alert does not know
        QVERIFY(now.board.acknowledgeTrack(2));
        QVERIFY(!now.board.acknowledgeAll()); // nothing left
        QCOMPARE(now.board.attention(1), Attention::Acknowledged);
        QVERIFY(!now.asksAfter([](auto &) {}));
        // One that is new asks beside one that is acknowledged.
        QVERIFY(now.asksAfter([](auto &picture) { picture.alerts.append(alert(8, Alert::MSAW, 1)); }));
        QCOMPARE(now.board.attention(1), Attention::Asked);
        QCOMPARE(now.board.attention(2), Attention::Acknowledged);
        QVERIFY(now.board.acknowledge(8));
        QCOMPARE(now.board.askingCount(), 0);
    }

    void asksAgainWhenItWorsens_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<bool>("again");
        const auto row = [](const char *name, bool again, Change change) { QTest::newRow(name) << change << again; };
        row("as before", false, [](auto &) {});
        row("further apart", false, [](auto &picture) { picture.tracks[1] = aircraft(2, 8.2); });
        row("a little closer", false, [](auto &picture) { picture.tracks[1] = aircraft(2, 8.076); });
        row("closer", true, [](auto &picture) { picture.tracks[1] = aircraft(2, 8.074); });
        row("a track no longer seen", false, [](auto &picture) { picture.tracks.removeAt(1); });
        row("a track no longer matched", false, [](auto &picture) { picture.alerts[0].track2.incarnationId = 0; });
        row("another track", true, [](auto &picture) { picture.alerts[0].track2.incarnationId = 3; });
        row("another type", true, [](auto &picture) { picture.alerts[0] = alert(7, Alert::APW, 1); });
        row("ended", false, [](auto &picture) { picture.alerts[0].state = Alert::End; });
    }

    void asksAgainWhenItWorsens()
    {
        QFETCH(Change, change);
        QFETCH(bool, again);
        Situation now;
        now.board.acknowledgeAll();
        QCOMPARE(now.asksAfter(change), again);
    }

    void asksAgainWhenItComesBack()
    {
        Situation now;
        now.board.acknowledgeAll();
        const auto setState = [](Alert::State state) {
            return [state](auto &picture) { picture.alerts[0].state = state; };
        };
        QVERIFY(!now.asksAfter(setState(Alert::End)));
        QVERIFY(now.asksAfter(setState(Alert::Active)));
        now.board.acknowledgeAll();
        QVERIFY(!now.asksAfter([](auto &picture) { picture.alerts.clear(); }));
        QVERIFY(now.asksAfter([](auto &picture) { picture.alerts = {alert(7, Alert::STCA, 1, 2)}; }));
    }

    // Tracks that are close already: the noise of their positions is a large part of their distance.
    void jitterWorsensNothing()
    {
        Situation now;
        now.picture.tracks[1] = aircraft(2, 8.0018); // 200 m
        now.board.take(&now.picture);
        now.board.acknowledgeAll();
        QVERIFY(!now.asksAfter([](auto &picture) { picture.tracks[1] = aircraft(2, 8.0004); }));
    }

    // Each acknowledgement counts from the distance at its time.
    void countsFromTheLastAcknowledgement()
    {
        Situation now;
        const auto moveTo = [](double longitude) {
            return [longitude](auto &picture) { picture.tracks[1] = aircraft(2, longitude); };
        };
        now.board.acknowledgeAll();
        QVERIFY(now.asksAfter(moveTo(8.07)));
        now.board.acknowledgeAll();
        QVERIFY(!now.asksAfter(moveTo(8.06)));
        QVERIFY(now.asksAfter(moveTo(8.05)));
    }

    void emergencies()
    {
        Situation now;
        now.picture.alerts.clear();
        now.picture.time = QDateTime::fromSecsSinceEpoch(1'800'000'000, Qt::UTC);
        const auto set = [](Track::Emergency emergency, bool spi) {
            return [=](auto &picture) {
                picture.tracks[2].emergency = emergency;
                picture.tracks[2].spi = spi;
                picture.time = picture.time.addSecs(1);
            };
        };
        QVERIFY(!now.asksAfter(set(Track::NoEmergency, true))); // the pulse was asked for
        QCOMPARE(now.board.entries().size(), 1);
        QVERIFY(now.asksAfter(set(Track::GeneralEmergency, true)));
        const QDateTime since = now.picture.time;
        QVERIFY(now.asksAfter(set(Track::GeneralEmergency, false)));
        QCOMPARE(now.board.entries().constFirst().since, since);
        QVERIFY(now.board.acknowledgeTrack(3));
        QVERIFY(!now.asksAfter(set(Track::GeneralEmergency, false)));
        QVERIFY(now.asksAfter(set(Track::UnlawfulInterference, false)));
        now.board.take(nullptr);
        QVERIFY(now.board.entries().isEmpty() && now.board.attention(3) == AlertBoard::Attention::None);
    }
};

VYX_TEST(TestAlertBoard)
#include "tst_alert_board.moc"
