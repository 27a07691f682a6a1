#include "assessment/sensor_assessor.h"
#include "test_program.h"
#include "traffic/scenario_reader.h"
#include "traffic/traffic_source.h"

#include <QTest>

#include <cmath>

namespace {

constexpr char Frame[] = R"({"name": "t", "startTime": "2025-06-01T23:58:00Z", "trafficOf": "demo", "radars": [
    {"name": "R", "sac": 25, "sic": 11, "lat": 40.05, "lon": 116.7333333, "antennaAltitude": 45, "rotationPeriod": %1,
     "rangeSigma": 0.015, "azimuthSigma": 0.025, "ellipsoid": true %2}], %3})";
constexpr char Adsb[] = R"("adsb": [{"name": "A", "sac": 25, "sic": 21, "lat": 40.05, "lon": 116.7333333}])";
constexpr char SystemTracks[] = R"("sdps": [{"name": "S", "sac": 25, "sic": 41, "lat": 40.05, "lon": 116.7333333}])";

// Plays a scenario with a radar of such errors until it has sent about so many plots.
AssessmentReport played(const QString &errors, const QString &reference, qint64 plots, double period = 4.0,
    const SensorAssessor::Options &options = {}, bool isTimed = true)
{
    ScenarioReader reader;
    const auto scenario = reader.parse(QString::fromLatin1(Frame).arg(period).arg(errors, reference).toUtf8(), {});
    if (!scenario) {
        qFatal("%s", qPrintable(reader.error()));
    }
    TrafficSource source(*scenario, 7);
    const auto assessor = std::make_unique<SensorAssessor>(options);
    const double end = static_cast<double>(plots) * period / 33; // of 43 aircraft some are out of sight
    while (source.nextTime() < end) {
        const auto sending = source.next();
        const QDateTime arrival = scenario->startTime.addMSecs(std::llround(sending.time * 1000) + 20);
        for (const QByteArray &datagram : *sending.datagrams) {
            assessor->add({reinterpret_cast<const unsigned char *>(datagram.constData()),
                              static_cast<std::size_t>(datagram.size())},
                isTimed ? arrival : QDateTime());
        }
    }
    return assessor->report();
}

} // namespace

class TestSensorAssessor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void findsErrorsPutIn_data()
    {
        QTest::addColumn<QString>("reference");
        QTest::addColumn<bool>("isTimed");
        QTest::addColumn<double>("bias");
        QTest::addColumn<double>("gain");
        QTest::addColumn<double>("azimuth");
        QTest::addColumn<double>("offset");

        QTest::newRow("none, against ADS-B") << Adsb << true << 0.0 << 0.0 << 0.0 << 0.0;
        QTest::newRow("all, against ADS-B") << Adsb << true << 95.0 << 0.0006 << -0.14 << 0.18;
        QTest::newRow("the other way, times of day alone") << Adsb << false << -140.0 << -0.001 << 0.3 << -0.35;
        QTest::newRow("all, against system tracks") << SystemTracks << true << 60.0 << -0.0004 << 0.08 << 0.5;
    }

    // Within the figures that are promised for 20,000 plots, with that many where VYX_TEST_PLOTS says so. The scenario
    // runs over midnight, with false plots and missed ones.
    void findsErrorsPutIn()
    {
        QFETCH(QString, reference);
        QFETCH(bool, isTimed);
        QFETCH(double, bias);
        QFETCH(double, gain);
        QFETCH(double, azimuth);
        QFETCH(double, offset);
        const qint64 plots = std::max(qEnvironmentVariableIntValue("VYX_TEST_PLOTS"), 3500);
        const QString errors = QStringLiteral(R"(, "rangeBias": %1, "rangeGain": %2, "azimuthBias": %3,
            "timeOffset": %4, "falsePlots": 3, "detectionProbability": 0.9)")
                                   .arg(bias)
                                   .arg(gain)
                                   .arg(azimuth)
                                   .arg(offset);
        const AssessmentReport report = played(errors, reference, plots, 4.0, {}, isTimed);
        QCOMPARE(report.sensors.size(), 1);
        QVERIFY2(report.sensors.front().trouble.isEmpty(), qPrintable(report.sensors.front().trouble));
        QCOMPARE(report.sensors.front().biases.size(), 1);
        const BiasReport &found = report.sensors.front().biases.front();
        qInfo("%lld matched, %lld used: %.2f +- %.2f m, %.7f +- %.7f, %.5f +- %.5f degrees, %.4f +- %.4f s",
            found.matched, found.used, found.rangeBias.value, found.rangeBias.confidence, found.rangeGain.value,
            found.rangeGain.confidence, found.azimuthBias.value, found.azimuthBias.confidence, found.timeOffset.value,
            found.timeOffset.confidence);
        QVERIFY(found.solved && found.matched > plots / 2);
        QVERIFY(std::abs(found.rangeBias.value - bias) < 10.0);
        QVERIFY(std::abs(found.rangeGain.value - gain) < 10.0 / 100e3);
        QVERIFY(std::abs(found.azimuthBias.value - azimuth) < 0.01);
        QVERIFY(std::abs(found.timeOffset.value - offset) < 0.010);
        QVERIFY(found.rangeBias.confidence > 0.2 && found.rangeBias.confidence < 10.0);
        QVERIFY(std::abs(found.rangeDeviation - 0.015 * 1852) < 4.0);
        QVERIFY(std::abs(found.azimuthDeviation - 0.025) < 0.004);
    }

    void countsDetectionsAndFalsePlots()
    {
        const auto sensor =
            played(R"(, "detectionProbability": 0.85, "falsePlots": 5, "psr": false)", Adsb, 5000).sensors.front();
        const DetectionGrid::Cell all = sensor.detection.grid.total();
        const auto interval = ProportionInterval::of(all.hits, all.looks);
        QVERIFY2(interval.low < 0.86 && interval.high > 0.84, qPrintable(QString::number(interval.low)));
        QVERIFY(all.looks > 3500 && all.primaryHits == 0 && all.secondaryHits == all.hits);
        const double perTurn = static_cast<double>(sensor.falsePlots.all()) / sensor.falsePlots.turns;
        QVERIFY2(std::abs(perTurn - 5.0) < 0.8, qPrintable(QString::number(perTurn)));
        QCOMPARE(sensor.falsePlots.doubled, 0);
    }

    // Where either radar detects a target, its track goes on.
    void takesBothDetectionsOfOneTargetTogether()
    {
        const auto sensor = played(R"(, "detectionProbability": 0.8)", Adsb, 5000).sensors.front();
        DetectionGrid::Cell near;
        for (int ring = 0; ring < 5; ++ring) {
            near += sensor.detection.grid.ring(ring);
        }
        const auto part = [](qint64 hits, qint64 looks) {
            return static_cast<double>(hits) / static_cast<double>(looks);
        };
        QVERIFY2(part(near.hits, near.looks) > 0.93, qPrintable(QString::number(part(near.hits, near.looks))));
        QVERIFY(std::abs(part(near.secondaryHits, near.secondaryLooks) - 0.8) < 0.03);
        QVERIFY(part(sensor.falsePlots.all(), sensor.falsePlots.plots) < 0.005);
    }

    void measuresRotationAndDelay()
    {
        const auto sensor = played(R"(, "timeOffset": -0.25)", Adsb, 1500, 5.5).sensors.front();
        QCOMPARE(sensor.rotation.basis, RotationReport::Basis::NorthMarkers);
        QVERIFY(std::abs(sensor.rotation.period - 5.5) < 0.001);
        QVERIFY(sensor.rotation.jitter < 0.002 && sensor.rotation.turns > 30);
        // The way takes 20 ms, and the clock is behind.
        QVERIFY2(std::abs(sensor.serviceDelay.median - 0.270) < 0.005,
            qPrintable(QString::number(sensor.serviceDelay.median)));
        QVERIFY(sensor.plotDelay.median > sensor.serviceDelay.median);
    }

    void saysWhyThereAreNoDifferences()
    {
        const auto alone = played({}, R"("sdps": [])", 700).sensors.front();
        QVERIFY(alone.biases.isEmpty() && alone.trouble.contains(QLatin1String("CAT021")));
        SensorAssessor::Options options;
        options.radars = {{1, 2, QStringLiteral("other"), {}}};
        options.onlyThose = true;
        QVERIFY(played({}, Adsb, 700, 4.0, options).sensors.isEmpty());
    }

    void takesSiteThatIsGiven()
    {
        SensorAssessor::Options options;
        options.radars = {{25, 11, QStringLiteral("North"), GeoCoordinate(40.06, 116.7333333, 45)}};
        const auto sensor = played({}, Adsb, 3500, 4.0, options).sensors.front();
        QCOMPARE(sensor.title(), QStringLiteral("North (25/11)"));
        // A kilometre off, which no bias of range or azimuth explains.
        QVERIFY(sensor.biases.front().rangeDeviation > 300.0);
    }
};

VYX_TEST(TestSensorAssessor)
#include "tst_sensor_assessor.moc"
