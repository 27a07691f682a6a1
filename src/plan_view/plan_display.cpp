#include "plan_view/plan_display.h"

#include "display/geo_map_display.h"
#include "display/geo_plot_map.h"
#include "display/geo_track_display.h"
#include "orientation/geo_map_key.h"
#include "plan_view/geo_widget.h"
#include "radar_painting/geo_video_map.h"
#include "radar_painting/geo_weather_map.h"

PlanDisplay::PlanDisplay(Projector *projector, QWidget *parent)
    : m_map(std::make_unique<GeoMapDisplay>(projector)), m_tracks(std::make_unique<GeoTrackDisplay>()),
      m_widget(new GeoWidget(parent))
{
    m_map->mapKey()->addSymbolSource([tracks = m_tracks.get()](double devicePixelRatio) {
        std::vector<GeoMapKey::Symbol> symbols;
        for (auto &[meaning, picture] : tracks->shownSymbols(devicePixelRatio)) {
            symbols.push_back({meaning, picture});
        }
        return symbols;
    });
    m_widget->setMinimumSize(320, 240);
    m_widget->setMapDisplay(m_map.get());
    m_widget->setTrackDisplay(m_tracks.get());
}

PlanDisplay::~PlanDisplay() = default;

void PlanDisplay::applyConfig(const Config &config, SettingGroups changed)
{
    m_map->applyConfig(config, changed);
    if (changed & SettingGroup::Tracks) {
        m_tracks->applyConfig(config);
    }
}

void PlanDisplay::setSensor(const QSharedPointer<SensorInfo> &sensor)
{
    m_map->setSensor(sensor);
    m_tracks->setSensor(sensor);
}

void PlanDisplay::beginRadarPicture(const QList<QSharedPointer<SensorInfo>> &known)
{
    m_map->videoMap()->setKnownSensors(known);
    m_map->weatherMap()->clear();
}

void PlanDisplay::setSnapshot(const QSharedPointer<const DisplaySnapshot> &snapshot)
{
    m_tracks->setSnapshot(snapshot);
    if (snapshot) {
        m_map->plotMap()->setSnapshot(*snapshot);
    }
}

void PlanDisplay::showWeather(const WeatherProcessor::Picture &picture)
{
    m_map->weatherMap()->setPicture(picture);
}

void PlanDisplay::showRadial(const VideoProcessor::Radial &radial)
{
    m_map->videoMap()->addRadial(radial);
}
