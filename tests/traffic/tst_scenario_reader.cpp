#include "traffic/scenario_reader.h"

#include "geo/geo_coordinate.h"

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
    void namesFilePlaceAndReason_data();
    void namesFilePlaceAndReason();
    void readsWaypointsAndCodes();
    void missingFileIsAnError();
    void demoIsComplete();
    void sensorJsonIsThatOfASensorFile();
};

void TestScenarioReader::namesFilePlaceAndReason_data()
{
    QTest::addColumn<QString>("replaced");
    QTest::addColumn<QString>("by");
    QTest::addColumn<QString>("error");

    QTest::newRow("syntax") << "\"sac\": 1,"
                            << "\"sac\": 1"
                            << "t.json:3:";
    QTest::newRow("not an object") << Valid << "[1]"
                                   << "must be an object";
    QTest::newRow("missing") << "\"sic\": 2, "
                             << ""
                             << "t.json: radars[0].sic: is missing";
    QTest::newRow("wrong type") << "\"sac\": 1"
                                << "\"sac\": \"1\""
                                << "t.json: radars[0].sac: must be a number";
    QTest::newRow("out of range") << "\"lat\": 41"
                                  << "\"lat\": 91"
                                  << "t.json: fixes[0].lat: must be -89 to 89";
    QTest::newRow("not whole") << "\"sac\": 1"
                               << "\"sac\": 1.5"
                               << "t.json: radars[0].sac: must be a whole number";
    QTest::newRow("misspelt key") << "\"elevation\""
                                  << "\"elevatoin\""
                                  << "t.json: fixes[1].elevatoin: unknown key";
    QTest::newRow("misspelt key at the top") << "\"random\""
                                             << "\"randm\""
                                             << "t.json: randm: unknown key";
    QTest::newRow("start time") << "2025-06-01"
                                << "2025-13-01"
                                << "t.json: startTime: must be a time";
    QTest::newRow("no radar") << R"({"name": "R", "sac": 1, "sic": 2, "lat": 40, "lon": 116})"
                              << ""
                              << "t.json: radars: must hold";
    QTest::newRow("same fix twice") << "\"name\": \"PORTA\""
                                    << "\"name\": \"ABEKA\""
                                    << "t.json: fixes[1].name: ABEKA is taken";
    QTest::newRow("unknown fix") << "\"fix\": \"PORTA\""
                                 << "\"fix\": \"P\""
                                 << "t.json: flights[0].route[1].fix: there is no fix P";
    QTest::newRow("one waypoint") << ", {\"fix\": \"PORTA\", \"altitude\": 3000}"
                                  << ""
                                  << "t.json: flights[0].route: must hold";
    QTest::newRow("squawk with an eight") << "1234"
                                          << "1284"
                                          << "t.json: flights[0].squawk: must be text of digits to the base 8";
    QTest::newRow("long address") << "780A12"
                                  << "1780A12"
                                  << "t.json: flights[0].address: must be";
    QTest::newRow("callsign") << "VYX1"
                              << "vyx1"
                              << "t.json: flights[0].callsign: must be";
    QTest::newRow("airway") << "ABEKA PORTA"
                            << "ABEKA P"
                            << "t.json: random.airways: there is no fix P";
    QTest::newRow("random without prefixes") << "[\"VYX\"]"
                                             << "[]"
                                             << "t.json: random.count: random flights need";
}

void TestScenarioReader::namesFilePlaceAndReason()
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

void TestScenarioReader::readsWaypointsAndCodes()
{
    ScenarioReader reader;
    const std::optional<Scenario> scenario = reader.parse(Valid, QStringLiteral("t.json"));
    QVERIFY2(scenario, qPrintable(reader.error()));
    const ScenarioFlight &flight = scenario->flights.front();
    QCOMPARE(flight.address, 0x780A12u);
    QCOMPARE(flight.squawks.front().code, 01234);
    QCOMPARE(flight.route[0].latitude, 41.0);
    QVERIFY(!flight.route[0].altitude);
    QCOMPARE(flight.route[1].altitude.value_or(0), 3000.0);
    QCOMPARE(scenario->random.airways.front().back().elevation.value_or(0), 100.0);
}

void TestScenarioReader::missingFileIsAnError()
{
    ScenarioReader reader;
    QVERIFY(!reader.read(QStringLiteral("nowhere.json")));
    QVERIFY(reader.error().startsWith(QLatin1String("nowhere.json: ")));
}

void TestScenarioReader::demoIsComplete()
{
    QVERIFY(ScenarioReader::builtInNames().contains(QStringLiteral("demo")));
    ScenarioReader reader;
    const std::optional<Scenario> demo = reader.read(QStringLiteral("demo"));
    QVERIFY2(demo, qPrintable(reader.error()));
    QVERIFY(demo->flights.size() >= 20);
    QVERIFY(demo->random.count > 0);
    QCOMPARE(demo->duration, 0.0);
}

void TestScenarioReader::sensorJsonIsThatOfASensorFile()
{
    ScenarioReader reader;
    const QJsonObject sensor = sensorJson(reader.read(QStringLiteral("demo"))->radars.front());
    QCOMPARE(sensor.value(QLatin1String("type")).toString(), QStringLiteral("radar"));
    QCOMPARE(sensor.value(QLatin1String("sac")).toInt(), 25);
    QCOMPARE(sensor.value(QLatin1String("rotation_period")).toDouble(), 4.0);
    const QString location = sensor.value(QLatin1String("location")).toString();
    QCOMPARE(location, QStringLiteral("400300.00N1164400.00E"));
    QVERIFY(GeoCoordinate::fromATCString(location, GeoCoordinate::HighPrecision).isValid());
}

QTEST_GUILESS_MAIN(TestScenarioReader)
#include "tst_scenario_reader.moc"
