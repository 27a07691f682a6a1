#include "tiles/tile_disk_cache.h"

#include <QBuffer>
#include <QDirIterator>

#include <algorithm>
#include <utility>

namespace {

constexpr int FilesBetweenSearches = 200;
constexpr qsizetype MostAtATime = 16; // answers
constexpr qsizetype MostToWrite = 256;

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

// Writes what it gets, each file whole or not at all, and looks at nothing else.
class CacheWriter final : public QNetworkDiskCache {
public:
    explicit CacheWriter(const QString &directory)
    {
        setCacheDirectory(directory);
        setMaximumCacheSize(TileDiskCache::MaxOctets);
    }

    void write(const QNetworkCacheMetaData &metaData, const QByteArray &octets)
    {
        if (QIODevice *file = prepare(metaData)) {
            file->write(octets);
            insert(file);
        }
    }

protected:
    qint64 expire() override { return 0; }
};

} // namespace

TileDiskCache::TileDiskCache(const QString &directory, QObject *parent) : QNetworkDiskCache(parent)
{
    setCacheDirectory(directory);
    setMaximumCacheSize(MaxOctets);
}

TileDiskCache::~TileDiskCache() = default;

QIODevice *TileDiskCache::prepare(const QNetworkCacheMetaData &metaData)
{
    if (!metaData.isValid() || !metaData.saveToDisk()) {
        return nullptr;
    }
    auto buffer = std::make_shared<QBuffer>();
    buffer->open(QIODevice::ReadWrite);
    m_arriving.insert(buffer.get(), {buffer, metaData});
    return buffer.get();
}

// An answer more than the disk can take is dropped: it is asked for again some day.
void TileDiskCache::insert(QIODevice *device)
{
    const auto [buffer, metaData] = m_arriving.take(device);
    if (!buffer || m_toWrite.size() >= MostToWrite) {
        return;
    }
    m_toWrite.append({metaData, buffer->data()});
    startWriting();
    if (m_stored++ % FilesBetweenSearches == 0) {
        startShrinking(maximumCacheSize());
    }
}

void TileDiskCache::startWriting()
{
    if (m_writing.running() || m_toWrite.isEmpty()) {
        return;
    }
    const QList<Answer> answers = m_toWrite.first(std::min(m_toWrite.size(), MostAtATime));
    m_toWrite.remove(0, answers.size());
    const auto write = [directory = cacheDirectory(), answers](const BackgroundPass::Token &) {
        CacheWriter writer(directory);
        for (const Answer &answer : answers) {
            writer.write(answer.metaData, answer.octets);
        }
        return true;
    };
    m_writing.start(write, [this](bool) {
        for (const QUrl &url : std::exchange(m_removed, {})) {
            QNetworkDiskCache::remove(url);
        }
        startWriting();
    });
}

// An answer that is given up half way is removed by its address.
bool TileDiskCache::remove(const QUrl &url)
{
    const auto arriving = m_arriving.removeIf([&url](const auto &entry) { return entry.value().second.url() == url; });
    const auto waiting = m_toWrite.removeIf([&url](const Answer &answer) { return answer.metaData.url() == url; });
    if (m_writing.running()) {
        m_removed.append(url);
    }
    return QNetworkDiskCache::remove(url) || arriving + waiting > 0;
}

// The base class clears itself by way of a size of zero.
qint64 TileDiskCache::expire()
{
    if (maximumCacheSize() == 0) {
        m_toWrite.clear();
        startShrinking(0);
    }
    return 0;
}

void TileDiskCache::startShrinking(qint64 octets)
{
    if (!m_shrinking.running()) {
        const auto shrink = [directory = cacheDirectory(), octets](const BackgroundPass::Token &) {
            shrinkTileCache(directory, octets);
            return true;
        };
        m_shrinking.start(shrink, [](bool) {});
    }
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
