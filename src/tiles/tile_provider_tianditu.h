#pragma once

#include "tiles/tile_provider.h"

class Config;

// Vector, terrain and imagery maps of the Chinese surveying authority.
class TileProviderTianditu final : public TileProvider {
    Q_OBJECT

public:
    using TileLayer = TiandituTileLayer;

    using TileProvider::TileProvider;

    static TileServiceSetup setup(const Config &config);
    static QString tileLayerToCode(TileLayer layer) { return tiandituTileLayerToCode(layer); }
    static TileLayer tileLayerFromCode(const QString &code) { return tiandituTileLayerFromCode(code); }
    static QString tileLayerName(TileLayer layer); // as shown to the operator
};

// The names that go over the layer chosen for TileProviderTianditu, on a transparent ground.
class TileProviderTiandituAnnotation final : public TileProvider {
    Q_OBJECT

public:
    using TileProvider::TileProvider;

    static TileServiceSetup setup(const Config &config);
};
