#include "tiles/tile_provider_google.h"

#include "app/config.h"

namespace {

QString encoded(const QString &value)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(value));
}

// Images of twice the pixels a side show the ground of their tile more finely; the next coarser level then has what the
// view needs.
TileRequest googleRequest(const Config &config)
{
    const TileDeployment deployment = tileDeployment(TileService::GoogleMaps);
    const QString layer = googleTileLayerToCode(config.mapGoogleLayer);
    const QString &language = config.mapGoogleHostLanguage;
    const QString &region = config.mapGoogleGeographyLocation;
    TileRequest request;
    request.service = TileService::GoogleMaps;
    request.server = deployment.server;
    request.servers = deployment.servers;
    request.target =
        QStringLiteral("/vt/lyrs=%1&scale=%2&x={x}&y={y}&z={z}&hl=%3&gl=%4")
            .arg(layer, QLatin1String(config.mapGoogleHiDpiTiles ? "2" : "1"), encoded(language), encoded(region));
    request.file = QStringLiteral("/%1/%2/%3/{z}/{x}/{y}%4.png")
                       .arg(layer, tilePathPart(language), tilePathPart(region),
                           QLatin1String(config.mapGoogleHiDpiTiles ? "@2x" : ""));
    request.userAgent = QStringLiteral("Mozilla/5.0 (Windows; U; MSIE 6.0; Windows NT 5.1; SV1; .NET CLR 2.0.50727)");
    request.maxLevel = 21;
    request.adjustLevel = config.mapGoogleHiDpiTiles ? -1 : 0;
    return request;
}

} // namespace

TileServiceSetup TileProviderGoogle::setup(const Config &config)
{
    TileServiceSetup setup;
    setup.request = googleRequest(config);
    useTileServer(setup.request, config.mapGoogleTileServer);
    setup.tileDirectory = config.mapGoogleTileDir;
    setup.saveFiles = config.mapGoogleSaveTileFiles;
    setup.offlinePriority = config.mapGoogleOfflinePriority;
    setup.offlineOnly = config.mapGoogleOfflineOnly;
    setup.copyright = tr("Copyright %1 Google.");
    const bool dark =
        config.mapGoogleLayer == TileLayer::Satellite || config.mapGoogleLayer == TileLayer::SatelliteHybrid;
    setup.copyrightColor = dark ? Qt::white : Qt::black;
    return setup;
}

QString TileProviderGoogle::tileLayerName(TileLayer layer)
{
    switch (layer) {
    case TileLayer::Road:
        return tr("Road");
    case TileLayer::Hybrid:
        return tr("Road (overlay)");
    case TileLayer::Terrain:
        return tr("Terrain");
    case TileLayer::Satellite:
        return tr("Satellite");
    case TileLayer::Standard:
        return tr("Map with Terrain");
    case TileLayer::SatelliteHybrid:
        return tr("Satellite with Road");
    case TileLayer::TerrainStandard:
        return tr("Terrain with Road");
    }
    return {};
}
