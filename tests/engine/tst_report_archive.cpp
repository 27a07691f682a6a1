#include "asterix/encoder.h"
#include "engine/report_archive.h"
#include "engine_rig.h"
#include "test_program.h"

#include <QTest>

using korvane::asterix::BlockEncoder;

namespace {

// An archive with a store of tracks, and a clock that is set by hand.
struct ArchiveRig {
    qint64 nowMs = 1700000000000;
    std::shared_ptr<Clock> clock = std::make_shared<Clock>([this] { return nowMs; }, [this] { return nowMs; });
    QSharedPointer<TrackManager> tracks = QSharedPointer<TrackManager>::create();
    ReportArchive archive;

    ArchiveRig()
    {
        clock->startLive();
        tracks->setClock(clock);
        tracks->setTrackLifeSpan(5000, 12000);
        archive.setTracks(tracks, clock);
    }

    QSharedPointer<Track> addTrack(quint32 address)
    {
        auto track = tracks->createTrack();
        track->setIcaoAddr(address);
        track->setModeSCallsign("VYX123");
        track->setCarCoordinate({1000.0, 2000.0});
        track->setGeoCoordinate({50.0, 14.0});
        tracks->registerTrack(track);
        track->recordHistory(clock->now());
        return track;
    }

    // As a tracker hands it in.
    void take(const QByteArray &octets, ReportOutcome outcome, Track *track = nullptr)
    {
        clock->now();
        TakenReport report;
        report.form = TakenReport::Form::ModeS;
        report.fate.outcome = outcome;
        report.octets = reinterpret_cast<const unsigned char *>(octets.constData());
        report.size = static_cast<quint32>(octets.size());
        report.fate.newestReport = track ? &track->newestReport() : nullptr;
        report.fate.address = 0x4B1A2C;
        archive.take(report);
    }

    QList<SeenIdentity> find(const QString &text) { return archive.find(IdentityQuery::fromText(text)); }
};

} // namespace

class TestReportArchive : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsReportsWithTheirTrack();
    void notesWhoHasNoTrack_data();
    void notesWhoHasNoTrack();
    void readsIdentityOfRecord();
    void keepsPlotsAndAlertsApart();
    void findsReportOfTracksPlot();
    void keepsWeather();
    void keepsRadialsOfAskedDirection_data();
    void keepsRadialsOfAskedDirection();
    void notesEnds_data();
    void notesEnds();
    void answersThroughTheEngine();
};

void TestReportArchive::keepsReportsWithTheirTrack()
{
    ArchiveRig rig;
    const auto track = rig.addTrack(0x4B1A2C);
    const auto other = rig.addTrack(0x111111);
    rig.take("first", ReportOutcome::Track, track.data());
    rig.nowMs += 250;
    rig.take("second", ReportOutcome::Track, track.data());
    rig.take("refused", ReportOutcome::OutOfRange, track.data());
    rig.take("another", ReportOutcome::Track, other.data());

    const auto ask = [&rig, &track](quint64 incarnationId) {
        return rig.archive.answer({1, ReportQuestion::About::Track, track->trackNumber(), incarnationId});
    };
    const auto answer = ask(track->incarnationId());
    QVERIFY(answer.found);
    QCOMPARE(answer.reports.size(), 3);
    QCOMPARE(answer.reports[0].octets, QByteArray("refused"));
    QCOMPARE(answer.reports[2].octets, QByteArray("first"));
    QCOMPARE(answer.reports[1].timeMs - answer.reports[2].timeMs, 250LL);
    QVERIFY(!ask(track->incarnationId() + 7).found);

    rig.tracks->removeTrack(track);
    QVERIFY(!ask(track->incarnationId()).found);
}

void TestReportArchive::notesWhoHasNoTrack_data()
{
    QTest::addColumn<ReportOutcome>("outcome");
    QTest::addColumn<bool>("noted");
    QTest::newRow("track") << ReportOutcome::Track << false; // found with the track itself
    QTest::newRow("plot") << ReportOutcome::Plot << true;
    QTest::newRow("other source") << ReportOutcome::OtherSource << true;
    QTest::newRow("no position") << ReportOutcome::NoPosition << true;
    QTest::newRow("weather") << ReportOutcome::Weather << false;
}

void TestReportArchive::notesWhoHasNoTrack()
{
    QFETCH(ReportOutcome, outcome);
    QFETCH(bool, noted);
    ArchiveRig rig;
    rig.take("x", outcome);
    QCOMPARE(rig.find("4B1A2C").size(), noted ? 1 : 0);
    if (noted) {
        QCOMPARE(rig.find("4B1A2C").first().outcome, outcome);
        QCOMPARE(rig.find("4B1A2C").first().lastMs, rig.nowMs);
    }
}

// Of records at which no tracker has looked.
void TestReportArchive::readsIdentityOfRecord()
{
    BlockEncoder encoder(48);
    encoder.beginBlock();
    encoder.beginRecord();
    encoder.set("010/SAC", 25);
    encoder.set("010/SIC", 11);
    encoder.setText("070/MODE3A", "7000");
    encoder.set("161/TRN", 42);
    encoder.setText("240", "VYX77");
    encoder.endRecord();
    _ast_datablock_t block;
    ast_datablock_smart_decode(&block, encoder.block().data(), encoder.block().size());
    ArchiveRig rig;
    rig.archive.takeRecord(48, block.records.front(), ReportOutcome::OtherSource);
    for (const char *text : {"VYX77", "7000", "42"}) {
        const auto found = rig.find(text);
        QCOMPARE(found.size(), 1);
        QCOMPARE(int(found.first().category), 48);
        QCOMPARE(int(found.first().sic), 11);
    }
}

void TestReportArchive::keepsPlotsAndAlertsApart()
{
    ArchiveRig rig;
    rig.clock->now();
    TakenReport plot;
    plot.fate.outcome = ReportOutcome::Plot;
    plot.octets = reinterpret_cast<const unsigned char *>("plot");
    plot.size = 4;
    plot.fate.place = QPointF(100.0, 0.0);
    rig.archive.take(plot);
    rig.take("alert", ReportOutcome::Alert);
    const auto plots = rig.archive.answer({1, ReportQuestion::About::Place, 0, 0, {0.0, 0.0}, 200.0});
    QCOMPARE(plots.reports.size(), 1);
    QCOMPARE(plots.reports.first().octets, QByteArray("plot"));
    QVERIFY(!rig.archive.answer({2, ReportQuestion::About::Place, 0, 0, {0.0, 0.0}, 20.0}).found);
    const auto alerts = rig.archive.answer({3, ReportQuestion::About::Alerts});
    QCOMPARE(alerts.reports.size(), 1);
    QCOMPARE(alerts.reports.first().octets, QByteArray("alert"));
    rig.archive.clear();
    QVERIFY(!rig.archive.answer({4, ReportQuestion::About::Alerts}).found);
}

// By the place that the track had, and the time that the plot came.
void TestReportArchive::findsReportOfTracksPlot()
{
    ArchiveRig rig;
    const auto track = rig.addTrack(0x4B1A2C);
    const qint64 plotMs = rig.nowMs;
    rig.nowMs += 1; // the report is read on
    rig.take("first", ReportOutcome::Track, track.data());
    rig.nowMs += 4000;
    track->setCarCoordinate({1500.0, 2000.0});
    track->recordHistory(rig.clock->now());
    rig.take("second", ReportOutcome::Track, track.data());
    const auto ask = [&rig](const QPointF &place, qint64 timeMs) {
        return rig.archive.answer({1, ReportQuestion::About::Place, 0, 0, place, 1.0, timeMs});
    };
    const auto answer = ask({1000.0, 2000.0}, plotMs);
    QCOMPARE(answer.reports.size(), 1);
    QCOMPARE(answer.reports.first().octets, QByteArray("first"));
    QCOMPARE(answer.trackOfPlot, track->incarnationId());
    QVERIFY(!ask({1250.0, 2000.0}, plotMs).found);
    QVERIFY(!ask({1000.0, 2000.0}, plotMs + 2).found);
    QVERIFY(!ask({1000.0, 2000.0}, plotMs - 1000).found);
}

void TestReportArchive::keepsWeather()
{
    ArchiveRig rig;
    rig.take("start", ReportOutcome::Weather);
    rig.take("vectors", ReportOutcome::Weather);
    const auto answer = rig.archive.answer({1, ReportQuestion::About::Weather});
    QCOMPARE(answer.reports.size(), 2);
    QCOMPARE(answer.reports.first().octets, QByteArray("vectors"));
}

void TestReportArchive::keepsRadialsOfAskedDirection_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("end");
    QTest::addColumn<int>("sic");
    QTest::addColumn<bool>("kept");
    QTest::newRow("over the direction") << 359.5 << 0.5 << 11 << true;
    QTest::newRow("over it, turning the other way") << 0.5 << 359.5 << 11 << true;
    QTest::newRow("one azimuth, close enough") << 0.0 << 0.0 << 11 << true;
    QTest::newRow("the one before") << 359.0 << 359.5 << 11 << false;
    QTest::newRow("the one behind") << 0.5 << 1.0 << 11 << false;
    QTest::newRow("another radar's") << 359.5 << 0.5 << 12 << false;
}

void TestReportArchive::keepsRadialsOfAskedDirection()
{
    QFETCH(double, start);
    QFETCH(double, end);
    QFETCH(int, sic);
    QFETCH(bool, kept);
    BlockEncoder encoder(240);
    encoder.beginBlock();
    encoder.beginRecord();
    encoder.set("000", 2);
    encoder.set("010/SAC", 25);
    encoder.set("010/SIC", sic);
    encoder.set("041/STARTAZ", start);
    encoder.set("041/ENDAZ", end);
    encoder.endRecord();
    _ast_datablock_t block;
    ast_datablock_smart_decode(&block, encoder.block().data(), encoder.block().size());
    ArchiveRig rig;
    const auto ask = [&rig] {
        ReportQuestion question{1, ReportQuestion::About::Radial};
        question.radial = {25, 11, 0.1, 0.2};
        return rig.archive.answer(question).reports;
    };
    rig.archive.takeRecord(240, block.records.front(), ReportOutcome::Video); // nobody has asked yet
    QVERIFY(ask().isEmpty());
    rig.archive.takeRecord(240, block.records.front(), ReportOutcome::Video);
    QCOMPARE(ask().size(), kept ? 1 : 0);
    for (int i = 0; i <= RadialWatch::PatienceSeconds; ++i) {
        rig.archive.endSecond();
    }
    rig.archive.takeRecord(240, block.records.front(), ReportOutcome::Video);
    QVERIFY(ask().isEmpty()); // nobody looks any more
}

void TestReportArchive::notesEnds_data()
{
    QTest::addColumn<qint64>("silenceMs");
    QTest::addColumn<bool>("removedBySource");
    QTest::newRow("for want of reports") << 12000LL << false;
    QTest::newRow("by the source") << 4000LL << true;
}

void TestReportArchive::notesEnds()
{
    QFETCH(qint64, silenceMs);
    QFETCH(bool, removedBySource);
    ArchiveRig rig;
    const auto track = rig.addTrack(0x4B1A2C);
    const qint64 lastMs = rig.nowMs;
    rig.nowMs += silenceMs;
    if (removedBySource) {
        rig.tracks->removeTrack(track);
        rig.tracks->removeTrack(track); // a second time is no second end
    } else {
        rig.tracks->checkLife();
    }
    const auto found = rig.find("VYX123");
    QCOMPARE(found.size(), 1);
    QVERIFY(found.first().hasEnded());
    QCOMPARE(found.first().endedBySource, removedBySource);
    QCOMPARE(found.first().lastMs, lastMs);
    QCOMPARE(found.first().endedMs, rig.nowMs);
    QCOMPARE(found.first().trackNumber, track->trackNumber());
    QCOMPARE(found.first().reports, 1ULL);
    QCOMPARE(*found.first().place, QPointF(1000.0, 2000.0));
}

void TestReportArchive::answersThroughTheEngine()
{
    EngineRig rig;
    QSignalSpy reports(&rig.engine, &DataEngine::reportsAnswered);
    QSignalSpy sightings(&rig.engine, &DataEngine::sightings);
    rig.open();
    rig.engine.procMessage(plotBlock(7, 100));
    rig.engine.procMessage(plotBlock(7, 200));
    const auto track = rig.tracks().first();
    rig.engine.askForReports({31, ReportQuestion::About::Track, track.trackNumber, track.incarnationId});
    const auto answer = reports.takeFirst().first().value<AskedReports>();
    QCOMPARE(answer.question.requestId, 31ULL);
    QCOMPARE(answer.question.incarnationId, track.incarnationId);
    QCOMPARE(answer.reports.size(), 2);
    QCOMPARE(answer.reports.first().octets, plotBlock(7, 200).mid(3));
    QVERIFY(answer.reports.first().uap);

    rig.engine.lookUp("7", 32);
    const auto seen = sightings.takeFirst().first().value<Sightings>();
    QCOMPARE(seen.requestId, 32ULL);
    QVERIFY(seen.seen.isEmpty()); // it lives

    // Another run has seen nobody.
    rig.engine.closeInput();
    rig.open();
    rig.engine.askForReports({33, ReportQuestion::About::Track, track.trackNumber, track.incarnationId});
    QVERIFY(!reports.takeFirst().first().value<AskedReports>().found);
}

VYX_TEST(TestReportArchive)
#include "tst_report_archive.moc"
