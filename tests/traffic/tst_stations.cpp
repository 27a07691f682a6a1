#include "played_scenario.h"
#include "reported_target.h"

#include "modes/adsb_tracker.h"
#include "modes/mode_s_decoder.h"
#include "test_program.h"

#include <map>
#include <set>

namespace {

// All kinds of flights, one of them near an airport at 40 N 116 E, and the vehicle that only a surface radar sees.
constexpr char Frame[] = R"({"name": "t", "startTime": "2025-06-01T23:59:30Z", "magneticVariation": -7, %1, "flights": [
    {"callsign": "VYX1", "address": "780A12", "squawk": "1234", "performance": {"speed": 450},
        "route": [{"lat": 40.5, "lon": 116.2, "altitude": 20000}, {"lat": 39.5, "lon": 117.5, "altitude": 30000}]},
    {"callsign": "KVN22", "address": "780B34", "squawk": "7700", "performance": {"speed": 300},
        "route": [{"lat": 39.8, "lon": 115.4, "altitude": 9000}, {"lat": 39.9, "lon": 116.5, "altitude": 4000}],
        "coasting": [{"at": 20, "scans": 2}]},
    {"squawk": "0017", "transponder": "modeac", "performance": {"speed": 140},
        "route": [{"lat": 40.2, "lon": 116.1, "altitude": 6000}, {"lat": 40.6, "lon": 115.0}]},
    {"transponder": "none", "performance": {"speed": 100},
        "route": [{"lat": 40.01, "lon": 116.02, "altitude": 100}, {"lat": 40.03, "lon": 115.9}]},
    {"transponder": "none", "vehicle": true, "performance": {"speed": 20},
        "route": [{"lat": 40.005, "lon": 115.99, "altitude": 20}, {"lat": 39.995, "lon": 115.99}]},
    {"callsign": "SHORT", "address": "780C56", "squawk": "2001", "performance": {"speed": 200},
        "route": [{"lat": 40.1, "lon": 116.0, "altitude": 5000}, {"lat": 40.12, "lon": 116.0}]}]})";

Scenario scenario(const char *kind, const QString &more)
{
    const QString source = QStringLiteral(R"("%1": [{"name": "S", "sac": 1, "sic": 2, "lat": 40, "lon": 116 %2}])");
    const QString json = QString::fromLatin1(Frame).arg(source.arg(QLatin1String(kind), more));
    return PlayedScenario::read(json.toUtf8().constData());
}

const QGeoCoordinate Site(40, 116);

QGeoCoordinate positionOf(const AirTarget &target)
{
    return {target.aircraft.state().latitude, target.aircraft.state().longitude};
}

const AirTarget &nearest(const AirTraffic &traffic, const QGeoCoordinate &position)
{
    const auto nearer = [&position](const AirTarget &a, const AirTarget &b) {
        return positionOf(a).distanceTo(position) < positionOf(b).distanceTo(position);
    };
    return *std::min_element(traffic.targets().begin(), traffic.targets().end(), nearer);
}

// Half of the steps in which a source tells the values.
struct Resolution {
    double position; // metres
    double speed; // knots
    double track; // degrees
    double verticalRate; // feet per minute
    double selectedAltitude = 13; // feet
};

bool isNear(const std::optional<double> &value, double truth, double resolution)
{
    return !value || std::abs(*value - truth) <= resolution;
}

// Says what is wrong with the report, or nothing.
QString faultOf(const ReportedTarget &report, const AirTarget &target, double time, const Resolution &within)
{
    const Aircraft::State &state = target.aircraft.state();
    const bool hasCode = target.flight->transponder != ScenarioFlight::Transponder::None;
    if (positionOf(target).distanceTo(*report.position) > within.position) {
        return QStringLiteral("%1 m away").arg(positionOf(target).distanceTo(*report.position));
    }
    if (!isNear(report.altitude, state.altitude, 50.1)) {
        return QStringLiteral("altitude %1").arg(*report.altitude - state.altitude);
    }
    if (!isNear(report.speed, state.speed, within.speed)) {
        return QStringLiteral("speed %1").arg(*report.speed - state.speed);
    }
    if (report.track && std::abs(Earth::turnBetween(*report.track, state.track)) > within.track) {
        return QStringLiteral("track %1").arg(*report.track);
    }
    if (!isNear(report.verticalRate, state.verticalRate, within.verticalRate)) {
        return QStringLiteral("rate %1").arg(*report.verticalRate);
    }
    if (!isNear(report.selectedAltitude, target.aircraft.selectedAltitude(), within.selectedAltitude)) {
        return QStringLiteral("selected altitude %1").arg(*report.selectedAltitude);
    }
    if (report.squawk && (!hasCode || *report.squawk != target.squawkAt(time))) {
        return QStringLiteral("squawk %1").arg(*report.squawk, 0, 8);
    }
    if (report.address && *report.address != target.flight->address) {
        return QStringLiteral("address %1").arg(*report.address, 0, 16);
    }
    if (!report.callsign.isEmpty() && report.callsign != target.flight->callsign.toLatin1()) {
        return QStringLiteral("callsign %1").arg(QString::fromLatin1(report.callsign));
    }
    return {};
}

} // namespace

Q_DECLARE_METATYPE(Resolution)

class TestStations : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reportsWhatFlies_data()
    {
        QTest::addColumn<QByteArray>("kind");
        QTest::addColumn<QString>("more");
        QTest::addColumn<Resolution>("within");
        QTest::addColumn<QString>("seen"); // places in the list of flights
        QTest::addColumn<double>("interval"); // of the reports of a target

        const auto row = [](const char *name, const char *kind, const char *more, const Resolution &within,
                             const char *seen, double interval) {
            QTest::newRow(name) << QByteArray(kind) << QString(more) << within << QString(seen) << interval;
        };
        const Resolution adsb{1.5, 0.12, 0.01, 3.2};
        row("ADS-B 0.23", "adsb", R"(, "edition": "0.23")", adsb, "1 2 6", 1);
        row("ADS-B 0.26", "adsb", R"(, "edition": "0.26")", adsb, "1 2 6", 1);
        row("ADS-B 2.1", "adsb", R"(, "edition": "2.1", "interval": 2)", adsb, "1 2 6", 2);
        row("ADS-B 2.7", "adsb", R"(, "edition": "2.7", "horizon": false)", adsb, "1 2 6", 1);
        const Resolution system{1, 0.4, 0.3, 32, 16};
        row("multilateration", "mlat", "", system, "1 2 3 6", 1);
        row("multilateration, Cartesian", "mlat", R"(, "positions": "cartesian")", system, "1 2 3 6", 1);
        row("small multilateration", "mlat", R"(, "coverage": 10)", system, "6", 1);
        row("system tracks", "sdps", "", system, "1 2 3 4 6", 4);
        row("system tracks, Cartesian", "sdps", R"(, "positions": "cartesian")", system, "1 2 3 4 6", 4);
        row("surface radar", "smr", "", {0.8, 0.12, 0.01, 0}, "4 5", 1);
        row("SIR-M", "radars", R"(, "category": "sirm")", {12, 0.2, 0.1, 2}, "1 2 3 4 6", 4);
    }

    void reportsWhatFlies()
    {
        QFETCH(QByteArray, kind);
        QFETCH(QString, more);
        QFETCH(Resolution, within);
        QFETCH(QString, seen);
        QFETCH(double, interval);
        TrafficSource source(scenario(kind.constData(), more), 1);
        std::map<std::uint64_t, std::vector<double>> times;
        while (source.nextTime() < 40) {
            const TrafficSource::Sending sending = source.next();
            for (const QByteArray &datagram : *sending.datagrams) {
                eachTarget(datagram, Site, more.contains("sirm"), [&](const ReportedTarget &report) {
                    const AirTarget &target = nearest(source.traffic(), *report.position);
                    times[target.id].push_back(sending.time);
                    const QString fault = faultOf(report, target, sending.time, within);
                    QVERIFY2(fault.isEmpty(), qPrintable(target.flight->callsign + ": " + fault));
                });
            }
        }
        QStringList ids;
        for (const auto &[id, reports] : times) {
            ids.append(QString::number(id));
            for (std::size_t i = 1; i < reports.size() && id != 2; ++i) { // the second is not seen for a while
                QVERIFY(std::abs(reports[i] - reports[i - 1] - interval) < 0.3);
            }
        }
        QCOMPARE(ids.join(' '), seen);
    }

    // Of flight 2, which is not detected for two looks after 20 s, and of 6, which ends after some 20.
    void tellsCoastingAndTrackEnds()
    {
        const std::tuple<const char *, const char *, int, int> kinds[] = {
            {"mlat", "", 2, 1}, {"sdps", "", 2, 1}, {"adsb", "", 0, 0}, {"radars", R"(, "category": "sirm")", 2, 1}};
        for (const auto &[kind, more, coasting, ends] : kinds) {
            TrafficSource source(scenario(kind, more), 1);
            int coasted = 0;
            int ended = 0;
            std::set<unsigned> numbers;
            while (source.nextTime() < 60) {
                const TrafficSource::Sending sending = source.next();
                for (const QByteArray &datagram : *sending.datagrams) {
                    eachTarget(datagram, Site, *more != 0, [&](const ReportedTarget &report) {
                        coasted += report.coasting ? 1 : 0;
                        ended += report.last ? 1 : 0;
                        numbers.insert(report.trackNumber);
                    });
                }
            }
            QVERIFY2(coasted == coasting && ended == ends, kind);
            QVERIFY2(ends == 0 || numbers == std::set<unsigned>({1, 2, 3, 4}) || numbers.size() == 5, kind);
        }
    }

    void modeSFramesMakeTargets_data()
    {
        QTest::addColumn<QString>("format");
        QTest::newRow("beast") << "beast";
        QTest::newRow("avr") << "avr";
    }

    void modeSFramesMakeTargets()
    {
        QFETCH(QString, format);
        using namespace korvane::modes;
        TrafficSource source(scenario("modesReceivers", QStringLiteral(R"(, "format": "%1")").arg(format)), 1);
        ModeSDecoder decoder;
        ADSBTracker tracker;
        std::map<int, int> formats;
        int positions = 0;
        while (source.nextTime() < 20) {
            const TrafficSource::Sending sending = source.next();
            for (const QByteArray &datagram : *sending.datagrams) {
                std::string octets = datagram.toStdString();
                const auto frames =
                    ModeSEncapsulation::extract(octets, ModeSEncapsulation::fromIdentifier(format.toStdString()));
                QVERIFY(octets.empty() && !frames.empty());
                for (const auto &frame : frames) {
                    const auto message = decoder.decode(ModeSMessage::ModeSMsgType(0), frame);
                    ++formats[frame->frame().octets[0] >> 3];
                    const auto target = tracker.procModeSMsg(*message);
                    if (!target || !target->positionValid() || target->positionTime() != frame->timeStamp()) {
                        continue;
                    }
                    const QGeoCoordinate position(target->latitude(), target->longitude());
                    const AirTarget &truth = nearest(source.traffic(), position);
                    QVERIFY(positionOf(truth).distanceTo(position) < 6);
                    QCOMPARE(target->icaoAddr(), truth.flight->address);
                    QVERIFY(std::abs(target->altitudeBaro() - truth.aircraft.state().altitude) < 13);
                    ++positions;
                }
            }
        }
        QVERIFY2(positions > 3 * 35, qPrintable(QString::number(positions)));
        for (const int expected : {4, 5, 11, 17, 20, 21}) {
            QVERIFY2(formats[expected] >= 10, qPrintable(QString::number(expected)));
        }
        QCOMPARE(formats.size(), std::size_t(6));
        for (const auto &[key, target] : tracker.targets()) {
            const AirTarget &truth = nearest(source.traffic(), {target->latitude(), target->longitude()});
            const Aircraft::State &state = truth.aircraft.state();
            QCOMPARE(QString::fromStdString(target->callsign()), truth.flight->callsign);
            QCOMPARE(target->squawk(), truth.squawkAt(20));
            QVERIFY(std::abs(target->groundSpeed() - state.speed) < 1.5);
            QVERIFY(std::abs(Earth::turnBetween(target->heading(), state.track)) < 0.5);
            QVERIFY(std::abs(target->verticalRate() - state.verticalRate) <= 33);
        }
        QCOMPARE(tracker.targets().size(), std::size_t(3));
    }
};

VYX_TEST(TestStations)
#include "tst_stations.moc"
