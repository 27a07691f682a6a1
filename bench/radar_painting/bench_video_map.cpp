#include "app/config.h"
#include "bench_screen.h"
#include "geo/mercator_projector.h"
#include "radar_painting/geo_video_map.h"
#include "radar_scene.h"
#include "sensors/radar_sensor_info.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

constexpr QSize Screen(1920, 1080);
constexpr int Radials = 4096;
constexpr int Cells = 2048;
constexpr double Range = 60.0 * 1852.0; // metres
constexpr int FramesASecond = 5;
constexpr double CosineOfLatitude = 0.669;

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
        m_screen.lookAt(m_projector.toCartesian(site.latitude(), site.longitude()) + QPointF(siteShift, 0.0),
            groundMetresPerPixel / CosineOfLatitude);
        turn();
    }

    void pan(double pixels) { m_screen.pan(pixels); }
    void paint() { m_screen.paint(m_layer); }

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
    BenchScreen m_screen{Screen};
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
    paintPanned(state, scope, 3.0);
}

} // namespace

BENCHMARK(turnAtFullRange)->Unit(benchmark::kMillisecond);
BENCHMARK(turnAtOneMile)->ArgName("milesFromSite")->Arg(0)->Arg(20)->Unit(benchmark::kMillisecond);
BENCHMARK(paintNewView)->Unit(benchmark::kMillisecond);
