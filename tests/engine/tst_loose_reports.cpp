#include "engine/loose_reports.h"
#include "test_program.h"

#include <QTest>

namespace {

void addLoose(LooseReports &reports, const QByteArray &octets, std::optional<QPointF> place = {}, qint64 timeMs = 0)
{
    TakenReport report;
    report.form = TakenReport::Form::ModeS;
    report.octets = reinterpret_cast<const unsigned char *>(octets.constData());
    report.size = static_cast<quint32>(octets.size());
    report.place = place;
    reports.add(report, timeMs);
}

// Told from all others, of that size.
QByteArray looseOctets(int number, int size)
{
    QByteArray octets(size, static_cast<char>(number));
    for (int i = 0; i < size; ++i) {
        octets[i] = static_cast<char>(number * 17 + i);
    }
    return octets;
}

} // namespace

class TestLooseReports : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsNewest_data();
    void keepsNewest();
    void findsNearestPlace();
    void givesEachOnce();
};

void TestLooseReports::keepsNewest_data()
{
    QTest::addColumn<QList<int>>("sizes"); // in turn
    QTest::addColumn<int>("fewest"); // that must be left
    QTest::newRow("small ones: by number") << QList<int>{4} << 10;
    QTest::newRow("large ones: by octets") << QList<int>{30} << 3;
    QTest::newRow("of uneven sizes") << QList<int>{1, 33, 7, 50, 12} << 1;
    QTest::newRow("as large as all the room") << QList<int>{100, 3} << 1;
    QTest::newRow("one too large") << QList<int>{5, 101} << 10;
}

// Whatever makes room, what is left is the newest without a gap, octet for octet.
void TestLooseReports::keepsNewest()
{
    QFETCH(QList<int>, sizes);
    QFETCH(int, fewest);
    LooseReports reports(100, 10);
    QList<QByteArray> added;
    for (int i = 0; i < 500; ++i) {
        const QByteArray octets = looseOctets(i, sizes[i % sizes.size()]);
        addLoose(reports, octets);
        if (octets.size() <= 100) {
            added.prepend(octets);
        }
        const auto kept = reports.newest(1000);
        QVERIFY(kept.size() <= 10);
        QVERIFY(kept.size() >= std::min<qsizetype>(fewest, added.size()));
        for (int k = 0; k < kept.size(); ++k) {
            QCOMPARE(kept[k].octets, added[k]);
        }
    }
    reports.clear();
    QVERIFY(reports.newest(10).isEmpty());
    addLoose(reports, "x");
    QCOMPARE(reports.newest(10).size(), 1);
}

void TestLooseReports::findsNearestPlace()
{
    LooseReports reports(1000, 100);
    addLoose(reports, "far", QPointF(5000.0, 0.0));
    addLoose(reports, "near", QPointF(100.0, 0.0), 1);
    addLoose(reports, "nearer", QPointF(40.0, 0.0), 2);
    addLoose(reports, "again", QPointF(40.5, 0.0), 3);
    addLoose(reports, "nowhere");
    const auto found = reports.near({0.0, 0.0}, 500.0, 10);
    QCOMPARE(found.size(), 2);
    QCOMPARE(found[0].octets, QByteArray("again"));
    QCOMPARE(found[1].octets, QByteArray("nearer"));
    QVERIFY(reports.near({0.0, 0.0}, 10.0, 10).isEmpty());
    QCOMPARE(reports.near({0.0, 0.0}, 500.0, 1).size(), 1);
}

void TestLooseReports::givesEachOnce()
{
    LooseReports reports(1000, 10);
    QStringList given;
    const auto giveAll = [&] {
        given.clear();
        reports.takeNew([&given](const LooseReport &report, const unsigned char *octets) {
            given.append(QString::fromLatin1(reinterpret_cast<const char *>(octets), static_cast<int>(report.size)));
        });
        return given.join(' ');
    };
    QCOMPARE(giveAll(), QString());
    addLoose(reports, "a");
    addLoose(reports, "b");
    QCOMPARE(giveAll(), QString("a b"));
    QCOMPARE(giveAll(), QString());
    for (int i = 0; i < 12; ++i) {
        addLoose(reports, QByteArray::number(i));
    }
    QCOMPARE(giveAll(), QString("2 3 4 5 6 7 8 9 10 11")); // two have gone
    addLoose(reports, "c");
    reports.clear();
    QCOMPARE(giveAll(), QString());
}

VYX_TEST(TestLooseReports)
#include "tst_loose_reports.moc"
