#include "traffic/scenario_reader.h"

#include "traffic/source_reader.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr JsonObjectReader::Range Altitudes{-1000, 60000};
constexpr JsonObjectReader::Range Speeds{3, 1200};
constexpr JsonObjectReader::Range Times{-86400, 864000};
constexpr std::uint32_t HighestAddress = 0xFFFFFF;
constexpr std::uint32_t HighestSquawk = 07777;

const QString BuiltInFolder = QStringLiteral(":/scenarios");

QString lineAndColumn(const QByteArray &json, int offset)
{
    const QByteArray before = json.left(offset);
    return QStringLiteral("%1:%2").arg(before.count('\n') + 1).arg(offset - before.lastIndexOf('\n'));
}

} // namespace

QStringList ScenarioReader::builtInNames()
{
    QStringList names;
    const QStringList files = QDir(BuiltInFolder).entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        names.append(file.chopped(5));
    }
    return names;
}

QString ScenarioReader::description(const QString &builtInName)
{
    ScenarioReader reader;
    const std::optional<Scenario> scenario = reader.read(builtInName);
    return scenario ? scenario->description : QString();
}

std::optional<Scenario> ScenarioReader::read(const QString &nameOrFile)
{
    const bool builtIn = builtInNames().contains(nameOrFile);
    QFile file(builtIn ? QStringLiteral("%1/%2.json").arg(BuiltInFolder, nameOrFile) : nameOrFile);
    if (!file.open(QIODevice::ReadOnly)) {
        m_error = tr("%1: %2").arg(nameOrFile, file.errorString());
        return std::nullopt;
    }
    return parse(file.readAll(), nameOrFile);
}

std::optional<Scenario> ScenarioReader::parse(const QByteArray &json, const QString &source)
{
    QJsonParseError syntax;
    const QJsonDocument document = QJsonDocument::fromJson(json, &syntax);
    if (syntax.error != QJsonParseError::NoError) {
        m_error = QStringLiteral("%1:%2: %3").arg(source, lineAndColumn(json, syntax.offset), syntax.errorString());
        return std::nullopt;
    }
    Scenario scenario;
    QString error;
    JsonObjectReader reader(document.isObject() ? QJsonValue(document.object()) : QJsonValue(), QString(), error);
    readScenario(reader, scenario);
    reader.finish();
    if (error.isEmpty()) {
        return scenario;
    }
    m_error = QStringLiteral("%1: %2").arg(source, error);
    return std::nullopt;
}

void ScenarioReader::readScenario(JsonObjectReader &reader, Scenario &scenario)
{
    scenario.name = reader.text("name");
    scenario.description = reader.text("description", QString());
    scenario.seed = static_cast<std::uint64_t>(reader.number("seed", {0, 9e15}, 1));
    scenario.startTime = QDateTime::fromString(reader.text("startTime"), Qt::ISODate).toUTC();
    if (!scenario.startTime.isValid()) {
        reader.fail("startTime", tr("must be a time like 2025-06-01T08:00:00Z"));
    }
    scenario.duration = reader.number("duration", {0, 8640000}, 0);
    m_fixes.clear();
    if (reader.has("trafficOf")) {
        readTrafficOf(reader, scenario);
    }
    scenario.magneticVariation = reader.number("magneticVariation", {-180, 180}, scenario.magneticVariation);
    reader.eachObject("fixes", [this](JsonObjectReader &fix) { readFix(fix, m_fixes); });
    SourceReader(scenario, m_fixes).read(reader);
    reader.eachObject("flights", [&](JsonObjectReader &flight) { readFlight(flight, scenario); });
    reader.object("random", [&](JsonObjectReader &random) { readRandom(random, scenario.random); });
}

// Fixes, flights and random flights of another scenario; what the scenario has itself is added to them. The other one
// may not do so in its turn.
void ScenarioReader::readTrafficOf(JsonObjectReader &reader, Scenario &scenario)
{
    ScenarioReader other;
    const QString name = reader.text("trafficOf");
    const std::optional<Scenario> read = m_isNested ? std::nullopt : other.readNested(name);
    if (!read) {
        reader.fail("trafficOf", m_isNested ? tr("%1 has no traffic of its own").arg(name) : other.error());
        return;
    }
    m_fixes = other.m_fixes;
    scenario.flights = read->flights;
    scenario.random = read->random;
    scenario.magneticVariation = read->magneticVariation;
}

std::optional<Scenario> ScenarioReader::readNested(const QString &nameOrFile)
{
    m_isNested = true;
    return read(nameOrFile);
}

void ScenarioReader::readFix(JsonObjectReader &reader, ScenarioFixes &fixes)
{
    ScenarioFix fix;
    fix.name = reader.text("name");
    fix.latitude = reader.number("lat", JsonObjectReader::Latitudes);
    fix.longitude = reader.number("lon", JsonObjectReader::Longitudes);
    if (reader.has("elevation")) {
        fix.elevation = reader.number("elevation", Altitudes);
    }
    if (fixes.contains(fix.name)) {
        reader.fail("name", tr("%1 is taken").arg(fix.name));
    }
    fixes.insert(fix.name, fix);
}

void ScenarioReader::readFlight(JsonObjectReader &reader, Scenario &scenario) const
{
    ScenarioFlight flight;
    flight.callsign = reader.text("callsign", QString());
    if (!QRegularExpression(QStringLiteral("^[A-Z0-9 ]{0,8}$")).match(flight.callsign).hasMatch()) {
        reader.fail("callsign", tr("must be up to eight of A to Z, 0 to 9 and blank"));
    }
    flight.address = reader.code("address", 16, HighestAddress, 0);
    const int transponder =
        reader.choice("transponder", {QStringLiteral("none"), QStringLiteral("modeac"), QStringLiteral("modes")}, 2);
    flight.transponder = static_cast<ScenarioFlight::Transponder>(transponder);
    flight.vehicle = reader.flag("vehicle", false);
    flight.primaryEcho = reader.flag("primaryEcho", true);
    flight.start = reader.number("start", Times, 0);
    if (reader.has("repeatAfter")) {
        flight.repeatAfter = reader.number("repeatAfter", {0, Times.high});
    }
    readSquawks(reader, flight);
    reader.eachObject("coasting", [&flight](JsonObjectReader &coasting) {
        flight.coasting.push_back({coasting.number("at", {0, Times.high}), coasting.integer("scans", {1, 1000})});
    });
    reader.object(
        "performance", [&flight](JsonObjectReader &performance) { readPerformance(performance, flight.performance); });
    reader.each("route",
        [&](const QJsonValue &value, const QString &path) { readWaypoint(value, path, reader.error(), flight); });
    if (flight.route.size() < 2) {
        reader.fail("route", tr("must hold at least two waypoints"));
    }
    scenario.flights.push_back(flight);
}

void ScenarioReader::readSquawks(JsonObjectReader &reader, ScenarioFlight &flight)
{
    if (flight.transponder != ScenarioFlight::Transponder::None) {
        flight.squawks.push_back({0, static_cast<std::uint16_t>(reader.code("squawk", 8, HighestSquawk))});
    }
    reader.eachObject("squawkChanges", [&flight](JsonObjectReader &change) {
        const double at = change.number("at", {0, Times.high});
        flight.squawks.push_back({at, static_cast<std::uint16_t>(change.code("squawk", 8, HighestSquawk))});
    });
    std::stable_sort(flight.squawks.begin(), flight.squawks.end(),
        [](const ScenarioFlight::Squawk &a, const ScenarioFlight::Squawk &b) { return a.at < b.at; });
}

void ScenarioReader::readPerformance(JsonObjectReader &reader, ScenarioPerformance &performance)
{
    performance.speed = reader.number("speed", Speeds, performance.speed);
    performance.climbRate = reader.number("climbRate", {100, 20000}, performance.climbRate);
    performance.descentRate = reader.number("descentRate", {100, 20000}, performance.descentRate);
    performance.turnRate = reader.number("turnRate", {0.1, 30}, performance.turnRate);
    performance.acceleration = reader.number("acceleration", {0.1, 20}, performance.acceleration);
}

// The name of a fix, or an object with a fix or a position and what else is to happen there.
void ScenarioReader::readWaypoint(
    const QJsonValue &value, const QString &path, QString &error, ScenarioFlight &flight) const
{
    JsonObjectReader reader(pointObject(value), path, error);
    ScenarioWaypoint waypoint;
    const ScenarioPoint point = readPoint(reader, m_fixes);
    waypoint.latitude = point.latitude;
    waypoint.longitude = point.longitude;
    if (reader.has("altitude")) {
        waypoint.altitude = reader.number("altitude", Altitudes);
    }
    if (reader.has("speed")) {
        waypoint.speed = reader.number("speed", Speeds);
    }
    waypoint.holdTurns = reader.integer("holdTurns", {0, 1000}, 0);
    if (reader.choice("holdDirection", {QStringLiteral("right"), QStringLiteral("left")}, 0) == 1) {
        waypoint.holdDirection = ScenarioWaypoint::Turn::Left;
    }
    reader.finish();
    flight.route.push_back(waypoint);
}

void ScenarioReader::readRandom(JsonObjectReader &reader, ScenarioRandomTraffic &random) const
{
    random.count = reader.integer("count", {0, 5000});
    random.lowestLevel = reader.integer("lowestLevel", {10, 600}, random.lowestLevel);
    random.highestLevel = reader.integer("highestLevel", {10, 600}, random.highestLevel);
    const QStringList prefixes = reader.texts("callsignPrefixes");
    random.callsignPrefixes.insert(random.callsignPrefixes.end(), prefixes.begin(), prefixes.end());
    const QStringList blocks = reader.texts("addressBlocks");
    for (const QString &block : blocks) {
        bool ok = false;
        random.addressBlocks.push_back(block.toUInt(&ok, 16) & (HighestAddress & ~0xFFFU));
        if (!ok) {
            reader.fail("addressBlocks", tr("must be hexadecimal texts"));
        }
    }
    readAirways(reader, random);
    if (random.lowestLevel > random.highestLevel) {
        reader.fail("lowestLevel", tr("must not be above highestLevel"));
    }
    if (random.airways.empty() || random.callsignPrefixes.empty() || random.addressBlocks.empty()) {
        reader.fail("count", tr("random flights need airways, callsignPrefixes and addressBlocks"));
    }
}

void ScenarioReader::readAirways(JsonObjectReader &reader, ScenarioRandomTraffic &random) const
{
    const QStringList airways = reader.texts("airways");
    for (const QString &airway : airways) {
        std::vector<ScenarioFix> fixes;
        const QStringList names = airway.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString &name : names) {
            if (!m_fixes.contains(name)) {
                reader.fail("airways", tr("there is no fix %1").arg(name));
            }
            fixes.push_back(m_fixes.value(name));
        }
        if (fixes.size() < 2) {
            reader.fail("airways", tr("an airway needs at least two fixes"));
        }
        random.airways.push_back(std::move(fixes));
    }
}
