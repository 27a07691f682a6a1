#include "test_program.h"
#include "tracking/alert.h"
#include "tracking/track.h"

#include <QTest>

class TestTrack : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void modeAText()
    {
        Track track(1);
        const auto text = [&track](unsigned int code, bool valid, bool garbled, bool smoothed) {
            track.setModeACodeValid(valid);
            track.setModeACode(code);
            track.setModeACodeSmoothed(smoothed);
            track.setModeACodeGarbled(garbled);
            return track.modeAString();
        };
        QCOMPARE(text(0312, true, true, true), QStringLiteral("0312GS"));
        QCOMPARE(text(01200, true, false, true), QStringLiteral("1200S"));
        QCOMPARE(text(0, true, false, false), QStringLiteral("0000")); // is a code
        QCOMPARE(text(07700, false, true, true), QStringLiteral("----"));
    }

    void alertsText()
    {
        Track track(1);
        const auto add = [&track](Alert::Type type, Alert::State state) {
            const auto alert = QSharedPointer<Alert>::create(5);
            alert->setType(type);
            alert->setState(state);
            track.addAlert(alert);
            return track.alertsString();
        };
        QCOMPARE(add(Alert::STCA, Alert::Initial), QString()); // only active ones
        QCOMPARE(add(Alert::APW, Alert::End), QString());
        QCOMPARE(add(Alert::APW, Alert::Active), QStringLiteral("APW"));
        QCOMPARE(add(Alert::STCA, Alert::Active), QStringLiteral("APW STCA"));
        QCOMPARE(add(Alert::MSAW, Alert::Active), QStringLiteral("MSAW APW STCA")); // in a fixed order
        QCOMPARE(add(Alert::STCA, Alert::Active), QStringLiteral("MSAW APW STCA")); // each once
    }

    void historyIsCappedNewestFirst()
    {
        Track track(1);
        constexpr int Maximum = Track::MaximumHistory;
        for (int i = 0; i <= Maximum; ++i) {
            track.setGeoCoordinate({10.0, i * 0.01});
            track.setLevel(i);
            track.recordHistory();
        }
        QCOMPARE(track.history().size(), Track::MaximumHistory);
        QCOMPARE(track.history().front().level(), Maximum);
        QCOMPARE(track.history().back().level(), 1);
        QCOMPARE(track.history().back().geoCoordinate().longitude(), 0.01);
        QVERIFY(!track.history().back().carCoordinateValid());
    }

    void ageCountsFromLastValidPosition()
    {
        const auto start = QDateTime::fromSecsSinceEpoch(1'800'000'000, Qt::UTC);
        Track track(1, start);
        track.recordHistory(start.addSecs(1));
        QCOMPARE(track.lastUpdate(), start);
        track.setGeoCoordinate({50.0, 8.0});
        track.recordHistory(start.addSecs(2));
        track.setGeoCoordinate(GeoCoordinate());
        track.recordHistory(start.addSecs(3));
        QCOMPARE(track.lastUpdate(), start.addSecs(2));
        QCOMPARE(track.history().size(), 1u);
    }
};

VYX_TEST(TestTrack)
#include "tst_track.moc"
