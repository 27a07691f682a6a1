#include "tiles/tile_provider_open_aip.h"

#include "app/config.h"

TileServiceSetup TileProviderOpenAip::setup(const Config &config)
{
    const TileDeployment deployment = tileDeployment(TileService::OpenAip);
    TileServiceSetup setup;
    TileRequest &request = setup.request;
    request.service = TileService::OpenAip;
    request.server = deployment.server;
    request.servers = deployment.servers;
    request.target = QStringLiteral("/api/data/openaip/{z}/{x}/{y}.png");
    request.file = QStringLiteral("/{z}/{x}/{y}.png");
    request.headers = {{"x-openaip-api-key", config.mapOpenAipApiKey.trimmed().toLatin1()}};
    request.minLevel = 4;
    request.maxLevel = 14;
    useTileServer(request, config.mapOpenAipTileServer);
    if (config.mapOpenAipApiKey.trimmed().isEmpty()) {
        request.problem = tr("OpenAIP API key is not configured.");
    }
    setup.tileDirectory = config.mapOpenAipTileDir;
    setup.saveFiles = config.mapOpenAipSaveTileFiles;
    setup.offlinePriority = config.mapOpenAipOfflinePriority;
    setup.offlineOnly = config.mapOpenAipOfflineOnly;
    setup.copyright = tr("Copyright %1 OpenAIP.");
    return setup;
}
