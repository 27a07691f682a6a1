#include "example/aircraft_positions.h"
#include "modes/adsb_tracker.h"
#include "modes/encoder.h"
#include "modes/log.h"
#include "modes/mode_s_decoder.h"
#include "test_files.h"
#include "test_program.h"

#include <QTest>

#include <cmath>

using namespace korvane::modes;

namespace {

constexpr std::uint32_t Address = 0x4B1800;
constexpr LatLon Airport{47.46, 8.55};

// One aircraft, its receiver and a clock in seconds.
struct Sky {
    ModeSDecoder decoder;
    ADSBTracker tracker;

    std::shared_ptr<ADSBTarget> hear(double seconds, ModeSFrame frame)
    {
        frame.timeStamp = static_cast<unsigned long long>(1000000 + seconds * 1000);
        ModeSMessage message;
        decoder.decode(ModeSMessage::AnyDownlink, frame, message);
        return tracker.procModeSMsg(message);
    }
    std::shared_ptr<ADSBTarget> airborne(double seconds, const LatLon &place, bool isOdd, int altitude = 10000)
    {
        return hear(seconds, encodeAirbornePosition(Address, place, altitude, isOdd));
    }
    std::shared_ptr<ADSBTarget> surface(double seconds, const LatLon &place, bool isOdd, double speed = 10)
    {
        return hear(seconds, encodeSurfacePosition(Address, place, speed, 90, isOdd));
    }
};

bool isAt(const ADSBTarget &target, const LatLon &place)
{
    return target.positionValid() && distanceBetween({target.latitude(), target.longitude()}, place) < 10;
}

LatLon eastOf(const LatLon &place, double metres)
{
    return {place.latitude, place.longitude + metres / (111195 * std::cos(place.latitude * 0.0174532925))};
}

class LogLines final : public LogHandler {
public:
    void log(Log::Level, const std::string &text) override { lines.append(QString::fromStdString(text)); }
    QStringList lines;
};

} // namespace

class TestAdsbTracker : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pairsReports_data()
    {
        QTest::addColumn<bool>("isSurface");
        QTest::addColumn<double>("speed");
        QTest::addColumn<double>("seconds"); // between the two
        QTest::addColumn<bool>("isPlaced");
        QTest::newRow("in the air, 10 s") << false << 0.0 << 10.0 << true;
        QTest::newRow("in the air, later") << false << 0.0 << 10.1 << false;
        QTest::newRow("fast on the ground, 25 s") << true << 30.0 << 25.0 << true;
        QTest::newRow("fast on the ground, later") << true << 30.0 << 25.1 << false;
        QTest::newRow("slow on the ground, 50 s") << true << 25.0 << 50.0 << true;
        QTest::newRow("slow on the ground, later") << true << 25.0 << 50.1 << false;
    }

    void pairsReports()
    {
        QFETCH(bool, isSurface);
        QFETCH(double, speed);
        QFETCH(double, seconds);
        QFETCH(bool, isPlaced);
        Sky sky;
        sky.tracker.setReferencePosition(
            Airport.latitude + 5, Airport.longitude - 5); // far, but good enough for a pair
        const auto report = [&](double time, bool isOdd) {
            return isSurface ? sky.surface(time, Airport, isOdd, speed) : sky.airborne(time, Airport, isOdd);
        };
        QVERIFY(!report(0, false)->positionValid());
        const auto target = report(seconds, true);
        QCOMPARE(target->positionValid(), isPlaced);
        QCOMPARE(isAt(*target, Airport), isPlaced);
        QCOMPARE(target->onGround(), isSurface);
    }

    void needsReferenceOnTheSurface()
    {
        Sky sky;
        sky.surface(0, Airport, false);
        QVERIFY(!sky.surface(1, Airport, true)->positionValid());
        sky.tracker.setReferencePosition(-43, 99);
        const auto target = sky.surface(2, Airport, false);
        QVERIFY(std::abs(target->latitude() - (Airport.latitude - 90)) < 1e-4);
        QVERIFY(std::abs(target->longitude() - 99) < 45);
        Sky other;
        other.tracker.setReferencePosition(Airport.latitude, Airport.longitude);
        other.surface(0, Airport, true);
        QVERIFY(isAt(*other.surface(1, Airport, false), Airport));
        other.tracker.clearReferencePosition(); // the last position does as well
        QVERIFY(isAt(*other.surface(40, eastOf(Airport, 150), true), eastOf(Airport, 150)));
        QVERIFY(isAt(*other.surface(41, eastOf(Airport, 155), false), eastOf(Airport, 155)));
    }

    void followsFlight()
    {
        Sky sky;
        sky.hear(0, encodeVelocity(Address, 480, 90, 640));
        std::shared_ptr<ADSBTarget> target;
        for (int i = 0; i < 600; ++i) {
            const double seconds = 0.7 * i + (i > 300 ? 200 : 0); // a gap
            const LatLon place = eastOf({47, 179.5}, 247 * seconds); // over the date line
            target = sky.airborne(seconds, place, i % 5 < 2);
            QVERIFY(i < 2 || target->positionValid());
            if (i > 2) {
                QVERIFY2(isAt(*target, place), qPrintable(QString::number(i)));
            }
        }
        QVERIFY(target->longitude() < -178);
        QCOMPARE(std::lround(target->groundSpeed()), 480);
        QCOMPARE(std::lround(target->heading()), 90);
        QCOMPARE(target->verticalRate(), 640);
        QCOMPARE(target->altitudeBaro(), 10000);
        QCOMPARE(sky.tracker.targets().size(), 1U);
    }

    // A stray position is not taken; one that is repeated wins over what came before.
    void refusesUnreachablePositions()
    {
        Sky sky;
        LogLines log;
        Log::setLogHandler(&log);
        Log::setShowLevel(Log::Debug);
        sky.hear(0, encodeVelocity(Address, 480, 90, 0));
        sky.airborne(0, Airport, false);
        QVERIFY(isAt(*sky.airborne(0.5, Airport, true), Airport));
        const LatLon far = eastOf(Airport, 40000);
        QVERIFY(isAt(*sky.airborne(1, far, false), Airport));
        QVERIFY(isAt(*sky.airborne(1.5, Airport, false), Airport));
        const LatLon near = eastOf(Airport, 2100);
        QVERIFY(isAt(*sky.airborne(2, near, true), near)); // 2 km and what it flew since
        QVERIFY(log.lines.isEmpty());
        std::shared_ptr<ADSBTarget> target;
        for (int i = 0; i < 8; ++i) {
            target = sky.airborne(3 + 0.5 * i, far, i % 2);
        }
        Log::setLogHandler(nullptr);
        QVERIFY(isAt(*target, far));
        QCOMPARE(log.lines, QStringList{"4B1800: position given up after contradictions"});
    }

    void refusesPositionsOutOfRange()
    {
        Sky sky;
        sky.tracker.setReferencePosition(Airport.latitude - 9.1, Airport.longitude); // 1012 km
        sky.airborne(0, Airport, false);
        QVERIFY(!sky.airborne(1, Airport, true)->positionValid());
        QCOMPARE(sky.tracker.positionsOutOfRange(), 1ULL);
        sky.tracker.setReferencePosition(Airport.latitude - 8.9, Airport.longitude);
        QVERIFY(isAt(*sky.airborne(2, Airport, false), Airport));
    }

    void checksAltitude_data()
    {
        QTest::addColumn<bool>("isOn");
        QTest::addColumn<double>("seconds");
        QTest::addColumn<int>("altitude");
        QTest::addColumn<bool>("isTaken"); // after 10000 ft
        QTest::newRow("within the change") << true << 1.0 << 10150 << true;
        QTest::newRow("climb beyond the change") << true << 1.0 << 10175 << false;
        QTest::newRow("descent beyond the change") << true << 4.0 << 9825 << false;
        QTest::newRow("after the time") << true << 4.1 << 30000 << true;
        QTest::newRow("check is off") << false << 1.0 << 30000 << true;
    }

    void checksAltitude()
    {
        QFETCH(bool, isOn);
        QFETCH(double, seconds);
        QFETCH(int, altitude);
        for (const bool isReply : {false, true}) {
            Sky sky;
            sky.tracker.setAltituteBaroChecking(isOn, 4, 150);
            sky.airborne(0, Airport, false, 10000);
            const auto target = isReply ? sky.hear(seconds, encodeAltitudeReply(Address, altitude))
                                        : sky.airborne(seconds, Airport, false, altitude);
            QTEST(target->altitudeBaro() == altitude, "isTaken");
        }
    }

    void collectsValues()
    {
        Sky sky;
        QVERIFY(!sky.hear(0, encodeAllCall(Address))); // makes no target
        QVERIFY(!sky.hear(0, encodeIdentityReply(Address, 01234)));
        auto target = sky.airborne(1, Airport, false);
        QVERIFY(target->icaoAddrValid() && !target->callsignValid() && !target->squawkValid());
        QVERIFY(!target->groundSpeedValid() && !target->headingValid() && !target->positionValid());
        sky.hear(1, encodeIdentityReply(Address, 01234));
        QCOMPARE(target->squawk(), std::uint16_t(01234));
        sky.hear(1, encodeEmergency(Address, 07700, 1));
        QCOMPARE(target->squawk(), std::uint16_t(07700));
        sky.hear(2, encodeCommBAltitude(Address, 12000, 0x202CC371C32CE0));
        QCOMPARE(target->callsign(), std::string("KLM1023"));
        QCOMPARE(target->altitudeBaro(), 12000);
        sky.hear(3, encodeIdentification(Address, 'A', 3, "SWR12"));
        sky.hear(3, encodeCommBAltitude(Address, 12000, 0x202CC371C32CE0));
        QCOMPARE(target->callsign(), std::string("SWR12"));
        sky.hear(4, encodeSquitter(Address, 0x9B06B6AF189400)); // heading and air speed take the track's place
        QCOMPARE(std::lround(target->heading()), 244);
        QVERIFY(!target->groundSpeedValid());
        sky.hear(4, encodeSquitter(Address, 0xA0C38000000000)); // height is no barometric altitude
        QCOMPARE(target->altitudeBaro(), 12000);
        QVERIFY(!sky.hear(4, encodeAltitudeReply(0x123456, 3000)));
    }

    void keepsOtherAddressesApart()
    {
        Sky sky;
        const auto aircraft = sky.airborne(0, Airport, false);
        ModeSFrame vehicle = encodeIdentification(Address, 'C', 1, "TUG");
        vehicle.octets[0] = 18 << 3 | 1;
        setParity(vehicle, 0);
        const auto other = sky.hear(0, vehicle);
        QVERIFY(other && other != aircraft);
        QVERIFY(!other->icaoAddrValid());
        QCOMPARE(other->icaoAddr(), Address);
        QVERIFY(!aircraft->callsignValid());
    }

    void expiredValuesMustBeHeardAgain()
    {
        Sky sky;
        sky.hear(0, encodeIdentification(Address, 'A', 3, "SWR12"));
        sky.hear(0, encodeIdentityReply(Address, 01234));
        sky.hear(0, encodeVelocity(Address, 480, 90, 640));
        sky.airborne(0, Airport, false);
        QVERIFY(isAt(*sky.airborne(0, Airport, true), Airport));
        auto target = sky.hear(60, encodeAllCall(Address));
        QVERIFY(isAt(*target, Airport) && !target->positionExpired());
        target = sky.hear(60.001, encodeAllCall(Address));
        QVERIFY(!target->positionValid() && target->positionExpired());
        target = sky.hear(300, encodeAllCall(Address));
        QVERIFY(target->callsignValid() && target->squawkValid() && target->altitudeBaroValid());
        QVERIFY(target->groundSpeedValid() && target->headingValid() && target->verticalRateValid());
        target = sky.hear(300.001, encodeAllCall(Address));
        QVERIFY(!target->callsignValid() && target->callsignExpired());
        QVERIFY(!target->altitudeBaroValid() && !target->groundSpeedValid());
        QVERIFY(!target->headingValid() && !target->verticalRateValid());
        target = sky.hear(301, encodeCommBAltitude(Address, 12000, 0x202CC371C32CE0));
        QCOMPARE(target->callsign(), std::string("KLM1023")); // the squitter's does not stand in its way any more
        QVERIFY(target->callsignValid() && !target->callsignExpired() && target->altitudeBaroValid());
        QVERIFY(isAt(*sky.airborne(302, Airport, false), Airport)); // the old position still vouches for it
    }

    void silentTargetsAreForgotten()
    {
        Sky sky;
        sky.airborne(0, Airport, false);
        for (int second = 1; second <= 660; ++second) {
            sky.hear(second, encodeIdentification(0x111111, 'A', 1, "NEW")); // never a pause
            QVERIFY(sky.tracker.targets().size() == 2 || second > 600);
        }
        QCOMPARE(sky.tracker.targets().size(), 1U);
        sky.hear(-1000, encodeIdentification(0x222222, 'A', 1, "OLD")); // a recording is played from further ahead
        QCOMPARE(sky.tracker.targets().size(), 1U);
    }

    void killsTargets()
    {
        Sky sky;
        sky.airborne(0, Airport, false);
        sky.hear(5, encodeIdentification(0x111111, 'A', 1, "NEW"));
        QVERIFY(sky.tracker.killTargets(1000000).empty());
        const auto removed = sky.tracker.killTargets(1000001);
        QCOMPARE(removed.size(), 1U);
        QCOMPARE(removed[0]->icaoAddr(), Address);
        QCOMPARE(sky.tracker.targets().size(), 1U);
        QVERIFY(!sky.airborne(6, Airport, true)->positionValid()); // begun anew
        QVERIFY(!sky.tracker.procModeSMsg(std::shared_ptr<ModeSMessage>()));
    }

    void runsExample()
    {
        std::string stream;
        for (ModeSFrame frame :
            {encodeIdentification(Address, 'A', 3, "VYX1"), encodeAirbornePosition(Address, Airport, 8000, false),
                encodeAirbornePosition(Address, Airport, 8000, true)}) {
            frame.ticks = 12000000;
            appendEncapsulated(stream, frame, ModeSEncapsulation::Beast);
        }
        const std::vector<std::string> lines = aircraftPositions({stream.substr(0, 30), stream.substr(30)});
        QCOMPARE(lines.size(), 1U);
        QCOMPARE(lines[0], std::string("4B1800 VYX1 47.460 8.550 8000 ft"));
        QVERIFY(readmeShows(MODES_FOLDER, "aircraft_positions.cpp", "std::vector<std::string> aircraftPositions"));
    }
};

VYX_TEST(TestAdsbTracker)
#include "tst_adsb_tracker.moc"
