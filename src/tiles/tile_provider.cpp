#include "tiles/tile_provider.h"

#include "geo/projector.h"
#include "tiles/tile_fetcher.h"
#include "tiles/tile_file_store.h"
#include "tiles/tile_image.h"

#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>

namespace {

constexpr int ChangeDelay = 30; // milliseconds, in which images are gathered for one change
constexpr int LogoHeight = 20; // pixels
constexpr int LogoRatio = 2; // device pixels a pixel
constexpr int MostLevelsTooFine = 2; // where the service has no coarser one; beyond it a tile is a speck

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

} // namespace

TileProvider::TileProvider(const TileServiceSetup &setup, Projector *projector, QObject *parent)
    : QObject(parent), m_setup(setup), m_projector(projector), m_fetcher(new TileFetcher(setup.request, this)),
      m_loader(new TileLoader(this)), m_images(DefaultMemory)
{
    m_changeTimer.setSingleShot(true);
    m_changeTimer.setInterval(ChangeDelay);
    connect(&m_changeTimer, &QTimer::timeout, this, &TileProvider::announceChange);
    connectFetcher();
    connectLoader();
    loadLogos();
    useTileFiles();
}

TileProvider::~TileProvider() = default;

void TileProvider::connectFetcher()
{
    connect(m_fetcher, &TileFetcher::received, m_loader, &TileLoader::decode);
    connect(m_fetcher, &TileFetcher::message, this, &TileProvider::message);
    connect(m_fetcher, &TileFetcher::unavailable, this, &TileProvider::scheduleChange);
    connect(m_fetcher, &TileFetcher::idle, this, &TileProvider::scheduleChange);
    connect(m_fetcher, &TileFetcher::stateChanged, this, [this] {
        const bool wasPaused = std::exchange(m_paused, m_fetcher->paused());
        if (m_paused && !wasPaused) {
            turnToStore();
        }
        scheduleChange();
    });
}

void TileProvider::connectLoader()
{
    connect(m_loader, &TileLoader::loaded, this, &TileProvider::addImageToCache);
    connect(m_loader, &TileLoader::absent, this, &TileProvider::enqueueTile);
    connect(m_loader, &TileLoader::refused, m_fetcher, &TileFetcher::reject);
    connect(m_loader, &TileLoader::storeFailed, this, &TileProvider::complainOfStore);
    connect(m_loader, &TileLoader::decoded, this,
        [this](const TileIndex &index, const QImage &image, const QByteArray &octets) {
            addImageToCache(index, image);
            if (m_setup.saveFiles) {
                m_loader->save(index, octets);
            }
        });
    connect(m_loader, &TileLoader::progressed, this, [this] {
        m_fetcher->pump();
        scheduleChange();
    });
}

void TileProvider::useTileFiles()
{
    if (!m_setup.archive.isEmpty() || m_setup.request.file.isEmpty()) {
        m_loader->setStore({}, {});
        return;
    }
    const TileFileStore store(m_setup.tileDirectory);
    m_loader->setStore(readFiles(store, m_setup.request), writeFiles(store, m_setup.request));
}

void TileProvider::useArchive(TileLoader::Open open, int minLevel, int maxLevel, const QString &copyright)
{
    m_setup.request.minLevel = std::clamp(minLevel, TileIndex::MinLevel, TileIndex::MaxLevel);
    m_setup.request.maxLevel = std::clamp(maxLevel, TileIndex::MinLevel, TileIndex::MaxLevel);
    m_setup.copyright = copyright;
    m_storeTrouble.clear();
    m_loader->setStore(std::move(open), {});
    repeatView();
}

void TileProvider::failArchive(const QString &reason)
{
    complainOfStore(reason);
}

int TileProvider::levelFor(double metresPerPixel) const
{
    return std::clamp(groundResolutionToLevel(metresPerPixel) + adjustLevel(), minLevel(), maxLevel());
}

void TileProvider::setEnabled(bool enabled)
{
    m_enabled = enabled;
    repeatView();
}

void TileProvider::setVisible(bool visible)
{
    m_visible = visible;
    repeatView();
}

void TileProvider::setOfflineMode(bool priority, bool only)
{
    m_setup.offlinePriority = priority;
    m_setup.offlineOnly = only;
    m_fetcher->clear();
    repeatView();
}

void TileProvider::setTileFileDir(const QString &directory)
{
    m_setup.tileDirectory = directory;
    useTileFiles();
}

void TileProvider::setNetworkCacheDir(const QString &directory)
{
    m_fetcher->setCacheDirectory(directory);
}

void TileProvider::setNetworkProxyEnabled(bool enabled)
{
    m_proxy.enabled = enabled;
    applyProxy();
}

void TileProvider::setNetworkProxyServer(const QString &host, unsigned short port)
{
    m_proxy.host = host;
    m_proxy.port = port;
    applyProxy();
}

void TileProvider::setNetworkProxyAuthentication(const QString &user, const QString &password)
{
    m_proxy.user = user;
    m_proxy.password = password;
    applyProxy();
}

void TileProvider::setNetworkProxyHostnameLookup(bool byProxy)
{
    m_proxy.hostNameLookup = byProxy;
    applyProxy();
}

void TileProvider::applyProxy()
{
    m_fetcher->setProxy(m_proxy.toNetworkProxy());
}

void TileProvider::setConsent(bool given)
{
    m_fetcher->setConsent(given);
    repeatView();
}

void TileProvider::setMaxConcurrentRequests(int count)
{
    m_fetcher->setMaxConcurrentRequests(count);
}

int TileProvider::maxConcurrentRequests() const
{
    return m_fetcher->maxConcurrentRequests();
}

void TileProvider::setMemoryLimit(qsizetype octets)
{
    m_images.setMaxCost(octets);
}

void TileProvider::setClock(TilePacing::Clock clock)
{
    m_fetcher->setClock(std::move(clock));
}

void TileProvider::requestTiles(const GeoCoordinate &topLeft, const GeoCoordinate &bottomRight, double resolution)
{
    const double west = topLeft.longitude();
    const double east = bottomRight.longitude();
    m_view = {topLeft.latitude(), west, bottomRight.latitude(), east < west ? east + 360.0 : east, resolution};
    repeatView();
}

void TileProvider::requestView(const QPointF &topLeft, const QPointF &bottomRight, double resolution)
{
    View view;
    m_projector->toWgs84(&view.north, &view.west, topLeft.x(), topLeft.y());
    m_projector->toWgs84(&view.south, &view.east, bottomRight.x(), bottomRight.y());
    view.resolution = resolution;
    m_view = view;
    repeatView();
}

void TileProvider::repeatView()
{
    if (m_view && std::isfinite(m_view->north + m_view->west + m_view->south + m_view->east)) {
        processRequest(*m_view);
    }
}

// A key or an address that is missing is said once, when there is something to show.
void TileProvider::sayWhatIsMissing()
{
    const QString &problem = m_setup.request.problem;
    if (!problem.isEmpty() && !std::exchange(m_problemSaid, true)) {
        Q_EMIT message(LogLevel::Warning, problem);
    }
}

// Where the level that suits the view has too many tiles in it, a coarser one is taken.
void TileProvider::processRequest(const View &view)
{
    m_wanted.clear();
    m_tooWide = false;
    if (m_enabled && m_visible) {
        sayWhatIsMissing();
        int level = levelFor(view.resolution);
        TileRange range = tilesCovering(view.north, view.west, view.south, view.east, level);
        while (range.count() > MaxTilesPerView && level > minLevel()) {
            range = tilesCovering(view.north, view.west, view.south, view.east, --level);
        }
        const int suiting = groundResolutionToLevel(view.resolution) + adjustLevel();
        m_tooWide = range.count() > MaxTilesPerView || minLevel() - suiting > MostLevelsTooFine;
        prepareTiles(m_tooWide ? TileRange() : range);
    } else {
        prepareTiles({});
    }
    pumpQueue();
    scheduleChange();
}

void TileProvider::prepareTiles(const TileRange &range)
{
    const std::vector<TileIndex> tiles = range.tiles();
    m_wanted = {tiles.begin(), tiles.end()};
    m_fetcher->keepOnly(m_wanted);
    m_loader->keepOnly(m_wanted);
    const TileIndex middle = TileRange::wrapped((range.left + range.right) / 2, 0, range.level);
    m_fetcher->setCentre(
        {middle.x + ((range.left + range.right) % 2 == 0 ? 0.5 : 1.0), (range.top + range.bottom + 1) / 2.0});
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
}

bool TileProvider::readsStoreFirst() const
{
    return m_setup.offlinePriority || m_setup.offlineOnly || m_fetcher->paused() || !asksService();
}

bool TileProvider::asksService() const
{
    return m_setup.archive.isEmpty() && !m_setup.offlineOnly && m_fetcher->canAsk();
}

// A file that is old is better than nothing.
void TileProvider::turnToStore()
{
    for (const TileIndex &index : std::as_const(m_wanted)) {
        if (!m_images.contains(index)) {
            m_loader->read(index);
        }
    }
    m_loader->startReading();
}

void TileProvider::enqueueTile(const TileIndex &index)
{
    if (asksService() && m_wanted.contains(index)) {
        m_fetcher->enqueue(index);
    }
}

void TileProvider::addImageToCache(const TileIndex &index, const QImage &image)
{
    m_images.insert(index, new QImage(image), image.sizeInBytes());
    m_imagesCame = true;
    scheduleChange();
}

void TileProvider::pumpQueue()
{
    m_fetcher->pump();
}

void TileProvider::clearRequest()
{
    m_view.reset();
    m_wanted.clear();
    m_fetcher->clear();
    m_loader->clear();
}

void TileProvider::clearCache()
{
    m_images.clear();
    m_fetcher->clearCache();
    m_imagesCame = true;
    scheduleChange();
}

void TileProvider::resetBackoff()
{
    m_fetcher->resetBackoff();
}

void TileProvider::resetAuthBlock()
{
    m_fetcher->resetAuthBlock();
}

QImage TileProvider::image(const TileIndex &index) const
{
    const QImage *found = m_images.object(index);
    return found ? *found : QImage();
}

bool TileProvider::isMissing(const TileIndex &index) const
{
    return m_fetcher->isMissing(index);
}

bool TileProvider::settled() const
{
    return m_fetcher->queued() == 0 && m_fetcher->inFlight() == 0 && !m_loader->busy();
}

QImage TileProvider::logo() const
{
    return styledLogo(copyrightColor().lightness() > 127 ? LogoStyle::Light : LogoStyle::Dark);
}

void TileProvider::setLogo(LogoStyle style, const QString &resource)
{
    QImage &logo = m_logos.at(static_cast<std::size_t>(style));
    logo = {};
    QSvgRenderer renderer(resource);
    if (!renderer.isValid()) {
        return;
    }
    const QSize size = renderer.defaultSize().scaled(QSize(20 * LogoHeight, LogoHeight), Qt::KeepAspectRatio);
    logo = QImage(size * LogoRatio, QImage::Format_ARGB32_Premultiplied);
    logo.fill(Qt::transparent);
    QPainter painter(&logo);
    renderer.render(&painter);
    painter.end();
    logo.setDevicePixelRatio(LogoRatio);
}

void TileProvider::loadLogos()
{
    Q_INIT_RESOURCE(tiles);
    if (service() == TileService::Custom || service() == TileService::None) {
        return;
    }
    const TileService named = service() == TileService::TiandituAnnotation ? TileService::Tianditu : service();
    const QString path = QStringLiteral(":/resource/local/logo-%1-%2.svg").arg(tileServiceIdentifier(named));
    setLogo(LogoStyle::Light, path.arg(QLatin1String("light")));
    setLogo(LogoStyle::Dark, path.arg(QLatin1String("dark")));
}

void TileProvider::complainOfStore(const QString &reason)
{
    if (std::exchange(m_storeTrouble, reason) != reason) {
        Q_EMIT message(LogLevel::Warning, tr("Tiles of %1: %2").arg(serviceName(), reason));
        scheduleChange();
    }
}

void TileProvider::scheduleChange()
{
    if (!m_changeTimer.isActive()) {
        m_changeTimer.start();
    }
}

void TileProvider::announceChange()
{
    if (std::exchange(m_imagesCame, false)) {
        Q_EMIT tilesChanged();
    }
    const QString state = stateText();
    if (std::exchange(m_lastState, state) != state) {
        Q_EMIT stateChanged();
    }
}

QString TileProvider::stateText() const
{
    const QString reason = m_enabled && m_visible ? trouble() : QString();
    return reason.isEmpty() ? reason : QStringLiteral("%1: %2").arg(serviceName(), reason);
}

QString TileProvider::trouble() const
{
    if (m_tooWide) {
        return tr("there are no tiles for so wide a view");
    }
    if (!m_setup.archive.isEmpty()) {
        return m_storeTrouble;
    }
    const auto lacking =
        std::ranges::count_if(m_wanted, [this](const TileIndex &index) { return !m_images.contains(index); });
    if (!m_wanted.isEmpty() && lacking == 0) {
        return {};
    }
    if (m_setup.offlineOnly) {
        return lacking > 0 && settled() ? tr("no tiles of this view are saved") : QString();
    }
    if (const QString text = m_fetcher->stateText(); !text.isEmpty()) {
        return text;
    }
    const auto missing = std::ranges::count_if(m_wanted, [this](const TileIndex &index) { return isMissing(index); });
    return missing > 0 && missing == m_wanted.size() ? TileFetcher::missingText(missing) : QString();
}

void TileProvider::setUserAgentContact(const QString &contact)
{
    setTileUserAgentContact(contact);
}

QString TileProvider::userAgent() const
{
    return m_setup.request.userAgent.isEmpty() ? tileUserAgent() : m_setup.request.userAgent;
}
