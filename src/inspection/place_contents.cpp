#include "inspection/place_contents.h"

#include "display/geo_map_display.h"
#include "display/geo_plot_map.h"
#include "plan_view/geo_widget.h"
#include "radar_painting/geo_video_map.h"
#include "radar_painting/geo_weather_map.h"

namespace {

constexpr double PlotReach = 8.0; // pixels from the pointer
constexpr double EchoReach = 0.75; // half the diagonal of a pixel, and what it touches

ShownWeather shownWeather(const GeoWeatherMap::Hit &hit)
{
    return {hit.vector.intensity, hit.vector.startRange, hit.vector.endRange, hit.vector.azimuth, hit.timeOfDay,
        hit.width, hit.widthMeasured, hit.hatched};
}

PlaceContents::Echo shownEcho(const GeoVideoMap::Echo &echo)
{
    return {{echo.azimuth, echo.range, echo.cell, echo.cellSize, echo.amplitude, echo.threshold, echo.directions,
                echo.validityMs},
        {echo.sac, echo.sic, echo.azimuth, 180.0 / echo.directions}};
}

} // namespace

PlaceContents contentsAt(const GeoWidget &plan, const QPointF &place)
{
    const double metresPerPixel = plan.currentZoom();
    const GeoMapDisplay &maps = *plan.mapDisplay();
    PlaceContents contents;
    contents.plot = maps.plotMap()->plotAt(place, PlotReach * metresPerPixel);
    if (const auto hit = maps.weatherMap()->vectorAt(place)) {
        contents.weather = shownWeather(*hit);
    }
    if (const auto echo = maps.videoMap()->echoAt(place, EchoReach * metresPerPixel)) {
        contents.echo = shownEcho(*echo);
    }
    return contents;
}
