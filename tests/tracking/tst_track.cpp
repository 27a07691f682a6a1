#include "processors/alert.h"
#include "tracking/track.h"

#include <QTest>

using Alerts = QList<std::pair<Alert::Type, Alert::State>>;

class TestTrack : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void callsign_data();
    void callsign();
    void modeAText_data();
    void modeAText();
    void alertsText_data();
    void alertsText();
    void historyIsCappedNewestFirst();
    void ageCountsFromLastValidPosition();
};

void TestTrack::callsign_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("valid");
    QTest::newRow("trimmed and upper case") << "  ab123 "
                                            << "AB123" << true;
    QTest::newRow("blanks") << "   "
                            << "-------" << false;
    QTest::newRow("empty") << ""
                           << "-------" << false;
}

void TestTrack::callsign()
{
    QFETCH(QString, given);
    Track track(1);
    track.setModeSCallsign(QStringLiteral("OLD1"));
    track.setModeSCallsign(given);
    QTEST(track.modeSCallsign(), "shown");
    QTEST(track.modeSCallsignValid(), "valid");
}

void TestTrack::modeAText_data()
{
    QTest::addColumn<unsigned int>("code");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<bool>("garbled");
    QTest::addColumn<bool>("smoothed");
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << 01200u << true << false << false << "1200";
    QTest::newRow("garbled") << 07500u << true << true << false << "7500G";
    QTest::newRow("smoothed") << 01200u << true << false << true << "1200S";
    QTest::newRow("both, leading zero") << 0312u << true << true << true << "0312GS";
    QTest::newRow("zero is a code") << 0u << true << false << false << "0000";
    QTest::newRow("not valid") << 07700u << false << true << true << "----";
}

void TestTrack::modeAText()
{
    QFETCH(unsigned int, code);
    QFETCH(bool, valid);
    QFETCH(bool, garbled);
    QFETCH(bool, smoothed);
    Track track(1); // one that showed something else in every respect
    track.setModeACode(04321);
    track.setModeACodeValid(!valid);
    track.setModeACodeGarbled(!garbled);
    track.setModeACodeSmoothed(!smoothed);
    track.setModeACodeValid(valid);
    track.setModeACode(code);
    track.setModeACodeSmoothed(smoothed);
    track.setModeACodeGarbled(garbled);
    QTEST(track.modeAString(), "text");
}

void TestTrack::alertsText_data()
{
    QTest::addColumn<Alerts>("alerts");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << Alerts{} << "";
    QTest::newRow("fixed order, each once") << Alerts{{Alert::STCA, Alert::Active}, {Alert::APW, Alert::Active},
        {Alert::STCA, Alert::Active}, {Alert::MSAW, Alert::Active}}
                                            << "MSAW APW STCA";
    QTest::newRow("only active ones") << Alerts{{Alert::MSAW, Alert::Active}, {Alert::APW, Alert::End},
        {Alert::STCA, Alert::Initial}} << "MSAW";
}

void TestTrack::alertsText()
{
    QFETCH(Alerts, alerts);
    Track track(1);
    for (const auto &[type, state] : alerts) {
        const auto alert = QSharedPointer<Alert>::create(5);
        alert->setType(type);
        alert->setState(state);
        track.addAlert(alert);
    }
    QTEST(track.alertsString(), "text");
}

void TestTrack::historyIsCappedNewestFirst()
{
    Track track(1);
    constexpr int maximum = Track::MaximumHistory;
    for (int i = 0; i <= maximum; ++i) {
        track.setGeoCoordinate({10.0, i * 0.01});
        track.setLevel(i);
        track.recordHistory();
    }
    QCOMPARE(track.history().size(), Track::MaximumHistory);
    QCOMPARE(track.history().front().level(), maximum);
    QCOMPARE(track.history().back().level(), 1);
    QCOMPARE(track.history().back().geoCoordinate().longitude(), 0.01);
    QVERIFY(!track.history().back().carCoordinateValid());
}

void TestTrack::ageCountsFromLastValidPosition()
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

QTEST_GUILESS_MAIN(TestTrack)
#include "tst_track.moc"
