#include "modes/cpr.h"
#include "test_program.h"

#include <QTest>

#include <cmath>

using namespace korvane::modes;

namespace {

// Half a step of 17 bits in metres: greatest beside the poles, where one zone goes all around.
constexpr double AirborneError = 10;
constexpr double SurfaceError = AirborneError / 4;

double error(const std::optional<LatLon> &decoded, const LatLon &expected)
{
    return decoded ? distanceBetween(*decoded, expected) : 1e9;
}

} // namespace

class TestCpr : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void countsZones()
    {
        for (const auto &[latitude, zones] : {std::pair{0.0, 59}, {10.4704712, 59}, {10.4704714, 58}, {52.2572, 36},
                 {86.5353699, 3}, {86.5353701, 2}, {86.9999999, 2}, {87.0, 1}, {90.0, 1}}) {
            QCOMPARE(cprLongitudeZones(latitude), zones);
            QCOMPARE(cprLongitudeZones(-latitude), zones);
        }
    }

    void decodesReceivedPositions()
    {
        const CprPosition even{false, false, 17, 93000, 51372};
        const CprPosition odd{true, false, 17, 74158, 50194};
        QVERIFY(error(decodeCprGlobal(even, odd, false), {52.2572021484, 3.9193725586}) < 0.01);
        QVERIFY(error(decodeCprGlobal(even, odd, true), {52.2657801741, 3.9389125279}) < 0.01);
        QVERIFY(error(decodeCprLocal(even, {52.258, 3.918}), {52.2572021484, 3.9193725586}) < 0.01);
        const CprPosition surfaceOdd{true, true, 17, 39195, 110320};
        QVERIFY(error(decodeCprLocal(surfaceOdd, {51.990, 4.375}), {52.320561, 4.735735}) < 1);
    }

    // Over the whole globe, the poles, the equator and the date line among them.
    void comesBackFromEverywhere()
    {
        int refused = 0;
        int decoded = 0;
        for (double latitude = -90; latitude <= 90; latitude += 3.7) {
            for (double longitude = -180; longitude < 180; longitude += 7.3) {
                const LatLon place{latitude, longitude};
                const LatLon near{std::min(latitude + 0.2, 90.0), longitude - 0.2};
                for (const bool isNewerOdd : {false, true}) {
                    const CprPosition even = encodeCpr(place, false, false);
                    const CprPosition odd = encodeCpr(place, true, false);
                    const std::optional<LatLon> pair = decodeCprGlobal(even, odd, isNewerOdd);
                    ++(pair ? decoded : refused);
                    QVERIFY(!pair || error(pair, place) < AirborneError);
                    QVERIFY(error(decodeCprLocal(isNewerOdd ? odd : even, near), place) < AirborneError);
                    const CprPosition evenGround = encodeCpr(place, false, true);
                    const CprPosition oddGround = encodeCpr(place, true, true);
                    const auto ground = decodeCprGlobalSurface(evenGround, oddGround, isNewerOdd, near);
                    QVERIFY(!ground || error(ground, place) < SurfaceError);
                    QVERIFY(error(decodeCprLocal(isNewerOdd ? oddGround : evenGround, near), place) < SurfaceError);
                    QVERIFY(!ground || (ground->longitude >= -180 && ground->longitude < 180));
                }
            }
        }
        QVERIFY2(refused < decoded / 100, qPrintable(QString("%1 of %2").arg(refused).arg(decoded)));
    }

    void comesBackFromTwelveBits()
    {
        const LatLon place{47.46, 8.55};
        const CprPosition even = encodeCpr(place, false, false, 12);
        const CprPosition odd = encodeCpr(place, true, false, 12);
        QVERIFY(even.latitude < 4096 && odd.longitude < 4096);
        QVERIFY(error(decodeCprGlobal(even, odd, true), place) < 120);
    }

    void refusesPairs()
    {
        const LatLon place{47.46, 8.55};
        const CprPosition even = encodeCpr(place, false, false);
        const CprPosition odd = encodeCpr(place, true, false);
        QVERIFY(decodeCprGlobal(even, odd, false));
        QVERIFY(!decodeCprGlobal(even, even, false));
        QVERIFY(!decodeCprGlobal(odd, even, false));
        QVERIFY(!decodeCprGlobal(even, encodeCpr(place, true, true), false));
        QVERIFY(!decodeCprGlobal(even, encodeCpr(place, true, false, 12), false));
        // On either side of a limit between numbers of zones.
        QVERIFY(
            !decodeCprGlobal(encodeCpr({10.4700, 8.55}, false, false), encodeCpr({10.4710, 8.55}, true, false), true));
    }
};

VYX_TEST(TestCpr)
#include "tst_cpr.moc"
