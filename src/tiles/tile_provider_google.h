#pragma once

#include "tiles/tile_provider.h"

class Config;

// Road maps, terrain and satellite images, and mixtures of them.
class TileProviderGoogle final : public TileProvider {
    Q_OBJECT

public:
    using TileLayer = GoogleTileLayer;

    using TileProvider::TileProvider;

    static TileServiceSetup setup(const Config &config);
    static QString tileLayerToCode(TileLayer layer) { return googleTileLayerToCode(layer); }
    static TileLayer tileLayerFromCode(const QString &code) { return googleTileLayerFromCode(code); }
    static QString tileLayerName(TileLayer layer); // as shown to the operator
};
