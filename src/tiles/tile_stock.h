#pragma once

#include "app/background_pass.h"
#include "app/log_level.h"
#include "tiles/tile_archive.h"
#include "tiles/tile_geometry.h"
#include "tiles/tile_loader.h"
#include "tiles/tile_pacing.h"
#include "tiles/tile_proxy.h"
#include "tiles/tile_service_setup.h"

#include <QCache>
#include <QImage>
#include <QObject>
#include <QSet>
#include <QTimer>

#include <memory>
#include <optional>
#include <vector>

class TileFetcher;

// The tiles of one service for all views of the program that show them: one queue, one set of requests in flight, one
// memory. Each view says what it wants; what none wants any more is not asked for. For the GUI thread; files are read
// and images decoded on workers, and nothing waits.
class TileStock final : public QObject {
    Q_OBJECT

public:
    // Where the tiles come from. Views with equal sources can share a stock.
    struct Source {
        TileServiceSetup setup;
        TileProxy proxy;
        QString cacheDirectory; // absolute; empty: no cache of answers

        bool operator==(const Source &) const = default;
    };

    static constexpr qsizetype DefaultMemory = 256 * 1024 * 1024;

    // An archive of the setup is opened on a worker. The memory is the bound of decoded images, octets.
    explicit TileStock(const Source &source, qsizetype memory = DefaultMemory);
    ~TileStock() override;

    const Source &source() const { return m_source; }
    // Of the service, or of the archive once that is open.
    int minLevel() const { return m_archive ? m_archive->minLevel : m_source.setup.request.minLevel; }
    int maxLevel() const { return m_archive ? m_archive->maxLevel : m_source.setup.request.maxLevel; }
    QString copyright() const { return m_archive ? m_archive->copyright : m_source.setup.copyright; }

    void setOfflineMode(bool priority, bool only);
    void setSaveTileFiles(bool save) { m_source.setup.saveFiles = save; }
    void setTileFileDir(const QString &directory);
    void setNetworkCacheDir(const QString &directory);
    void setProxy(const TileProxy &proxy);
    void setConsent(bool given);
    void setClock(TilePacing::Clock clock);
    // Tiles from there and nowhere else, as those of an archive.
    void useArchive(const TileArchive &archive);

    // A view is known by an address of its own, from enter() to leave().
    void enter(const void *view);
    void leave(const void *view);
    // What the view wants from now on, nearest to the middle first, and nothing of what it wanted before. Returns the
    // tiles of the range.
    QSet<TileIndex> want(const void *view, const TileRange &range);
    // The same for nothing; where no other view wants anything, what is in flight is given up at once.
    void wantNothing(const void *view);
    // Whether the view is the one that speaks for all to the operator.
    bool speaks(const void *view) const { return !m_views.empty() && m_views.front().view == view; }

    // From memory, which remembers that it is used; null when it is not there.
    QImage image(const TileIndex &index) const;
    bool holds(const TileIndex &index) const { return m_images.contains(index); }
    // Whether nothing is on its way.
    bool settled() const;
    // Memory and the network cache on disk are emptied; saved tile files stay.
    void clearCache();

    const TileFetcher &fetcher() const { return *m_fetcher; }
    TileFetcher &fetcher() { return *m_fetcher; }
    // What is wrong with files or archive, in words; empty: nothing.
    const QString &storeTrouble() const { return m_storeTrouble; }
    // A key or an address that is missing is said once, when there is something to show.
    void sayWhatIsMissing();
    // changed() comes soon.
    void scheduleChange();

Q_SIGNALS:
    // Something that views show or say may look different; several things at a time. Whether images came or went.
    void changed(bool images);
    // Other tiles than before may be had: views say again what they want.
    void sourceChanged();
    void message(LogLevel level, const QString &text);

private:
    struct View {
        const void *view = nullptr;
        QSet<TileIndex> wanted;
        quint8 level = 0;
        QPointF centre; // tiles of the level
    };

    View &viewOf(const void *view);
    void connectFetcher();
    void connectLoader();
    void useTileFiles();
    void openArchive(const QString &path);
    bool readsStoreFirst() const;
    bool asksService() const;
    void keepWanted();
    void turnToStore();
    void enqueueTile(const TileIndex &index);
    void addImageToCache(const TileIndex &index, const QImage &image);
    void complainOfStore(const QString &reason);

    Source m_source;
    std::optional<TileArchive> m_archive;
    TileFetcher *m_fetcher;
    TileLoader *m_loader;
    BackgroundPass m_opening; // of the archive
    mutable QCache<TileIndex, QImage> m_images;
    QTimer m_changeTimer;
    std::vector<View> m_views; // in the order in which they came
    QSet<TileIndex> m_wanted; // by any of them
    QString m_storeTrouble;
    bool m_imagesCame = false; // since the last changed()
    bool m_paused = false; // the fetcher, when it was last looked at
    bool m_problemSaid = false;
};

// The stocks of a program, each as long as somebody holds it.
class TileStocks {
public:
    // That of another view where there is one.
    std::shared_ptr<TileStock> from(const TileStock::Source &source);

private:
    std::vector<std::weak_ptr<TileStock>> m_stocks;
};
