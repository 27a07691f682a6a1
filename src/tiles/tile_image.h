#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

// Larger answers and files are no tiles.
constexpr qint64 MaxTileOctets = 8 * 1024 * 1024;
// Pixels a side; a larger image is refused before it is decoded.
constexpr int MaxTileSide = 4096;

// Whether the octets begin and end as a PNG, JPEG, GIF or WebP image does.
bool isWholeTileImage(const QByteArray &octets);

// Any thread. The image is in a format that paints fast: RGB32, or premultiplied ARGB32 where it has an alpha channel.
// Null when it is none or too large; error then says why.
QImage decodeTileImage(const QByteArray &octets, QString *error = nullptr);
