#include "traffic/scenario_reader.h"

#include "geo/geo_coordinate.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr JsonObjectReader::Range Latitudes{-89, 89};
constexpr JsonObjectReader::Range Longitudes{-180, 180};
constexpr JsonObjectReader::Range Altitudes{-1000, 60000};
constexpr JsonObjectReader::Range Speeds{20, 1200};
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
    for (const QString &file : files)
        names.append(file.chopped(5));
    return names;
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
    if (error.isEmpty())
        return scenario;
    m_error = QStringLiteral("%1: %2").arg(source, error);
    return std::nullopt;
}

void ScenarioReader::readScenario(JsonObjectReader &reader, Scenario &scenario)
{
    scenario.name = reader.text("name");
    scenario.description = reader.text("description", QString());
    scenario.seed = static_cast<std::uint64_t>(reader.number("seed", {0, 9e15}, 1));
    scenario.startTime = QDateTime::fromString(reader.text("startTime"), Qt::ISODate).toUTC();
    if (!scenario.startTime.isValid())
        reader.fail("startTime", tr("must be a time like 2025-06-01T08:00:00Z"));
    scenario.duration = reader.number("duration", {0, 8640000}, 0);
    scenario.magneticVariation = reader.number("magneticVariation", {-180, 180}, 0);
    reader.eachObject("radars", [&](JsonObjectReader &radar) { readRadar(radar, scenario); });
    if (scenario.radars.empty())
        reader.fail("radars", tr("must hold at least one radar"));
    m_fixes.clear();
    reader.eachObject("fixes", [this](JsonObjectReader &fix) { readFix(fix, m_fixes); });
    reader.eachObject("flights", [&](JsonObjectReader &flight) { readFlight(flight, scenario); });
    reader.object("random", [&](JsonObjectReader &random) { readRandom(random, scenario.random); });
}

void ScenarioReader::readRadar(JsonObjectReader &reader, Scenario &scenario)
{
    ScenarioRadar radar;
    radar.name = reader.text("name");
    radar.description = reader.text("description", QString());
    radar.sac = static_cast<std::uint8_t>(reader.integer("sac", {0, 255}));
    radar.sic = static_cast<std::uint8_t>(reader.integer("sic", {0, 255}));
    radar.latitude = reader.number("lat", Latitudes);
    radar.longitude = reader.number("lon", Longitudes);
    radar.antennaAltitude = reader.integer("antennaAltitude", {-500, 9000}, 0);
    radar.rotationPeriod = reader.number("rotationPeriod", {0.5, 60}, radar.rotationPeriod);
    radar.sectors = reader.integer("sectors", {4, 256}, radar.sectors);
    radar.psr = reader.flag("psr", true);
    radar.modeS = reader.flag("modes", true);
    radar.ssr = reader.flag("ssr", true) || radar.modeS;
    radar.coveragePrimary = reader.integer("coveragePrimary", {1, 250}, radar.coveragePrimary);
    radar.coverageSecondary = reader.integer("coverageSecondary", {1, 250}, radar.coverageSecondary);
    const int category = reader.choice("category", {QStringLiteral("048"), QStringLiteral("001")}, 0);
    radar.category = category == 0 ? ScenarioRadar::TargetCategory::Cat048 : ScenarioRadar::TargetCategory::Cat001;
    radar.rangeSigma = reader.number("rangeSigma", {0, 5}, 0);
    radar.azimuthSigma = reader.number("azimuthSigma", {0, 5}, 0);
    radar.detectionProbability = reader.number("detectionProbability", {0, 1}, 1);
    radar.horizon = reader.flag("horizon", true);
    radar.minimumElevation = reader.number("minimumElevation", {-90, 90}, -90);
    radar.missesToDrop = reader.integer("missesToDrop", {1, 100}, radar.missesToDrop);
    radar.portOffset = reader.integer("portOffset", {0, 1000}, 0);
    scenario.radars.push_back(radar);
}

void ScenarioReader::readFix(JsonObjectReader &reader, Fixes &fixes)
{
    ScenarioFix fix;
    fix.name = reader.text("name");
    fix.latitude = reader.number("lat", Latitudes);
    fix.longitude = reader.number("lon", Longitudes);
    if (reader.has("elevation"))
        fix.elevation = reader.number("elevation", Altitudes);
    if (fixes.contains(fix.name))
        reader.fail("name", tr("%1 is taken").arg(fix.name));
    fixes.insert(fix.name, fix);
}

void ScenarioReader::readFlight(JsonObjectReader &reader, Scenario &scenario) const
{
    ScenarioFlight flight;
    flight.callsign = reader.text("callsign", QString());
    if (!QRegularExpression(QStringLiteral("^[A-Z0-9 ]{0,8}$")).match(flight.callsign).hasMatch())
        reader.fail("callsign", tr("must be up to eight of A to Z, 0 to 9 and blank"));
    flight.address = reader.code("address", 16, HighestAddress, 0);
    const int transponder =
        reader.choice("transponder", {QStringLiteral("none"), QStringLiteral("modeac"), QStringLiteral("modes")}, 2);
    flight.transponder = static_cast<ScenarioFlight::Transponder>(transponder);
    flight.primaryEcho = reader.flag("primaryEcho", true);
    flight.start = reader.number("start", Times, 0);
    if (reader.has("repeatAfter"))
        flight.repeatAfter = reader.number("repeatAfter", {0, Times.high});
    readSquawks(reader, flight);
    reader.eachObject("coasting", [&flight](JsonObjectReader &coasting) {
        flight.coasting.push_back({coasting.number("at", {0, Times.high}), coasting.integer("scans", {1, 1000})});
    });
    reader.object(
        "performance", [&flight](JsonObjectReader &performance) { readPerformance(performance, flight.performance); });
    reader.each("route",
        [&](const QJsonValue &value, const QString &path) { readWaypoint(value, path, reader.error(), flight); });
    if (flight.route.size() < 2)
        reader.fail("route", tr("must hold at least two waypoints"));
    scenario.flights.push_back(flight);
}

void ScenarioReader::readSquawks(JsonObjectReader &reader, ScenarioFlight &flight)
{
    if (flight.transponder != ScenarioFlight::Transponder::None)
        flight.squawks.push_back({0, static_cast<std::uint16_t>(reader.code("squawk", 8, HighestSquawk))});
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
}

// The name of a fix, or an object with a fix or a position and what else is to happen there.
void ScenarioReader::readWaypoint(
    const QJsonValue &value, const QString &path, QString &error, ScenarioFlight &flight) const
{
    QJsonObject object = value.toObject();
    if (value.isString())
        object.insert(QStringLiteral("fix"), value);
    JsonObjectReader reader(value.isString() ? QJsonValue(object) : value, path, error);
    ScenarioWaypoint waypoint;
    if (reader.has("fix")) {
        const QString name = reader.text("fix");
        if (!m_fixes.contains(name))
            reader.fail("fix", tr("there is no fix %1").arg(name));
        waypoint.latitude = m_fixes.value(name).latitude;
        waypoint.longitude = m_fixes.value(name).longitude;
    } else {
        waypoint.latitude = reader.number("lat", Latitudes);
        waypoint.longitude = reader.number("lon", Longitudes);
    }
    if (reader.has("altitude"))
        waypoint.altitude = reader.number("altitude", Altitudes);
    if (reader.has("speed"))
        waypoint.speed = reader.number("speed", Speeds);
    waypoint.holdTurns = reader.integer("holdTurns", {0, 1000}, 0);
    if (reader.choice("holdDirection", {QStringLiteral("right"), QStringLiteral("left")}, 0) == 1)
        waypoint.holdDirection = ScenarioWaypoint::Turn::Left;
    reader.finish();
    flight.route.push_back(waypoint);
}

void ScenarioReader::readRandom(JsonObjectReader &reader, ScenarioRandomTraffic &random) const
{
    random.count = reader.integer("count", {0, 5000});
    random.lowestLevel = reader.integer("lowestLevel", {10, 600}, random.lowestLevel);
    random.highestLevel = reader.integer("highestLevel", {10, 600}, random.highestLevel);
    const QStringList prefixes = reader.texts("callsignPrefixes");
    random.callsignPrefixes.assign(prefixes.begin(), prefixes.end());
    const QStringList blocks = reader.texts("addressBlocks");
    for (const QString &block : blocks) {
        bool ok = false;
        random.addressBlocks.push_back(block.toUInt(&ok, 16) & (HighestAddress & ~0xFFFU));
        if (!ok)
            reader.fail("addressBlocks", tr("must be hexadecimal texts"));
    }
    readAirways(reader, random);
    if (random.lowestLevel > random.highestLevel)
        reader.fail("lowestLevel", tr("must not be above highestLevel"));
    if (random.airways.empty() || random.callsignPrefixes.empty() || random.addressBlocks.empty())
        reader.fail("count", tr("random flights need airways, callsignPrefixes and addressBlocks"));
}

void ScenarioReader::readAirways(JsonObjectReader &reader, ScenarioRandomTraffic &random) const
{
    const QStringList airways = reader.texts("airways");
    for (const QString &airway : airways) {
        std::vector<ScenarioFix> fixes;
        const QStringList names = airway.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString &name : names) {
            if (!m_fixes.contains(name))
                reader.fail("airways", tr("there is no fix %1").arg(name));
            fixes.push_back(m_fixes.value(name));
        }
        if (fixes.size() < 2)
            reader.fail("airways", tr("an airway needs at least two fixes"));
        random.airways.push_back(std::move(fixes));
    }
}

QJsonObject sensorJson(const ScenarioRadar &radar)
{
    const GeoCoordinate location(radar.latitude, radar.longitude);
    return {
        {QStringLiteral("type"), QStringLiteral("radar")},
        {QStringLiteral("name"), radar.name},
        {QStringLiteral("description"), radar.description},
        {QStringLiteral("manufacturer"), QString()},
        {QStringLiteral("model"), QString()},
        {QStringLiteral("commission_year"), QJsonValue()},
        {QStringLiteral("sac"), radar.sac},
        {QStringLiteral("sic"), radar.sic},
        {QStringLiteral("location"), location.toATCString(GeoCoordinate::HighPrecision)},
        {QStringLiteral("antenna_altitude"), radar.antennaAltitude},
        {QStringLiteral("rotation_period"), radar.rotationPeriod},
        {QStringLiteral("psr"), radar.psr},
        {QStringLiteral("ssr"), radar.ssr},
        {QStringLiteral("modes"), radar.modeS},
        {QStringLiteral("psr_coverage"), radar.coveragePrimary},
        {QStringLiteral("ssr_coverage"), radar.coverageSecondary},
    };
}
