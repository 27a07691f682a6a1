#include "health/source_watch.h"
#include "made_source.h"
#include "test_program.h"

#include <QTest>

class TestSourceWatch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void silenceOfSources();
    void lateness();
    void losses();
    void remarksAndExplanation();
};

namespace {

// A watch, and the input that it is told of.
class Scene {
public:
    Scene() { input.timeMs = MadeSource::NowMs; }

    QStringList take(const QList<MadeSource> &sources)
    {
        input.sources.clear();
        for (const MadeSource &made : sources) {
            input.sources.append(made.source);
        }
        basis.nowMs = input.timeMs;
        QStringList log;
        for (const SourceWatch::Line &line : watch.take(input, basis)) {
            log += line.text;
        }
        return log;
    }

    QString headline() const { return watch.notice() ? watch.notice()->headline : QString(); }

    InputStatistics input;
    JudgementBasis basis = MadeSource().basis;
    SourceWatch watch;
};

MadeSource other(int sic, ReportOutcome outcome = ReportOutcome::Track)
{
    MadeSource made;
    made.source.sic = static_cast<quint8>(sic);
    return made.become(outcome, 6000);
}

MadeSource late(double seconds)
{
    MadeSource made;
    made.source.delay.median = seconds;
    return made;
}

} // namespace

void TestSourceWatch::silenceOfSources()
{
    Scene scene;
    const MadeSource silent = MadeSource().silentFor(20.0);
    QVERIFY(scene.take({MadeSource(), other(13)}).isEmpty() && !scene.watch.notice());
    QCOMPARE(scene.watch.worst(), SourceJudgement::Light::Green);

    QCOMPARE(scene.take({silent, other(13)}), QStringList{"25/12 CAT048 is silent since 07:59:40."});
    QCOMPARE(scene.headline(), QString("NO DATA from 25/12 CAT048 since 07:59:40"));
    QCOMPARE(scene.watch.notice()->urgency, Urgency::Caution);
    QCOMPARE(scene.watch.worst(), SourceJudgement::Light::Red);
    QVERIFY(scene.take({silent, other(13)}).isEmpty());

    // What goes on is nothing that stands on the scope.
    scene.take({silent, other(13, ReportOutcome::Alert)});
    QCOMPARE(scene.headline(), QString("NO DATA since 07:59:40"));
    QCOMPARE(scene.watch.notice()->urgency, Urgency::Alarm);
    // And what never was on the scope is not missed there.
    scene.take({other(12, ReportOutcome::NoReader).silentFor(20.0), other(13)});
    QVERIFY(!scene.watch.notice());

    QCOMPARE(scene.take({MadeSource(), other(13)}), QStringList{"25/12 CAT048 is heard again."});
    QVERIFY(!scene.watch.notice());
    scene.basis.expecting = false;
    QVERIFY(scene.take({silent}).isEmpty());
    QVERIFY(!scene.watch.notice());
}

void TestSourceWatch::lateness()
{
    Scene scene;
    QCOMPARE(
        scene.take({late(4.24)}), QStringList{"The reports of 25/12 CAT048 arrive 4.2 s after their time of day."});
    QCOMPARE(scene.headline(), QString("DATA 4.2 s LATE"));
    for (const auto &[delay, said] : QList<std::pair<double, bool>>{{2.8, true}, {2.5, false}, {2.8, false}}) {
        QVERIFY(scene.take({late(delay)}).isEmpty());
        QCOMPARE(scene.watch.notice().has_value(), said);
    }
    MadeSource weather = late(20.0); // its time is that of the picture's beginning
    weather.become(ReportOutcome::Weather, 6000).source.category = 8;
    QVERIFY(scene.take({weather}).isEmpty() && !scene.watch.notice());
    QCOMPARE(scene.take({late(3.1)}).size(), 1);
    scene.basis.live = false; // recorded on another day
    scene.take({late(4.0)});
    QVERIFY(!scene.watch.notice());
}

void TestSourceWatch::losses()
{
    Scene scene;
    scene.take({MadeSource()});
    scene.input.backlog.kernelDrops = 5;
    scene.take({MadeSource()});
    QCOMPARE(scene.headline(), QString("DATA LOST: 5 datagrams since 08:00:00"));
    scene.input.timeMs += 20000;
    scene.input.backlog.kernelDrops = 7;
    scene.take({});
    QCOMPARE(scene.headline(), QString("DATA LOST: 7 datagrams since 08:00:00"));
    QVERIFY2(scene.watch.remarks().isEmpty(), "what the headline says is not said again");
    scene.input.timeMs += SourceWatch::LossShownMs;
    scene.take({});
    QVERIFY(!scene.watch.notice());
    QVERIFY2(scene.watch.remarks().contains("7 datagrams"), qPrintable(scene.watch.remarks()));
    scene.watch.beginInput();
    scene.input.backlog.kernelDrops = 0;
    scene.take({});
    QVERIFY(scene.watch.remarks().isEmpty());
}

void TestSourceWatch::remarksAndExplanation()
{
    Scene scene;
    scene.take({MadeSource()});
    QVERIFY(scene.watch.remarks().isEmpty() && scene.watch.explanation().isEmpty());
    scene.take(
        {other(13, ReportOutcome::NoPosition), other(14, ReportOutcome::OtherSource).add(ReportOutcome::Track, 1)});
    QCOMPARE(scene.watch.explanation(), QString("25/14 CAT048: This source is 25/14, the sensor is set to 25/12."));
    scene.input.messages = 9;
    scene.input.undecodableMessages = 8;
    scene.take({});
    QVERIFY2(scene.watch.explanation().startsWith("8 of 9 messages could not be decoded"),
        qPrintable(scene.watch.explanation()));
    MadeSource slow;
    slow.source.antenna.period = 12.0;
    MadeSource quick = other(13);
    quick.source.antenna.period = 4.1;
    scene.take({slow, quick, other(14)});
    QCOMPARE(scene.watch.measuredPeriod(), 4.1);
}

VYX_TEST(TestSourceWatch)
#include "tst_source_watch.moc"
