#include "engine/largest_delay.h"
#include "engine/slot_reader.h"

#include "engine/snapshot_slot.h"
#include "test_program.h"

#include <QTest>

class TestSlotReader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void countsWhatItNeverSaw()
    {
        SnapshotSlot<int> slot;
        SlotReader<int> reader;
        QVERIFY(!reader.take(slot));
        for (int i = 1; i <= 3; ++i) {
            slot.publish(QSharedPointer<const int>::create(i));
        }
        QCOMPARE(*reader.take(slot), 3);
        QCOMPARE(reader.dropped(), quint64(0)); // nothing counts before the first reading
        QVERIFY(!reader.take(slot)); // nothing new
        for (int i = 4; i <= 8; ++i) {
            slot.publish(QSharedPointer<const int>::create(i));
        }
        QCOMPARE(*reader.take(slot), 8);
        QCOMPARE(reader.dropped(), quint64(4));
        slot.publish(QSharedPointer<const int>::create(9));
        QCOMPARE(*reader.take(slot), 9);
        QCOMPARE(reader.dropped(), quint64(4));
    }

    void delaysCrossMidnight()
    {
        QCOMPARE(LargestDelay::between(86399.5, 0.2), 700);
        QCOMPARE(LargestDelay::between(3600.0, 3600.25), 250);
        LargestDelay delay;
        const QDateTime noon({2026, 3, 1}, {12, 0}, Qt::UTC);
        delay.add(-1.0, noon); // a picture without a time
        QCOMPARE(delay.milliseconds(), 0);
        delay.add(43199.0, noon);
        delay.add(43199.9, noon);
        QCOMPARE(delay.milliseconds(), 1000);
    }
};

VYX_TEST(TestSlotReader)
#include "tst_slot_reader.moc"
