#include "help/help_topics.h"

#include <QWidget>

#include <algorithm>

namespace {

// clang-format off
constexpr HelpTopic Topics[] = {
    {"AboutWindow", "overview.md"},
    {"AbsenceWindow", "why.md"},
    {"ChangelogWindow", "overview.md"},
    {"CheatSheetWindow", "scope.md#mouse-and-keys"},
    {"ConfigWindow", "settings.md"},
    {"DiagnosisWindow", "why.md"},
    {"DisplayConfigPage", "themes.md"},
    {"FirstStartGuide", "first-start.md"},
    {"HealthDock", "why.md"},
    {"InputConfigPage", "inputs.md"},
    {"LayoutSaveWindow", "layouts.md"},
    {"MapConfigPage", "maps.md"},
    {"MapEditorWindow", "map-editor.md"},
    {"MapImportWindow", "maps.md#importing"},
    {"MarkdownWindow", "overview.md"},
    {"PasswordWindow", "settings.md"},
    {"PlanViewWindow", "lists-and-views.md#further-plan-views"},
    {"ProcessorConfigPage", "formats.md"},
    {"ProfileWindow", "unattended.md"},
    {"RangeRingWindow", "scope.md#range-rings-and-compass-rose"},
    {"RawViewWindow", "why.md"},
    {"ReplayWindow", "recordings.md#the-playback-window"},
    {"RotationWindow", "scope.md#rotating"},
    {"SensorCheckWindow", "sensor-check.md"},
    {"SensorConfigPage", "sensors.md"},
    {"SensorEditWindow", "sensors.md"},
    {"SensorManagerWindow", "sensors.md"},
    {"SensorSiteWindow", "recordings.md#where-the-radar-stands"},
    {"SetCenterWindow", "scope.md#going-to-a-place"},
    {"SourceWindow", "why.md"},
    {"StaticMapsWindow", "maps.md#the-window-static-maps"},
    {"StatsWindow", "troubleshooting.md#statistics"},
    {"TileConfigPage", "tiles.md"},
    {"TileDownloadWindow", "tiles.md#downloading-ahead"},
    {"TrackConfigPage", "tracks.md"},
    {"TrackLabelFormatWindow", "labels.md#the-format-window"},
    {"UnlockWindow", "settings.md"},
    {"VideoConfigPage", "weather-and-video.md#radar-video"},
    {"WeatherConfigPage", "weather-and-video.md#weather"},
    {"WeatherIntensityWindow", "weather-and-video.md#weather-intensity"},
    {"alertListDock", "lists-and-views.md"},
    {"inspectionDock", "why.md"},
    {"messagesDock", "troubleshooting.md#messages"},
    {"trackListDock", "lists-and-views.md"},
};
// clang-format on

const char *placeOf(const QObject &object)
{
    for (const QMetaObject *type = object.metaObject(); type; type = type->superClass()) {
        for (const HelpTopic &topic : Topics) {
            if (qstrcmp(topic.subject, type->className()) == 0 || object.objectName() == QLatin1String(topic.subject)) {
                return topic.place;
            }
        }
    }
    return nullptr;
}

} // namespace

std::span<const HelpTopic> helpTopics()
{
    return Topics;
}

QString helpPlaceOf(const QObject *object)
{
    for (; object; object = object->parent()) {
        if (const char *place = placeOf(*object)) {
            return QString::fromLatin1(place);
        }
        if (object->isWidgetType() && static_cast<const QWidget *>(object)->isWindow()) {
            break;
        }
    }
    return {};
}
