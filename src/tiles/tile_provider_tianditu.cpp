#include "tiles/tile_provider_tianditu.h"

#include "app/config.h"

namespace {

QString annotationOf(TiandituTileLayer layer)
{
    switch (layer) {
    case TiandituTileLayer::Vector:
        return QStringLiteral("cva");
    case TiandituTileLayer::Terrain:
        return QStringLiteral("cta");
    case TiandituTileLayer::Imagery:
        break;
    }
    return QStringLiteral("cia");
}

TileRequest tiandituRequest(TileService service, const QString &layer, const Config &config)
{
    const TileDeployment deployment = tileDeployment(service);
    const QString key = config.mapTiandituApiKey.trimmed();
    TileRequest request;
    request.service = service;
    request.server = deployment.server;
    request.servers = deployment.servers;
    request.target = QStringLiteral("/%1_w/wmts?SERVICE=WMTS&REQUEST=GetTile&VERSION=1.0.0&LAYER=%1&STYLE=default"
                                    "&TILEMATRIXSET=w&FORMAT=tiles&TILEMATRIX={z}&TILEROW={y}&TILECOL={x}&tk=%2")
                         .arg(layer, QString::fromLatin1(QUrl::toPercentEncoding(key)));
    request.file = QStringLiteral("/%1/{z}/{x}/{y}.png").arg(layer);
    request.maxLevel = config.mapTiandituLayer == TiandituTileLayer::Terrain ? 14 : 18;
    useTileServer(request, config.mapTiandituTileServer);
    if (key.isEmpty()) {
        request.problem = TileProviderTianditu::tr("Map World API key is not configured.");
    }
    return request;
}

TileServiceSetup tiandituSetup(TileService service, const QString &layer, const Config &config)
{
    TileServiceSetup setup;
    setup.request = tiandituRequest(service, layer, config);
    setup.tileDirectory = config.mapTiandituTileDir;
    setup.saveFiles = config.mapTiandituSaveTileFiles;
    setup.offlinePriority = config.mapTiandituOfflinePriority;
    setup.offlineOnly = config.mapTiandituOfflineOnly;
    setup.copyright = QStringLiteral("Copyright %1 NGCC, GS(2025)1508.");
    setup.copyrightColor = config.mapTiandituLayer == TiandituTileLayer::Imagery ? Qt::white : Qt::black;
    return setup;
}

} // namespace

TileServiceSetup TileProviderTianditu::setup(const Config &config)
{
    return tiandituSetup(TileService::Tianditu, tiandituTileLayerToCode(config.mapTiandituLayer), config);
}

QString TileProviderTianditu::tileLayerName(TileLayer layer)
{
    switch (layer) {
    case TileLayer::Vector:
        return tr("Vector");
    case TileLayer::Terrain:
        return tr("Terrain");
    case TileLayer::Imagery:
        break;
    }
    return tr("Imagery");
}

TileServiceSetup TileProviderTiandituAnnotation::setup(const Config &config)
{
    return tiandituSetup(TileService::TiandituAnnotation, annotationOf(config.mapTiandituLayer), config);
}
