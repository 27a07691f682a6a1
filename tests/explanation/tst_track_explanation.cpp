#include "explanation/track_explanation.h"
#include "kept_reports.h"
#include "test_program.h"

#include <QTest>

using Fill = std::function<void(BlockEncoder &)>;
Q_DECLARE_METATYPE(Fill)

namespace {

const QDateTime Now = QDateTime::fromMSecsSinceEpoch(1700000010000, Qt::UTC);

qint64 ago(double seconds)
{
    return Now.toMSecsSinceEpoch() - static_cast<qint64>(seconds * 1000.0);
}

QList<ReportView> viewsOf(const QList<KeptReport> &reports)
{
    QList<ReportView> views;
    for (const KeptReport &report : reports) {
        views.append(viewReport(report));
    }
    return views;
}

ExplainedValue valueOf(const QList<ExplainedValue> &values, const QString &name)
{
    for (const ExplainedValue &value : values) {
        if (value.name == name) {
            return value;
        }
    }
    return {};
}

void addRegister(BlockEncoder &e, const char *path, int bds, const QByteArray &hex)
{
    const QByteArray mb = QByteArray::fromHex(hex);
    e.addRepetition("250");
    e.setExplicit(path, {reinterpret_cast<const unsigned char *>(mb.constData()), 7});
    e.set("250/BDS1", bds);
}

} // namespace

class TestTrackExplanation : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namesItemAndRule_data();
    void namesItemAndRule();
    void goesBackForKeptValues();
    void doesNotGoBackForOthers();
    void tellsOfDelay_data();
    void tellsOfDelay();
    void tellsHowPositionWasPaired_data();
    void tellsHowPositionWasPaired();
    void explainsCoasting();
    void explainsEmergency();
    void heedsIgnoredPositions();
    void tellsHowSlantRangeIsCorrected();
    void tellsSensorsOfOneCategoryApart();
    void explainsWithoutReports();
};

void TestTrackExplanation::namesItemAndRule_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<Fill>("fill");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("rule"); // part of it
    const auto row = [](const char *title, int category, const Fill &fill, const QString &name, const QString &item,
                         const QString &rule) { QTest::newRow(title) << category << fill << name << item << rule; };
    using E = BlockEncoder;
    row(
        "polar before Cartesian", 48,
        [](E &e) {
            e.set("040/RHO", 10);
            e.set("042/X", 3);
        },
        "Position", "I048/040/RHO, THETA", "slant range is taken");
    row(
        "Cartesian alone", 48, [](E &e) { e.set("042/X", 3); }, "Position", "I048/042/X, Y", "since there is no");
    row(
        "garbled level", 48, [](E &e) { e.set("090/G", 1); }, "Level", "I048/090/FL", "Mode C garbled");
    row(
        "level that is missing", 48, [](E &e) { e.set("040/RHO", 1); }, "Level", "", "not in the last report");
    row(
        "garbled and smoothed code", 48,
        [](E &e) {
            e.setText("070/MODE3A", "7000");
            e.set("070/G", 1);
            e.set("070/L", 1);
        },
        "Squawk", "I048/070/MODE3A", "garbled (G); smoothed");
    row(
        "FMS altitude where the MCP's is not told", 48, [](E &e) { addRegister(e, "250/MBDATA", 4, "0005dc00000000"); },
        "Selected altitude", "I048/250 BDS 4,0 FMS selected altitude", "MCP/FCU before FMS; valid for 12 s");
    row(
        "inertial rate where the barometric is not believed", 48,
        [](E &e) { addRegister(e, "250/MBDATA", 6, "00000000265c26"); }, "Vertical rate",
        "I048/250 BDS 6,0 inertial vertical velocity", "6,000");
    row(
        "life of registers of multilateration", 20, [](E &e) { addRegister(e, "250/BDSDATA", 4, "bb800000000000"); },
        "Selected altitude", "I020/250 BDS 4,0 MCP/FCU selected altitude", "valid for 4 s");
    row(
        "trend of multilateration", 20, [](E &e) { e.set("170/CDM", 0); }, "Vertical trend", "I020/170/CDM",
        "0 is a climb");
    row(
        "flight plan's callsign first", 62,
        [](E &e) {
            e.setText("390/CS", "VYX1");
            e.setText("380/ID", "VYX2");
        },
        "Callsign", "I062/390/CS", "flight plan");
    row(
        "measured level first", 62,
        [](E &e) {
            e.set("136", 100);
            e.set("135/CTB", 90);
        },
        "Level", "I062/136", "before the calculated");
    row(
        "altitude above the sea is none", 62, [](E &e) { e.set("135/QNH", 1); }, "Level", "", "corrected by QNH");
    row(
        "speed of components", 62, [](E &e) { e.set("185/VX", 1); }, "Ground speed", "I062/185/VX, VY", "components");
    row(
        "state of a system track", 62, [](E &e) { e.set("080/CNF", 1); }, "State", "I062/080/CNF", "tentative");
    row(
        "high resolution first", 21,
        [](E &e) {
            e.set("131/LAT", 1);
            e.set("130/LAT", 1);
        },
        "Position", "I021/131/LAT, LON", "as reported");
    row(
        "geometric rate", 21, [](E &e) { e.set("157/GVR", 100); }, "Vertical rate", "I021/157/GVR", "geometric");
    row(
        "no address", 48, [](E &e) { e.set("220", 0); }, "Address", "", "in none of the last");
    row(
        "type by category", 21, [](E &e) { e.set("080", 5); }, "Type", "", "every track of such reports");
}

void TestTrackExplanation::namesItemAndRule()
{
    QFETCH(int, category);
    QFETCH(Fill, fill);
    QFETCH(QString, name);
    QFETCH(QString, rule);
    const auto kept = keptRecord(category, ago(2), fill);
    QVERIFY(kept.uap);
    const auto value = valueOf(explainTrack({}, viewsOf({kept}), Now), name);
    QCOMPARE(value.name, name);
    QTEST(value.item, "item");
    QVERIFY2(value.rule.contains(rule), qPrintable(value.rule));
    if (!value.item.isEmpty()) {
        QCOMPARE(value.report, 0);
        QCOMPARE(*value.ageMs, qint64(2000));
        QVERIFY(!value.bits.isEmpty());
    }
}

// Callsign and code stay with the track until others come.
void TestTrackExplanation::goesBackForKeptValues()
{
    const auto views = viewsOf({
        keptRecord(48, ago(1), [](BlockEncoder &e) { e.set("040/RHO", 10); }),
        keptRecord(48, ago(5), [](BlockEncoder &e) { e.setText("240", "VYX1"); }),
        keptRecord(48, ago(9), [](BlockEncoder &e) { e.setText("240", "VYX0"); }),
    });
    TrackSnapshot track;
    track.callsign = "VYX1";
    track.callsignValid = true;
    track.modeACodeValid = true;
    track.modeAString = "7000";
    const auto values = explainTrack(track, views, Now);
    const auto callsign = valueOf(values, "Callsign");
    QCOMPARE(callsign.value, QString("VYX1"));
    QCOMPARE(callsign.report, 1);
    QCOMPARE(*callsign.ageMs, qint64(5000));
    const auto squawk = valueOf(values, "Squawk");
    QCOMPARE(squawk.value, QString("7000"));
    QCOMPARE(squawk.report, -1);
    QVERIFY(squawk.rule.contains("before the reports that are kept"));
}

void TestTrackExplanation::doesNotGoBackForOthers()
{
    const auto views = viewsOf({
        keptRecord(48, ago(1), [](BlockEncoder &e) { e.set("040/RHO", 10); }),
        keptRecord(48, ago(5),
            [](BlockEncoder &e) {
                e.set("090/FL", 100);
                e.set("200/GSP", 0.1);
            }),
    });
    const auto values = explainTrack({}, views, Now);
    QCOMPARE(valueOf(values, "Level").report, -1);
    QCOMPARE(valueOf(values, "Ground speed").report, -1);
    QVERIFY(valueOf(values, "Ground speed").rule.contains("not in the last report"));
}

void TestTrackExplanation::tellsOfDelay_data()
{
    QTest::addColumn<double>("timeOfDay");
    QTest::addColumn<qint64>("arrivalMs"); // since midnight
    QTest::addColumn<QString>("rule");
    QTest::newRow("later") << 3600.0 << qint64(3600400) << "arrived 0.4 s later";
    QTest::newRow("earlier") << 3602.0 << qint64(3600000) << "arrived 2.0 s earlier";
    QTest::newRow("over midnight") << 86399.5 << qint64(700) << "arrived 1.2 s later";
}

void TestTrackExplanation::tellsOfDelay()
{
    QFETCH(double, timeOfDay);
    QFETCH(qint64, arrivalMs);
    QFETCH(QString, rule);
    const qint64 midnight = 86400000LL * 19000;
    const auto kept = keptRecord(48, midnight + arrivalMs, [timeOfDay](BlockEncoder &e) { e.set("140", timeOfDay); });
    const auto value = valueOf(explainTrack({}, viewsOf({kept}), Now), "Time of day");
    QVERIFY2(value.rule.contains(rule), qPrintable(value.rule));
}

void TestTrackExplanation::tellsHowPositionWasPaired_data()
{
    QTest::addColumn<double>("before"); // seconds between the two
    QTest::addColumn<QString>("rule");
    QTest::newRow("pair") << 2.0 << "CPR global: this even position and the odd one of 2.0 s before";
    QTest::newRow("longest pair") << 10.0 << "CPR global";
    QTest::newRow("too far apart") << 10.1 << "CPR local";
}

void TestTrackExplanation::tellsHowPositionWasPaired()
{
    QFETCH(double, before);
    QFETCH(QString, rule);
    const auto views = viewsOf({keptFrame(ago(1), "8D40621D58C382D690C8AC2863A7"),
        keptFrame(ago(1 + before), "8D40621D58C386435CC412692AD6")});
    const auto value = valueOf(explainTrack({}, views, Now), "Position");
    QCOMPARE(value.item, QString("DF 17, type code 11, LAT-CPR, LON-CPR, F"));
    QVERIFY2(value.rule.contains(rule), qPrintable(value.rule));
}

void TestTrackExplanation::explainsCoasting()
{
    TrackSnapshot track;
    track.state = Track::Coasting;
    track.coasting = true;
    track.lastUpdate = Now.addMSecs(-7300);
    const auto silent = keptRecord(48, ago(7.3), [](BlockEncoder &e) { e.set("170/CNF", 0); });
    QCOMPARE(valueOf(explainTrack(track, viewsOf({silent}), Now), "State").rule, QString("no position for 7.3 s"));
    const auto told = keptRecord(20, ago(1), [](BlockEncoder &e) { e.set("170/CST", 1); });
    QCOMPARE(valueOf(explainTrack(track, viewsOf({told}), Now), "State").item, QString("I020/170/CNF, CST, TRE"));
}

void TestTrackExplanation::explainsEmergency()
{
    TrackSnapshot track;
    const auto report = keptRecord(48, ago(1), [](BlockEncoder &e) {
        e.setText("070/MODE3A", "7700");
        e.set("020/ME", 1);
    });
    QVERIFY(valueOf(explainTrack(track, viewsOf({report}), Now), "Emergency").name.isEmpty());
    track.emergency = Track::GeneralEmergency;
    QCOMPARE(valueOf(explainTrack(track, viewsOf({report}), Now), "Emergency").item, QString("I048/020/ME"));
    track.modeACode = 07700;
    track.modeACodeValid = true;
    QCOMPARE(valueOf(explainTrack(track, viewsOf({report}), Now), "Emergency").item, QString("I048/070/MODE3A"));
}

void TestTrackExplanation::heedsIgnoredPositions()
{
    const auto views = viewsOf({keptRecord(20, ago(1), [](BlockEncoder &e) {
        e.set("041/LAT", 1);
        e.set("042/X", 1);
    })});
    QCOMPARE(valueOf(explainTrack({}, views, Now), "Position").item, QString("I020/041/LAT, LON"));
    ExplanationSettings settings;
    settings.ignoreWgs84 = true;
    const auto value = valueOf(explainTrack({}, views, Now, settings), "Position");
    QCOMPARE(value.item, QString("I020/042/X, Y"));
    QVERIFY(value.rule.contains("ignored"));
}

void TestTrackExplanation::tellsHowSlantRangeIsCorrected()
{
    const auto ruleOf = [](bool corrected, bool reportHasLevel, bool trackHasLevel) {
        const auto views = viewsOf({keptRecord(48, ago(1), [&](BlockEncoder &e) {
            e.set("040/RHO", 10);
            if (reportHasLevel) {
                e.set("090/FL", 350);
            }
        })});
        TrackSnapshot track;
        track.levelValid = trackHasLevel;
        ExplanationSettings settings;
        settings.correctSlantRange = corrected;
        return valueOf(explainTrack(track, views, Now, settings), "Position").rule;
    };
    QVERIFY(ruleOf(false, true, true).endsWith("taken as the distance over ground"));
    QVERIFY(ruleOf(true, true, true).contains("by the level of this report"));
    QVERIFY(ruleOf(true, false, true).contains("by the track's level"));
    QVERIFY(ruleOf(true, false, false).contains("no level is known"));
}

void TestTrackExplanation::tellsSensorsOfOneCategoryApart()
{
    const auto views = viewsOf({keptRecord(10, ago(1), [](BlockEncoder &e) {
        e.set("040/RHO", 1000);
        e.set("041/LAT", 1);
        e.set("200/GSP", 0.01);
        e.set("202/VX", 1);
        e.setText("245/CHR", "VYX1");
    })});
    TrackSnapshot track;
    track.type = Track::Smr;
    QCOMPARE(valueOf(explainTrack(track, views, Now), "Position").item, QString("I010/040/RHO, TH"));
    QCOMPARE(valueOf(explainTrack(track, views, Now), "Ground speed").item, QString("I010/200/GSP"));
    QVERIFY(valueOf(explainTrack(track, views, Now), "Callsign").item.isEmpty());
    track.type = Track::Mlat;
    QCOMPARE(valueOf(explainTrack(track, views, Now), "Position").item, QString("I010/041/LAT, LON"));
    QCOMPARE(valueOf(explainTrack(track, views, Now), "Ground speed").item, QString("I010/202/VX, VY"));
    QCOMPARE(valueOf(explainTrack(track, views, Now), "Callsign").item, QString("I010/245/CHR"));
}

void TestTrackExplanation::explainsWithoutReports()
{
    TrackSnapshot track;
    track.callsign = "VYX1";
    track.callsignValid = true;
    const auto values = explainTrack(track, {}, Now);
    QCOMPARE(valueOf(values, "Callsign").value, QString("VYX1"));
    QVERIFY(explanationText(values).startsWith("Callsign\tVYX1\t\t\t"));
}

VYX_TEST(TestTrackExplanation)
#include "tst_track_explanation.moc"
