#pragma once

#include "tiles/tile_index.h"

#include <QByteArray>
#include <QString>

#include <memory>

struct TileServiceSetup;

// Where downloaded tiles go. Belongs to the thread that made it.
class TileSink {
public:
    virtual ~TileSink() = default;

    // Both false, with the reason in error, when nothing can be written.
    virtual bool open(QString *error) = 0;
    virtual bool put(const TileIndex &index, const QByteArray &octets, QString *error) = 0;
    virtual bool holds(const TileIndex &index) const = 0;
    // What was put is safe from here on.
    virtual bool flush(QString * /*error*/) { return true; }
    // All tiles are there.
    virtual bool finish(QString * /*error*/) { return true; }
    // The download is given up: what is of no use without the rest goes.
    virtual void discard() { }

    // An MBTiles file, or the service's directory where the archive is empty. Anew: unfinished work that an earlier
    // download has left is dropped.
    static std::unique_ptr<TileSink> create(const TileServiceSetup &setup, const QString &archive, bool anew);
};
