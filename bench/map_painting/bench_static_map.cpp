#include "bench_screen.h"
#include "geo/mercator_projector.h"
#include "map_painting/geo_static_map.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include <cmath>
#include <random>

namespace {

constexpr QSize Screen(1920, 1080);
constexpr double Pi = 3.141592653589793;
const GeoCoordinate Site(35.0, -97.0); // on the coast, among the roads

// A coast around a place: a circle, more ragged the closer one looks.
QList<GeoCoordinate> coast(double latitude, double longitude, double radius, int points, std::mt19937 &random)
{
    std::uniform_real_distribution<double> phase(0.0, 2.0 * Pi);
    constexpr int Octaves = 16;
    double phases[Octaves];
    for (double &value : phases) {
        value = phase(random);
    }
    QList<GeoCoordinate> result;
    for (int i = 0; i < points; ++i) {
        const double angle = 2.0 * Pi * i / points;
        double distance = 1.0;
        for (int octave = 0; octave < Octaves; ++octave) {
            distance += 0.25 * std::pow(0.55, octave) * std::sin(std::pow(2.0, octave) * angle + phases[octave]);
        }
        const double reach = radius * distance;
        result.append({latitude + reach * std::sin(angle), longitude + 1.3 * reach * std::cos(angle)});
    }
    return result;
}

// A road: steps of a kilometre or so in a direction that changes little by little.
QList<GeoCoordinate> road(int points, std::mt19937 &random)
{
    std::normal_distribution<double> away(0.0, 5.0);
    std::normal_distribution<double> turn(0.0, 0.3);
    double latitude = Site.latitude() + away(random);
    double longitude = Site.longitude() + away(random);
    double direction = away(random);
    QList<GeoCoordinate> result;
    for (int i = 0; i < points; ++i) {
        result.append({latitude, longitude});
        direction += turn(random);
        latitude += 0.01 * std::sin(direction);
        longitude += 0.01 * std::cos(direction);
    }
    return result;
}

// Six continents of 100000 points each; around one place 4000 roads of 100 points each, and 2000 named places.
QSharedPointer<const MapData> millionPoints()
{
    static const auto map = [] {
        auto data = QSharedPointer<MapData>::create();
        std::mt19937 random(7);
        MapElementGroup &land = getGroup(*data, QStringLiteral("land"));
        for (double longitude : {-120.0, 0.0, 120.0}) {
            for (double latitude : {-32.0, 35.0}) {
                land.polygons.append({{}, coast(latitude, longitude, 18.0, 100000, random)});
            }
        }
        MapElementGroup &roads = getGroup(*data, QStringLiteral("road"));
        for (int i = 0; i < 4000; ++i) {
            roads.polylines.append({{}, road(100, random)});
        }
        MapElementGroup &places = getGroup(*data, QStringLiteral("place"));
        for (int i = 0; i < 2000; ++i) {
            const GeoCoordinate place = road(1, random).first();
            places.symbols.append({{}, QStringLiteral("circle"), place});
            places.labels.append({{}, QStringLiteral("PL%1").arg(i), place});
        }
        return data;
    }();
    return map;
}

MapStyleSheet styles(Qt::PenStyle roadStyle, int roadWidth)
{
    MapStyleSheet sheet;
    MapStyleClass land = defaultStyleClass(QStringLiteral("land"));
    land.brush = QColor(40, 60, 50);
    land.pen = QPen(QColor(90, 120, 100), 1);
    sheet.setStyle(land);
    MapStyleClass line = defaultStyleClass(QStringLiteral("road"));
    line.pen = QPen(QColor(120, 110, 90), roadWidth, roadStyle);
    sheet.setStyle(line);
    MapStyleClass place = defaultStyleClass(QStringLiteral("place"));
    place.color = QColor(180, 190, 200);
    sheet.setStyle(place);
    return sheet;
}

class Scope {
public:
    explicit Scope(double metresPerPixel, Qt::PenStyle roadStyle = Qt::SolidLine, int roadWidth = 1)
        : m_layer(&m_projector)
    {
        MapLibrary::Map map;
        map.id = 1;
        map.data = millionPoints();
        m_layer.setSymbolSize(12);
        m_layer.setStyleSheet(styles(roadStyle, roadWidth));
        m_layer.setMaps({map});
        while (m_layer.preparing()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        const GeoCoordinate middle = metresPerPixel > 5000.0 ? GeoCoordinate(0.0, 0.0) : Site;
        m_screen.lookAt(m_projector.toCartesian(middle.latitude(), middle.longitude()), metresPerPixel);
        paint();
    }

    void pan(double pixels) { m_screen.pan(pixels); }
    void paint() { m_screen.paint(m_layer); }

private:
    MercatorProjector m_projector;
    GeoStaticMap m_layer;
    BenchScreen m_screen{Screen};
};

void prepareMap(benchmark::State &state)
{
    MercatorProjector projector;
    const auto data = millionPoints();
    for (auto _ : state) {
        benchmark::DoNotOptimize(StaticMapGeometry::make(data, projector, false));
    }
}

void paintSameView(benchmark::State &state)
{
    Scope scope(double(state.range(0)));
    for (auto _ : state) {
        scope.paint();
    }
}

void paintNewView(benchmark::State &state)
{
    Scope scope(double(state.range(0)), Qt::PenStyle(state.range(1)), int(state.range(2)));
    paintPanned(state, scope, 0.5);
}

void paintWhilePanning(benchmark::State &state)
{
    Scope scope(double(state.range(0)));
    paintPanned(state, scope, 7.0);
}

} // namespace

BENCHMARK(prepareMap)->Unit(benchmark::kMillisecond)->Iterations(2);
BENCHMARK(paintSameView)->ArgName("metresPerPixel")->Arg(14000)->Unit(benchmark::kMillisecond);
BENCHMARK(paintNewView)
    ->ArgNames({"metresPerPixel", "penStyle", "penWidth"})
    ->ArgsProduct({{14000, 2000, 100, 1}, {int(Qt::SolidLine)}, {1}})
    ->Args({2000, int(Qt::DashLine), 1})
    ->ArgsProduct({{2000, 500}, {int(Qt::SolidLine), int(Qt::DashLine)}, {2}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(paintWhilePanning)->ArgName("metresPerPixel")->Arg(14000)->Arg(100)->Unit(benchmark::kMillisecond);
