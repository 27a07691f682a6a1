#include "tiles/tile_stock.h"

#include "tiles/tile_deployment.h"
#include "tiles/tile_fetcher.h"
#include "tiles/tile_file_store.h"
#include "tiles/tile_image.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int ChangeDelay = 30; // milliseconds, in which images are gathered for one change

TileLoader::Open readFiles(const TileFileStore &store, const TileRequest &request)
{
    return [store, request]() -> TileLoader::Read {
        return [store, request](const TileIndex &index, QString *) {
            const QString path = request.filePath(index);
            const QByteArray octets = store.read(path);
            const QImage image = octets.isEmpty() ? QImage() : decodeTileImage(octets);
            if (image.isNull() && !octets.isEmpty()) {
                store.remove(path);
            }
            return image;
        };
    };
}

TileLoader::Save writeFiles(const TileFileStore &store, const TileRequest &request)
{
    return [store, request](const TileIndex &index, const QByteArray &octets, QString *error) {
        store.write(request.filePath(index), octets, error);
    };
}

QPointF centreOf(const TileRange &range)
{
    const TileIndex middle = TileRange::wrapped((range.left + range.right) / 2, 0, range.level);
    return {middle.x + ((range.left + range.right) % 2 == 0 ? 0.5 : 1.0), (range.top + range.bottom + 1) / 2.0};
}

} // namespace

TileStock::TileStock(const Source &source, qsizetype memory)
    : m_source(source), m_fetcher(new TileFetcher(source.setup.request, this)), m_loader(new TileLoader(this)),
      m_images(memory)
{
    m_changeTimer.setSingleShot(true);
    m_changeTimer.setInterval(ChangeDelay);
    connect(&m_changeTimer, &QTimer::timeout, this, [this] { Q_EMIT changed(std::exchange(m_imagesCame, false)); });
    connectFetcher();
    connectLoader();
    m_fetcher->setProxy(source.proxy.toNetworkProxy());
    m_fetcher->setCacheDirectory(source.cacheDirectory);
    useTileFiles();
    if (!source.setup.archive.isEmpty()) {
        openArchive(source.setup.archive);
    }
}

TileStock::~TileStock() = default;

void TileStock::connectFetcher()
{
    connect(m_fetcher, &TileFetcher::received, m_loader, &TileLoader::decode);
    connect(m_fetcher, &TileFetcher::message, this, &TileStock::message);
    connect(m_fetcher, &TileFetcher::unavailable, this, &TileStock::scheduleChange);
    connect(m_fetcher, &TileFetcher::idle, this, &TileStock::scheduleChange);
    connect(m_fetcher, &TileFetcher::stateChanged, this, [this] {
        const bool wasPaused = std::exchange(m_paused, m_fetcher->paused());
        if (m_paused && !wasPaused) {
            turnToStore();
        }
        scheduleChange();
    });
}

void TileStock::connectLoader()
{
    connect(m_loader, &TileLoader::loaded, this, &TileStock::addImageToCache);
    connect(m_loader, &TileLoader::absent, this, &TileStock::enqueueTile);
    connect(m_loader, &TileLoader::refused, m_fetcher, &TileFetcher::reject);
    connect(m_loader, &TileLoader::storeFailed, this, &TileStock::complainOfStore);
    connect(m_loader, &TileLoader::decoded, this,
        [this](const TileIndex &index, const QImage &image, const QByteArray &octets) {
            addImageToCache(index, image);
            if (m_source.setup.saveFiles) {
                m_loader->save(index, octets);
            }
        });
    connect(m_loader, &TileLoader::progressed, this, [this] {
        m_fetcher->pump();
        scheduleChange();
    });
}

void TileStock::useTileFiles()
{
    const TileServiceSetup &setup = m_source.setup;
    if (!setup.archive.isEmpty() || setup.request.file.isEmpty()) {
        m_loader->setStore({}, {});
        return;
    }
    const TileFileStore store(setup.tileDirectory);
    m_loader->setStore(readFiles(store, setup.request), writeFiles(store, setup.request));
}

void TileStock::openArchive(const QString &path)
{
    m_opening.start([path](const BackgroundPass::Token &) { return openTileArchive(path); },
        [this](const TileArchive &archive) {
            if (archive.open) {
                useArchive(archive);
            } else {
                complainOfStore(archive.error);
            }
        });
}

void TileStock::useArchive(const TileArchive &archive)
{
    m_archive = archive;
    m_archive->minLevel = std::clamp(archive.minLevel, TileIndex::MinLevel, TileIndex::MaxLevel);
    m_archive->maxLevel = std::clamp(archive.maxLevel, TileIndex::MinLevel, TileIndex::MaxLevel);
    m_storeTrouble.clear();
    m_loader->setStore(archive.open, {});
    Q_EMIT sourceChanged();
}

void TileStock::setOfflineMode(bool priority, bool only)
{
    m_source.setup.offlinePriority = priority;
    m_source.setup.offlineOnly = only;
    m_fetcher->clear();
    Q_EMIT sourceChanged();
}

void TileStock::setTileFileDir(const QString &directory)
{
    m_source.setup.tileDirectory = directory;
    useTileFiles();
}

void TileStock::setNetworkCacheDir(const QString &directory)
{
    m_source.cacheDirectory = directory;
    m_fetcher->setCacheDirectory(directory);
}

void TileStock::setProxy(const TileProxy &proxy)
{
    m_source.proxy = proxy;
    m_fetcher->setProxy(proxy.toNetworkProxy());
}

void TileStock::setConsent(bool given)
{
    if (m_fetcher->consent() != given) {
        m_fetcher->setConsent(given);
        Q_EMIT sourceChanged();
    }
}

void TileStock::setClock(TilePacing::Clock clock)
{
    m_fetcher->setClock(std::move(clock));
}

void TileStock::enter(const void *view)
{
    m_views.push_back({view, {}, 0, {}});
}

void TileStock::leave(const void *view)
{
    wantNothing(view);
    std::erase_if(m_views, [view](const View &one) { return one.view == view; });
}

TileStock::View &TileStock::viewOf(const void *view)
{
    const auto found = std::ranges::find(m_views, view, &View::view);
    Q_ASSERT(found != m_views.end());
    return *found;
}

QSet<TileIndex> TileStock::want(const void *view, const TileRange &range)
{
    const std::vector<TileIndex> tiles = range.tiles();
    View &wanting = viewOf(view);
    const QSet<TileIndex> wanted(tiles.begin(), tiles.end());
    wanting.wanted = wanted;
    wanting.level = range.level;
    wanting.centre = centreOf(range);
    keepWanted();
    for (const TileIndex &index : tiles) {
        if (m_images.contains(index) || m_loader->holds(index)) {
            continue;
        }
        if (readsStoreFirst() && !m_fetcher->holds(index)) {
            m_loader->read(index);
        } else {
            enqueueTile(index);
        }
    }
    m_loader->startReading();
    m_fetcher->pump();
    scheduleChange();
    return wanted;
}

void TileStock::wantNothing(const void *view)
{
    viewOf(view).wanted.clear();
    keepWanted();
    if (m_wanted.isEmpty()) {
        m_fetcher->clear();
        m_loader->clear();
    }
}

void TileStock::keepWanted()
{
    m_wanted.clear();
    QList<TileFetcher::Centre> centres;
    for (const View &view : m_views) {
        m_wanted = m_wanted.isEmpty() ? view.wanted : m_wanted | view.wanted;
        if (!view.wanted.isEmpty()) {
            centres.append({view.level, view.centre});
        }
    }
    m_fetcher->keepOnly(m_wanted);
    m_fetcher->setCentres(centres);
    m_loader->keepOnly(m_wanted);
}

bool TileStock::readsStoreFirst() const
{
    return m_source.setup.offlinePriority || m_source.setup.offlineOnly || m_fetcher->paused() || !asksService();
}

// An archive's tiles are the only ones.
bool TileStock::asksService() const
{
    return !m_archive && m_source.setup.archive.isEmpty() && !m_source.setup.offlineOnly && m_fetcher->canAsk();
}

// A file that is old is better than nothing.
void TileStock::turnToStore()
{
    for (const TileIndex &index : std::as_const(m_wanted)) {
        if (!m_images.contains(index)) {
            m_loader->read(index);
        }
    }
    m_loader->startReading();
}

void TileStock::enqueueTile(const TileIndex &index)
{
    if (asksService() && m_wanted.contains(index)) {
        m_fetcher->enqueue(index);
    }
}

void TileStock::addImageToCache(const TileIndex &index, const QImage &image)
{
    m_images.insert(index, new QImage(image), image.sizeInBytes());
    m_imagesCame = true;
    scheduleChange();
}

QImage TileStock::image(const TileIndex &index) const
{
    const QImage *found = m_images.object(index);
    return found ? *found : QImage();
}

bool TileStock::settled() const
{
    return m_fetcher->queued() == 0 && m_fetcher->inFlight() == 0 && !m_loader->busy();
}

void TileStock::clearCache()
{
    m_images.clear();
    m_fetcher->clearCache();
    m_imagesCame = true;
    scheduleChange();
}

void TileStock::sayWhatIsMissing()
{
    const QString &problem = m_source.setup.request.problem;
    if (!problem.isEmpty() && !std::exchange(m_problemSaid, true)) {
        Q_EMIT message(LogLevel::Warning, problem);
    }
}

void TileStock::complainOfStore(const QString &reason)
{
    if (std::exchange(m_storeTrouble, reason) != reason) {
        const QString service = tileServiceName(m_source.setup.request.service);
        Q_EMIT message(LogLevel::Warning, tr("Tiles of %1: %2").arg(service, reason));
        scheduleChange();
    }
}

void TileStock::scheduleChange()
{
    if (!m_changeTimer.isActive()) {
        m_changeTimer.start();
    }
}

std::shared_ptr<TileStock> TileStocks::from(const TileStock::Source &source)
{
    std::erase_if(m_stocks, [](const std::weak_ptr<TileStock> &stock) { return stock.expired(); });
    for (const std::weak_ptr<TileStock> &stock : m_stocks) {
        if (auto shared = stock.lock(); shared && shared->source() == source) {
            return shared;
        }
    }
    auto made = std::make_shared<TileStock>(source);
    m_stocks.push_back(made);
    return made;
}
