#pragma once

#include "app/log_level.h"
#include "tiles/tile_deployment.h"
#include "tiles/tile_geometry.h"
#include "tiles/tile_stock.h"

#include <QImage>
#include <QObject>
#include <QSet>

#include <array>
#include <memory>
#include <optional>

class Projector;

// The tiles of one service for one layer of one view: works out which cover the view, and has them from a stock that it
// may share with other views, which then need not ask for them again. What is set here of the service, the network and
// the files holds for all who share the stock. For the GUI thread.
class TileProvider : public QObject, public TileGeometry {
    Q_OBJECT

public:
    // What a logo stands out from: Light is for dark grounds.
    enum class LogoStyle { Light, Dark };

    // Tiles that a view may ask for. A wider view takes a coarser level; where the service has none that is coarse
    // enough, it is asked for nothing.
    static constexpr qint64 MaxTilesPerView = 2048;

    TileProvider(std::shared_ptr<TileStock> stock, Projector *projector, QObject *parent = nullptr);
    ~TileProvider() override;

    TileService service() const { return request().service; }
    QString serviceIdentifier() const { return tileServiceIdentifier(service()); }
    QString serviceName() const { return tileServiceName(service()); }

    int minLevel() const { return m_stock->minLevel(); }
    int maxLevel() const { return m_stock->maxLevel(); }
    int adjustLevel() const { return request().adjustLevel; }
    QString tileFilePath(const TileIndex &index) const { return request().filePath(index); }
    QUrl tileUrl(const TileIndex &index) const { return request().url(index); }
    // The level whose tiles are shown in a view. Metres of the plane per device pixel.
    int levelFor(double metresPerPixel) const;

    // Both true at first. A provider that is not enabled or not visible asks for nothing.
    void setEnabled(bool enabled);
    bool enabled() const { return m_enabled; }
    void setVisible(bool visible);
    bool visible() const { return m_visible; }
    // Saved files before the service, or nothing but saved files.
    void setOfflineMode(bool priority, bool only) { m_stock->setOfflineMode(priority, only); }
    void setSaveTileFiles(bool save) { m_stock->setSaveTileFiles(save); }
    void setTileFileDir(const QString &directory) { m_stock->setTileFileDir(directory); }
    void setNetworkCacheDir(const QString &directory) { m_stock->setNetworkCacheDir(directory); }
    void setNetworkProxyEnabled(bool enabled);
    void setNetworkProxyServer(const QString &host, unsigned short port);
    void setNetworkProxyAuthentication(const QString &user, const QString &password);
    void setNetworkProxyHostnameLookup(bool byProxy);
    void setConsent(bool given) { m_stock->setConsent(given); }
    void setMaxConcurrentRequests(int count); // 1 to 32
    int maxConcurrentRequests() const;
    void setClock(TilePacing::Clock clock) { m_stock->setClock(std::move(clock)); }

    // The view is this rectangle, in degrees; resolution in metres of the plane per device pixel. What an earlier view
    // queued and this one does not need is dropped.
    void requestTiles(const GeoCoordinate &topLeft, const GeoCoordinate &bottomRight, double resolution);
    // The same in metres of the plane; the view may reach beyond the map and across the 180th meridian.
    void requestView(const QPointF &topLeft, const QPointF &bottomRight, double resolution);
    // Sends what may be sent now; called by itself when something changes.
    void pumpQueue();
    // The view is forgotten: what it alone wanted is not asked for any more, and what is in flight for it given up.
    void clearRequest();
    // Memory and the network cache on disk are emptied; saved tile files stay.
    void clearCache() { m_stock->clearCache(); }
    void resetBackoff();
    void resetAuthBlock();

    // From memory, which remembers that it is used; null when it is not there.
    QImage image(const TileIndex &index) const { return m_stock->image(index); }
    bool isMissing(const TileIndex &index) const;
    // Whether nothing is on its way, for other views that share the stock neither.
    bool settled() const { return m_stock->settled(); }

    QString copyright() const { return m_stock->copyright(); }
    QColor copyrightColor() const { return m_stock->source().setup.copyrightColor; }
    // In the style that suits the service's images.
    QImage logo() const;
    // 20 pixels high at a device pixel ratio of 2; null where the service has none.
    QImage styledLogo(LogoStyle style) const { return m_logos.at(static_cast<std::size_t>(style)); }
    // From an SVG resource.
    void setLogo(LogoStyle style, const QString &resource);

    // What keeps tiles from the view, in a line for the operator; empty when all is well.
    QString stateText() const;

    // For all providers of the process: an address or telephone number under which the operators of a service reach
    // those of this terminal.
    static void setUserAgentContact(const QString &contact);
    // "Vyx Display/<version>", and " (+<contact>)" when there is one.
    QString userAgent() const;

Q_SIGNALS:
    // Images came; several at a time.
    void tilesChanged();
    void message(LogLevel level, const QString &text);
    void stateChanged(); // stateText() may have changed

private:
    struct View {
        double north = 0.0; // degrees
        double west = 0.0;
        double south = 0.0;
        double east = 0.0; // beyond 180 where the view crosses that meridian
        double resolution = 0.0; // metres of the plane per device pixel
    };

    const TileRequest &request() const { return m_stock->source().setup.request; }
    void repeatView();
    void processRequest(const View &view);
    void prepareTiles(const TileRange &range);
    void loadLogos();
    void announceChange(bool images);
    QString trouble() const;

    std::shared_ptr<TileStock> m_stock;
    Projector *m_projector;
    std::optional<View> m_view;
    QSet<TileIndex> m_wanted; // by the view
    std::array<QImage, 2> m_logos;
    QString m_lastState;
    bool m_enabled = true;
    bool m_visible = true;
    bool m_tooWide = false; // the view, for the coarsest level
};
