#include "recorded_stream.h"
#include "test_program.h"

#include "recognition/input_proposal.h"
#include "sensors/radar_sensor_info.h"
#include "sensors/sensor_manager.h"

#include <QTest>

// What is proposed for what was found.
class TestInputProposal final : public QObject {
    Q_OBJECT

private:
    SensorManager m_sensors;

    static constexpr const char *Plot = "48 161/TRN=7 040/RHO=50 220=0x400123 020/TYP=7";

    // One report a line, each of a source of its own where it begins with SAC/SIC in brackets.
    static StreamFindings findings(const QString &lines)
    {
        RecordedStream stream;
        for (QString line : lines.split('\n')) {
            int sac = 25;
            int sic = 0;
            if (line.startsWith('[')) {
                sac = line.mid(1).section('/', 0, 0).toInt();
                sic = line.section('/', 1, 1).section(']', 0, 0).toInt();
                line = line.section("] ", 1);
            }
            stream.add(fromSource(encodedReport(line.section(' ', 0, 0).toInt(), line.section(' ', 1)), sac, sic));
        }
        return stream.findings();
    }

    InputProposal proposal(const QString &lines) { return {findings(lines), m_sensors}; }

private Q_SLOTS:
    void init() { m_sensors.reset(); }

    void theBestSourceIsTaken_data()
    {
        QTest::addColumn<QString>("lines");
        QTest::addColumn<QString>("taken"); // type and source
        QTest::addColumn<bool>("checked"); // SAC/SIC
        const QString plot = Plot;
        const QString system = "[25/9] 62 040=9 105/LAT=50 105/LON=8";
        const QString adsb = "[25/8] 21 080=0x400123 130/LAT=50 130/LON=8 073=100 040/ATP=0";
        const QString mlat = "[25/7] 20 161/TRN=3 041/LAT=50 041/LON=8";
        const auto row = [](const char *tag, const QStringList &lines, const char *taken, bool checked) {
            QTest::newRow(tag) << lines.join('\n') << taken << checked;
        };
        row("radar", {plot}, "radar 25/0", false);
        row("system tracks before all", {plot, plot, adsb, mlat, system}, "sdps 25/9", false);
        row("ADS-B before multilateration", {mlat, mlat, adsb}, "adsb 25/8", false);
        row("several ADS-B stations together", {adsb, "[25/6] " + adsb.mid(7)}, "adsb 25/6", false);
        row("multilateration before radars", {plot, plot, mlat}, "mlat 25/7", false);
        const QString surface = "[25/5] 10 000=1 161/TRK=5 040/RHO=800 040/TH=90 042/X=800";
        const QString airport = "[25/5] 10 000=1 220=0x400123 041/LAT=50 041/LON=8";
        row("surface movement radar", {surface, surface, airport, "[25/5] 10 000=4"}, "smr 25/5", false);
        row("multilateration of an airport", {airport, "[25/5] 10 000=4", surface, airport, airport}, "mlat 25/5",
            false);
        row("of radars the one with most", {plot, "[25/2] " + plot, "[25/2] " + plot, "[25/3] " + plot}, "radar 25/2",
            true);
        row("tracks before plots", {"[25/2] 48 040/RHO=5", "[25/2] 48 040/RHO=5", plot}, "radar 25/0", true);
        row("weather of another radar", {plot, "[25/2] 8 000=254"}, "radar 25/0", true);
    }

    void theBestSourceIsTaken()
    {
        QFETCH(QString, lines);
        QFETCH(QString, taken);
        QFETCH(bool, checked);
        const InputProposal proposed = proposal(lines);
        const auto sensor = proposed.sensor();
        QCOMPARE(QStringLiteral("%1 %2/%3")
                     .arg(SensorInfo::typeToString(sensor->type()))
                     .arg(sensor->sac())
                     .arg(sensor->sic()),
            taken);
        Config config;
        config.inputComm = Config::InputComm::File;
        config.processorAsterixUap = 3;
        config.processorType = Config::ProcessorType::ModeS;
        proposed.applyTo(&config);
        QCOMPARE(config.processorAsterixVerifySacSic, checked);
        QCOMPARE(config.sensorType, sensor->type());
        QCOMPARE(config.sensorSic, sensor->sic());
        QCOMPARE(int(config.processorType), int(Config::ProcessorType::Asterix));
        QCOMPARE(config.processorAsterixUap, 0);
        QCOMPARE(int(config.inputComm), int(Config::InputComm::File));
    }

    void onlyWhatIsMissingIsAsked()
    {
        InputProposal radar = proposal(Plot);
        QVERIFY(radar.siteMissing() && radar.rotationPeriodMissing());
        QVERIFY(!radar.sensor()->location().isValid());
        QVERIFY(radar.choiceText().contains("where it stands is not known"));
        radar.setSite(GeoCoordinate(50, 8));
        radar.setRotationPeriod(4.0);
        Config config;
        radar.applyTo(&config);
        QVERIFY(!radar.siteMissing() && !radar.rotationPeriodMissing());
        QCOMPARE(config.sensorLocation, GeoCoordinate(50, 8));
        QCOMPARE(config.sensorRadarRotationPeriod, 4.0);
        QVERIFY(config.sensorRadarIsPrimary && config.sensorRadarIsSecondary && config.sensorRadarIsModeS);

        const InputProposal told = proposal(QString(Plot) + "\n34 000=1 041=5 120/LAT=48.5 120/LON=-7.25");
        QVERIFY(!told.siteMissing() && !told.rotationPeriodMissing());
        QVERIFY(!proposal("62 040=9 105/LAT=50 105/LON=8").siteMissing());
        QVERIFY(proposal("62 040=9 100/X=50 100/Y=8").siteMissing());
        QVERIFY(proposal("10 000=1 161/TRK=5 040/RHO=800 040/TH=90").siteMissing());
        QVERIFY(proposal("48 040/RHO=50 040/THETA=90").siteMissing()); // plots
        QVERIFY(!proposal("48 070/MODE3A=07421").siteMissing()); // these two draw nothing
        QVERIFY(!proposal("34 000=1").siteMissing());
    }

    void theSensorFileAnswers()
    {
        const auto known = QSharedPointer<RadarSensorInfo>::create();
        known->setName("Feldberg");
        known->setSacSic(25, 0);
        known->setLocation(GeoCoordinate(47.9, 8.0));
        known->setRotationPeriod(12.0);
        m_sensors.addSensor(known);
        const InputProposal radar = proposal(Plot);
        QVERIFY(radar.isFromSensorFile() && !radar.siteMissing() && !radar.rotationPeriodMissing());
        QCOMPARE(radar.choiceText(), QStringLiteral("Played as Radar \"Feldberg\" of the sensor file."));
        Config config;
        radar.applyTo(&config);
        QCOMPARE(config.sensorName, QStringLiteral("Feldberg"));
        QCOMPARE(config.sensorRadarRotationPeriod, 12.0);
        // Another kind of sensor under the same identification is not meant.
        QVERIFY(!proposal("20 161/TRN=3 041/LAT=50 041/LON=8").isFromSensorFile());
    }

    // Offsets from a reference point that nobody knows would put what is known into the wrong place.
    void positionsInWgs84AreEnough()
    {
        const auto ignores = [this](const char *lines) {
            Config config;
            proposal(lines).applyTo(&config);
            return config.processorAsterixIgnoreCartesianCoordinates;
        };
        QVERIFY(ignores("20 161/TRN=3 041/LAT=50 041/LON=8 042/X=50 042/Y=80"));
        QVERIFY(!ignores("20 161/TRN=3 042/X=50 042/Y=80"));
        QVERIFY(!ignores("20 161/TRN=3 042/X=50 042/Y=80\n20 161/TRN=4 042/X=5 042/Y=8 041/LAT=50 041/LON=8"));
    }

    void whyThereIsLittleToSee_data()
    {
        QTest::addColumn<QString>("lines");
        QTest::addColumn<QString>("why");
        const auto row = [](const char *lines, const char *why) { QTest::newRow(lines) << lines << why; };
        row(Plot, "");
        row("48 040/RHO=5", "the plot layer shows them");
        row("48 070/MODE3A=512", "so they make no tracks.");
        row("34 000=1", "no reports of targets");
        row("10 000=1 161/TRK=5 042/X=80 042/Y=90", "");
        row("10 000=1 161/TRK=5", "I010/040");
        row("21 080=0x400123 073=100 040/ATP=0", "WGS-84");
        row("62 040=9", "an identity and a position");
        row("4 000=1 020=100", "no reports of targets");
    }

    void whyThereIsLittleToSee()
    {
        QFETCH(QString, lines);
        QFETCH(QString, why);
        const InputProposal proposed = proposal(lines);
        QVERIFY2(proposed.shortfallText().contains(why) && proposed.shortfallText().isEmpty() == why.isEmpty(),
            qPrintable(proposed.shortfallText()));
    }
};

VYX_TEST(TestInputProposal)
#include "tst_input_proposal.moc"
