#include "tiles/tile_providers.h"

#include "app/app_paths.h"
#include "app/config.h"
#include "tiles/tile_provider_bing.h"
#include "tiles/tile_provider_custom.h"
#include "tiles/tile_provider_faa.h"
#include "tiles/tile_provider_google.h"
#include "tiles/tile_provider_open_aip.h"
#include "tiles/tile_provider_tianditu.h"

#include <QDate>

namespace {

TileServiceSetup setupOf(TileService service, const Config &config)
{
    switch (service) {
    case TileService::BingMaps:
        return TileProviderBing::setup(config);
    case TileService::OpenAip:
        return TileProviderOpenAip::setup(config);
    case TileService::GoogleMaps:
        return TileProviderGoogle::setup(config);
    case TileService::Tianditu:
        return TileProviderTianditu::setup(config);
    case TileService::TiandituAnnotation:
        return TileProviderTiandituAnnotation::setup(config);
    case TileService::Faa:
        return TileProviderFaa::setup(config);
    case TileService::Custom:
        return TileProviderCustom::setup(config);
    case TileService::None:
        break;
    }
    return {};
}

std::unique_ptr<TileProvider> made(const TileServiceSetup &setup, Projector *projector, QObject *parent)
{
    switch (setup.request.service) {
    case TileService::BingMaps:
        return std::make_unique<TileProviderBing>(setup, projector, parent);
    case TileService::OpenAip:
        return std::make_unique<TileProviderOpenAip>(setup, projector, parent);
    case TileService::GoogleMaps:
        return std::make_unique<TileProviderGoogle>(setup, projector, parent);
    case TileService::Tianditu:
        return std::make_unique<TileProviderTianditu>(setup, projector, parent);
    case TileService::TiandituAnnotation:
        return std::make_unique<TileProviderTiandituAnnotation>(setup, projector, parent);
    case TileService::Faa:
        return std::make_unique<TileProviderFaa>(setup, projector, parent);
    case TileService::Custom:
        return std::make_unique<TileProviderCustom>(setup, projector, parent);
    case TileService::None:
        break;
    }
    return {};
}

} // namespace

TileServiceSetup tileServiceSetup(TileService service, const Config &config)
{
    TileServiceSetup setup = setupOf(service, config);
    setup.tileDirectory = AppPaths::resolvePath(setup.tileDirectory);
    if (setup.copyright.contains(QLatin1String("%1"))) {
        setup.copyright = setup.copyright.arg(QDate::currentDate().year());
    }
    return setup;
}

TileProxy tileProxy(const Config &config)
{
    return {config.mapTileUseProxy, config.mapTileProxyHostname, config.mapTileProxyPort, config.mapTileProxyUser,
        config.mapTileProxyPassword, config.mapTileProxyHostnameLookup};
}

QString tileCacheDirectory(const Config &config)
{
    return AppPaths::resolvePath(config.mapTileCacheDir);
}

std::unique_ptr<TileProvider> makeTileProvider(
    TileService service, const Config &config, Projector *projector, QObject *parent)
{
    std::unique_ptr<TileProvider> provider = made(tileServiceSetup(service, config), projector, parent);
    if (!provider) {
        return provider;
    }
    provider->setNetworkProxyServer(config.mapTileProxyHostname, config.mapTileProxyPort);
    provider->setNetworkProxyAuthentication(config.mapTileProxyUser, config.mapTileProxyPassword);
    provider->setNetworkProxyHostnameLookup(config.mapTileProxyHostnameLookup);
    provider->setNetworkProxyEnabled(config.mapTileUseProxy);
    provider->setNetworkCacheDir(tileCacheDirectory(config));
    provider->setEnabled(config.mapTileService);
    provider->setVisible(config.mapTileVisible);
    provider->setConsent(config.mapTileConsent);
    return provider;
}

std::unique_ptr<TileFetcher> makeTileFetcher(TileService service, const Config &config, QObject *parent)
{
    auto fetcher = std::make_unique<TileFetcher>(tileServiceSetup(service, config).request, parent);
    fetcher->setProxy(tileProxy(config).toNetworkProxy());
    fetcher->setCacheDirectory(tileCacheDirectory(config));
    fetcher->setConsent(config.mapTileConsent);
    return fetcher;
}
