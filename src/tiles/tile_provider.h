#pragma once

#include "app/log_level.h"
#include "tiles/tile_deployment.h"
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

#include <array>
#include <optional>

class Projector;
class TileFetcher;

// The tiles of one service for one layer of the map: works out which cover the view, and has them from memory, from
// saved files or from the service. For the GUI thread; files are read and images decoded on workers, and nothing waits.
class TileProvider : public QObject, public TileGeometry {
    Q_OBJECT

public:
    // What a logo stands out from: Light is for dark grounds.
    enum class LogoStyle { Light, Dark };

    // Tiles that a view may ask for. A wider view takes a coarser level; where the service has none that is coarse
    // enough, it is asked for nothing.
    static constexpr qint64 MaxTilesPerView = 2048;
    static constexpr qsizetype DefaultMemory = 256 * 1024 * 1024; // octets of decoded images

    TileProvider(const TileServiceSetup &setup, Projector *projector, QObject *parent = nullptr);
    ~TileProvider() override;

    TileService service() const { return m_setup.request.service; }
    QString serviceIdentifier() const { return tileServiceIdentifier(service()); }
    QString serviceName() const { return tileServiceName(service()); }

    int minLevel() const { return m_setup.request.minLevel; }
    int maxLevel() const { return m_setup.request.maxLevel; }
    int adjustLevel() const { return m_setup.request.adjustLevel; }
    QString tileFilePath(const TileIndex &index) const { return m_setup.request.filePath(index); }
    QUrl tileUrl(const TileIndex &index) const { return m_setup.request.url(index); }
    // The level whose tiles are shown in a view. Metres of the plane per device pixel.
    int levelFor(double metresPerPixel) const;

    // Both true at first. A provider that is not enabled or not visible asks for nothing.
    void setEnabled(bool enabled);
    bool enabled() const { return m_enabled; }
    void setVisible(bool visible);
    bool visible() const { return m_visible; }
    // Saved files before the service, or nothing but saved files.
    void setOfflineMode(bool priority, bool only);
    void setSaveTileFiles(bool save) { m_setup.saveFiles = save; }
    void setTileFileDir(const QString &directory);
    void setNetworkCacheDir(const QString &directory);
    void setNetworkProxyEnabled(bool enabled);
    void setNetworkProxyServer(const QString &host, unsigned short port);
    void setNetworkProxyAuthentication(const QString &user, const QString &password);
    void setNetworkProxyHostnameLookup(bool byProxy);
    void setConsent(bool given);
    void setMaxConcurrentRequests(int count); // 1 to 32
    int maxConcurrentRequests() const;
    void setMemoryLimit(qsizetype octets);
    void setClock(TilePacing::Clock clock);

    // The view is this rectangle, in degrees; resolution in metres of the plane per device pixel. What an earlier view
    // queued and this one does not need is dropped.
    void requestTiles(const GeoCoordinate &topLeft, const GeoCoordinate &bottomRight, double resolution);
    // The same in metres of the plane; the view may reach beyond the map and across the 180th meridian.
    void requestView(const QPointF &topLeft, const QPointF &bottomRight, double resolution);
    // Sends what may be sent now; called by itself when something changes.
    void pumpQueue();
    // The view is forgotten: the queue is emptied, and what is in flight given up.
    void clearRequest();
    // Memory and the network cache on disk are emptied; saved tile files stay.
    void clearCache();
    void resetBackoff();
    void resetAuthBlock();

    // From memory, which remembers that it is used; null when it is not there.
    QImage image(const TileIndex &index) const;
    bool isMissing(const TileIndex &index) const;
    // Whether nothing of the view is on its way.
    bool settled() const;
    qsizetype memoryUsed() const { return m_images.totalCost(); }

    QString copyright() const { return m_setup.copyright; }
    QColor copyrightColor() const { return m_setup.copyrightColor; }
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

protected:
    // An archive's tiles are the only ones: the service is not asked. Until it is used there are none.
    void useArchive(TileLoader::Open open, int minLevel, int maxLevel, const QString &copyright);
    void failArchive(const QString &reason);

private:
    struct View {
        double north = 0.0; // degrees
        double west = 0.0;
        double south = 0.0;
        double east = 0.0; // beyond 180 where the view crosses that meridian
        double resolution = 0.0; // metres of the plane per device pixel
    };

    void useTileFiles();
    void applyProxy();
    bool readsStoreFirst() const;
    bool asksService() const;
    void repeatView();
    void sayWhatIsMissing();
    void processRequest(const View &view);
    void prepareTiles(const TileRange &range);
    void enqueueTile(const TileIndex &index);
    void addImageToCache(const TileIndex &index, const QImage &image);
    void turnToStore();
    void connectFetcher();
    void connectLoader();
    void loadLogos();
    void complainOfStore(const QString &reason);
    void scheduleChange();
    void announceChange();
    QString trouble() const;

    TileServiceSetup m_setup;
    Projector *m_projector;
    TileFetcher *m_fetcher;
    TileLoader *m_loader;
    mutable QCache<TileIndex, QImage> m_images;
    QTimer m_changeTimer;
    std::optional<View> m_view;
    QSet<TileIndex> m_wanted; // by the view
    std::array<QImage, 2> m_logos;
    TileProxy m_proxy;
    QString m_storeTrouble;
    QString m_lastState;
    bool m_enabled = true;
    bool m_visible = true;
    bool m_tooWide = false; // the view, for the coarsest level
    bool m_imagesCame = false; // since the last tilesChanged()
    bool m_paused = false; // the fetcher, when it was last looked at
    bool m_problemSaid = false;
};
