#pragma once

#include "tiles/tile_index.h"
#include "tiles/tile_provider.h"

#include <QColor>
#include <QImage>
#include <QString>

#include <functional>

// What a layer needs to know of where its tiles come from. GUI thread.
struct TileSource {
    // From memory; null when it is not there (yet).
    std::function<QImage(const TileIndex &)> image;
    // The level for metres of the plane per device pixel.
    std::function<int(double)> levelFor;
    std::function<QImage(TileProvider::LogoStyle)> logo; // may be null
    int minLevel = 1;
    int maxLevel = 1;
    QString copyright;
    QColor copyrightColor;

    // The provider must outlive it.
    static TileSource of(const TileProvider &provider);
};
