#pragma once

#include "app/tile_services.h"
#include "tiles/tile_provider.h"
#include "tiles/tile_proxy.h"

#include <memory>

class Config;

// A service as the settings have it. Empty for None.
TileServiceSetup tileServiceSetup(TileService service, const Config &config);

TileProxy tileProxy(const Config &config);
// Absolute.
QString tileCacheDirectory(const Config &config);

// The provider of a service, with everything that the settings say of it applied; null for None. It shares the tiles of
// another view for which these stocks have the same service with the same settings. The projector outlives it.
std::unique_ptr<TileProvider> makeTileProvider(
    TileService service, const Config &config, Projector *projector, TileStocks &stocks);
