#include "test_program.h"
#include "tracking/report_log.h"

#include <QTest>

#include <map>

namespace {

// Octets by which a report is recognised, of that size.
QByteArray octetsOf(int number, int size)
{
    QByteArray octets(size, static_cast<char>(number));
    for (int i = 0; i < size; ++i) {
        octets[i] = static_cast<char>(number * 31 + i);
    }
    return octets;
}

void add(ReportLog &log, ReportLink &track, int number, int size)
{
    const QByteArray octets = octetsOf(number, size);
    log.add(track, TakenReport::Form::Asterix, 1000 + number, nullptr,
        reinterpret_cast<const unsigned char *>(octets.constData()), static_cast<std::size_t>(size));
}

} // namespace

class TestReportLog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsNewestOfEachTrack_data();
    void keepsNewestOfEachTrack();
    void growsWithTracks();
    void leavesOutWhatDoesNotFit();
    void forgets();
};

void TestReportLog::keepsNewestOfEachTrack_data()
{
    QTest::addColumn<int>("tracks");
    QTest::addColumn<QList<int>>("sizes"); // in turn
    QTest::addColumn<int>("added"); // to each track
    QTest::addColumn<int>("fewest"); // that must be left of each
    QTest::newRow("none") << 1 << QList<int>{40} << 0 << 0;
    QTest::newRow("one") << 1 << QList<int>{40} << 1 << 1;
    QTest::newRow("as many as are told") << 3 << QList<int>{40} << 50 << 50;
    QTest::newRow("more") << 3 << QList<int>{40} << 51 << 50;
    QTest::newRow("many tracks, uneven sizes, round and round") << 300 << QList<int>{7, 93, 1, 60, 0} << 400 << 50;
    QTest::newRow("large ones: as many as there is room for") << 100 << QList<int>{900} << 50 << 5;
    QTest::newRow("the largest") << 2 << QList<int>{65000} << 50 << 1;
}

// Whatever is written over, what is left of each track is its newest reports without a gap, octet for octet.
void TestReportLog::keepsNewestOfEachTrack()
{
    QFETCH(int, tracks);
    QFETCH(QList<int>, sizes);
    QFETCH(int, added);
    QFETCH(int, fewest);
    ReportLog log;
    log.setTrackCount(tracks);
    std::vector<ReportLink> newest(static_cast<std::size_t>(tracks), 0);
    for (int i = 0; i < added; ++i) {
        for (int track = 0; track < tracks; ++track) {
            add(log, newest[static_cast<std::size_t>(track)], i + track, sizes[(i + track) % sizes.size()]);
        }
    }
    for (int track = 0; track < tracks; ++track) {
        const auto reports = log.reports(newest[static_cast<std::size_t>(track)]);
        QVERIFY2(reports.size() >= fewest && reports.size() <= ReportLog::MaximumReports,
            qPrintable(QString::number(reports.size())));
        for (int i = 0; i < reports.size(); ++i) {
            const int number = added - 1 - i + track;
            QCOMPARE(reports[i].timeMs, qint64(1000 + number));
            QCOMPARE(reports[i].octets, octetsOf(number, sizes[number % sizes.size()]));
        }
    }
    QVERIFY(log.room() <= std::max(ReportLog::LeastOctets, tracks * ReportLog::TrackOctets));
}

// Without losing what there is; and back when they have gone.
void TestReportLog::growsWithTracks()
{
    ReportLog log;
    ReportLink first = 0;
    ReportLink others = 0;
    add(log, first, 1, 40);
    log.setTrackCount(1000);
    for (int i = 0; i < 50000; ++i) {
        add(log, others, i, 60);
    }
    QCOMPARE(log.reports(first).size(), 1);
    QCOMPARE(log.room(), 1000 * ReportLog::TrackOctets);
    log.setTrackCount(1);
    for (int i = 0; i < 100000; ++i) {
        add(log, others, i, 60);
    }
    QCOMPARE(log.room(), ReportLog::LeastOctets);
    QVERIFY(log.reports(first).isEmpty());
    QCOMPARE(log.reports(others).size(), ReportLog::MaximumReports);
    log.setTrackCount(65535);
    for (int i = 0; i < 10000; ++i) {
        add(log, others, i, 60);
    }
    QCOMPARE(log.room(), ReportLog::MostOctets);
}

void TestReportLog::leavesOutWhatDoesNotFit()
{
    ReportLog log;
    ReportLink track = 0;
    add(log, track, 1, 40);
    add(log, track, 2, static_cast<int>(ReportLog::LeastOctets));
    QCOMPARE(log.reports(track).size(), 1);
    QCOMPARE(log.reports(track).first().octets, octetsOf(1, 40));
}

// A link from before must not lead into what has been written since.
void TestReportLog::forgets()
{
    ReportLog log;
    ReportLink before = 0;
    ReportLink track = 0;
    add(log, before, 1, 40);
    log.clear();
    QVERIFY(log.reports(before).isEmpty());
    add(log, track, 2, 10);
    add(log, track, 3, 40);
    QVERIFY(log.reports(before).isEmpty());
    QCOMPARE(log.reports(track).size(), 2);
}

VYX_TEST(TestReportLog)
#include "tst_report_log.moc"
