#include "tile_painting/geo_tile_map.h"

#include "app/config.h"
#include "tile_painting/tile_row_painter.h"
#include "view/geo_view.h"
#include "view/steady_clock.h"

#include <QPainter>

GeoTileMap::GeoTileMap(Layer layer, QObject *parent)
    : GeoLayer(layer == Layer::Bottom ? tr("Bottom tiles") : tr("Top tiles"), parent), m_layer(layer),
      m_clock(steadyClock())
{
    connect(&m_toned, &TonedTiles::changed, this, &GeoTileMap::tilesChanged);
    connect(&m_picture, &TilePicture::changed, this, &GeoLayer::polluted);
    connect(this, &GeoLayer::polluted, this, &GeoTileMap::followVisibility);
    m_attribution.setSource(m_source);
    GeoTileMap::applyConfig(Config());
}

GeoTileMap::~GeoTileMap() = default;

void GeoTileMap::setProvider(TileProvider *provider)
{
    if (m_provider) {
        m_provider->disconnect(this);
    }
    m_provider = provider;
    if (!provider) {
        setSource({});
        return;
    }
    connect(provider, &TileProvider::tilesChanged, this, &GeoTileMap::followProvider);
    connect(provider, &TileProvider::stateChanged, this, &GeoTileMap::followProvider);
    connect(provider, &QObject::destroyed, this, [this] { setSource({}); });
    setSource(TileSource::of(*provider));
    followVisibility();
    sendRequest();
}

// An archive says what it has when it has been opened.
void GeoTileMap::followProvider()
{
    m_source = TileSource::of(*m_provider);
    m_attribution.setSource(m_source);
    tilesChanged();
}

void GeoTileMap::setSource(const TileSource &source)
{
    m_source = source;
    m_attribution.setSource(m_source);
    m_toned.forget();
    forgetPainted();
}

void GeoTileMap::applyConfig(const Config &config)
{
    m_picture.setSmooth(config.mapSmoothPixmapTransform);
    m_attribution.setColors(config.mapBackgroundColor, config.mapRangeRingLabelColor);
    if (m_layer == Layer::Bottom) {
        m_toned.setTone({config.mapTileDimming, config.mapTileDesaturation, config.mapBackgroundColor});
    }
    forgetPainted();
    setVisible(
        config.mapTileService && config.mapTileVisible && (m_layer == Layer::Bottom || config.mapTileTopLayerEnable));
}

void GeoTileMap::forgetPainted()
{
    m_picture.forget();
    Q_EMIT polluted();
}

// The next frame comes when there is something to see in it.
void GeoTileMap::tilesChanged()
{
    m_stale = true;
    const bool drawn = m_picture.showsAnything();
    if (visible() && m_picture.view() && m_source.image) {
        updatePicture();
    }
    if (m_stale || (drawn && !m_picture.showsAnything())) {
        Q_EMIT polluted();
    }
}

void GeoTileMap::requestTiles(const QPointF &topLeft, const QPointF &bottomRight, double metresPerPixel)
{
    m_request = {topLeft, bottomRight, metresPerPixel};
    sendRequest();
}

void GeoTileMap::sendRequest()
{
    if (m_provider && visible() && m_request.metresPerPixel > 0.0) {
        m_provider->requestView(
            m_request.topLeft, m_request.bottomRight, m_request.metresPerPixel / m_devicePixelRatio);
    }
}

void GeoTileMap::followVisibility()
{
    if (!m_provider || m_provider->visible() == visible()) {
        return;
    }
    m_provider->setVisible(visible());
    sendRequest();
}

// The window is on another screen.
void GeoTileMap::followDensity(double devicePixelRatio)
{
    if (m_devicePixelRatio == devicePixelRatio) {
        return;
    }
    m_devicePixelRatio = devicePixelRatio;
    QMetaObject::invokeMethod(this, &GeoTileMap::sendRequest, Qt::QueuedConnection);
}

// Nobody is named for what is not there: without consent, network or key there is no tile.
void GeoTileMap::placeTexts(const GeoView &view, TextRoom &room)
{
    m_attribution.setShown(m_picture.showsAnything());
    m_attribution.place(view, room);
}

void GeoTileMap::updatePicture()
{
    m_stale = false;
    const GeoView &view = *m_picture.view();
    const auto level = static_cast<quint8>(m_source.levelFor(view.metresPerPixel() / view.devicePixelRatio()));
    const TileRange range = TileRowPainter::needed(view, view.screenRect(), level);
    if (range.count() > TileProvider::MaxTilesPerView) {
        m_picture.clear();
        return;
    }
    m_toned.keepAtLeast(range.count());
    const auto images = [this](const TileIndex &index) { return m_toned.image(index, m_source.image(index)); };
    m_picture.update(range, {images, m_source.minLevel, m_source.maxLevel}, m_clock());
}

void GeoTileMap::paint(QPainter &painter, const GeoView &view)
{
    if (!m_source.image || view.screenRect().isEmpty()) {
        return;
    }
    followDensity(view.devicePixelRatio());
    if (m_picture.turnTo(view) || m_stale || m_picture.fading()) {
        updatePicture();
    }
    if (m_picture.showsAnything()) {
        painter.resetTransform();
        m_picture.paint(painter);
        m_attribution.paint(painter);
    }
}
