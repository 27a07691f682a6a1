#include "played_scenario.h"

#include "test_program.h"
#include "traffic/conflict.h"
#include "traffic/earth.h"

#include <cmath>
#include <map>
#include <set>

namespace {

constexpr double Mile = Earth::MetresPerNauticalMile;
constexpr Separation Minimum{5 * Mile, 1000};
constexpr double LookAhead = 90;

ScenarioWaypoint waypoint(double latitude, double longitude, double altitude)
{
    ScenarioWaypoint point;
    point.latitude = latitude;
    point.longitude = longitude;
    point.altitude = altitude;
    return point;
}

// Miles north and east of 40 N 116 E, at 360 knots.
Aircraft aircraft(double north, double east, double track, double altitude, double selected, double rate)
{
    double latitude = 40;
    double longitude = 116;
    Earth::advance(latitude, longitude, 0, north * Mile);
    Earth::advance(latitude, longitude, 90, east * Mile);
    const ScenarioWaypoint from = waypoint(latitude, longitude, altitude);
    Earth::advance(latitude, longitude, track, 200 * Mile);
    Aircraft made(
        {from, waypoint(latitude, longitude, selected)}, {.speed = 360, .climbRate = rate, .descentRate = rate});
    made.advance(0.01); // starts to climb
    return made;
}

double distance(const Prediction &a, const Prediction &b)
{
    return Earth::distance(a.latitude, a.longitude, b.latitude, b.longitude);
}

// Flies both on in small steps.
bool losesSeparation(const Aircraft &one, const Aircraft &other, const Separation &minimum, double lookAhead)
{
    for (double seconds = 0; seconds <= lookAhead; seconds += 0.5) {
        const Prediction a = predict(one, seconds);
        const Prediction b = predict(other, seconds);
        if (std::abs(a.altitude - b.altitude) < minimum.vertical && distance(a, b) < minimum.horizontal) {
            return true;
        }
    }
    return false;
}

bool entersAny(const Aircraft &aircraft, const std::vector<ScenarioArea> &areas, double lookAhead)
{
    return std::any_of(areas.begin(), areas.end(), [&](const ScenarioArea &area) {
        for (double seconds = 0; seconds <= lookAhead; seconds += 0.5) {
            if (isInside(area, predict(aircraft, seconds))) {
                return true;
            }
        }
        return false;
    });
}

using Numbers = std::pair<unsigned, unsigned>; // of tracks; the second 0 where there is one

// The alerts of one look by message type, and what is said once.
struct Messages {
    std::map<int, std::set<Numbers>> raised;
    std::map<unsigned, Numbers> ids;
    std::vector<unsigned> ended;
    int alive = 0;

    explicit Messages(const std::vector<QByteArray> &datagrams)
    {
        for (const QByteArray &datagram : datagrams) {
            _ast_datablock_t block;
            const auto *data = reinterpret_cast<const unsigned char *>(datagram.constData());
            QVERIFY(ast_datablock_smart_decode(&block, data, static_cast<std::size_t>(datagram.size())) && block.valid);
            for (const _ast_datarecord_t &generic : block.records) {
                _ast_datarecord_004_t record;
                ast_datarecord_004_disassemble(&record, generic);
                take(record);
            }
        }
    }

private:
    void take(const _ast_datarecord_004_t &record)
    {
        if (record.i000.type == 1) {
            for (int i = 0; i < record.i060.count; ++i) {
                QCOMPARE(record.i060.entries[i].on, std::set<int>({4, 5, 7}).contains(record.i060.entries[i].type));
            }
            ++alive;
        } else if (record.i000.type == 17) {
            ended.push_back(record.i040.id);
        } else {
            const Numbers numbers{record.i030.trackNumber, record.i035.present ? record.i035.trackNumber : 0};
            raised[record.i000.type].insert(numbers);
            ids[record.i040.id] = numbers;
        }
    }
};

} // namespace

class TestSafetyNet : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void predictsConflicts_data()
    {
        QTest::addColumn<double>("north"); // of the other one
        QTest::addColumn<double>("east");
        QTest::addColumn<double>("track");
        QTest::addColumn<double>("altitude");
        QTest::addColumn<double>("selected");
        QTest::addColumn<double>("rate");
        QTest::addColumn<double>("start"); // -1: none

        const auto row = [](const char *name, double north, double east, double track, double altitude, double selected,
                             double rate, double start) {
            QTest::newRow(name) << north << east << track << altitude << selected << rate << start;
        };
        row("head-on", 20, 0, 180, 30000, 30000, 0, 75);
        row("head-on, too far ahead", 24, 0, 180, 30000, 30000, 0, -1);
        row("head-on, 1000 feet above", 20, 0, 180, 31000, 31000, 0, -1);
        row("head-on, a little less", 20, 0, 180, 30990, 30990, 0, 75);
        row("side by side", 0, 4.9, 0, 30000, 30000, 0, 0);
        row("side by side, just enough", 0, 5.05, 0, 30000, 30000, 0, -1);
        row("crossing ahead", 8, 8, 270, 30000, 30000, 0, 45);
        row("crossing, each well behind the other", 0, 16, 270, 30000, 30000, 0, -1);
        row("parting", -6, 0, 180, 30000, 30000, 0, -1);
        row("levels off below", 20, 0, 180, 26000, 29000, 2400, -1);
        row("climbs to the same level", 20, 0, 180, 26000, 30000, 2400, 75);
        row("climbs into it while passing", 0, 3, 0, 28000, 32000, 2400, 25);
        row("is through before they meet", 20, 0, 180, 32000, 20000, 3000, -1);
        row("is not through when they meet", 20, 0, 180, 32000, 20000, 1500, 75);
    }

    void predictsConflicts()
    {
        QFETCH(double, north);
        QFETCH(double, east);
        QFETCH(double, track);
        QFETCH(double, altitude);
        QFETCH(double, selected);
        QFETCH(double, rate);
        QFETCH(double, start);
        const Aircraft one = aircraft(0, 0, 0, 30000, 30000, 100);
        const Aircraft other = aircraft(north, east, track, altitude, selected, std::max(rate, 100.0));
        for (const auto &[a, b] : {std::pair(one, other), std::pair(other, one)}) {
            const std::optional<Conflict> conflict = predictConflict(a, b, Minimum, LookAhead);
            QCOMPARE(conflict.has_value(), start >= 0);
            if (!conflict) {
                continue;
            }
            QVERIFY2(std::abs(conflict->start - start) < 0.6, qPrintable(QString::number(conflict->start)));
            const double closest = distance(predict(a, conflict->closestAt), predict(b, conflict->closestAt));
            QVERIFY(std::abs(conflict->closest.horizontal - closest) < 60);
            QVERIFY(closest <= distance(predict(a, conflict->closestAt + 5), predict(b, conflict->closestAt + 5)) + 20);
        }
    }

    void knowsWhatIsInside()
    {
        // A square degree with a notch from the east.
        const ScenarioArea area{"A", {{40, 116}, {41, 116}, {41, 117}, {40.5, 116.5}, {40, 117}}, 1000, 5000};
        const std::tuple<Prediction, bool> places[] = {{{40.5, 116.2, 3000}, true}, {{40.5, 116.6, 3000}, false},
            {{40.9, 116.8, 3000}, true}, {{40.1, 116.8, 3000}, true}, {{41.1, 116.2, 3000}, false},
            {{40.5, 115.9, 3000}, false}, {{40.5, 116.2, 999}, false}, {{40.5, 116.2, 1000}, true},
            {{40.5, 116.2, 5000}, false}};
        for (const auto &[place, inside] : places) {
            QVERIFY2(isInside(area, place) == inside, qPrintable(QString::number(place.longitude)));
        }
    }

    void raisesAlertsExactlyWhileTheyAreDue()
    {
        const Scenario scenario = *ScenarioReader().read(QStringLiteral("alerts"));
        const ScenarioSafetyNet &net = scenario.safetyNets.front();
        TrafficSource source(scenario, 1);
        std::map<unsigned, Numbers> active;
        std::set<unsigned> finished;
        std::map<int, int> count;
        while (source.nextTime() < 400) {
            const TrafficSource::Sending sending = source.next();
            if (sending.station != 1) {
                continue;
            }
            const Messages messages(*sending.datagrams);
            QCOMPARE(messages.alive, std::fmod(sending.time, net.aliveInterval) == 0 ? 1 : 0);
            for (const unsigned id : messages.ended) {
                QVERIFY(active.erase(id) == 1 && finished.insert(id).second);
            }
            for (const auto &[id, numbers] : messages.ids) {
                QVERIFY(!finished.contains(id));
            }
            QVERIFY(std::all_of(
                active.begin(), active.end(), [&](const auto &each) { return messages.ids.contains(each.first); }));
            active = messages.ids;
            for (const auto &[type, raised] : messages.raised) {
                count[type] += static_cast<int>(raised.size());
            }
            compareWithTruth(source, net, messages);
        }
        QVERIFY(count[4] > 10 && count[5] > 20 && count[7] > 40 && finished.size() >= 5);
    }

private:
    // What lies at the border of being due may be raised or not.
    static void compareWithTruth(const TrafficSource &source, const ScenarioSafetyNet &net, Messages messages)
    {
        const Separation minimum{net.horizontalSeparation * Mile, net.verticalSeparation};
        const Separation less{minimum.horizontal - 60, minimum.vertical - 5};
        const Separation more{minimum.horizontal + 60, minimum.vertical};
        for (const AirTarget &one : source.traffic().targets()) {
            const unsigned number = source.station(0).trackNumber(one.id);
            if (number == 0) {
                continue;
            }
            for (const auto &[type, areas] : {std::pair(4, net.minimumAltitudes), std::pair(5, net.restrictedAreas)}) {
                const bool raised = messages.raised[type].contains({number, 0});
                QVERIFY(raised || !entersAny(one.aircraft, areas, 0));
                QVERIFY(!raised || entersAny(one.aircraft, areas, net.areaLookAhead));
            }
            for (const AirTarget &other : source.traffic().targets()) {
                const unsigned otherNumber = source.station(0).trackNumber(other.id);
                if (other.id <= one.id || otherNumber == 0) {
                    continue;
                }
                const bool raised = messages.raised[7].contains({number, otherNumber});
                QVERIFY(raised || !losesSeparation(one.aircraft, other.aircraft, less, net.lookAhead - 1));
                QVERIFY(!raised || losesSeparation(one.aircraft, other.aircraft, more, net.lookAhead + 1));
            }
        }
    }
};

VYX_TEST(TestSafetyNet)
#include "tst_safety_net.moc"
