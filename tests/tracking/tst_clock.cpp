#include "test_program.h"
#include "tracking/clock.h"

#include <QTest>

class TestClock final : public QObject {
    Q_OBJECT

private:
    qint64 m_system = 1'800'000'000'000;
    qint64 m_monotonic = 5000;
    Clock m_clock{[this] { return m_system; }, [this] { return m_monotonic; }};

    // Real time passes.
    void pass(qint64 ms)
    {
        m_system += ms;
        m_monotonic += ms;
    }

    static QDateTime at(qint64 ms) { return QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC); }

private Q_SLOTS:
    void init() { m_clock.startLive(); }

    // An hour forwards or backwards, as from a technician or a time server: in the second after it at most a tenth of
    // a second too much or too little passes, and in the end the system's time is shown again.
    void stepsOfTheSystemClockPassByUnseen()
    {
        for (const qint64 step : {3'600'000, -3'600'000}) {
            pass(1000);
            const qint64 before = m_clock.nowMs();
            QCOMPARE(before, m_system);
            m_system += step;
            QCOMPARE(m_clock.nowMs(), before);
            qint64 last = before;
            for (int i = 0; i < 1000; ++i) { // readings every few milliseconds
                pass(1);
                QVERIFY(m_clock.nowMs() >= last);
                last = m_clock.nowMs();
            }
            QVERIFY2(std::abs(last - before - 1000) <= 100, qPrintable(QString::number(last - before)));
            for (int second = 0; second < 11 * 3600; ++second) {
                pass(1000);
                m_clock.nowMs();
            }
            QCOMPARE(m_clock.nowMs(), m_system);
        }
    }

    void heldTimeStandsStill()
    {
        const qint64 before = m_clock.nowMs();
        m_clock.hold();
        pass(60'000);
        QCOMPARE(m_clock.nowMs(), before);
        m_clock.release();
        QCOMPARE(m_clock.nowMs(), m_system); // as if it had never been held
        QVERIFY(!m_clock.isRecorded());
    }

    void recordedTimePassesWhenToldTo()
    {
        m_clock.startRecorded(at(10'000));
        pass(5000);
        m_clock.advanceTo(at(12'000));
        m_clock.advanceTo(at(11'000)); // a packet in disorder
        QCOMPARE(m_clock.nowMs(), 12'000);
        m_clock.hold();
        m_clock.advanceTo(at(13'000));
        QCOMPARE(m_clock.nowMs(), 12'000);
        QVERIFY(m_clock.isRecorded());
        m_clock.release();
        m_clock.advanceTo(at(13'000));
        QCOMPARE(m_clock.now(), at(13'000));
        m_clock.startRecorded(at(2000)); // played from the beginning again
        QCOMPARE(m_clock.nowMs(), 2000);
        m_clock.startLive();
        QCOMPARE(m_clock.nowMs(), m_system);
        QVERIFY(!m_clock.isRecorded());
    }
};

VYX_TEST(TestClock)
#include "tst_clock.moc"
