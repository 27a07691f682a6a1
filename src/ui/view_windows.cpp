#include "ui/view_windows.h"

#include "app/config.h"
#include "display/geo_map_display.h"
#include "orientation/geo_range_ring_map.h"
#include "plan_view/geo_widget.h"
#include "plan_view/plan_display.h"
#include "settings/track_label_format_window.h"
#include "ui/home_view.h"
#include "ui/range_ring_window.h"
#include "ui/rotation_window.h"
#include "ui/set_center_window.h"
#include "ui/weather_intensity_window.h"
#include "widgets/window_opening.h"

#include <utility>

ViewWindows::ViewWindows(QWidget *window, const Config *config, PlanDisplay *plan, HomeView *home, Edit edit)
    : m_window(window), m_config(config), m_plan(plan), m_home(home), m_edit(std::move(edit))
{
}

ViewWindows::~ViewWindows() = default;

void ViewWindows::applyConfig(const Config &config, SettingGroups changed)
{
    if (changed & SettingGroup::Weather && m_weatherIntensity) {
        m_weatherIntensity->refresh();
    }
    if (changed & SettingGroup::PlanView && m_trackLabelFormat) {
        m_trackLabelFormat->setGround(config.mapBackgroundColor);
    }
}

void ViewWindows::showRotation()
{
    GeoWidget *view = m_plan->widget();
    auto *window = new RotationWindow(m_window);
    window->setRotation(view->currentRotation());
    connect(window, &RotationWindow::rotationEntered, view,
        [view](double degrees) { view->rotate(degrees - view->currentRotation()); });
    openOver(window);
}

void ViewWindows::showCenter()
{
    auto *window = new SetCenterWindow(m_window);
    window->setCenter(m_home->viewCenter());
    connect(
        window, &SetCenterWindow::centerEntered, this, [this](const GeoCoordinate &center) { m_home->jumpTo(center); });
    openOver(window);
}

void ViewWindows::showRangeRings()
{
    if (!m_rangeRings) {
        m_rangeRings = new RangeRingWindow(m_window);
        m_rangeRings->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_rangeRings, &RangeRingWindow::ringsEntered, this, &ViewWindows::placeRings);
    }
    const GeoRangeRingMap *rings = m_plan->map()->rangeRingMap();
    m_rangeRings->setRings(m_home->ringCenter(), rings->number(), rings->distance());
    bringUp(m_rangeRings);
}

void ViewWindows::placeRings(const GeoCoordinate &center, int number, double distanceNauticalMiles)
{
    m_edit([number, distanceNauticalMiles](Config &config) {
        config.mapRangeRingNumber = number;
        config.mapRangeRingDistance = distanceNauticalMiles;
        config.mapRangeRingVisible = true;
    });
    m_home->placeRings(center, number, distanceNauticalMiles);
}

void ViewWindows::showWeatherIntensity()
{
    if (!m_weatherIntensity) {
        m_weatherIntensity = new WeatherIntensityWindow(m_plan->map()->weatherMap(), m_window);
        m_weatherIntensity->setAttribute(Qt::WA_DeleteOnClose);
    }
    bringUp(m_weatherIntensity);
}

void ViewWindows::showTrackLabelFormat()
{
    if (!m_trackLabelFormat) {
        m_trackLabelFormat = new TrackLabelFormatWindow(m_plan->tracks(), m_window);
        m_trackLabelFormat->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_trackLabelFormat->setGround(m_config->mapBackgroundColor);
    bringUp(m_trackLabelFormat);
}

void ViewWindows::closeTrackLabelFormat()
{
    if (m_trackLabelFormat) {
        m_trackLabelFormat->close();
    }
}
