#include "display/geo_map_display.h"

#include "app/config.h"
#include "display/geo_plot_map.h"
#include "map_painting/geo_static_map.h"
#include "map_painting/map_editor_layer.h"
#include "orientation/geo_compass_rose.h"
#include "orientation/geo_map_key.h"
#include "orientation/geo_north_arrow.h"
#include "orientation/geo_range_ring_map.h"
#include "orientation/geo_scale_bar.h"
#include "orientation/geo_sensor_map.h"
#include "radar_painting/geo_video_map.h"
#include "radar_painting/geo_weather_map.h"
#include "tile_painting/geo_tile_map.h"
#include "view/geo_view.h"

#include <QElapsedTimer>
#include <QPainter>

#include <algorithm>
#include <utility>

GeoMapDisplay::GeoMapDisplay(Projector *projector, QObject *parent) : QObject(parent)
{
    m_bottomTiles = addLayer<GeoTileMap>(MapLayer::BottomTiles, GeoTileMap::Layer::Bottom);
    m_staticMap = addLayer<GeoStaticMap>(MapLayer::StaticMaps, projector);
    m_topTiles = addLayer<GeoTileMap>(MapLayer::TopTiles, GeoTileMap::Layer::Top);
    m_weatherMap = addLayer<GeoWeatherMap>(MapLayer::Weather, projector);
    m_videoMap = addLayer<GeoVideoMap>(MapLayer::Video, projector);
    m_sensorMap = addLayer<GeoSensorMap>(MapLayer::Sensor, projector);
    m_rangeRingMap = addLayer<GeoRangeRingMap>(MapLayer::RangeRings, projector);
    addLayer<GeoCompassRose>(MapLayer::CompassRose, projector, m_rangeRingMap);
    addLayer<GeoNorthArrow>(MapLayer::CompassRose);
    m_plotMap = addLayer<GeoPlotMap>(MapLayer::Plots);
    addLayer<GeoScaleBar>(MapLayer::ScaleBar, projector);
    m_mapKey = addLayer<GeoMapKey>(MapLayer::Key, m_weatherMap);
    m_mapEditorLayer = addLayer<MapEditorLayer>(MapLayer::MapEditor);
    m_mapKey->addSymbolSource([this](double) {
        std::vector<GeoMapKey::Symbol> symbols;
        for (auto &[meaning, picture] : m_plotMap->shownMarks()) {
            symbols.push_back({meaning, picture});
        }
        return symbols;
    });
    setBackgroundColor(Config().mapBackgroundColor);
}

GeoMapDisplay::~GeoMapDisplay() = default;

void GeoMapDisplay::insertLayer(MapLayer place, std::unique_ptr<GeoLayer> layer)
{
    connect(layer.get(), &GeoLayer::polluted, this, &GeoMapDisplay::polluted);
    const auto above = std::upper_bound(m_layers.begin(), m_layers.end(), place,
        [](MapLayer added, const Entry &entry) { return added < entry.place; });
    m_layers.insert(above, Entry{place, std::move(layer)});
    Q_EMIT polluted();
}

void GeoMapDisplay::paint(QPainter &painter)
{
    paint(painter, GeoView::fromPainter(painter));
}

void GeoMapDisplay::paint(QPainter &painter, const GeoView &view)
{
    painter.save();
    painter.resetTransform();
    painter.fillRect(view.screenRect(), m_backgroundColor);
    painter.restore();
    placeTexts(view);
    for (Entry &entry : m_layers) {
        entry.milliseconds = 0.0;
        if (!entry.layer->visible()) {
            continue;
        }
        QElapsedTimer timer;
        timer.start();
        painter.save();
        entry.layer->paint(painter, view);
        painter.restore();
        entry.milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    }
}

// What is in the corners goes before the names on the maps, and these before what can stand elsewhere.
void GeoMapDisplay::placeTexts(const GeoView &view)
{
    m_textRoom.begin(view.screenRect());
    for (const QRect &rect : m_covered) {
        m_textRoom.take(rect);
    }
    bool namesTaken = false;
    for (auto entry = m_layers.rbegin(); entry != m_layers.rend(); ++entry) {
        if (entry->place <= MapLayer::RangeRings && !std::exchange(namesTaken, true)) {
            for (const QRectF &name : m_staticMap->textPlaces(view)) {
                m_textRoom.take(name);
            }
        }
        if (entry->layer->visible()) {
            entry->layer->placeTexts(view, m_textRoom);
        }
    }
}

QList<QRect> GeoMapDisplay::readOutPlaces() const
{
    QList<QRect> places;
    for (const Entry &entry : m_layers) {
        const QRect place = entry.layer->readOutPlace().toAlignedRect();
        if (entry.layer->visible() && !place.isEmpty()) {
            places.append(place);
        }
    }
    return places;
}

QList<GeoMapDisplay::LayerTime> GeoMapDisplay::layerTimes() const
{
    QList<LayerTime> times;
    for (const Entry &entry : m_layers) {
        times.append({entry.layer->name(), entry.milliseconds});
    }
    return times;
}

void GeoMapDisplay::applyConfig(const Config &config, SettingGroups changed)
{
    if (changed & SettingGroup::PlanView) {
        setBackgroundColor(config.mapBackgroundColor);
    }
    for (const Entry &entry : m_layers) {
        if (changed & entry.layer->settings()) {
            entry.layer->applyConfig(config);
        }
    }
}

void GeoMapDisplay::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    Q_EMIT polluted();
}

void GeoMapDisplay::requestTileMap(const QPoint &corner1, const QPoint &corner2, double metresPerPixel)
{
    for (GeoTileMap *const tiles : {m_bottomTiles, m_topTiles}) {
        tiles->requestTiles(corner1, corner2, metresPerPixel);
    }
}

void GeoMapDisplay::setSensor(const QSharedPointer<SensorInfo> &sensor)
{
    m_weatherMap->setSensor(sensor);
    m_videoMap->setSensor(sensor);
    m_sensorMap->setSensor(sensor);
    m_plotMap->setSensor(sensor);
    QPointF site;
    if (m_sensorMap->sitePosition(site)) {
        m_rangeRingMap->setDefaultCenter(site);
    }
}
