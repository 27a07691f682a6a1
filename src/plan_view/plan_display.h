#pragma once

#include "app/setting_group.h"
#include "engine/display_snapshot.h"
#include "processors/video_processor.h"
#include "processors/weather_processor.h"
#include "view/geo_layer.h"

#include <QList>
#include <QSharedPointer>

class Config;
class GeoMapDisplay;
class GeoTrackDisplay;
class GeoWidget;
class Projector;
class QWidget;
class SensorInfo;

#include <memory>

// A display on the picture: a plan view with the map and the tracks that it paints, and what it takes of pictures,
// settings and sensors. There may be several of one picture, each with a view and layers of its own. GUI thread.
class PlanDisplay final {
public:
    // The projector must outlive this object. The widget becomes the parent's, and may go before or after.
    PlanDisplay(Projector *projector, QWidget *parent);
    ~PlanDisplay();

    GeoWidget *widget() const { return m_widget; }
    GeoMapDisplay *map() const { return m_map.get(); }
    GeoTrackDisplay *tracks() const { return m_tracks.get(); }

    void applyConfig(const Config &config, SettingGroups changed = AllSettings);
    // Of the input; null: none. Forgets weather and video.
    void setSensor(const QSharedPointer<SensorInfo> &sensor);
    // Forgets weather and video, and learns anew where radars stand.
    void beginRadarPicture(const QList<QSharedPointer<SensorInfo>> &known);

    // Null: no picture.
    void setSnapshot(const QSharedPointer<const DisplaySnapshot> &snapshot);
    void showWeather(const WeatherProcessor::Picture &picture);
    void showRadial(const VideoProcessor::Radial &radial);

private:
    std::unique_ptr<GeoMapDisplay> m_map;
    std::unique_ptr<GeoTrackDisplay> m_tracks;
    GeoWidget *m_widget; // the parent's
};
