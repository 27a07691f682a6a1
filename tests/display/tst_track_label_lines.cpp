#include "display/track_label_lines.h"
#include "test_program.h"
#include "tracking/track_snapshot.h"

#include <QTest>

#include <functional>

using Change = std::function<void(TrackSnapshot &)>;
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(TrackLabelFields)

class TestTrackLabelLines : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void line_data();
    void line();
    void coastingTracksCountTheirSilence();
    void compact_data();
    void compact();
};

namespace {

constexpr TrackLabelFields Nothing{false, false, false, false, false, false, false, false, false, false};

TrackLabelFields only(std::initializer_list<bool TrackLabelFields::*> shown)
{
    TrackLabelFields fields = Nothing;
    for (bool TrackLabelFields::*field : shown) {
        fields.*field = true;
    }
    return fields;
}

TrackSnapshot knownTrack()
{
    TrackSnapshot track;
    track.trackNumber = 42;
    track.icaoAddrString = QStringLiteral("78009A");
    track.callsign = QStringLiteral("ABC123");
    track.modeACode = 07000;
    track.modeAString = QStringLiteral("7000");
    track.level = 35000;
    track.selectedAltitude = 18000;
    track.groundSpeed = 452.4;
    track.heading = 7.6;
    track.modeACodeValid = track.levelValid = track.selectedAltitudeValid = track.groundSpeedValid = true;
    track.headingValid = track.verticalRateValid = track.icaoAddrValid = track.callsignValid = true;
    return track;
}

} // namespace

void TestTrackLabelLines::line_data()
{
    using F = TrackLabelFields;
    using L = TrackLabelLines;
    QTest::addColumn<Change>("change");
    QTest::addColumn<TrackLabelFields>("fields");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, int line, const F &fields, const char *text, Change change = {}) {
        QTest::newRow(name) << change << fields << line << QString::fromUtf8(text);
    };
    using T = TrackSnapshot;

    row("alert", L::Alert, only({&F::alertIndicator}), "MSAW STCA",
        [](T &t) { t.alertsString = QStringLiteral("MSAW STCA"); });

    row("emergency and pulse", L::Mark, F{}, "RDO SPI", [](T &t) {
        t.emergency = Track::RadioFailure;
        t.spi = true;
    });
    row("marks go with the alerts", L::Mark, Nothing, "", [](T &t) { t.spi = true; });

    row("number and address", L::Identity, only({&F::trackNum, &F::icaoAddr}), "#0042 78009A");
    row("long track number", L::Identity, only({&F::trackNum}), "#12345", [](T &t) { t.trackNumber = 12345; });
    row("no identity", L::Identity, F{}, "");

    const auto coasting = [](T &t) { t.coasting = true; };
    row("callsign and squawk", L::Callsign, F{}, "ABC123 7000");
    row("coasting without squawk", L::Callsign, only({&F::callsign}), "ABC123➘", coasting);
    row("squawk alone", L::Callsign, F{}, "7000", [](T &t) { t.callsign.clear(); });
    row("no valid squawk", L::Callsign, F{}, "ABC123 ----", [](T &t) { t.modeACodeValid = false; });

    const F all = only({&F::level, &F::selectedAltitude, &F::groundSpeed});
    const auto climbing = [](T &t) { t.verticalTrend = Track::TrendClimbing; };
    row("climbing", L::Level, F{}, "F350↑452", climbing);
    row("selected altitude after an arrow", L::Level, all, "F350↑F181 452", [](T &t) {
        t.verticalTrend = Track::TrendClimbing;
        t.selectedAltitude = 18050;
    });
    row("nothing valid", L::Level, all, "F--- F--- ---",
        [](T &t) { t.levelValid = t.selectedAltitudeValid = t.groundSpeedValid = false; });
    row("level cut, not rounded", L::Level, only({&F::level}), "F009", [](T &t) { t.level = 999; });
    row("below the sea", L::Level, only({&F::level}), "F-03", [](T &t) { t.level = -399; });
    row("speed alone", L::Level, only({&F::groundSpeed}), "090", [](T &t) { t.groundSpeed = 89.5; });
    row("no arrow without level", L::Level, only({&F::groundSpeed}), "452", climbing);

    const F rate = only({&F::verticalRate});
    const auto at = [](int feetPerMinute) { return [=](T &t) { t.verticalRate = feetPerMinute; }; };
    row("climb rate", L::Rate, rate, "+05", at(500));
    row("descent rate", L::Rate, rate, "-13", at(-1250));
    row("half rounds up", L::Rate, rate, "+01", at(50));
    row("half rounds down", L::Rate, rate, "-01", at(-50));
    row("no rate", L::Rate, rate, " --", [](T &t) { t.verticalRateValid = false; });
}

void TestTrackLabelLines::line()
{
    QFETCH(Change, change);
    QFETCH(TrackLabelFields, fields);
    QFETCH(int, line);
    QFETCH(QString, text);
    TrackSnapshot track = knownTrack();
    if (change) {
        change(track);
    }
    QCOMPARE(trackLabelLines(track, fields).text[std::size_t(line)], text);
}

void TestTrackLabelLines::compact_data()
{
    using F = TrackLabelFields;
    using T = TrackSnapshot;
    QTest::addColumn<Change>("change");
    QTest::addColumn<TrackLabelFields>("fields");
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char *name, const F &fields, const QStringList &lines, Change change = {}) {
        QTest::newRow(name) << change << fields << lines;
    };
    F all = only({&F::icaoAddr, &F::verticalRate, &F::heading, &F::selectedAltitude, &F::trackNum});
    all.alertIndicator = all.callsign = all.squawk = all.level = all.groundSpeed = true;
    const auto nothingKnown = [](T &t) {
        t = T();
        t.trackNumber = 208;
        t.callsign = QStringLiteral("-------");
        t.icaoAddrString = QStringLiteral("------");
        t.modeAString = QStringLiteral("----");
    };
    row("usual", F{}, {"ABC123 7000", "F350 452"});
    row("climbing", F{}, {"ABC123 7000", "F350↑ 452"}, [](T &t) { t.verticalTrend = Track::TrendClimbing; });
    row("trend without level", F{}, {"ABC123 7000", "452"}, [](T &t) {
        t.verticalTrend = Track::TrendDescending;
        t.levelValid = false;
    });
    row("everything on", all, {"ABC123 7000", "F350↓ S180 452", "-13 008° 78009A #0042"}, [](T &t) {
        t.verticalTrend = Track::TrendDescending;
        t.verticalRate = -1250;
    });
    row("everything on, nothing known", all, {"#0208"}, nothingKnown);
    row("without call sign", F{}, {"A7000", "F350 452"}, [](T &t) { t.callsignValid = false; });
    row("only a squawk, squawks not wanted", only({&F::callsign}), {"A7000"}, [](T &t) { t.callsignValid = false; });
    row("without squawk", F{}, {"ABC123", "F350 452"}, [](T &t) { t.modeACodeValid = false; });
    row("squawk alone is wanted", only({&F::squawk}), {"A7000"});
    row("nobody wants to know who", only({&F::level}), {"F350"}, [](T &t) { t.coasting = true; });
    row("on the ground", F{}, {"ABC123 7000", "GND 015"}, [](T &t) {
        t.onGround = true;
        t.groundSpeed = 15.0;
    });
    row("coasting, in alert", F{}, {"STCA", "ABC123 7000➘", "F350 452"}, [](T &t) {
        t.coasting = true;
        t.alertsString = QStringLiteral("STCA");
    });
}

void TestTrackLabelLines::compact()
{
    QFETCH(Change, change);
    QFETCH(TrackLabelFields, fields);
    TrackSnapshot track = knownTrack();
    if (change) {
        change(track);
    }
    QStringList lines;
    for (const QString &text : compactLabelLines(track, fields).text) {
        if (!text.isEmpty()) {
            lines.append(text);
        }
    }
    QTEST(lines, "lines");
}

void TestTrackLabelLines::coastingTracksCountTheirSilence()
{
    TrackSnapshot track;
    track.callsign = QStringLiteral("KVN72");
    track.callsignValid = true;
    track.lastUpdate = QDateTime::fromSecsSinceEpoch(1'800'000'000, Qt::UTC);
    const auto who = [&track](int milliseconds) {
        const QDateTime time = track.lastUpdate.addMSecs(milliseconds);
        return compactLabelLines(track, {}, time).text[TrackLabelLines::Callsign];
    };
    QCOMPARE(who(12900), QStringLiteral("KVN72")); // not of those that are seen
    track.coasting = true;
    QCOMPARE(who(12900), QString::fromUtf8("KVN72➘12s"));
    QCOMPARE(who(-200), QString::fromUtf8("KVN72➘0s")); // the clocks of report and picture are two
}

VYX_TEST(TestTrackLabelLines)
#include "tst_track_label_lines.moc"
