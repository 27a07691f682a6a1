#pragma once

#include "tiles/tile_provider.h"

class Config;

// Aerial images, and maps in several styles.
class TileProviderBing final : public TileProvider {
    Q_OBJECT

public:
    using TileImagery = BingTileImagery;

    using TileProvider::TileProvider;

    static TileServiceSetup setup(const Config &config);
    static QString tileImageryToString(TileImagery imagery) { return bingTileImageryToString(imagery); }
    static TileImagery tileImageryFromString(const QString &text) { return bingTileImageryFromString(text); }
};
