#pragma once

#include "tiles/tile_index.h"

#include <QByteArray>
#include <QString>

#include <memory>

struct MbTilesMetadata;

// Where drawn tiles go.
class TileSink {
public:
    virtual ~TileSink() = default;

    // By the name: an MBTiles file for what ends in ".mbtiles", else a folder for level/column/row.png. Null, with the
    // reason in the error, when it cannot be begun.
    static std::unique_ptr<TileSink> create(const QString &path, const MbTilesMetadata &metadata, QString &error);

    // False, with the reason in error().
    virtual bool put(const TileIndex &index, const QByteArray &png) = 0;
    virtual bool finish() = 0;
    const QString &error() const { return m_error; }

protected:
    QString m_error;
};
