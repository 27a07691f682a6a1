#pragma once

#include "app/background_pass.h"
#include "tiles/tile_provider.h"

class Config;

// The site's own tiles: a service behind an address with placeholders, or an MBTiles file, which needs no network.
class TileProviderCustom final : public TileProvider {
    Q_OBJECT

public:
    TileProviderCustom(const TileServiceSetup &setup, Projector *projector, QObject *parent = nullptr);

    static TileServiceSetup setup(const Config &config);

private:
    void openArchive(const QString &path);

    BackgroundPass m_opening;
};
