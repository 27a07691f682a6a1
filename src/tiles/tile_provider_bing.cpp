#include "tiles/tile_provider_bing.h"

#include "app/config.h"

#include <array>

namespace {

// What the maps' addresses end with, in the order of the imagery; the aerial images have an address of their own.
constexpr std::array MapQueries{"", "it=A,G,L&og=2290&n=z", "it=G,L&shading=hill&og=2290&n=z",
    "it=G,L&cstl=WL&og=2290&n=z", "it=G,L&cstl=CG&og=2290&n=z", "it=G,L&cstl=WD&og=2290&n=z"};

TileRequest bingRequest(const Config &config)
{
    const auto index = static_cast<std::size_t>(config.mapBingImagery);
    const std::size_t imagery = index < MapQueries.size() ? index : 0;
    const TileDeployment deployment = tileDeployment(TileService::BingMaps, imagery == 0);
    TileRequest request;
    request.service = TileService::BingMaps;
    request.server = deployment.server;
    request.servers = deployment.servers;
    request.maxLevel = 19;
    const QString variant = bingTileImageryToString(static_cast<BingTileImagery>(imagery));
    if (imagery == 0) {
        request.target = QStringLiteral("/tiles/a{quadkey}.jpeg?g=13858");
        request.file = QStringLiteral("/%1/{z}/{quadkey}.jpeg").arg(variant);
        return request;
    }
    request.target = QStringLiteral("/comp/ch/{quadkey}?mkt=%1&%2")
                         .arg(QString::fromLatin1(QUrl::toPercentEncoding(config.mapBingCulture)),
                             QLatin1String(MapQueries.at(imagery)));
    request.file = QStringLiteral("/%1/%2/{z}/{quadkey}.jpeg").arg(variant, tilePathPart(config.mapBingCulture));
    return request;
}

bool isDark(BingTileImagery imagery)
{
    return imagery == BingTileImagery::Aerial || imagery == BingTileImagery::AerialLabel
        || imagery == BingTileImagery::RoadDark;
}

} // namespace

TileServiceSetup TileProviderBing::setup(const Config &config)
{
    TileServiceSetup setup;
    setup.request = bingRequest(config);
    useTileServer(setup.request, config.mapBingTileServer);
    setup.tileDirectory = config.mapBingTileDir;
    setup.saveFiles = config.mapBingSaveTileFiles;
    setup.offlinePriority = config.mapBingOfflinePriority;
    setup.offlineOnly = config.mapBingOfflineOnly;
    setup.copyright = tr("Copyright %1 Microsoft and its suppliers.");
    setup.copyrightColor = isDark(config.mapBingImagery) ? Qt::white : Qt::black;
    return setup;
}
