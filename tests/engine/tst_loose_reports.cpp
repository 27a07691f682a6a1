#include "engine/loose_reports.h"
#include "test_program.h"

#include <QTest>

#include <utility>

namespace {

constexpr int Room = 1000;

void addLoose(LooseReports &reports, const QByteArray &octets, std::optional<QPointF> place = {}, qint64 timeMs = 0)
{
    TakenReport report;
    report.form = TakenReport::Form::ModeS;
    report.octets = reinterpret_cast<const unsigned char *>(octets.constData());
    report.size = static_cast<quint32>(octets.size());
    report.fate.place = place;
    reports.add(report, timeMs);
}

QList<QByteArray> takeNewOctets(LooseReports &reports)
{
    QList<QByteArray> given;
    reports.takeNew([&given](const LooseReport &report, const unsigned char *octets) {
        given.append(QByteArray(reinterpret_cast<const char *>(octets), static_cast<int>(report.size)));
    });
    return given;
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
    QTest::newRow("small ones") << QList<int>{4} << (Room - 64) / 56;
    QTest::newRow("large ones") << QList<int>{330} << 1;
    QTest::newRow("of uneven sizes") << QList<int>{1, 133, 7, 250, 12, 64, 31} << 3;
    QTest::newRow("as large as all the room") << QList<int>{Room - 48, 3} << 1;
    QTest::newRow("one too large") << QList<int>{5, Room - 47} << (Room - 64) / 56;
}

// Whatever makes room, what is left is the newest without a gap, octet for octet; and what is new of it is given once.
void TestLooseReports::keepsNewest()
{
    QFETCH(QList<int>, sizes);
    QFETCH(int, fewest);
    LooseReports reports(Room);
    QList<QByteArray> added;
    qsizetype fresh = 0;
    for (int i = 0; i < 500; ++i) {
        const QByteArray octets = looseOctets(i, sizes[i % sizes.size()]);
        addLoose(reports, octets);
        if (octets.size() <= Room - 48) {
            added.prepend(octets);
            ++fresh;
        }
        const auto kept = reports.newest(1000);
        QVERIFY(kept.size() * 48 <= Room);
        QVERIFY(kept.size() >= std::min<qsizetype>(fewest, added.size()));
        for (int k = 0; k < kept.size(); ++k) {
            QCOMPARE(kept[k].octets, added[k]);
        }
        if (i % 13 == 0) {
            const QList<QByteArray> given = takeNewOctets(reports);
            QCOMPARE(given.size(), std::min(std::exchange(fresh, 0), kept.size()));
            for (int k = 0; k < given.size(); ++k) {
                QCOMPARE(given[k], added[given.size() - 1 - k]);
            }
        }
    }
    reports.clear();
    QVERIFY(reports.newest(10).isEmpty());
    addLoose(reports, "x");
    QCOMPARE(reports.newest(10).size(), 1);
}

void TestLooseReports::findsNearestPlace()
{
    LooseReports reports(Room);
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
    LooseReports reports(560); // ten of them
    const auto giveAll = [&] { return takeNewOctets(reports).join(' '); };
    QCOMPARE(giveAll(), QByteArray());
    addLoose(reports, "a");
    addLoose(reports, "b");
    QCOMPARE(giveAll(), QByteArray("a b"));
    QCOMPARE(giveAll(), QByteArray());
    for (int i = 0; i < 12; ++i) {
        addLoose(reports, QByteArray::number(i));
    }
    QCOMPARE(giveAll(), QByteArray("2 3 4 5 6 7 8 9 10 11")); // two have gone
    addLoose(reports, "c");
    reports.clear();
    QCOMPARE(giveAll(), QByteArray());
}

VYX_TEST(TestLooseReports)
#include "tst_loose_reports.moc"
