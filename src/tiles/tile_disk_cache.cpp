#include "tiles/tile_disk_cache.h"

#include <QDirIterator>

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

// The base class clears itself by way of a size of zero.
qint64 TileDiskCache::expire()
{
    const bool clearing = maximumCacheSize() == 0;
    if (clearing || (m_stored++ % FilesBetweenSearches == 0 && !m_shrinking.running())) {
        const auto shrink = [directory = cacheDirectory(), limit = maximumCacheSize()](const BackgroundPass::Token &) {
            shrinkTileCache(directory, limit);
            return true;
        };
        m_shrinking.start(shrink, [](bool) {});
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
