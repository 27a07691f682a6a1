#include "engine/snapshot_slot.h"

#include <QTest>

class TestSnapshotSlot final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void newestReplacesTheOneBefore()
    {
        SnapshotSlot<int> slot;
        QVERIFY(!slot.read().value);
        QCOMPARE(slot.read().counter, 0ULL);
        slot.publish(QSharedPointer<const int>::create(1));
        const auto kept = slot.read();
        for (int i = 2; i <= 6; ++i) {
            slot.publish(QSharedPointer<const int>::create(i));
        }
        QCOMPARE(*slot.read().value, 6);
        QCOMPARE(slot.read().counter, kept.counter + 5); // four that nobody saw
        QCOMPARE(*kept.value, 1); // the reader's picture outlives its replacement
    }
};

QTEST_GUILESS_MAIN(TestSnapshotSlot)
#include "tst_snapshot_slot.moc"
