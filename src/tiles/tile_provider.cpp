#include "tiles/tile_provider.h"

#include "geo/projector.h"
#include "tiles/tile_fetcher.h"

#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int LogoHeight = 20; // pixels
constexpr int LogoRatio = 2; // device pixels a pixel
constexpr int MostLevelsTooFine = 2; // where the service has no coarser one; beyond it a tile is a speck

} // namespace

TileProvider::TileProvider(std::shared_ptr<TileStock> stock, Projector *projector, QObject *parent)
    : QObject(parent), m_stock(std::move(stock)), m_projector(projector)
{
    m_stock->enter(this);
    connect(m_stock.get(), &TileStock::changed, this, &TileProvider::announceChange);
    connect(m_stock.get(), &TileStock::sourceChanged, this, &TileProvider::repeatView);
    connect(m_stock.get(), &TileStock::message, this, [this](LogLevel level, const QString &text) {
        if (m_stock->speaks(this)) {
            Q_EMIT message(level, text);
        }
    });
    loadLogos();
}

TileProvider::~TileProvider()
{
    m_stock->leave(this);
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

void TileProvider::setNetworkProxyEnabled(bool enabled)
{
    TileProxy proxy = m_stock->source().proxy;
    proxy.enabled = enabled;
    m_stock->setProxy(proxy);
}

void TileProvider::setNetworkProxyServer(const QString &host, unsigned short port)
{
    TileProxy proxy = m_stock->source().proxy;
    proxy.host = host;
    proxy.port = port;
    m_stock->setProxy(proxy);
}

void TileProvider::setNetworkProxyAuthentication(const QString &user, const QString &password)
{
    TileProxy proxy = m_stock->source().proxy;
    proxy.user = user;
    proxy.password = password;
    m_stock->setProxy(proxy);
}

void TileProvider::setNetworkProxyHostnameLookup(bool byProxy)
{
    TileProxy proxy = m_stock->source().proxy;
    proxy.hostNameLookup = byProxy;
    m_stock->setProxy(proxy);
}

void TileProvider::setMaxConcurrentRequests(int count)
{
    m_stock->fetcher().setMaxConcurrentRequests(count);
}

int TileProvider::maxConcurrentRequests() const
{
    return m_stock->fetcher().maxConcurrentRequests();
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

// Where the level that suits the view has too many tiles in it, a coarser one is taken.
void TileProvider::processRequest(const View &view)
{
    m_wanted.clear();
    m_tooWide = false;
    if (m_enabled && m_visible) {
        m_stock->sayWhatIsMissing();
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
}

void TileProvider::prepareTiles(const TileRange &range)
{
    m_wanted = m_stock->want(this, range);
}

void TileProvider::pumpQueue()
{
    m_stock->fetcher().pump();
}

void TileProvider::clearRequest()
{
    m_view.reset();
    m_wanted.clear();
    m_stock->wantNothing(this);
}

void TileProvider::resetBackoff()
{
    m_stock->fetcher().resetBackoff();
}

void TileProvider::resetAuthBlock()
{
    m_stock->fetcher().resetAuthBlock();
}

bool TileProvider::isMissing(const TileIndex &index) const
{
    return m_stock->fetcher().isMissing(index);
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

void TileProvider::announceChange(bool images)
{
    if (images) {
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
    if (!m_stock->source().setup.archive.isEmpty()) {
        return m_stock->storeTrouble();
    }
    const auto lacking =
        std::ranges::count_if(m_wanted, [this](const TileIndex &index) { return !m_stock->holds(index); });
    if (!m_wanted.isEmpty() && lacking == 0) {
        return {};
    }
    if (m_stock->source().setup.offlineOnly) {
        return lacking > 0 && settled() ? tr("no tiles of this view are saved") : QString();
    }
    if (const QString text = m_stock->fetcher().stateText(); !text.isEmpty()) {
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
    return request().userAgent.isEmpty() ? tileUserAgent() : request().userAgent;
}
