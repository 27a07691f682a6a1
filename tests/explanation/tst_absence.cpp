#include "explanation/absence.h"
#include "test_program.h"

#include <QTest>

using Change = std::function<void(AbsenceFacts &)>;
Q_DECLARE_METATYPE(Change)

namespace {

constexpr qint64 Second = 1000;
constexpr qint64 HalfPastNine = 34200 * Second; // 09:30:00

LiveTarget live()
{
    LiveTarget target;
    target.track = 5;
    target.name = "VYX1";
    target.callsign = "VYX1";
    target.address = 0x4B1A2C;
    target.number = 12;
    target.hasPlace = true;
    target.inView = true;
    return target;
}

SeenIdentity seen(ReportOutcome outcome)
{
    SeenIdentity identity;
    qstrcpy(identity.callsign, "VYX1");
    identity.category = 48;
    identity.outcome = outcome;
    identity.lastMs = HalfPastNine;
    identity.place = QPointF(1.0, 2.0);
    return identity;
}

} // namespace

class TestAbsence : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void saysWhereItWent_data();
    void saysWhereItWent();
    void leavesOutWhatTheLivingWere();
    void asksForNothing();
};

void TestAbsence::saysWhereItWent_data()
{
    QTest::addColumn<Change>("facts");
    QTest::addColumn<QString>("sentence");
    QTest::addColumn<Cure>("cure");
    const auto row = [](const char *name, const Change &facts, const char *sentence, Cure cure) {
        QTest::newRow(name) << facts << QString::fromUtf8(sentence) << cure;
    };
    const auto liveRow = [row](const char *name, const std::function<void(LiveTarget &, AbsenceFacts &)> &change,
                             const char *sentence, Cure cure) {
        row(
            name,
            [change](AbsenceFacts &facts) {
                LiveTarget target = live();
                change(target, facts);
                facts.live = {target};
            },
            sentence, cure);
    };
    const auto seenRow = [row](const char *name, ReportOutcome outcome,
                             const std::function<void(SeenIdentity &, AbsenceFacts &)> &change, const char *sentence,
                             Cure cure) {
        row(
            name,
            [=](AbsenceFacts &facts) {
                SeenIdentity identity = seen(outcome);
                change(identity, facts);
                facts.seen = {identity};
            },
            sentence, cure);
    };
    const auto nothing = [](auto &, auto &) {};

    liveRow("shown", nothing, "It is shown.", Cure::Select);
    liveRow(
        "no position", [](LiveTarget &target, auto &) { target.hasPlace = false; },
        "It has the track 12, but none of its reports says where it is.", Cure::None);
    liveRow(
        "outside the view",
        [](LiveTarget &target, auto &) {
            target.inView = false;
            target.distance = 43.21;
            target.bearing = 359.7;
        },
        "It is outside the view, 43.2 NM from its centre in direction 000°.", Cure::Centre);
    liveRow(
        "under a label",
        [](LiveTarget &target, auto &) {
            target.symbolCovered = true;
            target.coveredBy = "VYX2";
        },
        "Its symbol is under the label of VYX2.", Cure::Select);
    liveRow(
        "wide view", [](auto &, AbsenceFacts &facts) { facts.detailsShown = false; },
        "It is in view; the view is too wide for labels, so that only its symbol is shown.", Cure::ZoomIn);
    liveRow(
        "labels off", [](auto &, AbsenceFacts &facts) { facts.labelsOn = false; },
        "It is in view; labels are switched off, so that only its symbol is shown.", Cure::ShowLabels);
    liveRow(
        "label under others", [](LiveTarget &target, auto &) { target.labelShown = false; },
        "It is in view; its label is under others, so that only its symbol is shown.", Cure::Select);
    liveRow(
        "coasting",
        [](LiveTarget &target, auto &) {
            target.coasting = true;
            target.silentMs = 7400;
        },
        "It is shown. It coasts: no report has told its position for 7 s.", Cure::Select);

    seenRow(
        "ended for want of reports", ReportOutcome::TrackEnd,
        [](SeenIdentity &identity, auto &) {
            identity.trackNumber = 12;
            identity.endedMs = HalfPastNine + 12 * Second;
        },
        "Its track 12 ended at 09:30:12: no report had told its position since 09:30:00.", Cure::Centre);
    seenRow(
        "ended by its source, nowhere", ReportOutcome::TrackEnd,
        [](SeenIdentity &identity, auto &) {
            identity.trackNumber = 12;
            identity.endedMs = HalfPastNine;
            identity.endedBySource = true;
            identity.place.reset();
        },
        "Its track 12 ended at 09:30:00: its source ended it.", Cure::None);
    seenRow("plot, layer off", ReportOutcome::Plot, nothing,
        "Its reports (CAT048) carry neither track number nor address, so they are plots and no track. The plot layer "
        "is switched off.",
        Cure::ShowPlots);
    seenRow(
        "plot, layer on", ReportOutcome::Plot, [](auto &, AbsenceFacts &facts) { facts.plotsOn = true; },
        "Its reports (CAT048) carry neither track number nor address, so they are plots and no track. The plot layer "
        "shows them.",
        Cure::Centre);
    seenRow(
        "other source", ReportOutcome::OtherSource,
        [](SeenIdentity &identity, AbsenceFacts &facts) {
            identity.sourceKnown = true;
            identity.sac = 25;
            identity.sic = 11;
            facts.sensorSac = 25;
            facts.sensorSic = 12;
        },
        "Its reports (CAT048) are dropped: they are of SAC/SIC 25/11, the sensor is set to 25/12.", Cure::OpenSettings);
    seenRow("wrong kind of sensor", ReportOutcome::WrongSensorKind, nothing,
        "Its reports (CAT048) are dropped: sensors of the configured kind do not send them.", Cure::OpenSettings);
    seenRow(
        "Mode S without a position", ReportOutcome::NoPosition,
        [](SeenIdentity &identity, auto &) { identity.category = 0; }, "Its reports have told no position yet.",
        Cure::None);
    seenRow("any other reason", ReportOutcome::Incomplete, nothing,
        "Its reports (CAT048) are dropped: incomplete message.", Cure::None);

    row(
        "never received", [](AbsenceFacts &) {}, "It has not been received: no report has named it.", Cure::None);
    row(
        "no input", [](AbsenceFacts &facts) { facts.inputOpen = false; },
        "It has not been received, and no input is open now.", Cure::StartInput);
    row(
        "paused", [](AbsenceFacts &facts) { facts.paused = true; },
        "It has not been received, and the input is paused.", Cure::ResumeInput);
}

void TestAbsence::saysWhereItWent()
{
    QFETCH(Change, facts);
    QFETCH(Cure, cure);
    AbsenceFacts known;
    known.inputOpen = true;
    facts(known);
    const auto findings = explainAbsence(IdentityQuery::fromText("VYX1"), known);
    QCOMPARE(findings.size(), 1);
    QTEST(findings.first().sentence, "sentence");
    QCOMPARE(findings.first().cure, cure);
    QVERIFY(findings.first().who.startsWith("VYX1"));
    QCOMPARE(cureText(cure).isEmpty(), cure == Cure::None);
}

// A track that came back has an end in its past; who has the same code is somebody else.
void TestAbsence::leavesOutWhatTheLivingWere()
{
    AbsenceFacts facts;
    facts.inputOpen = true;
    facts.live = {live()};
    SeenIdentity ended = seen(ReportOutcome::TrackEnd);
    ended.endedMs = HalfPastNine;
    SeenIdentity namesake = ended;
    namesake.address = 0x111111;
    facts.seen = {ended, namesake};
    const auto findings = explainAbsence(IdentityQuery::fromText("VYX1"), facts);
    QCOMPARE(findings.size(), 2);
    QCOMPARE(findings[0].track, 5ULL);
    QVERIFY(findings[1].who.contains("111111"));
}

void TestAbsence::asksForNothing()
{
    QVERIFY(explainAbsence(IdentityQuery::fromText("  "), {}).isEmpty());
}

VYX_TEST(TestAbsence)
#include "tst_absence.moc"
