#include "played_scenario.h"
#include "scenario_rig.h"

#include "modes/adsb_tracker.h"
#include "modes/mode_s_decoder.h"
#include "test_program.h"
#include "traffic/earth.h"

#include <QHash>

#include <cmath>
#include <map>
#include <set>

namespace {

// All kinds of flights, one of them near an airport at 40 N 116 E, and the vehicle that only a surface radar sees.
constexpr char Frame[] = R"({"name": "t", "startTime": "2025-06-01T23:59:30Z", "magneticVariation": -7,
    "%1": [{"name": "S", "sac": 1, "sic": 2, "lat": 40, "lon": 116 %2}], "flights": [
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

constexpr double ShortEnds = 21.6; // seconds, of flight 6

Scenario scenario(const QByteArray &kind, const QString &more)
{
    return PlayedScenario::read(QString::fromLatin1(Frame).arg(QString::fromLatin1(kind), more).toUtf8().constData());
}

const GeoCoordinate Site(40.0, 116.0);

// Where a target is shown. What a radar measures, the slant range, is shown as it is.
GeoCoordinate placeOf(const AirTarget &target, bool slant)
{
    const Aircraft::State &state = target.aircraft.state();
    const GeoCoordinate place(state.latitude, state.longitude);
    const double height = slant ? state.altitude * 0.3048 : 0.0;
    return Site.atDistanceAndAzimuth(std::hypot(Site.distanceTo(place), height), Site.azimuthTo(place));
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

// Cartesian positions are metres of the ground, and are shown as metres of the plane.
GeoCoordinate placeOnPlane(const QPointF &fromSite)
{
    return Site.atDistanceAndAzimuth(
        std::hypot(fromSite.x(), fromSite.y()), std::atan2(fromSite.x(), fromSite.y()) / Earth::radians(1));
}

// How far what is shown may be away: half of the steps in which a source tells the values, and the way flown since a
// radar has measured.
struct Resolution {
    double place; // metres
    double speed; // knots
    double heading; // degrees
    double verticalRate; // feet per minute
};

// What is shown of a flight, by name.
using Shown = std::map<QString, QString>;

Shown shownOf(const TrackSnapshot &track)
{
    const auto address = QString::number(track.icaoAddr, 16).toUpper();
    const std::tuple<const char *, bool, QString> values[]{{"address", track.icaoAddrValid, address},
        {"call", track.callsignValid, track.callsign},
        {"code", track.modeACodeValid, QString::number(track.modeACode, 8)},
        {"heading", track.headingValid, QString::number(track.heading)},
        {"level", track.levelValid, QString::number(track.level)},
        {"rate", track.verticalRateValid, QString::number(track.verticalRate)},
        {"selected", track.selectedAltitudeValid, QString::number(track.selectedAltitude)},
        {"speed", track.groundSpeedValid, QString::number(track.groundSpeed)}};
    Shown shown;
    for (const auto &[name, valid, text] : values) {
        if (valid) {
            shown[name] = text;
        }
    }
    return shown;
}

// The first value that is not the flight's; empty: none.
QString faultOf(const Shown &shown, const AirTarget &target, double time, const Resolution &within)
{
    const Aircraft::State &state = target.aircraft.state();
    const std::map<QString, std::pair<double, double>> numbers{{"level", {state.altitude, 60}},
        {"speed", {state.speed, within.speed}}, {"rate", {state.verticalRate, within.verticalRate}},
        {"selected", {target.aircraft.selectedAltitude(), 16}}};
    const bool hasCode = target.flight->transponder != ScenarioFlight::Transponder::None;
    const std::map<QString, QString> texts{{"call", target.flight->callsign},
        {"address", QString::number(target.flight->address, 16).toUpper()},
        {"code", hasCode ? QString::number(target.squawkAt(time), 8) : QStringLiteral("none")}};
    for (const auto &[name, text] : shown) {
        const auto number = numbers.find(name);
        const bool good = name == "heading"
            ? std::abs(Earth::turnBetween(text.toDouble(), state.track)) <= within.heading
            : number == numbers.end() ? texts.at(name) == text
                                      : std::abs(text.toDouble() - number->second.first) <= number->second.second;
        if (!good) {
            return name + ' ' + text;
        }
    }
    return {};
}

} // namespace

Q_DECLARE_METATYPE(Resolution)

// From the flights of a scenario over the generator and the engine to what is shown of them.
class TestShownTraffic final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsWhatFlies_data()
    {
        QTest::addColumn<QByteArray>("kind");
        QTest::addColumn<QString>("more");
        QTest::addColumn<Resolution>("within");
        QTest::addColumn<QString>("seen"); // places in the list of flights
        QTest::addColumn<double>("interval"); // of the reports of a target; 0: of no fixed one
        QTest::addColumn<QString>("values"); // of the first flight that is seen
        const auto row = [](const char *name, const char *kind, const char *more, const Resolution &within,
                             const char *seen, double interval, const char *values) {
            QTest::newRow(name) << QByteArray(kind) << QString(more) << within << QString(seen) << interval
                                << QString(values);
        };
        const char *all = "address call code heading level rate selected speed";
        const Resolution radar{45, 0.3, 0.2, 50};
        row("radar", "radars", "", radar, "1 2 3 4 6", 4, all);
        row("radar, CAT001", "radars", R"(, "category": "001")", radar, "1 2 3 4 6", 4, "code heading level speed");
        row("Alenia SIR-M", "radars", R"(, "category": "sirm")", {75, 0.3, 0.2, 50}, "1 2 3 4 6", 4,
            "code heading level rate speed");
        const Resolution adsb{1.5, 0.12, 0.01, 3.2};
        row("ADS-B 0.23", "adsb", R"(, "edition": "0.23")", adsb, "1 2 6", 1,
            "address call heading level rate selected speed");
        row("ADS-B 0.26", "adsb", R"(, "edition": "0.26")", adsb, "1 2 6", 1, all);
        row("ADS-B 2.1", "adsb", R"(, "edition": "2.1", "interval": 2)", adsb, "1 2 6", 2, all);
        row("ADS-B 2.7", "adsb", R"(, "edition": "2.7", "horizon": false)", adsb, "1 2 6", 1, all);
        row("ADS-B, Mode S", "modesReceivers", "", {150, 1.5, 0.5, 33}, "1 2 6", 0,
            "address call code heading level speed");
        const Resolution system{1, 0.5, 0.3, 32};
        row("multilateration", "mlat", "", system, "1 2 3 6", 1, all);
        row("multilateration, Cartesian", "mlat", R"(, "positions": "cartesian")", system, "1 2 3 6", 1, all);
        row("small multilateration", "mlat", R"(, "coverage": 10)", system, "6", 1, all);
        row("system tracks", "sdps", "", system, "1 2 3 4 6", 4, all);
        row("system tracks, Cartesian", "sdps", R"(, "positions": "cartesian")", system, "1 2 3 4 6", 4, all);
        row("surface radar", "smr", "", {0.8, 0.12, 0.01, 0}, "4 5", 1, "heading speed");
    }

    void showsWhatFlies()
    {
        QFETCH(QByteArray, kind);
        QFETCH(QString, more);
        QFETCH(Resolution, within);
        QFETCH(QString, seen);
        QFETCH(double, interval);
        ScenarioRig rig(scenario(kind, more));
        const bool slant = kind == "radars";
        const bool isCartesian = more.contains("cartesian");
        const QPointF site = rig.projector.toCartesian(Site.latitude(), Site.longitude());
        const quint64 first = seen.section(' ', 0, 0).toULongLong();
        QHash<quint64, QPointF> places;
        std::map<quint64, std::vector<double>> times;
        std::set<QString> values;
        rig.play(40, [&](const QByteArray &, double time) {
            for (const TrackSnapshot &track : rig.tracks()) {
                if (!track.carCoordinateValid || places.value(track.incarnationId) == track.carCoordinate) {
                    continue;
                }
                places[track.incarnationId] = track.carCoordinate;
                const GeoCoordinate place =
                    isCartesian ? placeOnPlane(track.carCoordinate - site) : track.geoCoordinate;
                const AirTarget &target = *nearest(rig.source.traffic(), place, slant);
                const double away = placeOf(target, slant).distanceTo(place);
                const Shown shown = shownOf(track);
                const QString fault =
                    away > within.place ? QString("%1 m away").arg(away) : faultOf(shown, target, time, within);
                QVERIFY2(fault.isEmpty(), qPrintable(QString("flight %1: %2").arg(target.id).arg(fault)));
                times[target.id].push_back(time);
                for (const auto &[name, text] : shown) {
                    if (target.id == first) {
                        values.insert(name);
                    }
                }
            }
        });
        QStringList ids;
        for (const auto &[id, reports] : times) {
            ids.append(QString::number(id));
            for (std::size_t i = 1; i < reports.size() && id != 2 && interval > 0; ++i) { // 2 is not seen for a while
                QVERIFY(std::abs(reports[i] - reports[i - 1] - interval) < 0.3);
            }
        }
        QCOMPARE(ids.join(' '), seen);
        QTEST(QStringList(values.begin(), values.end()).join(' '), "values");
    }

    // Of flight 2, which is not detected for two looks after 20 s, and of 6, which ends.
    void tellsCoastingAndTrackEnds()
    {
        const std::tuple<const char *, const char *, std::size_t, bool> kinds[] = {{"mlat", "", 2, true},
            {"sdps", "", 2, true}, {"adsb", "", 0, false}, {"radars", R"(, "category": "sirm")", 2, true}};
        for (const auto &[kind, more, coasting, ends] : kinds) {
            ScenarioRig rig(scenario(kind, more));
            std::set<QDateTime> coasted;
            rig.play(ShortEnds + 10, [&](const QByteArray &, double) {
                for (const TrackSnapshot &track : rig.tracks()) {
                    if (track.modeACode == 07700 && track.state == Track::Coasting) {
                        coasted.insert(track.lastUpdate);
                    }
                }
            });
            QVERIFY2(coasted.size() == coasting, kind);
            const QList<TrackSnapshot> left = rig.tracks();
            const bool ended = std::none_of(left.begin(), left.end(), [](const TrackSnapshot &track) {
                return track.modeACode == 02001 && track.state != Track::Terminated;
            });
            QVERIFY2(ended == ends, kind);
        }
    }

    // Of all formats, and as exact as the library makes of them what the terminal shows more coarsely or not at all.
    void modeSFramesMakeTargets()
    {
        using namespace korvane::modes;
        for (const char *format : {"beast", "avr"}) {
            TrafficSource source(scenario("modesReceivers", QString(R"(, "format": "%1")").arg(format)), 1);
            ModeSDecoder decoder;
            ADSBTracker tracker;
            std::map<int, int> formats;
            int positions = 0;
            while (source.nextTime() < 20) {
                for (const QByteArray &datagram : *source.next().datagrams) {
                    std::string octets = datagram.toStdString();
                    for (const auto &frame :
                        ModeSEncapsulation::extract(octets, ModeSEncapsulation::fromIdentifier(format))) {
                        ++formats[frame->frame().octets[0] >> 3];
                        const auto target = tracker.procModeSMsg(*decoder.decode(ModeSMessage::ModeSMsgType(0), frame));
                        if (target && target->positionValid() && target->positionTime() == frame->timeStamp()) {
                            const GeoCoordinate place(target->latitude(), target->longitude());
                            QVERIFY(placeOf(*nearest(source.traffic(), place, false), false).distanceTo(place) < 6);
                            ++positions;
                        }
                    }
                    QVERIFY(octets.empty());
                }
            }
            QVERIFY2(positions > 3 * 35, qPrintable(QString::number(positions)));
            QCOMPARE(formats.size(), std::size_t(6));
            for (const int expected : {4, 5, 11, 17, 20, 21}) {
                QVERIFY2(formats[expected] >= 10, qPrintable(QString::number(expected)));
            }
            for (const auto &[address, target] : tracker.targets()) {
                const AirTarget *truth = nearest(source.traffic(), {target->latitude(), target->longitude()}, false);
                QVERIFY(std::abs(target->verticalRate() - truth->aircraft.state().verticalRate) <= 33);
            }
        }
    }
};

VYX_TEST(TestShownTraffic)
#include "tst_shown_traffic.moc"
