#pragma once

#include "app/tile_services.h"
#include "tiles/tile_index.h"

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QUrl>

// What a service is asked for a tile, and the name of the tile's file. A plain value without network or files.
//
// Patterns hold {z} {x} {y}, {-y} (rows from the south), {quadkey} and {s} (one of the servers in turn).
struct TileRequest {
    TileService service = TileService::None;
    QString server; // "https://host", may hold {s} and a path
    QString target; // pattern of path and query
    QStringList servers; // what {s} stands for
    QList<QPair<QByteArray, QByteArray>> headers;
    QString userAgent; // instead of the application's own; empty: that
    QString file; // pattern of a tile's file, relative to the service's directory; empty: it has none
    int minLevel = TileIndex::MinLevel;
    int maxLevel = TileIndex::MaxLevel;
    int adjustLevel = 0; // levels beyond what the view's resolution asks for
    QString problem; // why the service cannot be asked, in words for the operator; empty: it can

    bool operator==(const TileRequest &) const = default;

    // Invalid for a tile that is not on the map, and where the patterns make no address of http or https.
    QUrl url(const TileIndex &index) const;
    // Empty for a tile that is not on the map. Holds no "..", whatever the settings say.
    QString filePath(const TileIndex &index) const;
};

// A setting as a part of a file's path: letters, digits and "-", "_", "@"; anything else becomes "_".
QString tilePathPart(const QString &text);

// Replaces the address of a service by one from the settings ("https://host:port/path", may be empty: no change); what
// cannot be one becomes the problem.
void useTileServer(TileRequest &request, const QString &address);
