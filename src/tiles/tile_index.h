#pragma once

#include <QHashFunctions>
#include <QString>

#include <compare>

// A square of the Web Mercator map: 2^level columns from 180 degrees west, as many rows from the north.
struct TileIndex {
    static constexpr int MinLevel = 1;
    static constexpr int MaxLevel = 23;

    int x = 0;
    int y = 0;
    quint8 level = 0;

    auto operator<=>(const TileIndex &) const = default;

    // Whether the level is one that tiles have.
    bool valid() const { return level >= MinLevel && level <= MaxLevel; }
    // Whether there is such a tile at the level.
    bool onMap() const;
    // The tile of which this one is a quarter.
    TileIndex parent() const { return {x >> 1, y >> 1, static_cast<quint8>(level - 1)}; }

    QString toString() const; // "(x, y, level)"
    QString toQuadKey() const;
};

inline size_t qHash(const TileIndex &index, size_t seed = 0)
{
    return qHashMulti(seed, index.x, index.y, index.level);
}

// One digit a level, the most significant first: bit of x + 2 * bit of y. Empty for a tile that is not on the map.
QString tileIndexToQuadKey(const TileIndex &index);
// Not valid() when the text is no quadkey of 1 to 23 digits.
TileIndex quadKeyToTileIndex(const QString &quadKey);
