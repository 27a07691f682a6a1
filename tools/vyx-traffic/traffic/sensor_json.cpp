#include "traffic/sensor_json.h"

#include "geo/geo_coordinate.h"

#include <QJsonArray>

namespace {

QJsonObject sourceJson(const char *type, const ScenarioSource &source)
{
    const GeoCoordinate location(source.latitude, source.longitude);
    return {
        {QStringLiteral("type"), QLatin1String(type)},
        {QStringLiteral("name"), source.name},
        {QStringLiteral("description"), source.description},
        {QStringLiteral("manufacturer"), QString()},
        {QStringLiteral("model"), QString()},
        {QStringLiteral("commission_year"), QJsonValue()},
        {QStringLiteral("sac"), source.sac},
        {QStringLiteral("sic"), source.sic},
        {QStringLiteral("location"), location.toATCString(GeoCoordinate::HighPrecision)},
    };
}

QJsonObject with(QJsonObject object, std::initializer_list<std::pair<QString, QJsonValue>> more)
{
    for (const auto &[key, value] : more) {
        object.insert(key, value);
    }
    return object;
}

QJsonObject radarJson(const ScenarioRadar &radar)
{
    return with(sourceJson("radar", radar),
        {
            {QStringLiteral("antenna_altitude"), radar.antennaAltitude},
            {QStringLiteral("rotation_period"), radar.rotationPeriod},
            {QStringLiteral("psr"), radar.psr},
            {QStringLiteral("ssr"), radar.ssr},
            {QStringLiteral("modes"), radar.modeS},
            {QStringLiteral("psr_coverage"), radar.coveragePrimary},
            {QStringLiteral("ssr_coverage"), radar.coverageSecondary},
        });
}

QJsonObject adsbJson(const ScenarioSource &source, int coverage, double interval, const QJsonArray &versions)
{
    return with(sourceJson("adsb", source),
        {
            {QStringLiteral("coverage"), coverage},
            {QStringLiteral("update_interval"), interval},
            {QStringLiteral("versions"), versions},
        });
}

QJsonObject smrJson(const ScenarioSmr &smr)
{
    return with(sourceJson("smr", smr),
        {
            {QStringLiteral("antenna_altitude"), smr.antennaAltitude},
            {QStringLiteral("rotation_period"), smr.rotationPeriod},
            {QStringLiteral("coverage"), smr.coverage},
            {QStringLiteral("acp"), 4096},
        });
}

QJsonObject trackerJson(const Scenario &scenario)
{
    if (!scenario.radars.empty()) {
        return radarJson(scenario.radars.front());
    }
    if (!scenario.mlat.empty()) {
        const ScenarioMlat &mlat = scenario.mlat.front();
        return with(sourceJson("mlat", mlat), {{QStringLiteral("coverage"), mlat.coverage}});
    }
    if (!scenario.sdps.empty()) {
        const ScenarioSdps &sdps = scenario.sdps.front();
        return with(sourceJson("sdps", sdps),
            {{QStringLiteral("coverage"), sdps.coverage}, {QStringLiteral("update_interval"), sdps.interval}});
    }
    if (!scenario.smr.empty()) {
        return smrJson(scenario.smr.front());
    }
    if (!scenario.adsb.empty()) {
        const ScenarioAdsb &adsb = scenario.adsb.front();
        return adsbJson(adsb, adsb.coverage, adsb.interval, {adsb.edition});
    }
    const ScenarioModeSReceiver &receiver = scenario.modeSReceivers.front();
    return adsbJson(receiver, receiver.coverage, 1, {});
}

} // namespace

QJsonObject sensorJson(const Scenario &scenario)
{
    QJsonObject object = trackerJson(scenario);
    const bool isRadar = !scenario.radars.empty();
    const bool isSirM = isRadar && scenario.radars.front().category == ScenarioRadar::TargetCategory::SirM;
    const bool isModeS = object.value(QLatin1String("type")) == QLatin1String("adsb") && scenario.adsb.empty();
    object.insert(QStringLiteral("processor"), isSirM ? "sirm" : isModeS ? "modes" : "asterix");
    if (isModeS) {
        const bool isAvr = scenario.modeSReceivers.front().format == ScenarioModeSReceiver::Format::Avr;
        object.insert(QStringLiteral("encapsulation"), isAvr ? "avr" : "beast");
    }
    object.insert(QStringLiteral("weather"), !scenario.weatherRadars.empty());
    object.insert(QStringLiteral("video"), !scenario.videoRadars.empty());
    return object;
}
