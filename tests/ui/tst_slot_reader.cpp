#include "ui/slot_reader.h"

#include "engine/snapshot_slot.h"

#include <QTest>

class TestSlotReader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void countsWhatItNeverSaw()
    {
        SnapshotSlot<int> slot;
        SlotReader<int> reader;
        QVERIFY(!reader.take(slot));
        for (int i = 1; i <= 3; ++i)
            slot.publish(QSharedPointer<const int>::create(i));
        QCOMPARE(*reader.take(slot), 3);
        QCOMPARE(reader.dropped(), quint64(0)); // nothing counts before the first reading
        QVERIFY(!reader.take(slot)); // nothing new
        for (int i = 4; i <= 8; ++i)
            slot.publish(QSharedPointer<const int>::create(i));
        QCOMPARE(*reader.take(slot), 8);
        QCOMPARE(reader.dropped(), quint64(4));
        slot.publish(QSharedPointer<const int>::create(9));
        QCOMPARE(*reader.take(slot), 9);
        QCOMPARE(reader.dropped(), quint64(4));
    }
};

QTEST_GUILESS_MAIN(TestSlotReader)
#include "tst_slot_reader.moc"
