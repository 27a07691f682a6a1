#pragma once

#include "tiles/mb_tiles_metadata.h"
#include "tiles/tile_index.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <memory>

// Reads an MBTiles file (version 1.3: tiles of pictures in an SQLite file). The file is only read, and may be replaced
// by another one meanwhile: that is seen when it is opened anew.
class MbTilesReader {
    Q_DECLARE_TR_FUNCTIONS(MbTilesReader)

public:
    MbTilesReader();
    ~MbTilesReader(); // no other thread may be reading any more

    // False, with the reason in error(), for what is no such file or holds no pictures; vector tiles are refused. One
    // thread; nobody may read meanwhile. Takes a few milliseconds, or as long as the disk wants.
    bool open(const QString &path);
    bool isOpen() const;
    const QString &error() const { return m_error; }

    // Levels and format are those of the tiles where the file does not say.
    const MbTilesMetadata &metadata() const { return m_metadata; }

    // The encoded picture; empty when the file has none at that place. Any thread, several at a time.
    QByteArray tile(const TileIndex &index) const;

private:
    class Connections;

    bool refuse(const QString &reason);
    bool readMetadata();
    bool checkFormat();

    std::unique_ptr<Connections> m_connections; // null: not open
    QString m_path;
    MbTilesMetadata m_metadata;
    QString m_error;
};
