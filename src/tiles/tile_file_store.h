#pragma once

#include <QByteArray>
#include <QString>

// The files of a directory of tiles, named by paths relative to it. Nothing outside the directory is ever read, written
// or removed: a path that leads out of it, be it by "..", as an absolute one or through a symbolic link, names no file.
// Any thread; may be copied.
class TileFileStore {
public:
    TileFileStore() = default;
    // Absolute; made with the first file. Empty: a store that holds nothing.
    explicit TileFileStore(const QString &directory);

    const QString &directory() const { return m_directory; }

    // Absolute; empty when the path leads out of the directory.
    QString absolutePath(const QString &path) const;
    bool contains(const QString &path) const;
    // Empty when there is none. A file that is no whole image (cut off by a crash, or another program's) is removed, so
    // that the tile is fetched again.
    QByteArray read(const QString &path) const;
    // The file is whole or as it was before, whatever happens. False: it could not be written; error says why.
    bool write(const QString &path, const QByteArray &octets, QString *error = nullptr) const;
    void remove(const QString &path) const;

private:
    bool staysInside(const QString &absolutePath) const;

    QString m_directory;
};
