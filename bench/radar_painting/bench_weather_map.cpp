#include "app/config.h"
#include "bench_screen.h"
#include "geo/mercator_projector.h"
#include "radar_painting/geo_weather_map.h"
#include "radar_scene.h"
#include "sensors/radar_sensor_info.h"

#include <benchmark/benchmark.h>

namespace {

constexpr QSize Screen(1920, 1080);
constexpr int Vectors = 5000;
constexpr double CosineOfLatitude = 0.669;

class Scope {
public:
    explicit Scope(double milesHigh) : m_layer(&m_projector)
    {
        const GeoCoordinate site(48.0, 16.0);
        auto radar = QSharedPointer<RadarSensorInfo>::create();
        radar->setLocation(site);
        m_layer.setSensor(radar);
        Config config;
        config.mapWeatherVisible = true;
        m_layer.applyConfig(config);
        m_layer.setPicture(m_picture);
        m_screen.lookAt(m_projector.toCartesian(site.latitude(), site.longitude()),
            milesHigh * 1852.0 / (CosineOfLatitude * Screen.height()));
        paint();
    }

    void pan(double pixels) { m_screen.pan(pixels); }
    void paint() { m_screen.paint(m_layer); }
    void newPicture() { m_layer.setPicture(m_picture); }

private:
    MercatorProjector m_projector;
    GeoWeatherMap m_layer;
    WeatherProcessor::Picture m_picture = stormCells(Vectors);
    BenchScreen m_screen{Screen};
};

void paintSameView(benchmark::State &state)
{
    Scope scope(double(state.range(0)));
    for (auto _ : state) {
        scope.paint();
    }
}

void paintNewView(benchmark::State &state)
{
    Scope scope(double(state.range(0)));
    paintPanned(state, scope, 3.0);
}

void takeNewPicture(benchmark::State &state)
{
    Scope scope(200.0);
    for (auto _ : state) {
        scope.newPicture();
    }
}

} // namespace

BENCHMARK(paintSameView)->ArgName("milesHigh")->Arg(200)->Arg(20)->Unit(benchmark::kMillisecond);
BENCHMARK(paintNewView)->ArgName("milesHigh")->Arg(200)->Arg(40)->Unit(benchmark::kMillisecond);
BENCHMARK(takeNewPicture)->Unit(benchmark::kMillisecond);
