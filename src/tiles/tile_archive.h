#pragma once

#include "tiles/tile_loader.h"

#include <QString>

// What an MBTiles file holds, for a loader's store.
struct TileArchive {
    TileLoader::Open open; // null: the file cannot be used
    int minLevel = TileIndex::MinLevel;
    int maxLevel = TileIndex::MaxLevel;
    QString copyright; // plain text
    QString error; // why it cannot be used, in words
};

// Any thread; takes as long as the disk wants.
TileArchive openTileArchive(const QString &path);
