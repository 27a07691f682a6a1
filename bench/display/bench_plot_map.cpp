#include "app/config.h"
#include "display/geo_plot_map.h"
#include "engine/display_snapshot.h"
#include "tracking/plot_store.h"
#include "view/geo_view.h"

#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include <random>

namespace {

constexpr QSize Screen(1920, 1080);
constexpr double MetresPerPixel = 300.0;
constexpr qint64 LifeMs = 12000;

// Everywhere in the view, of every kind and age.
DisplaySnapshot picture(int plots)
{
    std::mt19937 random(1);
    PlotStore store;
    for (int i = 0; i < plots; ++i) {
        const QPointF pixel(random() % unsigned(Screen.width()), random() % unsigned(Screen.height()));
        store.add(
            pixel * MetresPerPixel, static_cast<Track::Type>(random() % (Track::Smr + 1)), 1 + LifeMs * i / plots);
    }
    DisplaySnapshot snapshot;
    snapshot.plots = store.publish();
    snapshot.time = QDateTime::fromMSecsSinceEpoch(LifeMs, Qt::UTC);
    return snapshot;
}

// Arguments: plots, device pixel ratio in percent, rotation of the view in degrees.
void paintPlots(benchmark::State &state)
{
    GeoPlotMap layer;
    Config config;
    config.mapPlotVisible = true;
    layer.applyConfig(config);
    layer.setSnapshot(picture(int(state.range(0))));
    const double ratio = double(state.range(1)) / 100.0;
    QImage image(Screen * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    QTransform toScreen;
    toScreen.rotate(double(state.range(2)));
    toScreen = QTransform(1.0 / MetresPerPixel, 0.0, 0.0, -1.0 / MetresPerPixel, 0.0, Screen.height()) * toScreen;
    for (auto _ : state) {
        image.fill(QColor(173, 173, 173));
        QPainter painter(&image);
        painter.setWorldTransform(toScreen);
        layer.paint(painter, GeoView(toScreen, Screen, ratio));
    }
    state.counters["plots"] = double(layer.shownPlots());
}

} // namespace

BENCHMARK(paintPlots)
    ->ArgNames({"plots", "ratio", "rotation"})
    ->Args({0, 100, 0})
    ->Args({20000, 100, 0})
    ->Args({20000, 150, 0})
    ->Args({20000, 200, 0})
    ->Args({20000, 100, 20})
    ->Args({240000, 100, 0})
    ->Unit(benchmark::kMillisecond);
