#pragma once

#include "tiles/tile_provider.h"

class Config;

// Aeronautical charts on a transparent ground.
class TileProviderOpenAip final : public TileProvider {
    Q_OBJECT

public:
    using TileProvider::TileProvider;

    static TileServiceSetup setup(const Config &config);
};
