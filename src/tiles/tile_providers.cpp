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

std::unique_ptr<TileProvider> made(TileService service, const std::shared_ptr<TileStock> &stock, Projector *projector)
{
    switch (service) {
    case TileService::BingMaps:
        return std::make_unique<TileProviderBing>(stock, projector);
    case TileService::OpenAip:
        return std::make_unique<TileProviderOpenAip>(stock, projector);
    case TileService::GoogleMaps:
        return std::make_unique<TileProviderGoogle>(stock, projector);
    case TileService::Tianditu:
        return std::make_unique<TileProviderTianditu>(stock, projector);
    case TileService::TiandituAnnotation:
        return std::make_unique<TileProviderTiandituAnnotation>(stock, projector);
    case TileService::Faa:
        return std::make_unique<TileProviderFaa>(stock, projector);
    case TileService::Custom:
        return std::make_unique<TileProviderCustom>(stock, projector);
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
    TileService service, const Config &config, Projector *projector, TileStocks &stocks)
{
    if (service == TileService::None) {
        return {};
    }
    const auto stock = stocks.from({tileServiceSetup(service, config), tileProxy(config), tileCacheDirectory(config)});
    std::unique_ptr<TileProvider> provider = made(service, stock, projector);
    provider->setEnabled(config.mapTileService);
    provider->setVisible(config.mapTileVisible);
    provider->setConsent(config.mapTileConsent);
    return provider;
}
