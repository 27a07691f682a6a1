#include "test_program.h"
#include "tracking/report_ring.h"

#include <QTest>

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

void add(ReportRing &ring, int number, int size)
{
    const QByteArray octets = octetsOf(number, size);
    ring.add(TakenReport::Form::Asterix, 1000 + number, nullptr,
        reinterpret_cast<const unsigned char *>(octets.constData()), static_cast<std::size_t>(size));
}

} // namespace

class TestReportRing : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsNewest_data();
    void keepsNewest();
    void leavesOutWhatDoesNotFit();
    void stopsGrowing();
};

void TestReportRing::keepsNewest_data()
{
    QTest::addColumn<QList<int>>("sizes"); // in turn
    QTest::addColumn<int>("added");
    QTest::addColumn<int>("fewest"); // that must be left
    QTest::newRow("none") << QList<int>{40} << 0 << 0;
    QTest::newRow("one") << QList<int>{40} << 1 << 1;
    QTest::newRow("as many as are kept") << QList<int>{40} << 50 << 50;
    QTest::newRow("one more") << QList<int>{40} << 51 << 50;
    QTest::newRow("of uneven sizes, round and round") << QList<int>{7, 93, 1, 60, 0} << 1000 << 50;
    QTest::newRow("large ones: as many as there is room for") << QList<int>{900} << 20 << 6;
    QTest::newRow("a large one among small ones") << QList<int>{14, 14, 14, 14, 14, 14, 14, 5000} << 801 << 8;
}

// Whatever makes room, what is left is the newest reports without a gap, octet for octet.
void TestReportRing::keepsNewest()
{
    QFETCH(QList<int>, sizes);
    QFETCH(int, added);
    QFETCH(int, fewest);
    ReportRing ring;
    for (int i = 0; i < added; ++i) {
        add(ring, i, sizes[i % sizes.size()]);
        if (i >= 500) {
            QVERIFY(ring.count() >= fewest);
        }
    }
    const auto reports = ring.reports();
    QCOMPARE(static_cast<int>(reports.size()), ring.count());
    QVERIFY2(reports.size() >= fewest, qPrintable(QString::number(reports.size())));
    QVERIFY(reports.size() <= ReportRing::MaximumReports);
    QVERIFY(ring.capacity() <= ReportRing::MaximumOctets);
    for (int i = 0; i < reports.size(); ++i) {
        const int number = added - 1 - i;
        QCOMPARE(reports[i].timeMs, qint64(1000 + number));
        QCOMPARE(reports[i].octets, octetsOf(number, sizes[number % sizes.size()]));
    }
}

void TestReportRing::leavesOutWhatDoesNotFit()
{
    ReportRing ring;
    add(ring, 1, 40);
    add(ring, 2, static_cast<int>(ReportRing::MaximumOctets));
    QCOMPARE(ring.count(), 1);
    QCOMPARE(ring.reports().first().octets, octetsOf(1, 40));
}

void TestReportRing::stopsGrowing()
{
    ReportRing ring;
    for (int i = 0; i < 100; ++i) {
        add(ring, i, 60);
    }
    const std::size_t capacity = ring.capacity();
    for (int i = 0; i < 500; ++i) {
        add(ring, i, 60);
    }
    QCOMPARE(ring.capacity(), capacity);
    QVERIFY(capacity < 5000); // and not much more than it holds
}

VYX_TEST(TestReportRing)
#include "tst_report_ring.moc"
