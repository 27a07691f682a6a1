#include "app/config.h"
#include "geo/mercator_projector.h"
#include "radar_painting/geo_video_map.h"
#include "radar_scene.h"
#include "sensors/radar_sensor_info.h"
#include "view/geo_view.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <vector>

namespace {

constexpr QSize Screen(1920, 1080);
constexpr int Radials = 4096;
constexpr int Cells = 2048;
constexpr double Range = 60.0 * 1852.0; // metres
constexpr int FramesASecond = 5;

// A video layer on a screen, with a clock driven by hand, and a revolution of video in the batches of a second.
class Scope {
public:
    explicit Scope(double groundMetresPerPixel, double siteShift = 0.0) : m_layer(&m_projector)
    {
        const GeoCoordinate site(48.0, 16.0);
        auto radar = QSharedPointer<RadarSensorInfo>::create();
        radar->setSacSic(1, 2);
        radar->setLocation(site);
        m_layer.setClock([this] { return m_now; });
        m_layer.setSensor(radar);
        Config config;
        config.mapVideoVisible = true;
        m_layer.applyConfig(config);
        RadarScene scene(Radials, Cells, Range);
        for (int i = 0; i < FramesASecond; ++i) {
            m_batches.push_back(scene.next((Radials + FramesASecond - 1) / FramesASecond));
        }
        double x = 0.0;
        double y = 0.0;
        m_projector.toCartesian(&x, &y, site.latitude(), site.longitude());
        const double scale = 0.669 / groundMetresPerPixel; // cosine of the latitude
        m_toScreen.translate(Screen.width() / 2.0, Screen.height() / 2.0);
        m_toScreen.scale(scale, -scale);
        m_toScreen.translate(-x - siteShift, -y);
        m_image.fill(QColor(173, 173, 173));
        turn();
    }

    void pan(double pixels) { m_toScreen *= QTransform::fromTranslate(pixels, 0.0); }

    void paint()
    {
        QPainter painter(&m_image);
        painter.setWorldTransform(m_toScreen);
        m_layer.paint(painter, GeoView(m_toScreen, Screen));
    }

    // A revolution of one second.
    void turn()
    {
        for (const auto &batch : m_batches) {
            m_now += 1000 / FramesASecond;
            for (const VideoProcessor::Radial &radial : batch->radials) {
                m_layer.addRadial(radial);
            }
            paint();
        }
    }

private:
    MercatorProjector m_projector;
    qint64 m_now = 0;
    GeoVideoMap m_layer;
    std::vector<QSharedPointer<const VideoBatch>> m_batches;
    QTransform m_toScreen;
    QImage m_image{Screen, QImage::Format_ARGB32_Premultiplied};
};

// The time of an iteration is what one revolution costs; a revolution takes a second.
void turnAtFullRange(benchmark::State &state)
{
    Scope scope(2.0 * Range / Screen.height());
    for (auto _ : state) {
        scope.turn();
    }
}

void turnAtOneMile(benchmark::State &state)
{
    Scope scope(1852.0 / Screen.height(), double(state.range(0)) * 1852.0);
    for (auto _ : state) {
        scope.turn();
    }
}

// A new view each time, as while the operator pans.
void paintNewView(benchmark::State &state)
{
    Scope scope(2.0 * Range / Screen.height());
    double shift = 3.0;
    for (auto _ : state) {
        scope.pan(shift);
        shift = -shift;
        scope.paint();
    }
}

} // namespace

BENCHMARK(turnAtFullRange)->Unit(benchmark::kMillisecond);
BENCHMARK(turnAtOneMile)->ArgName("milesFromSite")->Arg(0)->Arg(20)->Unit(benchmark::kMillisecond);
BENCHMARK(paintNewView)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
