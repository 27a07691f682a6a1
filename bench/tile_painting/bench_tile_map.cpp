#include "app/config.h"
#include "bench_screen.h"
#include "geo/mercator_projector.h"
#include "tile_painting/geo_tile_map.h"
#include "tile_painting/tile_cells.h"
#include "tile_painting/tile_plane.h"
#include "tile_painting/tile_row_painter.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QHash>
#include <QImage>
#include <QThread>

#include <algorithm>
#include <cmath>

namespace {

constexpr int Level = 10;
constexpr QSize Screen(1366, 900);
constexpr double MetresPerPixel = 200.0; // tiles of 196 pixels: 40 of them

QImage someTile(const TileIndex &index)
{
    QImage image(256, 256, QImage::Format_RGB32);
    for (int y = 0; y < 256; ++y) {
        for (int x = 0; x < 256; ++x) {
            image.setPixel(x, y, qRgb((x * index.x) & 255, (y * index.y) & 255, (x ^ y) & 255));
        }
    }
    return image;
}

class TileScope {
public:
    explicit TileScope(double rotation, int dimming = 0) : m_layer(GeoTileMap::Layer::Bottom)
    {
        Config config;
        config.mapTileDimming = dimming;
        m_layer.applyConfig(config);
        TileSource source;
        source.image = [this](const TileIndex &index) {
            QImage &tile = m_tiles[index];
            if (tile.isNull()) {
                tile = someTile(index);
            }
            return tile;
        };
        source.levelFor = [](double) { return Level; };
        source.maxLevel = Level;
        m_layer.setSource(source);
        MercatorProjector projector;
        const QPointF middle = projector.toCartesian(48.0, 16.0);
        m_screen.lookAt(middle, MetresPerPixel, rotation);
        settle();
    }

    void pan(double pixels) { m_screen.pan(pixels); }
    void paint() { m_screen.paint(m_layer); }
    void comeTiles() { m_layer.tilesChanged(); }
    int tiles() const { return static_cast<int>(TilePlane::covering(m_screen.planeRect(), Level).count()); }

private:
    // Until what is toned and drawn in the background has come.
    void settle()
    {
        QElapsedTimer quiet;
        quiet.start();
        while (quiet.elapsed() < 300) {
            paint();
            if (m_layer.drawing()) {
                quiet.restart();
            }
            QCoreApplication::processEvents();
            QThread::msleep(1);
        }
    }

    QHash<TileIndex, QImage> m_tiles;
    GeoTileMap m_layer;
    BenchScreen m_screen{Screen};
};

void unchangedView(benchmark::State &state)
{
    TileScope scope(static_cast<double>(state.range(0)), 40);
    state.counters["tiles"] = scope.tiles();
    for (auto _ : state) {
        scope.paint();
    }
}

void newView(benchmark::State &state)
{
    TileScope scope(static_cast<double>(state.range(0)), static_cast<int>(state.range(1)));
    state.counters["tiles"] = scope.tiles();
    paintPanned(state, scope, 0.5);
}

// What the worker does for a new view, with the tiles themselves or with coarser ones in their place.
void drawnView(benchmark::State &state)
{
    BenchScreen screen(Screen);
    screen.lookAt(MercatorProjector().toCartesian(48.0, 16.0), MetresPerPixel, static_cast<double>(state.range(0)));
    const GeoView view = screen.view();
    const bool standIns = state.range(1) != 0;
    QHash<TileIndex, QImage> tiles;
    TileCells cells;
    const auto images = [&](const TileIndex &index) {
        if (index.level == (standIns ? Level - 1 : Level) && !tiles.contains(index)) {
            tiles.insert(index, someTile(index));
        }
        return tiles.value(index);
    };
    cells.update(TileRowPainter::needed(view, view.screenRect(), Level), images, 1, Level, 0);
    QImage image(screen.size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        QPainter painter(&image);
        TileRowPainter().paint(painter, view, view.screenRect(), *cells.copy(), Level, false);
    }
}

void pannedView(benchmark::State &state)
{
    TileScope scope(static_cast<double>(state.range(0)), 40);
    paintPanned(state, scope, 7.0);
}

// Tiles have come for elsewhere.
void checkedView(benchmark::State &state)
{
    TileScope scope(0.0, 40);
    for (auto _ : state) {
        scope.comeTiles();
        scope.paint();
    }
}

void toneATile(benchmark::State &state)
{
    const TileTone tone{45, 50, QColor(11, 17, 24)};
    const QImage tile = someTile({3, 5, Level});
    for (auto _ : state) {
        benchmark::DoNotOptimize(tone.applied(tile));
    }
}

} // namespace

BENCHMARK(unchangedView)->ArgName("rotation")->Arg(0)->Arg(30)->Unit(benchmark::kMillisecond);
BENCHMARK(newView)
    ->ArgNames({"rotation", "dimming"})
    ->Args({0, 0})
    ->Args({0, 40})
    ->Args({30, 0})
    ->Args({30, 40})
    ->Args({90, 0})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(drawnView)
    ->ArgNames({"rotation", "stand-ins"})
    ->Args({0, 0})
    ->Args({0, 1})
    ->Args({30, 0})
    ->Args({30, 1})
    ->Args({90, 0})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(pannedView)->ArgName("rotation")->Arg(0)->Arg(30)->Unit(benchmark::kMillisecond);
BENCHMARK(checkedView)->Unit(benchmark::kMillisecond);
BENCHMARK(toneATile)->Unit(benchmark::kMicrosecond);
