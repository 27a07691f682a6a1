#include "display/geo_map_display.h"

#include "app/config.h"
#include "display/geo_range_ring_map.h"
#include "display/geo_sensor_map.h"
#include "display/geo_video_map.h"
#include "display/geo_weather_map.h"
#include "map_painting/geo_static_map.h"
#include "map_painting/map_editor_layer.h"
#include "view/geo_view.h"

#include <QElapsedTimer>
#include <QPainter>

GeoMapDisplay::GeoMapDisplay(Projector *projector, QObject *parent) : QObject(parent)
{
    m_staticMap = addLayer<GeoStaticMap>(projector);
    m_weatherMap = addLayer<GeoWeatherMap>(projector);
    m_videoMap = addLayer<GeoVideoMap>(projector);
    m_sensorMap = addLayer<GeoSensorMap>(projector);
    m_rangeRingMap = addLayer<GeoRangeRingMap>(projector);
    m_mapEditorLayer = addLayer<MapEditorLayer>();
}

GeoMapDisplay::~GeoMapDisplay() = default;

template <typename Layer, typename... Arguments>
Layer *GeoMapDisplay::addLayer(Arguments &&...arguments)
{
    auto layer = std::make_unique<Layer>(std::forward<Arguments>(arguments)...);
    Layer *added = layer.get();
    connect(added, &GeoLayer::polluted, this, &GeoMapDisplay::polluted);
    m_layers.push_back({std::move(layer), 0.0});
    return added;
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
        entry.milliseconds = double(timer.nsecsElapsed()) / 1e6;
    }
}

QList<GeoMapDisplay::LayerTime> GeoMapDisplay::layerTimes() const
{
    QList<LayerTime> times;
    for (const Entry &entry : m_layers) {
        times.append({entry.layer->name(), entry.milliseconds});
    }
    return times;
}

void GeoMapDisplay::applyConfig(const Config &config)
{
    setBackgroundColor(config.mapBackgroundColor);
    for (const Entry &entry : m_layers) {
        entry.layer->applyConfig(config);
    }
}

void GeoMapDisplay::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    Q_EMIT polluted();
}

void GeoMapDisplay::setSensor(const QSharedPointer<SensorInfo> &sensor)
{
    m_weatherMap->setSensor(sensor);
    m_videoMap->setSensor(sensor);
    m_sensorMap->setSensor(sensor);
    QPointF site;
    if (m_sensorMap->sitePosition(site)) {
        m_rangeRingMap->setDefaultCenter(site);
    }
}
