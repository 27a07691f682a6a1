#include "engine/replay_clock.h"
#include "test_program.h"

#include <QTest>

// Times are milliseconds after noon.
class TestReplayClock final : public QObject {
    Q_OBJECT

private:
    const QDateTime m_noon = QDateTime({2024, 5, 1}, {12, 0}, Qt::UTC);
    std::shared_ptr<Clock> m_clock;
    QList<qint64> m_seconds; // at which something could age
    std::unique_ptr<ReplayClock> m_replay;

    QDateTime at(qint64 ms) const { return m_noon.addMSecs(ms); }
    qint64 now() const { return m_noon.msecsTo(m_clock->now()); }

private Q_SLOTS:
    void init()
    {
        m_clock = std::make_shared<Clock>();
        m_seconds.clear();
        m_replay = std::make_unique<ReplayClock>(m_clock, [this] { m_seconds += now(); });
        m_replay->begin(at(300));
    }

    // Whatever the speed, the same steps: at full seconds, each once, before the packet that is as late or later.
    void everyRecordedSecondIsAStep()
    {
        m_replay->reach(at(300));
        QCOMPARE(m_seconds, QList<qint64>());
        m_replay->reach(at(3000));
        QCOMPARE(m_seconds, QList<qint64>({1000, 2000, 3000}));
        m_replay->runOn(200, ReplaySpeed::Octuple, at(9000));
        QCOMPARE(now(), 4600);
        m_replay->runOn(200, ReplaySpeed::Half, at(9000));
        QCOMPARE(now(), 4700);
        m_replay->runOn(10000, ReplaySpeed::Max, at(9000));
        QCOMPARE(now(), 4700);
        m_replay->runOn(60000, ReplaySpeed::Normal, at(5100)); // not past what is waited for
        QCOMPARE(now(), 5100);
        m_replay->reach(at(5100));
        QCOMPARE(m_seconds, QList<qint64>({1000, 2000, 3000, 4000, 5000}));
        QVERIFY(m_clock->isRecorded());
    }

    void longGapsArePassedOverAtOnce()
    {
        m_replay->reach(at(qint64{365} * 86'400'000));
        QCOMPARE(now(), qint64{365} * 86'400'000);
        QVERIFY(m_seconds.size() <= 3601);
        m_seconds.clear();
        m_replay->reach(at(qint64{365} * 86'400'000 + 1500));
        QCOMPARE(m_seconds.size(), 1);
    }

    // Two sources half a minute apart, midnight between them: the later one's time is the picture's.
    void disorderNeitherTurnsBackNorSlowsDown()
    {
        qint64 waited = 0;
        for (qint64 time = 43'190'000; time < 43'210'000; time += 100) {
            for (const qint64 source : {time, time - 30'000}) {
                waited += m_replay->untilStamp(at(source));
                m_replay->reach(at(source));
                QCOMPARE(now(), time);
            }
        }
        QCOMPARE(waited, 43'209'900 - 300);
    }

    // The recorder's clock was set back by an hour: time goes on, and the picture with it.
    void timeGoesOnAfterTheRecordersClockWasSetBack()
    {
        m_replay->reach(at(10'000));
        for (qint64 time = 0; time <= 60'000; time += 100) {
            m_replay->reach(at(time - 3'600'000));
        }
        QVERIFY2(now() >= 60'000 && now() <= 75'000, qPrintable(QString::number(now())));
    }
};

VYX_TEST(TestReplayClock)
#include "tst_replay_clock.moc"
