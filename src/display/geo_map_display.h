#pragma once

#include "view/geo_layer.h"
#include "view/text_room.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QRect>
#include <QSharedPointer>

#include <memory>
#include <utility>
#include <vector>

class GeoMapKey;
class GeoPlotMap;
class GeoRangeRingMap;
class GeoSensorMap;
class GeoStaticMap;
class GeoTileMap;
class GeoVideoMap;
class GeoWeatherMap;
class MapEditorLayer;
class Projector;
class SensorInfo;

// The layers' places in the drawing order, bottom first. A new layer is a place here and an addLayer().
enum class MapLayer {
    BottomTiles,
    StaticMaps,
    TopTiles,
    Weather,
    Video,
    Sensor,
    RangeRings,
    CompassRose,
    Plots,
    ScaleBar,
    Key,
    MapEditor
};

// The ground colour and the map layers over it, in drawing order. GUI thread only.
class GeoMapDisplay final : public QObject {
    Q_OBJECT

public:
    struct LayerTime {
        QString name;
        double milliseconds = 0.0; // of the last paint; 0 while hidden
    };

    // The projector must outlive the display.
    explicit GeoMapDisplay(Projector *projector, QObject *parent = nullptr);
    ~GeoMapDisplay() override;

    // Fills the view and paints the visible layers. The painter comes with the view's screen transform as its world
    // transform and leaves with it.
    void paint(QPainter &painter, const GeoView &view);
    // The same for the view that the painter shows.
    void paint(QPainter &painter);

    // Makes a layer at its place, over any that is there already. It becomes the display's.
    template <typename Layer, typename... Arguments>
    Layer *addLayer(MapLayer place, Arguments &&...arguments)
    {
        auto layer = std::make_unique<Layer>(std::forward<Arguments>(arguments)...);
        Layer *added = layer.get();
        insertLayer(place, std::move(layer));
        return added;
    }

    // Owned by the display, never null.
    GeoTileMap *bottomTiles() const { return m_bottomTiles; }
    GeoStaticMap *staticMap() const { return m_staticMap; }
    GeoTileMap *topTiles() const { return m_topTiles; }
    GeoWeatherMap *weatherMap() const { return m_weatherMap; }
    GeoVideoMap *videoMap() const { return m_videoMap; }
    GeoSensorMap *sensorMap() const { return m_sensorMap; }
    GeoRangeRingMap *rangeRingMap() const { return m_rangeRingMap; }
    GeoMapKey *mapKey() const { return m_mapKey; }
    GeoPlotMap *plotMap() const { return m_plotMap; }
    MapEditorLayer *mapEditorLayer() const { return m_mapEditorLayer; }

    QColor backgroundColor() const { return m_backgroundColor; }
    QList<LayerTime> layerTimes() const;

    // What lies over the plan view, pixels: rings, rose and scale write nothing under it.
    void setCovered(const QList<QRect> &rects) { m_covered = rects; }
    // Where the last frame has read-outs of its own, in pixels.
    QList<QRect> readOutPlaces() const;

    // Hands the configuration to the layers that show settings of these groups.
    void applyConfig(const Config &config, SettingGroups changed = AllSettings);

public Q_SLOTS:
    void setBackgroundColor(const QColor &color);
    // Asks for the tiles of a view: a rectangle of the plane, from its northwestern corner to the opposite one, and
    // metres of the plane per pixel.
    void requestTileMap(const QPoint &corner1, const QPoint &corner2, double metresPerPixel);
    // Shows this sensor, and puts the range rings round it unless the operator has placed them. Null: no sensor.
    void setSensor(const QSharedPointer<SensorInfo> &sensor);

Q_SIGNALS:
    void polluted();

private:
    struct Entry {
        MapLayer place;
        std::unique_ptr<GeoLayer> layer;
        double milliseconds = 0.0;
    };

    void insertLayer(MapLayer place, std::unique_ptr<GeoLayer> layer);
    void placeTexts(const GeoView &view);

    std::vector<Entry> m_layers; // bottom first
    GeoTileMap *m_bottomTiles = nullptr;
    GeoStaticMap *m_staticMap = nullptr;
    GeoTileMap *m_topTiles = nullptr;
    GeoWeatherMap *m_weatherMap = nullptr;
    GeoVideoMap *m_videoMap = nullptr;
    GeoSensorMap *m_sensorMap = nullptr;
    GeoRangeRingMap *m_rangeRingMap = nullptr;
    GeoMapKey *m_mapKey = nullptr;
    GeoPlotMap *m_plotMap = nullptr;
    MapEditorLayer *m_mapEditorLayer = nullptr;
    QList<QRect> m_covered;
    TextRoom m_textRoom; // of the frame; kept for its memory
    QColor m_backgroundColor;
};
