#include "inspection/place_contents.h"

#include "display/geo_map_display.h"
#include "display/geo_plot_map.h"
#include "plan_view/geo_widget.h"
#include "radar_painting/geo_video_map.h"
#include "radar_painting/geo_weather_map.h"

namespace {

constexpr double PlotReach = 8.0; // pixels from the pointer
constexpr double EchoReach = 0.75; // half the diagonal of a pixel, and what it touches

} // namespace

PlaceContents contentsAt(const GeoWidget &plan, const QPointF &place)
{
    const double metresPerPixel = plan.currentZoom();
    const GeoMapDisplay &maps = *plan.mapDisplay();
    PlaceContents contents;
    contents.plot = maps.plotMap()->plotAt(place, PlotReach * metresPerPixel);
    contents.weather = maps.weatherMap()->vectorAt(place);
    contents.echo = maps.videoMap()->echoAt(place, EchoReach * metresPerPixel);
    return contents;
}
