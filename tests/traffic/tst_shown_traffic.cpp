#include "engine_rig.h"
#include "played_scenario.h"
#include "traffic/sensor_json.h"

#include "sensors/sensor_info.h"
#include "test_program.h"

#include <QHash>
#include <QUdpSocket>

#include <cmath>

namespace {

// Flights seen by every kind of sensor at 40 N 116 E, but the surface radar, which sees the taxiing one alone.
constexpr char Frame[] = R"({"name": "t", "startTime": "2025-06-01T06:00:00Z",
    "%1": [{"name": "S", "sac": 1, "sic": 2, "lat": 40, "lon": 116 %2}], "flights": [
    {"callsign": "VYX1", "address": "780A12", "squawk": "1234", "performance": {"speed": 450},
        "route": [{"lat": 40.5, "lon": 116.2, "altitude": 20000}, {"lat": 39.5, "lon": 117.5, "altitude": 30000}]},
    {"callsign": "KVN22", "address": "780B34", "squawk": "7700", "performance": {"speed": 300},
        "route": [{"lat": 39.8, "lon": 115.4, "altitude": 9000}, {"lat": 39.9, "lon": 116.5, "altitude": 4000}]},
    {"transponder": "none", "vehicle": true, "performance": {"speed": 20},
        "route": [{"lat": 40.005, "lon": 115.99, "altitude": 20}, {"lat": 39.995, "lon": 115.99}]}]})";

// Where a target is shown. What a radar measures, the slant range, is shown as it is.
GeoCoordinate placeOf(const AirTarget &target, bool slant)
{
    const GeoCoordinate site(40.0, 116.0);
    const Aircraft::State &state = target.aircraft.state();
    const GeoCoordinate place(state.latitude, state.longitude);
    const double height = slant ? state.altitude * 0.3048 : 0.0;
    return site.atDistanceAndAzimuth(std::hypot(site.distanceTo(place), height), site.azimuthTo(place));
}

const AirTarget *nearest(const AirTraffic &traffic, const GeoCoordinate &place, bool slant)
{
    const AirTarget *found = nullptr;
    for (const AirTarget &target : traffic.targets()) {
        if (!found || placeOf(target, slant).distanceTo(place) < placeOf(*found, slant).distanceTo(place)) {
            found = &target;
        }
    }
    return found;
}

} // namespace

// From the flights of a scenario over the generator, a socket and the engine to what is shown of them.
class TestShownTraffic final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsWhatFlies_data()
    {
        QTest::addColumn<QByteArray>("kind");
        QTest::addColumn<QString>("more");
        QTest::addColumn<double>(
            "metres"); // the encoding's resolution, and the way flown since the report was measured
        QTest::addColumn<double>("knots");
        QTest::addColumn<QStringList>("shown"); // address and call sign
        const QStringList addressed{"780A12 VYX1", "780B34 KVN22"};
        const QStringList anonymous{"------ -------", "------ -------"};
        const auto row = [](const char *name, const char *kind, const char *more, double metres, double knots,
                             const QStringList &shown) {
            QTest::newRow(name) << QByteArray(kind) << QString(more) << metres << knots << shown;
        };
        row("radar", "radars", "", 45, 0.3, addressed);
        row("radar, CAT001", "radars", R"(, "category": "001")", 45, 0.3, anonymous);
        row("Alenia SIR-M", "radars", R"(, "category": "sirm")", 75, 0.3, anonymous);
        for (const char *edition : {"0.23", "0.26", "2.1", "2.7"}) {
            row(qPrintable(QStringLiteral("ADS-B ") + edition), "adsb",
                qPrintable(QStringLiteral(R"(, "edition": "%1")").arg(edition)), 2, 0.2, addressed);
        }
        row("ADS-B, Mode S", "modesReceivers", "", 150, 1, addressed);
        row("multilateration", "mlat", "", 2, 0.5, addressed);
        row("system tracks", "sdps", "", 2, 0.5, addressed);
        row("surface radar", "smr", "", 2, 0.3, anonymous.mid(1));
    }

    void showsWhatFlies()
    {
        QFETCH(QByteArray, kind);
        QFETCH(QString, more);
        QFETCH(double, metres);
        QFETCH(double, knots);
        const QString json = QString::fromLatin1(Frame).arg(QLatin1String(kind), more);
        const Scenario scenario = PlayedScenario::read(json.toUtf8().constData());
        const QJsonObject sensor = sensorJson(scenario);
        EngineRig rig;
        rig.config.processorType = sensor["processor"] == "modes" ? Config::ProcessorType::ModeS
            : sensor["processor"] == "sirm"                       ? Config::ProcessorType::AleniaSirM
                                                                  : Config::ProcessorType::Asterix;
        rig.config.processorAleniaSirMFormat = Config::AleniaSirMFormat::Raw;
        rig.open(1, SensorInfo::create(sensor));
        QCOMPARE(rig.opened.size(), 1);

        TrafficSource source(scenario, 1);
        QUdpSocket socket;
        quint64 sent = 0;
        QHash<quint64, QPointF> places;
        const bool slant = kind == "radars";
        int compared = 0;
        QStringList shown;
        while (source.nextTime() < 30) {
            for (const QByteArray &datagram : *source.next().datagrams) {
                socket.writeDatagram(datagram, QHostAddress::LocalHost, rig.port());
                ++sent;
            }
            QTRY_COMPARE(rig.engine.messagesReceived(), sent);
            shown.clear();
            for (const TrackSnapshot &track : rig.tracks()) {
                shown += track.icaoAddrString + ' ' + track.callsign;
                if (!track.carCoordinateValid || places.value(track.incarnationId) == track.carCoordinate) {
                    continue;
                }
                places[track.incarnationId] = track.carCoordinate;
                const AirTarget &target = *nearest(source.traffic(), track.geoCoordinate, slant);
                const double away = placeOf(target, slant).distanceTo(track.geoCoordinate);
                QVERIFY2(away <= metres, qPrintable(QStringLiteral("%1 m away").arg(away)));
                compare(track, target, knots);
                ++compared;
            }
        }
        shown.sort();
        QTEST(shown, "shown");
        QVERIFY(compared >= 6 * shown.size());
    }

private:
    static void compare(const TrackSnapshot &track, const AirTarget &target, double knots)
    {
        const Aircraft::State &state = target.aircraft.state();
        if (track.groundSpeedValid) {
            QVERIFY2(
                std::abs(track.groundSpeed - state.speed) <= knots, qPrintable(QString::number(track.groundSpeed)));
        }
        if (track.levelValid) {
            QVERIFY2(std::abs(track.level - state.altitude) <= 60, qPrintable(QString::number(track.level)));
        }
        if (track.modeACodeValid) {
            QCOMPARE(track.modeACode, unsigned(target.squawkAt(0)));
        }
        if (track.icaoAddrValid) {
            QCOMPARE(track.icaoAddr, target.flight->address);
        }
    }
};

VYX_TEST(TestShownTraffic)
#include "tst_shown_traffic.moc"
