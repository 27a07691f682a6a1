#pragma once

#include "app/background_pass.h"

#include <QNetworkDiskCache>

// A network cache that is cut down to its size by a worker: the search through its directory takes longer than a frame
// may. For the thread of its network access.
class TileDiskCache final : public QNetworkDiskCache {
public:
    static constexpr qint64 MaxOctets = 200 * 1024 * 1024;

    explicit TileDiskCache(const QString &directory, QObject *parent = nullptr);

protected:
    // Called for every file stored; returns nothing of use, since nobody here asks for the cache's size.
    qint64 expire() override;

private:
    int m_stored = 0; // files
    BackgroundPass m_shrinking;
};

// Removes files of the cache, the oldest first, until nine tenths of the octets are left. Any thread.
void shrinkTileCache(const QString &directory, qint64 octets);
