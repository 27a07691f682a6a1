#pragma once

#include "tiles/tile_provider.h"

class Config;

// The site's own tiles: a service behind an address with placeholders, or an MBTiles file, which needs no network.
class TileProviderCustom final : public TileProvider {
    Q_OBJECT

public:
    using TileProvider::TileProvider;

    static TileServiceSetup setup(const Config &config);
};
