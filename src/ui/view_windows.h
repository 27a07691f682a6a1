#pragma once

#include "app/setting_group.h"

#include <QObject>
#include <QPointer>

class Config;
class GeoCoordinate;
class HomeView;
class PlanDisplay;
class QWidget;
class RangeRingWindow;
class TrackLabelFormatWindow;
class WeatherIntensityWindow;

#include <functional>

// The small windows on what the plan view shows, made when they are asked for: its rotation and centre, range rings,
// weather levels and the format of labels. GUI thread.
class ViewWindows final : public QObject {
    Q_OBJECT

public:
    using Edit = std::function<void(const std::function<void(Config &)> &change)>;

    // All must outlive this object; the window is the parent of the others. The operator's changes of settings go
    // through edit.
    ViewWindows(QWidget *window, const Config *config, PlanDisplay *plan, HomeView *home, Edit edit);
    ~ViewWindows() override;

    // For those that are open.
    void applyConfig(const Config &config, SettingGroups changed);

    void showRotation();
    void showCenter();
    void showRangeRings();
    void showWeatherIntensity();
    void showTrackLabelFormat();
    void closeTrackLabelFormat();

private:
    void placeRings(const GeoCoordinate &center, int number, double distanceNauticalMiles);

    QWidget *m_window;
    const Config *m_config;
    PlanDisplay *m_plan;
    HomeView *m_home;
    const Edit m_edit;
    QPointer<RangeRingWindow> m_rangeRings;
    QPointer<WeatherIntensityWindow> m_weatherIntensity;
    QPointer<TrackLabelFormatWindow> m_trackLabelFormat;
};
