#include "help/help_topics.h"

#include <QWidget>

#include <algorithm>

namespace {

// clang-format off
constexpr HelpTopic Topics[] = {
    {"AboutWindow", "overview.md"},
    {"AbsenceWindow", "why.md#why-do-i-not-see-an-aircraft"},
    {"ChangelogWindow", "overview.md"},
    {"CheatSheetWindow", "scope.md#mouse-and-keys"},
    {"ConfigWindow", "settings.md"},
    {"DiagnosisWindow", "why.md#what-arrives-and-is-it-right"},
    {"DisplayConfigPage", "settings.md"},
    {"FirstStartGuide", "first-start.md"},
    {"HealthDock", "why.md#is-the-input-well"},
    {"InputConfigPage", "inputs.md"},
    {"LayoutSaveWindow", "layouts.md"},
    {"MapConfigPage", "maps.md"},
    {"MapEditorWindow", "map-editor.md"},
    {"MapImportWindow", "maps.md#importing"},
    {"MarkdownWindow", "overview.md"},
    {"PasswordWindow", "settings.md#locking-the-settings"},
    {"PlanViewWindow", "lists-and-views.md#further-plan-views"},
    {"ProcessorConfigPage", "formats.md"},
    {"ProfileWindow", "unattended.md#several-windows-each-with-its-own-settings"},
    {"RangeRingWindow", "scope.md#range-rings-and-compass-rose"},
    {"RawViewWindow", "why.md#the-records-as-they-come"},
    {"ReplayWindow", "recordings.md#the-playback-window"},
    {"RotationWindow", "scope.md#rotating"},
    {"SensorCheckWindow", "sensor-check.md"},
    {"SensorConfigPage", "sensors.md#use-for-the-input"},
    {"SensorEditWindow", "sensors.md#editing-a-record"},
    {"SensorManagerWindow", "sensors.md#the-sensor-manager"},
    {"SensorSiteWindow", "recordings.md#where-the-radar-stands"},
    {"SetCenterWindow", "scope.md#going-to-a-place"},
    {"SourceWindow", "why.md#is-the-input-well"},
    {"StaticMapsWindow", "maps.md#the-window-static-maps"},
    {"StatsWindow", "troubleshooting.md#statistics"},
    {"TileConfigPage", "tiles.md"},
    {"TileDownloadWindow", "tiles.md#downloading-ahead"},
    {"TrackConfigPage", "tracks.md"},
    {"TrackLabelFormatWindow", "labels.md#the-format-window"},
    {"UnlockWindow", "settings.md#locking-the-settings"},
    {"VideoConfigPage", "weather-and-video.md#radar-video"},
    {"WeatherConfigPage", "weather-and-video.md#weather"},
    {"WeatherIntensityWindow", "weather-and-video.md#weather-intensity"},
    {"alertListDock", "lists-and-views.md#the-alert-list"},
    {"inspectionDock", "why.md#where-does-this-value-come-from"},
    {"messagesDock", "troubleshooting.md#messages"},
    {"trackListDock", "lists-and-views.md#the-track-list"},
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
