#pragma once

#include "tiles/mb_tiles_metadata.h"
#include "tiles/tile_index.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QString>

#include <memory>

class QLockFile;
class SqliteConnection;

// Writes an MBTiles file (version 1.3). Until finish() the tiles are gathered in another file beside it, so that there
// is the whole file or the one that was there before; a program that is killed loses the last two seconds at most. One
// thread.
class MbTilesWriter {
    Q_DECLARE_TR_FUNCTIONS(MbTilesWriter)

public:
    enum class Start {
        Anew, // what an earlier writer has left unfinished is dropped
        Continue, // it is kept and added to; where it is damaged or absent one begins anew
    };

    MbTilesWriter();
    ~MbTilesWriter(); // keeps what is unfinished

    // Where tiles are gathered until the file is finished.
    static QString unfinishedPath(const QString &path);

    // Format, bounds and levels may be left out: they are found from the tiles. All functions that fail return false,
    // with the reason in error().
    bool open(const QString &path, const MbTilesMetadata &metadata, Start start);
    const QString &error() const { return m_error; }

    bool contains(const TileIndex &index) const;
    qint64 count() const; // of the tiles, with those from before
    // The encoded picture, in place of one that was there. What is not a picture is refused.
    bool put(const TileIndex &index, const QByteArray &tile);
    // To the disk, so that nothing is lost from here on.
    bool flush();
    // Puts the file in its place. Nothing can be put after it.
    bool finish();
    // Removes what is unfinished; the file that was there before stays.
    void discard();

private:
    bool fail(const QString &reason);
    bool openUnfinished();
    bool begin();
    bool writeMetadata();

    QString m_path;
    MbTilesMetadata m_metadata;
    std::unique_ptr<QLockFile> m_lock; // of the unfinished file
    std::unique_ptr<SqliteConnection> m_connection; // null: not open
    bool m_inTransaction = false;
    QElapsedTimer m_sinceBegin;
    QString m_error;
};
