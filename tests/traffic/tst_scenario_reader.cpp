#include "traffic/scenario_reader.h"

#include "traffic/sensor_json.h"

#include "geo/geo_coordinate.h"
#include "test_program.h"

#include <QTest>

namespace {

constexpr char Valid[] = R"({
    "name": "t", "startTime": "2025-06-01T08:00:00Z",
    "radars": [{"name": "R", "sac": 1, "sic": 2, "lat": 40, "lon": 116}],
    "fixes": [{"name": "ABEKA", "lat": 41, "lon": 116}, {"name": "PORTA", "lat": 40, "lon": 116, "elevation": 100}],
    "flights": [{"callsign": "VYX1", "address": "780A12", "squawk": "1234",
        "route": ["ABEKA", {"fix": "PORTA", "altitude": 3000}]}],
    "random": {"count": 2, "callsignPrefixes": ["VYX"], "addressBlocks": ["780000"], "airways": ["ABEKA PORTA"]}
})";

} // namespace

class TestScenarioReader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namesFilePlaceAndReason_data()
    {
        QTest::addColumn<QString>("replaced");
        QTest::addColumn<QString>("by");
        QTest::addColumn<QString>("error");

        const auto row = [](const char *name, const char *replaced, const char *by, const char *error) {
            QTest::newRow(name) << replaced << by << error;
        };
        row("syntax", "\"sac\": 1,", "\"sac\": 1", "t.json:3:");
        row("missing", "\"sic\": 2, ", "", "t.json: radars[0].sic: is missing");
        row("wrong type", "\"sac\": 1", "\"sac\": \"1\"", "t.json: radars[0].sac: must be a number");
        row("out of range", "\"lat\": 41", "\"lat\": 91", "t.json: fixes[0].lat: must be -89 to 89");
        row("not whole", "\"sac\": 1", "\"sac\": 1.5", "t.json: radars[0].sac: must be a whole number");
        row("misspelt key", "\"elevation\"", "\"elevatoin\"", "t.json: fixes[1].elevatoin: unknown key");
        row("no radar", R"({"name": "R", "sac": 1, "sic": 2, "lat": 40, "lon": 116})", "", "t.json: radars: must hold");
        row("same fix twice", "\"name\": \"PORTA\"", "\"name\": \"ABEKA\"", "t.json: fixes[1].name: ABEKA is taken");
        row("unknown fix", "\"fix\": \"PORTA\"", "\"fix\": \"P\"",
            "t.json: flights[0].route[1].fix: there is no fix P");
        row("one waypoint", R"(, {"fix": "PORTA", "altitude": 3000})", "", "t.json: flights[0].route: must hold");
        row("squawk with an eight", "1234", "1284", "t.json: flights[0].squawk: must be text of digits to the base 8");
        row("callsign", "VYX1", "vyx1", "t.json: flights[0].callsign: must be");
        row("airway", "ABEKA PORTA", "ABEKA P", "t.json: random.airways: there is no fix P");
        row("random without prefixes", "[\"VYX\"]", "[]", "t.json: random.count: random flights need");
    }

    void namesFilePlaceAndReason()
    {
        QFETCH(QString, replaced);
        QFETCH(QString, by);
        QFETCH(QString, error);
        QString json = QString::fromLatin1(Valid);
        QVERIFY(json.contains(replaced));
        ScenarioReader reader;
        QVERIFY(reader.parse(json.toUtf8(), QStringLiteral("t.json")));
        QVERIFY(!reader.parse(json.replace(replaced, by).toUtf8(), QStringLiteral("t.json")));
        QVERIFY2(reader.error().contains(error), qPrintable(reader.error()));
        QVERIFY(!reader.error().contains(QLatin1Char('\n')));
    }

    void readsWaypointsAndCodes()
    {
        ScenarioReader reader;
        const std::optional<Scenario> scenario = reader.parse(Valid, QStringLiteral("t.json"));
        QVERIFY2(scenario, qPrintable(reader.error()));
        const ScenarioFlight &flight = scenario->flights.front();
        QVERIFY(flight.address == 0x780A12 && flight.squawks.front().code == 01234);
        QVERIFY(flight.route[0].latitude == 41 && !flight.route[0].altitude);
        QCOMPARE(flight.route[1].altitude.value_or(0), 3000.0);
        QCOMPARE(scenario->random.airways.front().back().elevation.value_or(0), 100.0);
        QVERIFY(!reader.read(QStringLiteral("nowhere.json")));
        QVERIFY(reader.error().startsWith(QLatin1String("nowhere.json: ")));
    }

    void sensorJsonIsThatOfASensorFile()
    {
        ScenarioReader reader;
        const QJsonObject sensor = sensorJson(*reader.read(QStringLiteral("demo")));
        QCOMPARE(sensor.value(QLatin1String("type")).toString(), QStringLiteral("radar"));
        QCOMPARE(sensor.value(QLatin1String("sac")).toInt(), 25);
        QCOMPARE(sensor.value(QLatin1String("rotation_period")).toDouble(), 4.0);
        const QString location = sensor.value(QLatin1String("location")).toString();
        QCOMPARE(location, QStringLiteral("400300.00N1164400.00E"));
        QVERIFY(GeoCoordinate::fromATCString(location, GeoCoordinate::HighPrecision).isValid());
    }
};

VYX_TEST(TestScenarioReader)
#include "tst_scenario_reader.moc"
