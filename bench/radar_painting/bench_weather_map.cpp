#include "app/config.h"
#include "geo/mercator_projector.h"
#include "radar_painting/geo_weather_map.h"
#include "radar_scene.h"
#include "sensors/radar_sensor_info.h"
#include "view/geo_view.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

namespace {

constexpr QSize Screen(1920, 1080);
constexpr int Vectors = 5000;

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
        double x = 0.0;
        double y = 0.0;
        m_projector.toCartesian(&x, &y, site.latitude(), site.longitude());
        const double scale = 0.669 * Screen.height() / (milesHigh * 1852.0);
        m_toScreen.translate(Screen.width() / 2.0, Screen.height() / 2.0);
        m_toScreen.scale(scale, -scale);
        m_toScreen.translate(-x, -y);
        m_image.fill(QColor(173, 173, 173));
        paint();
    }

    void pan(double pixels) { m_toScreen *= QTransform::fromTranslate(pixels, 0.0); }
    void newPicture() { m_layer.setPicture(m_picture); }

    void paint()
    {
        QPainter painter(&m_image);
        painter.setWorldTransform(m_toScreen);
        m_layer.paint(painter, GeoView(m_toScreen, Screen));
    }

private:
    MercatorProjector m_projector;
    GeoWeatherMap m_layer;
    WeatherProcessor::Picture m_picture = stormCells(Vectors);
    QTransform m_toScreen;
    QImage m_image{Screen, QImage::Format_ARGB32_Premultiplied};
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
    double shift = 3.0;
    for (auto _ : state) {
        scope.pan(shift);
        shift = -shift;
        scope.paint();
    }
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

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
