#include "traffic/source_reader.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

using Category = ScenarioRadar::TargetCategory;

constexpr int SirMSectors = 16;
constexpr double LargestCell = 640; // metres: what the cell duration of category 240 can say

void readSource(JsonObjectReader &reader, ScenarioSource &source)
{
    source.name = reader.text("name");
    source.description = reader.text("description", QString());
    source.sac = static_cast<std::uint8_t>(reader.integer("sac", {0, 255}));
    source.sic = static_cast<std::uint8_t>(reader.integer("sic", {0, 255}));
    source.latitude = reader.number("lat", JsonObjectReader::Latitudes);
    source.longitude = reader.number("lon", JsonObjectReader::Longitudes);
    source.antennaAltitude = reader.integer("antennaAltitude", {-500, 9000}, 0);
    source.portOffset = reader.integer("portOffset", {0, 1000}, 0);
}

ScenarioPositions readPositions(JsonObjectReader &reader)
{
    const int choice =
        reader.choice("positions", {QStringLiteral("wgs84"), QStringLiteral("cartesian"), QStringLiteral("both")}, 0);
    return {.wgs84 = choice != 1, .cartesian = choice != 0};
}

} // namespace

QJsonValue pointObject(const QJsonValue &value)
{
    return value.isString() ? QJsonValue(QJsonObject{{QStringLiteral("fix"), value}}) : value;
}

ScenarioPoint readPoint(JsonObjectReader &reader, const ScenarioFixes &fixes)
{
    if (!reader.has("fix")) {
        return {reader.number("lat", JsonObjectReader::Latitudes), reader.number("lon", JsonObjectReader::Longitudes)};
    }
    const QString name = reader.text("fix");
    if (!fixes.contains(name)) {
        reader.fail("fix", SourceReader::tr("there is no fix %1").arg(name));
    }
    const ScenarioFix fix = fixes.value(name);
    return {fix.latitude, fix.longitude};
}

void SourceReader::read(JsonObjectReader &reader)
{
    const auto each = [&](const char *key, void (SourceReader::*readOne)(JsonObjectReader &)) {
        reader.eachObject(key, [this, readOne](JsonObjectReader &source) { (this->*readOne)(source); });
    };
    each("radars", &SourceReader::readRadar);
    each("adsb", &SourceReader::readAdsb);
    each("modesReceivers", &SourceReader::readModeSReceiver);
    each("mlat", &SourceReader::readMlat);
    each("sdps", &SourceReader::readSdps);
    each("smr", &SourceReader::readSmr);
    const Scenario &all = m_scenario;
    if (all.radars.empty() && all.adsb.empty() && all.modeSReceivers.empty() && all.mlat.empty() && all.sdps.empty()
        && all.smr.empty()) {
        reader.fail("radars", tr("must hold a radar, or one of adsb, modesReceivers, mlat, sdps and smr a source"));
    }
    each("safetyNets", &SourceReader::readSafetyNet);
    each("weatherRadars", &SourceReader::readWeatherRadar);
    each("videoRadars", &SourceReader::readVideoRadar);
}

void SourceReader::readRadar(JsonObjectReader &reader)
{
    ScenarioRadar radar;
    readSource(reader, radar);
    radar.category = static_cast<Category>(
        reader.choice("category", {QStringLiteral("001"), QStringLiteral("048"), QStringLiteral("sirm")}, 1));
    const bool isSirM = radar.category == Category::SirM;
    radar.rotationPeriod = reader.number("rotationPeriod", {0.5, 60}, radar.rotationPeriod);
    radar.sectors = reader.integer("sectors", {4, 256}, isSirM ? SirMSectors : radar.sectors);
    if (isSirM && radar.sectors != SirMSectors) {
        reader.fail("sectors", tr("must be %1 with this category").arg(SirMSectors));
    }
    radar.psr = reader.flag("psr", true);
    radar.modeS = reader.flag("modes", !isSirM) && !isSirM;
    radar.ssr = reader.flag("ssr", true) || radar.modeS;
    radar.coveragePrimary = reader.integer("coveragePrimary", {1, 250}, radar.coveragePrimary);
    radar.coverageSecondary = reader.integer("coverageSecondary", {1, 250}, radar.coverageSecondary);
    radar.rangeSigma = reader.number("rangeSigma", {0, 5}, 0);
    radar.azimuthSigma = reader.number("azimuthSigma", {0, 5}, 0);
    radar.detectionProbability = reader.number("detectionProbability", {0, 1}, 1);
    radar.horizon = reader.flag("horizon", true);
    radar.minimumElevation = reader.number("minimumElevation", {-90, 90}, -90);
    radar.missesToDrop = reader.integer("missesToDrop", {1, 100}, radar.missesToDrop);
    radar.ellipsoid = reader.flag("ellipsoid", false);
    readErrors(reader, radar);
    m_scenario.radars.push_back(radar);
}

void SourceReader::readErrors(JsonObjectReader &reader, ScenarioRadar &radar) const
{
    ScenarioRadarErrors &errors = radar.errors;
    errors.rangeBias = reader.number("rangeBias", {-5000, 5000}, 0);
    errors.rangeGain = reader.number("rangeGain", {-0.05, 0.05}, 0);
    errors.azimuthBias = reader.number("azimuthBias", {-10, 10}, 0);
    errors.timeOffset = reader.number("timeOffset", {-60, 60}, 0);
    errors.falsePlots = reader.number("falsePlots", {0, 10000}, 0);
    if (errors.falsePlots > 0 && radar.category != Category::Cat048) {
        reader.fail("falsePlots", tr("needs category 048: the others report tracks"));
    }
}

void SourceReader::readAdsb(JsonObjectReader &reader)
{
    ScenarioAdsb station;
    readSource(reader, station);
    const QStringList editions{
        QStringLiteral("0.23"), QStringLiteral("0.26"), QStringLiteral("2.1"), QStringLiteral("2.7")};
    station.edition = editions.at(reader.choice("edition", editions, 3));
    station.coverage = reader.integer("coverage", {1, 1000}, station.coverage);
    station.interval = reader.number("interval", {0.1, 60}, station.interval);
    station.horizon = reader.flag("horizon", true);
    m_scenario.adsb.push_back(station);
}

void SourceReader::readModeSReceiver(JsonObjectReader &reader)
{
    ScenarioModeSReceiver receiver;
    readSource(reader, receiver);
    const int format = reader.choice("format", {QStringLiteral("beast"), QStringLiteral("avr")}, 0);
    receiver.format = format == 0 ? ScenarioModeSReceiver::Format::Beast : ScenarioModeSReceiver::Format::Avr;
    receiver.coverage = reader.integer("coverage", {1, 400}, receiver.coverage);
    m_scenario.modeSReceivers.push_back(receiver);
}

void SourceReader::readMlat(JsonObjectReader &reader)
{
    ScenarioMlat mlat;
    readSource(reader, mlat);
    mlat.coverage = reader.integer("coverage", {1, 400}, mlat.coverage);
    mlat.interval = reader.number("interval", {0.1, 60}, mlat.interval);
    mlat.positions = readPositions(reader);
    m_scenario.mlat.push_back(mlat);
}

void SourceReader::readSdps(JsonObjectReader &reader)
{
    ScenarioSdps sdps;
    readSource(reader, sdps);
    sdps.coverage = reader.integer("coverage", {1, 1000}, sdps.coverage);
    sdps.interval = reader.number("interval", {0.1, 60}, sdps.interval);
    sdps.positions = readPositions(reader);
    m_scenario.sdps.push_back(sdps);
}

void SourceReader::readSmr(JsonObjectReader &reader)
{
    ScenarioSmr smr;
    readSource(reader, smr);
    smr.coverage = reader.number("coverage", {0.1, 30}, smr.coverage);
    smr.rotationPeriod = reader.number("rotationPeriod", {0.25, 10}, smr.rotationPeriod);
    smr.highest = reader.number("highest", {0, 10000}, smr.highest);
    m_scenario.smr.push_back(smr);
}

void SourceReader::readSafetyNet(JsonObjectReader &reader)
{
    ScenarioSafetyNet net;
    readSource(reader, net);
    net.tracksOf = reader.text("tracksOf", QString());
    net.interval = reader.number("interval", {0.5, 60}, net.interval);
    net.aliveInterval = reader.number("aliveInterval", {0.5, 600}, net.aliveInterval);
    net.areaLookAhead = reader.number("areaLookAhead", {0, 600}, net.areaLookAhead);
    net.stca = reader.has("stca");
    reader.object("stca", [&](JsonObjectReader &stca) { readConflicts(stca, net); });
    reader.eachObject(
        "minimumAltitudes", [&](JsonObjectReader &area) { net.minimumAltitudes.push_back(readArea(area, true)); });
    reader.eachObject(
        "restrictedAreas", [&](JsonObjectReader &area) { net.restrictedAreas.push_back(readArea(area, false)); });
    const auto isNamed = [&net](const ScenarioSource &source) { return source.name == net.tracksOf; };
    const auto anyOf = [&isNamed](const auto &sources) { return std::any_of(sources.begin(), sources.end(), isNamed); };
    if (!net.tracksOf.isEmpty() && !anyOf(m_scenario.radars) && !anyOf(m_scenario.mlat) && !anyOf(m_scenario.sdps)
        && !anyOf(m_scenario.smr)) {
        reader.fail("tracksOf", tr("there is no source %1 that numbers its tracks").arg(net.tracksOf));
    }
    m_scenario.safetyNets.push_back(net);
}

void SourceReader::readConflicts(JsonObjectReader &reader, ScenarioSafetyNet &net) const
{
    net.horizontalSeparation = reader.number("horizontal", {0.1, 50}, net.horizontalSeparation);
    net.verticalSeparation = reader.number("vertical", {50, 10000}, net.verticalSeparation);
    net.lookAhead = reader.number("lookAhead", {0, 600}, net.lookAhead);
}

ScenarioArea SourceReader::readArea(JsonObjectReader &reader, bool isMinimum) const
{
    ScenarioArea area;
    area.name = reader.text("name");
    if (!QRegularExpression(QStringLiteral("^[A-Z0-9 ]{1,8}$")).match(area.name).hasMatch()) {
        reader.fail("name", tr("must be one to eight of A to Z, 0 to 9 and blank"));
    }
    area.lower = isMinimum ? -2000 : reader.number("lower", {-2000, 100000}, -2000);
    area.upper = reader.number(isMinimum ? "altitude" : "upper", {-2000, 100000});
    reader.each("polygon", [&](const QJsonValue &value, const QString &path) {
        JsonObjectReader point(pointObject(value), path, reader.error());
        area.polygon.push_back(readPoint(point, m_fixes));
        point.finish();
    });
    if (area.polygon.size() < 3) {
        reader.fail("polygon", tr("must hold at least three points"));
    }
    return area;
}

void SourceReader::readWeatherRadar(JsonObjectReader &reader)
{
    ScenarioWeatherRadar radar;
    readSource(reader, radar);
    radar.period = reader.number("period", {1, 3600}, radar.period);
    radar.range = reader.number("range", {5, 500}, radar.range);
    radar.azimuthStep = reader.number("azimuthStep", {0.1, 12}, radar.azimuthStep);
    radar.cells = reader.integer("cells", {0, 200}, radar.cells);
    radar.windDirection = reader.number("windDirection", {0, 360}, radar.windDirection);
    radar.windSpeed = reader.number("windSpeed", {0, 200}, radar.windSpeed);
    m_scenario.weatherRadars.push_back(radar);
}

void SourceReader::readVideoRadar(JsonObjectReader &reader)
{
    ScenarioVideoRadar radar;
    readSource(reader, radar);
    radar.rotationPeriod = reader.number("rotationPeriod", {0.5, 60}, radar.rotationPeriod);
    radar.radials = reader.integer("radials", {16, 16384}, radar.radials);
    radar.cells = reader.integer("cells", {16, 16320}, radar.cells);
    radar.range = reader.number("range", {0.5, 250}, radar.range);
    if (radar.range * 1852 / radar.cells > LargestCell) {
        reader.fail("cells", tr("must be more for that range: a cell is %1 m at most").arg(LargestCell));
    }
    radar.beamWidth = reader.number("beamWidth", {0.1, 10}, radar.beamWidth);
    radar.clutterRange = reader.number("clutterRange", {0, 250}, radar.clutterRange);
    radar.noise = reader.integer("noise", {0, 120}, radar.noise);
    m_scenario.videoRadars.push_back(radar);
}
