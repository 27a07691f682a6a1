#include "engine/display_snapshot.h"
#include "silence/net_watch.h"
#include "test_program.h"

#include <QTest>

class TestNetWatch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void unheard_data();
    void unheard();
};

void TestNetWatch::unheard_data()
{
    QTest::addColumn<QList<int>>("messages"); // seconds at which the nets send something
    QTest::addColumn<bool>("running"); // a net says so
    QTest::addColumn<int>("until"); // the last second at which they count as heard; -1: they always do
    QTest::newRow("none") << QList<int>{} << true << -1;
    QTest::newRow("every second") << QList<int>{1, 2, 3, 4} << true << 11;
    QTest::newRow("every five seconds") << QList<int>{5, 10, 15} << true << 29;
    QTest::newRow("intervals unknown") << QList<int>{10} << true << 39;
    QTest::newRow("none shown as running") << QList<int>{1, 2, 3, 4} << false << -1;
}

void TestNetWatch::unheard()
{
    QFETCH(QList<int>, messages);
    QFETCH(bool, running);
    QFETCH(int, until);
    const auto at = [](int second) { return QDateTime::fromSecsSinceEpoch(1000 + second, Qt::UTC); };
    NetWatch watch;
    DisplaySnapshot snapshot;
    snapshot.alertStatus[2] = running;
    int lastHeard = -1;
    for (int second = 0; second < 60; ++second) {
        snapshot.time = at(second);
        if (messages.contains(second)) {
            snapshot.netsHeard = at(second);
        }
        const bool before = watch.unheard();
        const bool changed = watch.look(snapshot);
        QCOMPARE(changed, before != watch.unheard());
        lastHeard = watch.unheard() ? lastHeard : second;
    }
    QCOMPARE(lastHeard, until < 0 ? 59 : until);
    snapshot.netsHeard = at(60); // they come back, and the gap counts for nothing
    snapshot.time = at(60);
    watch.look(snapshot);
    QVERIFY(!watch.unheard());
    snapshot.time = at(100);
    watch.look(snapshot);
    QCOMPARE(watch.unheard(), running);
}

VYX_TEST(TestNetWatch)
#include "tst_net_watch.moc"
