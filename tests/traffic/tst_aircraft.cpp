#include "traffic/aircraft.h"
#include "traffic/earth.h"
#include "traffic/mode_s_registers.h"

#include "asterix/asterix.h"
#include "test_program.h"

#include <QTest>

#include <cmath>

namespace {

constexpr ScenarioPerformance Performance{.speed = 360, .climbRate = 2000, .descentRate = 1500, .turnRate = 3};

// miles north and east of a point of the demo area.
ScenarioWaypoint at(double north, double east, std::optional<double> altitude = {})
{
    ScenarioWaypoint waypoint;
    waypoint.latitude = 40 + north / 60;
    waypoint.longitude = 116 + east / 60 / std::cos(Earth::radians(40));
    waypoint.altitude = altitude;
    return waypoint;
}

} // namespace

class TestAircraft : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void turnsToTheNextLeg_data()
    {
        QTest::addColumn<ScenarioWaypoint>("last");
        QTest::addColumn<double>("track");
        QTest::addColumn<int>("side"); // 1: right

        QTest::newRow("right") << at(12, 40) << 90.0 << 1;
        QTest::newRow("left across north") << at(12, -40) << 270.0 << -1;
        QTest::newRow("a little left") << at(40, -3) << 353.9 << -1;
    }

    void turnsToTheNextLeg()
    {
        QFETCH(ScenarioWaypoint, last);
        QFETCH(double, track);
        QFETCH(int, side);
        Aircraft aircraft({at(0, 0), at(12, 0), last}, Performance);
        QVERIFY(std::abs(Earth::turnBetween(aircraft.state().track, 0)) < 0.1);
        double turned = 0;
        for (int second = 0; second < 220; ++second) {
            aircraft.advance(1);
            turned += aircraft.state().turnRate;
            QVERIFY(std::abs(aircraft.state().turnRate) <= Performance.turnRate + 1e-9);
        }
        QVERIFY(turned * side > 0);
        QVERIFY2(std::abs(Earth::turnBetween(aircraft.state().track, track)) < 3,
            qPrintable(QString::number(aircraft.state().track)));
    }

    void levelsOff()
    {
        // From, to and the rate on the way.
        for (const auto &[from, to, rate] :
            {std::tuple{5000.0, 11000.0, 2000.0}, std::tuple{12000.0, 8000.0, -1500.0}}) {
            Aircraft aircraft({at(0, 0, from), at(100, 0, to)}, Performance);
            QCOMPARE(aircraft.selectedAltitude(), to);
            aircraft.advance(60);
            QCOMPARE(aircraft.state().verticalRate, rate);
            QVERIFY(std::abs(aircraft.state().altitude - from - rate) < 1);
            for (int second = 0; second < 300; ++second) {
                aircraft.advance(1);
                QVERIFY2((aircraft.state().altitude - to) * rate <= 0, "flew through its level");
            }
            QCOMPARE(aircraft.state().altitude, to);
            QCOMPARE(aircraft.state().verticalRate, 0.0);
        }
    }

    void coversTheGroundOfItsSpeed()
    {
        Aircraft aircraft({at(0, 0), at(0, 80)}, Performance);
        aircraft.advance(600);
        const double flown = Earth::distance(40, 116, aircraft.state().latitude, aircraft.state().longitude);
        QVERIFY(std::abs(flown / Earth::MetresPerNauticalMile - 60) < 0.05);
        QVERIFY(!aircraft.routeEnded());
        aircraft.advance(300);
        QVERIFY(aircraft.routeEnded());
    }

    void doesNotCircleAWaypointInsideItsTurn()
    {
        Aircraft aircraft({at(0, 0), at(10, 0), at(9, 0.5), at(-20, 0)}, Performance);
        aircraft.advance(480);
        QVERIFY(aircraft.routeEnded());
    }

    void holdsAndLeaves()
    {
        for (const ScenarioWaypoint::Turn direction : {ScenarioWaypoint::Turn::Right, ScenarioWaypoint::Turn::Left}) {
            ScenarioWaypoint fix = at(10, 0);
            fix.holdTurns = 2;
            fix.holdDirection = direction;
            Aircraft aircraft({at(0, 0), fix, at(40, 0)}, Performance);
            double turned = 0;
            double farthest = 0;
            for (int second = 0; second < 640; ++second) {
                aircraft.advance(1);
                const Aircraft::State &state = aircraft.state();
                if (std::abs(state.turnRate) > 2.9) {
                    turned += state.turnRate;
                }
                farthest =
                    std::max(farthest, Earth::distance(fix.latitude, fix.longitude, state.latitude, state.longitude));
            }
            QVERIFY2(std::abs(turned * static_cast<int>(direction) - 720) < 30, qPrintable(QString::number(turned)));
            QVERIFY(farthest < 14 * Earth::MetresPerNauticalMile);
            aircraft.advance(400);
            QVERIFY(aircraft.routeEnded());
        }
    }

    void registersDecode_data()
    {
        QTest::addColumn<Aircraft::State>("state");
        QTest::addColumn<double>("selected");
        QTest::addColumn<double>("heading"); // magnetic, variation 7 degrees west
        QTest::addColumn<double>("airspeed"); // indicated
        QTest::addColumn<double>("mach");

        // Airspeeds: tables of the standard atmosphere.
        QTest::newRow("cruising south-west")
            << Aircraft::State{.altitude = 35000, .track = 225, .speed = 460} << 35000.0 << 232.0 << 271.0 << 0.798;
        QTest::newRow("climbing across north")
            << Aircraft::State{.altitude = 10000, .track = 357, .speed = 290, .verticalRate = 2400} << 24000.0 << 4.0
            << 251.0 << 0.454;
    }

    void registersDecode()
    {
        QFETCH(Aircraft::State, state);
        QFETCH(double, selected);
        QFETCH(double, heading);
        QFETCH(double, airspeed);
        QFETCH(double, mach);
        const _ast_bds_40_t intention = ast_bds_40_decode(selectedVerticalIntention(selected).octets.data());
        QVERIFY(intention.success && intention.mcpAltitudeStatus && intention.fmsAltitudeStatus);
        QVERIFY(std::abs(intention.mcpAltitude - selected) <= 8);
        QVERIFY(std::abs(intention.baroPressure - 1013.2) < 0.06);
        const _ast_bds_60_t speed = ast_bds_60_decode(headingAndSpeed(state, -7).octets.data());
        QVERIFY(speed.success && speed.baroRateStatus && speed.inertialRateStatus);
        QVERIFY(std::abs(Earth::turnBetween(speed.magneticHeading, heading)) < 0.1);
        QVERIFY2(
            std::abs(speed.indicatedAirspeed - airspeed) < 2.5, qPrintable(QString::number(speed.indicatedAirspeed)));
        QVERIFY2(std::abs(speed.mach - mach) < 0.005, qPrintable(QString::number(speed.mach)));
        QVERIFY(std::abs(speed.baroRate - state.verticalRate) <= 16);
        QVERIFY(std::abs(speed.inertialRate - state.verticalRate) <= 16);
    }
};

VYX_TEST(TestAircraft)
#include "tst_aircraft.moc"
