#pragma once

#include "app/background_pass.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QNetworkDiskCache>
#include <QUrl>

#include <memory>

class QBuffer;

// A network cache whose files are written, and cut down to their size, by a worker: both take longer than a frame may.
// What waits to be written is not found yet. For the thread of its network access.
class TileDiskCache final : public QNetworkDiskCache {
public:
    static constexpr qint64 MaxOctets = 200 * 1024 * 1024;

    explicit TileDiskCache(const QString &directory, QObject *parent = nullptr);
    ~TileDiskCache() override; // what waits to be written is dropped

    // Memory that takes up an answer; null for one that is not to be kept.
    QIODevice *prepare(const QNetworkCacheMetaData &metaData) override;
    void insert(QIODevice *device) override;
    bool remove(const QUrl &url) override;

protected:
    // Returns nothing of use, since nobody here asks for the cache's size.
    qint64 expire() override;

private:
    struct Answer {
        QNetworkCacheMetaData metaData;
        QByteArray octets;
    };

    void startWriting();
    void startShrinking(qint64 octets);

    QHash<QIODevice *, std::pair<std::shared_ptr<QBuffer>, QNetworkCacheMetaData>> m_arriving;
    QList<Answer> m_toWrite;
    QList<QUrl> m_removed; // while answers were being written, perhaps theirs
    int m_stored = 0; // answers
    BackgroundPass m_writing;
    BackgroundPass m_shrinking;
};

// Removes files of the cache, the oldest first, until nine tenths of the octets are left. Any thread.
void shrinkTileCache(const QString &directory, qint64 octets);
