#include "tiles/mb_tiles_metadata.h"

#include <QLatin1String>

QString mbTilesFormatOf(const QByteArray &tile)
{
    if (tile.startsWith("\x89PNG")) {
        return QStringLiteral("png");
    }
    if (tile.startsWith("\xff\xd8\xff")) {
        return QStringLiteral("jpg");
    }
    if (tile.startsWith("RIFF") && tile.mid(8, 4) == "WEBP") {
        return QStringLiteral("webp");
    }
    if (tile.startsWith("GIF8")) {
        return QStringLiteral("gif");
    }
    // The layers of a vector tile (field 3, length-delimited), mostly behind gzip or zlib.
    if (tile.startsWith("\x1f\x8b") || tile.startsWith("\x78\x9c") || tile.startsWith('\x1a')) {
        return QStringLiteral("pbf");
    }
    return {};
}
