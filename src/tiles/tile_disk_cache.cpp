#include "tiles/tile_disk_cache.h"

#include <QDirIterator>
#include <QThreadPool>

#include <algorithm>

namespace {

constexpr int FilesBetweenSearches = 200;

struct CachedFile {
    QString path;
    QDateTime used;
    qint64 octets;
};

std::vector<CachedFile> cachedFiles(const QString &directory)
{
    std::vector<CachedFile> files;
    QDirIterator iterator(
        directory, {QStringLiteral("*.d")}, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        iterator.next();
        const QFileInfo info = iterator.fileInfo();
        files.push_back({info.filePath(), info.lastModified(), info.size()});
    }
    return files;
}

} // namespace

TileDiskCache::TileDiskCache(const QString &directory, QObject *parent) : QNetworkDiskCache(parent)
{
    setCacheDirectory(directory);
    setMaximumCacheSize(MaxOctets);
}

qint64 TileDiskCache::expire()
{
    if (m_storedSinceSearch++ % FilesBetweenSearches == 0 && !m_searching->exchange(true)) {
        QThreadPool::globalInstance()->start(
            [directory = cacheDirectory(), limit = maximumCacheSize(), searching = m_searching] {
                shrinkTileCache(directory, limit);
                *searching = false;
            });
    }
    return 0;
}

void shrinkTileCache(const QString &directory, qint64 octets)
{
    std::vector<CachedFile> files = cachedFiles(directory);
    qint64 total = 0;
    for (const CachedFile &file : files) {
        total += file.octets;
    }
    if (total <= octets) {
        return;
    }
    std::ranges::sort(files, {}, &CachedFile::used);
    for (const CachedFile &file : files) {
        if (total <= octets / 10 * 9) {
            return;
        }
        if (QFile::remove(file.path)) {
            total -= file.octets;
        }
    }
}
