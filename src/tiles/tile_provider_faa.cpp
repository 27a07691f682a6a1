#include "tiles/tile_provider_faa.h"

#include "app/config.h"

namespace {

// A chart's service, and the levels that there are of it.
struct Chart {
    const char *service;
    int minLevel;
    int maxLevel;
};

constexpr std::array Charts{Chart{"VFR_Sectional", 8, 12}, Chart{"VFR_Terminal", 10, 12}, Chart{"IFR_AreaLow", 7, 12},
    Chart{"IFR_High", 5, 10}};

} // namespace

TileServiceSetup TileProviderFaa::setup(const Config &config)
{
    const auto index = static_cast<std::size_t>(config.mapFaaChart);
    const Chart &chart = Charts.at(index < Charts.size() ? index : 0);
    const TileDeployment deployment = tileDeployment(TileService::Faa);
    TileServiceSetup setup;
    TileRequest &request = setup.request;
    request.service = TileService::Faa;
    request.server = deployment.server;
    request.servers = deployment.servers;
    request.target = QStringLiteral("/%1/MapServer/tile/{z}/{y}/{x}").arg(QLatin1String(chart.service));
    request.file = QStringLiteral("/%1/{z}/{x}/{y}.png").arg(faaTileChartToString(config.mapFaaChart));
    request.minLevel = chart.minLevel;
    request.maxLevel = chart.maxLevel;
    useTileServer(request, config.mapFaaTileServer);
    setup.tileDirectory = config.mapFaaTileDir;
    setup.saveFiles = config.mapFaaSaveTileFiles;
    setup.offlinePriority = config.mapFaaOfflinePriority;
    setup.offlineOnly = config.mapFaaOfflineOnly;
    setup.copyright = tr("Copyright %1 FAA.");
    return setup;
}
