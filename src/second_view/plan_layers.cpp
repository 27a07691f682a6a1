#include "second_view/plan_layers.h"

#include <QCoreApplication>

namespace {

constexpr auto LabelsKey = "labels";

constexpr PlanLayer Layers[] = {
    {"maps", QT_TRANSLATE_NOOP("PlanLayers", "Maps"), "static-maps-toggle", &Config::mapStaticVisible},
    {"tiles", QT_TRANSLATE_NOOP("PlanLayers", "Tiles"), "tile-map", &Config::mapTileVisible},
    {"sensor", QT_TRANSLATE_NOOP("PlanLayers", "Sensor"), "sensor-map", &Config::mapSensorVisible},
    {"weather", QT_TRANSLATE_NOOP("PlanLayers", "Weather"), "weather-map", &Config::mapWeatherVisible},
    {"video", QT_TRANSLATE_NOOP("PlanLayers", "Video"), "video-map", &Config::mapVideoVisible},
    {"plots", QT_TRANSLATE_NOOP("PlanLayers", "Plots"), "plots", &Config::mapPlotVisible},
    {"rings", QT_TRANSLATE_NOOP("PlanLayers", "Rings"), "range-rings", &Config::mapRangeRingVisible},
    {"rose", QT_TRANSLATE_NOOP("PlanLayers", "Compass Rose"), "compass-rose", &Config::mapCompassRoseVisible},
    {"scale", QT_TRANSLATE_NOOP("PlanLayers", "Scale Bar"), "scale-bar", &Config::mapScaleBarVisible},
    {"key", QT_TRANSLATE_NOOP("PlanLayers", "Key"), "map-key", &Config::mapKeyVisible},
};

static_assert(std::size(Layers) == PlanLayers::Count);

} // namespace

std::span<const PlanLayer> PlanLayers::all()
{
    return Layers;
}

void PlanLayers::takeFrom(const Config &config)
{
    for (const PlanLayer &layer : Layers) {
        show(layer, config.*layer.visible);
    }
}

void PlanLayers::applyTo(Config &config) const
{
    for (const PlanLayer &layer : Layers) {
        config.*layer.visible = shown(layer);
    }
}

QJsonObject PlanLayers::toJson() const
{
    QJsonObject json{{LabelsKey, m_labels}};
    for (const PlanLayer &layer : Layers) {
        json[QLatin1String(layer.key)] = shown(layer);
    }
    return json;
}

void PlanLayers::takeJson(const QJsonObject &json)
{
    m_labels = json[LabelsKey].toBool(m_labels);
    for (const PlanLayer &layer : Layers) {
        show(layer, json[QLatin1String(layer.key)].toBool(shown(layer)));
    }
}
