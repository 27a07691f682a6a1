#include "tile_painting/geo_tile_map.h"

#include "app/config.h"
#include "tile_painting/tile_plane.h"
#include "view/geo_view.h"
#include "view/steady_clock.h"

#include <QPainter>

#include <algorithm>

namespace {

// More of the screen than this is painted in one go.
constexpr double MostInParts = 0.6;

// The parts of the screen that cells take, which are given row by row: those beside each other are one part.
QList<QRect> onScreen(const std::vector<QPoint> &cells, quint8 level, const GeoView &view)
{
    QList<QRect> parts;
    QRect whole;
    double area = 0.0;
    for (auto first = cells.begin(); first != cells.end();) {
        auto last = first;
        while (last + 1 != cells.end() && *(last + 1) == *last + QPoint(1, 0)) {
            ++last;
        }
        const QRectF plane =
            TilePlane::planeRect(first->x(), first->y(), level) | TilePlane::planeRect(last->x(), last->y(), level);
        const QRect part =
            view.screenTransform().mapRect(plane).toAlignedRect().adjusted(-1, -1, 1, 1) & view.screenRect();
        if (!part.isEmpty()) {
            parts.append(part);
            whole |= part;
            area += static_cast<double>(part.width()) * part.height();
        }
        first = last + 1;
    }
    const bool scattered = area < MostInParts * whole.width() * whole.height();
    return scattered || parts.isEmpty() ? parts : QList{whole};
}

} // namespace

GeoTileMap::GeoTileMap(Layer layer, QObject *parent)
    : GeoLayer(layer == Layer::Bottom ? tr("Bottom tiles") : tr("Top tiles"), parent), m_layer(layer),
      m_clock(steadyClock())
{
    connect(&m_toned, &TonedTiles::changed, this, &GeoTileMap::tilesChanged);
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
    m_smooth = config.mapSmoothPixmapTransform;
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
    m_cells.clear();
    m_picture.invalidate();
    Q_EMIT polluted();
}

void GeoTileMap::tilesChanged()
{
    m_stale = true;
    Q_EMIT polluted();
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
    m_attribution.setShown(m_cells.showAnything());
    m_attribution.place(view, room);
}

quint8 GeoTileMap::levelFor(const GeoView &view) const
{
    return static_cast<quint8>(m_source.levelFor(view.metresPerPixel() / view.devicePixelRatio()));
}

// Returns what looks different now of what was shown before, logical pixels.
QList<QRect> GeoTileMap::updateCells(const GeoView &view, quint8 level)
{
    const TileRange range = TileRowPainter::needed(view, view.screenRect(), level);
    if (range.count() > TileProvider::MaxTilesPerView) {
        m_cells.clear();
        return {};
    }
    m_toned.keepAtLeast(range.count());
    const auto images = [this](const TileIndex &index) { return m_toned.image(index, m_source.image(index)); };
    return onScreen(m_cells.update(range, images, m_source.minLevel, m_source.maxLevel, m_clock()), level, view);
}

void GeoTileMap::paint(QPainter &painter, const GeoView &view)
{
    if (!m_source.image || view.screenRect().isEmpty()) {
        return;
    }
    followDensity(view.devicePixelRatio());
    QList<QRect> parts = m_picture.turnTo(view);
    if (!parts.isEmpty() || m_stale || m_cells.fading()) {
        const quint8 level = levelFor(view);
        const QList<QRect> changed = updateCells(view, level);
        if (!parts.contains(view.screenRect())) {
            parts += changed;
        }
        m_stale = false;
        for (const QRect &part : std::as_const(parts)) {
            QPainter onPicture(&m_picture.image());
            onPicture.setClipRect(part);
            m_rows.paint(onPicture, view, part, m_cells, level, m_smooth);
        }
    }
    if (!m_cells.showAnything()) {
        return;
    }
    painter.resetTransform();
    painter.drawImage(QPointF(0.0, 0.0), m_picture.image());
    m_attribution.paint(painter);
}
