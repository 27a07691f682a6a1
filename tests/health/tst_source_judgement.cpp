#include "engine_rig.h"
#include "made_source.h"
#include "sensors/sensor_info.h"
#include "test_program.h"
#include "traffic/scenario_reader.h"
#include "traffic/sensor_json.h"
#include "traffic/traffic_source.h"

#include <QTest>

#include <functional>

using Light = SourceJudgement::Light;
using Trouble = SourceJudgement::Trouble;
using Cure = SourceJudgement::Cure;
using Make = std::function<void(MadeSource &)>;

class TestSourceJudgement : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lights_data();
    void lights();
    void sentences_data();
    void sentences();
    void otherReportsOfTheStation();
    void namesTheTruthOfTraffic_data();
    void namesTheTruthOfTraffic();
    void statesAreToldFromTargets();
};

void TestSourceJudgement::lights_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<Light>("light");
    QTest::addColumn<Trouble>("trouble");
    QTest::addColumn<QString>("state");
    const auto row = [](const char *name, Light light, Trouble trouble, const QString &state, const Make &make) {
        QTest::newRow(name) << make << light << trouble << state;
    };
    const auto usual = [&row](const char *name, const Make &make) {
        row(name, Light::Green, Trouble::None, "arrives as usual", make);
    };
    const auto silent = [&row](const char *name, const QString &since, const Make &make) {
        row(name, Light::Red, Trouble::Silent, "silent since " + since, make);
    };
    usual("healthy", [](MadeSource &) {});
    usual("nearly three revolutions ago", [](MadeSource &m) { m.silentFor(11.9); });
    silent("three revolutions ago", "07:59:48", [](MadeSource &m) { m.silentFor(12.0); });
    usual("an antenna of ten seconds", [](MadeSource &m) { m.silentFor(29.0).source.expectedInterval = 10.0; });
    silent("no period known", "07:59:48", [](MadeSource &m) { m.silentFor(12.0).source.expectedInterval = 0.0; });
    const auto aircraft = [](MadeSource &m) { m.become(ReportOutcome::Track, 58).source.history.fill(1); };
    usual("one aircraft in ten seconds", [aircraft](MadeSource &m) { aircraft(m.silentFor(29.0)); });
    silent("and no more of it", "07:59:29", [aircraft](MadeSource &m) { aircraft(m.silentFor(31.0)); });
    const auto weather = [](MadeSource &m) {
        m.become(ReportOutcome::Weather, 6000).source.category = 8;
        m.source.rate60 = 1.0;
        m.source.delay.median = 20.0;
    };
    usual("a weather picture now and then", [weather](MadeSource &m) { weather(m.silentFor(59.0)); });
    silent("and no more weather", "07:58:59", [weather](MadeSource &m) { weather(m.silentFor(61.0)); });
    silent("no weather, nor anything else", "07:59:40", [weather](MadeSource &m) {
        weather(m.silentFor(20.0));
        m.basis.inputSilent = true;
    });
    usual("pauses are its habit", [](MadeSource &m) {
        for (std::size_t i = 0; i < 24; ++i) {
            m.silentFor(60.0).source.history[2 + i / 6 * 14 + i % 6] = 0; // four times a minute
        }
    });
    const Make stationGoesOn = [](MadeSource &m) { m.silentFor(20.0).basis.stationHeardMs = MadeSource::NowMs; };
    row("the station sends other reports", Light::Amber, Trouble::CategorySilent, "silent since 07:59:40",
        stationGoesOn);
    usual("the only aircraft has gone", [stationGoesOn](MadeSource &m) {
        stationGoesOn(m);
        m.become(ReportOutcome::Track, 150);
    });
    usual("three seconds late", [](MadeSource &m) { m.source.delay.median = 3.0; });
    row("late", Light::Amber, Trouble::Late, "3.1 s late", [](MadeSource &m) { m.source.delay.median = 3.1; });
    usual("a little less than usual", [](MadeSource &m) { m.source.rate60 = 7.0; });
    row("a third of its rate", Light::Amber, Trouble::Thin, "3.3/s, usually 10.0/s",
        [](MadeSource &m) { m.source.rate60 = 3.3; });
    usual("few reports anyway", [](MadeSource &m) {
        m.source.history.fill(1);
        m.source.rate60 = 0.05;
    });
    usual("too young to have a rate", [](MadeSource &m) {
        std::fill(m.source.history.begin(), m.source.history.end() - 12, 0);
        m.source.rate60 = 3.0;
    });
    row("nothing is shown", Light::Amber, Trouble::Unused, "nothing of it is shown",
        [](MadeSource &m) { m.become(ReportOutcome::WrongSensorKind, 50); });
    usual("filtered on purpose", [](MadeSource &m) { m.become(ReportOutcome::OtherSource, 50); });
    row("paused", Light::Off, Trouble::None, {}, [](MadeSource &m) { m.silentFor(100.0).basis.expecting = false; });
}

void TestSourceJudgement::lights()
{
    QFETCH(Make, make);
    MadeSource made;
    make(made);
    const SourceJudgement judgement = made.judge();
    QTEST(judgement.light, "light");
    QTEST(judgement.trouble, "trouble");
    QTEST(judgement.state, "state");
}

void TestSourceJudgement::sentences_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QString>("sentence"); // begins so
    QTest::addColumn<Cure>("cure");
    QTest::addColumn<QString>("button");
    struct Button {
        Cure cure = Cure::None;
        QString text;
    };
    const auto row = [](const char *name, const QString &sentence, const Button &button, const Make &make) {
        QTest::newRow(name) << make << sentence << button.cure << button.text;
    };
    const QString allUsed = "All that it sends is used.";
    const QString plots = "These reports carry neither track number nor address. The plot layer shows them.";
    row("all is well", allUsed, {}, [](MadeSource &) {});
    row("plots alone", plots, {Cure::ShowPlots, "Show plots"},
        [](MadeSource &m) { m.become(ReportOutcome::Plot, 100); });
    row("plots that are shown", plots, {},
        [](MadeSource &m) { m.become(ReportOutcome::Plot, 100).basis.plotsShown = true; });
    row("a few plots beside tracks", allUsed, {}, [](MadeSource &m) { m.add(ReportOutcome::Plot, 100); });
    row("another source", "This source is 25/11, the sensor is set to 25/12.", {Cure::UseSacSic, "Use 25/11"},
        [](MadeSource &m) { m.become(ReportOutcome::OtherSource, 100).source.sic = 11; });
    row("another kind", "The sensor is set to Radar; these are ADS-B reports.",
        {Cure::UseSensorKind, "Set the sensor to ADS-B"},
        [](MadeSource &m) { m.become(ReportOutcome::WrongSensorKind, 100).source.category = 21; });
    const auto surface = [](MadeSource &m, const QByteArray &record) {
        m.become(ReportOutcome::WrongSensorKind, 100).source.category = 10;
        m.source.edition = "1.1";
        auto &example = m.source.examples[static_cast<std::size_t>(ReportOutcome::WrongSensorKind)];
        example.octets = QByteArray::fromHex(record);
        example.size = static_cast<quint32>(example.octets.size());
    };
    row("surface movement radar", "The sensor is set to Radar; these are SMR reports.",
        {Cure::UseSensorKind, "Set the sensor to SMR"},
        [surface](MadeSource &m) { surface(m, "c4 190c 01 0100 4000"); });
    row("multilateration on the surface", "The sensor is set to Radar; these are MLAT reports.",
        {Cure::UseSensorKind, "Set the sensor to MLAT"},
        [surface](MadeSource &m) { surface(m, "c2 190c 01 0010 0020"); });
    row("no kind sends this", "The sensor is set to Radar, which does not send CAT063.", {},
        [](MadeSource &m) { m.become(ReportOutcome::WrongSensorKind, 100).source.category = 63; });
    row("malformed",
        "What cannot be decoded may be of another edition or in another envelope than the one in Settings, Processor. "
        "The last one: item overruns the record at octet 17.",
        {}, [](MadeSource &m) {
            m.become(ReportOutcome::Malformed, 100);
            auto &example = m.source.examples[static_cast<std::size_t>(ReportOutcome::Malformed)];
            example.fault = "item overruns the record";
            example.faultOffset = 17;
        });
    row("hardly any malformed", allUsed, {}, [](MadeSource &m) { m.add(ReportOutcome::Malformed, 3); });
    row("no reader", "Nothing here shows this kind of message of CAT063", {},
        [](MadeSource &m) { m.become(ReportOutcome::NoReader, 100).source.category = 63; });
    row("always late by the same", "Reports arrive 4.2 s after their time of day. It is always the same", {},
        [](MadeSource &m) {
            m.source.delay = {100, 4.24, 4.5, 4.0};
        });
    row("late now and then", "Reports arrive 4.0 s after their time of day. It varies, up to 9.0 s", {},
        [](MadeSource &m) {
            m.source.delay = {100, 4.0, 9.0, 0.2};
        });
    row("hours late", "Reports arrive 3.5 h after their time of day. Its clock, or this computer's, is wrong.", {},
        [](MadeSource &m) {
            m.source.delay = {100, 12600.0, 12600.0, 12600.0};
        });
    row("late, and of another kind", "Reports arrive 4.0 s after", {Cure::UseSensorKind, "Set the sensor to Radar"},
        [](MadeSource &m) {
            m.become(ReportOutcome::WrongSensorKind, 100);
            m.source.delay = {100, 4.0, 9.0, 0.2};
        });
    for (int i = static_cast<int>(ReportOutcome::OtherSource); i < ReportOutcomeCount; ++i) {
        const auto outcome = static_cast<ReportOutcome>(i);
        row(reportOutcomeName(outcome), outcome == ReportOutcome::ModeAC ? "These are replies to Mode A/C" : "", {},
            [outcome](MadeSource &m) { m.become(outcome, 100).source.form = TakenReport::Form::ModeS; });
    }
}

void TestSourceJudgement::sentences()
{
    QFETCH(Make, make);
    QFETCH(QString, sentence);
    MadeSource made;
    make(made);
    const SourceJudgement judgement = made.judge();
    QVERIFY2(judgement.sentence.startsWith(sentence), qPrintable(judgement.sentence));
    QVERIFY2(judgement.sentence.endsWith('.') && !judgement.sentence.contains('%'), qPrintable(judgement.sentence));
    if (!sentence.isEmpty()) {
        QTEST(judgement.cure, "cure");
        QTEST(judgement.cureText, "button");
    }
    QCOMPARE(judgement.cure == Cure::None, judgement.cureText.isEmpty());
}

void TestSourceJudgement::otherReportsOfTheStation()
{
    MadeSource made;
    InputStatistics input;
    SourceStatistics edition = made.source;
    edition.edition = "1.15";
    edition.lastArrivalMs += 1;
    SourceStatistics markers = made.source;
    markers.category = 34;
    markers.lastArrivalMs += 2;
    SourceStatistics neighbour = made.source;
    neighbour.sic = 13;
    neighbour.lastArrivalMs += 3;
    SourceStatistics elsewhere = made.source;
    elsewhere.endpoint = 1;
    elsewhere.lastArrivalMs += 4;
    input.sources = {made.source, edition, markers, neighbour, elsewhere};
    const JudgementBasis basis = SourceJudge::basisFor(made.source, input, made.basis);
    QCOMPARE(basis.categoryHeardMs, MadeSource::NowMs + 1);
    QCOMPARE(basis.stationHeardMs, MadeSource::NowMs + 2);
    QCOMPARE(basis.sensorSic, made.basis.sensorSic);
}

void TestSourceJudgement::namesTheTruthOfTraffic_data()
{
    QTest::addColumn<QString>("scenario");
    QTest::addColumn<SensorType>("kind"); // that the sensor is set to; unknown: the right one
    QTest::addColumn<int>("sicOff"); // what the sensor's SIC is off by
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("sentence"); // begins so
    const auto row = [](const char *name, const char *scenario, SensorType kind, int sicOff, const char *source,
                         const char *sentence) {
        QTest::newRow(name) << QString(scenario) << kind << sicOff << QString(source) << QString(sentence);
    };
    const char *all = "All that it sends is used.";
    row("radar", "demo", UnknownSensor, 0, "25/11 CAT048", all);
    row("its markers", "demo", UnknownSensor, 0, "25/11 CAT034", all);
    row("ADS-B", "adsb", UnknownSensor, 0, "25/21 CAT021", all);
    row("weather", "weather", UnknownSensor, 0, "25/11 CAT008", all);
    row("wrong SIC", "demo", UnknownSensor, 1, "25/11 CAT048", "This source is 25/11, the sensor is set to 25/12.");
    row("ADS-B on a radar", "adsb", RadarSensor, 0, "25/21 CAT021",
        "The sensor is set to Radar; these are ADS-B reports.");
    row("radar on an SDPS", "demo", SdpsSensor, 0, "25/11 CAT048",
        "The sensor is set to SDPS; these are Radar reports.");
    row("system tracks on MLAT", "sdps", MlatSensor, 0, "25/24 CAT062",
        "The sensor is set to MLAT; these are SDPS reports.");
}

void TestSourceJudgement::namesTheTruthOfTraffic()
{
    QFETCH(QString, scenario);
    QFETCH(SensorType, kind);
    QFETCH(int, sicOff);
    QFETCH(QString, source);
    QFETCH(QString, sentence);
    const auto read = ScenarioReader().read(scenario);
    QVERIFY(read);
    QJsonObject json = sensorJson(*read);
    if (kind != UnknownSensor) {
        json["type"] = sensorTypeToString(kind);
    }
    EngineRig rig;
    rig.config.processorType =
        json["processor"] == "modes" ? Config::ProcessorType::ModeS : Config::ProcessorType::Asterix;
    rig.config.processorAsterixVerifySacSic = sicOff != 0;
    const auto sensor = SensorInfo::create(json);
    QVERIFY(sensor);
    sensor->setSacSic(sensor->sac(), static_cast<unsigned char>(sensor->sic() + sicOff));
    rig.open(1, sensor);
    TrafficSource traffic(*read, 1);
    while (traffic.nextTime() < 20) {
        for (const QByteArray &datagram : *traffic.next().datagrams) {
            rig.engine.procMessage(datagram);
        }
    }
    const auto statistics = rig.statistics();
    JudgementBasis basis;
    basis.nowMs = statistics->timeMs;
    basis.sensorKind = sensor->type();
    basis.sensorSac = sensor->sac();
    basis.sensorSic = sensor->sic();
    QStringList names;
    for (const SourceStatistics &found : statistics->sources) {
        names += SourceJudge::nameOf(found);
        if (names.last() == source) {
            SourceStatistics known = found;
            known.delay = {}; // the traffic is of another day
            const QString said = SourceJudge::judge(known, basis).sentence;
            QVERIFY2(said.startsWith(sentence), qPrintable(said));
        }
    }
    QVERIFY2(names.contains(source), qPrintable(names.join(", ")));
}

// A surface movement radar begins a cycle: CAT010 of message type 2.
void TestSourceJudgement::statesAreToldFromTargets()
{
    EngineRig rig;
    const auto sensor = SensorInfo::create(SmrSensor);
    sensor->setLocation(GeoCoordinate(50.0, 14.0));
    rig.open(1, sensor);
    rig.engine.procMessage(QByteArray::fromHex("0a000a d0 0002 02 000000"));
    const auto statistics = rig.statistics();
    QCOMPARE(statistics->sources.size(), 1);
    const SourceJudgement judgement = SourceJudge::judge(statistics->sources[0], JudgementBasis());
    QVERIFY2(judgement.whyNotUsed.isEmpty(), qPrintable(judgement.whyNotUsed));
    QCOMPARE(judgement.shownShare, std::optional(1.0));
}

VYX_TEST(TestSourceJudgement)
#include "tst_source_judgement.moc"
