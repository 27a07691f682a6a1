#pragma once

#include "tiles/tile_index.h"

#include <QByteArray>
#include <QRectF>
#include <QString>

// What an MBTiles file says of itself.
struct MbTilesMetadata {
    QString name;
    QString description;
    QString attribution; // may hold markup
    QString format; // "png", "jpg", "webp", "gif" or, of vector tiles, "pbf"
    bool isOverlay = false; // transparent, to lie over other maps
    int minLevel = 0;
    int maxLevel = 0;
    QRectF bounds; // degrees: x is the longitude, from the west, y the latitude, from the south; null: not said
};

// The format of a tile by its first octets, in the words of MBTiles; empty when it is none of those formats. Compressed
// octets are vector tiles.
QString mbTilesFormatOf(const QByteArray &tile);

// Rows are counted from the south there. Levels up to 30.
constexpr int mbTilesRow(const TileIndex &index)
{
    return (1 << index.level) - 1 - index.y;
}
