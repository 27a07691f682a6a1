#include "played_scenario.h"

#include "test_program.h"
#include "traffic/earth.h"

#include <cmath>
#include <set>

namespace {

// A radar at 40 N 116 E that measures without error, and a place for its flights.
constexpr char Frame[] = R"({"name": "t", "startTime": "2025-06-01T23:59:50Z", "radars": [{"name": "R", "sac": 25,
    "sic": 11, "lat": 40, "lon": 116, "coveragePrimary": 60, "coverageSecondary": 150 %1}], "flights": [%2]})";

Scenario scenario(const QString &flights, const QString &radar = QString())
{
    return PlayedScenario::read(QString::fromLatin1(Frame).arg(radar, flights).toUtf8().constData());
}

// A flight that begins at an azimuth and distance (miles) from the radar and flies away from it.
QString flight(double azimuth, double miles, double altitude, const QString &more = QString(), double speed = 20)
{
    double latitude = 40;
    double longitude = 116;
    Earth::advance(latitude, longitude, azimuth, miles * Earth::MetresPerNauticalMile);
    double endLatitude = latitude;
    double endLongitude = longitude;
    Earth::advance(endLatitude, endLongitude, azimuth, 100 * Earth::MetresPerNauticalMile);
    return QStringLiteral(R"({"callsign": "VYX1", "address": "780A12", "squawk": "1234",
        "performance": {"speed": %6}, "route": [{"lat": %1, "lon": %2, "altitude": %3}, {"lat": %4, "lon": %5}] %7})")
        .arg(latitude, 0, 'f', 9)
        .arg(longitude, 0, 'f', 9)
        .arg(altitude)
        .arg(endLatitude, 0, 'f', 9)
        .arg(endLongitude, 0, 'f', 9)
        .arg(speed)
        .arg(more);
}

} // namespace

class TestRadarModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void turnsOnce()
    {
        for (const auto &[sectors, period] : {std::pair{32, 4.0}, std::pair{16, 12.0}}) {
            const QString radar = QString(R"(, "sectors": %1, "rotationPeriod": %2)").arg(sectors).arg(period);
            const PlayedScenario played(scenario(QString(), radar), period);
            int north = 0;
            std::set<double> azimuths;
            for (const _ast_datarecord_034_t &service : played.services) {
                QVERIFY(service.i010.sac == 25 && service.i041.period == period);
                if (service.i000.type == 1) {
                    ++north;
                } else {
                    azimuths.insert(service.i020.azimuth);
                }
            }
            QCOMPARE(north, 1);
            QCOMPARE(azimuths.size(), static_cast<std::size_t>(sectors));
            QCOMPARE(*azimuths.rbegin(), 360.0 - 360.0 / sectors);
        }
    }

    void measuresPosition_data()
    {
        QTest::addColumn<double>("azimuth");
        QTest::addColumn<double>("miles"); // over ground
        QTest::addColumn<double>("altitude");
        QTest::addColumn<double>("slant");
        QTest::addColumn<double>("sentAt"); // when the antenna has left the target's sector

        QTest::newRow("east, just inside its sector") << 90.1 << 20.0 << 1000.0 << 20.0007 << 1.125;
        QTest::newRow("before north") << 359.5 << 20.0 << 1000.0 << 20.0007 << 4.0;
        QTest::newRow("high and near") << 200.0 << 5.0 << 36456.7 << 7.8102 << 2.25;
        QTest::newRow("south-west, far") << 225.5 << 140.0 << 30000.0 << 140.0871 << 2.625;
    }

    void measuresPosition()
    {
        QFETCH(double, azimuth);
        QFETCH(double, miles);
        QFETCH(double, altitude);
        QFETCH(double, slant);
        QFETCH(double, sentAt);
        const PlayedScenario played(scenario(flight(azimuth, miles, altitude)), 4.1);
        QCOMPARE(played.targets.size(), std::size_t(1));
        const _ast_datarecord_048_t &record = played.targets.front().record;
        QCOMPARE(played.targets.front().sentAt, sentAt);
        // Resolution, and the little that a slow target moves.
        QVERIFY(std::abs(record.i040.rho - slant) < 1.0 / 256 + 20 * 4.1 / 3600);
        QVERIFY(std::abs(Earth::turnBetween(record.i040.theta, azimuth)) < 0.006);
        QVERIFY(std::abs(record.i042.x * record.i042.resolution - slant * std::sin(Earth::radians(azimuth))) < 0.04);
        QVERIFY(std::abs(record.i042.y * record.i042.resolution - slant * std::cos(Earth::radians(azimuth))) < 0.04);
        // The look lies before the end of the sector; the scenario crosses midnight.
        const double seconds = std::fmod(86390 + azimuth / 90, 86400);
        QVERIFY2(std::abs(record.i140.seconds - seconds) < 0.02, qPrintable(QString::number(record.i140.seconds)));
    }

    // Near the antenna an aircraft crosses many sectors, with the antenna's turn or against it.
    void reportsOnceEachTurnAcrossSectorBorders()
    {
        for (const char *end : {R"({"lat": 40.0, "lon": 116.5})", R"({"lat": 40.0, "lon": 115.5})"}) {
            const PlayedScenario played(
                scenario(QStringLiteral(
                    R"({"callsign": "VYX1", "address": "1", "squawk": "1", "performance": {"speed": 900},
                "route": [{"lat": 40.03, "lon": 116.0, "altitude": 3000}, %1]})")
                             .arg(QLatin1String(end))),
                60);
            QVERIFY(std::abs(std::ssize(played.targets) - 15) <= 1);
            for (std::size_t i = 1; i < played.targets.size(); ++i) {
                const double gap = played.targets[i].sentAt - played.targets[i - 1].sentAt;
                QVERIFY2(gap > 2.5 && gap < 5.5, qPrintable(QString::number(gap)));
            }
        }
    }

    void seesWhatItsKindAllows_data()
    {
        QTest::addColumn<QString>("radar");
        QTest::addColumn<QString>("flight");
        QTest::addColumn<double>("miles");
        QTest::addColumn<int>("type"); // -1: no report

        const auto row = [](const char *name, const QString &radar, const QString &flight, double miles, int type) {
            QTest::newRow(name) << radar << flight << miles << type;
        };
        const QString modeAc = R"(, "transponder": "modeac")";
        const QString none = R"(, "transponder": "none")";
        row("Mode S with primary", "", "", 50, 7);
        row("Mode A/C with primary", "", modeAc, 50, 3);
        row("Mode A/C without echo", "", modeAc + R"(, "primaryEcho": false)", 50, 2);
        row("no transponder", "", none, 50, 1);
        row("radar without Mode S", R"(, "modes": false)", "", 50, 3);
        row("beyond all coverage", "", "", 151, -1);
        row("below the horizon", "", "", 124, -1); // at 10000 ft
        row("above the horizon", "", "", 122, 5);
        row("below the horizon, which is off", R"(, "horizon": false)", "", 124, 5);
        row("below the lowest elevation", R"(, "minimumElevation": 2.0)", "", 50, -1);
    }

    void seesWhatItsKindAllows()
    {
        QFETCH(QString, radar);
        QFETCH(QString, flight);
        QFETCH(double, miles);
        QFETCH(int, type);
        QString target = ::flight(45, miles, 10000, flight);
        if (target.contains("none")) {
            target.remove(R"("squawk": "1234",)");
        }
        const PlayedScenario played(scenario(target, radar), 4);
        QCOMPARE(played.targets.empty(), type < 0);
        if (type < 0) {
            return;
        }
        const _ast_datarecord_048_t &record = played.targets.front().record;
        QCOMPARE(int(record.i020.typ), type);
        const bool isModeS = type >= 4;
        QVERIFY(record.i220.present == isModeS && record.i240.present == isModeS && record.i250.present == isModeS);
        QVERIFY(record.i070.present == (type >= 2) && record.i090.present == (type >= 2));
    }

    void reportsIdentityLevelAndIntention()
    {
        const PlayedScenario played(scenario(flight(45, 50, 31060, QString(), 470)), 4);
        const _ast_datarecord_048_t &record = played.targets.front().record;
        QCOMPARE(record.i220.address, 0x780A12u);
        QCOMPARE(QByteArray(record.i240.text), QByteArray("VYX1"));
        QVERIFY(record.i070.code == 01234 && record.i090.level == 1242); // 31050 ft
        QVERIFY(std::abs(record.i200.groundSpeed - 470) < 0.2 && std::abs(record.i200.heading - 45) < 0.5);
        QVERIFY(record.i250.count == 2 && record.i250.octets[7] == 0x40 && record.i250.octets[15] == 0x60);
        QCOMPARE(ast_bds_40_decode(record.i250.octets).mcpAltitude, 31056);
        QCOMPARE(ast_bds_60_decode(record.i250.octets + 8).baroRate, 0.0);
    }

    void initiatesAndEndsTracks()
    {
        // Leaves the coverage after some 24 s.
        const PlayedScenario played(scenario(flight(45, 147.5, 30000, QString(), 400)), 60);
        QVERIFY(played.targets.size() > 4);
        for (std::size_t i = 0; i < played.targets.size(); ++i) {
            const _ast_datarecord_048_t &record = played.targets[i].record;
            QCOMPARE(record.i161.trackNumber, 1);
            QCOMPARE(record.i170.cnf, i < 2);
            QCOMPARE(record.i170.tre, i + 1 == played.targets.size());
        }
        QVERIFY(played.targets.back().sentAt < 40);
    }

    void leavesOutCoastingScans()
    {
        // Scans and the seconds between the reports before and after; the last so many that the track is dropped.
        for (const auto &[scans, gap] : {std::pair{1, 8.0}, std::pair{5, 24.0}}) {
            const bool isDropped = scans == 5;
            const QString coasting = QString(R"(, "coasting": [{"at": 20, "scans": %1}])").arg(scans);
            const PlayedScenario played(scenario(flight(45, 50, 10000, coasting)), 80);
            int ends = 0;
            double last = 0;
            double longest = 0;
            for (const PlayedScenario::Target &target : played.targets) {
                ends += target.record.i170.tre ? 1 : 0;
                QCOMPARE(target.record.i040.present, target.record.i020.typ != 0);
                if (!target.record.i040.present) {
                    continue;
                }
                longest = std::max(longest, target.sentAt - last);
                last = target.sentAt;
            }
            QCOMPARE(ends, isDropped ? 1 : 0);
            QCOMPARE(longest, gap);
            const auto number = [](const PlayedScenario::Target &target) { return target.record.i161.trackNumber; };
            QCOMPARE(number(played.targets.front()) != number(played.targets.back()), isDropped);
        }
    }

    void changesSquawk()
    {
        const QString change = QStringLiteral(R"(, "squawkChanges": [{"at": 10, "squawk": "7700"}])");
        const PlayedScenario played(scenario(flight(45, 50, 10000, change)), 30);
        for (const PlayedScenario::Target &target : played.targets) {
            const bool after = target.record.i140.seconds < 86390; // ten seconds later it is past midnight
            QCOMPARE(target.record.i070.code, after ? 07700 : 01234);
            QCOMPARE(int(target.record.i230.stat), after ? 2 : 0);
        }
        QVERIFY(played.targets.size() > 5);
    }

    void spreadsACrowdOverDatagrams()
    {
        QStringList flights;
        for (int i = 0; i < 100; ++i) {
            flights.append(flight(90.2 + i * 0.1, 30 + i, 30000));
        }
        const PlayedScenario played(scenario(flights.join(QLatin1Char(','))), 4);
        QCOMPARE(played.targets.size(), std::size_t(100));
        QVERIFY(played.largest > 1300 && played.largest <= 1400);
    }
};

VYX_TEST(TestRadarModel)
#include "tst_radar_model.moc"
